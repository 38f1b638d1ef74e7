#include "catalogues/price_list/sheet_cells.h"

#include <algorithm>
#include <string>

#include "text/fault.h"
#include "text/trim.h"

namespace tarvane::catalogues {

namespace {

constexpr std::int64_t kMostRows = 1 << 20;  // that a spreadsheet has

[[noreturn]] void FailTooLarge() { throw Fault("it holds more than a price list may"); }

}  // namespace

void SheetCells::Add(const SheetCell& cell) {
  if (cells_.size() >= price_limit::kCells || cell.row >= kMostRows) FailTooLarge();
  cells_.push_back(cell);
  if (!keep_going_(static_cast<std::int64_t>(cells_.size()))) throw ReadingStopped();
}

void SheetCells::Put(std::int64_t row, std::int64_t column, std::string_view text, bool number) {
  text = Trim(text);
  if (text.empty()) return;
  if (row < 0 || row >= kMostRows || column < 0) throw Fault("the file is broken or not complete");
  if (column >= static_cast<std::int64_t>(price_limit::kColumns)) {
    throw Fault("line " + std::to_string(row + 1) + " has more than " +
                std::to_string(price_limit::kColumns) + " columns");
  }
  if (text.size() > price_limit::kTextBytes || text_.size() > price_limit::kTextBytes - text.size()) {
    FailTooLarge();
  }
  const std::size_t begin = text_.size();
  text_ += text;
  Add({static_cast<std::int32_t>(row), static_cast<std::int32_t>(column), static_cast<std::uint32_t>(begin),
       static_cast<std::uint32_t>(text.size()), number});
}

void SheetCells::RepeatBelow(std::size_t first, std::int64_t rows) {
  const std::size_t last = cells_.size();
  if (first == last) return;
  if (rows >= kMostRows) FailTooLarge();
  for (std::int64_t below = 1; below <= rows; ++below) {
    for (std::size_t i = first; i < last; ++i) {
      SheetCell cell = cells_[i];
      cell.row += static_cast<std::int32_t>(below);
      Add(cell);
    }
  }
}

PriceSheet SheetCells::Sheet() {
  std::stable_sort(cells_.begin(), cells_.end(), [](const SheetCell& left, const SheetCell& right) {
    return left.row != right.row ? left.row < right.row : left.column < right.column;
  });
  PriceSheet sheet;
  std::int32_t next_column = 0;
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    const SheetCell& cell = cells_[i];
    const bool row_ends = i + 1 == cells_.size() || cells_[i + 1].row != cell.row;
    if (row_ends || cells_[i + 1].column != cell.column) {
      for (; next_column < cell.column; ++next_column) sheet.AddCell("");
      sheet.AddCell(std::string_view(text_).substr(cell.begin, cell.size), cell.number);
      ++next_column;
    }
    if (!row_ends) continue;
    sheet.EndLine(std::int64_t{cell.row} + 1);
    next_column = 0;
  }
  return sheet;
}

}  // namespace tarvane::catalogues
