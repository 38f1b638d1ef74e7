// The edit buffer of RowCursor.
#include <algorithm>
#include <utility>

#include "store/row_cursor.h"
#include "text/fault.h"
#include "text/utf8.h"

namespace tarvane {

namespace {

const std::string kNothing;

// Of all columns but the key, in their order.
std::string InsertSql(const TableSchema& table) {
  std::string names;
  std::string marks;
  int count = 0;
  for (const TableSchema::Column& column : table.columns) {
    if (column.key) continue;
    names += (names.empty() ? "" : ", ") + QuotedName(column.name);
    marks += (marks.empty() ? "?" : ", ?") + std::to_string(++count);
  }
  return "INSERT INTO " + table.quoted + " (" + names + ") VALUES (" + marks + ")";
}

}  // namespace

void RowCursor::CheckColumn(int column) const {
  if (column < 0 || column >= static_cast<int>(table_->columns.size())) {
    throw Fault("The table " + table_->name + " has no column number " + std::to_string(column) + ".");
  }
}

bool RowCursor::IsEditing() {
  TakeBackUndone();
  return adding_ || !waiting_.empty();
}

bool RowCursor::IsAdding() {
  TakeBackUndone();
  return adding_;
}

const std::string& RowCursor::Value(int column) const {
  CheckColumn(column);
  if (!HasRow()) return kNothing;
  if (!waiting_.empty()) {
    const auto found = waiting_.find(column);
    if (found != waiting_.end()) return found->second;
  }
  return row_[static_cast<std::size_t>(column)];
}

const std::string& RowCursor::StoredValue(int column) const {
  CheckColumn(column);
  return place_ && !adding_ ? row_[static_cast<std::size_t>(column)] : kNothing;
}

void RowCursor::SetValue(int column, std::string_view value) {
  TakeBackUndone();
  Edit();
  CheckColumn(column);
  const TableSchema::Column& told = table_->columns[static_cast<std::size_t>(column)];
  if (told.key) throw Fault("The column " + told.name + " of " + table_->name + " is given by the database.");
  if (row_[static_cast<std::size_t>(column)] == value) {
    waiting_.erase(column);
  } else {
    waiting_[column] = value;
  }
}

void RowCursor::Edit() const {
  if (!HasRow()) throw Fault("The table " + table_->name + " has no current row.");
}

void RowCursor::SetUntouched() {
  if (IsAdding()) untouched_ = waiting_;
}

void RowCursor::LeaveRow() {
  if (IsUntouched()) {
    CancelUpdate();
  } else {
    Update();
  }
}

void RowCursor::AddNew() {
  LeaveRow();
  untouched_.reset();
  if (defaults_.empty()) defaults_ = ReadDefaults(connection_, *table_);
  row_ = defaults_;
  adding_ = true;
  attempt_.reset();
  events_.repositioned = true;
}

void RowCursor::CancelUpdate() {
  TakeBackUndone();
  waiting_.clear();
  if (!adding_) return;
  adding_ = false;
  attempt_.reset();
  events_.repositioned = true;
  if (place_ && !ReadRow(place_->key, row_)) Leave(End::kBack);
}

void RowCursor::Update() {
  if (!IsEditing()) return;
  CheckWaiting();
  NoticeChanges();
  source_->BeforeWrite();
  Written written{connection_.transaction(), place_, row_, waiting_, std::nullopt};
  const bool adding = adding_;
  Commit();
  if (adding) written.added = attempt_;
  attempt_.reset();
  for (auto& [column, value] : waiting_) row_[static_cast<std::size_t>(column)] = std::move(value);
  waiting_.clear();
  Remember(std::move(written));
}

void RowCursor::Remember(Written written) {
  const auto key = [](const Written& of) { return of.added ? of.added->key : of.place->key; };
  if (written.transaction == 0) {
    written_.reset();
    return;
  }
  if (!written_ || written_->transaction != written.transaction || key(*written_) != key(written)) {
    written_ = std::move(written);
    return;
  }
  for (auto& [column, value] : written.values) {
    if (written_->added) written_->added->values[static_cast<std::size_t>(column)] = value;
    written_->values[column] = std::move(value);
  }
}

// Behind a transaction that came to nothing the values wait again; a new row is a new row again, unless the
// next Update finds it standing.
void RowCursor::TakeBackUndone() {
  if (!written_ || connection_.transaction() == written_->transaction) return;
  const Written written = *std::exchange(written_, std::nullopt);
  const std::int64_t key = written.added ? written.added->key : written.place->key;
  if (!connection_.WasUndone(written.transaction) || adding_ || !place_ || place_->key != key) return;
  NoticeChanges();
  waiting_.insert(written.values.begin(), written.values.end());
  if (!written.added) {
    if (!ReadRow(key, row_)) return;
    std::erase_if(waiting_, [this](const auto& entry) {
      return row_[static_cast<std::size_t>(entry.first)] == entry.second;
    });
    return;
  }
  source_->Lost(*place_);
  place_ = written.place;
  row_ = written.row;
  attempt_ = written.added;
  adding_ = true;
  events_.rows_changed = true;
}

void RowCursor::Commit() {
  if (adding_ && attempt_ && StandsAlready()) {
    TakeForNew(attempt_->key);
    std::swap(row_, attempt_->values);
    std::erase_if(waiting_, [this](const auto& entry) {
      return row_[static_cast<std::size_t>(entry.first)] == entry.second;
    });
    if (waiting_.empty()) return;
  }
  if (adding_) {
    CommitNew();
  } else {
    CommitChanges();
  }
}

void RowCursor::CheckWaiting() const {
  for (const auto& [at, value] : waiting_) {
    const TableSchema::Column& column = table_->columns[static_cast<std::size_t>(at)];
    const std::string place = "The column " + column.name + " of " + table_->name;
    if (column.yes_no && value != "0" && value != "1") throw Fault(place + " holds only \"0\" or \"1\".");
    if (column.most_characters > 0 &&
        CountCharacters(value) > static_cast<std::size_t>(column.most_characters)) {
      throw Fault(place + " holds at most " + std::to_string(column.most_characters) + " characters.");
    }
  }
}

void RowCursor::CommitNew() {
  std::vector<int> columns;
  columns.reserve(table_->columns.size());
  for (int i = 0; i < static_cast<int>(table_->columns.size()); ++i) {
    if (!table_->columns[static_cast<std::size_t>(i)].key) columns.push_back(i);
  }
  if (insert_sql_.empty()) insert_sql_ = InsertSql(*table_);
  Statement insert = connection_.Use(insert_sql_);
  for (std::size_t i = 0; i < columns.size(); ++i) insert.Bind(static_cast<int>(i) + 1, Value(columns[i]));
  attempt_.reset();
  sqlite3_set_last_insert_rowid(connection_.handle(), 0);
  try {
    insert.Run();
  } catch (const Fault&) {
    if (connection_.last_may_stand()) NoteAttempt();
    throw;
  }
  NoteAttempt();
  TakeForNew(attempt_->key);
}

// The key that the last insert gave, also one whose commit failed; none where it didn't come so far.
void RowCursor::NoteAttempt() {
  const std::int64_t key = sqlite3_last_insert_rowid(connection_.handle());
  if (key == 0) return;
  attempt_ = Attempt{key, {}};
  for (int i = 0; i < static_cast<int>(row_.size()); ++i) {
    const bool is_key = table_->columns[static_cast<std::size_t>(i)].key;
    attempt_->values.push_back(is_key ? std::to_string(key) : Value(i));
  }
  connection_.RowsChanged();
}

bool RowCursor::StandsAlready() { return ReadRow(attempt_->key, scratch_) && scratch_ == attempt_->values; }

void RowCursor::TakeForNew(std::int64_t key) {
  connection_.RowsChanged();
  place_ = source_->Added(key);
  rows_version_ = connection_.rows_version();
  adding_ = false;
  for (std::size_t i = 0; i < row_.size(); ++i) {
    if (table_->columns[i].key) row_[i] = std::to_string(key);
  }
  events_.rows_changed = true;
}

void RowCursor::CommitChanges() {
  std::string sets;
  int position = 1;
  for (const auto& entry : waiting_) {
    sets += (sets.empty() ? "" : ", ") +
            QuotedName(table_->columns[static_cast<std::size_t>(entry.first)].name) + " = ?" +
            std::to_string(++position);
  }
  Statement update = connection_.Use("UPDATE " + table_->quoted + " SET " + sets + " WHERE rowid = ?1");
  update.Bind(1, place_->key);
  position = 1;
  for (const auto& entry : waiting_) update.Bind(++position, entry.second);
  update.Run();
  if (sqlite3_changes64(connection_.handle()) == 0) FailGone();
  connection_.ValuesChanged();
}

void RowCursor::Delete() {
  TakeBackUndone();
  Edit();
  if (adding_) {
    CancelUpdate();
    return;
  }
  NoticeChanges();
  source_->BeforeWrite();
  connection_.Use("DELETE FROM " + table_->quoted + " WHERE rowid = ?1").Bind(1, place_->key).Run();
  waiting_.clear();
  events_.rows_changed = true;
  connection_.RowsChanged();
  const Place gone = *std::exchange(place_, std::nullopt);
  rows_version_ = connection_.rows_version();
  std::optional<Place> next = source_->Removed(gone);
  if (!next) next = source_->Last();
  events_.repositioned = true;
  Go([&] { return std::exchange(next, std::nullopt); }, End::kBack);
}

void RowCursor::Resync() {
  if (adding_) return;
  written_.reset();
  connection_.NoticeOtherWriters();
  events_.rows_changed = events_.rows_changed || rows_version_ != connection_.rows_version();
  NoticeChanges();
  StopWalk();
  if (!place_) return;
  if (!ReadRow(place_->key, scratch_)) {
    waiting_.clear();
    Leave(End::kBack);
    return;
  }
  if (scratch_ == row_) return;
  std::erase_if(waiting_, [this](const auto& entry) {
    const auto column = static_cast<std::size_t>(entry.first);
    return scratch_[column] != row_[column] || scratch_[column] == entry.second;
  });
  row_.swap(scratch_);
  events_.repositioned = true;
}

}  // namespace tarvane
