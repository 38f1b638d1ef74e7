#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "store/database.h"
#include "store/statement.h"

namespace tarvane {

// What indexes are ordered by: CompareFolded (text_fold.h).
inline constexpr std::string_view kFoldedCollation = "SHOP_NOCASE";
// shop_like(text, pattern): Like (criteria.h).
inline constexpr std::string_view kLikeFunction = "shop_like";

// `name` as an identifier within SQL.
std::string QuotedName(std::string_view name);

// Makes the collation and the function known to `handle`. Returns SQLite's code.
int RegisterTextFunctions(sqlite3* handle);

// One SQLite connection, and what is known of its file.
class Connection {
 public:
  Connection(const std::filesystem::path& file, Database::Mode mode, const std::string& vfs);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  const std::filesystem::path& file() const { return file_; }
  sqlite3* handle() const { return handle_.get(); }

  // Statements that come again and again are kept prepared.
  Statement Use(const std::string& sql);
  Statement Prepare(const std::string& sql);
  void Execute(const std::string& sql);

  void Begin();
  void Commit();
  void Rollback() noexcept;

  // While it lives the file is locked for reading once, not by each statement. Nothing may be written.
  class ReadTogether {
   public:
    explicit ReadTogether(Connection& connection);
    ~ReadTogether();
    ReadTogether(const ReadTogether&) = delete;
    ReadTogether& operator=(const ReadTogether&) = delete;

   private:
    Connection& connection_;
    bool open_ = false;
  };

  // Raised when rows were added or removed, and when any value may have changed; what was read before is old.
  std::int64_t rows_version() const { return rows_version_; }
  std::int64_t values_version() const { return values_version_; }
  void RowsChanged() { ++rows_version_, ++values_version_; }
  void ValuesChanged() { ++values_version_; }
  // Raises both where another connection has written since the last call.
  void NoticeOtherWriters();

  // Ends a failed step: tells the file, what could not be done, and the cause.
  [[noreturn]] void Fail(int code, std::string_view action) const;

 private:
  struct CloseHandle {
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
  };
  struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  struct CachedStatement {
    std::unique_ptr<sqlite3_stmt, FinalizeStatement> handle;
    bool lent = false;
  };

  void Change(const char* sql);
  void Open(Database::Mode mode, const std::string& vfs);
  sqlite3_stmt* PrepareHandle(const std::string& sql, unsigned flags);

  std::filesystem::path file_;
  std::unique_ptr<sqlite3, CloseHandle> handle_;
  std::unordered_map<std::string, CachedStatement> statements_;
  std::int64_t rows_version_ = 0;
  std::int64_t values_version_ = 0;
  std::int64_t data_version_ = 0;
  int depth_ = 0;
};

struct Database::State {
  State(const std::filesystem::path& path, Mode mode, const std::string& vfs) : connection(path, mode, vfs) {}
  Connection connection;
};

}  // namespace tarvane
