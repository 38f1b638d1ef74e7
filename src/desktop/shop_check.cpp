#include "desktop/shop_check.h"

#include <unistd.h>

#include <system_error>

#include "text/fault.h"

namespace tarvane::desktop {
namespace {

constexpr const char* kOtherPlace =
    "It may have been moved or renamed, or lie on a drive that isn't connected. Press \"Choose another "
    "folder\" to go to the shop's folder, or \"Try again\" once the drive is there.";
constexpr const char* kRights =
    "Ask whoever looks after this computer for the right to use it, then press \"Try again\".";
constexpr const char* kRestore =
    "Nothing was changed. Close other programs that use the file and press \"Try again\". If that doesn't "
    "help, put the last backup of the file in its place, or press \"Choose another folder\".";

std::optional<ShopTrouble> FolderTrouble(const std::filesystem::path& folder) {
  const std::string name = folder.string();
  std::error_code error;
  const auto status = std::filesystem::status(folder, error);
  if (status.type() == std::filesystem::file_type::none) {
    return ShopTrouble{"The folder can't be opened.", name + ": " + error.message() + ".", kRights};
  }
  if (status.type() == std::filesystem::file_type::not_found) {
    return ShopTrouble{"The shop's folder isn't there.", "There is no folder " + name + ".", kOtherPlace};
  }
  if (!std::filesystem::is_directory(status)) {
    return ShopTrouble{"This is no folder.", name + " is a file.",
                       "Press \"Choose another folder\" and go to the folder that the shop lies in."};
  }
  if (access(folder.c_str(), R_OK | X_OK) == 0) return std::nullopt;
  return ShopTrouble{"The shop's folder may not be read.", "The right to read " + name + " is missing.",
                     kRights};
}

}  // namespace

std::optional<ShopTrouble> FindTrouble(Shop& shop) {
  if (auto trouble = FolderTrouble(shop.folder())) return trouble;
  const std::filesystem::path file = shop.File(data_file::kJobs);
  std::error_code error;
  if (!std::filesystem::exists(file, error)) {
    return ShopTrouble{
        "This folder is no shop.", "There is no " + file.string() + ".",
        "Press \"Choose another folder\" to go to the shop's folder, or lay a shop down in this "
        "one with tarvane-setup and press \"Try again\"."};
  }
  if (access(file.c_str(), R_OK) != 0) {
    return ShopTrouble{"The shop's jobs may not be read.",
                       "The right to read " + file.string() + " is missing.", kRights};
  }
  try {
    if (shop.database().HasTable(kJobTable)) return std::nullopt;
    return ShopTrouble{"The shop's jobs can't be opened.", file.string() + " holds no jobs.", kRestore};
  } catch (const Fault& fault) {
    return ShopTrouble{"The shop's jobs can't be opened.", fault.what(), kRestore};
  }
}

std::string WhyOnlyReading(const Shop& shop) {
  const std::filesystem::path file = shop.File(data_file::kJobs);
  for (const std::filesystem::path& path : {file, file.parent_path()}) {
    if (access(path.c_str(), W_OK) == 0) continue;
    return "This shop can be looked at but not changed: " + path.string() +
           " may only be read. What you type can't be saved.";
  }
  return {};
}

}  // namespace tarvane::desktop
