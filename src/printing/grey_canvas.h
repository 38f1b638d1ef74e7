#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarvane::printing {

// A small picture in shades of grey, white at first. Places in pixels, to the right of and down from the
// upper left corner; what lies outside is cut off.
class GreyCanvas {
 public:
  GreyCanvas(int width, int height);  // above 0, both

  int width() const { return width_; }
  int height() const { return height_; }
  const std::uint8_t* Row(int y) const { return &pixels_[At(0, y)]; }

  // Where it is darker than what stands there; with smooth edges and round ends. `grey`: 0 is black.
  void DrawLine(double x1, double y1, double x2, double y2, double thickness, int grey);
  void FillBox(double left, double top, double right, double bottom, int grey);
  // Upright stripes, each a pixel wide, from the whole pixel at `left` on; one for each of `greys`.
  void FillStripes(int left, int top, int bottom, const std::vector<std::uint8_t>& greys);

 private:
  std::size_t At(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
  }
  void Darken(int x, int y, double share, int grey);

  int width_;
  int height_;
  std::vector<std::uint8_t> pixels_;
};

// As a PNG file.
std::string PngOf(const GreyCanvas& canvas);

}  // namespace tarvane::printing
