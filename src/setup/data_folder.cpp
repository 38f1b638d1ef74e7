#include "setup/data_folder.h"

#include <fmt/format.h>

#include <utility>

#include "store/data_files.h"
#include "text/fault.h"

namespace tarvane::setup {

std::filesystem::path FindDataFolder() {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  fs::path installed = program.parent_path().parent_path() / "share" / "tarvane";
  if (!program.empty() && fs::is_directory(installed, error)) return installed;
  return TARVANE_SOURCE_DATA_DIR;
}

std::string ReadDataFile(const std::filesystem::path& file) {
  auto content = ReadFile(file);
  if (!content) throw Fault(fmt::format("Cannot read {}: the data folder isn't complete.", file.string()));
  return *std::move(content);
}

}  // namespace tarvane::setup
