#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "rich_text/document.h"

namespace tarvane::rich_text {

struct Range {
  std::size_t begin = 0;  // places in the text, on boundaries of characters
  std::size_t end = 0;    // not below begin
  bool empty() const { return begin == end; }
  bool operator==(const Range&) const = default;
};

// Puts `piece` in place of the range; what stands around it keeps its looks. Where the range ends in another
// paragraph than it begins, the paragraph that remains looks like the piece's last one, or, where the piece
// has only one, like the first one.
void Replace(Document& document, Range range, const Document& piece);

// What of a look is to change; nothing: stays.
struct StyleChange {
  std::optional<std::string_view> font;
  std::optional<int> half_points;
  std::optional<bool> bold;
  std::optional<bool> italic;
  std::optional<bool> underline;
  std::optional<bool> strike;
  std::optional<Color> color;
};
void ChangeStyle(Document& document, Range range, const StyleChange& change);
CharStyle Changed(Document& document, CharStyle style, const StyleChange& change);

// All paragraphs that the range touches.
void Align(Document& document, Range range, Alignment alignment);

// The next place of `what` from `from` on, then from the beginning; without regard to case. Nothing where it
// isn't there or is empty.
std::optional<Range> Find(const Document& document, std::string_view what, std::size_t from);

}  // namespace tarvane::rich_text
