#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "rich_text/document.h"

namespace tarvane::printing {

// What a work sheet's drawing of a pair of curtains is made of. Lengths in millimetres.
struct CurtainMeasures {
  std::string description;  // of the window; may be empty
  double track = 0;         // above 0
  double drop = 0;          // above 0
  double hem = 0;           // below half of the drop; 0: none is drawn
  double fullness = 2;      // cloth to track, 1 to 10
  std::string in_words;     // as they were entered: "Track 240 cm, drop 210 cm"
};

// The measures in the saved state of a curtain item ("~" behind each of its fields). Nothing where it has no
// track or no drop that a drawing could show, or where its fields don't stand in their places.
std::optional<CurtainMeasures> MeasuresIn(std::string_view item_record);

struct CurtainDrawing {
  rich_text::Picture picture;
  int scale = 0;  // a length on paper is one of so many in the room
};

// The rail with its curtains, hem and floor, and arrows along what was measured; to scale on paper.
// `measures` as MeasuresIn gives them.
CurtainDrawing DrawCurtain(const CurtainMeasures& measures);

}  // namespace tarvane::printing
