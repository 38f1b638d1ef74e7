// What is done to a line whose pieces are known: their places, and its height.
#include <algorithm>

#include "paper/line_builder.h"

namespace tarvane::paper {
namespace {

using rich_text::Alignment;
using Kind = LinePiece::Kind;

constexpr double kLeastLine = 1;

std::size_t BlanksAtEnd(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return text.size() - (last == std::string_view::npos ? 0 : last + 1);
}

}  // namespace

// Gives the pieces behind the last tab their places, and that tab its width.
void LineBuilder::SettleGroup() {
  double x = group_.Begin();
  if (group_.first_piece > 0 && group_.first_piece <= line_.pieces.size()) {
    LinePiece& tab = line_.pieces[group_.first_piece - 1];
    tab.width = std::max(0.0, x - tab.x);
  }
  for (std::size_t index = group_.first_piece; index < line_.pieces.size(); ++index) {
    line_.pieces[index].x = x;
    x += line_.pieces[index].width;
  }
}

void LineBuilder::Finish(std::size_t begin) {
  TrimBlanks();
  SettleGroup();
  AlignPieces();
  SetHeight(begin);
}

// Blanks at the end of a line hang over; only those that bear a line are kept where the paragraph ends.
void LineBuilder::TrimBlanks() {
  while (line_.pieces.size() > group_.first_piece && line_.pieces.back().kind == Kind::kText) {
    LinePiece& last = line_.pieces.back();
    if (line_.ends_paragraph && (last.style.underline || last.style.strike)) {
      group_.tail = 0;
      return;
    }
    const std::string_view text = std::string_view(document_.text).substr(last.begin, last.end - last.begin);
    const std::size_t blanks = line_.hyphen ? 0 : BlanksAtEnd(text);
    if (blanks == 0) return;
    const double width = looks_.Of(last.style).blank * static_cast<double>(blanks);
    last.end -= blanks;
    last.width -= width;
    group_.width -= width;
    group_.tail = std::max(0.0, group_.tail - width);
    if (last.begin != last.end) return;
    line_.pieces.pop_back();
  }
}

void LineBuilder::AlignPieces() {
  const double end = group_.Begin() + group_.width - group_.tail;
  const double room = space_.right - end;
  if (style_->alignment == Alignment::kLeft || !(room > kSlack)) return;
  if (style_->alignment != Alignment::kJustified) {
    const double shift = style_->alignment == Alignment::kRight ? room : room / 2;
    line_.x += shift;
    for (LinePiece& piece : line_.pieces) piece.x += shift;
    return;
  }
  if (!line_.ends_paragraph) SpreadBlanks(room);
}

// Only behind the last tab: what stands before it keeps its place.
void LineBuilder::SpreadBlanks(double room) {
  std::ptrdiff_t blanks = 0;
  const auto blanks_of = [&](const LinePiece& piece) {
    const std::string_view text =
        std::string_view(document_.text).substr(piece.begin, piece.end - piece.begin);
    return piece.kind == Kind::kText ? std::ranges::count(text, ' ') : 0;
  };
  for (std::size_t index = group_.first_piece; index < line_.pieces.size(); ++index) {
    blanks += blanks_of(line_.pieces[index]);
  }
  if (blanks == 0) return;
  const double more = room / static_cast<double>(blanks);
  double shift = 0;
  for (std::size_t index = group_.first_piece; index < line_.pieces.size(); ++index) {
    LinePiece& piece = line_.pieces[index];
    piece.x += shift;
    piece.blank = more;
    shift += more * static_cast<double>(blanks_of(piece));
  }
}

void LineBuilder::SetHeight(std::size_t begin) {
  double ascent = 0;
  double descent = 0;
  for (const LinePiece& piece : line_.pieces) {
    const bool picture = piece.kind == Kind::kPicture;
    const Extent extent = picture ? Extent{piece.height, 0} : looks_.Of(piece.style).extent;
    ascent = std::max(ascent, extent.ascent);
    descent = std::max(descent, extent.descent);
  }
  if (line_.pieces.empty()) {
    const Extent extent = looks_.Of(document_.StyleAt(begin)).extent;
    ascent = extent.ascent;
    descent = extent.descent;
  }
  const double natural = ascent + descent;
  const double wanted = PointsOf(style_->line_height);
  line_.height = natural;
  line_.ascent = ascent;
  if (wanted > natural) {
    line_.height = wanted;
    line_.ascent = wanted - descent;
  } else if (wanted < 0) {
    line_.height = std::max(-wanted, kLeastLine);
    line_.ascent = line_.height * ascent / natural;
  }
}

}  // namespace tarvane::paper
