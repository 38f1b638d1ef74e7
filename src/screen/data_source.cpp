#include "screen/data_source.h"

namespace tarvane {

DataSource::DataSource() {
  rows_.OnReposition([this] {
    LoadFields();
    for (TableGrid* grid : grids_) grid->CursorMoved();
    for (const Rule& rule : reposition_) rule();
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
    if (HasRow()) rows_.SetValue(bindings_[at].index, text);
  };
  bindings_.push_back({&field, nullptr, std::move(column), -1});
}

void DataSource::Bind(TickBox& box, std::string column) {
  const std::size_t at = bindings_.size();
  box.sink_ = [this, at](bool on) {
    if (HasRow()) rows_.SetValue(bindings_[at].index, on ? "1" : "0");
  };
  bindings_.push_back({nullptr, &box, std::move(column), -1});
}

void DataSource::Attach(TableGrid& grid, std::vector<TableGrid::Column> columns, std::string first_heading) {
  grid.SetSource(&rows_, std::move(columns), std::move(first_heading));
  grids_.push_back(&grid);
}

void DataSource::Open(Database& database, std::string_view source) {
  for (Binding& binding : bindings_) binding.index = -1;
  try {
    rows_.Open(database, source);
  } catch (...) {
    LoadFields();
    throw;
  }
}

void DataSource::Close() {
  rows_.Close();
  LoadFields();
}

void DataSource::FindColumns() {
  for (Binding& binding : bindings_) {
    if (binding.index < 0 && rows_.IsOpen()) binding.index = rows_.FindColumn(binding.column);
  }
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
