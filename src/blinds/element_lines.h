#pragma once

#include <array>
#include <cstddef>

#include "screen/field.h"

namespace tarvane::blinds {

// The ten priced lines of an item, and of a template for one: what it is, how many, the price of one, and
// what that comes to. All prices include tax. Any field may hold any text; what is no number counts as 0.
//
// A part of a screen, as a Finder is; which events work the totals out is told by the screen.
class ElementLines {
 public:
  static constexpr std::size_t kCount = 10;

  explicit ElementLines(Home home);
  ElementLines(const ElementLines&) = delete;
  ElementLines& operator=(const ElementLines&) = delete;

  std::array<TextField, kCount> txtItems;
  std::array<TextField, kCount> TxtItemQty;
  std::array<TextField, kCount> TxtSubTotalForItem;  // the price of one
  std::array<TextField, kCount> TxtItemTotal;        // follows, and is typed by nobody
  TextField TxtGrandTotal;

  // Works out all totals, and only then rounds quantities and prices: a quantity of 2.5 counts as 2.5 this
  // time, and as the 3 that it then reads from the next time on.
  void Cal2();
};

}  // namespace tarvane::blinds
