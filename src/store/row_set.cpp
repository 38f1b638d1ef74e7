#include "store/row_set.h"

#include <utility>

#include "store/connection.h"
#include "store/database.h"
#include "store/row_cursor.h"
#include "text/fault.h"

namespace tarvane {

struct RowSet::State {
  std::unique_ptr<RowCursor> cursor;
  std::vector<Listener> reposition;
  std::vector<Listener> rows_changed;

  RowCursor& Cursor() {
    if (!cursor) throw Fault("No table is open.");
    return *cursor;
  }

  // Listeners may listen further, and step through the row set themselves.
  static void Call(const std::vector<Listener>& listeners) {
    for (std::size_t i = 0; i < listeners.size(); ++i) {  // NOLINT(modernize-loop-convert)
      const Listener listener = listeners[i];
      listener();
    }
  }

  void Notify() {
    const RowCursor::Events events = Cursor().TakeEvents();
    if (events.rows_changed) Call(rows_changed);
    if (events.repositioned) Call(reposition);
  }

  template <typename Step>
  void Do(Step step) {
    step(Cursor());
    Notify();
  }
};

RowSet::RowSet() : state_(std::make_unique<State>()) {}
RowSet::~RowSet() = default;
RowSet::RowSet(RowSet&&) noexcept = default;
RowSet& RowSet::operator=(RowSet&&) noexcept = default;

void RowSet::Open(Database& database, std::string_view source) {
  state_->cursor = std::make_unique<RowCursor>(database.state_->connection, source);
  state_->Notify();
}

void RowSet::Close() noexcept { state_->cursor.reset(); }
bool RowSet::IsOpen() const noexcept { return state_ && state_->cursor != nullptr; }

int RowSet::ColumnCount() const { return static_cast<int>(state_->Cursor().table().columns.size()); }

const std::string& RowSet::ColumnName(int column) const {
  const auto& columns = state_->Cursor().table().columns;
  if (column < 0 || column >= ColumnCount())
    throw Fault("There is no column " + std::to_string(column) + ".");
  return columns[static_cast<std::size_t>(column)].name;
}

int RowSet::FindColumn(std::string_view name) const { return state_->Cursor().Find(name); }

std::int64_t RowSet::RecordCount() const { return state_->Cursor().Count(); }
std::int64_t RowSet::AbsolutePosition() const { return state_->Cursor().Position(); }
bool RowSet::HasRow() const { return state_->Cursor().HasRow(); }
bool RowSet::IsEditing() const { return state_->Cursor().IsEditing(); }
bool RowSet::IsAdding() const { return state_->Cursor().IsAdding(); }

void RowSet::MoveFirst() {
  state_->Do([](RowCursor& cursor) { cursor.MoveFirst(); });
}

void RowSet::MoveLast() {
  state_->Do([](RowCursor& cursor) { cursor.MoveLast(); });
}

void RowSet::MoveNext() {
  state_->Do([](RowCursor& cursor) { cursor.MoveNext(); });
}

void RowSet::MovePrevious() {
  state_->Do([](RowCursor& cursor) { cursor.MovePrevious(); });
}

void RowSet::MoveTo(std::int64_t position) {
  state_->Do([position](RowCursor& cursor) { cursor.MoveTo(position); });
}

void RowSet::FindFirst(std::string_view criterion) {
  state_->Do([criterion](RowCursor& cursor) { cursor.FindFirst(criterion); });
}

bool RowSet::NoMatch() const { return state_->Cursor().NoMatch(); }

std::string RowSet::Bookmark() const { return state_->Cursor().Bookmark(); }

void RowSet::SetBookmark(std::string_view bookmark) {
  state_->Do([bookmark](RowCursor& cursor) { cursor.SetBookmark(bookmark); });
}

const std::string& RowSet::Value(int column) const { return state_->Cursor().Value(column); }
const std::string& RowSet::Value(std::string_view column) const { return Value(FindColumn(column)); }
const std::string& RowSet::StoredValue(int column) const { return state_->Cursor().StoredValue(column); }

void RowSet::SetValue(int column, std::string_view value) { state_->Cursor().SetValue(column, value); }

void RowSet::SetValue(std::string_view column, std::string_view value) {
  RowCursor& cursor = state_->Cursor();
  cursor.SetValue(cursor.table().Require(column), value);
}

void RowSet::AddNew() {
  state_->Do([](RowCursor& cursor) { cursor.AddNew(); });
}

void RowSet::Edit() { state_->Cursor().Edit(); }

void RowSet::Update() {
  state_->Do([](RowCursor& cursor) { cursor.Update(); });
}

void RowSet::SetUntouched() { state_->Cursor().SetUntouched(); }

bool RowSet::IsUntouched() const { return state_->Cursor().IsUntouched(); }

void RowSet::Leave() {
  state_->Do([](RowCursor& cursor) { cursor.LeaveRow(); });
}

void RowSet::CancelUpdate() {
  state_->Do([](RowCursor& cursor) { cursor.CancelUpdate(); });
}

void RowSet::Delete() {
  state_->Do([](RowCursor& cursor) { cursor.Delete(); });
}

void RowSet::Resync() {
  state_->Do([](RowCursor& cursor) { cursor.Resync(); });
}

const std::vector<std::string>& RowSet::PeekRow(std::int64_t position,
                                                const std::vector<int>& columns) const {
  return state_->Cursor().PeekRow(position, columns);
}

void RowSet::OnReposition(Listener listener) { state_->reposition.push_back(std::move(listener)); }
void RowSet::OnRowsChanged(Listener listener) { state_->rows_changed.push_back(std::move(listener)); }

}  // namespace tarvane
