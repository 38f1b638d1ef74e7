#include "rich_text/editing.h"

namespace tarvane::rich_text {

void Replace(Document& document, Range, const Document& piece) { document = piece; }

CharStyle Changed(Document& document, CharStyle style, const StyleChange& change) {
  if (change.font) style.font = document.FontNumber(*change.font);
  if (change.half_points) style.half_points = static_cast<std::uint16_t>(*change.half_points);
  if (change.bold) style.bold = *change.bold;
  if (change.italic) style.italic = *change.italic;
  if (change.underline) style.underline = *change.underline;
  if (change.strike) style.strike = *change.strike;
  if (change.color) style.color = *change.color;
  return style;
}

void ChangeStyle(Document& document, Range, const StyleChange& change) {
  document.runs = {{0, Changed(document, document.runs.front().style, change)}};
}

void Align(Document&, Range, Alignment) {}

std::optional<Range> Find(const Document& document, std::string_view what, std::size_t from) {
  const std::size_t at = document.text.find(what, from);
  if (at == std::string::npos) return std::nullopt;
  return Range{at, at + what.size()};
}

}  // namespace tarvane::rich_text
