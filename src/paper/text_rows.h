#pragma once

#include <string>
#include <vector>

#include "paper/surface.h"

namespace tarvane::paper {

// A piece of text at a column of characters, from 0.
struct RowPiece {
  int column = 0;
  std::string text;
};
using TextRow = std::vector<RowPiece>;  // empty: a blank row

// Draws rows of pieces from `top_left` down, each as high as the font. A column is as wide as the font's
// average character; a piece that would begin before its neighbour ends stands behind it, a blank apart.
// Gives the y below the last row.
double DrawRows(Surface& surface, const Font& font, Point top_left, const std::vector<TextRow>& rows);

}  // namespace tarvane::paper
