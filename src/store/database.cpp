#include "store/database.h"

#include "store/connection.h"

namespace tarvane {

Database::Database(const std::filesystem::path& file, Mode mode, const std::string& vfs)
    : state_(std::make_unique<State>(file, mode, vfs)) {}

Database::~Database() = default;
Database::Database(Database&&) noexcept = default;
Database& Database::operator=(Database&&) noexcept = default;

const std::filesystem::path& Database::file() const { return state_->connection.file(); }

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
