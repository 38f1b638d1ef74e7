#include "store/database.h"

#include "store/connection.h"
#include "store/file_version.h"
#include "text/fault.h"

namespace tarvane {

namespace {

// What a crash may have done to the file beyond what the journal undoes; "" where nothing.
std::string CheckAfterCrash(Connection& connection) {
  if (!connection.was_left_unfinished()) return "";
  try {
    Statement check = connection.Prepare("PRAGMA quick_check(1)");
    if (!check.Step() || check.Text(0) == "ok") return "";
    connection.FailDamaged(check.Text(0));
  } catch (const Fault& fault) {
    if (!connection.damaged()) throw;
    return fault.what();
  }
}

}  // namespace

Database::State::State(const std::filesystem::path& path, Mode mode, const std::string& vfs)
    : connection(path, mode, vfs), notice(CheckAfterCrash(connection)) {
  if (notice.empty()) notice = BringUp(connection);
}

Database::Database(const std::filesystem::path& file, Mode mode, const std::string& vfs)
    : state_(std::make_unique<State>(file, mode, vfs)) {}

Database::~Database() = default;
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;

const std::filesystem::path& Database::file() const { return state_->connection.file(); }

const std::string& Database::notice() const { return state_->notice; }
bool Database::damaged() const { return state_->connection.damaged(); }
bool Database::CanBeWritten() const { return state_->connection.CanBeWritten(); }
void Database::AllowWriting() { state_->connection.AllowWriting(); }

void Database::Execute(std::string_view sql) { state_->connection.Execute(std::string(sql)); }

bool Database::HasTable(std::string_view table) const {
  Statement find =
      state_->connection.Use("SELECT 1 FROM sqlite_schema WHERE type = 'table' AND name = ?1 COLLATE NOCASE");
  return find.Bind(1, table).Step();
}

Database::Transaction::Transaction(Database& database) : database_(database) {
  database_.state_->connection.Begin();
}

Database::Transaction::~Transaction() {
  if (open_) database_.state_->connection.Rollback();
}

void Database::Transaction::Commit() {
  open_ = false;
  database_.state_->connection.Commit();
}

}  // namespace tarvane
