#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>

#include "printing/page_host.h"

namespace tarvane::printing {
namespace {

using Report = clsMultiPgPreview;

std::string Numbers(std::initializer_list<double> numbers) {
  std::string text;
  for (const double number : numbers) {
    std::array<char, 32> digits{};
    std::snprintf(digits.data(), digits.size(), " %.2f", std::abs(number) < 0.005 ? 0 : number);
    text += digits.data();
  }
  return text;
}

// Each text by its upper left corner, each shape by its area, in `unit` points from where printing begins.
class Describer {
 public:
  Describer(paper::Measure& measure, double unit) : measure_(measure), unit_(unit) {}

  std::string operator()(const paper::RecordedText& text) const {
    const double ascent = text.look.angle == 0 ? measure_.ExtentOf(text.font).ascent : 0;
    std::string line = text.text + Numbers({X(text.at.x), X(text.at.y - ascent)});
    if (text.look.angle != 0) line += " @" + Numbers({text.look.angle});
    return line;
  }
  std::string operator()(const paper::RecordedShape& shape) const {
    static constexpr std::array<const char*, 4> kKinds = {"line", "box", "ellipse", "picture"};
    return kKinds.at(static_cast<std::size_t>(shape.kind)) +
           Numbers({X(shape.area.left), X(shape.area.top), X(shape.area.right), X(shape.area.bottom)}) +
           (shape.outline ? " wide" + Numbers({shape.outline->width}) : "") + (shape.fill ? " filled" : "");
  }

 private:
  double X(double points) const { return (points - 12) / unit_; }

  paper::Measure& measure_;
  double unit_;
};

class ReportPlaces : public ReportTest {
 protected:
  // What a report of that draws, and where its cursor is then.
  std::string Drawn(std::int16_t mode, const std::function<void(Report&)>& draw) {
    Report report(screen_);
    report.SetScaleMode(mode);
    report.pStartDoc();
    report.pFontName("Courier");  // 0.6 of its size a character
    report.SetFontSize(10);
    draw(report);
    std::string all;
    const std::string cursor = "cursor" + Numbers({report.CurrentX(), report.CurrentY()});
    report.pEndDoc();
    const double unit = mode == Report::kCentimetres ? 72 / 2.54 : 72;
    for (const auto& page : std::exchange(host_.pages, {})) {
      for (const auto& item : page.items) {
        all += std::visit(Describer(host_.TextMeasure(), unit), item) + "; ";
      }
    }
    return all + cursor;
  }
};

const paper::Picture kPicture = {.bytes = "x", .width = 2880, .height = 1440};  // 2 inches by 1

struct PlaceCase {
  const char* what;
  std::function<void(Report&)> draw;
  const char* inches;
  const char* centimetres;
};

const std::vector<PlaceCase>& Places() {
  // clang-format off
  static const std::vector<PlaceCase> kPlaces = {
    {"text", [](Report& r) { r.pPrint("abc", 1); r.pPrint("d", -1, false); r.pPrint(); },
     "abc 1.00 0.00; d 0.00 0.15;  0.08 0.15; cursor 0.00 0.29",
     "abc 1.00 0.00; d 0.00 0.37;  0.21 0.37; cursor 0.00 0.74"},
    {"text behind text", [](Report& r) { r.pPrint("abc", 1, false); r.pPrint("d", -1, false); },
     "abc 1.00 0.00; d 1.25 0.00; cursor 1.33 0.00",
     "abc 1.00 0.00; d 1.64 0.00; cursor 1.85 0.00"},
    {"line ends", [](Report& r) { r.pPrint("ab\r\ncd", 1, false); },
     "ab 1.00 0.00; cd 1.00 0.15; cursor 1.17 0.15",
     "ab 1.00 0.00; cd 1.00 0.37; cursor 1.42 0.37"},
    {"too long", [](Report& r) { r.pPrint("a word or two", 5); },
     "a word 5.00 0.00; or two 5.00 0.15; cursor 0.00 0.29",
     "a word or two 5.00 0.00; cursor 0.00 0.37"},
    {"wrapped", [](Report& r) { r.pMultiline("ab cd", 1, 1.3, false); },
     "ab 1.00 0.00; cd 1.00 0.15; cursor 1.17 0.15",
     "a 1.00 0.00; b 1.00 0.37; c 1.00 0.74; d 1.00 1.12; cursor 1.21 1.12"},
    {"wrapped at the edge", [](Report& r) { r.pMultiline("ab", 99, 99); },
     "ab 5.33 0.00; cursor 0.00 0.15",
     "a 14.32 0.00; b 14.32 0.37; cursor 0.00 0.74"},
    {"nothing wrapped", [](Report& r) { r.pMultiline("", 1, 2); r.pMultiline("", 1, 2, false); },
     " 0.00 0.00; cursor 0.00 0.15",
     " 0.00 0.00; cursor 0.00 0.37"},
    {"centred", [](Report& r) { r.pCenter("abc"); r.pCenter("abc", true, 2, 1); },
     "abc 2.79 0.00; abc 1.88 0.15; cursor 0.00 0.29",
     "abc 7.09 0.00; abc 1.68 0.37; cursor 0.00 0.74"},
    {"centred lines", [](Report& r) { r.pCenterMultiline("abc\nd", true, 1, 3); },
     "abc 1.88 0.00; d 1.96 0.15; cursor 0.00 0.29",
     "abc 1.68 0.00; d 1.89 0.37; cursor 0.00 0.74"},
    {"right", [](Report& r) { r.pRightTab("abc"); r.pRightTab("abc", 1, false); },
     "abc 5.58 0.00; abc 4.58 0.15; cursor 4.83 0.15",
     "abc 14.18 0.00; abc 13.18 0.37; cursor 13.82 0.37"},
    {"right at", [](Report& r) { r.pRightJust("abc", 2); r.SetCurrentX(1); r.pRightJust("abc"); },
     "abc 1.75 0.00; abc 1.00 0.15; cursor 0.00 0.29",
     "abc 1.36 0.00; abc 1.00 0.37; cursor 0.00 0.74"},
    {"turned", [](Report& r) {
        r.SetCurrentY(1); r.pPrintRotate("abc", 90, 1); r.pPrintRotate("a", 400, 1);
        r.pPrintRotate("a", -9); r.pPrintRotate("", 9); },
     "abc 1.11 1.00 @ 90.00; a 1.00 1.11 @ 359.00; a 0.00 1.00; cursor 0.00 1.00",
     "abc 1.28 1.00 @ 90.00; a 1.00 1.28 @ 359.00; a 0.00 1.00; cursor 0.00 1.00"},
    {"date", [](Report& r) { r.pPrintedDate(true, 1, 2); },
     "Printed: Mon. Mar. 9, 2026 @ 2:05 PM 1.00 2.00; cursor 0.00 2.13",
     "Printed: Mon. Mar. 9, 2026 @ 2:05 PM 1.00 2.00; cursor 0.00 2.33"},
    {"cancelled", [](Report& r) { r.pCancled(); },
     " 0.00 0.00; **** PRINTING CANCLED **** 0.50 0.16; cursor 0.00 0.32",
     " 0.00 0.00; **** PRINTING CANCLED **** 0.50 0.41; cursor 0.00 0.82"},
    {"bullet", [](Report& r) { r.pBullet(1); },
     "\xC2\xB7   1.00 -0.03; cursor 1.13 0.00",
     "\xC2\xB7   1.00 -0.07; cursor 1.34 0.00"},
    {"dots", [](Report& r) { r.pDots(1.4, 1); r.pDots(1); },
     "..... 1.00 0.00; cursor 1.42 0.00",
     ".. 1.00 0.00; cursor 1.42 0.00"},
    {"blanks", [](Report& r) { r.pSpaces(1.4, 1); r.pSpaces(2, -1, true); },
     "      1.00 0.00; \\\\\\\\\\ 1.42 -0.03; cursor 2.02 0.00",
     "   1.00 0.00; \\\\ 1.42 -0.07; cursor 2.03 0.00"},
    {"spaces", [](Report& r) { r.pHalfSpace(); r.pQuarterSpace(); r.p15Space(); r.pPrint(); },
     " 0.00 0.00;  0.00 0.07;  0.00 0.11;  0.00 0.26;  0.00 0.33; cursor 0.00 0.48",
     " 0.00 0.00;  0.00 0.19;  0.00 0.28;  0.00 0.65;  0.00 0.84; cursor 0.00 1.21"},
    {"rule", [](Report& r) { r.SetCurrentX(1); r.pLine(); r.pLine(2, 3, 12, false); r.pLine(2, 99); },
     "line 1.00 0.00 5.83 0.00 wide 0.12; line 2.00 0.03 3.00 0.03 wide 1.44; "
     "line 2.00 0.03 5.83 0.03 wide 0.12; cursor 1.00 0.06",
     "line 1.00 0.00 14.82 0.00 wide 0.12; line 2.00 0.07 3.00 0.07 wide 1.44; "
     "line 2.00 0.07 14.82 0.07 wide 0.12; cursor 1.00 0.14"},
    {"double rule", [](Report& r) { r.SetCurrentX(1); r.pDoubleLine(-1, 3); },
     "line 1.00 0.03 3.00 0.03 wide 0.12; line 1.00 0.06 3.00 0.06 wide 0.12; cursor 1.00 0.09",
     "line 1.00 0.07 3.00 0.07 wide 0.12; line 1.00 0.14 3.00 0.14 wide 0.12; cursor 1.00 0.21"},
    {"upright", [](Report& r) { r.SetCurrentY(1); r.pVerticalLine(1); r.pVerticalLine(99, 0, 2, 12); },
     "line 1.00 1.00 1.00 9.71 wide 0.12; line 5.82 0.00 5.82 2.00 wide 1.44; cursor 0.00 1.00",
     "line 1.00 1.00 1.00 24.66 wide 0.12; line 14.81 0.00 14.81 2.00 wide 1.44; cursor 0.00 1.00"},
    {"box", [](Report& r) { r.SetCurrentX(1); r.pBox(); r.pBox(1, 1, 2, 0.5, 255, 0, 12); },
     "box 1.00 0.00 5.83 0.15 wide 0.12; box 1.00 1.00 3.00 1.50 wide 1.44 filled; cursor 1.00 0.00",
     "box 1.00 0.00 14.82 0.37 wide 0.12; box 1.00 1.00 3.00 1.50 wide 1.44 filled; cursor 1.00 0.00"},
    {"circle", [](Report& r) { r.pCircle(2, 2, 1, 0, 1, 0.5); r.pCircle(2, 2, 1, -1, 0, 2); },
     "ellipse 1.00 1.50 3.00 2.50 wide 0.12; ellipse 1.50 1.00 2.50 3.00 wide 0.12 filled; "
     "cursor 0.00 0.00",
     "ellipse 1.00 1.50 3.00 2.50 wide 0.12; ellipse 1.50 1.00 2.50 3.00 wide 0.12 filled; "
     "cursor 0.00 0.00"},
    {"picture", [](Report& r) {
        r.pPrintPicture(kPicture, 1, 1); r.pPrintPicture(kPicture, 1, 1, 3, 1);
        r.pPrintPicture(kPicture, 1, 1, 3, 1, true); r.pPrintPicture(kPicture, 1, 1, 3, 1, true, true);
        r.pPrintPicture(kPicture, 0, 0, 1, 9, true); },
     "picture 1.00 1.00 3.00 2.00; picture 1.00 1.00 4.00 2.00; picture 1.00 1.00 3.00 2.00; "
     "picture 1.50 1.00 3.50 2.00; picture 0.00 0.00 1.00 0.50; cursor 0.00 0.00",
     "picture 1.00 1.00 6.08 3.54; picture 1.00 1.00 4.00 2.00; picture 1.00 1.00 3.00 2.00; "
     "picture 1.50 1.00 3.50 2.00; picture 0.00 0.00 1.00 0.50; cursor 0.00 0.00"},
    {"header", [](Report& r) { r.pHeader(); r.pHeader("Title", "Sub"); r.pPrint("x"); },
     "Title 2.71 0.00; Sub 2.80 0.25; line 0.00 0.45 5.83 0.45 wide 0.12; "
     "line 0.00 0.48 5.83 0.48 wide 0.12;  0.00 0.51; x 0.00 0.59; cursor 0.00 0.74",
     "Title 6.88 0.00; Sub 7.11 0.63; line 0.00 1.13 14.82 1.13 wide 0.12; "
     "line 0.00 1.20 14.82 1.20 wide 0.12;  0.00 1.27; x 0.00 1.49; cursor 0.00 1.86"},
    {"footer", [](Report& r) { r.pFooter("Left"); },
     "line 0.00 9.69 5.83 9.69 wide 0.72; Left 0.00 9.72; Pg. 1 5.55 9.72; cursor 0.00 9.87",
     "line 0.00 24.61 14.82 24.61 wide 0.72; Left 0.00 24.68; Pg. 1 14.09 24.68; cursor 0.00 25.08"},
  };
  // clang-format on
  return kPlaces;
}

TEST_F(ReportPlaces, EachOperationDrawsInItsPlace) {
  for (const PlaceCase& each : Places()) {
    SCOPED_TRACE(each.what);
    EXPECT_EQ(Drawn(Report::kInches, each.draw), each.inches);
    EXPECT_EQ(Drawn(Report::kCentimetres, each.draw), each.centimetres);
  }
}

}  // namespace
}  // namespace tarvane::printing
