#pragma once

#include <string>
#include <string_view>

namespace tarvane::catalogues {

// Which mark stands before the pennies.
enum class DecimalMark { kNotKnown, kPoint, kComma };

struct ListPrice {
  std::string price;       // two places, "" where the cell is blank or wrong
  std::string_view wrong;  // why it is no price, "" where it is one
  // What the text itself shows of the mark; an amount like "1,234" alone shows nothing.
  DecimalMark mark = DecimalMark::kNotKnown;
};

// A price as a supplier writes it: a currency sign or code on one side, thousands apart by a mark, a blank or
// an apostrophe, a point or a comma before the pennies. An amount that may be read in two ways ("1,234",
// "1.234") is read by `mark`, and wrong where that isn't known. Nothing below 0 is a price. `number`: a
// spreadsheet holds it as a number, which can be read in one way only.
ListPrice ReadListPrice(std::string_view text, bool number, DecimalMark mark);

}  // namespace tarvane::catalogues
