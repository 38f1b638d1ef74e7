#pragma once

#include <cstdint>
#include <vector>

#include "paper/page_picture.h"

namespace tarvane::paper {

// The page picture of programs without a window, at 96 dots an inch (fewer for sheets of more than some
// metres). It has no fonts: each word is a bar in half the strength of its colour, as wide as the word and as
// high as small letters are; pictures are frames. Enough to see where things stand.
class BitmapPage : public PagePicture {
 public:
  // `measure` must outlive it.
  BitmapPage(Measure& measure, const Paper& paper);

  int width() const { return width_; }  // pixels, at least 1
  int height() const { return height_; }
  Color At(int x, int y) const;  // within it

  void Clear() override;
  void Save(const std::filesystem::path& file) const override;

  Extent ExtentOf(const Font& font) override { return measure_.ExtentOf(font); }
  double WidthOf(const Font& font, std::string_view text) override { return measure_.WidthOf(font, text); }
  const Paper& paper() const override { return paper_; }
  void NewPage() override { Clear(); }
  void DrawText(Point at, const Font& font, std::string_view text, const TextLook& look) override;
  void DrawLine(Point from, Point to, const Stroke& stroke) override;
  void DrawBox(const Area& area, const Stroke* outline, const Color* fill) override;
  void DrawEllipse(const Area& area, const Stroke* outline, const Color* fill) override;
  void DrawPicture(const Picture& picture, const Area& area) override;

 private:
  Point InPixels(Point point) const;
  // A shape without dents, in pixels.
  void Fill(const std::vector<Point>& corners, const Color& color);
  void Outline(const std::vector<Point>& corners, const Stroke& stroke);
  void FillRow(int row, double from, double to, const Color& color);

  Measure& measure_;
  Paper paper_;
  double scale_;  // pixels a point
  int width_;
  int height_;
  std::size_t row_bytes_;             // a multiple of 4
  std::vector<std::uint8_t> pixels_;  // blue, green, red; the lowest row first, as the file has them
};

}  // namespace tarvane::paper
