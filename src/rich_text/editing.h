#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "rich_text/document.h"

// Changes to a text. What held of the document holds afterwards; each costs at most as much as a walk along
// its arrays.
namespace tarvane::rich_text {

struct Range {
  std::size_t begin = 0;  // places in the text, on boundaries of characters
  std::size_t end = 0;    // not below begin
  bool empty() const { return begin == end; }
  bool operator==(const Range&) const = default;
};

// Puts `piece` in place of the range; what stands around it keeps its looks. Where the range ends in another
// paragraph than it begins, the paragraph that remains looks like the piece's last one, or, where the piece
// has only one, like the first one. A page that begins in the piece begins in the text.
// Within a cell tables of the piece become paragraphs of that cell. A row that loses paragraphs loses the
// cells that are left without any. Faults where the text would become too long.
void Replace(Document& document, Range range, const Document& piece);

// Puts the paragraphs of `piece`, looks, tables and all, in place of those from `first` to before `end`,
// which are one or more. A piece without tables that replaces paragraphs of one cell stands in that cell.
void ReplaceParagraphs(Document& document, std::size_t first, std::size_t end, const Document& piece);

// A copy of what stands in the range. From within one cell it comes without its table.
Document Slice(const Document& document, Range range);

// In half points.
inline constexpr int kSmallestStep = 12;
inline constexpr int kLargestStep = 144;

// What of a look is to change; nothing: stays.
struct StyleChange {
  std::optional<std::string_view> font = {};
  std::optional<int> half_points = {};
  int half_points_more = 0;  // a step of each size, from kSmallestStep to kLargestStep at most
  std::optional<bool> bold = {};
  std::optional<bool> italic = {};
  std::optional<bool> underline = {};
  std::optional<bool> strike = {};
  std::optional<Color> color = {};
};
// Nothing for an empty range.
void ChangeStyle(Document& document, Range range, const StyleChange& change);
CharStyle Changed(Document& document, CharStyle style, const StyleChange& change);

// All paragraphs that the range touches; one that it ends in front of isn't touched.
void Align(Document& document, Range range, Alignment alignment);

// The next place of `what` from `from` on, then from the beginning; without regard to case. Nothing where it
// isn't there or is empty.
std::optional<Range> Find(const Document& document, std::string_view what, std::size_t from);

}  // namespace tarvane::rich_text
