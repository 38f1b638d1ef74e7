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

// Breaks `codes` (WinAnsi) where the widths add up to more than `room`, in thousandths of the font size. A
// line end closes a line; so does the last blank before the room is passed or, without one, the character
// before; each line has a character at least. A line end at the end of the text is dropped. There is always
// one line. Faults for code 0.
std::vector<CellLine> BreakLines(std::string_view codes, const WidthTable& widths, double room);

// The sides of one line's box, out of "L", "T", "R" and "B", for a cell with the border `border`: "1" for
// all, "0" or empty for none, or a mix of the four letters.
std::string LineBorder(std::string_view border, bool first, bool last);

}  // namespace tarvane::pdf
