#include "paper/rich_text_pages.h"

namespace tarvane::paper {

Place FormatPage(const rich_text::Document& document, Measure& measure, const Area& area, Place from,
                 Surface* surface) {
  const Font font;
  const Extent extent = measure.ExtentOf(font);
  double y = area.top;
  std::size_t paragraph = document.ParagraphAt(from.text);
  const std::size_t first = paragraph;
  for (; paragraph < document.paragraphs.size(); ++paragraph) {
    if (paragraph > first && y + extent.height() > area.bottom) {
      return {document.paragraphs[paragraph].begin};
    }
    const std::size_t begin = document.paragraphs[paragraph].begin;
    if (surface != nullptr) {
      surface->DrawText(
          {area.left, y + extent.ascent}, font,
          std::string_view(document.text).substr(begin, document.ParagraphEnd(paragraph) - begin));
    }
    y += extent.height();
  }
  return {document.text.size()};
}

RichTextPages::RichTextPages(const rich_text::Document& document, Measure& measure, const Paper& paper,
                             const Edges& margins)
    : document_(document), measure_(measure), paper_(paper), margins_(margins), begins_(1) {
  for (Place place; (place = FormatPage(document, measure, TextArea(), begins_.back(), nullptr)).text <
                    document.text.size();) {
    begins_.push_back(place);
  }
}

Area RichTextPages::TextArea() const {
  return {margins_.left, margins_.top, paper_.size.width - margins_.right,
          paper_.size.height - margins_.bottom};
}

void RichTextPages::Draw(int page, Surface& surface) const {
  FormatPage(document_, measure_, TextArea(), begins_.at(static_cast<std::size_t>(page)), &surface);
}

}  // namespace tarvane::paper
