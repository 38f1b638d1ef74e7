#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

// Reading from disk, without faults. Texts that are paths are UTF-8.
namespace tarvane::pdf {

// What tells one state of a file on disk from another. Times are nanoseconds since 1970.
struct FileStamp {
  int64_t device = 0;
  int64_t node = 0;
  int64_t size = 0;
  int64_t modified = 0;
  int64_t changed = 0;
  bool operator==(const FileStamp&) const = default;
};

std::filesystem::path ToPath(const std::string& utf8);
std::string PathText(const std::filesystem::path& path);

// The plain files of a folder, in no order; none for a folder that can't be read.
std::vector<std::filesystem::path> FilesOf(const std::string& folder);
// The whole file; false where it can't be read.
bool ReadWhole(const std::filesystem::path& path, std::string& bytes);
// False where there is no such file.
bool StampOf(const std::filesystem::path& path, FileStamp& stamp);
// True once any further change of the file gives it another stamp. The clock of a file system is coarse: two
// changes shortly behind one another may bear the same time.
bool OldEnough(const FileStamp& stamp);

}  // namespace tarvane::pdf
