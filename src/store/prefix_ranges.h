#pragma once

#include <string>
#include <string_view>
#include <vector>

// Where texts that begin alike stand in the order of SQLite's own NOCASE: byte by byte, with the letters of
// ASCII in one case. Folded texts (text/fold.h) aren't all neighbours there: "É" and "é" are bytes apart.
namespace tarvane {

// Texts that begin as a prefix does, without regard to case, begin with one of `spellings` but for the case
// of ASCII; or they are strays. Where `exact`, all that begin so are meant; else they have to be matched
// further, and an empty spelling stands for any text.
struct SpelledPrefix {
  std::vector<std::string> spellings;
  bool exact = true;
};
SpelledPrefix SpellPrefix(std::string_view prefix);

// The first text behind all that begin with `spelling`, which has no byte 0 and isn't empty.
std::string FirstBehind(std::string_view spelling);

// In SQL: 1 for a text of the column of that quoted name that may stand elsewhere than folded; also for some
// that don't.
std::string IsBeyondSql(const std::string& quoted_column);
// In SQL: 1 for a stray, a text with a character beyond ASCII that folds to a letter of ASCII. It may stand
// far from where it belongs; the others are among their neighbours.
std::string IsStraySql(const std::string& quoted_column);

}  // namespace tarvane
