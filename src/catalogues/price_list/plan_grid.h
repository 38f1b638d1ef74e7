#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "catalogues/price_list/price_plan.h"
#include "screen/grid.h"

namespace tarvane::catalogues {

// The lines of a price list with what becomes of each, worked out as they are drawn.
class PlanGrid : public Grid {
 public:
  enum Column { kLine, kState, kName, kCode, kChanges, kWrong, kColumnCount };
  static constexpr std::array<std::string_view, kColumnCount> kHeadings = {
      "Line", "State", "Product Name", "Item Code", "What changes", "What is wrong"};

  using Grid::Grid;

  // `plan` must outlive the grid or the next call; null for none.
  void Show(const PricePlan* plan, bool only_changes_and_faults);

  std::int64_t RowCount() const override { return static_cast<std::int64_t>(shown_.size()); }
  int ColumnCount() const override { return kColumnCount; }
  std::string Cell(std::int64_t row, int column) const override;
  std::int64_t selected_row() const override { return selected_; }

 protected:
  void MoveCursor(std::int64_t row) override;

 private:
  const PricePlan* plan_ = nullptr;
  std::vector<std::uint32_t> shown_;  // lines of the plan
  std::int64_t selected_ = 0;
};

}  // namespace tarvane::catalogues
