#pragma once

#include <vector>

#include "paper/surface.h"
#include "rich_text/document.h"

namespace tarvane::paper {

// Where a page begins or ends in a document.
struct Place {
  std::size_t text = 0;  // in Document::text, at the beginning of a line
  bool operator==(const Place&) const = default;
};

// Lays out the lines of `document` from `from` on in the area, down to where it is full, and draws them where
// `surface` isn't null. Gives the place of the first character that didn't fit; the end of the text where all
// did. At least one line is laid out, and in it one character, however small the area is. A page break ends
// it too. A carriage of blanks at the end of a line fits everywhere.
Place FormatPage(const rich_text::Document& document, Measure& measure, const Area& area, Place from,
                 Surface* surface);

// A document on sheets of paper.
class RichTextPages : public Pages {
 public:
  // Both must outlive it, and the document stay as it is.
  RichTextPages(const rich_text::Document& document, Measure& measure, const Paper& paper,
                const Edges& margins);

  int Count() const override { return static_cast<int>(begins_.size()); }
  const Paper& paper() const override { return paper_; }
  void Draw(int page, Surface& surface) const override;
  double LeftOfText() const override { return margins_.left; }
  // Where the pages begin.
  const std::vector<Place>& begins() const { return begins_; }

 private:
  Area TextArea() const;

  const rich_text::Document& document_;
  Measure& measure_;
  Paper paper_;
  Edges margins_;
  std::vector<Place> begins_;
};

}  // namespace tarvane::paper
