#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <numbers>
#include <utility>

#include "printing/multi_page_preview.h"
#include "printing/report_text.h"
#include "text/utf8.h"

namespace tarvane::printing {
namespace {

constexpr std::string_view kSymbolFont = "Symbol";
// What that font shows at these codes: a bullet, and three dots.
constexpr std::string_view kBullet = "\xC2\xB7  ";
constexpr std::string_view kBlankMark = "\\";

// "Mon. Mar. 9, 2026 @ 2:05 PM"
std::string PrintedTime(const DateTime& time) {
  static constexpr std::array<std::string_view, 7> kDays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  static constexpr std::array<std::string_view, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                               "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  const std::chrono::weekday day{std::chrono::sys_days{time.day}};
  std::string text(kDays[day.c_encoding() % kDays.size()]);
  text.append(". ").append(kMonths[static_cast<std::size_t>(MonthOf(time.day) - 1) % kMonths.size()]);
  text += ". " + std::to_string(DayOfMonth(time.day)) + ", " + std::to_string(YearOf(time.day));
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  text += " @ " + std::to_string(hour) + (time.minute < 10 ? ":0" : ":") + std::to_string(time.minute);
  return text + (time.hour < 12 ? " AM" : " PM");
}

}  // namespace

double clsMultiPgPreview::Width(std::string_view line) const {
  return measure().WidthOf(font_, line) / per_unit_;
}

double clsMultiPgPreview::LineHeight() const { return measure().ExtentOf(font_).height() / per_unit_; }

double clsMultiPgPreview::GetTextWidth(std::string_view text) const {
  double width = 0;
  for (const std::string& line : LinesOfText(text)) width = std::max(width, Width(line));
  return width;
}

double clsMultiPgPreview::GetTextHeight(std::string_view text) const {
  return static_cast<double>(LinesOfText(text).size()) * LineHeight();
}

std::string clsMultiPgPreview::GetFormalCase(std::string_view text) { return FormalCase(text); }
std::string clsMultiPgPreview::GetStripQuotes(std::string_view text) {
  return std::string(WithoutQuotes(text));
}
std::string clsMultiPgPreview::GetRemoveCRLF(std::string_view text) { return WithoutLineEnds(text); }

void clsMultiPgPreview::SetFontSize(double points) {
  if (!std::isnan(points)) font_.points = std::clamp(points, 1.0, 2160.0);
}

// The one place where upright text is drawn.
void clsMultiPgPreview::Put(std::string_view text, bool newline) {
  const std::string line = Drawable(text);
  const double width = Width(line);
  if (recorder_) {
    if (!font_transparent_ && !line.empty()) {
      const paper::Point corner = OnSheet(x_, y_);
      const paper::Point end = OnSheet(x_ + width, y_ + LineHeight());
      const paper::Color ground = ColorOf(back_color_);
      recorder_->DrawBox({corner.x, corner.y, end.x, end.y}, nullptr, &ground);
    }
    paper::Point at = OnSheet(x_, y_);
    at.y += measure().ExtentOf(font_).ascent;
    recorder_->DrawText(at, font_, line, {.color = ColorOf(kCurrentColor)});
  }
  x_ = newline ? 0 : x_ + width;
  if (newline) y_ += LineHeight();
}

void clsMultiPgPreview::PutLines(const std::vector<std::string>& lines, bool newline, double left,
                                 double room, bool centred) {
  for (std::size_t line = 0; line < lines.size(); ++line) {
    const bool is_last = line + 1 == lines.size();
    x_ = left + (centred ? (room - Width(lines[line])) / 2 : 0);
    Put(lines[line], newline || !is_last);
    if (!is_last) TurnFullPage();
  }
}

void clsMultiPgPreview::pPrint(std::string_view text, double x, bool newline) {
  const double begin = x < 0 ? x_ : x;
  if (HasLineEnds(text) || (!text.empty() && begin + Width(Drawable(text)) >= paper_width_)) {
    return pMultiline(text, begin, paper_width_ - kRightGap, newline);
  }
  x_ = begin;
  Put(text, newline);
}

void clsMultiPgPreview::pMultiline(std::string_view text, double left, double right, bool newline) {
  static constexpr double kLastLeft = 0.5;
  const double last = paper_width_ - kRightGap;
  if (left == kNotGiven) left = x_;
  if (left > last) left = paper_width_ - kLastLeft;
  if (right == kNotGiven || right > last) right = last;
  if (text.empty()) {
    if (newline) Put({}, true);
    return;
  }
  const auto width_of = [this](std::string_view line) { return Width(line); };
  PutLines(WrapLines(text, right - left, width_of), newline, left, right - left, false);
}

void clsMultiPgPreview::pCenterMultiline(std::string_view text, bool newline, double left, double right) {
  if (left == kNotGiven) left = x_;
  if (right == kNotGiven || right > paper_width_) right = paper_width_;
  const auto width_of = [this](std::string_view line) { return Width(line); };
  PutLines(WrapLines(text, right - left, width_of), newline, left, right - left, true);
}

void clsMultiPgPreview::pCenter(std::string_view text, bool newline, double right, double left) {
  if (left == kNotGiven) left = x_;
  if (right == kNotGiven) right = paper_width_ - left;
  if (HasLineEnds(text) || Width(Drawable(text)) > paper_width_) {
    return pCenterMultiline(text, newline, left, left + right);
  }
  x_ = (right - Width(Drawable(text))) / 2 + left;
  Put(text, newline);
}

void clsMultiPgPreview::pRightTab(std::string_view text, double right_margin, bool newline) {
  if (right_margin == kNotGiven) right_margin = 0;
  pRightJust(text, paper_width_ - right_margin, newline);
}

void clsMultiPgPreview::pRightJust(std::string_view text, double right, bool newline) {
  const std::string line = WithoutLineEnds(text);
  if (right != kNotGiven) x_ = std::max(0.0, right - Width(Drawable(line)));
  Put(line, newline);
}

void clsMultiPgPreview::pPrintRotate(std::string_view text, double angle, double x) {
  if (text.empty() || !recorder_) return;
  angle = std::clamp(angle, 0.0, 359.0);
  // The base line begins below the corner that the text turns around.
  const double radians = angle * std::numbers::pi / 180;
  const double ascent = measure().ExtentOf(font_).ascent;
  paper::Point at = OnSheet(x == kNotGiven ? x_ : x, y_);
  at.x += ascent * std::sin(radians);
  at.y += ascent * std::cos(radians);
  recorder_->DrawText(at, font_, Drawable(WithoutLineEnds(text)),
                      {.color = ColorOf(kCurrentColor), .angle = angle});
}

void clsMultiPgPreview::pPrintedDate(bool newline, double x, double y) {
  const FontKeeper keeper(*this);
  font_ = {.name = font_.name, .points = 9};
  if (y != kNotGiven) y_ = y;
  pPrint("Printed: " + PrintedTime(opener_.host().Now()), x, newline);
}

void clsMultiPgPreview::pCancled() {
  const FontKeeper keeper(*this);
  font_ = opener_.host().printer_font();
  pPrint();
  pPrint("**** PRINTING CANCLED ****", 0.5);
}

void clsMultiPgPreview::pBullet(double x) {
  if (x != kNotGiven) x_ = x;
  PutSigns(kBullet, {.name = std::string(kSymbolFont), .points = font_.points});
}

// On the base line of the current font.
void clsMultiPgPreview::PutSigns(std::string_view signs, paper::Font font) {
  const FontKeeper keeper(*this);
  const double top = y_;
  y_ += measure().ExtentOf(font_).ascent / per_unit_;
  font_ = std::move(font);
  y_ -= measure().ExtentOf(font_).ascent / per_unit_;
  Put(signs, false);
  y_ = top;
}

void clsMultiPgPreview::PutUpTo(double target, double x, std::string_view sign, const paper::Font& font) {
  static constexpr double kMost = 10'000;
  if (x != kNotGiven) x_ = x;
  const double width = measure().WidthOf(font, sign) / per_unit_;
  const double gap = (target == kNotGiven ? paper_width_ : std::min(target, paper_width_)) - x_;
  if (!(width > 0) || !(gap > 0)) return;
  const auto count = static_cast<int>(std::min(std::ceil(gap / width), kMost));
  std::string signs;
  for (int i = 0; i < count; ++i) signs += sign;
  PutSigns(signs, font);
}

void clsMultiPgPreview::pDots(double target, double x) { PutUpTo(target, x, ".", font_); }

void clsMultiPgPreview::pSpaces(double target, double x, bool visible) {
  paper::Font font = font_;
  if (visible) font.name = kSymbolFont;
  PutUpTo(target, x, visible ? kBlankMark : " ", font);
}

void clsMultiPgPreview::BlankLine(double share) {
  const FontKeeper keeper(*this);
  if (share < 1) SetFontSize(font_.points * share);
  Put({}, true);
}

void clsMultiPgPreview::p15Space() {
  BlankLine(1);
  pHalfSpace();
}

}  // namespace tarvane::printing
