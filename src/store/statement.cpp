#include "store/statement.h"

#include <utility>

#include "store/connection.h"

namespace tarvane {

namespace {

std::string_view View(const char* text) {
  return text == nullptr ? std::string_view() : std::string_view(text);
}

}  // namespace

Statement::Statement(Connection& connection, sqlite3_stmt* handle, bool* lent)
    : connection_(&connection), handle_(handle), lent_(lent) {
  if (lent_ != nullptr) *lent_ = true;
}

Statement::Statement(Statement&& other) noexcept
    : connection_(other.connection_), handle_(std::exchange(other.handle_, nullptr)), lent_(other.lent_) {}

Statement::~Statement() {
  if (handle_ == nullptr) return;
  if (lent_ == nullptr) {
    sqlite3_finalize(handle_);
    return;
  }
  sqlite3_reset(handle_);
  sqlite3_clear_bindings(handle_);
  *lent_ = false;
}

Statement& Statement::Bind(int position, std::string_view text) {
  // A null pointer would bind NULL instead of an empty text.
  const char* data = text.data() == nullptr ? "" : text.data();
  const int code = sqlite3_bind_text64(handle_, position, data, text.size(), SQLITE_STATIC, SQLITE_UTF8);
  if (code != SQLITE_OK) connection_->Fail(code, "used");
  return *this;
}

Statement& Statement::Bind(int position, std::int64_t number) {
  const int code = sqlite3_bind_int64(handle_, position, number);
  if (code != SQLITE_OK) connection_->Fail(code, "used");
  return *this;
}

bool Statement::Step() {
  const int code = sqlite3_step(handle_);
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  connection_->Fail(code, sqlite3_stmt_readonly(handle_) != 0 ? "read" : "changed");
}

void Statement::Run() {
  while (Step()) {
  }
}

void Statement::Reset() { sqlite3_reset(handle_); }

std::string_view Statement::ColumnName(int column) const {
  return View(sqlite3_column_name(handle_, column));
}

std::string_view Statement::ColumnType(int column) const {
  return View(sqlite3_column_decltype(handle_, column));
}

std::string_view Statement::Text(int column) const {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle_, column));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(handle_, column))};
}

std::string_view Statement::Bytes(int column) const {
  const auto* bytes = static_cast<const char*>(sqlite3_column_blob(handle_, column));
  if (bytes == nullptr) return {};
  return {bytes, static_cast<std::size_t>(sqlite3_column_bytes(handle_, column))};
}

}  // namespace tarvane
