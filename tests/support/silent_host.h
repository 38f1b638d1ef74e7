#pragma once

#include <cstdlib>
#include <functional>
#include <utility>

#include "screen/screen.h"
#include "screen/windowless_host.h"

namespace tarvane {

// A host for programs that only count time or look for crashes: it says yes to every question, has no input
// to give, and runs `step` on the screen that is shown.
class SilentHost : public WindowlessHost {
 public:
  SilentHost() : WindowlessHost({}) {}

  std::function<void(Screen&)> step;

  void RunModal(Screen& screen) override {
    const auto now = std::exchange(step, nullptr);
    if (now) now(screen);
  }
  void Message(std::string_view, std::string_view, Icon) override {}
  Answer Ask(const Question&) override { return Answer::kYes; }
  std::optional<std::string> Input(std::string_view, std::string_view, std::string_view) override {
    return {};
  }
  std::optional<std::filesystem::path> ChooseFile(FileChoice, std::string_view, std::string_view,
                                                  std::string_view) override {
    return {};
  }
  void Beep() override {}
  void SetBusy(bool) override {}
  DateTime Now() override { return {}; }
  int RandomDigit() override { return 0; }
  std::string ClipboardText() override { return {}; }
  void SetClipboardText(std::string_view) override {}
  void Launch(std::string_view) override {}
  [[noreturn]] void EndProcess() override { std::abort(); }

 protected:
  void PagePrinted(const paper::RecordedPage&, double) override {}
};

}  // namespace tarvane
