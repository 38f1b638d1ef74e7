#include "printing/curtain_drawing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <utility>
#include <vector>

#include "printing/grey_canvas.h"
#include "text/trim.h"
#include "text_number/text_number.h"

namespace tarvane::printing {
namespace {

// Places in an item's saved state.
constexpr std::size_t kDescription = 2;
constexpr std::size_t kTrackInches = 3;
constexpr std::size_t kDropInches = 4;
constexpr std::size_t kFullness = 6;
constexpr std::size_t kHemInches = 11;
constexpr std::size_t kTrack = 12;
constexpr std::size_t kDrop = 14;
constexpr std::size_t kInInches = 21;
constexpr std::size_t kInCentimetres = 56;
constexpr std::size_t kInMillimetres = 57;
constexpr std::size_t kReadFields = 58;

constexpr double kInch = 25.4;
constexpr std::array<int, 12> kScales = {10, 20, 25, 40, 50, 75, 100, 150, 200, 300, 500, 1000};

// On paper, in millimetres.
constexpr double kMostWidth = 110;
constexpr double kMostHeight = 64;
constexpr double kLeft = 4;
constexpr double kAbove = 9;
constexpr double kRight = 10;
constexpr double kBelow = 6;
constexpr double kGap = 1.2;  // between the two curtains
constexpr double kFloorBelow = 2.5;
constexpr double kRail = 1.2;
constexpr double kThin = 0.18;
constexpr double kThick = 0.35;

constexpr double kPixels = 200 / kInch;  // to a millimetre: 200 dots an inch
constexpr int kBlack = 0;
constexpr double kCloth = 246;
constexpr double kFold = 185;
constexpr int kQuiet = 110;

using Fields = std::array<std::string_view, kReadFields>;

std::optional<Fields> Split(std::string_view record) {
  Fields fields;
  for (std::string_view& field : fields) {
    const std::size_t end = record.find('~');
    if (end == std::string_view::npos) return std::nullopt;
    field = record.substr(0, end);
    record.remove_prefix(end + 1);
  }
  return fields;
}

bool IsOption(std::string_view field) { return field == "True" || field == "False"; }

// 0 where the field says nothing of use.
double Measure(std::string_view field) {
  const double value = IsNumber(field) ? ParseStrict(field) : 0;
  return std::isfinite(value) && value > 0 ? value : 0;
}

bool Fits(double track, double drop, int scale) {
  return track / scale <= kMostWidth && drop / scale <= kMostHeight;
}

int ScaleFor(double track, double drop) {
  const auto found = std::ranges::find_if(kScales, [&](int scale) { return Fits(track, drop, scale); });
  return found == kScales.end() ? kScales.back() : *found;
}

struct Unit {
  std::size_t track;
  std::size_t drop;
  double millimetres;
  std::string_view name;
};
Unit UnitOf(const Fields& fields) {
  if (fields[kInInches] == "1") return {kTrackInches, kDropInches, kInch, "ins"};
  if (fields[kInMillimetres] == "True") return {kTrack, kDrop, 1, "mm"};
  return {kTrack, kDrop, 10, "cm"};
}

// Draws in millimetres of paper.
class Sheet {
 public:
  Sheet(double width, double height)
      : canvas_(static_cast<int>(std::ceil(width * kPixels)), static_cast<int>(std::ceil(height * kPixels))) {
  }

  void Line(double x1, double y1, double x2, double y2, double thickness, int grey = kBlack) {
    canvas_.DrawLine(x1 * kPixels, y1 * kPixels, x2 * kPixels, y2 * kPixels, thickness * kPixels, grey);
  }
  void Box(double left, double top, double right, double bottom, int grey) {
    canvas_.FillBox(left * kPixels, top * kPixels, right * kPixels, bottom * kPixels, grey);
  }
  // `grey` of the distance from the left.
  template <typename Grey>
  void Stripes(double left, double top, double right, double bottom, Grey grey) {
    const auto pixel = [](double at) { return static_cast<int>(std::lround(at * kPixels)); };
    std::vector<std::uint8_t> greys;
    for (int x = pixel(left); x < pixel(right); ++x) {
      greys.push_back(static_cast<std::uint8_t>(std::lround(grey((x + 0.5) / kPixels - left))));
    }
    canvas_.FillStripes(pixel(left), pixel(top), pixel(bottom), greys);
  }
  void Arrow(double x1, double y1, double x2, double y2);
  rich_text::Picture Picture() const;

 private:
  GreyCanvas canvas_;
};

// With a head and a bar across at either end.
void Sheet::Arrow(double x1, double y1, double x2, double y2) {
  Line(x1, y1, x2, y2, kThin);
  const double length = std::hypot(x2 - x1, y2 - y1);
  const double head = std::min(2.0, length / 3);
  const double along_x = (x2 - x1) / length;
  const double along_y = (y2 - y1) / length;
  for (const double side : {-1.0, 1.0}) {
    const double x = side < 0 ? x1 : x2;
    const double y = side < 0 ? y1 : y2;
    for (const double turn : {-0.35, 0.35}) {
      Line(x, y, x - side * head * (along_x - turn * along_y), y - side * head * (along_y + turn * along_x),
           kThin);
    }
    Line(x - 1.5 * along_y, y + 1.5 * along_x, x + 1.5 * along_y, y - 1.5 * along_x, kThin);
  }
}

rich_text::Picture Sheet::Picture() const {
  // The width that the pixels have, so that a millimetre stays one.
  const auto twips = [](int pixels) {
    return static_cast<std::int32_t>(std::lround(pixels / kPixels / kInch * rich_text::kTwipsPerInch));
  };
  return {.format = rich_text::Picture::Format::kPng,
          .bytes = PngOf(canvas_),
          .width = twips(canvas_.width()),
          .height = twips(canvas_.height())};
}

struct ClothArea {
  double left;
  double top;
  double right;
  double bottom;
};

// A fold takes about a hand of cloth.
int FoldsOf(const CurtainMeasures& measures, double width) {
  if (measures.fullness < 1.05) return 0;
  const double folds = measures.track / 2 * (measures.fullness - 1) / 150;
  return static_cast<int>(std::clamp(folds, 4.0, std::max(4.0, width / 1.5)));
}

// Light where the cloth comes forward, dark in the folds.
void DrawCloth(Sheet& sheet, const ClothArea& cloth, int folds, double hem) {
  const double step = (cloth.right - cloth.left) / (folds + 1);
  sheet.Stripes(cloth.left, cloth.top, cloth.right, cloth.bottom, [&](double at) {
    const double wave = folds == 0 ? 0 : std::cos(std::numbers::pi * at / step);
    return kCloth - wave * wave * wave * wave * (kCloth - kFold);
  });
  // The gathers of the heading.
  const double heading = std::min(4.0, (cloth.bottom - cloth.top) / 8);
  for (int fold = 1; fold <= folds; ++fold) {
    const double x = cloth.left + fold * step;
    sheet.Line(x, cloth.top, x, cloth.top + heading, kThin, kQuiet);
  }
  for (const double x : {cloth.left, cloth.right}) sheet.Line(x, cloth.top, x, cloth.bottom, kThick);
  sheet.Line(cloth.left, cloth.top, cloth.right, cloth.top, kThick);
  sheet.Line(cloth.left, cloth.bottom, cloth.right, cloth.bottom, kThick);
  if (hem <= 0) return;
  constexpr double kDash = 1.5;
  for (double x = cloth.left; x < cloth.right; x += 2 * kDash) {
    sheet.Line(x, cloth.bottom - hem, std::min(x + kDash, cloth.right), cloth.bottom - hem, kThin, kQuiet);
  }
}

void DrawFloor(Sheet& sheet, double left, double right, double y) {
  sheet.Line(left, y, right, y, kThick);
  for (double x = left + 2; x <= right; x += 2.5) sheet.Line(x, y, x - 1.5, y + 1.5, kThin, kQuiet);
}

}  // namespace

std::optional<CurtainMeasures> MeasuresIn(std::string_view item_record) {
  const std::optional<Fields> fields = Split(item_record);
  // A "~" in one of the texts has moved all that follow.
  if (!fields || !IsOption((*fields)[kInCentimetres]) || !IsOption((*fields)[kInMillimetres])) return {};
  const Unit unit = UnitOf(*fields);
  const double track = Measure((*fields)[unit.track]);
  const double drop = Measure((*fields)[unit.drop]);
  if (track == 0 || drop == 0 || !Fits(track * unit.millimetres, drop * unit.millimetres, kScales.back()))
    return {};
  CurtainMeasures measures{.description = OneLine((*fields)[kDescription]),
                           .track = track * unit.millimetres,
                           .drop = drop * unit.millimetres,
                           .hem = Measure((*fields)[kHemInches]) / 2 * kInch,
                           .fullness = std::clamp(Measure((*fields)[kFullness]), 1.0, 10.0),
                           .in_words = "Track " + NumberText(track) + " " + std::string(unit.name) +
                                       ", drop " + NumberText(drop) + " " + std::string(unit.name)};
  if (measures.hem * 2 >= measures.drop) measures.hem = 0;
  if (Measure((*fields)[kFullness]) == 0) measures.fullness = 2;
  return measures;
}

CurtainDrawing DrawCurtain(const CurtainMeasures& measures) {
  const int scale = ScaleFor(measures.track, measures.drop);
  const double width = measures.track / scale;
  const double height = measures.drop / scale;
  const double right = kLeft + width;
  const double bottom = kAbove + height;
  const double middle = kLeft + width / 2;
  const double gap = std::min(kGap, width / 10) / 2;
  Sheet sheet(right + kRight, bottom + kBelow);
  const int folds = FoldsOf(measures, width / 2);
  for (const auto& [from, to] : {std::pair(kLeft, middle - gap), std::pair(middle + gap, right)}) {
    DrawCloth(sheet, {from, kAbove, to, bottom}, folds, measures.hem / scale);
  }
  sheet.Box(kLeft, kAbove - kRail, right, kAbove, kBlack);
  DrawFloor(sheet, 1, right + 3, bottom + kFloorBelow);
  sheet.Arrow(kLeft, kAbove / 2 - 1, right, kAbove / 2 - 1);
  sheet.Arrow(right + kRight / 2 + 1, kAbove, right + kRight / 2 + 1, bottom);
  return {.picture = sheet.Picture(), .scale = scale};
}

}  // namespace tarvane::printing
