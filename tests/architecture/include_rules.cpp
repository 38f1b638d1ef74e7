#include "architecture/include_rules.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <regex>

namespace tarvane {

namespace {

namespace fs = std::filesystem;

// From the ground up. A folder may include itself and what stands in a lower row.
const std::vector<std::vector<std::string>> kLayers = {
    {"text"},
    {"text_number"},
    {"pdf", "store", "rich_text"},
    {"paper"},
    {"screen"},
    {"shop"},
    {"listing"},
    {"job"},
    {"tools"},
    {"printing"},
    {"catalogues"},
    {"curtain_wizard", "blinds"},
    {"app"},
    {"script", "setup", "desktop"},
};

struct OwnedHeader {
  std::regex header;
  std::vector<std::string> owners;
};

// The folders that may include such headers.
const std::vector<OwnedHeader> kOwnedHeaders = {
    {std::regex("Q[A-Z].*|Qt.*/.*"), {"desktop"}},
    {std::regex("sqlite3.*\\.h"), {"store"}},
    {std::regex("xlsxwriter.*\\.h"), {"listing"}},
    {std::regex("expat\\.h"), {"catalogues"}},
    {std::regex("zlib\\.h"), {"catalogues", "paper", "printing"}},
};

struct Include {
  bool quoted = false;
  std::string file;
};

std::optional<Include> ParseInclude(const std::string& line) {
  static const std::regex pattern(R"re(^\s*#\s*include\s*(["<])([^">]+)[">].*)re");
  std::smatch match;
  if (!std::regex_match(line, match, pattern)) return std::nullopt;
  return Include{match[1] == "\"", match[2]};
}

int LayerOf(const std::string& folder) {
  for (std::size_t layer = 0; layer < kLayers.size(); ++layer) {
    if (std::ranges::find(kLayers[layer], folder) != kLayers[layer].end()) return static_cast<int>(layer);
  }
  return -1;
}

std::string FirstStep(const fs::path& path) { return path.begin()->string(); }

// "" where the include is right.
std::string Complaint(const fs::path& src, const std::string& folder, const Include& include) {
  if (!include.quoted) {
    for (const auto& [header, owners] : kOwnedHeaders) {
      if (std::ranges::find(owners, folder) == owners.end() && std::regex_match(include.file, header)) {
        return "<" + include.file + "> is for " + owners.front() + "/ alone";
      }
    }
    return "";
  }
  // What the build configures from a template stands beside that template.
  if (!fs::is_regular_file(src / include.file) && !fs::is_regular_file(src / (include.file + ".in")))
    return "\"" + include.file + "\" is no file below src/";
  const std::string target = FirstStep(fs::path(include.file).lexically_normal());
  if (target == folder) return "";
  if (LayerOf(target) < 0) return target + "/ has no place in the layers";
  if (LayerOf(target) == LayerOf(folder)) return folder + "/ includes its sibling " + target + "/";
  if (LayerOf(target) > LayerOf(folder)) return folder + "/ includes " + target + "/, which stands above it";
  return "";
}

void CheckFile(const fs::path& src, const fs::path& file, std::vector<std::string>& wrong) {
  const std::string folder = FirstStep(file);
  std::ifstream in(src / file);
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    const auto include = ParseInclude(line);
    const std::string complaint = include ? Complaint(src, folder, *include) : "";
    if (!complaint.empty()) wrong.push_back(file.string() + ":" + std::to_string(number) + ": " + complaint);
  }
}

}  // namespace

std::vector<std::string> FindWrongIncludes(const fs::path& src) {
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(src)) {
    const std::string kind = entry.path().extension();
    if (kind == ".h" || kind == ".cpp") files.push_back(fs::relative(entry.path(), src));
  }
  std::ranges::sort(files);
  std::vector<std::string> wrong;
  for (const fs::path& file : files) {
    if (LayerOf(FirstStep(file)) < 0) {
      wrong.push_back(file.string() + ": " + FirstStep(file) + " has no place in the layers");
    }
    CheckFile(src, file, wrong);
  }
  if (files.empty()) wrong.push_back("no sources found");
  return wrong;
}

}  // namespace tarvane
