#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/row_pages.h"
#include "store/row_source.h"
#include "store/table_schema.h"

namespace tarvane {

// An open row set (row_set.h tells what each step does): the current row, its edit buffer, and the moves.
class RowCursor {
 public:
  RowCursor(Connection& connection, std::string_view source);

  const TableSchema& table() const { return *table_; }
  int Find(std::string_view column) const;

  std::int64_t Count();
  std::int64_t Position();
  bool HasRow() const { return place_.has_value() || adding_; }
  bool IsEditing();
  bool IsAdding();

  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  void MoveTo(std::int64_t position);
  void FindFirst(std::string_view criterion);
  bool NoMatch() const { return no_match_; }
  std::string Bookmark() const;
  void SetBookmark(std::string_view bookmark);

  const std::string& Value(int column) const;
  const std::string& StoredValue(int column) const;
  void SetValue(int column, std::string_view value);
  void AddNew();
  void Edit() const;
  void Update();
  void SetUntouched();
  bool IsUntouched() { return IsAdding() && untouched_ == waiting_; }
  void LeaveRow();
  void CancelUpdate();
  void Delete();
  void Resync();

  const std::vector<std::string>& PeekRow(std::int64_t position, const std::vector<int>& columns);

  // What has happened since the last call, for those who listen.
  struct Events {
    bool repositioned = false;
    bool rows_changed = false;
  };
  Events TakeEvents();

 private:
  enum class End { kFront, kBack };

  // A new row that may have been inserted: the key it got or would have got, and its values.
  struct Attempt {
    std::int64_t key = 0;
    std::vector<std::string> values;
  };

  // What was written in a transaction that is still open, or was when last looked at: it goes back into the
  // buffer where the transaction comes to nothing.
  struct Written {
    std::int64_t transaction = 0;
    std::optional<Place> place;  // before
    std::vector<std::string> row;
    std::map<int, std::string> values;
    std::optional<Attempt> added;
  };

  void NoticeChanges();
  bool ReadRow(std::int64_t key, std::vector<std::string>& values);
  void Go(const std::function<std::optional<Place>()>& target, End end);
  void Assign(const Statement& row, int first, std::vector<std::string>& values) const;
  void ReadAhead();
  void StopWalk();
  void Leave(End end);
  void CheckColumn(int column) const;
  void CheckWaiting() const;
  void Commit();
  void CommitNew();
  void CommitChanges();
  void TakeForNew(std::int64_t key);
  void NoteAttempt();
  bool StandsAlready();
  void Remember(Written written);
  void TakeBackUndone();
  [[noreturn]] void FailGone() const;

  Connection& connection_;
  std::shared_ptr<const TableSchema> table_;
  std::string row_sql_;
  std::unique_ptr<RowSource> source_;
  mutable std::vector<int> by_name_;  // columns in the order of their names, filled on need

  std::optional<Place> place_;
  End end_ = End::kBack;          // where the cursor stands without a row
  std::vector<std::string> row_;  // as stored; while adding the defaults
  std::map<int, std::string> waiting_;
  std::vector<std::string> scratch_;
  std::vector<std::string> defaults_;  // of a new row; like the statement made with the first one
  std::string insert_sql_;
  bool adding_ = false;
  std::optional<std::map<int, std::string>> untouched_;  // what waits in a new row that may be dropped

  std::optional<Attempt> attempt_;

  std::optional<Written> written_;
  bool no_match_ = false;

  // A walk by MoveNext is read some rows ahead: they are ahead_[ahead_at_] to the end.
  struct RowAhead {
    Place place;
    std::vector<std::string> values;
  };
  std::vector<RowAhead> ahead_;
  std::size_t ahead_at_ = 0;
  std::int64_t walked_ = 0;

  RowPages pages_;
  std::int64_t rows_version_ = 0;
  std::int64_t values_version_ = 0;
  Events events_;
};

}  // namespace tarvane
