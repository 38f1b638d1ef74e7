#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/database.h"
#include "store/fault_cause.h"
#include "store/statement.h"
#include "store/table_schema.h"

namespace tarvane {

// `name` as an identifier within SQL.
std::string QuotedName(std::string_view name);

// What a file says of itself: whose it is, and of which version (table_definition.h). 0 where it says
// nothing.
struct FileMarks {
  std::int64_t application = 0;
  std::int64_t version = 0;
  bool operator==(const FileMarks&) const = default;
};

// One SQLite connection, and what is known of its file.
class Connection {
 public:
  Connection(const std::filesystem::path& file, Database::Mode mode, const std::string& vfs);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  const std::filesystem::path& file() const { return file_; }
  const std::string& vfs() const { return vfs_; }
  sqlite3* handle() const { return handle_.get(); }

  // As they were at the opening; as they are now.
  const FileMarks& marks() const { return marks_; }
  const FileMarks& ReadMarks();

  // A change was left unfinished by whoever used the file last; it has been undone.
  bool was_left_unfinished() const { return left_unfinished_; }

  // Statements that come again and again are kept prepared.
  Statement Use(const std::string& sql);
  Statement Prepare(const std::string& sql);
  void Execute(const std::string& sql);

  // The table as it is known to be; read again behind changes from outside and Execute.
  std::shared_ptr<const TableSchema> Schema(std::string_view table);

  void Begin();
  void Commit();
  void Rollback() noexcept;
  // Of the outermost transaction that is open; 0 without one.
  std::int64_t transaction() const { return depth_ > 0 ? transaction_ : 0; }
  // Whether that former transaction came to nothing, or to nobody knows what.
  bool WasUndone(std::int64_t transaction) const;

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

  // Ends a failed step: tells the file, what could not be done, and the cause. Damage stops writing.
  [[noreturn]] void Fail(int code, std::string_view action);
  // Ends a step that met what a sound file can't hold.
  [[noreturn]] void FailDamaged(std::string_view what);
  // SQLite's code of the last failed step, and whether its change may stand all the same.
  int last_failure() const { return last_failure_; }
  bool last_may_stand() const { return last_may_stand_; }

  bool damaged() const { return damaged_; }
  void NoteDamage();
  // From now on every change faults with this cause.
  void StopWriting(std::string cause);
  // False where no change can succeed, as far as that shows without one.
  bool CanBeWritten() const;
  void AllowWriting();

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
  void ForgetSchemas();
  void Open(Database::Mode mode, const std::string& vfs);
  sqlite3_stmt* PrepareHandle(const std::string& sql, unsigned flags);

  std::filesystem::path file_;
  std::string vfs_;
  FileIdentity identity_;
  FileMarks marks_;
  bool left_unfinished_ = false;
  std::unique_ptr<sqlite3, CloseHandle> handle_;
  std::unordered_map<std::string, CachedStatement> statements_;
  std::int64_t rows_version_ = 0;
  std::int64_t values_version_ = 0;
  std::int64_t data_version_ = 0;
  std::map<std::string, std::shared_ptr<const TableSchema>, std::less<>> schemas_;
  int depth_ = 0;
  std::int64_t transaction_ = 0;
  std::vector<std::int64_t> undone_;
  int last_failure_ = SQLITE_OK;
  bool last_may_stand_ = false;
  bool damaged_ = false;
  bool writing_allowed_ = false;  // in spite of damage
  std::string write_stop_;        // why nothing is written; "" where it is
};

struct Database::State {
  State(const std::filesystem::path& path, Mode mode, const std::string& vfs);
  Connection connection;
  std::string notice;
};

}  // namespace tarvane
