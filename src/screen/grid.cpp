#include "screen/grid.h"

#include <algorithm>

#include "screen/screen.h"
#include "store/row_set.h"

namespace tarvane {

void Grid::ReadCells(std::int64_t row, std::span<const int> columns, std::span<std::string> cells) const {
  for (std::size_t at = 0; at < columns.size(); ++at) cells[at] = Cell(row, columns[at]);
}

void Grid::UserSelectRow(std::int64_t row) {
  screen().Guard([this, row] {
    screen().SetFocus(*this);
    MoveCursor(row);
    Run(row_selected_);
  });
}

void Grid::UserOpenRow(std::int64_t row) {
  screen().Guard([this, row] {
    screen().SetFocus(*this);
    MoveCursor(row);
    Run(row_selected_);
    Run(row_opened_);
  });
}

namespace {
const std::string kNothing;
}  // namespace

const std::string& HeldGrid::Text(std::int64_t row, int column) const {
  if (row < 0 || row > RowCount() || column < 0) return kNothing;
  const Row& cells = row == 0 ? headings_ : rows_[static_cast<std::size_t>(row - 1)];
  const auto at = static_cast<std::size_t>(column);
  return at < cells.size() ? cells[at] : kNothing;
}

void HeldGrid::SetHeadings(std::vector<std::string> headings) {
  headings_ = std::move(headings);
  Notify(Aspect::kRows);
}

void HeldGrid::SetRows(std::vector<Row> rows) {
  rows_ = std::move(rows);
  selected_ = std::clamp<std::int64_t>(selected_, rows_.empty() ? 0 : 1, RowCount());
  Notify(Aspect::kRows);
}

void HeldGrid::AddRow(Row row) {
  rows_.push_back(std::move(row));
  selected_ = std::max<std::int64_t>(selected_, 1);
  Notify(Aspect::kRows);
}

void HeldGrid::SetText(std::int64_t row, int column, std::string_view text) {
  if (row < 1 || row > RowCount() || column < 0) {
    throw Fault("The list has no line " + std::to_string(row) + ".");
  }
  Row& cells = rows_[static_cast<std::size_t>(row - 1)];
  const auto at = static_cast<std::size_t>(column);
  if (cells.size() <= at) cells.resize(at + 1);
  cells[at].assign(text);
  Notify(Aspect::kRows);
}

void HeldGrid::RemoveLastRow() {
  if (rows_.empty()) return;
  rows_.pop_back();
  selected_ = std::min(selected_, RowCount());
  Notify(Aspect::kRows);
}

void HeldGrid::Select(std::int64_t row) {
  const std::int64_t kept = std::clamp<std::int64_t>(row, rows_.empty() ? 0 : 1, RowCount());
  if (kept == selected_) return;
  selected_ = kept;
  Notify(Aspect::kSelection);
}

void TableGrid::SetSource(RowSet* rows, std::vector<Column> columns, std::string first_heading) {
  rows_ = rows;
  wanted_ = std::move(columns);
  first_heading_ = std::move(first_heading);
  RowsChanged();
}

void TableGrid::FindColumns() const {
  if (!columns_.empty() || rows_ == nullptr || !rows_->IsOpen()) return;
  columns_ = wanted_;
  if (columns_.empty()) {
    for (int column = 0; column < rows_->ColumnCount(); ++column)
      columns_.push_back({rows_->ColumnName(column), ""});
  }
  indexes_.clear();
  for (Column& column : columns_) {
    if (column.heading.empty()) column.heading = column.name;
    indexes_.push_back(rows_->FindColumn(column.name));
  }
  if (!first_heading_.empty()) columns_.front().heading = first_heading_;
}

std::int64_t TableGrid::RowCount() const {
  return rows_ != nullptr && rows_->IsOpen() ? rows_->RecordCount() : 0;
}

int TableGrid::ColumnCount() const {
  FindColumns();
  return static_cast<int>(columns_.size()) + 1;
}

std::string TableGrid::Cell(std::int64_t row, int column) const {
  if (column == 0 && numbers_lines_ && row >= 1 && row <= RowCount()) return std::to_string(row);
  FindColumns();
  if (column < 1 || column > static_cast<int>(columns_.size()) || row < 0) return "";
  const auto at = static_cast<std::size_t>(column - 1);
  if (row == 0) return columns_[at].heading;
  const std::vector<std::string>& cells = rows_->PeekRow(row - 1, indexes_);
  return at < cells.size() ? cells[at] : "";
}

void TableGrid::ReadCells(std::int64_t row, std::span<const int> columns,
                          std::span<std::string> cells) const {
  if (row < 1) return Grid::ReadCells(row, columns, cells);
  FindColumns();
  const std::vector<std::string>& values = rows_->PeekRow(row - 1, indexes_);
  for (std::size_t at = 0; at < columns.size(); ++at) {
    const auto place = static_cast<std::size_t>(columns[at]);
    cells[at] = place > 0 && place <= values.size() ? std::string_view(values[place - 1]) : "";
  }
}

std::int64_t TableGrid::selected_row() const {
  return rows_ != nullptr && rows_->IsOpen() ? rows_->AbsolutePosition() + 1 : 0;
}

void TableGrid::RowsChanged() {
  columns_.clear();
  Notify(Aspect::kRows);
}

void TableGrid::CursorMoved() { Notify(Aspect::kSelection); }

void TableGrid::MoveCursor(std::int64_t row) {
  if (row >= 1 && row <= RowCount() && row != selected_row()) rows_->MoveTo(row - 1);
}

void Calendar::Set(Day day) {
  day_ = day;
  Notify(Aspect::kSelection);
}

void Calendar::UserClick(Day day) {
  screen().Guard([this, day] {
    screen().SetFocus(*this);
    Set(day);
    Run(clicked_);
  });
}

}  // namespace tarvane
