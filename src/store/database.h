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
  // (kExisting), can't be opened, is no database, or is of a newer version of the program. A file that may
  // only be read is opened so; writes fault. One of an older version is brought up first (notice).
  explicit Database(const std::filesystem::path& file, Mode mode = Mode::kExisting,
                    const std::string& vfs = "");
  ~Database();
  Database(Database&&) noexcept;
  Database& operator=(Database&&) noexcept;

  const std::filesystem::path& file() const;

  // What was done or found at the opening that the worker is to be told: the file was brought up from an
  // older version (and where its copy is), can only be read, or is damaged. Most often "".
  const std::string& notice() const;

  // Damage was seen, at the opening behind a crash or by any step since. From then on every change faults,
  // and tells what helps, until the worker wants to go on writing all the same.
  bool damaged() const;
  void AllowWriting();

  // False where every change would fault, as far as that can be told beforehand: file or folder may only be
  // read, or damage was seen.
  bool CanBeWritten() const;

  // Statements of the project itself (table definitions); never text that came from a user.
  void Execute(std::string_view sql);
  bool HasTable(std::string_view table) const;

  // What belongs together: all commits between construction and Commit become one. Destruction without
  // Commit rolls back. May nest; the outermost counts. In one that came to nothing a row set takes the row
  // that it wrote last back into its edit buffer; its earlier ones are lost, and Resync drops what it took
  // back.
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
