#include "shop/shop_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <thread>
#include <utility>

namespace tarvane {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPause{50};

}  // namespace

std::optional<ShopLock> ShopLock::Take(const std::filesystem::path& folder, std::chrono::milliseconds wait) {
  // Not passed on to a program that is started from this one: it would keep the folder beyond the end.
  ShopLock lock(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!lock.holds()) return lock;
  const Clock::time_point end = Clock::now() + wait;
  while (::flock(lock.handle_, LOCK_EX | LOCK_NB) != 0) {
    if (errno == EINTR) continue;
    if (errno != EWOULDBLOCK) return ShopLock(-1);
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    if (left.count() <= 0) return std::nullopt;
    std::this_thread::sleep_for(std::min(left, kPause));
  }
  return lock;
}

ShopLock::ShopLock(ShopLock&& other) noexcept : handle_(std::exchange(other.handle_, -1)) {}

ShopLock& ShopLock::operator=(ShopLock&& other) noexcept {
  std::swap(handle_, other.handle_);
  return *this;
}

ShopLock::~ShopLock() {
  if (handle_ >= 0) ::close(handle_);
}

std::string ShopIsOpenText(const std::filesystem::path& folder) {
  return "The shop in " + folder.string() + " is open in another program. Close it there first.";
}

}  // namespace tarvane
