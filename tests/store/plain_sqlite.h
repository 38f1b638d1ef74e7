#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <memory>
#include <string>

namespace tarvane {

// SQLite as any other program uses it: nothing of this one's is known to it.
class PlainSqlite {
 public:
  explicit PlainSqlite(const std::filesystem::path& file) {
    sqlite3* handle = nullptr;
    sqlite3_open(file.c_str(), &handle);
    handle_.reset(handle);
  }

  // The values of all rows, with a bar behind each; SQLite's message where it fails.
  std::string Run(const std::string& sql) {
    std::string text;
    const auto row = [](void* into, int columns, char** values, char**) {
      for (int i = 0; i < columns; ++i)
        *static_cast<std::string*>(into) += (values[i] ? values[i] : "") + std::string("|");
      return 0;
    };
    const int code = sqlite3_exec(handle_.get(), sql.c_str(), row, &text, nullptr);
    return code == SQLITE_OK ? text : sqlite3_errmsg(handle_.get());
  }

 private:
  struct Close {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
  };
  std::unique_ptr<sqlite3, Close> handle_;
};

}  // namespace tarvane
