#include "script/interpreter.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>

namespace tarvane::script {

Interpreter::Interpreter(ScriptHost& host, LineReader& lines, std::ostream& err)
    : host_(host), lines_(lines), err_(err) {
  host_.SetServer([this](const Screen& screen) { Serve(screen); });
}

std::span<const Interpreter::Command> Interpreter::Commands() {
  static constexpr Command kCommands[] = {
      {"type", 2, 2, "FIELD TEXT", &Interpreter::Type},
      {"enter", 1, 1, "FIELD", &Interpreter::Enter},
      {"focus", 1, 1, "FIELD", &Interpreter::Focus},
      {"leave", 1, 1, "FIELD", &Interpreter::Leave},
      {"press", 1, 1, "BUTTON", &Interpreter::Press},
      {"tick", 1, 1, "BOX", &Interpreter::Tick},
      {"untick", 1, 1, "BOX", &Interpreter::Untick},
      {"choose", 2, 2, "LIST TEXT", &Interpreter::Choose},
      {"select", 2, 2, "GRID ROW", &Interpreter::Select},
      {"open", 2, 2, "GRID ROW", &Interpreter::Open},
      {"close", 0, 0, "nothing", &Interpreter::Close},
      {"answer", 1, 1, "TEXT", &Interpreter::AnswerNext},
      {"cancel", 0, 0, "nothing", &Interpreter::CancelNext},
      {"show", 1, kAnyNumber, "CONTROL ...", &Interpreter::Show},
      {"expect", 2, 4, "CONTROL TEXT or GRID ROW COLUMN TEXT", &Interpreter::Expect},
      {"expect-rows", 2, 2, "GRID N", &Interpreter::ExpectRows},
      {"expect-entries", 2, 2, "LIST N", &Interpreter::ExpectEntries},
      {"expect-screen", 1, 1, "NAME", &Interpreter::ExpectScreen},
      {"expect-title", 1, 1, "TEXT", &Interpreter::ExpectTitle},
      {"expect-said", 1, 1, "TEXT", &Interpreter::ExpectSaid},
      {"expect-on", 1, 1, "CONTROL", &Interpreter::ExpectOn},
      {"expect-off", 1, 1, "CONTROL", &Interpreter::ExpectOff},
      {"expect-shown", 1, 1, "CONTROL", &Interpreter::ExpectShown},
      {"expect-hidden", 1, 1, "CONTROL", &Interpreter::ExpectHidden},
      {"printed", 0, 0, "nothing", &Interpreter::ShowPrinted},
      {"expect-printed", 1, 1, "TEXT", &Interpreter::ExpectPrinted},
      {"expect-clipboard", 1, 1, "TEXT", &Interpreter::ExpectClipboard},
      {"expect-launched", 1, 1, "TEXT", &Interpreter::ExpectLaunched},
  };
  return kCommands;
}

void Interpreter::Serve(const Screen& screen) {
  while (!screen.is_closed()) {
    const std::optional<std::string> line = lines_.Next();
    if (!line) throw ProcessEnd();
    const std::vector<Argument> words = SplitLine(*line);
    if (!words.empty()) RunCommand(words);
  }
}

void Interpreter::RunCommand(const std::vector<Argument>& words) {
  const std::string& name = words.front().text;
  const std::span<const Command> commands = Commands();
  const auto command = std::ranges::find(commands, name, &Command::name);
  if (command == commands.end()) {
    std::vector<std::string> names;
    for (const Command& known : commands) names.emplace_back(known.name);
    throw ScriptError(fmt::format("unknown command {}; did you mean {}?", name, Nearest(name, names)));
  }
  const std::size_t count = words.size() - 1;
  if (count < command->least || count > command->most) {
    throw ScriptError(fmt::format("{} wants {}", name, command->usage));
  }
  const bool done = Try([&] { (this->*command->run)(Arguments(words).subspan(1)); });
  if (!done && name.starts_with("expect")) {
    std::string wanted = "an answer to";
    for (const Argument& word : words) wanted += " " + word.source;
    Fail(wanted, "a fault");
  }
}

bool Interpreter::Try(const std::function<void()>& step) {
  bool done = false;
  top().Guard([&] {
    step();
    done = true;
  });
  return done;
}

void Interpreter::RequireNothingLeft() {
  while (const std::optional<std::string> line = lines_.Next()) {
    const std::vector<Argument> words = SplitLine(*line);
    if (!words.empty()) throw ScriptError(fmt::format("the program has ended before {}", words.front().text));
  }
}

std::int64_t WholeNumber(const Argument& word) {
  const char* last = word.text.data() + word.text.size();
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(word.text.data(), last, number);
  if (error != std::errc() || end != last || number < 0) {
    throw ScriptError(fmt::format("{} isn't a whole number from 0", word.source));
  }
  return number;
}

}  // namespace tarvane::script
