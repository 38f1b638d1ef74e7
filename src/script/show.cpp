#include "script/show.h"

#include <fmt/format.h>

#include <algorithm>

#include "screen/kinds.h"
#include "script/script_line.h"

namespace tarvane::script {
namespace {

constexpr int kTableRows = 200;

std::string SelectedEntry(const ListBox& list) { return list.Entry(list.selected()); }

using Tell = std::function<void(std::string_view)>;

void TellGrid(std::string_view address, const Grid& grid, const Tell& tell) {
  std::int64_t rows = grid.RowCount();
  if (As<TableGrid>(grid) != nullptr) rows = std::min<std::int64_t>(rows, kTableRows);
  for (std::int64_t row = 0; row <= rows; ++row) {
    std::string line = fmt::format("{}[{}] =", address, row);
    for (int column = 0; column < grid.ColumnCount(); ++column)
      line += fmt::format(" {}", InQuotes(grid.Cell(row, column)));
    tell(line);
  }
}

}  // namespace

std::string ValueOf(const Control& control) {
  return VisitKind(
      control, [](const TextField& field) { return field.text(); },
      [](const TickBox& box) { return std::string(box.on() ? "on" : "off"); },
      [](const ListBox& list) { return SelectedEntry(list); },
      [](const TabStrip& tabs) {
        return tabs.captions().empty() ? "" : tabs.captions().at(static_cast<std::size_t>(tabs.selected()));
      },
      [](const RichTextBox& box) { return box.PlainText(); },
      [](const PageView& view) { return fmt::format("{}", view.pages() != nullptr ? view.page() + 1 : 0); },
      [](const Slider& slider) { return fmt::format("{}", slider.value()); },
      [](const Calendar& calendar) { return IsoDate(calendar.day()); },
      [](const Control& other) { return other.caption(); });
}

std::string PrintedValueOf(const Control& control) {
  const std::string value = ValueOf(control);
  return As<TickBox>(control) != nullptr ? value : InQuotes(value);
}

void TellControl(std::string_view address, const Control& control, const Tell& tell) {
  if (const auto* grid = As<Grid>(control)) return TellGrid(address, *grid, tell);
  tell(fmt::format("{} = {}", address, PrintedValueOf(control)));
  if (const auto* list = As<ListBox>(control)) {
    const int shown = list->entries().empty() ? std::min(list->EntryCount(), kTableRows) : list->EntryCount();
    for (int entry = 0; entry < shown; ++entry) {
      tell(fmt::format("{}[{}] = {}", address, entry + 1, InQuotes(list->Entry(entry))));
    }
  }
}

}  // namespace tarvane::script
