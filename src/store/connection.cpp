#include "store/connection.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <system_error>

#include "store/text_functions.h"
#include "text/fault.h"

namespace tarvane {

namespace {

constexpr int kBusyMilliseconds = 2000;
constexpr std::size_t kMostStatements = 64;
constexpr off_t kSmallestPage = 512;

// Full synchronous with a truncated journal: a commit is on the disk when it returns.
constexpr const char* kSettings =
    "PRAGMA journal_mode=TRUNCATE;"
    "PRAGMA synchronous=FULL;"
    "PRAGMA cache_size=-1536;";

constexpr std::string_view kDamaged = "the file is damaged";
constexpr const char* kReadMarks = "PRAGMA application_id; PRAGMA user_version";

int TakeMark(void* marks, int, char** values, char** names) {
  const bool version = std::string_view(names[0]) == "user_version";
  auto& taken = *static_cast<FileMarks*>(marks);
  (version ? taken.version : taken.application) = std::strtoll(values[0], nullptr, 10);
  return 0;
}

// What is told beside the cause once a file is known to be damaged.
constexpr std::string_view kWhatHelps =
    " Nothing more is written to it. Keep a copy of the file; then bring back a backup, or have it repaired "
    "as "
    "docs/store.md tells under \"Damage\".";

bool HasUnfinishedJournal(const std::filesystem::path& file) {
  std::error_code error;
  const auto size = std::filesystem::file_size(file.string() + "-journal", error);
  return !error && size > 0;
}

}  // namespace

std::string QuotedName(std::string_view name) {
  std::string quoted = "\"";
  for (const char c : name) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + '"';
}

Connection::Connection(const std::filesystem::path& file, Database::Mode mode, const std::string& vfs)
    : file_(file), vfs_(vfs), left_unfinished_(HasUnfinishedJournal(file)) {
  if (mode == Database::Mode::kExisting) {
    const auto fail = [&](std::string_view cause) {
      throw Fault(file_.string() + " could not be opened: " + std::string(cause) + ".");
    };
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0) {
      const int error = errno;
      fail(error == ENOENT || error == ENOTDIR ? "the file is missing"
                                               : std::generic_category().message(error));
    }
    if (!S_ISREG(status.st_mode)) fail("it is not a file");
    // SQLite would take a file that is too short for a page to be a fresh database.
    if (status.st_size < kSmallestPage) fail("it is not a database");
    identity_ = {status.st_dev, status.st_ino};
  }
  Open(mode, vfs);
}

Connection::~Connection() { statements_.clear(); }

void Connection::Open(Database::Mode mode, const std::string& vfs) {
  sqlite3* handle = nullptr;
  // One thread at a time uses a connection, so SQLite need not lock each call.
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX |
                    (mode == Database::Mode::kCreate ? SQLITE_OPEN_CREATE : 0);
  // SQLite would read a name that begins with "file:" as an address.
  const std::filesystem::path path = file_.is_absolute() ? file_ : "." / file_;
  int code = sqlite3_open_v2(path.c_str(), &handle, flags, vfs.empty() ? nullptr : vfs.c_str());
  handle_.reset(handle);
  if (code != SQLITE_OK) Fail(code, "opened");
  if (identity_.number == 0) identity_ = FileIdentity::Of(file_);
  sqlite3_busy_timeout(handle, kBusyMilliseconds);
  code = RegisterTextFunctions(handle);
  if (code == SQLITE_OK) code = sqlite3_exec(handle, kSettings, nullptr, nullptr, nullptr);
  if (code == SQLITE_OK) code = sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  // The first that is read of the file: so it is found out whether this is a database at all.
  const std::string together = "BEGIN;" + std::string(kReadMarks) + ";COMMIT";
  if (code == SQLITE_OK) code = sqlite3_exec(handle, together.c_str(), TakeMark, &marks_, nullptr);
  if (code != SQLITE_OK) Fail(code, "opened");
}

sqlite3_stmt* Connection::PrepareHandle(const std::string& sql, unsigned flags) {
  sqlite3_stmt* handle = nullptr;
  const int code =
      sqlite3_prepare_v3(handle_.get(), sql.data(), static_cast<int>(sql.size()), flags, &handle, nullptr);
  if (code != SQLITE_OK) Fail(code, "read");
  return handle;
}

Statement Connection::Use(const std::string& sql) {
  auto found = statements_.find(sql);
  if (found == statements_.end()) {
    if (statements_.size() >= kMostStatements) {
      std::erase_if(statements_, [](const auto& entry) { return !entry.second.lent; });
    }
    CachedStatement made;
    made.handle.reset(PrepareHandle(sql, SQLITE_PREPARE_PERSISTENT));
    found = statements_.emplace(sql, std::move(made)).first;
  }
  CachedStatement& cached = found->second;
  if (cached.lent) return Prepare(sql);
  return {*this, cached.handle.get(), &cached.lent};
}

Statement Connection::Prepare(const std::string& sql) { return {*this, PrepareHandle(sql, 0), nullptr}; }

void Connection::Change(const char* sql) {
  const int code = sqlite3_exec(handle_.get(), sql, nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) Fail(code, "changed");
}

void Connection::Execute(const std::string& sql) {
  RowsChanged();
  ForgetSchemas();
  Change(sql.c_str());
}

void Connection::Begin() {
  if (depth_ == 0) {
    Change("BEGIN IMMEDIATE");
    ++transaction_;
  }
  ++depth_;
}

void Connection::Commit() {
  if (depth_ > 1) {
    --depth_;
    return;
  }
  try {
    Change("COMMIT");
  } catch (const Fault&) {
    Rollback();
    throw;
  }
  depth_ = 0;
}

Connection::ReadTogether::ReadTogether(Connection& connection) : connection_(connection) {
  if (sqlite3_get_autocommit(connection.handle()) == 0) return;
  connection_.Use("BEGIN").Run();
  open_ = true;
}

Connection::ReadTogether::~ReadTogether() {
  if (open_) sqlite3_exec(connection_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Connection::Rollback() noexcept {
  if (--depth_ > 0) return;
  depth_ = 0;
  undone_.push_back(transaction_);
  ForgetSchemas();
  // SQLite may have rolled back already, by itself.
  if (sqlite3_get_autocommit(handle_.get()) == 0)
    sqlite3_exec(handle_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
  RowsChanged();
}

const FileMarks& Connection::ReadMarks() {
  const int code = sqlite3_exec(handle_.get(), kReadMarks, TakeMark, &marks_, nullptr);
  if (code != SQLITE_OK) Fail(code, "read");
  return marks_;
}

void Connection::NoticeOtherWriters() {
  Statement version = Use("PRAGMA data_version");
  version.Step();
  if (version.Number(0) == data_version_) return;
  data_version_ = version.Number(0);
  RowsChanged();
  ForgetSchemas();
}

std::shared_ptr<const TableSchema> Connection::Schema(std::string_view table) {
  const auto found = schemas_.find(table);
  if (found != schemas_.end()) return found->second;
  auto schema = std::make_shared<const TableSchema>(ReadSchema(*this, table));
  schemas_.emplace(table, schema);
  return schema;
}

// A prepared statement tells the columns that there were when it was prepared.
void Connection::ForgetSchemas() {
  schemas_.clear();
  std::erase_if(statements_, [](const auto& entry) { return !entry.second.lent; });
}

bool Connection::WasUndone(std::int64_t transaction) const {
  return std::find(undone_.begin(), undone_.end(), transaction) != undone_.end();
}

void Connection::StopWriting(std::string cause) {
  write_stop_ = std::move(cause);
  sqlite3_exec(handle_.get(), "PRAGMA query_only=ON", nullptr, nullptr, nullptr);
}

bool Connection::CanBeWritten() const {
  if (!write_stop_.empty() || sqlite3_db_readonly(handle_.get(), "main") != 0) return false;
  // A change needs its journal beside the file.
  const std::string journal = file_.string() + "-journal";
  const std::filesystem::path folder = file_.has_parent_path() ? file_.parent_path() : ".";
  return ::access(journal.c_str(), W_OK) == 0 || ::access(folder.c_str(), W_OK) == 0;
}

void Connection::NoteDamage() {
  damaged_ = true;
  if (!writing_allowed_ && write_stop_.empty()) StopWriting(std::string(kDamaged));
}

void Connection::AllowWriting() {
  if (write_stop_ != kDamaged) return;
  writing_allowed_ = true;
  write_stop_.clear();
  sqlite3_exec(handle_.get(), "PRAGMA query_only=OFF", nullptr, nullptr, nullptr);
}

void Connection::Fail(int code, std::string_view action) {
  const int extended = handle_ ? sqlite3_extended_errcode(handle_.get()) : code;
  last_failure_ = (extended & 0xFF) == (code & 0xFF) ? extended : code;
  FaultCause cause = FindCause(handle_.get(), last_failure_, file_, identity_);
  last_may_stand_ = action == "changed" && cause.may_stand;
  if (cause.damage && action != "opened") NoteDamage();
  const bool stopped = (last_failure_ & 0xFF) == SQLITE_READONLY && !write_stop_.empty();
  if (stopped) cause.text = write_stop_;
  throw Fault(file_.string() + " could not be " + std::string(action) + ": " + cause.text + "." +
              (last_may_stand_ ? " The change may or may not have been saved." : "") +
              std::string(cause.damage || (stopped && damaged_) ? kWhatHelps : ""));
}

void Connection::FailDamaged(std::string_view what) {
  last_failure_ = SQLITE_CORRUPT;
  last_may_stand_ = false;
  NoteDamage();
  throw Fault(file_.string() + " could not be read: " + std::string(kDamaged) + ": " + std::string(what) +
              "." + std::string(kWhatHelps));
}

}  // namespace tarvane
