#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "catalogues/price_list/price_sheet.h"

namespace tarvane::catalogues {

// A column of the products that a price list may fill.
struct ListColumn {
  enum class Kind { kText, kMemo, kPrice };
  std::string_view name;     // in the table
  std::string_view caption;  // as the products screen has it
  Kind kind = Kind::kText;
  std::string_view headings;  // what lists call it, in small letters without blanks, the likeliest first
};

enum ListColumnPlace : std::size_t {
  kProductName,
  kItemCode,
  kBarCode,
  kSellingPrice,
  kBuyPrice,
  kPriceWithOutVat,
  kSuppliersName,
  kSuppliersShortCode,
  kDescription,
  kCategory,
  kBookName,
  kWidth,
  kPatternRepeat,
  kBatchNo,
  kRemarks,
  kListColumnCount
};
extern const std::array<ListColumn, kListColumnCount> kListColumns;

// Which cell of a line fills which column of the products: from 0, -1 for none.
struct ColumnMatch {
  std::size_t heading_line = 0;  // of the sheet; the lines behind it are products
  std::array<int, kListColumnCount> cells = NoCells();

  static constexpr std::array<int, kListColumnCount> NoCells() {
    std::array<int, kListColumnCount> none{};
    none.fill(-1);
    return none;
  }
};

// A heading as it is compared: letters (small) and digits alone.
std::string PlainHeading(std::string_view heading);

// Finds the line of headings among the first ones (a list may begin with a title and an address) and what its
// headings mean. Headings that say too little ("Price") match nothing.
ColumnMatch MatchColumns(const PriceSheet& sheet);

// What the worker chooses from, one for each cell of the line of headings, all different: "RRP",
// "Price (column D)" where another is called the same, "(column E)" for a blank one.
std::vector<std::string> HeadingNames(const PriceSheet& sheet, std::size_t heading_line);

}  // namespace tarvane::catalogues
