#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/field.h"
#include "screen/grid.h"
#include "store/row_set.h"

namespace tarvane {

class Database;

// A screen's row set together with the fields that show its current row. A bound field's text goes into the
// row's edit buffer as it changes; another row that becomes current fills the fields (without their rules)
// and then runs the reposition rules.
class DataSource {
 public:
  DataSource();
  DataSource(const DataSource&) = delete;
  DataSource& operator=(const DataSource&) = delete;

  RowSet& rows() { return rows_; }
  const RowSet& rows() const { return rows_; }

  // Fields that show a text column get its limit of 255 characters from `limit`; memo fields pass 0.
  void Bind(TextField& field, std::string column, int limit = 255);
  void Bind(TickBox& box, std::string column);
  bool IsBound(std::string_view column) const;
  // A grid that draws the rows of this source and moves it; TableGrid::SetSource's arguments.
  void Attach(TableGrid& grid, std::vector<TableGrid::Column> columns = {}, std::string first_heading = "");

  // Opens the source; faults as RowSet::Open, and then nothing has changed. Where a bound column isn't there
  // it faults too, and then the row set is closed and the fields are blank.
  void Open(Database& database, std::string_view source);
  void Close();
  bool HasRow() const { return rows_.IsOpen() && rows_.HasRow(); }

  // Commits what waits. A new row gets its key and its place: the fields are filled again, and the reposition
  // rules run.
  void Save();

  // The same as the row is to be left: a new one in which nothing was put but its defaults goes
  // (RowSet::SetUntouched).
  void Leave();

  // While `step` runs, fields that are set don't reach the row: for what is worked out for a mere look.
  // Fields and row may then differ; WriteFields makes the row what the fields show.
  void WithoutWriting(const std::function<void()>& step);
  void WriteFields();

  void OnReposition(Rule rule) { reposition_.push_back(std::move(rule)); }

  // Puts the current row's values into the fields.
  void LoadFields();

 private:
  struct Binding {
    TextField* field = nullptr;
    TickBox* box = nullptr;
    std::string column;
    int index = -1;
  };
  void FindColumns();
  void RunReposition();

  RowSet rows_;
  bool columns_found_ = false;
  bool writing_ = true;
  std::vector<Binding> bindings_;
  std::vector<TableGrid*> grids_;
  std::vector<Rule> reposition_;
};

}  // namespace tarvane
