#include <algorithm>

#include "rich_text/document.h"
#include "text/fold.h"

namespace tarvane::rich_text {

namespace {

bool SoundText(std::string_view text) {
  constexpr std::size_t kTooLong = 0xFFFFFFFF;
  if (text.size() >= kTooLong) return false;
  for (std::size_t at = 0; at < text.size();) {
    const auto [character, length] = DecodeCharacter(text, at);
    if (character >= kBadByte || (character < ' ' && character != '\t' && character != '\n')) return false;
    at += length;
  }
  return true;
}

bool BeginsCharacter(std::string_view text, std::size_t at) {
  return at == text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80;
}

bool SoundRuns(const Document& document) {
  const auto& runs = document.runs;
  if (runs.empty() || runs.front().begin != 0) return false;
  for (std::size_t at = 0; at < runs.size(); ++at) {
    const auto& [begin, style] = runs[at];
    if (style.font >= document.fonts.size()) return false;
    if (style.half_points < 1 || style.half_points > kLargestHalfPoints) return false;
    if (at == 0) continue;
    if (begin <= runs[at - 1].begin || begin >= document.text.size()) return false;
    if (style == runs[at - 1].style || !BeginsCharacter(document.text, begin)) return false;
  }
  return true;
}

// Rows follow each other, and the cells of each, without a gap.
bool SoundPlaces(const Document& document) {
  std::int32_t rows = 0;
  for (std::size_t at = 0; at < document.paragraphs.size(); ++at) {
    const Paragraph& paragraph = document.paragraphs[at];
    const Paragraph before = at == 0 ? Paragraph{} : document.paragraphs[at - 1];
    const bool same_row = paragraph.row == before.row;
    if (!same_row && before.row >= 0 &&
        before.cell + 1 != document.rows[static_cast<std::size_t>(before.row)].cells.size()) {
      return false;
    }
    if (paragraph.row < 0) {
      if (paragraph.row != -1 || paragraph.cell != 0) return false;
    } else if (same_row) {
      if (paragraph.cell != before.cell && paragraph.cell != before.cell + 1) return false;
    } else if (paragraph.row != rows++ || paragraph.cell != 0) {
      return false;
    }
    if (paragraph.row >= static_cast<std::int32_t>(document.rows.size())) return false;
  }
  const Paragraph& last = document.paragraphs.back();
  return rows == static_cast<std::int32_t>(document.rows.size()) &&
         (last.row < 0 || last.cell + 1 == document.rows.back().cells.size());
}

bool SoundParagraphs(const Document& document) {
  std::size_t begin = 0;
  for (const Paragraph& paragraph : document.paragraphs) {
    if (begin == std::string::npos || paragraph.begin != begin) return false;
    if (paragraph.style >= document.paragraph_styles.size()) return false;
    const std::size_t end = document.text.find('\n', begin);
    begin = end == std::string::npos ? end : end + 1;
  }
  return begin == std::string::npos;
}

bool SoundLength(std::int32_t length) { return length >= -kLongest && length <= kLongest; }

bool SoundStyle(const ParagraphStyle& style) {
  for (const std::int32_t length :
       {style.left, style.right, style.first_line, style.before, style.after, style.line_height}) {
    if (!SoundLength(length)) return false;
  }
  const auto not_before = [](const TabStop& one, const TabStop& next) { return one.at >= next.at; };
  return style.before >= 0 && style.after >= 0 && style.tabs.size() <= kMostTabStops &&
         std::ranges::all_of(style.tabs, SoundLength, &TabStop::at) &&
         std::ranges::adjacent_find(style.tabs, not_before) == style.tabs.end();
}

bool SoundRow(const TableRow& row) {
  constexpr int kAllSides = kTopSide | kLeftSide | kBottomSide | kRightSide;
  if (row.cells.empty() || row.cells.size() > kMostCells || !SoundLength(row.left)) return false;
  std::int32_t left = row.left;
  for (const TableCell& cell : row.cells) {
    if (cell.right < left || !SoundLength(cell.right) || cell.borders > kAllSides) return false;
    left = cell.right;
  }
  return true;
}

bool SoundPicture(const Picture& picture) {
  return !picture.bytes.empty() && picture.width > 0 && picture.width <= kLongest && picture.height > 0 &&
         picture.height <= kLongest;
}

std::size_t CountSigns(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(kPictureSign); at != std::string_view::npos;
       at = text.find(kPictureSign, at + kPictureSign.size())) {
    ++count;
  }
  return count;
}

}  // namespace

bool IsSound(const Document& document) {
  return !document.fonts.empty() && !document.paragraph_styles.empty() && !document.paragraphs.empty() &&
         SoundText(document.text) && SoundRuns(document) && SoundParagraphs(document) &&
         std::ranges::all_of(document.paragraph_styles, SoundStyle) &&
         std::ranges::all_of(document.rows, SoundRow) && SoundPlaces(document) &&
         CountSigns(document.text) == document.pictures.size() &&
         std::ranges::all_of(document.pictures, SoundPicture);
}

}  // namespace tarvane::rich_text
