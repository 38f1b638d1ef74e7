#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pdf/font_metrics.h"

// How a cell's text falls into lines, and which sides each line's box has.
namespace tarvane::pdf {

struct CellLine {
  std::string_view text;  // within the text that was broken
  bool wrapped = false;   // closed for want of room, not by a line end or the end of the text
};

// Breaks `codes` (WinAnsi) at line ends, and where the widths add up to more than `room` (the font size is
// 1000): there at the last blank that fits or, where there is none, behind the last character that does, or
// behind the first where not even that one fits. One line end at the very end counts for nothing, and even an
// empty text has a line. Faults for code 0.
std::vector<CellLine> BreakLines(std::string_view codes, const WidthTable& widths, double room);

// The sides of one line's box, out of "L", "T", "R" and "B", for a cell with the border `border`: "1" for
// all, "0" or empty for none, or a mix of the four letters.
std::string LineBorder(std::string_view border, bool first, bool last);

}  // namespace tarvane::pdf
