#include "store/file_version.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "store/connection.h"
#include "store/table_definition.h"
#include "text/fault.h"

namespace tarvane {

namespace {

namespace fs = std::filesystem;

constexpr FileMarks kOurs{kApplicationId, kSchemaVersion};

bool Has(Connection& connection, std::string_view type, std::string_view name) {
  Statement find = connection.Use("SELECT 1 FROM sqlite_schema WHERE type = ?1 AND name = ?2 COLLATE NOCASE");
  return find.Bind(1, type).Bind(2, name).Step();
}

// The tables that are defined for the same file as one that is there.
std::vector<const TableDefinition*> TablesOf(Connection& connection) {
  const auto& all = TableDefinitions();
  std::vector<const TableDefinition*> tables;
  const auto there = std::find_if(all.begin(), all.end(), [&](const TableDefinition& table) {
    return Has(connection, "table", table.name);
  });
  for (const TableDefinition& table : all) {
    if (there != all.end() && table.file == there->file) tables.push_back(&table);
  }
  return tables;
}

bool HasColumn(Connection& connection, const TableDefinition& table, std::string_view column) {
  return connection.Schema(table.name)->Find(column) >= 0;
}

// An older file may be read where nothing is missing that a screen would ask for.
bool CanBeUsed(Connection& connection) {
  for (const TableDefinition* table : TablesOf(connection)) {
    for (const ColumnDefinition& column : table->columns) {
      if (!Has(connection, "table", table->name) || !HasColumn(connection, *table, column.name)) return false;
    }
  }
  return true;
}

void AddWhatIsMissing(Connection& connection) {
  for (const TableDefinition* table : TablesOf(connection)) {
    if (!Has(connection, "table", table->name)) connection.Execute(TableSql(*table));
    for (const ColumnDefinition& column : table->columns) {
      if (!HasColumn(connection, *table, column.name)) connection.Execute(AddColumnSql(*table, column));
    }
    for (const IndexDefinition& index : IndexesOf(*table)) {
      if (!Has(connection, "index", index.name)) connection.Execute(index.sql);
    }
  }
}

// A new file for the copy, under a name that nothing has yet.
fs::path MakeFileForCopy(const Connection& connection, std::int64_t version) {
  struct stat original {};
  ::stat(connection.file().c_str(), &original);
  const std::string name = connection.file().string() + ".version-" + std::to_string(version);
  for (int number = 1;; ++number) {
    fs::path copy = number == 1 ? name : name + "-" + std::to_string(number);
    const int handle = ::open(copy.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC,
                              original.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO));
    if (handle >= 0) {
      ::close(handle);
      return copy;
    }
    if (errno == EEXIST) continue;
    throw Fault(copy.string() + " could not be made: " + std::generic_category().message(errno) + ".");
  }
}

void SyncFolder(const fs::path& folder) {
  const int handle = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  ::fsync(handle);
  ::close(handle);
}

// SQLite copies, page by page, as the file is before what is under way. Copying by hand would give up the
// locks that this process holds.
void CopyInto(const Connection& connection, const fs::path& target) {
  Connection from(connection.file(), Database::Mode::kExisting, connection.vfs());
  Connection to(target, Database::Mode::kCreate, connection.vfs());
  to.Execute("PRAGMA journal_mode=DELETE");  // which leaves no empty file beside
  sqlite3_backup* backup = sqlite3_backup_init(to.handle(), "main", from.handle(), "main");
  int code = backup == nullptr ? sqlite3_errcode(to.handle()) : sqlite3_backup_step(backup, -1);
  if (backup != nullptr) sqlite3_backup_finish(backup);
  if (code != SQLITE_DONE) to.Fail(code, "written");
  SyncFolder(target.parent_path());
}

// Takes the copy away again unless it is wanted.
class Copy {
 public:
  Copy(const Connection& connection, std::int64_t version) : file_(MakeFileForCopy(connection, version)) {
    try {
      CopyInto(connection, file_);
    } catch (...) {
      Remove();
      throw;
    }
  }
  ~Copy() {
    if (!kept_) Remove();
  }
  Copy(const Copy&) = delete;
  Copy& operator=(const Copy&) = delete;

  void Keep() { kept_ = true; }
  const fs::path& file() const { return file_; }

 private:
  void Remove() const noexcept {
    std::error_code ignored;
    fs::remove(file_, ignored);
    fs::remove(file_.string() + "-journal", ignored);
  }

  fs::path file_;
  bool kept_ = false;
};

class Undo {
 public:
  explicit Undo(Connection& connection) : connection_(connection) { connection_.Begin(); }
  ~Undo() {
    if (open_) connection_.Rollback();
  }
  Undo(const Undo&) = delete;
  Undo& operator=(const Undo&) = delete;
  void Commit() {
    open_ = false;
    connection_.Commit();
  }

 private:
  Connection& connection_;
  bool open_ = true;
};

std::string NumberOf(std::int64_t version) { return "version " + std::to_string(version); }

// Returns the name of the copy; "" where another program was quicker.
std::string Upgrade(Connection& connection) {
  Undo transaction(connection);
  const FileMarks marks = connection.ReadMarks();
  if (marks == kOurs) return "";
  Copy copy(connection, marks.version);
  for (const UpgradeStep& step : UpgradeSteps()) {
    if (step.version > marks.version && Has(connection, "table", step.table))
      connection.Execute(std::string(step.sql));
  }
  AddWhatIsMissing(connection);
  connection.Execute(VersionMarksSql());
  try {
    transaction.Commit();
  } catch (const Fault&) {
    // Whether it stands can be seen.
    if (!connection.last_may_stand() || connection.ReadMarks() != kOurs) throw;
  }
  copy.Keep();
  return copy.file().string();
}

}  // namespace

std::string VersionMarksSql() {
  return "PRAGMA application_id=" + std::to_string(kApplicationId) +
         ";PRAGMA user_version=" + std::to_string(kSchemaVersion);
}

std::string BringUp(Connection& connection) {
  const FileMarks marks = connection.marks();
  if (marks == kOurs) return "";
  const std::string file = connection.file().string();
  if (marks == FileMarks{} && TablesOf(connection).empty()) return "";
  if (marks != FileMarks{} && marks.application != kApplicationId) {
    throw Fault(file + " could not be opened: it belongs to another program.");
  }
  if (marks.version > kSchemaVersion) {
    throw Fault(file + " could not be opened: a newer Tarvane has written it (" + NumberOf(marks.version) +
                " of the tables; this one knows " + NumberOf(kSchemaVersion) + "). Please install that one.");
  }
  const std::string from_to = NumberOf(marks.version) + " to " + NumberOf(kSchemaVersion);
  try {
    const std::string copy = Upgrade(connection);
    return copy.empty()
               ? ""
               : file + " has been brought up from " + from_to + ". As it was it is kept in " + copy + ".";
  } catch (const Fault& fault) {
    if ((connection.last_failure() & 0xFF) == SQLITE_BUSY || !CanBeUsed(connection)) throw;
    connection.StopWriting("it couldn't be brought up from " + from_to);
    return file + " couldn't be brought up from " + from_to + " and can only be read: " + fault.what();
  }
}

}  // namespace tarvane
