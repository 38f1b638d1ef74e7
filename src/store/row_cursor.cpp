#include "store/row_cursor.h"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <utility>

#include "store/criteria.h"
#include "store/criterion_scanner.h"
#include "store/read_rows.h"
#include "text/fault.h"
#include "text/fold.h"

namespace tarvane {

namespace {

constexpr std::int64_t kStepsOfWalk = 1;
constexpr std::int64_t kRowsAhead = 48;

struct SourceText {
  std::string table;
  std::optional<Criterion> criterion;
};

// A table name, or SELECT * FROM table [WHERE criterion].
SourceText ParseSource(std::string_view text) {
  CriterionScanner scanner(text);
  const bool query = scanner.TryWord("SELECT") && scanner.TryWord("*");
  if (query) scanner.Word("FROM");
  if (!query) scanner = CriterionScanner(text);
  SourceText source{scanner.Name(), std::nullopt};
  if (query && scanner.TryWord("WHERE")) {
    source.criterion = ParseCriterion(scanner.Rest());
  } else {
    scanner.TryWord(";");
    scanner.End();
  }
  return source;
}

}  // namespace

RowCursor::RowCursor(Connection& connection, std::string_view source) : connection_(connection) {
  const SourceText text = ParseSource(source);
  const Connection::ReadTogether together(connection);
  connection_.NoticeOtherWriters();
  table_ = connection_.Schema(text.table);
  row_sql_ = "SELECT * FROM " + table_->quoted + " WHERE rowid = ?1";
  source_ = text.criterion ? MakeCriterionSource(connection, *table_,
                                                 CriterionQuery(connection, *table_, *text.criterion))
                           : MakeTableSource(connection, *table_);
  rows_version_ = connection_.rows_version();
  values_version_ = connection_.values_version();
  Go([this] { return source_->First(); }, End::kBack);
  events_ = {true, true};
}

int RowCursor::Find(std::string_view column) const {
  const auto name = [this](int at) -> const std::string& {
    return table_->columns[static_cast<std::size_t>(at)].name;
  };
  if (by_name_.empty()) {
    by_name_.resize(table_->columns.size());
    std::iota(by_name_.begin(), by_name_.end(), 0);
    std::sort(by_name_.begin(), by_name_.end(), [&](int a, int b) { return LessName(name(a), name(b)); });
  }
  const auto found =
      std::lower_bound(by_name_.begin(), by_name_.end(), column,
                       [&](int at, std::string_view wanted) { return LessName(name(at), wanted); });
  if (found != by_name_.end() && EqualNames(name(*found), column)) return *found;
  throw Fault("The table " + table_->name + " has no column " + std::string(column) + ".");
}

RowCursor::Events RowCursor::TakeEvents() { return std::exchange(events_, {}); }

// Other row sets of this connection may have written since the last step.
void RowCursor::NoticeChanges() {
  if (values_version_ != connection_.values_version()) {
    pages_.Clear();
    StopWalk();
  }
  if (rows_version_ != connection_.rows_version()) source_->RowsChanged(place_);
  values_version_ = connection_.values_version();
  rows_version_ = connection_.rows_version();
}

std::int64_t RowCursor::Count() {
  NoticeChanges();
  return source_->Count();
}

std::int64_t RowCursor::Position() {
  NoticeChanges();
  if (!place_ || adding_) return -1;
  place_->position = source_->Position(*place_);
  return place_->position;
}

const std::vector<std::string>& RowCursor::PeekRow(std::int64_t position, const std::vector<int>& columns) {
  for (const int column : columns) CheckColumn(column);
  NoticeChanges();
  return pages_.Row(connection_, *table_, *source_, position, columns);
}

bool RowCursor::ReadRow(std::int64_t key, std::vector<std::string>& values) {
  Statement row = connection_.Use(row_sql_);
  if (!row.Bind(1, key).Step()) return false;
  Assign(row, 0, values);
  return true;
}

// `target` names the place to go to; where its row has gone in the meantime, it is asked again, knowing that.
void RowCursor::Go(const std::function<std::optional<Place>()>& target, End end) {
  NoticeChanges();
  StopWalk();
  std::optional<Place> place;
  {
    const Connection::ReadTogether together(connection_);
    place = target();
    std::optional<std::int64_t> lost;
    while (place && !ReadRow(place->key, scratch_)) {
      if (source_->Lost(*place) || lost == place->key) {
        connection_.FailDamaged("an index of " + table_->name + " names a row that isn't there");
      }
      lost = place->key;
      if (place_) place_ = source_->OfKey(place_->key);
      place = target();
    }
  }
  if (!place) {
    Leave(end);
    return;
  }
  place_ = place;
  row_.swap(scratch_);
  events_.repositioned = true;
}

void RowCursor::Leave(End end) {
  events_.repositioned = events_.repositioned || place_.has_value();
  place_.reset();
  end_ = end;
}

void RowCursor::MoveFirst() {
  LeaveRow();
  Go([this] { return source_->First(); }, End::kBack);
}

void RowCursor::MoveLast() {
  LeaveRow();
  Go([this] { return source_->Last(); }, End::kBack);
}

void RowCursor::MoveNext() {
  LeaveRow();
  if (!place_ && end_ == End::kBack) return;
  const std::int64_t walked = walked_;
  NoticeChanges();
  if (place_ && walked_ >= kStepsOfWalk && ahead_at_ == ahead_.size()) ReadAhead();
  if (ahead_at_ < ahead_.size()) {
    place_ = ahead_[ahead_at_].place;
    row_.swap(ahead_[ahead_at_++].values);
    events_.repositioned = true;
    return;
  }
  Go([this] { return place_ ? source_->Next(*place_) : source_->First(); }, End::kBack);
  walked_ = walked + 1;
}

// Rows are locked and read together: one by one the locks cost more than the rows.
void RowCursor::ReadAhead() {
  const Connection::ReadTogether together(connection_);
  const std::vector<Place> places = source_->Following(*place_, kRowsAhead);
  std::vector<std::int64_t> keys;
  keys.reserve(places.size());
  for (const Place& place : places) keys.push_back(place.key);
  ahead_.resize(places.size());
  std::size_t read = 0;
  ReadRows(connection_, *table_, "t.*", keys, [&](std::size_t at, const Statement& row) {
    if (at != read) return;  // behind a row that is gone: left to the next step
    ahead_[read].place = places[read];
    Assign(row, 1, ahead_[read++].values);
  });
  ahead_.resize(read);
  ahead_at_ = 0;
}

void RowCursor::Assign(const Statement& row, int first, std::vector<std::string>& values) const {
  values.resize(table_->columns.size());
  for (std::size_t i = 0; i < values.size(); ++i) values[i].assign(row.Text(static_cast<int>(i) + first));
}

void RowCursor::StopWalk() {
  walked_ = 0;
  ahead_at_ = ahead_.size();
}

void RowCursor::MovePrevious() {
  LeaveRow();
  if (!place_ && end_ == End::kFront) return;
  Go([this] { return place_ ? source_->Previous(*place_) : source_->Last(); }, End::kFront);
}

void RowCursor::MoveTo(std::int64_t position) {
  LeaveRow();
  NoticeChanges();
  if (!source_->At(position))
    throw Fault("The table " + table_->name + " has no row " + std::to_string(position + 1) + ".");
  Go([this, position] { return source_->At(position); }, End::kBack);
}

void RowCursor::FindFirst(std::string_view criterion) {
  LeaveRow();
  no_match_ = true;
  const CriterionQuery query(connection_, *table_, ParseCriterion(criterion));
  NoticeChanges();
  std::optional<Place> found;
  {
    const Connection::ReadTogether together(connection_);
    found = source_->FindFirst(query);
    if (!found || !ReadRow(found->key, scratch_)) return;
  }
  StopWalk();
  no_match_ = false;
  place_ = found;
  row_.swap(scratch_);
  events_.repositioned = true;
}

std::string RowCursor::Bookmark() const { return place_ && !adding_ ? std::to_string(place_->key) : ""; }

void RowCursor::SetBookmark(std::string_view bookmark) {
  LeaveRow();
  NoticeChanges();
  std::int64_t key = 0;
  const auto read = std::from_chars(bookmark.data(), bookmark.data() + bookmark.size(), key);
  const bool sound = read.ec == std::errc() && read.ptr == bookmark.data() + bookmark.size();
  const std::optional<Place> place = sound ? source_->OfKey(key) : std::nullopt;
  if (!place || !ReadRow(place->key, scratch_)) FailGone();
  StopWalk();
  place_ = place;
  row_.swap(scratch_);
  events_.repositioned = true;
}

void RowCursor::FailGone() const {
  throw Fault("The row of " + table_->name + " isn't there any more (" + connection_.file().string() + ").");
}

}  // namespace tarvane
