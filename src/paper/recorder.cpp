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
  pages_.back().items.emplace_back(
      RecordedText{at, font, look, std::string(text), ColumnWidth(measure_, font)});
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
  std::vector<const RecordedText*> texts;
  for (const auto& item : page.items) {
    if (const auto* text = std::get_if<RecordedText>(&item)) texts.push_back(text);
  }
  std::ranges::stable_sort(texts, [](const RecordedText* one, const RecordedText* other) {
    const long line = std::lround(one->at.y);
    const long other_line = std::lround(other->at.y);
    return line != other_line ? line < other_line : one->at.x < other->at.x;
  });
  std::vector<std::string> lines;
  const RecordedText* last = nullptr;
  for (const RecordedText* text : texts) {
    if (last == nullptr || std::lround(last->at.y) != std::lround(text->at.y)) lines.emplace_back();
    std::string& line = lines.back();
    const double column = text->column_width > 0 ? (text->at.x - left) / text->column_width : 0;
    const auto blanks = static_cast<std::size_t>(std::lround(std::clamp(column, 0.0, 1000.0)));
    const std::size_t width = CountCharacters(line);
    if (width < blanks) line.append(blanks - width, ' ');
    line += text->text;
    last = text;
  }
  return lines;
}

}  // namespace tarvane::paper
