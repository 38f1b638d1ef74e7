#include "script/script_options.h"

#include <charconv>
#include <vector>

#include "script/script_error.h"

namespace tarvane::script {
namespace {

template <typename Number>
std::optional<Number> Digits(std::string_view text) {
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

DateTime ParseNow(const std::string& text) {
  constexpr std::string_view kShape = "0000-00-00T00:00:00";
  bool fits = text.size() == kShape.size();
  for (std::size_t at = 0; fits && at < text.size(); ++at) {
    fits = kShape[at] == '0' ? text[at] >= '0' && text[at] <= '9' : text[at] == kShape[at];
  }
  if (fits) {
    const auto part = [&text](std::size_t at, std::size_t size) {
      return Digits<int>(std::string_view(text).substr(at, size)).value_or(0);
    };
    const DateTime time = {MakeDay(part(0, 4), part(5, 2), part(8, 2)), part(11, 2), part(14, 2),
                           part(17, 2)};
    if (time.day.ok() && time.hour < 24 && time.minute < 60 && time.second < 60) return time;
  }
  throw ScriptError("--now wants a time such as 2026-05-04T09:30:00");
}

std::uint32_t ParseSeed(const std::string& text) {
  const auto seed = Digits<std::uint32_t>(text);
  if (!seed) throw ScriptError("--seed wants a whole number from 0 to 4294967295");
  return *seed;
}

}  // namespace

ScriptOptions ParseScriptOptions(std::span<const std::string> arguments) {
  ScriptOptions options;
  std::vector<std::string> paths;
  bool ended = false;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    const std::string& word = arguments[at];
    if (ended || !word.starts_with("--")) {
      paths.push_back(word);
      continue;
    }
    ended = word == "--";
    if (ended) continue;
    if (word != "--now" && word != "--seed") throw ScriptError("unknown option " + word);
    if (++at == arguments.size()) throw ScriptError(word + " wants a value");
    if (word == "--now") options.settings.now = ParseNow(arguments[at]);
    if (word == "--seed") options.settings.seed = ParseSeed(arguments[at]);
  }
  if (paths.empty()) throw ScriptError("no folder is given");
  if (paths.size() > 2) throw ScriptError("one folder and one script are all it takes");
  options.folder = paths[0];
  if (paths.size() == 2) options.script = paths[1];
  std::error_code ignored;
  if (!std::filesystem::is_directory(options.folder, ignored)) throw ScriptError("no folder " + paths[0]);
  return options;
}

}  // namespace tarvane::script
