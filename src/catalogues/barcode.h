#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {
class Shop;
}

namespace tarvane::catalogues {

// What codes are drawn by. Two files in the program folder hold it, and a shop may have its own.
struct BarcodeTables {
  std::map<char, int> values;         // of the characters that a code may have
  std::map<char, int> marks;          // of what stands before and behind a code: "<" and ">"
  std::vector<std::string> patterns;  // by value: '1' for a bar, '0' for a gap, each one unit wide

  bool empty() const { return values.empty() || patterns.empty(); }
};

// `symbols`: lines of a number, a tab and one character; "<" and ">" may stand there twice, with the number
// of the character and with that of the mark (103 or above). `patterns`: a line for each number, from 0. What
// can't be read is left out, and then the codes that need it have no bars.
BarcodeTables ParseBarcodeTables(std::string_view symbols, std::string_view patterns);

// The shop's; empty where a file is missing or can't be read.
BarcodeTables ReadBarcodeTables(const Shop& shop);

// The bars of `code` from left to right, start, check symbol and stop included: '1' for a bar, '0' for a gap,
// without quiet zones. "" for an empty code, and for one that the tables have no symbol for.
std::string BarcodeBars(const BarcodeTables& tables, std::string_view code);

}  // namespace tarvane::catalogues
