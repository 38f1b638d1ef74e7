#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <optional>
#include <ostream>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screen/windowless_host.h"

namespace tarvane::script {

// How a script's surroundings are fixed.
struct ScriptSettings {
  std::optional<DateTime> now;        // nothing: the machine's clock
  std::optional<std::uint32_t> seed;  // nothing: another one each time
  std::filesystem::path fonts;        // the folder of font metric files
};

// The host of a program without a window: it prints what the program says and answers from a queue.
class ScriptHost : public WindowlessHost {
 public:
  // `out` must outlive the host; every line on it is flushed.
  ScriptHost(std::ostream& out, const ScriptSettings& settings);

  // Who serves a screen until it is closed.
  void SetServer(std::function<void(Screen&)> server) { server_ = std::move(server); }

  // The open screens, the one on top last.
  const std::vector<Screen*>& open_screens() const { return open_; }
  void QueueAnswer(std::string text) { answers_.push_back(std::move(text)); }
  void QueueCancel() { answers_.push_back(std::nullopt); }
  // The text of the newest message, question or prompt; nothing before the first.
  const std::optional<std::string>& said() const { return said_; }
  const std::string& launched() const { return launched_; }

  struct NumberedPage {
    int number = 0;
    std::vector<std::string> lines;
  };
  // The pages since the last TakePrinted, numbered from the program's start, as they look on paper.
  const std::vector<NumberedPage>& printed() const { return printed_; }
  std::vector<NumberedPage> TakePrinted() { return std::exchange(printed_, {}); }

  // One line of the transcript.
  void Tell(std::string_view line);

  void RunModal(Screen& screen) override;
  void Message(std::string_view title, std::string_view text, Icon icon) override;
  Answer Ask(const Question& question) override;
  std::optional<std::string> Input(std::string_view title, std::string_view prompt,
                                   std::string_view initial) override;
  std::optional<std::filesystem::path> ChooseFile(FileChoice kind, std::string_view title,
                                                  std::string_view filter,
                                                  std::string_view suggested) override;
  void Beep() override;
  void SetBusy(bool) override {}
  DateTime Now() override;
  int RandomDigit() override;
  std::string ClipboardText() override { return clipboard_; }
  void SetClipboardText(std::string_view text) override { clipboard_ = text; }
  void Launch(std::string_view target) override;
  [[noreturn]] void EndProcess() override;

 protected:
  void PagePrinted(const paper::RecordedPage& page, double left) override;

 private:
  // A text, or nothing for "cancel".
  using QueuedAnswer = std::optional<std::string>;
  QueuedAnswer TakeAnswer(std::string_view asker, std::string_view title, std::string_view text);

  std::ostream& out_;
  std::optional<DateTime> now_;
  std::mt19937 dice_;
  std::function<void(Screen&)> server_;
  std::vector<Screen*> open_;
  std::deque<QueuedAnswer> answers_;
  std::optional<std::string> said_;
  std::string launched_;
  std::string clipboard_;
  std::vector<NumberedPage> printed_;
  int pages_ = 0;
};

}  // namespace tarvane::script
