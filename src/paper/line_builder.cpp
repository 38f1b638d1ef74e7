#include "paper/line_builder.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "paper/break_rules.h"

namespace tarvane::paper {
namespace {

using rich_text::ParagraphStyle;
using rich_text::TabKind;
using rich_text::TabStop;
using Kind = LinePiece::Kind;

constexpr double kHalfInch = 36;
constexpr double kLeastRoom = 36;
constexpr double kLeastLine = 1;

}  // namespace

LineSpace SpaceOf(const ParagraphStyle& style, double left, double right, double most_height) {
  const double room = std::min(std::max(right - left, 0.0), kLeastRoom);
  LineSpace space{left, left, left, right, most_height};
  space.right = std::clamp(right - PointsOf(style.right), left + room, std::max(right, left + room));
  space.left = std::clamp(left + PointsOf(style.left), std::min(0.0, left), space.right - room);
  space.first = std::clamp(space.left + PointsOf(style.first_line), std::min(0.0, left), space.right - room);
  return space;
}

double LineBuilder::Group::EndWith(double more) const {
  const double all = width + more;
  switch (kind) {
    case TabKind::kLeft:
      return start + all;
    case TabKind::kRight:
      return std::max(start + all, stop);
    case TabKind::kCenter:
      return std::max(start + all, stop + all / 2);
    case TabKind::kDecimal:
      return std::max(start + all, stop + all - before_point.value_or(all));
  }
  return start + all;
}

double LineBuilder::Group::Begin() const {
  const double seen = width - tail;
  switch (kind) {
    case TabKind::kLeft:
      return start;
    case TabKind::kRight:
      return std::max(start, stop - seen);
    case TabKind::kCenter:
      return std::max(start, stop - seen / 2);
    case TabKind::kDecimal:
      return std::max(start, stop - before_point.value_or(seen));
  }
  return start;
}

const rich_text::Picture* LineBuilder::PictureAt(std::size_t place) const {
  const auto found = std::ranges::lower_bound(pictures_, place);
  if (found == pictures_.end() || *found != place) return nullptr;
  const auto number = static_cast<std::size_t>(found - pictures_.begin());
  return number < document_.pictures.size() ? &document_.pictures[number] : nullptr;
}

const Line& LineBuilder::Build(const ParagraphStyle& style, const LineSpace& space, std::size_t paragraph,
                               std::size_t begin, std::size_t end) {
  style_ = &style;
  space_ = space;
  line_.pieces.clear();
  line_.hyphen = false;
  line_.ends_paragraph = false;
  line_.next = end;
  group_ = {};
  group_.start = begin == paragraph ? space.first : space.left;
  line_.x = group_.start;
  if (BuildPlain(begin, end)) return line_;
  has_opportunity_ = false;
  const std::string_view text = std::string_view(document_.text).substr(0, end);
  std::size_t run = document_.RunAt(begin);
  bool open = true;
  for (std::size_t at = begin; open && at < end;) {
    while (run + 1 < document_.runs.size() && document_.runs[run + 1].begin <= at) ++run;
    const std::size_t run_end = run + 1 < document_.runs.size() ? document_.runs[run + 1].begin : end;
    const FontLook& look = looks_.Of(document_.runs[run].style);
    const Segment segment = NextSegment(text, at, std::min(run_end, end));
    switch (segment.kind) {
      case Segment::Kind::kText:
        open = TakeText(at, segment.end, segment.break_behind, look);
        break;
      case Segment::Kind::kBlanks:
        TakeBlanks(at, segment.end, look);
        break;
      case Segment::Kind::kTab:
        open = TakeTab(at, look);
        break;
      case Segment::Kind::kPicture:
        open = TakePicture(at, segment.end, look);
        break;
      case Segment::Kind::kLineEnd:
        line_.next = segment.end;
        line_.ends_paragraph = true;  // it is set as the last one is
        Finish(begin);
        line_.ends_paragraph = false;
        return line_;
      case Segment::Kind::kSoftHyphen:
      case Segment::Kind::kNoWidth:
        TakeHidden(at, segment.end, segment.kind == Segment::Kind::kSoftHyphen, look);
        break;
    }
    at = segment.end;
  }
  line_.ends_paragraph = line_.next == end;
  Finish(begin);
  return line_;
}

bool LineBuilder::TakeText(std::size_t begin, std::size_t end, bool break_behind, const FontLook& look) {
  const std::string_view text = std::string_view(document_.text).substr(begin, end - begin);
  const double width = looks_.WidthOf(look, text);
  if (group_.EndWith(width) > space_.right + kSlack) {
    if (!EndAtOpportunity()) Cut(begin, end, look);
    return false;
  }
  PieceFor(begin, end, look).width += width;
  if (group_.kind == TabKind::kDecimal && !group_.before_point) {
    const std::size_t point = text.find('.');
    if (point != std::string_view::npos) {
      group_.before_point = group_.width + looks_.WidthOf(look, text.substr(0, point));
    }
  }
  group_.width += width;
  group_.tail = 0;
  if (break_behind) MarkOpportunity(end, false);
  return true;
}

void LineBuilder::TakeBlanks(std::size_t begin, std::size_t end, const FontLook& look) {
  const double width = look.blank * static_cast<double>(end - begin);
  PieceFor(begin, end, look).width += width;
  group_.width += width;
  group_.tail += width;
  MarkOpportunity(end, false);
}

void LineBuilder::TakeHidden(std::size_t begin, std::size_t end, bool hyphen, const FontLook& look) {
  PieceFor(begin, end, look).hidden = true;
  if (!hyphen || group_.EndWith(looks_.WidthOf(look, "-")) <= space_.right + kSlack) {
    MarkOpportunity(end, hyphen);
  }
}

// The next of the paragraph's own stops, of which a hanging first line has one more; else of those that stand
// every half inch.
double LineBuilder::NextStop(double x, TabKind& kind) const {
  kind = TabKind::kLeft;
  double stop = space_.origin + (std::floor((x + kSlack - space_.origin) / kHalfInch) + 1) * kHalfInch;
  const auto is_behind = [&](const TabStop& tab) { return space_.origin + PointsOf(tab.at) > x + kSlack; };
  const auto found = std::ranges::partition_point(style_->tabs, std::not_fn(is_behind));
  if (found != style_->tabs.end() && is_behind(*found)) {
    kind = found->kind;
    stop = space_.origin + PointsOf(found->at);
  }
  const bool hangs = space_.first < space_.left && space_.left > x + kSlack;
  if (hangs && (space_.left < stop || found == style_->tabs.end())) {
    kind = TabKind::kLeft;
    stop = space_.left;
  }
  return stop;
}

// A tab that finds no stop on the line hangs over its end, as blanks do.
bool LineBuilder::TakeTab(std::size_t at, const FontLook& look) {
  SettleGroup();
  const double x = group_.Begin() + group_.width;
  LinePiece& piece = line_.pieces.emplace_back();
  piece = {.kind = Kind::kTab, .begin = at, .end = at + 1, .style = look.style, .x = x};
  Group group;
  group.stop = NextStop(x, group.kind);
  group.first_piece = line_.pieces.size();
  const bool fits = group.stop <= space_.right + kSlack;
  if (!fits) group.stop = std::max(space_.right, x);
  if (!fits && group.kind == TabKind::kLeft) {
    piece.width = group.stop - x;
    group.start = group.stop;
    group_ = group;
    line_.next = at + 1;
    return false;
  }
  group.start = group.kind == TabKind::kLeft ? group.stop : x;
  group_ = group;
  MarkOpportunity(at + 1, false);
  return true;
}

bool LineBuilder::TakePicture(std::size_t begin, std::size_t end, const FontLook& look) {
  const rich_text::Picture* picture = PictureAt(begin);
  if (picture == nullptr) return TakeText(begin, end, true, look);
  double width = std::max(Sane(PointsOf(picture->width)), kLeastLine);
  double height = std::max(Sane(PointsOf(picture->height)), kLeastLine);
  const double scale = std::min({1.0, std::max(space_.right - space_.left, kLeastLine) / width,
                                 std::max(space_.most_height, kLeastLine) / height});
  width *= scale;
  height *= scale;
  if (!line_.pieces.empty()) {
    MarkOpportunity(begin, false);
    if (group_.EndWith(width) > space_.right + kSlack) {
      EndAtOpportunity();
      return false;
    }
  }
  LinePiece& piece = line_.pieces.emplace_back();
  piece = {.kind = Kind::kPicture, .begin = begin, .end = end, .style = look.style, .width = width};
  piece.height = height;
  group_.width += width;
  group_.tail = 0;
  MarkOpportunity(end, false);
  return true;
}

LinePiece& LineBuilder::PieceFor(std::size_t begin, std::size_t end, const FontLook& look) {
  const bool goes_on = line_.pieces.size() > group_.first_piece && line_.pieces.back().kind == Kind::kText &&
                       line_.pieces.back().style == look.style;
  if (!goes_on) {
    line_.pieces.emplace_back();
    line_.pieces.back().begin = begin;
    line_.pieces.back().style = look.style;
  }
  line_.pieces.back().end = end;
  return line_.pieces.back();
}

void LineBuilder::MarkOpportunity(std::size_t next, bool hyphen) {
  has_opportunity_ = true;
  opportunity_.next = next;
  opportunity_.pieces = line_.pieces.size();
  opportunity_.last = line_.pieces.back();
  opportunity_.group = group_;
  opportunity_.hyphen = hyphen;
}

bool LineBuilder::EndAtOpportunity() {
  if (!has_opportunity_) return false;
  line_.next = opportunity_.next;
  line_.pieces.resize(opportunity_.pieces);
  line_.pieces.back() = opportunity_.last;
  group_ = opportunity_.group;
  line_.hyphen = opportunity_.hyphen;
  if (line_.hyphen) {
    LinePiece& last = line_.pieces.back();
    const double width = looks_.WidthOf(looks_.Of(last.style), "-");
    last.width += width;
    group_.width += width;
    group_.tail = 0;
  }
  return true;
}

// Ends the line with as much of a word as there is room for, and with one character where it is the first.
void LineBuilder::Cut(std::size_t begin, std::size_t end, const FontLook& look) {
  const std::string_view text = std::string_view(document_.text).substr(0, end);
  std::vector<std::size_t> ends;
  for (std::size_t at = begin; at < end;) ends.push_back(at = CharacterEnd(text, at));
  const auto width_to = [&](std::size_t place) {
    return looks_.WidthOf(look, text.substr(begin, place - begin));
  };
  const auto fits = [&](std::size_t place) {
    return group_.EndWith(width_to(place)) <= space_.right + kSlack;
  };
  auto cut = std::ranges::partition_point(ends, fits);
  if (cut == ends.begin() && line_.pieces.empty()) ++cut;
  line_.next = cut == ends.begin() ? begin : *(cut - 1);
  if (line_.next == begin) return;
  const double width = width_to(line_.next);
  PieceFor(begin, line_.next, look).width += width;
  group_.width += width;
  group_.tail = 0;
}

}  // namespace tarvane::paper
