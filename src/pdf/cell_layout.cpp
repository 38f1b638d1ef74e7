#include "pdf/cell_layout.h"

#include <algorithm>

namespace tarvane::pdf {
namespace {

bool LineEnd(char c) { return c == '\r' || c == '\n'; }

// The length of the line end that `text` begins with: "\r\n" is one.
size_t LineEndLength(std::string_view text) { return text.starts_with("\r\n") ? 2 : 1; }

std::string_view WithoutLastLineEnd(std::string_view text) {
  if (text.ends_with("\r\n")) return text.substr(0, text.size() - 2);
  return !text.empty() && LineEnd(text.back()) ? text.substr(0, text.size() - 1) : text;
}

}  // namespace

std::vector<CellLine> BreakLines(std::string_view codes, const WidthTable& widths, double room) {
  std::string_view rest = WithoutLastLineEnd(codes);
  widths.Sum(rest);
  std::vector<CellLine> lines;
  size_t at = 0;
  size_t blank = std::string_view::npos;
  double used = 0;
  const auto close = [&](size_t length, size_t skipped, bool wrapped) {
    lines.push_back({rest.substr(0, length), wrapped});
    rest.remove_prefix(length + skipped);
    at = 0;
    blank = std::string_view::npos;
    used = 0;
  };
  while (at < rest.size()) {
    const char c = rest[at];
    if (LineEnd(c)) {
      close(at, LineEndLength(rest.substr(at)), false);
      continue;
    }
    if (c == ' ') blank = at;
    used += static_cast<double>(widths.At(static_cast<unsigned char>(c)));
    if (!(used > room)) {
      ++at;
    } else if (blank != std::string_view::npos) {
      close(blank, 1, true);
    } else {
      close(std::max<size_t>(at, 1), 0, true);
    }
  }
  if (rest.empty() && !lines.empty() && lines.back().wrapped) {
    lines.back().wrapped = false;  // nothing was left to wrap
  } else {
    lines.push_back({rest, false});
  }
  return lines;
}

std::string LineBorder(std::string_view border, bool first, bool last) {
  if (border == "1") border = "LRTB";
  std::string sides;
  for (const char side : std::string_view("LRTB")) {
    const bool drawn = side == 'T' ? first : side == 'B' ? last : true;
    if (drawn && border.find(side) != std::string_view::npos) sides += side;
  }
  return sides;
}

}  // namespace tarvane::pdf
