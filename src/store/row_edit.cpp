// The edit buffer of RowCursor.
#include <algorithm>
#include <utility>

#include "store/row_cursor.h"
#include "text_number/fault.h"

namespace tarvane {

namespace {

const std::string kNothing;

std::int64_t CountCharacters(std::string_view text) {
  return std::count_if(text.begin(), text.end(),
                       [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
}

}  // namespace

const std::string& RowCursor::Value(int column) const {
  if (!HasRow() || column < 0 || column >= static_cast<int>(row_.size())) return kNothing;
  if (!waiting_.empty()) {
    const auto found = waiting_.find(column);
    if (found != waiting_.end()) return found->second;
  }
  return row_[static_cast<std::size_t>(column)];
}

const std::string& RowCursor::StoredValue(int column) const {
  if (!place_ || adding_ || column < 0 || column >= static_cast<int>(row_.size())) return kNothing;
  return row_[static_cast<std::size_t>(column)];
}

void RowCursor::SetValue(int column, std::string_view value) {
  Edit();
  if (column < 0 || column >= static_cast<int>(table_.columns.size())) {
    throw Fault("The table " + table_.name + " has no such column.");
  }
  const TableSchema::Column& told = table_.columns[static_cast<std::size_t>(column)];
  if (told.key) throw Fault("The column " + told.name + " of " + table_.name + " is given by the database.");
  if (row_[static_cast<std::size_t>(column)] == value) {
    waiting_.erase(column);
  } else {
    waiting_[column] = value;
  }
}

void RowCursor::Edit() const {
  if (!HasRow()) throw Fault("The table " + table_.name + " has no current row.");
}

void RowCursor::AddNew() {
  Update();
  row_ = ReadDefaults(connection_, table_);
  adding_ = true;
  events_.repositioned = true;
}

void RowCursor::CancelUpdate() {
  waiting_.clear();
  if (!adding_) return;
  adding_ = false;
  events_.repositioned = true;
  if (place_ && !ReadRow(place_->key, row_)) Leave(End::kBack);
}

void RowCursor::Update() {
  if (!IsEditing()) return;
  CheckWaiting();
  NoticeChanges();
  source_->BeforeWrite();
  if (adding_) {
    CommitNew();
  } else {
    CommitChanges();
  }
  for (auto& [column, value] : waiting_) row_[static_cast<std::size_t>(column)] = std::move(value);
  waiting_.clear();
}

void RowCursor::CheckWaiting() const {
  for (const auto& [at, value] : waiting_) {
    const TableSchema::Column& column = table_.columns[static_cast<std::size_t>(at)];
    const std::string place = "The column " + column.name + " of " + table_.name;
    if (column.yes_no && value != "0" && value != "1") throw Fault(place + " holds only \"0\" or \"1\".");
    if (column.most_characters > 0 && CountCharacters(value) > column.most_characters) {
      throw Fault(place + " holds at most " + std::to_string(column.most_characters) + " characters.");
    }
  }
}

void RowCursor::CommitNew() {
  std::string names;
  std::string marks;
  std::vector<int> columns;
  for (int i = 0; i < static_cast<int>(table_.columns.size()); ++i) {
    const TableSchema::Column& column = table_.columns[static_cast<std::size_t>(i)];
    if (column.key) continue;
    columns.push_back(i);
    names += (names.empty() ? "" : ", ") + QuotedName(column.name);
    marks += (marks.empty() ? "?" : ", ?") + std::to_string(columns.size());
  }
  Statement insert =
      connection_.Use("INSERT INTO " + table_.quoted + " (" + names + ") VALUES (" + marks + ")");
  for (std::size_t i = 0; i < columns.size(); ++i) insert.Bind(static_cast<int>(i) + 1, Value(columns[i]));
  insert.Run();
  const std::int64_t key = sqlite3_last_insert_rowid(connection_.handle());
  connection_.RowsChanged();
  place_ = source_->Added(key);
  rows_version_ = connection_.rows_version();
  adding_ = false;
  for (std::size_t i = 0; i < row_.size(); ++i) {
    if (table_.columns[i].key) row_[i] = std::to_string(key);
  }
  events_.rows_changed = true;
}

void RowCursor::CommitChanges() {
  std::string sets;
  int position = 1;
  for (const auto& entry : waiting_) {
    sets += (sets.empty() ? "" : ", ") +
            QuotedName(table_.columns[static_cast<std::size_t>(entry.first)].name) + " = ?" +
            std::to_string(++position);
  }
  Statement update = connection_.Prepare("UPDATE " + table_.quoted + " SET " + sets + " WHERE rowid = ?1");
  update.Bind(1, place_->key);
  position = 1;
  for (const auto& entry : waiting_) update.Bind(++position, entry.second);
  update.Run();
  if (sqlite3_changes64(connection_.handle()) == 0) FailGone();
  connection_.ValuesChanged();
}

void RowCursor::Delete() {
  Edit();
  if (adding_) {
    CancelUpdate();
    return;
  }
  NoticeChanges();
  source_->BeforeWrite();
  connection_.Use("DELETE FROM " + table_.quoted + " WHERE rowid = ?1").Bind(1, place_->key).Run();
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
