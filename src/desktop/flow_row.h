#pragma once

#include <vector>

#include "desktop/builders.h"

namespace tarvane::desktop {

// A part of a flowing row. Where the rest of the line is narrower than `digits`, it begins the next line; 0:
// than the part would like to be.
struct FlowPart {
  FlowPart(const Piece& piece_in, int digits_in = 0) : piece(piece_in), digits(digits_in) {}  // NOLINT: lists
  Piece piece;
  int digits = 0;
};

// Pieces beside each other, going on in the next line where there is no room, so that a page never needs to
// scroll sideways. It is as narrow as its widest part at least. Those that grow share the spare width of
// their line; spare height goes to the lines with a part that takes it (a table).
Piece FlowRow(const std::vector<FlowPart>& parts, int quarters = 2);

// A text that stays on one line where there is room and breaks where there is none, down to `least` digits;
// at least `usual` digits wide otherwise.
Piece BreakingText(std::string_view text, int least, int usual);

}  // namespace tarvane::desktop
