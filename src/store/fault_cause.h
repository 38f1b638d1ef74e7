#pragma once

#include <sqlite3.h>
#include <sys/types.h>

#include <filesystem>
#include <string>

namespace tarvane {

// Which file stands under a name; a file that is moved, removed or replaced leaves another identity, or none.
struct FileIdentity {
  dev_t device = 0;
  ino_t number = 0;  // 0: there is no file

  static FileIdentity Of(const std::filesystem::path& file);
  bool operator==(const FileIdentity&) const = default;
};

// Why SQLite gave a code, in words a user understands.
struct FaultCause {
  std::string text;
  bool damage = false;     // the file's content is at fault
  bool may_stand = false;  // where a change failed: behind its last write, so that it may stand all the same
};

// `code`: extended. `opened`: the identity of the file when it was opened. `handle` may be null.
FaultCause FindCause(sqlite3* handle, int code, const std::filesystem::path& file,
                     const FileIdentity& opened);

}  // namespace tarvane
