#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>

namespace tarvane {

// Keeps a program folder to one program for as long as it lives. Nothing is written: the lock is the system's
// own, on the folder itself, and is gone with the process however that ends.
class ShopLock {
 public:
  // Nothing where another program still has the folder after `wait`. Where the folder can't be locked (it
  // isn't there, may not be read, or its file system knows no locks) the lock that comes back holds nothing:
  // the program goes on without.
  static std::optional<ShopLock> Take(const std::filesystem::path& folder,
                                      std::chrono::milliseconds wait = std::chrono::milliseconds(0));

  ShopLock(ShopLock&& other) noexcept;
  ShopLock& operator=(ShopLock&& other) noexcept;
  ~ShopLock();

  // True where no other program can take the folder now.
  bool holds() const { return handle_ >= 0; }

 private:
  explicit ShopLock(int handle) : handle_(handle) {}

  int handle_;  // of the folder; -1: holds nothing
};

// What a program says that didn't get the folder.
std::string ShopIsOpenText(const std::filesystem::path& folder);

}  // namespace tarvane
