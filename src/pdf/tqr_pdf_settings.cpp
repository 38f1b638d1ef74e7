// The settings of a document and of its pen, with their messages and fallbacks.
#include <array>
#include <cmath>

#include "pdf/tqr_pdf.h"

namespace tarvane::pdf {
namespace {

// By Unit.
constexpr std::array<double, 3> kScales = {1, 72 / 25.4, 72 / 2.54};
constexpr double kMarginPoints = 28.35;

struct PageSize {
  double width;
  double height;
};
// By Format, in points.
constexpr std::array<PageSize, 5> kFormats = {
    {{595.28, 841.89}, {841.89, 1190.55}, {420.94, 595.28}, {612, 792}, {612, 1008}}};

// The lengths of a dash style in user units; the writer makes points of them. By LineStyle.
constexpr int kMostDashes = 6;
struct DashStyle {
  int count;
  std::array<int, kMostDashes> lengths;
};
constexpr std::array<DashStyle, 4> kDashStyles = {
    {{0, {}}, {2, {16, 8}}, {4, {8, 7, 2, 7}}, {6, {8, 4, 2, 4, 2, 4}}}};

// By FontFamily and FontStyle. "TimesItalic" and "TimesRoman" bear no hyphen.
constexpr std::array<std::array<std::string_view, 4>, 5> kFontNames = {{
    {"Helvetica", "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique"},
    {"Courier", "Courier-Bold", "Courier-Oblique", "Courier-BoldOblique"},
    {"Times-Roman", "Times-Bold", "TimesItalic", "Times-BoldItalic"},
    {"Symbol", "Symbol", "Symbol", "Symbol"},
    {"ZapfDingbats", "ZapfDingbats", "ZapfDingbats", "ZapfDingbats"},
}};
constexpr std::string_view kFallbackFont = "TimesRoman";

// The sides of a page that readers take, in points.
constexpr double kShortest = 3;
constexpr double kLongest = 14400;
bool FitsSide(double points) { return points >= kShortest && points <= kLongest; }

}  // namespace

void tqrPDF::PDFInit() {
  fonts_ = FontFolder(surroundings_.program_folder);
  file_.Close();
  file_path_.clear();
  file_name_.clear();
  information_ = {};
  view_ = {};
  confirm_ = view_after_ = watermark_on_ = strict_ = number_told_ = false;
  watermark_.clear();
  unit_ = kCentimeter;
  scale_ = kScales[kCentimeter];
  const double margin = kMarginPoints / scale_;
  margins_ = {margin, margin, margin, margin, margin / 10};
  pen_ = {};
  cell_ = {};
  page_count_ = 0;
  pages_.assign(1, Page{});
  images_.clear();
  bookmarks_.clear();
  last_image_ = {};
  page_.Clear();
  links_.Clear();
  object_.Clear();
  head_length_ = 0;
  PDFFormatPage(kA4);
  MoveToMargins();
}

void tqrPDF::PDFStrict(bool strict) {
  strict_ = strict;
  fonts_.MeasureByName(strict);
}

void tqrPDF::Show(const Message& message) const {
  if (surroundings_.messages != nullptr) surroundings_.messages->Show(message);
}

double tqrPDF::Replaced(double number, double unit) {
  TellNumber(number);
  return std::isnan(number) ? 0 : std::copysign(kFarthest / unit, number);
}

// Once a document: a bad place tends to come with a hundred others.
void tqrPDF::TellNumber(double number) {
  if (!number_told_) Show(SettingMessage(SettingError::kNumber, ShortText(number)));
  number_told_ = true;
}

int tqrPDF::Choice(const Setting& value, int count, SettingError error, int fallback) const {
  if (const auto number = value.Number()) {
    for (int choice = 0; choice < count; ++choice) {
      if (*number == choice) return choice;
    }
  }
  Show(SettingMessage(error, value.Text()));
  return fallback;
}

void tqrPDF::PDFSetZoomMode(const Setting& mode) {
  auto number = mode.Number();
  if (number && !(std::abs(*number) <= kFarthest)) number.reset();
  if (!number) Show(SettingMessage(SettingError::kZoomMode, mode.Text()));
  const double value = number.value_or(kZoomFullPage);
  view_.zoom = ViewSettings::kPercentage;
  view_.percentage = value;
  for (int mode_number = kZoomFullPage; mode_number <= kZoomDefault; ++mode_number) {
    if (value == mode_number) view_.zoom = static_cast<ViewSettings::Zoom>(mode_number);
  }
}

double tqrPDF::PDFGetZoomMode() const {
  return view_.zoom == ViewSettings::kPercentage ? view_.percentage : static_cast<double>(view_.zoom);
}

void tqrPDF::PDFSetLayoutMode(const Setting& mode) {
  view_.layout = Choice(mode, kLayoutDefault + 1, SettingError::kLayoutMode, kSinglePage);
}

void tqrPDF::PDFWatermark(std::string text) {
  watermark_ = std::move(text);
  watermark_on_ = true;
}

void tqrPDF::PDFSetUnit(const Setting& unit) {
  unit_ = Choice(unit, static_cast<int>(kScales.size()), SettingError::kUnit, kCentimeter);
  scale_ = kScales[static_cast<size_t>(unit_)];
}

void tqrPDF::PDFOrientation(const Setting& orientation) {
  const bool landscape = Choice(orientation, 2, SettingError::kOrientation, kPortrait) == kLandscape;
  Page& page = OwnPage();
  if (page.landscape != landscape) std::swap(page.width, page.height);
  page.landscape = landscape;
}

void tqrPDF::PDFFormatPage(const Setting& format) {
  const SettingError error = format.IsNumber() ? SettingError::kFormat : SettingError::kFormatType;
  const PageSize& size =
      kFormats[static_cast<size_t>(Choice(format, static_cast<int>(kFormats.size()), error, kA4))];
  const bool turned = OwnPage().landscape;
  SizePage(turned ? size.height : size.width, turned ? size.width : size.height);
}

void tqrPDF::PDFFormatPage(double width, double height) {
  if (FitsSide(width) && FitsSide(height)) return SizePage(width, height);
  Show(SettingMessage(SettingError::kFormat, ShortText(width) + " x " + ShortText(height)));
  PDFFormatPage(kA4);
}

// Page sizes are kept as whole points.
void tqrPDF::SizePage(double width, double height) {
  Page& page = OwnPage();
  page.width = static_cast<int>(std::nearbyint(width));
  page.height = static_cast<int>(std::nearbyint(height));
}

void tqrPDF::PDFPageHeight(double height) { PDFFormatPage(OwnPage().width, height * scale_); }

void tqrPDF::PDFPageWidth(double width) { PDFFormatPage(width * scale_, OwnPage().height); }

void tqrPDF::PDFSetMargins(double left, double top, double right, double bottom) {
  margins_ = {left, top, right, bottom, margins_.cell};
}

Rgb tqrPDF::RgbOf(const Color& color, SettingError error) const {
  const auto parts = color.Parts();
  if (!parts) Show(SettingMessage(error, color.Text()));
  return parts.value_or(Rgb{});
}

void tqrPDF::PDFSetTextColor(const Color& color) {
  pen_.text_rgb = RgbOf(color, SettingError::kTextColor);
  pen_.text_color = ColorOperator(pen_.text_rgb, "rg");
}

void tqrPDF::PDFSetLineColor(const Color& color) {
  pen_.line_rgb = RgbOf(color, SettingError::kLineColor);
  pen_.line_color = ColorOperator(pen_.line_rgb, "RG");
}

void tqrPDF::PDFSetDrawColor(const Color& color) {
  pen_.draw_rgb = RgbOf(color, SettingError::kDrawColor);
  pen_.draw_color = ColorOperator(pen_.draw_rgb, "rg");
}

void tqrPDF::PDFSetLineStyle(const Setting& style) {
  const int choice = Choice(style, static_cast<int>(kDashStyles.size()), SettingError::kLineStyle, kSolid);
  const DashStyle& dashes = kDashStyles[static_cast<size_t>(choice)];
  std::string lengths;
  for (int index = 0; index < dashes.count; ++index) {
    lengths += std::to_string(static_cast<int>(dashes.lengths[static_cast<size_t>(index)] * scale_)) + ' ';
  }
  page_.Line("[", lengths, "] 0 d");
}

void tqrPDF::PDFSetDrawMode(const Setting& mode) {
  pen_.draw_mode = Choice(mode, kFillAndOutline + 1, SettingError::kDrawMode, kOutline);
}

void tqrPDF::PDFSetAlignement(const Setting& alignment) {
  cell_.alignment = Choice(alignment, kFull + 1, SettingError::kAlignment, kLeft);
}

void tqrPDF::PDFSetFont(const Setting& font, double size, int style) {
  const int family = Choice(font, static_cast<int>(kFontNames.size()), SettingError::kFont, -1);
  pen_.font =
      family < 0 ? kFallbackFont : kFontNames[static_cast<size_t>(family)][static_cast<size_t>(style & 3)];
  SetFontSize(size);
}

}  // namespace tarvane::pdf
