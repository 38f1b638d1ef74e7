#include <algorithm>
#include <cmath>

#include "printing/multi_page_preview.h"

namespace tarvane::printing {
namespace {

constexpr double kDotsPerInch = 600;

std::uint8_t Byte(double shade) {
  return static_cast<std::uint8_t>(std::lround(std::clamp(shade, 0.0, 255.0)));
}

}  // namespace

paper::Point clsMultiPgPreview::OnSheet(double x, double y) const {
  return {paper_.unprintable.left + x * per_unit_, paper_.unprintable.top + y * per_unit_};
}

paper::Color clsMultiPgPreview::ColorOf(std::int32_t number) const {
  const auto bits = static_cast<std::uint32_t>(number == kCurrentColor ? fore_color_ : number);
  const paper::Color color{static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
                           static_cast<std::uint8_t>(bits >> 16)};
  if (color_mode_ != 1) return color;
  const std::uint8_t grey = Byte(0.299 * color.red + 0.587 * color.green + 0.114 * color.blue);
  return {grey, grey, grey};
}

paper::Stroke clsMultiPgPreview::StrokeOf(double line_width, std::int32_t color) const {
  const double dots = line_width > 0 ? line_width : std::max(draw_width_, 1.0);
  return {dots * kPointsPerInch / kDotsPerInch, ColorOf(color)};
}

void clsMultiPgPreview::Rule(double left, double right, double line_width) {
  if (left == kNotGiven) left = x_;
  if (right == kNotGiven || right >= paper_width_) right = paper_width_;
  if (recorder_) {
    recorder_->DrawLine(OnSheet(left, y_), OnSheet(right, y_), StrokeOf(line_width, kCurrentColor));
  }
}

void clsMultiPgPreview::pLine(double left, double right, double line_width, bool newline) {
  Rule(left, right, line_width);
  if (newline) y_ += RuleGap();
}

void clsMultiPgPreview::pDoubleLine(double left, double right, double line_width, bool newline) {
  y_ += RuleGap();
  Rule(left, right, line_width);
  y_ += RuleGap();
  Rule(left, right, line_width);
  if (newline) y_ += RuleGap();
}

void clsMultiPgPreview::pVerticalLine(double x, double top, double bottom, double line_width) {
  static constexpr double kLastLine = 0.01;
  if (x == kNotGiven) x = x_;
  if (x >= paper_width_) x = paper_width_ - kLastLine;
  if (top == kNotGiven) top = y_;
  if (bottom == kNotGiven) bottom = paper_height_ - 2 * LineHeight();
  if (recorder_) {
    recorder_->DrawLine(OnSheet(x, top), OnSheet(x, bottom), StrokeOf(line_width, kCurrentColor));
  }
}

void clsMultiPgPreview::pBox(double x, double y, double width, double height, std::int32_t color,
                             std::int16_t fill_style, double line_width) {
  if (!recorder_) return;
  if (x == kNotGiven) x = x_;
  if (y == kNotGiven) y = y_;
  const paper::Point one = OnSheet(x, y);
  const paper::Point other = OnSheet(width == kNotGiven ? paper_width_ : x + width,
                                     y + (height == kNotGiven ? LineHeight() : height));
  const paper::Stroke outline = StrokeOf(line_width, color);
  recorder_->DrawBox({std::min(one.x, other.x), std::min(one.y, other.y), std::max(one.x, other.x),
                      std::max(one.y, other.y)},
                     &outline, fill_style == kHollow ? nullptr : &outline.color);
}

void clsMultiPgPreview::pCircle(double x, double y, double radius, std::int32_t color,
                                std::int16_t fill_style, double aspect) {
  if (!recorder_ || !(radius > 0)) return;
  if (!(aspect > 0)) aspect = 1;
  const paper::Point centre = OnSheet(x == kNotGiven ? x_ : x, y == kNotGiven ? y_ : y);
  const double across = radius * per_unit_ / std::max(aspect, 1.0);
  const double down = radius * per_unit_ * std::min(aspect, 1.0);
  const paper::Stroke outline = StrokeOf(0, color);
  recorder_->DrawEllipse({centre.x - across, centre.y - down, centre.x + across, centre.y + down}, &outline,
                         fill_style == kHollow ? nullptr : &outline.color);
}

void clsMultiPgPreview::pPrintPicture(const paper::Picture& picture, double x, double y, double width,
                                      double height, bool fit, bool centre) {
  if (!recorder_ || picture.width <= 0 || picture.height <= 0) return;
  const double own_width = picture.width / (rich_text::kTwipsPerPoint * per_unit_);
  const double own_height = picture.height / (rich_text::kTwipsPerPoint * per_unit_);
  if (x == kNotGiven) x = x_;
  if (y == kNotGiven) y = y_;
  if (width == kNotGiven) width = own_width;
  if (height == kNotGiven) height = own_height;
  if (!(width > 0) || !(height > 0)) return;
  const double room = width;
  if (fit) {
    const double scale = std::min(width / own_width, height / own_height);
    width = own_width * scale;
    height = own_height * scale;
  }
  if (centre) x += (room - width) / 2;
  const paper::Point corner = OnSheet(x, y);
  recorder_->DrawPicture(picture,
                         {corner.x, corner.y, corner.x + width * per_unit_, corner.y + height * per_unit_});
}

}  // namespace tarvane::printing
