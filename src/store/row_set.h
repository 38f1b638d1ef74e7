#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

class Database;

// The current-row cursor that every screen works through. It holds where the rows are, not the rows: a row is
// read when it becomes current or is drawn. All values are text; numbers and yes/no ("0", "1") too. A stored
// NULL reads as "".
//
// Source: a table name, or a query of the form
//   SELECT * FROM table [WHERE column LIKE 'pattern']
// (the criterion is parsed and bound, see criteria.h). Rows of a table come in the order of their key; rows
// of a criterion in the order of the searched column (ignoring case), then the key.
//
// States: closed; open without a current row (no rows, or past an end); on a row; editing (a row's changed
// columns wait in the edit buffer); adding (all columns of a new row wait there). A move, FindFirst, AddNew
// or setting a bookmark commits what waits (as Update does, but see SetUntouched); a fault there leaves the
// row current and the buffer as it is. Close and destruction lose it.
//
// Faults: every operation on a closed row set; what SQLite refuses, told with the file and the cause.
class RowSet {
 public:
  using Listener = std::function<void()>;

  RowSet();
  ~RowSet();
  RowSet(RowSet&&) noexcept;
  RowSet& operator=(RowSet&&) noexcept;

  // Opens `source` and moves to its first row, if there is one. Faults leave what was open before.
  // `database` must outlive the row set.
  void Open(Database& database, std::string_view source);
  void Close() noexcept;
  bool IsOpen() const noexcept;

  // Columns in the order of the table. FindColumn faults where there is none of that name (names are compared
  // without case), and so does every other function that takes one.
  int ColumnCount() const;
  const std::string& ColumnName(int column) const;
  int FindColumn(std::string_view name) const;

  std::int64_t RecordCount() const;       // rows of the source (an index is counted, no row is read)
  std::int64_t AbsolutePosition() const;  // of the current row, from 0; -1 without one or while adding
  bool HasRow() const;                    // a row is current, or one is being added
  bool IsEditing() const;                 // changed columns, or a new row, wait for a commit
  bool IsAdding() const;

  // At an end the row set is left without a current row (HasRow is false), as in MoveNext past the last row.
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  void MoveTo(std::int64_t position);  // faults where there is no such row

  // First row of the source, in its order, that meets `criterion` (criteria.h). NoMatch tells whether there
  // was none; then the current row stays. Faults for a criterion that doesn't parse.
  void FindFirst(std::string_view criterion);
  bool NoMatch() const;

  // The key of the current row, "" without one. Setting faults where that row isn't there any more.
  std::string Bookmark() const;
  void SetBookmark(std::string_view bookmark);

  // Of the current row with what waits in the buffer; "" without a row.
  const std::string& Value(int column) const;
  const std::string& Value(std::string_view column) const;
  // As stored, without the buffer.
  const std::string& StoredValue(int column) const;

  // Puts a value into the edit buffer; begins the edit where none is open. A value equal to the stored one
  // drops the column from the buffer. Faults without a current row and for the key column.
  void SetValue(int column, std::string_view value);
  void SetValue(std::string_view column, std::string_view value);

  void AddNew();  // a new row with the table's defaults; current until Update, which then keeps it current
  void Edit();    // faults without a current row; nothing else: SetValue begins the edit by itself
  // Commits what waits, durably, and writes changed columns only; nothing waiting: nothing done. Faults (a
  // text of more than 255 characters in a text column; what SQLite refuses) leave the buffer as it is. Where
  // a new row "may or may not have been saved", the next Update looks, and never adds it twice. Where a
  // transaction comes to nothing, what this row set wrote last in it waits in the buffer again.
  void Update();
  // What waits in a new row by now are its defaults: where nothing else is put in, leaving the row (a move,
  // FindFirst, AddNew, a bookmark, Leave) drops it. Nothing while no row is being added.
  void SetUntouched();
  bool IsUntouched() const;  // such a row is current
  // Commits what waits, as a move does.
  void Leave();
  void CancelUpdate();  // drops what waits; after AddNew the former row is current again
  void Delete();        // of the current row; then the next one is current, else the last, else none. While
                        // adding: as CancelUpdate

  // Re-reads the current row. A column that waits in the buffer keeps the waiting value, unless the stored
  // value has changed since it was read: then the stored one wins.
  void Resync();

  // Values of `columns` of the row at `position`, stored values only, without moving; read by pages that are
  // kept, so that neighbours cost nothing. Empty where there is no such row. For drawing grids.
  const std::vector<std::string>& PeekRow(std::int64_t position, const std::vector<int>& columns) const;

  // Called after another row (or none) has become current, after Open, and after Resync found a change.
  void OnReposition(Listener listener);
  // Called when the rows of the source have changed (Open, Update of a new row, Delete): grids draw anew.
  void OnRowsChanged(Listener listener);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tarvane
