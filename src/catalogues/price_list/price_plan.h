#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogues/price_list/list_columns.h"
#include "catalogues/price_list/price_sheet.h"
#include "catalogues/price_list/price_text.h"
#include "catalogues/price_list/spreadsheet_reader.h"
#include "store/database.h"

namespace tarvane::catalogues {

inline constexpr std::string_view kProductsTable = "Products";

// What a price list would do to the products, line by line. Nothing is written here.
//
// A line means the product with its bar code; else the one with its supplier and item code, if not both have
// bar codes, which then differ; else, if it has neither bar code nor code, the one with its supplier and
// name. Letters count without regard to case. A blank cell says nothing: the product keeps what it has.
class PricePlan {
 public:
  enum class State { kNew, kChanged, kUnchanged, kWrong };

  struct Counts {
    std::int64_t added = 0;
    std::int64_t changed = 0;
    std::int64_t unchanged = 0;
    std::int64_t wrong = 0;
  };
  struct Change {
    std::size_t column = 0;  // of kListColumns
    std::string from;
    std::string to;
  };

  // Compares with the products of `database`. `sheet` must outlive the plan. `supplier`: for lines whose list
  // doesn't name one; may be blank. Nothing where it was stopped. Faults where the products can't be read.
  static std::optional<PricePlan> Make(const PriceSheet& sheet, const ColumnMatch& match,
                                       std::string_view supplier, Database& database,
                                       const KeepGoing& keep_going);

  const Counts& counts() const { return counts_; }
  std::size_t LineCount() const { return lines_.size(); }
  State StateOf(std::size_t line) const { return lines_[line].state; }
  std::int64_t LineNumber(std::size_t line) const { return sheet_->LineNumber(first_ + line); }
  // "" for a right one.
  const std::string& WrongOf(std::size_t line) const { return lines_[line].wrong; }
  // What the line gives for that column of kListColumns, as it would be stored; "" for nothing.
  std::string Given(std::size_t line, std::size_t column) const;
  // The list's own, else the one that was given for all lines.
  std::string SupplierOf(std::size_t line) const;
  // The product's key; only of a line that is changed or unchanged.
  const std::string& KeyOf(std::size_t line) const;
  // Only of a changed line.
  std::vector<Change> ChangesOf(std::size_t line) const;

 private:
  struct PlanLine {
    State state = State::kUnchanged;
    std::int32_t product = -1;  // of products_
    std::string wrong;
  };
  struct KnownProduct {
    std::string key;
    std::array<std::string, kListColumnCount> values;
  };

  PricePlan(const PriceSheet& sheet, const ColumnMatch& match, std::string_view supplier);
  PriceSheet::Cell CellOf(std::size_t line, std::size_t column) const;
  void FindDecimalMark();
  void CheckCells(std::size_t line);
  void CheckNew(std::size_t line);
  void Count();
  void SetWrong(std::size_t line, const std::string& why);

  const PriceSheet* sheet_;
  ColumnMatch match_;
  std::string supplier_;
  std::size_t first_;  // line of the sheet
  DecimalMark mark_ = DecimalMark::kNotKnown;
  std::vector<PlanLine> lines_;
  std::vector<KnownProduct> products_;  // those that lines mean
  Counts counts_;
};

}  // namespace tarvane::catalogues
