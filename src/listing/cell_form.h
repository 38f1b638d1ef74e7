#pragma once

#include <string>
#include <string_view>

namespace tarvane::listing {

// What a spreadsheet holds for a text.
struct SheetCell {
  enum class Kind { kNothing, kText, kNumber };
  Kind kind = Kind::kNothing;
  double number = 0;
  int decimals = 0;  // as many as the text shows
};

// Numbers are stored as such, so that they add up. What merely consists of digits stays a text: leading
// zeros, a sign in front, blanks between digits, exponents, more digits than a sheet shows or keeps (as bar
// codes have them), and everything in a column whose heading NamesThings.
SheetCell CellOf(std::string_view text, bool names_things);

// True for headings of what is called or looked up by its digits and never added up: "Telephone", "RefNo",
// "AccountNumber", "SuppliersID", "BarCode". False for "NumberDueDays", "StockOnOrder", "DepositPaid".
bool NamesThings(std::string_view heading);

// `text` as a sheet may hold it, the same when read back: line ends as LF, no bytes that aren't UTF-8, and
// what a reader would take for a masked character ("_x0041_") masked itself. The result is `text` or
// `changed`.
const std::string& SheetText(const std::string& text, std::string& changed);

}  // namespace tarvane::listing
