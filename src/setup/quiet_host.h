#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "screen/windowless_host.h"

namespace tarvane::setup {

// A host for a program that runs by itself: each screen that is shown is served by the function that waits
// for it, and each input gets the reply that was put in for it. Information is passed over; what would need a
// person (a question, a warning, a file choice) is a Fault.
class QuietHost : public WindowlessHost {
 public:
  QuietHost() : WindowlessHost({}) {}

  using Worker = std::function<void(Screen&)>;

  // Serves the next showing of the screen of that name; a former one for it is replaced.
  void Await(std::string screen_name, Worker worker);
  // For the next input that has none yet.
  void Reply(std::string input) { replies_.push_back(std::move(input)); }
  // Passes over the next message if it is one without an icon that ends so; without that it is a Fault too.
  void PassOver(std::string end) { notice_end_ = std::move(end); }
  void SetNow(const DateTime& now) { now_ = now; }

  void RunModal(Screen& screen) override;  // faults where none waits for it
  void Message(std::string_view title, std::string_view text, Icon icon) override;
  Answer Ask(const Question& question) override;
  std::optional<std::string> Input(std::string_view title, std::string_view prompt,
                                   std::string_view initial) override;
  std::optional<std::filesystem::path> ChooseFile(FileChoice kind, std::string_view title,
                                                  std::string_view filter,
                                                  std::string_view suggested) override;
  void Beep() override {}
  void SetBusy(bool) override {}
  DateTime Now() override { return now_; }
  int RandomDigit() override { return 0; }
  std::string ClipboardText() override { return {}; }
  void SetClipboardText(std::string_view) override {}
  void Launch(std::string_view target) override;
  [[noreturn]] void EndProcess() override;

 protected:
  void PagePrinted(const paper::RecordedPage& page, double left) override;

 private:
  std::map<std::string, Worker, std::less<>> workers_;
  std::deque<std::string> replies_;
  std::string notice_end_;
  DateTime now_;
};

}  // namespace tarvane::setup
