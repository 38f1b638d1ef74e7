#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screen/control.h"
#include "text/day.h"

namespace tarvane {

class RowSet;

// A table on a screen. Row 0 is the heading; column 0 the line number or the row marker. One row is selected:
// 0 only while there are no others.
class Grid : public Control {
 public:
  Grid(Home home, std::string name, int index = -1) : Control(home, std::move(name), index) {}
  ControlKind kind_of() override { return this; }

  virtual std::int64_t RowCount() const = 0;  // heading not counted
  virtual int ColumnCount() const = 0;
  virtual std::string Cell(std::int64_t row, int column) const = 0;  // "" outside
  virtual std::int64_t selected_row() const = 0;
  // Some cells of a row at once, into `cells`, which has as many: for whoever reads all rows.
  virtual void ReadCells(std::int64_t row, std::span<const int> columns, std::span<std::string> cells) const;

  // Widths in twentieths of a point, one a column; 0 or missing: the face chooses.
  const std::vector<int>& widths() const { return widths_; }
  void SetWidths(std::vector<int> widths) { widths_ = std::move(widths); }

  void OnRowSelected(Rule rule) { row_selected_.push_back(std::move(rule)); }
  void OnRowOpened(Rule rule) { row_opened_.push_back(std::move(rule)); }
  bool opens_rows() const { return !row_opened_.empty(); }
  void UserSelectRow(std::int64_t row);
  void UserOpenRow(std::int64_t row);  // double click, or Enter: selects, then opens

 protected:
  virtual void MoveCursor(std::int64_t row) = 0;

 private:
  std::vector<int> widths_;
  Rules row_selected_;
  Rules row_opened_;
};

// A small grid that holds its cells.
class HeldGrid : public Grid {
 public:
  HeldGrid(Home home, std::string name, std::vector<std::string> headings, int index = -1)
      : Grid(home, std::move(name), index), headings_(std::move(headings)) {}
  ControlKind kind_of() override { return this; }

  std::int64_t RowCount() const override { return static_cast<std::int64_t>(rows_.size()); }
  int ColumnCount() const override { return static_cast<int>(headings_.size()); }
  std::string Cell(std::int64_t row, int column) const override { return Text(row, column); }
  std::int64_t selected_row() const override { return selected_; }

  using Row = std::vector<std::string>;  // may be shorter than the headings
  const std::vector<Row>& rows() const { return rows_; }
  // Without a copy; "" outside. Row 0 is the heading.
  const std::string& Text(std::int64_t row, int column) const;
  void SetHeadings(std::vector<std::string> headings);
  void SetRows(std::vector<Row> rows);
  void Clear() { SetRows({}); }
  void AddRow(Row row);
  void SetText(std::int64_t row, int column, std::string_view text);  // row from 1; faults outside
  void RemoveLastRow();
  void Select(std::int64_t row);  // kept within the rows

 protected:
  void MoveCursor(std::int64_t row) override { Select(row); }

 private:
  std::vector<std::string> headings_;
  std::vector<Row> rows_;
  std::int64_t selected_ = 0;
};

// A grid that draws the rows of a row set as they are looked at, and moves it as a row is selected.
class TableGrid : public Grid {
 public:
  struct Column {
    std::string name;     // in the row set
    std::string heading;  // "": the name
  };

  TableGrid(Home home, std::string name, int index = -1) : Grid(home, std::move(name), index) {}
  ControlKind kind_of() override { return this; }

  // `rows` must outlive the grid. No columns given: every column of the row set. `first_heading` stands over
  // the first of them, "" for its name.
  void SetSource(RowSet* rows, std::vector<Column> columns = {}, std::string first_heading = "");

  std::int64_t RowCount() const override;
  int ColumnCount() const override;  // the row marker counts
  std::string Cell(std::int64_t row, int column) const override;
  std::int64_t selected_row() const override;
  void ReadCells(std::int64_t row, std::span<const int> columns, std::span<std::string> cells) const override;

  // Column 0 tells the number of the line in place of the blank row marker.
  void SetNumbersLines() { numbers_lines_ = true; }

  // The row set has other rows now, or another current one: faces draw anew.
  void RowsChanged();
  void CursorMoved();
  // The current row has other values.
  void ValuesChanged() { Notify(Aspect::kState); }

 protected:
  void MoveCursor(std::int64_t row) override;

 private:
  void FindColumns() const;

  RowSet* rows_ = nullptr;
  std::string first_heading_;
  bool numbers_lines_ = false;
  std::vector<Column> wanted_;
  mutable std::vector<Column> columns_;
  mutable std::vector<int> indexes_;
};

// A month's days, one of which is chosen.
class Calendar : public Control {
 public:
  Calendar(Home home, std::string name) : Control(home, std::move(name)) {}
  ControlKind kind_of() override { return this; }
  Day day() const { return day_; }
  void Set(Day day);
  void OnClicked(Rule rule) { clicked_.push_back(std::move(rule)); }
  void UserClick(Day day);

 private:
  Day day_ = MakeDay(2000, 1, 1);
  Rules clicked_;
};

}  // namespace tarvane
