#pragma once

#include <array>

#include "paper/surface.h"

namespace tarvane::paper {

// Sums of widths are no whole numbers: so much may be too much. In points.
inline constexpr double kSlack = 0.001;

// A length from a measure or a document, within what paper can be: 0 where it is no number or below 0.
double Sane(double length);
// Points of a length in twips, at most a few sheets long.
double PointsOf(std::int32_t twips);

// What drawing wants to know of a character style.
struct FontLook {
  rich_text::CharStyle style;
  Font font;
  Extent extent;     // at least 1 high
  double blank = 0;  // the width of " "
  // Whether texts are as wide as their characters together; not so with a font that moves some pairs closer.
  bool adds_up = false;
  bool knows_advances = false;
  // The width of each ASCII character in parts of a point: whole numbers are the faster to add. kNotPlain,
  // more than any line has room for, for all others and the tab.
  static constexpr double kParts = 1 << 20;
  static constexpr std::int64_t kNotPlain = std::int64_t{1} << 40;
  std::array<std::int64_t, 256> advances{};
};

// Asks the measure once for each of the styles that are in use.
class FontLooks {
 public:
  FontLooks(const rich_text::Document& document, Measure& measure) : document_(document), measure_(measure) {}

  // Valid until the next call. Without advances.
  const FontLook& Of(const rich_text::CharStyle& style) { return Find(style); }
  // The same with them.
  const FontLook& WithAdvances(const rich_text::CharStyle& style);
  double WidthOf(const FontLook& look, std::string_view text) const {
    return Sane(measure_.WidthOf(look.font, text));
  }

 private:
  FontLook& Find(const rich_text::CharStyle& style);
  void ReadAdvances(FontLook& look);

  const rich_text::Document& document_;
  Measure& measure_;
  std::array<FontLook, 16> looks_;
  std::size_t known_ = 0;
  std::size_t last_ = 0;
  std::size_t next_ = 0;
};

}  // namespace tarvane::paper
