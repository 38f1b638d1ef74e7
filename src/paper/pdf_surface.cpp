#include "paper/pdf_surface.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "paper/png_file.h"
#include "paper/standard_text.h"
#include "pdf/jpeg.h"
#include "text/fault.h"
#include "text/utf8.h"

namespace tarvane::paper {
namespace {

// A place of 0 would stand for the one where the text before ended.
constexpr double kAlmostZero = 1e-6;
constexpr double kWidest = 1e6;
constexpr double kLargestFont = 10'000;
constexpr double kLeastWidth = 0.01;

double Placed(double place) { return place == 0 || !std::isfinite(place) ? kAlmostZero : place; }

pdf::Color ColorOf(const Color& color) {
  return {static_cast<double>(color.red), static_cast<double>(color.green), static_cast<double>(color.blue)};
}

pdf::FontFamily FamilyOf(std::string_view standard_font) {
  if (standard_font.starts_with("Courier")) return pdf::kCourier;
  if (standard_font.starts_with("Times")) return pdf::kTimes;
  return standard_font.starts_with("Symbol") ? pdf::kSymbol : pdf::kArial;
}

std::optional<pdf::Image> JpegOf(const Picture& picture) {
  pdf::Image image{{}, picture.bytes, ""};
  const bool sound = !pdf::ParseJpeg(image.bytes, image.info);
  if (!sound || image.info.color_space.empty() || image.info.bits_per_component != 8) return std::nullopt;
  return image;
}

std::optional<pdf::Image> PngOf(const Picture& picture) {
  std::optional<PackedPixels> pixels = ReadPng(picture.bytes);
  if (!pixels) return std::nullopt;
  pdf::Image image;
  image.info.width = static_cast<int>(pixels->width);
  image.info.height = static_cast<int>(pixels->height);
  image.info.bits_per_component = pixels->bits;
  image.pixels = "/ColorSpace " + pixels->colors;
  if (!pixels->predictor.empty()) image.pixels += " /DecodeParms [" + pixels->predictor + "]";
  image.bytes = std::move(pixels->bytes);
  return image;
}

}  // namespace

void PdfSurface::SetFont(const Font& font) {
  const bool same = font_set_ && font.points == font_.points && font.bold == font_.bold &&
                    font.italic == font_.italic && font.name == font_.name;
  if (same) return;
  font_ = font;
  font_set_ = true;
  const double points = std::isfinite(font.points) ? std::clamp(font.points, 0.1, kLargestFont) : 10;
  const int style = (font.bold ? pdf::kBold : 0) | (font.italic ? pdf::kItalic : 0);
  document_.PDFSetFont(FamilyOf(StandardFontOf(font)), points, style);
}

void PdfSurface::DrawText(Point at, const Font& font, std::string_view text, const TextLook& look) {
  const std::string_view standard = StandardText(text, room_);
  if (standard.empty()) return;
  if (standard.data() != text.data()) AddLacking(standard, lacking_);
  text = standard;
  SetFont(font);
  if (look.color != text_color_) document_.PDFSetTextColor(ColorOf(text_color_ = look.color));
  document_.PDFSetRotation(look.angle);
  document_.PDFSetWiderBlanks(look.blank);
  // What stands further out than any paper reaches can't be measured.
  const auto most = static_cast<std::size_t>(kWidest / std::max(font.points, 1.0));
  std::string shown(text.size() > most ? FirstCharacters(text, most) : text);
  document_.PDFTextOut(shown, Placed(at.x), Placed(at.y));
  if (!font.underline && !font.strike) return;
  const auto blanks = static_cast<double>(std::ranges::count(shown, ' '));
  DrawTextLines(at, font, measure_.WidthOf(font, shown) + blanks * look.blank, look);
}

void PdfSurface::DrawTextLines(Point at, const Font& font, double width, const TextLook& look) {
  static constexpr double kUnder = 0.1;  // of the font's size
  static constexpr double kOver = -0.28;
  static constexpr double kThick = 0.05;
  const double angle = look.angle * std::numbers::pi / 180;
  const double across = std::cos(angle);
  const double down = -std::sin(angle);
  const auto draw = [&](double below) {
    const Point from{at.x - below * down, at.y + below * across};
    DrawLine(from, {from.x + width * across, from.y + width * down}, {font.points * kThick, look.color});
  };
  if (font.underline) draw(font.points * kUnder);
  if (font.strike) draw(font.points * kOver);
}

void PdfSurface::SetStroke(const Stroke& stroke) {
  document_.PDFSetLineColor(ColorOf(stroke.color));
  document_.PDFSetLineWidth(std::max(stroke.width, 0.0));
}

void PdfSurface::DrawLine(Point from, Point to, const Stroke& stroke) {
  SetStroke(stroke);
  document_.PDFDrawLine(from.x, from.y, to.x, to.y);
}

// False where there is nothing to draw.
bool PdfSurface::SetShape(const Stroke* outline, const Color* fill) {
  if (outline == nullptr && fill == nullptr) return false;
  if (outline != nullptr) SetStroke(*outline);
  if (fill != nullptr) document_.PDFSetDrawColor(ColorOf(*fill));
  document_.PDFSetDrawMode(fill == nullptr      ? pdf::kOutline
                           : outline == nullptr ? pdf::kFill
                                                : pdf::kFillAndOutline);
  return true;
}

void PdfSurface::DrawBox(const Area& area, const Stroke* outline, const Color* fill) {
  if (SetShape(outline, fill)) document_.PDFDrawRectangle(area.left, area.top, area.width(), area.height());
}

void PdfSurface::DrawEllipse(const Area& area, const Stroke* outline, const Color* fill) {
  if (!SetShape(outline, fill)) return;
  document_.PDFDrawEllipse(area.width(), area.left, area.top, std::max(area.height(), kLeastWidth));
}

int PdfSurface::NumberOf(const Picture& picture) {
  const std::pair key{picture.bytes.size(), std::hash<std::string>()(picture.bytes)};
  const auto [entry, is_new] = pictures_.try_emplace(key, 0);
  if (!is_new) return entry->second;
  std::optional<pdf::Image> image =
      picture.format == Picture::Format::kJpeg ? JpegOf(picture) : PngOf(picture);
  if (image) entry->second = document_.PDFAddPicture(std::move(*image));
  return entry->second;
}

void PdfSurface::DrawPicture(const Picture& picture, const Area& area) {
  const int number = NumberOf(picture);
  if (number == 0) {
    const Stroke frame;
    return DrawBox(area, &frame, nullptr);
  }
  document_.PDFPlacePicture(number, area.left, area.top, area.width(), area.height());
}

}  // namespace tarvane::paper
