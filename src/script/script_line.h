#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane::script {

// One word of a command line.
struct Argument {
  std::string text;    // without quotes and escapes
  std::string source;  // as it stands in the script
  bool quoted = false;
};

// The words of a line; none for a blank or comment line. ScriptError where a quote isn't closed or an escape
// is unknown.
std::vector<Argument> SplitLine(std::string_view line);

// In double quotes, with the escapes of the script language.
std::string InQuotes(std::string_view text);

// Only line breaks and tabs are escaped: a text that is printed without quotes on one line.
std::string OnOneLine(std::string_view text);

// The lines of a script, counted from 1. All that run it share the one reader.
class LineReader {
 public:
  explicit LineReader(std::istream& in) : in_(in) {}
  // Without its line end. Nothing at the end of the script; ScriptError where it can't be read to there.
  std::optional<std::string> Next();
  // The number of the newest line, 0 before the first.
  int line() const { return line_; }

 private:
  std::istream& in_;
  int line_ = 0;
};

}  // namespace tarvane::script
