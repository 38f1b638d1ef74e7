#include "printing/page_files.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane::printing {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kBegin = "PPview";
constexpr std::string_view kEnd = ".bmp";

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsPageName(std::string_view name) {
  if (!name.starts_with(kBegin) || !name.ends_with(kEnd)) return false;
  if (name.size() <= kBegin.size() + kEnd.size()) return false;
  return std::ranges::all_of(name.substr(kBegin.size(), name.size() - kBegin.size() - kEnd.size()), IsDigit);
}

}  // namespace

fs::path PageFolder() {
  if (const char* named = std::getenv("TEMP"); named != nullptr && *named != '\0') return named;
  std::error_code none;
  return fs::temp_directory_path(none);
}

fs::path PageFile(const fs::path& folder, int page) {
  return folder / (std::string(kBegin) + std::to_string(page) + std::string(kEnd));
}

void RemovePageFiles(const fs::path& folder) {
  std::error_code error;
  std::vector<fs::path> found;
  for (fs::directory_iterator each(folder, error), end; !error && each != end; each.increment(error)) {
    if (IsPageName(each->path().filename().string())) found.push_back(each->path());
  }
  for (const fs::path& file : found) {
    if (!fs::is_directory(fs::symlink_status(file, error))) fs::remove(file, error);
  }
}

bool IsPageFile(const fs::path& file) {
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return false;
  const std::uintmax_t size = fs::file_size(file, error);
  std::array<char, 6> head{};
  std::ifstream in(file, std::ios::binary);
  if (error || !in.read(head.data(), head.size()) || head[0] != 'B' || head[1] != 'M') return false;
  std::uintmax_t told = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    told += static_cast<std::uintmax_t>(static_cast<unsigned char>(head[i + 2])) << (8 * i);
  }
  return told == size;
}

}  // namespace tarvane::printing
