#pragma once

#include <cstdint>
#include <vector>

#include "paper/font_looks.h"
#include "paper/surface.h"
#include "rich_text/document.h"

namespace tarvane::paper {

// Where a page begins or ends in a document.
struct Place {
  std::size_t text = 0;  // in Document::text, at the beginning of a line
  // Of a table row that is cut: where each of its cells goes on, the end of the text for one that is done.
  // `text` is then the first of these places. Empty everywhere else.
  std::vector<std::size_t> cells;
  bool operator==(const Place&) const = default;
};

// Lays out the lines of `document` from `from` on in the area, down to where it is full, and draws them where
// `surface` isn't null. Gives the place of the first character that didn't fit; the end of the text where all
// did. At least one line is laid out, and in it one character, however small the area is. A page break ends
// it too. Blanks at the end of a line fit everywhere. A row of a table stands on one page, but for one that
// is higher than the area.
Place FormatPage(const rich_text::Document& document, Measure& measure, const Area& area, const Place& from,
                 Surface* surface);

// A document on sheets of paper. Keeps only where its pages begin; margins that leave no room for text count
// for nothing.
class RichTextPages : public Pages {
 public:
  // Both must outlive it, and the document stay as it is.
  RichTextPages(const rich_text::Document& document, Measure& measure, const Paper& paper,
                const Edges& margins);

  int Count() const override { return static_cast<int>(begins_.size()); }
  const Paper& paper() const override { return paper_; }
  void Draw(int page, Surface& surface) const override;
  double LeftOfText() const override { return area_.left; }
  // Where the pages begin.
  const std::vector<Place>& begins() const { return begins_; }

 private:
  const rich_text::Document& document_;
  mutable FontLooks looks_;  // asked again and again while pages are drawn
  Paper paper_;
  Area area_;
  std::vector<std::uint32_t> pictures_;  // where they stand in the text
  std::vector<Place> begins_;
};

}  // namespace tarvane::paper
