#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "paper/surface.h"

namespace tarvane::paper {

struct RecordedText {
  Point at;
  Font font;
  TextLook look;
  std::string text;
  double column_width = 0;  // of its font
  double width = 0;         // of the text as it stands
};
struct RecordedShape {
  enum class Kind { kLine, kBox, kEllipse, kPicture };
  Kind kind = Kind::kLine;
  Area area;  // a line goes from its left, top to its right, bottom
  std::optional<Stroke> outline;
  std::optional<Color> fill;
  Picture picture;
};
// In the order in which it was drawn.
struct RecordedPage {
  std::vector<std::variant<RecordedText, RecordedShape>> items;
};

// Keeps what is drawn on it.
class Recorder : public Surface {
 public:
  // `measure` must outlive it.
  Recorder(Measure& measure, Paper paper) : measure_(measure), paper_(paper), pages_(1) {}

  const std::vector<RecordedPage>& pages() const { return pages_; }

  Extent ExtentOf(const Font& font) override { return measure_.ExtentOf(font); }
  double WidthOf(const Font& font, std::string_view text) override { return measure_.WidthOf(font, text); }
  const Paper& paper() const override { return paper_; }
  void NewPage() override { pages_.emplace_back(); }
  void DrawText(Point at, const Font& font, std::string_view text, const TextLook& look) override;
  void DrawLine(Point from, Point to, const Stroke& stroke) override;
  void DrawBox(const Area& area, const Stroke* outline, const Color* fill) override;
  void DrawEllipse(const Area& area, const Stroke* outline, const Color* fill) override;
  void DrawPicture(const Picture& picture, const Area& area) override;

 private:
  double ColumnOf(const Font& font);

  Measure& measure_;
  Paper paper_;
  std::vector<RecordedPage> pages_;
  Font column_font_;  // what column_width_ belongs to
  double column_width_ = -1;
};

// What was recorded, to be printed or looked at.
class RecordedPages : public Pages {
 public:
  RecordedPages(std::vector<RecordedPage> pages, Paper paper) : pages_(std::move(pages)), paper_(paper) {}

  int Count() const override { return static_cast<int>(pages_.size()); }
  const Paper& paper() const override { return paper_; }
  void Draw(int page, Surface& surface) const override;

 private:
  std::vector<RecordedPage> pages_;
  Paper paper_;
};

// The texts of a page as lines from the top down, without blanks at their ends. Pieces that adjoin make one
// text; others are set out at columns of their own font's width, counted from `left` (points), or stand a
// blank behind the one before where that reaches beyond.
std::vector<std::string> LinesOf(const RecordedPage& page, double left);

}  // namespace tarvane::paper
