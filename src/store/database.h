#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace tarvane {

// One database file, opened for reading and writing. Commits are durable when they return (truncated rollback
// journal, full synchronous). Faults tell the file and the cause in words a user understands (missing, not a
// database, read-only, disk full, in use by another program, damaged).
class Database {
 public:
  enum class Mode { kExisting, kCreate };

  // `vfs`: name of a registered SQLite VFS, "" for the platform's. Faults where the file is missing
  // (kExisting), can't be opened, or is no database. A file that may only be read is opened so; writes fault.
  explicit Database(const std::filesystem::path& file, Mode mode = Mode::kExisting,
                    const std::string& vfs = "");
  ~Database();
  Database(Database&&) noexcept;
  Database& operator=(Database&&) noexcept;

  const std::filesystem::path& file() const;

  // Statements of the project itself (table definitions); never text that came from a user.
  void Execute(std::string_view sql);
  bool HasTable(std::string_view table) const;

  // What belongs together: all commits between construction and Commit become one. Destruction without
  // Commit rolls back. May nest; the outermost counts. Row sets that have written in one that came to nothing
  // are to be resynced: they take their values for stored.
  class Transaction {
   public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void Commit();

   private:
    Database& database_;
    bool open_ = true;
  };

 private:
  friend class RowSet;
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace tarvane
