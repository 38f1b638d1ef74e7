#pragma once

#include <cstdint>
#include <string_view>

#include "paper/surface.h"
#include "rich_text/document.h"

// Documents that are made of bytes, and the question that is asked of them: whether pages hold every
// character once.
namespace tarvane::paper {

struct RandomDocument {
  rich_text::Document document;
  Area area;
  int measure = 0;  // what kind of numbers the measure gives
};

// Any bytes make one. Those below " " change looks, begin paragraphs, rows and cells; those above 127 stand
// for characters that lines treat in their own ways.
RandomDocument DocumentOf(std::string_view bytes);

// Lays the document out page by page. False where a page doesn't move on, a character is left out, drawn
// twice or (but for tables) not in its order, or RichTextPages begins its pages elsewhere.
bool PlacesEachCharacterOnce(const RandomDocument& random);

}  // namespace tarvane::paper
