#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace tarvane {

// The yardstick: what the store does, written straight against SQLite's C interface, on the same file with
// the same settings (journal mode, synchronous, cache, no locking of each call).
class ByHand {
 public:
  explicit ByHand(const std::filesystem::path& file);

  std::vector<std::string> FirstRow();
  std::vector<std::vector<std::string>> FirstRows(const std::string& prefix, const std::string& behind,
                                                  int most);
  std::vector<std::int64_t> Keys(const std::string& prefix, const std::string& behind);
  std::int64_t Count();
  void Save(std::int64_t key, const std::string& text);

 private:
  struct Close {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
  };
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  using Prepared = std::unique_ptr<sqlite3_stmt, Finalize>;

  Prepared Prepare(const char* sql) const;
  static std::vector<std::string> Row(sqlite3_stmt* statement);

  std::unique_ptr<sqlite3, Close> handle_;
  Prepared update_;
};

}  // namespace tarvane
