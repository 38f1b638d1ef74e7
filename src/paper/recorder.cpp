#include "paper/recorder.h"

#include <algorithm>
#include <cmath>

#include "text/utf8.h"

namespace tarvane::paper {
namespace {

template <typename Value>
std::optional<Value> Copied(const Value* value) {
  return value != nullptr ? std::optional(*value) : std::nullopt;
}

template <typename Value>
const Value* PointerTo(const std::optional<Value>& value) {
  return value ? &*value : nullptr;
}

constexpr double kFarthestColumn = 1000;
constexpr double kFarthestLine = 1e6;

long LineOf(const RecordedText& text) {
  return std::isfinite(text.at.y) ? std::lround(std::clamp(text.at.y, -kFarthestLine, kFarthestLine)) : 0;
}

double PlaceOf(const RecordedText& text) { return std::isfinite(text.at.x) ? text.at.x : 0; }

std::vector<const RecordedText*> TextsInOrder(const RecordedPage& page) {
  std::vector<const RecordedText*> texts;
  for (const auto& item : page.items) {
    if (const auto* text = std::get_if<RecordedText>(&item)) texts.push_back(text);
  }
  std::ranges::stable_sort(texts, [](const RecordedText* one, const RecordedText* other) {
    const long line = LineOf(*one);
    const long other_line = LineOf(*other);
    return line != other_line ? line < other_line : PlaceOf(*one) < PlaceOf(*other);
  });
  return texts;
}

// Whether a text goes on where the one before ends.
bool Adjoin(const RecordedText& before, const RecordedText& text) {
  static constexpr double kTolerance = 0.2;  // of a column: less than a blank is wide
  const double gap = text.at.x - (before.at.x + before.width);
  return std::abs(gap) < kTolerance * std::max(before.column_width, text.column_width);
}

std::size_t BlanksBefore(const std::string& line, const RecordedText& text, double left) {
  const double column = text.column_width > 0 ? (text.at.x - left) / text.column_width : 0;
  const auto wanted = static_cast<std::size_t>(
      std::isfinite(column) ? std::lround(std::clamp(column, 0.0, kFarthestColumn)) : 0);
  const std::size_t width = CountCharacters(line);
  if (wanted > width) return wanted - width;
  return line.empty() || line.back() == ' ' || text.text.empty() ? 0 : 1;
}

void TrimEnd(std::string& line) { line.resize(line.find_last_not_of(' ') + 1); }

void Replay(const RecordedText& text, Surface& surface) {
  surface.DrawText(text.at, text.font, text.text, text.look);
}

void Replay(const RecordedShape& shape, Surface& surface) {
  const Area& area = shape.area;
  switch (shape.kind) {
    case RecordedShape::Kind::kLine:
      return surface.DrawLine({area.left, area.top}, {area.right, area.bottom},
                              shape.outline.value_or(Stroke{}));
    case RecordedShape::Kind::kBox:
      return surface.DrawBox(area, PointerTo(shape.outline), PointerTo(shape.fill));
    case RecordedShape::Kind::kEllipse:
      return surface.DrawEllipse(area, PointerTo(shape.outline), PointerTo(shape.fill));
    case RecordedShape::Kind::kPicture:
      return surface.DrawPicture(shape.picture, area);
  }
}

}  // namespace

void Recorder::DrawText(Point at, const Font& font, std::string_view text, const TextLook& look) {
  const double width =
      text.empty()
          ? 0
          : measure_.WidthOf(font, text) +
                (look.blank != 0 ? look.blank * static_cast<double>(std::ranges::count(text, ' ')) : 0);
  pages_.back().items.emplace_back(RecordedText{at, font, look, std::string(text), ColumnOf(font), width});
}

double Recorder::ColumnOf(const Font& font) {
  if (column_width_ < 0 || font != column_font_) {
    column_font_ = font;
    column_width_ = ColumnWidth(measure_, font);
  }
  return column_width_;
}

void Recorder::DrawLine(Point from, Point to, const Stroke& stroke) {
  pages_.back().items.emplace_back(
      RecordedShape{RecordedShape::Kind::kLine, {from.x, from.y, to.x, to.y}, stroke, {}, {}});
}

void Recorder::DrawBox(const Area& area, const Stroke* outline, const Color* fill) {
  pages_.back().items.emplace_back(
      RecordedShape{RecordedShape::Kind::kBox, area, Copied(outline), Copied(fill), {}});
}

void Recorder::DrawEllipse(const Area& area, const Stroke* outline, const Color* fill) {
  pages_.back().items.emplace_back(
      RecordedShape{RecordedShape::Kind::kEllipse, area, Copied(outline), Copied(fill), {}});
}

void Recorder::DrawPicture(const Picture& picture, const Area& area) {
  pages_.back().items.emplace_back(RecordedShape{RecordedShape::Kind::kPicture, area, {}, {}, picture});
}

void RecordedPages::Draw(int page, Surface& surface) const {
  for (const auto& item : pages_.at(static_cast<std::size_t>(page)).items) {
    std::visit([&](const auto& drawn) { Replay(drawn, surface); }, item);
  }
}

std::vector<std::string> LinesOf(const RecordedPage& page, double left) {
  std::vector<std::string> lines;
  const RecordedText* last = nullptr;
  for (const RecordedText* text : TextsInOrder(page)) {
    if (last == nullptr || LineOf(*last) != LineOf(*text)) {
      if (!lines.empty()) TrimEnd(lines.back());
      lines.emplace_back();
      last = nullptr;
    }
    std::string& line = lines.back();
    if (last == nullptr || !Adjoin(*last, *text)) line.append(BlanksBefore(line, *text, left), ' ');
    line += text->text;
    last = text;
  }
  if (!lines.empty()) TrimEnd(lines.back());
  return lines;
}

}  // namespace tarvane::paper
