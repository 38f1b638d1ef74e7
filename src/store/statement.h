#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace tarvane {

class Connection;

// One prepared statement, lent by its connection (connection.h) and reset when this goes out of scope, so
// that no lock outlives its use. Values are bound by position from 1 and read by position from 0.
class Statement {
 public:
  // `lent`: the mark of a cached statement, cleared at the end; null where the statement is owned.
  Statement(Connection& connection, sqlite3_stmt* handle, bool* lent);
  ~Statement();
  Statement(Statement&&) noexcept;
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  Statement& operator=(Statement&&) = delete;

  // The text must live until the statement goes.
  Statement& Bind(int position, std::string_view text);
  Statement& Bind(int position, std::int64_t number);

  bool Step();  // true on a row
  void Run();   // to the end
  void Reset();

  int ColumnCount() const { return sqlite3_column_count(handle_); }
  std::string_view ColumnName(int column) const;
  std::string_view ColumnType(int column) const;  // as declared
  std::string_view Text(int column) const;        // "" for NULL; until the next step
  std::string_view Bytes(int column) const;       // the same, cheaper: no byte 0 stands behind
  bool IsNull(int column) const { return sqlite3_column_type(handle_, column) == SQLITE_NULL; }
  std::int64_t Number(int column) const { return sqlite3_column_int64(handle_, column); }

 private:
  Connection* connection_;
  sqlite3_stmt* handle_;
  bool* lent_;
};

}  // namespace tarvane
