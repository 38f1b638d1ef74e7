#include "catalogues/price_list/plan_grid.h"

#include <algorithm>

#include "text/utf8.h"

namespace tarvane::catalogues {

namespace {

constexpr std::size_t kMostShown = 60;  // characters of a value

std::string_view StateName(PricePlan::State state) {
  switch (state) {
    case PricePlan::State::kNew:
      return "new";
    case PricePlan::State::kChanged:
      return "changes";
    case PricePlan::State::kUnchanged:
      return "stays";
    case PricePlan::State::kWrong:
      break;
  }
  return "wrong";
}

std::string Short(std::string_view value) {
  if (value.empty()) return "(blank)";
  const std::string_view first = FirstCharacters(value, kMostShown);
  return std::string(first) + (first.size() < value.size() ? "..." : "");
}

// "SellingPrice 24.00 -> 26.50, Width 137 -> 140"; of a new product its prices.
std::string ChangesText(const PricePlan& plan, std::size_t line) {
  std::string text;
  const auto add = [&text](std::string_view column, const std::string& what) {
    text += text.empty() ? "" : ", ";
    text += column;
    text += " " + what;
  };
  if (plan.StateOf(line) == PricePlan::State::kChanged) {
    for (const PricePlan::Change& change : plan.ChangesOf(line)) {
      add(kListColumns[change.column].name, Short(change.from) + " -> " + Short(change.to));
    }
  } else if (plan.StateOf(line) == PricePlan::State::kNew) {
    for (const ListColumnPlace column : {kSellingPrice, kBuyPrice, kPriceWithOutVat}) {
      const std::string given = plan.Given(line, column);
      if (!given.empty()) add(kListColumns[column].name, given);
    }
  }
  return text;
}

}  // namespace

void PlanGrid::Show(const PricePlan* plan, bool only_changes_and_faults) {
  plan_ = plan;
  shown_.clear();
  for (std::size_t line = 0; plan != nullptr && line < plan->LineCount(); ++line) {
    if (only_changes_and_faults && plan->StateOf(line) == PricePlan::State::kUnchanged) continue;
    shown_.push_back(static_cast<std::uint32_t>(line));
  }
  selected_ = shown_.empty() ? 0 : 1;
  Notify(Aspect::kRows);
}

std::string PlanGrid::Cell(std::int64_t row, int column) const {
  if (column < 0 || column >= kColumnCount || row < 0 || row > RowCount()) return "";
  if (row == 0) return std::string(kHeadings[static_cast<std::size_t>(column)]);
  const std::size_t line = shown_[static_cast<std::size_t>(row - 1)];
  switch (column) {
    case kLine:
      return std::to_string(plan_->LineNumber(line));
    case kState:
      return std::string(StateName(plan_->StateOf(line)));
    case kName:
      return plan_->Given(line, kProductName);
    case kCode:
      return plan_->Given(line, kItemCode);
    case kChanges:
      return ChangesText(*plan_, line);
    default:
      return plan_->WrongOf(line);
  }
}

void PlanGrid::MoveCursor(std::int64_t row) {
  selected_ = std::clamp<std::int64_t>(row, std::min<std::int64_t>(1, RowCount()), RowCount());
  Notify(Aspect::kSelection);
}

}  // namespace tarvane::catalogues
