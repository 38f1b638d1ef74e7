#include "paper/text_rows.h"

#include <algorithm>

#include "paper/font_looks.h"

namespace tarvane::paper {

double DrawRows(Surface& surface, const Font& font, Point top_left, const std::vector<TextRow>& rows) {
  const Extent extent = surface.ExtentOf(font);
  const double column = Sane(ColumnWidth(surface, font));
  const double blank = Sane(surface.WidthOf(font, " "));
  double y = top_left.y;
  for (const TextRow& row : rows) {
    double end = top_left.x - blank;
    if (row.empty()) surface.DrawText({top_left.x, y + extent.ascent}, font, "");
    for (const RowPiece& piece : row) {
      const double x = std::max(top_left.x + piece.column * column, end + blank);
      surface.DrawText({x, y + extent.ascent}, font, piece.text);
      end = x + Sane(surface.WidthOf(font, piece.text));
    }
    y += Sane(extent.height());
  }
  return y;
}

}  // namespace tarvane::paper
