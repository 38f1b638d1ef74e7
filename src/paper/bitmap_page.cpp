#include "paper/bitmap_page.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cmath>
#include <fstream>
#include <numbers>
#include <system_error>

#include "text/fault.h"

namespace tarvane::paper {
namespace {

constexpr double kDotsPerInch = 96;
constexpr double kPointsPerInch = 72;
constexpr double kMostPixels = 8000;           // of a side
constexpr double kHeightOfSmallLetters = 0.5;  // of the font's size
constexpr std::size_t kHeadBytes = 54;
constexpr std::uint8_t kWhite = 255;

double Scale(const Size& size) {
  const double longest = std::max(size.width, size.height);
  const double usual = kDotsPerInch / kPointsPerInch;
  return longest * usual > kMostPixels ? kMostPixels / longest : usual;
}

int Pixels(double points, double scale) {
  return static_cast<int>(std::lround(std::clamp(points * scale, 1.0, kMostPixels)));
}

Color HalfAsStrong(const Color& color) {
  const auto half = [](std::uint8_t shade) { return static_cast<std::uint8_t>((shade + kWhite) / 2); };
  return {half(color.red), half(color.green), half(color.blue)};
}

std::vector<Point> CornersOf(const Area& area) {
  return {{area.left, area.top}, {area.right, area.top}, {area.right, area.bottom}, {area.left, area.bottom}};
}

std::vector<Point> RoundOf(const Area& area) {
  constexpr int kCorners = 72;
  std::vector<Point> corners;
  for (int i = 0; i < kCorners; ++i) {
    const double angle = 2 * std::numbers::pi * i / kCorners;
    corners.push_back({(area.left + area.right + area.width() * std::cos(angle)) / 2,
                       (area.top + area.bottom + area.height() * std::sin(angle)) / 2});
  }
  return corners;
}

}  // namespace

BitmapPage::BitmapPage(Measure& measure, const Paper& paper)
    : measure_(measure),
      paper_(paper),
      scale_(Scale(paper.size)),
      width_(Pixels(paper.size.width, scale_)),
      height_(Pixels(paper.size.height, scale_)),
      row_bytes_((static_cast<std::size_t>(width_) * 3 + 3) / 4 * 4),
      pixels_(row_bytes_ * static_cast<std::size_t>(height_), kWhite) {}

void BitmapPage::Clear() { std::ranges::fill(pixels_, kWhite); }

Color BitmapPage::At(int x, int y) const {
  const std::size_t at =
      static_cast<std::size_t>(height_ - 1 - y) * row_bytes_ + static_cast<std::size_t>(x) * 3;
  return {pixels_.at(at + 2), pixels_.at(at + 1), pixels_.at(at)};
}

Point BitmapPage::InPixels(Point point) const { return {point.x * scale_, point.y * scale_}; }

void BitmapPage::FillRow(int row, double from, double to, const Color& color) {
  const double width = width_;
  const auto first = static_cast<std::size_t>(std::lround(std::clamp(from, 0.0, width)));
  const auto end = static_cast<std::size_t>(std::lround(std::clamp(to, 0.0, width)));
  std::uint8_t* pixel = pixels_.data() + static_cast<std::size_t>(height_ - 1 - row) * row_bytes_ + first * 3;
  for (std::size_t x = first; x < end; ++x) {
    *pixel++ = color.blue;
    *pixel++ = color.green;
    *pixel++ = color.red;
  }
}

// Row by row from the leftmost to the rightmost edge, at the middle of the row.
void BitmapPage::Fill(const std::vector<Point>& corners, const Color& color) {
  double top = height_;
  double bottom = 0;
  for (const Point& corner : corners) {
    if (!std::isfinite(corner.x) || !std::isfinite(corner.y)) return;
    top = std::min(top, corner.y);
    bottom = std::max(bottom, corner.y);
  }
  const double end = std::min<double>(height_, std::ceil(bottom));
  for (int row = static_cast<int>(std::max(0.0, std::floor(top))); row < end; ++row) {
    const double middle = row + 0.5;
    double left = width_;
    double right = 0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
      const Point& one = corners[i];
      const Point& other = corners[(i + 1) % corners.size()];
      if ((one.y <= middle) == (other.y <= middle)) continue;
      const double x = one.x + (middle - one.y) / (other.y - one.y) * (other.x - one.x);
      left = std::min(left, x);
      right = std::max(right, x);
    }
    FillRow(row, left, right, color);
  }
}

void BitmapPage::DrawLine(Point from, Point to, const Stroke& stroke) {
  const Point one = InPixels(from);
  const Point other = InPixels(to);
  const double length = std::hypot(other.x - one.x, other.y - one.y);
  if (!(length > 0)) return;
  // A pixel at least, so that no line is lost.
  const double half = std::max(stroke.width * scale_, 1.0) / 2;
  const double across = -(other.y - one.y) / length * half;
  const double down = (other.x - one.x) / length * half;
  Fill({{one.x + across, one.y + down},
        {other.x + across, other.y + down},
        {other.x - across, other.y - down},
        {one.x - across, one.y - down}},
       stroke.color);
}

void BitmapPage::Outline(const std::vector<Point>& corners, const Stroke& stroke) {
  for (std::size_t i = 0; i < corners.size(); ++i) {
    DrawLine(corners[i], corners[(i + 1) % corners.size()], stroke);
  }
}

void BitmapPage::DrawBox(const Area& area, const Stroke* outline, const Color* fill) {
  const Point corner = InPixels({area.left, area.top});
  const Point other = InPixels({area.right, area.bottom});
  if (fill != nullptr) Fill(CornersOf({corner.x, corner.y, other.x, other.y}), *fill);
  if (outline != nullptr) Outline(CornersOf(area), *outline);
}

void BitmapPage::DrawEllipse(const Area& area, const Stroke* outline, const Color* fill) {
  const Point corner = InPixels({area.left, area.top});
  const Point other = InPixels({area.right, area.bottom});
  if (fill != nullptr) Fill(RoundOf({corner.x, corner.y, other.x, other.y}), *fill);
  if (outline != nullptr) Outline(RoundOf(area), *outline);
}

void BitmapPage::DrawPicture(const Picture&, const Area& area) {
  const Stroke frame{.color = {128, 128, 128}};
  DrawBox(area, &frame, nullptr);
}

void BitmapPage::DrawText(Point at, const Font& font, std::string_view text, const TextLook& look) {
  const double angle = look.angle * std::numbers::pi / 180;
  const double blank = measure_.WidthOf(font, " ") + look.blank;
  const double height = font.points * kHeightOfSmallLetters;
  const Color color = HalfAsStrong(look.color);
  // Along the base line and up from it.
  const auto place = [&](double along, double up) {
    return InPixels({at.x + along * std::cos(angle) - up * std::sin(angle),
                     at.y - along * std::sin(angle) - up * std::cos(angle)});
  };
  double along = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const double width = measure_.WidthOf(font, text.substr(0, end));
    if (end > 0)
      Fill({place(along, 0), place(along + width, 0), place(along + width, height), place(along, height)},
           color);
    along += width + blank;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

void BitmapPage::Save(const std::filesystem::path& file) const {
  std::array<char, kHeadBytes> head{};
  const auto put = [&head](std::size_t at, std::size_t value, std::size_t bytes) {
    for (std::size_t i = 0; i < bytes; ++i) head[at + i] = static_cast<char>(value >> (8 * i));
  };
  const auto dots_per_metre = static_cast<std::size_t>(std::lround(scale_ * kPointsPerInch / 0.0254));
  put(0, 0x4D42, 2);  // "BM"
  put(2, kHeadBytes + pixels_.size(), 4);
  put(10, kHeadBytes, 4);
  put(14, 40, 4);  // what follows of the head
  put(18, static_cast<std::size_t>(width_), 4);
  put(22, static_cast<std::size_t>(height_), 4);
  put(26, 1, 2);   // planes
  put(28, 24, 2);  // bits a pixel
  put(34, pixels_.size(), 4);
  put(38, dots_per_metre, 4);
  put(42, dots_per_metre, 4);
  errno = 0;
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  const bool opened = out.is_open();
  out.write(head.data(), static_cast<std::streamsize>(head.size()));
  out.write(reinterpret_cast<const char*>(pixels_.data()), static_cast<std::streamsize>(pixels_.size()));
  out.close();
  if (out) return;
  const std::string cause = errno != 0 ? std::generic_category().message(errno) : "the device refused it";
  std::error_code ignored;
  if (opened && std::filesystem::is_regular_file(file, ignored)) std::filesystem::remove(file, ignored);
  throw Fault(file.string() + " could not be written: " + cause + ".");
}

}  // namespace tarvane::paper
