#include "listing/fresh_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>

#include "text/fault.h"

namespace tarvane::listing {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kOwnerAndGroup = 0660;

}  // namespace

void FreshFile::Fail(const fs::path& file, int error, std::string_view where) {
  const std::string cause = error == 0 ? "it came out cut short" : std::generic_category().message(error);
  const std::string place = where.empty() ? "" : " in " + std::string(where);
  throw Fault(file.string() + " could not be written: " + cause + place + ".");
}

FreshFile::FreshFile(const fs::path& file) : target_(file) {
  std::error_code error;
  if (fs::is_symlink(file, error)) {
    target_ = fs::weakly_canonical(file, error);
    if (error) Fail(file, error.value());
  }
  const fs::file_status there = fs::status(target_, error);
  if (fs::exists(there) && !fs::is_regular_file(there)) {
    throw Fault(file.string() + " could not be written: it is not a file.");
  }
  std::string name = (target_.parent_path() / ".tarvane-XXXXXX").string();
  handle_ = ::mkostemp(name.data(), O_CLOEXEC);
  if (handle_ < 0) Fail(file, errno);
  path_ = name;
}

FreshFile::~FreshFile() {
  if (handle_ < 0) return;
  ::close(handle_);
  ::unlink(path_.c_str());
}

void FreshFile::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(handle_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) Fail(target_, errno);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void FreshFile::Keep() {
  struct stat former {};
  const mode_t rights = ::stat(target_.c_str(), &former) == 0 ? former.st_mode & 0777 : kOwnerAndGroup;
  // A disk that knows no rights (a stick) isn't worth a fault.
  if (::fchmod(handle_, rights) != 0 && errno != EPERM && errno != ENOTSUP) Fail(target_, errno);
  if (::fsync(handle_) != 0 || ::rename(path_.c_str(), target_.c_str()) != 0) Fail(target_, errno);
  ::close(handle_);
  handle_ = -1;
}

}  // namespace tarvane::listing
