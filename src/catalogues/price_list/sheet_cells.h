#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "catalogues/price_list/price_sheet.h"
#include "catalogues/price_list/spreadsheet_reader.h"

namespace tarvane::catalogues {

// Thrown where the worker stops the reading; never leaves ReadSpreadsheet.
struct ReadingStopped {};

// The cells of one sheet, in whatever order they come; a later one replaces an earlier one. Rows and columns
// count from 0. Faults (the cause alone) where there is more than a price list may hold.
class SheetCells {
 public:
  explicit SheetCells(const KeepGoing& keep_going) : keep_going_(keep_going) {}

  // A blank text puts nothing. Throws ReadingStopped.
  void Put(std::int64_t row, std::int64_t column, std::string_view text, bool number);
  bool empty() const { return cells_.empty(); }
  std::size_t size() const { return cells_.size(); }
  // Those from number `first` on again, in each of the `rows` rows below their own.
  void RepeatBelow(std::size_t first, std::int64_t rows);

  PriceSheet Sheet();

 private:
  struct SheetCell {
    std::int32_t row = 0;
    std::int32_t column = 0;
    std::uint32_t begin = 0;  // of its text
    std::uint32_t size = 0;
    bool number = false;
  };
  void Add(const SheetCell& cell);

  const KeepGoing& keep_going_;
  std::string text_;
  std::vector<SheetCell> cells_;
};

}  // namespace tarvane::catalogues
