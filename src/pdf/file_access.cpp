#include "pdf/file_access.h"

#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <fstream>

namespace tarvane::pdf {
namespace {

int64_t Nanoseconds(const timespec& time) { return int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec; }

}  // namespace

std::filesystem::path ToPath(const std::string& utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string PathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

std::vector<std::filesystem::path> FilesOf(const std::string& folder) {
  std::vector<std::filesystem::path> files;
  std::error_code error;
  std::filesystem::directory_iterator entry(ToPath(folder), error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    std::error_code unreadable;
    if (entry->is_regular_file(unreadable)) files.push_back(entry->path());
  }
  return files;
}

bool ReadWhole(const std::filesystem::path& path, std::string& bytes) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return false;
  const auto size = std::filesystem::file_size(path, error);
  std::ifstream file(path, std::ios::binary);
  if (error || !file) return false;
  bytes.resize(size);
  file.read(bytes.data(), static_cast<std::streamsize>(size));
  bytes.resize(static_cast<size_t>(file.gcount()));
  return true;
}

bool StampOf(const std::filesystem::path& path, FileStamp& stamp) {
  struct stat status;
  if (stat(path.c_str(), &status) != 0) return false;
  stamp = {static_cast<int64_t>(status.st_dev), static_cast<int64_t>(status.st_ino), int64_t{status.st_size},
           Nanoseconds(status.st_mtim), Nanoseconds(status.st_ctim)};
  return true;
}

bool OldEnough(const FileStamp& stamp) {
  static constexpr std::chrono::seconds kCoarsest{3};
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return now - std::chrono::nanoseconds(std::max(stamp.modified, stamp.changed)) >= kCoarsest;
}

}  // namespace tarvane::pdf
