#include "script/script_line.h"

#include "script/script_error.h"
#include "text/utf8.h"

namespace tarvane::script {
namespace {

struct Escape {
  char letter;
  char meaning;
};
constexpr Escape kEscapes[] = {{'"', '"'}, {'\\', '\\'}, {'r', '\r'}, {'n', '\n'}, {'t', '\t'}};

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

char Unescaped(char letter) {
  for (const Escape& escape : kEscapes) {
    if (escape.letter == letter) return escape.meaning;
  }
  throw ScriptError(std::string("unknown escape \\") + letter + R"( (there are \" \\ \r \n \t))");
}

// `at` stands on the opening quote, and behind the closing one afterwards.
std::string ReadQuoted(std::string_view line, std::size_t& at) {
  std::string text;
  for (++at; at < line.size(); ++at) {
    if (line[at] == '"') {
      ++at;
      return text;
    }
    if (line[at] != '\\') {
      text += line[at];
    } else if (++at < line.size()) {
      text += Unescaped(line[at]);
    }
  }
  throw ScriptError("a double quote isn't closed");
}

}  // namespace

std::vector<Argument> SplitLine(std::string_view line) {
  std::vector<Argument> words;
  std::size_t at = 0;
  while (true) {
    while (at < line.size() && IsBlank(line[at])) ++at;
    if (at == line.size() || (words.empty() && line[at] == '#')) return words;
    const std::size_t start = at;
    Argument word;
    word.quoted = line[at] == '"';
    if (word.quoted) {
      word.text = ReadQuoted(line, at);
      if (at < line.size() && !IsBlank(line[at]))
        throw ScriptError("a blank is missing behind a closing quote");
    } else {
      while (at < line.size() && !IsBlank(line[at])) ++at;
      word.text = line.substr(start, at - start);
    }
    word.source = line.substr(start, at - start);
    words.push_back(std::move(word));
  }
}

std::string InQuotes(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    char letter = 0;
    for (const Escape& escape : kEscapes) {
      if (escape.meaning == c) letter = escape.letter;
    }
    if (letter != 0) {
      quoted += '\\';
      quoted += letter;
    } else {
      quoted += c;
    }
  }
  return quoted + '"';
}

std::string OnOneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    if (c == '\r') {
      line += "\\r";
    } else if (c == '\n') {
      line += "\\n";
    } else if (c == '\t') {
      line += "\\t";
    } else {
      line += c;
    }
  }
  return line;
}

std::optional<std::string> LineReader::Next() {
  std::string line;
  if (!std::getline(in_, line)) {
    if (in_.bad()) throw ScriptError("the script can't be read any further");
    return std::nullopt;
  }
  if (++line_ == 1) line = std::string(WithoutByteOrderMark(line));
  if (line.ends_with('\r')) line.pop_back();
  return line;
}

}  // namespace tarvane::script
