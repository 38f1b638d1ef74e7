// Lines, shapes, images, links and bookmarks.
#include <array>

#include "pdf/file_access.h"
#include "pdf/markers.h"
#include "pdf/tqr_pdf.h"

namespace tarvane::pdf {
namespace {

struct ModeOperators {
  bool draw_color;
  bool line_color;
  std::string_view rectangle;
  std::string_view shape;  // ellipse and polygon
};
// By DrawMode.
constexpr std::array<ModeOperators, 3> kModes = {
    {{false, true, "s", "s"}, {true, false, "f", "h f"}, {true, true, "B", "B"}}};

const ModeOperators& ModeOf(int draw_mode) { return kModes[static_cast<size_t>(draw_mode)]; }

}  // namespace

void tqrPDF::AppendModeColors() {
  if (ModeOf(pen_.draw_mode).draw_color) page_.Line(pen_.draw_color);
  if (ModeOf(pen_.draw_mode).line_color) page_.Line(pen_.line_color);
}

void tqrPDF::BeginPath() {
  if (strict_) page_.Line(Fixed{Length(pen_.line_width)}, " w");
}

void tqrPDF::EndPath(std::string_view paint) {
  if (strict_) {
    page_.Line(paint);
  } else {
    page_.Line(Fixed{Length(pen_.line_width)}, " w ", paint);
  }
}

void tqrPDF::AppendLine(const Marker& marker, double x1, double y1, double x2, double y2) {
  page_.Line(pen_.line_color);
  page_.Line(marker.open);
  BeginPath();
  page_.Line(Fixed{PointsX(x1)}, " ", Fixed{PointsY(y1)}, " m");
  page_.Line(Fixed{PointsX(x2)}, " ", Fixed{PointsY(y2)}, " l");
  EndPath("S");
  page_.Line(marker.close);
}

void tqrPDF::PDFDrawLineHor(double x, double y, double length) {
  AppendLine(kHorizontalMarker, x, y, x + length, y);
}

void tqrPDF::PDFDrawLineVer(double x, double y, double length) {
  AppendLine(kVerticalMarker, x, y, x, y + length);
}

void tqrPDF::PDFDrawLine(double x1, double y1, double x2, double y2) {
  AppendLine(kLineMarker, x1, y1, x2, y2);
}

void tqrPDF::PDFDrawRectangle(double x, double y, double width, double height, const std::string& link) {
  page_.Line(kRectangleMarker.open);
  AppendModeColors();
  BeginPath();
  page_.Line(Fixed{PointsX(x)}, " ", Fixed{PointsY(y)}, " ", Fixed{Length(width)}, " ",
             Fixed{Length(-height)}, " re ", ModeOf(pen_.draw_mode).rectangle);
  if (!strict_) EndPath("S");
  if (!link.empty()) RecordLink(x, y, width, height, link);
  page_.Line(kRectangleMarker.close);
}

void tqrPDF::PDFDrawEllipse(double width, double x, double y, double height) {
  static constexpr double kControl = 11.0 / 20.0;
  // The four curves as multiples of the half axes from the middle: two control points and the end of each.
  static constexpr Point kCurves[4][3] = {{{kControl, -1}, {1, -kControl}, {1, 0}},
                                          {{1, kControl}, {kControl, 1}, {0, 1}},
                                          {{-kControl, 1}, {-1, kControl}, {-1, 0}},
                                          {{-1, -kControl}, {-kControl, -1}, {0, -1}}};
  const double half_width = width / 2;
  const double half_height = (height == 0 ? width : height) / 2;
  const auto at_x = [&](const Point& point) { return Fixed{PointsX(x + half_width + point.x * half_width)}; };
  const auto at_y = [&](const Point& point) {
    return Fixed{PointsY(y + half_height + point.y * half_height)};
  };
  AppendModeColors();
  BeginPath();
  const Point top_middle{0, -1};
  page_.Line(at_x(top_middle), " ", at_y(top_middle), " m");
  for (const auto& [first, second, end] : kCurves) {
    page_.Line(at_x(first), " ", at_y(first), " ", at_x(second), " ", at_y(second), " ", at_x(end), " ",
               at_y(end), " c");
  }
  page_.Line(ModeOf(pen_.draw_mode).shape);
  if (!strict_) page_.Line(Fixed{Length(pen_.line_width)}, " w");
}

void tqrPDF::PDFDrawPolygon(const std::vector<Point>& points) {
  if (points.empty()) return;
  page_.Line(kPolygonMarker.open);
  AppendModeColors();
  BeginPath();
  for (size_t index = 0; index < points.size(); ++index) {
    page_.Line(Fixed{PointsX(points[index].x)}, " ", Fixed{PointsY(points[index].y)},
               index == 0 ? " m" : " l");
  }
  page_.Line("h");
  EndPath(ModeOf(pen_.draw_mode).shape);
  page_.Line(kPolygonMarker.close);
}

bool tqrPDF::ReadImage(const std::string& path, Image& image) const {
  image.bytes.clear();
  ReadWhole(ToPath(path), image.bytes);
  const auto error = ParseJpeg(image.bytes, image.info);
  if (error) Show(ImageMessage(*error, path));
  return !error;
}

void tqrPDF::PDFImage(const std::string& path, double x, double y, double& width, double& height) {
  if (path.find('.') == std::string::npos) return Show(ImageMessage(ImageError::kNoExtension, path));
  if (!path.ends_with("jpg") && !path.ends_with("jpeg"))
    return Show(ImageMessage(ImageError::kNotJpegName, path));
  Image image;
  if (!ReadImage(path, image)) return;
  if (strict_ && (image.info.color_space.empty() || image.info.bits_per_component != 8))
    return Show(ImageMessage(ImageError::kUnusualColors, path));
  width = Sane(width, scale_);
  height = Sane(height, scale_);
  if (width == 0 && height == 0) {
    width = image.info.width / scale_;
    height = image.info.height / scale_;
  }
  if (width == 0) width = image.info.width * height / image.info.height;
  if (height == 0) height = image.info.height * width / image.info.width;
  PDFPlacePicture(PDFAddPicture(std::move(image)), x, y, width, height);
}

int tqrPDF::PDFAddPicture(Image picture) {
  images_.push_back(std::move(picture));
  return static_cast<int>(images_.size());
}

void tqrPDF::PDFPlacePicture(int number, double x, double y, double width, double height) {
  page_.Line(kImageMarker.open).Line("q");
  page_.Line(Fixed{Length(width)}, " 0 0 ", Fixed{Length(height)}, " ", Fixed{PointsX(x)}, " ",
             Fixed{PointsY(y + height)}, " cm /ImgJPEG", number, " Do Q");
  page_.Line(kImageMarker.close);
  last_image_ = {PointsX(x), PointsY(y + height), PointsX(x + width), PointsY(y)};
}

int tqrPDF::PDFImageWidth(const std::string& path) {
  Image image;
  return ReadImage(path, image) ? image.info.width : 0;
}

int tqrPDF::PDFImageHeight(const std::string& path) {
  Image image;
  return ReadImage(path, image) ? image.info.height : 0;
}

void tqrPDF::RecordLink(const Area& area, const std::string& address) {
  pages_.back().links.push_back({area, address});
  links_.Line(kLinkMarker.open).Line(kLinkMarker.close);
}

void tqrPDF::RecordLink(double x, double y, double width, double height, const std::string& address) {
  RecordLink({PointsX(x), PointsY(y + height), PointsX(x + width), PointsY(y)}, address);
}

void tqrPDF::PDFLink(const std::string& address) { RecordLink(last_image_, address); }

void tqrPDF::PDFSetBookmark(const std::string& text, int level, double y) {
  bookmarks_.push_back({text, level, page_count_, PointsY(y)});
}

}  // namespace tarvane::pdf
