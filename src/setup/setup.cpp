#include "setup/setup.h"

#include <fmt/format.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>
#include <vector>

#include "setup/piece.h"
#include "setup/sample_shop.h"
#include "shop/shop_lock.h"
#include "store/data_files.h"
#include "text/fault.h"

namespace tarvane::setup {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSampleName = "sample shop";

[[noreturn]] void ThrowFault(std::string_view what, const fs::path& path, const std::error_code& error) {
  throw Fault(fmt::format("{} {}: {}.", what, path.string(), error.message()));
}

// Makes the folder and its parents, for owner and group; true where it wasn't there.
bool MakeFolder(const fs::path& folder) {
  constexpr mode_t kOwnerAndGroup = 0770;
  std::error_code error;
  if (fs::is_directory(folder, error)) return false;
  if (folder.has_parent_path()) MakeFolder(folder.parent_path());
  if (folder.has_filename() && ::mkdir(folder.c_str(), kOwnerAndGroup) != 0 && !fs::is_directory(folder)) {
    const int cause = errno == EEXIST ? ENOTDIR : errno;
    ThrowFault("Cannot create the folder", folder, {cause, std::generic_category()});
  }
  return true;
}

constexpr std::string_view kStagingName = ".tarvane-setup-";

// A folder of its own inside the program folder, so that what is made in it can be moved by a rename. It
// goes, with all that is still in it, at the end.
class StagingFolder {
 public:
  explicit StagingFolder(const fs::path& folder) {
    std::string name = (folder / fmt::format("{}XXXXXX", kStagingName)).string();
    if (mkdtemp(name.data()) == nullptr) {
      ThrowFault("Cannot write into the folder", folder, {errno, std::generic_category()});
    }
    path_ = name;
  }
  ~StagingFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  StagingFolder(const StagingFolder&) = delete;
  StagingFolder& operator=(const StagingFolder&) = delete;
  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

// Those of runs that were killed. Only for one who has the folder alone.
void RemoveStagingFolders(const fs::path& folder) {
  std::vector<fs::path> left;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (entry->path().filename().string().starts_with(kStagingName)) left.push_back(entry->path());
  }
  for (const fs::path& path : left) fs::remove_all(path, error);
}

bool IsThere(const fs::path& folder, std::string_view name) {
  const fs::path file = FindFile(folder, name);
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (fs::is_directory(status))
    throw Fault(fmt::format("{} is a folder; a file should be there.", file.string()));
  if (status.type() == fs::file_type::none) ThrowFault("Cannot look at", file, error);
  return fs::exists(fs::symlink_status(file, error));
}

// A fresh database would get the changes that its lost namesake hadn't finished.
void RequireNoJournal(const fs::path& folder, const LaidDownPiece& piece) {
  for (const std::string_view end : {"-journal", "-wal"}) {
    const fs::path journal = FindFile(folder, fmt::format("{}{}", piece.name, end));
    std::error_code error;
    if (!fs::exists(journal, error) || (fs::is_regular_file(journal) && fs::file_size(journal) == 0))
      continue;
    throw Fault(fmt::format(
        "{0} holds unfinished changes of the {1} that was here; a new {1} would take them for its own. If "
        "the "
        "old one has only been moved, put it back. If it is lost, move {0} to another folder. Then run "
        "tarvane-setup again.",
        journal.string(), fs::path(piece.name).filename().string()));
  }
}

void Stage(const fs::path& staging, const std::vector<LaidDownPiece>& pieces) {
  for (const LaidDownPiece& piece : pieces) {
    const fs::path file = staging / piece.name;
    MakeFolder(file.parent_path());
    piece.make(file);
  }
}

void Publish(const fs::path& staging, const fs::path& folder, const LaidDownPiece& piece) {
  const fs::path target = FindFile(folder, piece.name);
  MakeFolder(target.parent_path());
  std::error_code error;
  fs::rename(staging / piece.name, target, error);
  if (error) ThrowFault("Cannot create", target, error);
}

// What is missing is made and moved into place; the sample shop needs the whole folder to be made in.
void LayDown(const SetupOptions& options, const std::vector<LaidDownPiece>& pieces,
             const std::vector<bool>& there, bool sample, const SetupReport& report) {
  std::vector<LaidDownPiece> missing;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (!there[i]) missing.push_back(pieces[i]);
  }
  const auto publish = [&](const fs::path& staging) {
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      if (!there[i]) Publish(staging, options.folder, pieces[i]);
      report(pieces[i].name, there[i] ? SetupResult::kKept : SetupResult::kCreated);
    }
  };
  if (missing.empty()) return publish({});
  const StagingFolder staging(options.folder);
  Stage(staging.path(), sample ? pieces : missing);
  if (sample) FillSampleShop(staging.path());
  publish(staging.path());
}

}  // namespace

void SetUpFolder(const SetupOptions& options, const SetupReport& report) {
  const bool created = MakeFolder(options.folder);
  try {
    const auto lock = ShopLock::Take(options.folder);
    if (!lock) throw Fault(ShopIsOpenText(options.folder));
    if (lock->holds()) RemoveStagingFolders(options.folder);
    const bool sample = options.sample && !IsThere(options.folder, data_file::kJobs);
    const std::vector<LaidDownPiece> pieces = LaidDownPieces(options.data, sample);
    std::vector<bool> there;
    for (const LaidDownPiece& piece : pieces) {
      there.push_back(IsThere(options.folder, piece.name));
      if (!there.back()) RequireNoJournal(options.folder, piece);
    }
    LayDown(options, pieces, there, sample, report);
    if (options.sample) report(kSampleName, sample ? SetupResult::kCreated : SetupResult::kSkipped);
  } catch (...) {
    std::error_code ignored;
    if (created) fs::remove(options.folder, ignored);
    throw;
  }
}

}  // namespace tarvane::setup
