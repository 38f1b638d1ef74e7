#include "screen/data_source.h"

#include <algorithm>
#include <utility>

#include "text/fault.h"
#include "text/fold.h"

namespace tarvane {

DataSource::DataSource() {
  rows_.OnReposition([this] {
    LoadFields();
    for (TableGrid* grid : grids_) grid->CursorMoved();
    RunReposition();
  });
  rows_.OnRowsChanged([this] {
    for (TableGrid* grid : grids_) grid->RowsChanged();
  });
}

void DataSource::Bind(TextField& field, std::string column, int limit) {
  field.SetMaxLength(limit);
  field.has_row_ = [this] { return HasRow(); };
  const std::size_t at = bindings_.size();
  field.sink_ = [this, at](const std::string& text) {
    if (writing_ && HasRow()) rows_.SetValue(bindings_[at].index, text);
  };
  bindings_.push_back({&field, nullptr, std::move(column), -1});
}

void DataSource::Bind(TickBox& box, std::string column) {
  const std::size_t at = bindings_.size();
  box.sink_ = [this, at](bool on) {
    if (writing_ && HasRow()) rows_.SetValue(bindings_[at].index, on ? "1" : "0");
  };
  bindings_.push_back({nullptr, &box, std::move(column), -1});
}

bool DataSource::IsBound(std::string_view column) const {
  return std::ranges::any_of(bindings_,
                             [column](const Binding& binding) { return EqualNames(binding.column, column); });
}

void DataSource::Attach(TableGrid& grid, std::vector<TableGrid::Column> columns, std::string first_heading) {
  grid.SetSource(&rows_, std::move(columns), std::move(first_heading));
  grids_.push_back(&grid);
}

void DataSource::Open(Database& database, std::string_view source) {
  columns_found_ = false;
  try {
    rows_.Open(database, source);
    FindColumns();
  } catch (...) {
    // What was open before is open still, unless it is the new table that lacks a column.
    try {
      FindColumns();
    } catch (const Fault&) {
      rows_.Close();
    }
    LoadFields();
    throw;
  }
}

void DataSource::Save() {
  const bool adding = rows_.IsOpen() && rows_.IsAdding();
  rows_.Update();
  for (TableGrid* grid : grids_) grid->ValuesChanged();
  if (!adding) return;
  LoadFields();
  RunReposition();
}

void DataSource::Leave() {
  if (!rows_.IsOpen()) return;
  const bool adding = rows_.IsAdding();
  rows_.Leave();
  if (!adding || !rows_.HasRow()) return;
  LoadFields();
  RunReposition();
}

void DataSource::WithoutWriting(const std::function<void()>& step) {
  const bool before = std::exchange(writing_, false);
  try {
    step();
  } catch (...) {
    writing_ = before;
    throw;
  }
  writing_ = before;
}

void DataSource::WriteFields() {
  if (!HasRow()) return;
  for (const Binding& binding : bindings_) {
    const std::string_view shown =
        binding.field != nullptr ? std::string_view(binding.field->text()) : (binding.box->on() ? "1" : "0");
    if (rows_.Value(binding.index) != shown) rows_.SetValue(binding.index, shown);
  }
}

void DataSource::RunReposition() {
  for (const Rule& rule : reposition_) rule();
}

void DataSource::Close() {
  rows_.Close();
  LoadFields();
}

void DataSource::FindColumns() {
  if (columns_found_ || !rows_.IsOpen()) return;
  for (Binding& binding : bindings_) binding.index = rows_.FindColumn(binding.column);
  // Here, not as it is drawn, a grid's column that isn't there is found out.
  for (const TableGrid* grid : grids_) grid->ColumnCount();
  columns_found_ = true;
}

void DataSource::LoadFields() {
  FindColumns();
  const bool has_row = HasRow();
  for (const Binding& binding : bindings_) {
    static const std::string kNothing;
    const std::string& value = has_row ? rows_.Value(binding.index) : kNothing;
    if (binding.field != nullptr) binding.field->LoadText(value);
    if (binding.box == nullptr) continue;
    const bool on = value == "1";
    if (binding.box->on_ != on) {
      binding.box->on_ = on;
      binding.box->Notify(Aspect::kState);
    }
  }
}

}  // namespace tarvane
