#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "blinds/element_lines.h"

// An item of the item wizard as text: the record from which it is edited again, and what is printed of it.
namespace tarvane::blinds {

inline constexpr std::size_t kTextLines = 11;

// The texts of an item, any of them empty. What they look at must outlive it.
struct ItemTexts {
  struct Element {
    std::string_view text;
    std::string_view quantity;
    std::string_view unit_price;
    std::string_view total;
  };

  std::array<std::string_view, kTextLines> lines;  // item number, room, description, eight free lines
  std::array<Element, ElementLines::kCount> elements;
  std::string_view grand_total;
};

// Lines, element texts, quantities, unit prices, grand total: 42 texts in an order that never changes, a "~"
// behind each. Texts go in unaltered: one that holds a "~" counts as two when it is read, and every later one
// comes out one place off.
std::string WriteRecord(const ItemTexts& item);

// Totals stay empty: they are worked out anew. What is missing is empty; what stands behind the last "~" is
// dropped, and so is what comes behind the 62nd. Line ends belong to their text. Linear in the length.
ItemTexts ReadRecord(std::string_view record);

// What the job prints of the item, its line ends written "~". Blank lines, and elements without a text, are
// left out; an item whose grand total comes to 0 has no price. `grand_total` goes in as it is written.
std::string CompileItemText(const ItemTexts& item);

}  // namespace tarvane::blinds
