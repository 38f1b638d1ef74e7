#pragma once

#include <string>
#include <vector>

#include "paper/recorder.h"
#include "paper/rich_text_pages.h"
#include "rich_text/document.h"

namespace tarvane::paper {

// Every character is as wide as its font is high, and a line a fifth of that deep below its base line.
class SquareMeasure : public Measure {
 public:
  Extent ExtentOf(const Font& font) override { return {font.points * 0.8, font.points * 0.2}; }
  double WidthOf(const Font& font, std::string_view text) override;
};

// Columns of 10 points: a text in it has that many characters to a line.
Area Columns(int columns, int lines = 100);

// What stands on a page, an item a line: "x,y text", with "+blank" behind y where blanks are wider; "line",
// "box", "ellipse" and "picture" with their areas.
std::vector<std::string> ItemsOf(const RecordedPage& page);

// The items of all the pages of a document in an area, pages kept apart by "---".
std::vector<std::string> Formatted(const rich_text::Document& document, const Area& area);

// A text whose style and paragraph style a test then changes; "{" and "}" make what is between them bold, and
// are left out.
rich_text::Document Marked(std::string_view text);

}  // namespace tarvane::paper
