#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Texts of reports: pure functions over UTF-8.
namespace tarvane::printing {

// A name with its capitals, also behind hyphens, points and the beginnings that want them: "mary-ann mcleod"
// comes out as "Mary-Ann McLeod". Leading blanks are cut.
std::string FormalCase(std::string_view name);

// Without a double quote at either end: one each, where there is one.
std::string_view WithoutQuotes(std::string_view text);

// A carriage return becomes a blank. A line feed goes where a carriage return came before it or where it is
// the first character; another one becomes a blank.
std::string WithoutLineEnds(std::string_view text);

bool HasLineEnds(std::string_view text);
// As its line ends part it (CR LF is one): at least one.
std::vector<std::string> LinesOfText(std::string_view text);

// The lines of a text that is wrapped into `room`, measured by `width_of`: at least one. A line ends where
// the text has a line end (CR LF is one), or before it would be as wide as the room: at its last blank, which
// is dropped, or else at the last character that fitted, but never before its first one. In a text with line
// ends the lines lose their outer blanks.
std::vector<std::string> WrapLines(std::string_view text, double room,
                                   const std::function<double(std::string_view)>& width_of);

// One line as it is drawn: control characters, tabs among them, are blanks.
std::string Drawable(std::string_view line);

}  // namespace tarvane::printing
