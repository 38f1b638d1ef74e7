#include "script/show.h"

#include <fmt/format.h>

#include <algorithm>

#include "screen/field.h"
#include "screen/grid.h"
#include "script/script_line.h"

namespace tarvane {
namespace {

constexpr std::int64_t kTableRows = 200;

std::string SelectedEntry(const ListBox& list) {
  return list.selected() < 0 ? "" : list.entries().at(static_cast<std::size_t>(list.selected()));
}

std::vector<std::string> ShownGrid(std::string_view address, const Grid& grid) {
  std::int64_t rows = grid.RowCount();
  if (dynamic_cast<const TableGrid*>(&grid) != nullptr) rows = std::min(rows, kTableRows);
  std::vector<std::string> lines;
  for (std::int64_t row = 0; row <= rows; ++row) {
    std::string line = fmt::format("{}[{}] =", address, row);
    for (int column = 0; column < grid.ColumnCount(); ++column)
      line += fmt::format(" {}", InQuotes(grid.Cell(row, column)));
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace

std::string ValueOf(const Control& control) {
  if (const auto* field = dynamic_cast<const TextField*>(&control)) return field->text();
  if (const auto* box = dynamic_cast<const TickBox*>(&control)) return box->on() ? "on" : "off";
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) return SelectedEntry(*list);
  if (const auto* tabs = dynamic_cast<const TabStrip*>(&control)) {
    return tabs->captions().empty() ? "" : tabs->captions().at(static_cast<std::size_t>(tabs->selected()));
  }
  if (const auto* calendar = dynamic_cast<const Calendar*>(&control)) {
    const Calendar::Day day = calendar->day();
    return fmt::format("{:04}-{:02}-{:02}", day.year, day.month, day.day);
  }
  return control.caption();
}

std::string PrintedValueOf(const Control& control) {
  const std::string value = ValueOf(control);
  return dynamic_cast<const TickBox*>(&control) != nullptr ? value : InQuotes(value);
}

std::vector<std::string> Shown(std::string_view address, const Control& control) {
  if (const auto* grid = dynamic_cast<const Grid*>(&control)) return ShownGrid(address, *grid);
  std::vector<std::string> lines = {fmt::format("{} = {}", address, PrintedValueOf(control))};
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
    for (std::size_t entry = 0; entry < list->entries().size(); ++entry) {
      lines.push_back(fmt::format("{}[{}] = {}", address, entry + 1, InQuotes(list->entries()[entry])));
    }
  }
  return lines;
}

}  // namespace tarvane
