// Text: measuring, placing, and cells.
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "pdf/markers.h"
#include "pdf/text_encoding.h"
#include "pdf/tqr_pdf.h"
#include "text/fault.h"

namespace tarvane::pdf {
namespace {

constexpr double kDefaultSize = 10;
// A smaller font shows nothing, and its size would be written with hundreds of zeros.
constexpr double kSmallestSize = 0.01;
constexpr double kWidthUnits = 1000;  // of a font size

// The sum of widths times the size is kept in 32 bits before it is divided.
double PointsOf(int64_t sum, double size) {
  const double product = std::nearbyint(static_cast<double>(sum) * size);
  if (!(std::abs(product) <= std::numeric_limits<int32_t>::max()))
    throw Fault("The text is too wide to measure.");
  return product / kWidthUnits;
}

}  // namespace

const std::string& tqrPDF::FontInUse() const {
  return pen_.font.empty() && !fonts_.names().empty() ? fonts_.names().front() : pen_.font;
}

const std::string& tqrPDF::FontOperator() {
  if (pen_.font_operator.empty()) {
    pen_.font_operator =
        "/F" + std::to_string(fonts_.NumberOf(FontInUse())) + " " + NumberText(pen_.font_size) + " Tf";
  }
  return pen_.font_operator;
}

void tqrPDF::SetFontSize(double size) {
  const double least = size == 0 ? 0 : kSmallestSize;
  const bool taken = std::abs(size) >= least && std::abs(size) <= kFarthest;
  if (!taken) TellNumber(size);
  pen_.font_size = taken ? size : 0;
  pen_.font_operator.clear();
}

double tqrPDF::PDFGetStringWidth(std::string_view text, std::string_view font, double size) {
  const WidthTable& widths = fonts_.Widths(font.empty() ? std::string_view(FontInUse()) : font);
  return PointsOf(widths.SumOfText(text), size);
}

void tqrPDF::PDFTextOut(const std::string& text, double x, double y) {
  if (x == 0) x = pen_.x;
  if (y == 0) y = pen_.y;
  x = Sane(x, scale_);
  if (pen_.font_size == 0) SetFontSize(kDefaultSize);
  const std::string codes = ToWinAnsi(text);
  const auto width = [&] { return PointsOf(fonts_.Widths(FontInUse()).Sum(codes), pen_.font_size) / scale_; };
  // What can't be measured has no font that a reader could find, or no place on a page.
  const double strict_width = strict_ ? width() : 0;
  const double shift = pen_.rotation == 0 ? margins_.left : 0;
  const double wider = pen_.wider_blanks;
  ShowText(codes, PointsX(x + shift), PointsY(y));
  pen_.x = x + (strict_ ? strict_width : width());
  if (wider != 0) pen_.x += wider * static_cast<double>(std::count(codes.begin(), codes.end(), ' '));
}

// Writes the text with its base line at x, y in points.
void tqrPDF::ShowText(std::string_view codes, double x, double y) {
  static constexpr double kPi = 3.1416;
  if (!pen_.text_color.empty()) page_.Line("q ", pen_.text_color);
  page_.Line(kTextMarker.open).Line("BT");
  if (pen_.rotation != 0) {
    static constexpr Mask kFine = Mask::k0_000;
    const double angle = pen_.rotation * kPi / 180;
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    page_.Line(Fixed{cosine, kFine}, " ", Fixed{sine, kFine}, " ", Fixed{-sine, kFine}, " ",
               Fixed{cosine, kFine}, " ", Fixed{x, kFine}, " ", Fixed{y, kFine}, " Tm");
    pen_.rotation = 0;
  } else {
    page_.Line(Fixed{x}, " ", Fixed{y}, " Td");
  }
  page_.Line(FontOperator());
  const double wider = std::exchange(pen_.wider_blanks, 0);
  if (wider != 0) page_.Line(Fixed{wider * scale_, Mask::k0_000}, " Tw");
  page_.Line("(", strict_ ? EscapeString(codes) : EscapePageText(codes), ") Tj");
  if (wider != 0) page_.Line("0 Tw");
  page_.Line("ET");
  if (!pen_.text_color.empty()) page_.Line("Q");
  page_.Line(kTextMarker.close);
}

void tqrPDF::PDFCell(const std::string& text, double height, double width, const std::string& link) {
  if (pen_.font_size == 0) SetFontSize(kDefaultSize);
  height = Sane(height, scale_);
  width = Sane(width, scale_);
  const std::string codes = ToWinAnsi(text);
  const WidthTable widths = fonts_.Widths(FontInUse());
  const double top = pen_.y;
  // Widths are weighed at the size 10: a hundredth of their sum against the room brought to that size.
  const double room = Length(width - 2 * margins_.cell) * 10 / pen_.font_size * 100;
  const std::vector<CellLine> lines = BreakLines(codes, widths, room);
  page_.Line(kCellMarker.open);
  for (size_t index = 0; index < lines.size(); ++index) {
    const CellBox box{pen_.x, pen_.y, width, height,
                      LineBorder(cell_.border, index == 0, index + 1 == lines.size())};
    AppendCellBox(box);
    AppendCellLine(lines[index], box, widths, room);
    pen_.y += height;
  }
  if (cell_.alignment == kFull) page_.Line("0 Tw");
  if (!link.empty()) RecordLink(pen_.x, top, width, pen_.y - top, link);
  page_.Line(kCellMarker.close);
}

void tqrPDF::AppendCellBox(const CellBox& box) {
  const double left = PointsX(box.x);
  const double right = PointsX(box.x + box.width);
  const double top = PointsY(box.y);
  const double bottom = PointsY(box.y + box.height);
  if (cell_.fill) {
    page_.Line(pen_.draw_color);
    page_.Line(Fixed{left}, " ", Fixed{top}, " ", Fixed{Sane(right - left)}, " ", Fixed{Sane(bottom - top)},
               " re f");
  }
  if (box.sides.empty()) return;
  page_.Line(pen_.line_color);
  page_.Line(Fixed{Length(pen_.line_width)}, " w");
  for (const char side : box.sides) {
    const double x1 = side == 'R' ? right : left;
    const double x2 = side == 'L' ? left : right;
    const double y1 = side == 'B' ? bottom : top;
    const double y2 = side == 'T' ? top : bottom;
    page_.Line(Fixed{x1}, " ", Fixed{y1}, " m ", Fixed{x2}, " ", Fixed{y2}, " l S");
  }
}

// Sets one line's text within its box: the base line stands a third of the font size below the middle.
void tqrPDF::AppendCellLine(const CellLine& line, const CellBox& box, const WidthTable& widths, double room) {
  const int64_t sum = widths.Sum(line.text);
  const double text_width = PointsOf(sum, pen_.font_size) / scale_;
  double x = box.x + margins_.cell;
  if (cell_.alignment == kCenter) x = box.x + (box.width - text_width) / 2;
  if (cell_.alignment == kRight) x = box.x + box.width - margins_.cell - text_width;
  if (cell_.alignment == kFull) {
    // The rest of the room goes to the blanks of a wrapped line.
    const auto blanks = std::count(line.text.begin(), line.text.end(), ' ');
    const double rest =
        line.wrapped && blanks > 0 ? (room - static_cast<double>(sum)) * pen_.font_size / kWidthUnits : 0;
    page_.Line(Fixed{blanks > 0 ? rest / static_cast<double>(blanks) : 0, Mask::k0_000}, " Tw");
  }
  const double base_line = Sane(PointsY(box.y + box.height / 2) - 0.3 * pen_.font_size);
  ShowText(line.text, PointsX(x), base_line);
}

}  // namespace tarvane::pdf
