#include "printing/grey_canvas.h"

#include <algorithm>
#include <cmath>

namespace tarvane::printing {
namespace {

constexpr int kWhite = 255;

// The pixels that an interval touches, within a side.
struct Reach {
  int first;
  int end;
};
Reach Touched(double from, double to, int side) {
  const auto within = [side](double at) {
    return static_cast<int>(std::clamp(at, 0.0, static_cast<double>(side)));
  };
  return {within(std::floor(from)), within(std::ceil(to))};
}

// How much of the pixel at `at` lies between the two.
double Covered(int at, double from, double to) {
  return std::clamp(std::min(to, at + 1.0) - std::max<double>(from, at), 0.0, 1.0);
}

}  // namespace

GreyCanvas::GreyCanvas(int width, int height)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), kWhite) {}

void GreyCanvas::Darken(int x, int y, double share, int grey) {
  std::uint8_t& pixel = pixels_[At(x, y)];
  // Above 0, so that cutting off rounds; lround would take twice as long.
  const double half_up = kWhite - share * (kWhite - grey) + 0.5;
  pixel = std::min(pixel, static_cast<std::uint8_t>(half_up));
}

void GreyCanvas::DrawLine(double x1, double y1, double x2, double y2, double thickness, int grey) {
  const double reach = thickness / 2 + 0.5;
  const double across = x2 - x1;
  const double down = y2 - y1;
  const double square = across * across + down * down;
  const double share_of_square = square > 0 ? 1 / square : 0;
  const Reach rows = Touched(std::min(y1, y2) - reach, std::max(y1, y2) + reach, height_);
  const Reach columns = Touched(std::min(x1, x2) - reach, std::max(x1, x2) + reach, width_);
  for (int y = rows.first; y < rows.end; ++y) {
    for (int x = columns.first; x < columns.end; ++x) {
      const double to_x = x + 0.5 - x1;
      const double to_y = y + 0.5 - y1;
      const double along = std::clamp((to_x * across + to_y * down) * share_of_square, 0.0, 1.0);
      const double aside_x = to_x - along * across;
      const double aside_y = to_y - along * down;
      const double distance = aside_x * aside_x + aside_y * aside_y;
      if (distance >= reach * reach) continue;
      Darken(x, y, std::min(1.0, reach - std::sqrt(distance)), grey);
    }
  }
}

void GreyCanvas::FillBox(double left, double top, double right, double bottom, int grey) {
  const Reach rows = Touched(top, bottom, height_);
  const Reach columns = Touched(left, right, width_);
  for (int y = rows.first; y < rows.end; ++y) {
    const double share = Covered(y, top, bottom);
    for (int x = columns.first; x < columns.end; ++x) Darken(x, y, share * Covered(x, left, right), grey);
  }
}

void GreyCanvas::FillStripes(int left, int top, int bottom, const std::vector<std::uint8_t>& greys) {
  const int begin = std::clamp(left, 0, width_);
  const int end = std::clamp(left + static_cast<int>(greys.size()), begin, width_);
  const std::uint8_t* grey = greys.data() + (begin - left);  // out of the loop, which then takes many at once
  for (int y = std::max(top, 0); y < std::min(bottom, height_); ++y) {
    std::uint8_t* row = &pixels_[At(begin, y)];
    for (int i = 0; i < end - begin; ++i) row[i] = std::min(row[i], grey[i]);
  }
}

}  // namespace tarvane::printing
