#include "setup/quiet_host.h"

#include <fmt/format.h>

#include <utility>

#include "screen/screen.h"
#include "text/fault.h"

namespace tarvane::setup {

void QuietHost::Await(std::string screen_name, Worker worker) {
  workers_.insert_or_assign(std::move(screen_name), std::move(worker));
}

void QuietHost::RunModal(Screen& screen) {
  const auto found = workers_.find(screen.name());
  if (found == workers_.end()) throw Fault(fmt::format("Nobody serves the screen {}.", screen.name()));
  const Worker worker = std::move(found->second);
  workers_.erase(found);
  worker(screen);
}

void QuietHost::Message(std::string_view, std::string_view text, Icon icon) {
  if (icon == Icon::kInformation) return;
  const std::string end = std::exchange(notice_end_, "");
  if (icon != Icon::kNone || end.empty() || !text.ends_with(end)) throw Fault(std::string(text));
}

Answer QuietHost::Ask(const Question& question) {
  throw Fault(fmt::format("Nobody answers the question \"{}\".", question.text));
}

std::optional<std::string> QuietHost::Input(std::string_view, std::string_view prompt, std::string_view) {
  if (replies_.empty()) throw Fault(fmt::format("Nobody answers \"{}\".", prompt));
  std::string reply = std::move(replies_.front());
  replies_.pop_front();
  return reply;
}

std::optional<std::filesystem::path> QuietHost::ChooseFile(FileChoice, std::string_view title,
                                                           std::string_view, std::string_view) {
  throw Fault(fmt::format("Nobody chooses a file for \"{}\".", title));
}

void QuietHost::Launch(std::string_view target) { throw Fault(fmt::format("{} cannot be opened.", target)); }

void QuietHost::PagePrinted(const paper::RecordedPage&, double) { throw Fault("There is no printer."); }

void QuietHost::EndProcess() { throw Fault("The program has been ended."); }

}  // namespace tarvane::setup
