#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tarvane::listing {

// A file that is written beside the one whose place it takes, under another name. Until Keep the former file
// stands; what isn't kept is gone. Every function faults with the file and the cause.
class FreshFile {
 public:
  // A link is followed. What is there and is no plain file is never replaced.
  explicit FreshFile(const std::filesystem::path& file);
  ~FreshFile();
  FreshFile(const FreshFile&) = delete;
  FreshFile& operator=(const FreshFile&) = delete;

  // Where it is written. May be opened and written through that name, too.
  const std::filesystem::path& path() const { return path_; }
  void Write(std::string_view bytes);
  // Flushed to the disk and put into its place. A file that was there leaves its rights to the new one.
  void Keep();

  // Throws what tells that `file` could not be written, and why.
  [[noreturn]] static void Fail(const std::filesystem::path& file, int error, std::string_view where = "");

 private:
  std::filesystem::path target_;
  std::filesystem::path path_;
  int handle_ = -1;
};

}  // namespace tarvane::listing
