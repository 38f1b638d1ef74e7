#include "pdf/font_metrics.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <unordered_map>

#include "pdf/glyph_names.h"
#include "pdf/text_encoding.h"
#include "text/fault.h"
#include "text/trim.h"
#include "text_number/text_number.h"

namespace tarvane::pdf {
namespace {

constexpr int kLastCode = 255;

// A cheap count of time for one purpose: about 20 microseconds are kTicksBetweenLooks, and a count that jumps
// only makes for one look more. The clocks of the standard library cost half of a measurement.
#if defined(__x86_64__)
constexpr uint64_t kTicksBetweenLooks = 50'000;
uint64_t Ticks() { return __builtin_ia32_rdtsc(); }
#else
constexpr uint64_t kTicksBetweenLooks = 20'000;
uint64_t Ticks() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return static_cast<uint64_t>(std::chrono::nanoseconds(now).count());
}
#endif

// Takes the part of `text` before `mark` off its front, and the mark with it.
std::string_view TakeUntil(std::string_view& text, char mark) {
  const size_t end = std::min(text.find(mark), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

// The second of the blank-separated pieces of `field`; empty without one.
std::string_view SecondPiece(std::string_view field) {
  std::string_view rest = Trim(field);
  TakeUntil(rest, ' ');
  const std::string_view piece = Trim(rest);
  return piece.substr(0, piece.find(' '));
}

// The number in the second piece; false without one.
bool SecondNumber(std::string_view field, int& number) {
  const std::string_view piece = SecondPiece(field);
  if (piece.empty()) return false;
  const double value = std::trunc(ParseLeading(piece));
  if (!(std::abs(value) <= std::numeric_limits<int16_t>::max())) return false;
  number = static_cast<int>(value);
  return true;
}

std::string Lower(std::string text) {
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

bool SameButHyphens(std::string_view left, std::string_view right) {
  const auto skip = [](std::string_view& text) {
    while (!text.empty() && text.front() == '-') text.remove_prefix(1);
  };
  for (;; left.remove_prefix(1), right.remove_prefix(1)) {
    skip(left);
    skip(right);
    if (left.empty() || right.empty()) return left.empty() && right.empty();
    if (left.front() != right.front()) return false;
  }
}

}  // namespace

int64_t WidthTable::AddUp(std::string_view bytes, uint64_t& bits) const {
  int64_t sum = 0;
  int64_t other = 0;  // a second sum, so that one addition needn't wait for the one before
  const char* at = bytes.data();
  const char* const end = at + bytes.size();
  for (; end - at >= 8; at += 8) {
    uint64_t eight;
    std::memcpy(&eight, at, sizeof eight);
    bits |= eight;
    for (int shift = 0; shift < 64; shift += 16) {
      sum += widths_[eight >> shift & 255];
      other += widths_[eight >> (shift + 8) & 255];
    }
  }
  for (; at != end; ++at) {
    bits |= static_cast<uint8_t>(*at);
    sum += widths_[static_cast<uint8_t>(*at)];
  }
  return sum + other;
}

int64_t WidthTable::Sum(std::string_view codes) const {
  uint64_t bits = 0;
  const int64_t sum = AddUp(codes, bits);
  if (sum >= kOutside && codes.find('\0') != std::string_view::npos) {
    throw Fault("The text to measure holds a character with code 0.");
  }
  return sum;
}

int64_t WidthTable::SumOfText(std::string_view utf8) const {
  static constexpr uint64_t kHighBits = 0x8080808080808080;
  uint64_t bits = 0;
  const int64_t sum = AddUp(utf8, bits);
  return (bits & kHighBits) == 0 && sum < kOutside ? sum : Sum(ToWinAnsi(utf8));
}

WidthTable ReadWidths(std::string_view metric_file) {
  WidthTable table;
  bool in_metrics = false;
  int first_code = 0;
  int code = 0;
  while (!metric_file.empty()) {
    std::string_view line = TakeUntil(metric_file, '\n');
    if (line.find("EndCharMetrics") != std::string_view::npos || line.find("-1 ;") != std::string_view::npos)
      break;
    if (line.find("StartCharMetrics") != std::string_view::npos) {
      in_metrics = true;
      continue;
    }
    int width = 0;
    int read_code = 0;
    if (!in_metrics || !SecondNumber(TakeUntil(line, ';'), read_code)) continue;
    if (read_code < 1 || read_code > kLastCode || !SecondNumber(TakeUntil(line, ';'), width)) continue;
    code = read_code;
    if (first_code == 0) first_code = code;
    table.Set(code, width);
  }
  for (int index = 1; index <= kLastCode; ++index) {
    if (index < first_code || index > code) table.Set(index, 0);
  }
  return table;
}

WidthTable ReadWidthsByName(std::string_view metric_file) {
  if (metric_file.find("EncodingScheme FontSpecific") != std::string_view::npos)
    return ReadWidths(metric_file);
  std::unordered_map<std::string_view, int> widths;
  metric_file.remove_prefix(std::min(metric_file.find("StartCharMetrics"), metric_file.size()));
  while (!metric_file.empty()) {
    std::string_view line = TakeUntil(metric_file, '\n');
    if (line.find("EndCharMetrics") != std::string_view::npos) break;
    TakeUntil(line, ';');
    int width = 0;
    if (SecondNumber(TakeUntil(line, ';'), width)) widths[SecondPiece(TakeUntil(line, ';'))] = width;
  }
  WidthTable table;
  for (int code = 1; code <= kLastCode; ++code) {
    const auto found = widths.find(kWinAnsiGlyphs[static_cast<size_t>(code)]);
    if (found != widths.end()) table.Set(code, found->second);
  }
  return table;
}

void FontFolder::MeasureByName(bool by_name) {
  by_name_ = by_name;
  read_.clear();
}

void FontFolder::Load(const std::string& folder) {
  std::vector<std::filesystem::path> found;
  for (std::filesystem::path& path : FilesOf(folder)) {
    if (Lower(PathText(path)).find(".afm") != std::string::npos) found.push_back(std::move(path));
  }
  if (found.empty()) return;
  std::sort(found.begin(), found.end(), [](const auto& left, const auto& right) {
    return std::pair(Lower(PathText(left)), left) < std::pair(Lower(PathText(right)), right);
  });
  folder_ = folder;
  paths_ = std::move(found);
  names_.clear();
  for (const auto& path : paths_) {
    std::string name = PathText(path.filename());
    name.resize(name.size() - std::min<size_t>(name.size(), 4));
    names_.push_back(std::move(name));
  }
  read_.clear();
}

int FontFolder::Find(std::string_view name) const {
  auto found = std::find(names_.begin(), names_.end(), name);
  if (found == names_.end()) {
    found = std::find_if(names_.begin(), names_.end(),
                         [&](const auto& other) { return SameButHyphens(name, other); });
  }
  return found == names_.end() ? -1 : static_cast<int>(found - names_.begin());
}

int FontFolder::NumberOf(std::string_view name) const { return std::max(Find(name), 0); }

FontFolder::Font& FontFolder::FontOf(std::string_view name) {
  if (last_ < read_.size() && read_[last_].name == name) return read_[last_];
  const auto found =
      std::find_if(read_.begin(), read_.end(), [&](const Font& font) { return font.name == name; });
  last_ = static_cast<size_t>(found - read_.begin());
  if (found != read_.end()) return *found;
  Font font;
  font.name = name;
  const int number = Find(name);
  font.path =
      number >= 0 ? paths_[static_cast<size_t>(number)] : ToPath(folder_) / ToPath(font.name + ".afm");
  Refresh(font);
  return read_.emplace_back(std::move(font));
}

const WidthTable& FontFolder::Widths(std::string_view name) {
  Font& font = FontOf(name);
  if (Ticks() - font.looked_at >= kTicksBetweenLooks) Refresh(font);
  return font.widths;
}

void FontFolder::Refresh(Font& font) {
  FileStamp stamp;
  if (!StampOf(font.path, stamp)) throw Fault("The metric file " + PathText(font.path) + " can't be read.");
  if (!font.settled || stamp != font.stamp) {
    font.settled = OldEnough(stamp);
    std::string text;
    if (!ReadWhole(font.path, text))
      throw Fault("The metric file " + PathText(font.path) + " can't be read.");
    font.widths = by_name_ ? ReadWidthsByName(text) : ReadWidths(text);
    font.stamp = stamp;
  }
  font.looked_at = Ticks();
}

}  // namespace tarvane::pdf
