#include "store/connection.h"

#include <cerrno>
#include <system_error>

#include "store/like_pattern.h"
#include "store/text_fold.h"
#include "text_number/fault.h"

namespace tarvane {

namespace {

constexpr int kBusyMilliseconds = 2000;
constexpr std::size_t kMostStatements = 64;
constexpr std::uintmax_t kSmallestPage = 512;

// Full synchronous with a truncated journal: a commit is on the disk when it returns.
constexpr const char* kSettings =
    "PRAGMA journal_mode=TRUNCATE;"
    "PRAGMA synchronous=FULL;"
    "PRAGMA trusted_schema=OFF;"
    "PRAGMA cache_size=-1024;";

struct Cause {
  int code;
  std::string_view text;
};

// Extended codes first: the first line that fits is told.
constexpr Cause kCauses[] = {
    {SQLITE_READONLY_ROLLBACK, "an unfinished change has to be undone first, and the file is read-only"},
    {SQLITE_READONLY, "the file or its folder is read-only"},
    {SQLITE_FULL, "the disk is full"},
    {SQLITE_BUSY, "it is in use by another program"},
    {SQLITE_LOCKED, "it is in use by another program"},
    {SQLITE_NOTADB, "it is not a database"},
    {SQLITE_CORRUPT, "the file is damaged"},
    {SQLITE_IOERR_NOMEM, "there is not enough memory"},
    {SQLITE_NOMEM, "there is not enough memory"},
    {SQLITE_IOERR, "the disk reported an error"},
    {SQLITE_CANTOPEN, "the file, or its journal beside it, can't be opened"},
    {SQLITE_TOOBIG, "the text is too long"},
};

// Where the system's own number says more than SQLite's code.
constexpr Cause kSystemCauses[] = {
    {ENOSPC, "the disk is full"},
    {EDQUOT, "the disk is full"},
    {EACCES, "the right to use the file is missing"},
    {EPERM, "the right to use the file is missing"},
    {EROFS, "the disk is read-only"},
    {EBADF, "the file's journal is read-only"},
};

int CompareTexts(void*, int left_size, const void* left, int right_size, const void* right) {
  const auto order = CompareFolded({static_cast<const char*>(left), static_cast<std::size_t>(left_size)},
                                   {static_cast<const char*>(right), static_cast<std::size_t>(right_size)});
  return order < 0 ? -1 : (order > 0 ? 1 : 0);
}

std::string_view ValueText(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  if (text == nullptr) return {};
  return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

// The pattern is read once a statement, not once a row.
void LikeInSql(sqlite3_context* context, int, sqlite3_value** values) {
  auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 1));
  if (pattern == nullptr) {
    auto made = std::make_unique<LikePattern>(ValueText(values[1]));
    sqlite3_result_int(context, made->Matches(ValueText(values[0])) ? 1 : 0);
    sqlite3_set_auxdata(context, 1, made.release(),
                        [](void* old) { std::unique_ptr<LikePattern>(static_cast<LikePattern*>(old)); });
    return;
  }
  sqlite3_result_int(context, pattern->Matches(ValueText(values[0])) ? 1 : 0);
}

}  // namespace

std::string QuotedName(std::string_view name) {
  std::string quoted = "\"";
  for (const char c : name) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + '"';
}

int RegisterTextFunctions(sqlite3* handle) {
  const int code = sqlite3_create_collation_v2(handle, kFoldedCollation.data(), SQLITE_UTF8, nullptr,
                                               CompareTexts, nullptr);
  if (code != SQLITE_OK) return code;
  return sqlite3_create_function_v2(handle, kLikeFunction.data(), 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                    nullptr, LikeInSql, nullptr, nullptr, nullptr);
}

Connection::Connection(const std::filesystem::path& file, Database::Mode mode, const std::string& vfs)
    : file_(file) {
  if (mode == Database::Mode::kExisting) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    const auto fail = [&](std::string_view cause) {
      throw Fault(file_.string() + " could not be opened: " + std::string(cause) + ".");
    };
    if (!std::filesystem::exists(status)) {
      fail(error && error != std::errc::no_such_file_or_directory && error != std::errc::not_a_directory
               ? error.message()
               : "the file is missing");
    }
    if (!std::filesystem::is_regular_file(status)) fail("it is not a file");
    // SQLite would take a file that is too short for a page to be a fresh database.
    const auto size = std::filesystem::file_size(file, error);
    if (!error && size < kSmallestPage) fail("it is not a database");
  }
  Open(mode, vfs);
}

Connection::~Connection() { statements_.clear(); }

void Connection::Open(Database::Mode mode, const std::string& vfs) {
  sqlite3* handle = nullptr;
  // One thread at a time uses a connection, so SQLite need not lock each call.
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_EXRESCODE | SQLITE_OPEN_NOMUTEX |
                    (mode == Database::Mode::kCreate ? SQLITE_OPEN_CREATE : 0);
  int code = sqlite3_open_v2(file_.c_str(), &handle, flags, vfs.empty() ? nullptr : vfs.c_str());
  handle_.reset(handle);
  if (code != SQLITE_OK) Fail(code, "opened");
  sqlite3_busy_timeout(handle, kBusyMilliseconds);
  code = RegisterTextFunctions(handle);
  if (code == SQLITE_OK) code = sqlite3_exec(handle, kSettings, nullptr, nullptr, nullptr);
  // Reads the schema, and with it finds out whether this is a database at all.
  if (code == SQLITE_OK)
    code = sqlite3_exec(handle, "SELECT 1 FROM sqlite_schema LIMIT 1", nullptr, nullptr, nullptr);
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
  Change(sql.c_str());
}

void Connection::Begin() {
  if (depth_ == 0) Change("BEGIN IMMEDIATE");
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
  // SQLite may have rolled back already, by itself.
  if (sqlite3_get_autocommit(handle_.get()) == 0)
    sqlite3_exec(handle_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
  RowsChanged();
}

void Connection::NoticeOtherWriters() {
  Statement version = Use("PRAGMA data_version");
  version.Step();
  if (version.Number(0) != data_version_) RowsChanged();
  data_version_ = version.Number(0);
}

void Connection::Fail(int code, std::string_view action) const {
  const int extended = handle_ ? sqlite3_extended_errcode(handle_.get()) : code;
  const int told = (extended & 0xFF) == (code & 0xFF) ? extended : code;
  std::string cause = handle_ ? sqlite3_errmsg(handle_.get()) : sqlite3_errstr(code);
  for (const Cause& known : kCauses) {
    if (told == known.code || (told & 0xFF) == known.code) {
      cause = known.text;
      break;
    }
  }
  const int system = handle_ ? sqlite3_system_errno(handle_.get()) : 0;
  const bool by_system = (told & 0xFF) == SQLITE_IOERR || (told & 0xFF) == SQLITE_CANTOPEN;
  for (const Cause& known : kSystemCauses) {
    if (by_system && system == known.code) cause = known.text;
  }
  // A commit that fails behind its last write may stand all the same.
  const bool unsure = action == "changed" && (told == SQLITE_IOERR_FSYNC || told == SQLITE_IOERR_TRUNCATE ||
                                              told == SQLITE_IOERR_DIR_FSYNC || told == SQLITE_IOERR_DELETE);
  throw Fault(file_.string() + " could not be " + std::string(action) + ": " + cause + "." +
              (unsure ? " The change may or may not have been saved." : ""));
}

}  // namespace tarvane
