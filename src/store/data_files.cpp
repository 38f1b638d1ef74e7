#include "store/data_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

#include "store/text_fold.h"
#include "text_number/fault.h"

namespace tarvane {

namespace {

namespace fs = std::filesystem;

// Closes a file on every way out.
class OpenFile {
 public:
  OpenFile(const fs::path& path, int flags, mode_t mode)
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
  const fs::path exact = folder / name;
  std::error_code error;
  if (fs::exists(exact, error)) return exact;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (EqualNames(entry->path().filename().string(), name)) return entry->path();
  }
  return exact;
}

[[noreturn]] void FailWrite(const fs::path& file, int error) {
  throw Fault(file.string() + " could not be written: " + std::generic_category().message(error) + ".");
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
  std::error_code error;
  if (!fs::is_regular_file(file, error)) return std::nullopt;
  std::ifstream stream(file, std::ios::binary);
  if (!stream) return std::nullopt;
  std::string content{std::istreambuf_iterator<char>(stream), {}};
  if (stream.bad()) return std::nullopt;
  return content;
}

void ReplaceFile(const fs::path& file, std::string_view content) {
  fs::path fresh = file;
  fresh += ".new";
  struct stat old {};
  const bool exists = ::stat(file.c_str(), &old) == 0;
  const auto fail = [&] {
    const int error = errno;
    ::unlink(fresh.c_str());
    FailWrite(file, error);
  };
  {
    OpenFile written(fresh, O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (written.handle() < 0) FailWrite(file, errno);
    if (exists && ::fchmod(written.handle(), old.st_mode & 07777) != 0) fail();
    if (!WriteAll(written.handle(), content) || ::fsync(written.handle()) != 0 || !written.Close()) fail();
  }
  if (::rename(fresh.c_str(), file.c_str()) != 0) fail();
  const fs::path parent = file.has_parent_path() ? file.parent_path() : fs::path(".");
  const OpenFile folder(parent, O_RDONLY | O_DIRECTORY, 0);
  // The new content stands; only a loss of power could bring the old one back.
  if (folder.handle() >= 0) ::fsync(folder.handle());
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
