#include "script/script_host.h"

#include <fmt/format.h>

#include <algorithm>

#include "screen/screen.h"
#include "script/script_error.h"
#include "script/script_line.h"
#include "text/utf8.h"

namespace tarvane::script {
namespace {

// In the order of enum Answer.
constexpr std::string_view kAnswerWords[] = {"yes", "no", "ok", "cancel"};

std::string_view Word(Answer answer) { return kAnswerWords[static_cast<std::size_t>(answer)]; }

}  // namespace

ScriptHost::ScriptHost(std::ostream& out, const ScriptSettings& settings)
    : WindowlessHost(settings.fonts),
      out_(out),
      now_(settings.now),
      dice_(settings.seed ? *settings.seed : std::random_device{}()) {}

void ScriptHost::Tell(std::string_view line) { out_ << line << std::endl; }

void ScriptHost::RunModal(Screen& screen) {
  Tell(fmt::format("screen {} {}", screen.name(), InQuotes(screen.title())));
  open_.push_back(&screen);
  server_(screen);
  open_.pop_back();
  Tell(fmt::format("closed {}", screen.name()));
}

void ScriptHost::Message(std::string_view title, std::string_view text, Icon) {
  said_ = text;
  Tell(fmt::format("message {} {}", InQuotes(title), InQuotes(text)));
}

ScriptHost::QueuedAnswer ScriptHost::TakeAnswer(std::string_view asker, std::string_view title,
                                                std::string_view text) {
  said_ = text;
  if (answers_.empty()) {
    throw ScriptError(fmt::format("no answer is waiting for the {} {} {}{}", asker, InQuotes(title),
                                  InQuotes(text), open_.empty() ? "" : " on " + open_.back()->name()));
  }
  QueuedAnswer answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

Answer ScriptHost::Ask(const Question& question) {
  if (question.answers.size() == 1) {
    Message(question.title, question.text, question.icon);
    return question.answers.front();
  }
  const std::string word = TakeAnswer("question", question.title, question.text).value_or("cancel");
  std::string offered;
  for (const Answer answer : question.answers) {
    if (Word(answer) == word) {
      Tell(fmt::format("question {} {} {}", InQuotes(question.title), InQuotes(question.text), word));
      return answer;
    }
    offered += fmt::format("{}{}", offered.empty() ? "" : ", ", Word(answer));
  }
  throw ScriptError(fmt::format("the question {} {} can't be answered {} (it takes {})",
                                InQuotes(question.title), InQuotes(question.text), InQuotes(word), offered));
}

std::optional<std::string> ScriptHost::Input(std::string_view title, std::string_view prompt,
                                             std::string_view) {
  QueuedAnswer answer = TakeAnswer("input box", title, prompt);
  Tell(fmt::format("input {} {} {}", InQuotes(title), InQuotes(prompt),
                   answer ? InQuotes(*answer) : "cancelled"));
  return answer;
}

std::optional<std::filesystem::path> ScriptHost::ChooseFile(FileChoice, std::string_view title,
                                                            std::string_view, std::string_view) {
  const QueuedAnswer answer = TakeAnswer("file choice", title, title);
  Tell(fmt::format("file {} {}", InQuotes(title), answer ? InQuotes(*answer) : "cancelled"));
  if (!answer) return std::nullopt;
  return std::filesystem::path(*answer);
}

void ScriptHost::Beep() { Tell("beep"); }

DateTime ScriptHost::Now() { return now_.has_value() ? *now_ : LocalNow(); }

int ScriptHost::RandomDigit() { return static_cast<int>(dice_() % 10); }

void ScriptHost::Launch(std::string_view target) {
  launched_ = target;
  Tell(fmt::format("launched {}", InQuotes(target)));
}

void ScriptHost::PagePrinted(const paper::RecordedPage& page, double left) {
  NumberedPage& printed = printed_.emplace_back();
  printed.number = ++pages_;
  std::ranges::transform(paper::LinesOf(page, left), std::back_inserter(printed.lines),
                         [](const std::string& line) { return OnOneLine(line); });
}

void ScriptHost::EndProcess() { throw ProcessEnd(); }

}  // namespace tarvane::script
