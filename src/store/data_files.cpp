#include "store/data_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "text/fault.h"
#include "text/fold.h"

namespace tarvane {

namespace {

namespace fs = std::filesystem;

// Closes a file on every way out.
class OpenFile {
 public:
  OpenFile(const fs::path& path, int flags, mode_t mode = 0)
      : handle_(::open(path.c_str(), flags | O_CLOEXEC, mode)) {}
  ~OpenFile() {
    if (handle_ >= 0) ::close(handle_);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  int handle() const { return handle_; }
  bool Close() { return ::close(std::exchange(handle_, -1)) == 0; }

 private:
  int handle_;
};

constexpr mode_t kOwnerAndGroup = 0660;
constexpr int kMostLinks = 40;

std::string Cause(int error) { return std::generic_category().message(error); }

[[noreturn]] void Fail(const fs::path& file, std::string_view action, const std::string& cause) {
  throw Fault(file.string() + " could not be " + std::string(action) + ": " + cause + ".");
}

bool IsMissing(int error) { return error == ENOENT || error == ENOTDIR; }

// Opens a file that is there for reading, and tells its rights. False where it isn't there.
bool IsThere(const OpenFile& file, const fs::path& path, std::string_view action, mode_t& rights) {
  if (file.handle() < 0 && IsMissing(errno)) return false;
  struct stat status {};
  if (file.handle() < 0 || ::fstat(file.handle(), &status) != 0) Fail(path, action, Cause(errno));
  if (!S_ISREG(status.st_mode)) Fail(path, action, "it is not a file");
  rights = status.st_mode & 0777;
  return true;
}

// Without waiting for the other end of what is no file.
constexpr int kLook = O_RDONLY | O_NONBLOCK;

bool WriteAll(int handle, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = ::write(handle, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

fs::path MatchEntry(const fs::path& folder, std::string_view name) {
  fs::path exact = folder / name;
  std::error_code error;
  if (fs::exists(exact, error)) return exact;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (EqualNames(entry->path().filename().string(), name)) return entry->path();
  }
  return exact;
}

// The file that a link stands for, which need not be there yet.
fs::path FollowLinks(const fs::path& file) {
  fs::path target = file;
  for (int links = 0; links < kMostLinks; ++links) {
    std::error_code error;
    const fs::path next = fs::read_symlink(target, error);
    if (error) return target;
    target = target.parent_path() / next;
  }
  Fail(file, "written", Cause(ELOOP));
}

// The rights of the file that stands there now; nothing where there is none.
std::optional<mode_t> RightsOf(const fs::path& file) {
  const OpenFile old(file, kLook);
  mode_t rights = 0;
  if (!IsThere(old, file, "written", rights)) return std::nullopt;
  return rights;
}

void SyncFolder(const fs::path& file) {
  const fs::path parent = file.has_parent_path() ? file.parent_path() : fs::path(".");
  const OpenFile folder(parent, O_RDONLY | O_DIRECTORY);
  // The new content stands; only a loss of power could bring the old one back.
  if (folder.handle() >= 0) ::fsync(folder.handle());
}

}  // namespace

fs::path FindFile(const fs::path& folder, std::string_view name) {
  fs::path found = folder;
  for (std::size_t at = 0; at <= name.size();) {
    const std::size_t end = std::min(name.find('/', at), name.size());
    if (end > at) found = MatchEntry(found, name.substr(at, end - at));
    at = end + 1;
  }
  return found;
}

std::optional<std::string> ReadFile(const fs::path& file) {
  constexpr std::string_view kAction = "read";
  const OpenFile opened(file, kLook);
  mode_t rights = 0;
  if (!IsThere(opened, file, kAction, rights)) return std::nullopt;
  std::string content;
  std::array<char, 16384> part{};
  while (true) {
    const ssize_t size = ::read(opened.handle(), part.data(), part.size());
    if (size == 0) return content;
    if (size > 0) content.append(part.data(), static_cast<std::size_t>(size));
    if (size < 0 && errno != EINTR) Fail(file, kAction, Cause(errno));
  }
}

void ReplaceFile(const fs::path& file, std::string_view content) {
  const fs::path target = FollowLinks(file);
  const std::optional<mode_t> rights = RightsOf(target);
  fs::path fresh = target;
  fresh += ".new";
  // What a killed run left there, or a link that somebody put there: never written through.
  ::unlink(fresh.c_str());
  OpenFile written(fresh, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, kOwnerAndGroup);
  if (written.handle() < 0) Fail(file, "written", Cause(errno));
  const bool done = (!rights || ::fchmod(written.handle(), *rights) == 0) &&
                    WriteAll(written.handle(), content) && ::fsync(written.handle()) == 0 &&
                    written.Close() && ::rename(fresh.c_str(), target.c_str()) == 0;
  if (!done) {
    const int error = errno;
    ::unlink(fresh.c_str());
    Fail(file, "written", Cause(error));
  }
  SyncFolder(target);
}

std::vector<std::string> SplitLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.emplace_back(line);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::string JoinLines(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

std::vector<std::string> ReadSequentialValues(std::string_view text, std::size_t most) {
  std::vector<std::string> values;
  std::size_t at = 0;
  bool more = !text.empty();
  while (more && values.size() < most) {
    at = std::min(text.find_first_not_of(" \t", at), text.size());
    std::string value;
    std::size_t end = 0;
    if (at < text.size() && text[at] == '"') {
      const std::size_t close = std::min(text.find('"', at + 1), text.size());
      value = text.substr(at + 1, close - at - 1);
      end = text.find_first_of(",\r\n", std::min(close + 1, text.size()));
    } else {
      end = text.find_first_of(",\r\n", at);
      value = text.substr(at, std::min(end, text.size()) - at);
      value.erase(value.find_last_not_of(" \t") + 1);
    }
    values.push_back(std::move(value));
    end = std::min(end, text.size());
    const bool comma = end < text.size() && text[end] == ',';
    at = std::min(end + (text.substr(end, 2) == "\r\n" ? 2 : 1), text.size());
    // Behind a comma a value follows, an empty one too; behind a line end only where there is text.
    more = comma || at < text.size();
  }
  return values;
}

}  // namespace tarvane
