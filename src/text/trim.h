#pragma once

#include <string>
#include <string_view>

namespace tarvane {

// What counts as a blank where a line of a file is read.
inline constexpr std::string_view kBlanks = " \t\r\n";

// `text` without the outer characters that stand in `dropped`; a part of it, never a copy.
constexpr std::string_view Trim(std::string_view text, std::string_view dropped = kBlanks) {
  const std::size_t first = text.find_first_not_of(dropped);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(dropped) - first + 1);
}

// Without outer spaces; tabs and line ends stay.
constexpr std::string_view TrimSpaces(std::string_view text) { return Trim(text, " "); }

// On one line: each line end (CR LF counts as one) becomes a blank.
std::string OneLine(std::string_view text);

// A caption as it is read: without the mark of its access key ("&&" stands for an ampersand) and without
// outer spaces.
std::string PlainCaption(std::string_view caption);

}  // namespace tarvane
