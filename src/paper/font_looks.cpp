#include "paper/font_looks.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace tarvane::paper {
namespace {

constexpr double kLongest = 100'000;
constexpr double kLowestLine = 1;
// Pairs that fonts move closer, where they do.
constexpr std::string_view kPairs = "AVAToTeTaWaWeVoYoLTLYP.F,r.y, 11fifl";

}  // namespace

double Sane(double length) { return length > 0 ? std::min(length, kLongest) : 0; }

double PointsOf(std::int32_t twips) {
  return std::clamp(static_cast<double>(twips) / rich_text::kTwipsPerPoint, -kLongest, kLongest);
}

const FontLook& FontLooks::WithAdvances(const rich_text::CharStyle& style) {
  FontLook& look = Find(style);
  if (!look.knows_advances) ReadAdvances(look);
  return look;
}

FontLook& FontLooks::Find(const rich_text::CharStyle& style) {
  if (last_ < known_ && looks_[last_].style == style) return looks_[last_];
  for (std::size_t index = 0; index < known_; ++index) {
    if (looks_[index].style == style) return looks_[last_ = index];
  }
  last_ = next_;
  next_ = (next_ + 1) % looks_.size();
  known_ = std::max(known_, last_ + 1);
  FontLook& look = looks_[last_];
  look.style = style;
  look.font = {document_.fonts[style.font],
               std::max<double>(style.half_points, 1) / 2,
               style.bold,
               style.italic,
               style.underline,
               style.strike};
  const Extent extent = measure_.ExtentOf(look.font);
  look.extent = {Sane(extent.ascent), Sane(extent.descent)};
  look.extent.ascent = std::max(look.extent.ascent, kLowestLine - look.extent.descent);
  look.blank = Sane(measure_.WidthOf(look.font, " "));
  look.knows_advances = look.adds_up = false;
  return look;
}

void FontLooks::ReadAdvances(FontLook& look) {
  look.knows_advances = true;
  look.advances.fill(FontLook::kNotPlain);
  double together = 0;
  for (char c = ' '; c < 0x7F; ++c) {
    const double width = Sane(measure_.WidthOf(look.font, {&c, 1}));
    together += width * static_cast<double>(std::ranges::count(kPairs, c));
    look.advances[static_cast<unsigned char>(c)] = std::llround(width * FontLook::kParts);
  }
  look.adds_up = std::abs(together - Sane(measure_.WidthOf(look.font, kPairs))) < kSlack;
}

}  // namespace tarvane::paper
