#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "screen/screen.h"
#include "screen/windowless_host.h"

namespace tarvane {

// What FakeHost::EndProcess throws; no Fault, so that nothing but a test catches it.
struct ProcessEnd {};

// A host without a worker: it records what the program says and answers from queues. A question, an input box
// or a file choice without a waiting answer is an error that ends the test.
class FakeHost : public WindowlessHost {
 public:
  FakeHost() : WindowlessHost(TARVANE_DATA_DIR "/Fonts") {}

  // What to do with each screen that is shown, in turn. After its step a screen is closed, unasked; one
  // without a step at once.
  std::deque<std::function<void(Screen&)>> shows;
  std::vector<std::string> shown;  // names, in order

  std::deque<Answer> answers;
  std::deque<std::optional<std::string>> inputs;
  std::deque<std::optional<std::filesystem::path>> files;

  std::vector<std::string> messages;  // texts, in order
  std::vector<std::string> titles;    // their titles
  std::vector<Question> questions;
  std::vector<std::string> suggestions;  // file names
  std::vector<std::string> launched;
  bool can_launch = true;           // otherwise Launch faults
  std::vector<std::int64_t> steps;  // of ShowProgress
  int steps_until_stop = -1;        // none left: the worker stops; -1: never
  int progress_ends = 0;
  std::vector<std::vector<std::string>> printed;  // the lines of each page
  std::string print_fault;                        // what printing faults with; "": it works
  bool print_cancelled = false;                   // the worker cancels the printer's dialog
  std::vector<PrintOrder> print_orders;
  std::string clipboard;
  DateTime now = {MakeDay(2026, 3, 9), 14, 5, 0};
  int beeps = 0;
  int busy = 0;        // now
  int busy_times = 0;  // how often it was switched on
  int printer_setups = 0;

  // The same with the screen's own class: host.OnShow<app::frmSplash>([](app::frmSplash& splash) { ... });
  template <typename Shown>
  void OnShow(std::function<void(Shown&)> step) {
    shows.emplace_back([step = std::move(step)](Screen& screen) {
      auto* const shown_screen = dynamic_cast<Shown*>(&screen);
      if (shown_screen == nullptr) Fail("another screen than awaited: " + screen.name());
      step(*shown_screen);
    });
  }

  void RunModal(Screen& screen) override {
    shown.push_back(screen.name());
    if (!shows.empty()) {
      const auto step = std::move(shows.front());
      shows.pop_front();
      step(screen);
    }
    screen.Close();
  }
  void Message(std::string_view title, std::string_view text, Icon) override {
    titles.emplace_back(title);
    messages.emplace_back(text);
  }
  Answer Ask(const Question& question) override {
    questions.push_back(question);
    return Take(answers, question.text);
  }
  std::optional<std::string> Input(std::string_view, std::string_view prompt, std::string_view) override {
    return Take(inputs, prompt);
  }
  std::optional<std::filesystem::path> ChooseFile(FileChoice, std::string_view title, std::string_view,
                                                  std::string_view suggested) override {
    suggestions.emplace_back(suggested);
    return Take(files, title);
  }
  void Beep() override { ++beeps; }
  void SetBusy(bool on) override {
    busy += on ? 1 : -1;
    busy_times += on ? 1 : 0;
  }
  DateTime Now() override { return now; }
  int RandomDigit() override { return digit_ = (digit_ + 7) % 10; }
  std::string ClipboardText() override { return clipboard; }
  void SetClipboardText(std::string_view text) override { clipboard = text; }
  void Launch(std::string_view target) override {
    if (!can_launch) throw Fault("Nothing here can open it.");
    launched.emplace_back(target);
  }
  bool ShowProgress(std::string_view, std::int64_t done, std::int64_t) override {
    steps.push_back(done);
    return steps_until_stop < 0 || steps_until_stop-- > 0;
  }
  void EndProgress() override { ++progress_ends; }
  bool Print(const paper::Pages& pages, const PrintOrder& order) override {
    print_orders.push_back(order);
    if (!print_fault.empty()) throw Fault(print_fault);
    return !print_cancelled && WindowlessHost::Print(pages, order);
  }
  void SetUpPrinter() override { ++printer_setups; }
  [[noreturn]] void EndProcess() override { throw ProcessEnd{}; }

 protected:
  void PagePrinted(const paper::RecordedPage& page, double left) override {
    printed.push_back(paper::LinesOf(page, left));
  }

 private:
  template <typename T>
  static T Take(std::deque<T>& queue, std::string_view asked) {
    if (queue.empty()) Fail("no answer waits for: " + std::string(asked));
    T taken = std::move(queue.front());
    queue.pop_front();
    return taken;
  }

  // The test itself is wrong, or the program asks what it shouldn't.
  [[noreturn]] static void Fail(const std::string& text) {
    ADD_FAILURE() << text;
    throw ProcessEnd{};
  }

  int digit_ = 0;
};

}  // namespace tarvane
