// What each operation puts on a page, and what settings say and fall back to.
#include <gmock/gmock.h>

#include <clocale>
#include <cmath>
#include <functional>
#include <locale>

#include "pdf/pdf_test_support.h"
#include "text_number/fault.h"

namespace tarvane::pdf {
namespace {

TEST(Settings, BadValuesSayWhyAndFallBack) {
  struct Case {
    std::function<void(tqrPDF&)> set;
    std::string title, text;
    std::function<bool(tqrPDF&)> fell_back;
  };
  const Rgb black{};
  const std::vector<Case> cases = {
      {[](tqrPDF& d) { d.PDFSetZoomMode("big"); }, "Zoom Mode - ",
       "Incorrect Zoom Mode : big.\nFocus will be set to full-page zoom",
       [](tqrPDF& d) { return d.PDFGetZoomMode() == 0; }},
      {[](tqrPDF& d) { d.PDFSetLayoutMode(4); }, "Layout Mode - ",
       "Layout incorrect : 4.\nLayout will be set to simple single page.",
       [](tqrPDF& d) { return d.PDFGetLayoutMode() == 0; }},
      {[](tqrPDF& d) { d.PDFSetUnit(kPoint), d.PDFSetUnit(7.5); }, "Error in measurement unit - ",
       "Incorrect Unit of Measure : 7.5.\nUsing centimeter ",
       [](tqrPDF& d) {
         return d.PDFGetUnit() == kCentimeter && std::abs(d.PDFGetPageWidth() - 20.99) < 0.01;
       }},
      {[](tqrPDF& d) { d.PDFOrientation(kLandscape), d.PDFOrientation(-1); }, "Error in orientation - ",
       "Orientation set incorrectly: -1.\nOrientation set to portrait.",
       [](tqrPDF& d) { return d.PDFGetPageHeight() > d.PDFGetPageWidth(); }},
      {[](tqrPDF& d) { d.PDFFormatPage(kA3), d.PDFFormatPage(5); }, "Format Page - ",
       "Format page set incorrectly : 5.\nFormat page set to A4",
       [](tqrPDF& d) { return std::abs(d.PDFGetPageWidth() - 20.99) < 0.01; }},
      {[](tqrPDF& d) { d.PDFFormatPage("A3"); }, "Format Page - ",
       "Format page set incorrectly : A3.\nFormat page set to A4.",
       [](tqrPDF& d) { return std::abs(d.PDFGetPageWidth() - 20.99) < 0.01; }},
      {[](tqrPDF& d) { d.PDFSetTextColor("red"); }, "Text Color ",
       "Invalid HTMl color setred.\nSet color to  black.",
       [&](tqrPDF& d) { return d.PDFGetTextColor() == black; }},
      {[](tqrPDF& d) { d.PDFSetLineColor("FF0000"); }, "Line Color - ",
       "Invalid line color set FF0000.\nSetting line color to black.",
       [&](tqrPDF& d) { return d.PDFGetLineColor() == black; }},
      {[](tqrPDF& d) { d.PDFSetDrawColor(""); }, "Draw Color - ", "Invalid Draw Color set .\nUsing black.",
       [&](tqrPDF& d) { return d.PDFGetDrawColor() == black; }},
      {[](tqrPDF& d) { d.PDFSetDrawMode(3); }, "Object Rectangle - ",
       "Draw Mode set incorrectly : 3.\nDraw mode set to normal", [](tqrPDF&) { return true; }},
      {[](tqrPDF& d) { d.PDFSetLineStyle(4); }, "Line Style - ",
       "Line style set incorrectly : 4.\nLine style set to solid.", [](tqrPDF&) { return true; }},
      {[](tqrPDF& d) { d.PDFSetFont("Comic", 10); }, "Font name - ",
       "Font name set incorrectly : Comic.\nFont set to Times New Roman.", [](tqrPDF&) { return true; }},
      {[](tqrPDF& d) { d.PDFSetAlignement(2), d.PDFSetAlignement("L"); }, "Alignment - ",
       "Invalid alignment set. : L.\nUsing left alignment.",
       [](tqrPDF& d) { return d.PDFGetAlignement() == kLeft; }},
  };
  for (const Case& c : cases) {
    SeenMessages messages;
    tqrPDF document(FixedSurroundings(&messages));
    c.set(document);
    ASSERT_EQ(messages.list.size(), 1u) << c.title;
    EXPECT_EQ(messages.list[0].title, c.title + "tqrPDF 1.0");
    EXPECT_EQ(messages.list[0].text, c.text);
    EXPECT_EQ(messages.list[0].icon, Icon::kInformation);
    EXPECT_TRUE(c.fell_back(document)) << c.title;
  }
}

TEST(Settings, StartValuesAndPageSizes) {
  tqrPDF document;
  const double k = 72 / 2.54;
  EXPECT_DOUBLE_EQ(document.PDFGetLeftMargin(), 28.35 / k);
  EXPECT_DOUBLE_EQ(document.PDFGetBottomMargin(), 28.35 / k);
  EXPECT_DOUBLE_EQ(document.PDFGetCellMargin(), 2.835 / k);
  EXPECT_DOUBLE_EQ(document.PDFGetY(), 28.35 / k);
  EXPECT_EQ(document.PDFGetUnit(), kCentimeter);
  EXPECT_EQ(document.PDFNbPage(), 0);
  document.PDFSetUnit(kMillimeter);
  EXPECT_NEAR(document.PDFGetPageHeight(), 297.04, 0.01);
  document.PDFPageHeight(100);
  EXPECT_NEAR(document.PDFGetPageHeight(), 283 / 72.0 * 25.4, 0.001) << "whole points";
  document.PDFSetUnit(kPoint);
  const std::pair<int, std::pair<int, int>> formats[] = {
      {kA4, {595, 842}}, {kA3, {842, 1191}}, {kA5, {421, 595}}, {kLetter, {612, 792}}, {kLegal, {612, 1008}}};
  for (const auto& [format, size] : formats) {
    document.PDFOrientation(kPortrait);
    document.PDFFormatPage(format);
    EXPECT_EQ(document.PDFGetPageWidth(), size.first);
    EXPECT_EQ(document.PDFGetPageHeight(), size.second);
    document.PDFOrientation(kLandscape);
    EXPECT_EQ(document.PDFGetPageWidth(), size.second);
    document.PDFOrientation(kLandscape);
    EXPECT_EQ(document.PDFGetPageWidth(), size.second) << "swaps only when it changes";
  }
  document.PDFFormatPage(100, 200.5);
  EXPECT_EQ(document.PDFGetPageWidth(), 200) << "landscape, half to even";
  document.PDFFormatPage(1e300, std::nan(""));
  EXPECT_EQ(document.PDFGetPageHeight(), 32767);
  document.PDFPageWidth(7);
  EXPECT_EQ(document.PDFGetPageWidth(), 7);
  document.PDFBeginDoc();
  document.PDFNewPage();
  EXPECT_EQ(document.PDFPageNumber(), 2);
  EXPECT_EQ(document.PDFGetPageWidth(), 7) << "the size of the page before";
  document.PDFOrientation(kPortrait);
  EXPECT_EQ(document.PDFGetPageHeight(), 7);
}

TEST(Colors, Forms) {
  struct Case {
    Color color;
    Rgb parts;
    std::string line;
  };
  for (const Case& c :
       {Case{Color(255, 128, 0), {255, 128, 0}, "1.000 0.502 0.000"},
        Case{Color(Rgb{-5, 300, NAN}), {0, 255, 0}, "0.000 1.000 0.000"},
        Case{Color("#FF8000"), {255, 128, 0}, "1.000 0.502 0.000"},
        Case{Color("#F"), {0, 0, 15}, "0.000 0.000 0.059"}, Case{Color("#"), {0, 0, 0}, "0.000 0.000 0.000"},
        Case{Color("#12ff8000"), {255, 128, 0}, "1.000 0.502 0.000"},
        Case{Color("#1G-2zz"), {1, 0, 0}, "0.004 0.000 0.000"},
        Case{Color(0x0080FF), {255, 128, 0}, "1.000 0.502 0.000"},
        Case{Color(-1), {0, 0, 0}, "0.000 0.000 0.000"},
        Case{Color(1e300), {255, 255, 255}, "1.000 1.000 1.000"}}) {
    tqrPDF document;
    document.PDFSetLineColor(c.color);
    document.PDFSetTextColor(c.color);
    document.PDFSetDrawColor(c.color);
    EXPECT_EQ(document.PDFGetLineColor(), c.parts);
    EXPECT_EQ(document.PDFGetTextColor(), c.parts);
    EXPECT_EQ(document.PDFGetDrawColor(), c.parts);
    EXPECT_EQ(ColorOperator(*c.color.Parts(), "RG"), c.line + " RG");
  }
}

struct DrawingCase {
  std::string name;
  std::function<void(tqrPDF&)> draw;
  std::vector<std::string> lines;
};

void ExpectDrawn(const std::vector<DrawingCase>& cases) {
  for (const DrawingCase& c : cases) EXPECT_EQ(Drawn(c.draw), Lines(c.lines)) << c.name;
}

TEST(Drawing, LinesAndStyles) {
  ExpectDrawn({
      {"across",
       [](tqrPDF& d) { d.PDFSetLineWidth(2), d.PDFDrawLineHor(10, 20, 30); },
       {"0 G", "%DEBUT_LNH/%", "10.00 822.00 m", "40.00 822.00 l", "2.00 w S", "%FIN_LNH/%"}},
      {"down",
       [](tqrPDF& d) { d.PDFSetLineColor("#FF0000"), d.PDFDrawLineVer(10, 20, 30); },
       {"1.000 0.000 0.000 RG", "%DEBUT_LNV/%", "10.00 822.00 m", "10.00 792.00 l", "0.57 w S",
        "%FIN_LNV/%"}},
      {"between",
       [](tqrPDF& d) { d.PDFDrawLine(1, 2, 3, 4.005); },
       {"0 G", "%DEBUT_LN/%", "1.00 840.00 m", "3.00 838.00 l", "0.57 w S", "%FIN_LN/%"}},
      {"in millimetres",
       [](tqrPDF& d) { d.PDFSetUnit(kMillimeter), d.PDFSetLineWidth(1), d.PDFDrawLineHor(10, 10, 10); },
       {"0 G", "%DEBUT_LNH/%", "28.35 813.65 m", "56.69 813.65 l", "2.83 w S", "%FIN_LNH/%"}},
      {"styles in points",
       [](tqrPDF& d) {
         d.PDFSetLineStyle(0), d.PDFSetLineStyle(1), d.PDFSetLineStyle(2), d.PDFSetLineStyle(3);
       },
       {"[] 0 d", "[16 8 ] 0 d", "[8 7 2 7 ] 0 d", "[8 4 2 4 2 4 ] 0 d"}},
      {"styles in centimetres",
       [](tqrPDF& d) { d.PDFSetUnit(kCentimeter), d.PDFSetLineStyle(1), d.PDFSetLineStyle(2); },
       {"[453 226 ] 0 d", "[226 198 56 198 ] 0 d"}},
      {"bad style", [](tqrPDF& d) { d.PDFSetLineStyle("x"); }, {"[] 0 d"}},
  });
}

TEST(Drawing, ShapesByMode) {
  const auto with_mode = [](int mode, auto draw) {
    return [mode, draw](tqrPDF& d) {
      d.PDFSetDrawColor("#FF0000");
      d.PDFSetLineColor("#0000FF");
      d.PDFSetDrawMode(mode);
      draw(d);
    };
  };
  const auto rectangle = [](tqrPDF& d) { d.PDFDrawRectangle(1, 2, 3, 4); };
  const auto triangle = [](tqrPDF& d) { d.PDFDrawPolygon({{1, 2}, {3, 2}, {2, 4}}); };
  const std::string draw = "1.000 0.000 0.000 rg";
  const std::string line = "0.000 0.000 1.000 RG";
  const std::string box = "1.00 840.00 3.00 -4.00 re ";
  ExpectDrawn({
      {"rectangle", with_mode(0, rectangle), {"%DEBUT_RECT/%", line, box + "s", "0.57 w S", "%FIN_RECT/%"}},
      {"filled", with_mode(1, rectangle), {"%DEBUT_RECT/%", draw, box + "f", "0.57 w S", "%FIN_RECT/%"}},
      {"both", with_mode(2, rectangle), {"%DEBUT_RECT/%", draw, line, box + "B", "0.57 w S", "%FIN_RECT/%"}},
      {"bad mode", with_mode(9, rectangle), {"%DEBUT_RECT/%", line, box + "s", "0.57 w S", "%FIN_RECT/%"}},
      {"polygon",
       with_mode(0, triangle),
       {"%DEBUT_POLY/%", line, "1.00 840.00 m", "3.00 840.00 l", "2.00 838.00 l", "h", "0.57 w s",
        "%FIN_POLY/%"}},
      {"filled polygon",
       with_mode(1, triangle),
       {"%DEBUT_POLY/%", draw, "1.00 840.00 m", "3.00 840.00 l", "2.00 838.00 l", "h", "0.57 w h f",
        "%FIN_POLY/%"}},
      {"no points", [](tqrPDF& d) { d.PDFDrawPolygon({}); }, {}},
      {"ellipse",
       with_mode(1, [](tqrPDF& d) { d.PDFDrawEllipse(40, 100, 200, 20); }),
       {draw, "120.00 642.00 m", "131.00 642.00 140.00 637.50 140.00 632.00 c",
        "140.00 626.50 131.00 622.00 120.00 622.00 c", "109.00 622.00 100.00 626.50 100.00 632.00 c",
        "100.00 637.50 109.00 642.00 120.00 642.00 c", "h f", "0.57 w"}},
      {"circle",
       with_mode(2, [](tqrPDF& d) { d.PDFDrawEllipse(40, 100, 200); }),
       {draw, line, "120.00 642.00 m", "131.00 642.00 140.00 633.00 140.00 622.00 c",
        "140.00 611.00 131.00 602.00 120.00 602.00 c", "109.00 602.00 100.00 611.00 100.00 622.00 c",
        "100.00 633.00 109.00 642.00 120.00 642.00 c", "B", "0.57 w"}},
      {"a link",
       [](tqrPDF& d) { d.PDFDrawRectangle(1, 2, 3, 4, "x"); },
       {"%DEBUT_RECT/%", "0 G", box + "s", "0.57 w S", "%FIN_RECT/%", "%DEBUT_LINK/%", "%FIN_LINK/%"}},
  });
}

std::vector<std::string> TextLines(const std::string& place, const std::string& font, const std::string& text,
                                   const std::string& color = "0 g") {
  return {"q " + color, "%DEBUT_TEXT/%", "BT", place, font, "(" + text + ") Tj", "ET", "Q", "%FIN_TEXT/%"};
}

std::vector<std::string> operator+(std::vector<std::string> left, const std::vector<std::string>& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

TEST(Texts, PlacesFontsAndEscapes) {
  ExpectDrawn({
      {"the first font at size 10 without another", [](tqrPDF& d) { d.PDFTextOut("a", 5, 6); },
       TextLines("5.00 836.00 Td", "/F0 10 Tf", "a")},
      {"side by side, behind the left margin",
       [](tqrPDF& d) {
         d.PDFSetLeftMargin(3), d.PDFSetFont(kArial, 20), d.PDFTextOut("AB", 5, 6), d.PDFTextOut("c", 0, 7);
       },
       TextLines("8.00 836.00 Td", "/F7 20 Tf", "AB") + TextLines("34.68 835.00 Td", "/F7 20 Tf", "c")},
      {"in centimetres too",
       [](tqrPDF& d) {
         d.PDFSetUnit(kCentimeter), d.PDFSetFont(kArial, 20), d.PDFTextOut("AB", 1, 1),
             d.PDFTextOut("c", 0, 1);
       },
       TextLines("28.35 813.65 Td", "/F7 20 Tf", "AB") + TextLines("55.03 813.65 Td", "/F7 20 Tf", "c")},
      {"one text alone is rotated",
       [](tqrPDF& d) {
         d.PDFSetLeftMargin(3), d.PDFSetFont(kCourier, 8.5, kBoldItalic), d.PDFSetRotation(30);
         d.PDFTextOut("x", 10, 10), d.PDFTextOut("y", 10, 10);
       },
       TextLines("0.866 0.500 -0.500 0.866 10.000 832.000 Tm", "/F1 8.5 Tf", "x") +
           TextLines("13.00 832.00 Td", "/F1 8.5 Tf", "y")},
      {"escapes and colour",
       [](tqrPDF& d) { d.PDFSetTextColor("#FF"), d.PDFSetFont(kTimes, 10), d.PDFTextOut("(\\)é", 1, 2); },
       TextLines("1.00 840.00 Td", "/F12 10 Tf", "\\(\\\\\\\\\\)\xE9", "0.000 0.000 1.000 rg")},
      {"a bad font", [](tqrPDF& d) { d.PDFSetFont(5, 10, kBold), d.PDFTextOut("t", 1, 2); },
       TextLines("1.00 840.00 Td", "/F12 10 Tf", "t")},
  });
}

TEST(Texts, FontNames) {
  const std::vector<std::vector<std::string>> names = {
      {"Helvetica", "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique"},
      {"Courier", "Courier-Bold", "Courier-Oblique", "Courier-BoldOblique"},
      {"Times-Roman", "Times-Bold", "Times-Italic", "Times-BoldItalic"},
      {"Symbol", "Symbol", "Symbol", "Symbol"},
      {"ZapfDingbats", "ZapfDingbats", "ZapfDingbats", "ZapfDingbats"}};
  FontFolder fonts;
  fonts.Load(FontsFolder());
  for (int family = kArial; family <= kZapfDingbats; ++family) {
    for (int style = kNormal; style <= kBoldItalic; ++style) {
      const std::string page =
          Drawn([&](tqrPDF& d) { d.PDFSetFont(family, 7, style), d.PDFTextOut("a", 1, 1); });
      const int number = fonts.NumberOf(names[family][style]);
      EXPECT_EQ(fonts.names()[number], names[family][style]);
      EXPECT_THAT(page, testing::HasSubstr("\n/F" + std::to_string(number) + " 7 Tf\r\n"));
    }
  }
}

TEST(Texts, Widths) {
  tqrPDF document;
  document.PDFPathConfiguration(FontsFolder());
  document.PDFSetFont(kArial, 12);
  EXPECT_EQ(document.PDFGetStringWidth("", "", 10), 0);
  EXPECT_DOUBLE_EQ(document.PDFGetStringWidth("AB", "", 10), 13.34);
  EXPECT_DOUBLE_EQ(document.PDFGetStringWidth("AB", "Courier", 10), 12);
  EXPECT_DOUBLE_EQ(document.PDFGetStringWidth("A", "Courier", 0.0025), 0.002)
      << "600 * 0.0025 rounds half to even";
  EXPECT_THROW(document.PDFGetStringWidth("AB", "NoFont", 10), Fault);
  EXPECT_THROW(document.PDFGetStringWidth(std::string("A\0B", 3), "", 10), Fault);
  EXPECT_THROW(document.PDFGetStringWidth("AB", "", 1e9), Fault);
  EXPECT_THROW(document.PDFGetStringWidth("AB", "", std::nan("")), Fault);
}

TEST(Cells, BoxesTextsAndPosition) {
  const auto courier = [](tqrPDF& d) {
    d.PDFSetCellMargin(2), d.PDFSetFont(kCourier, 10), d.PDFSetLineWidth(1);
  };
  const auto text = [](const std::string& place, const std::string& codes) {
    return TextLines(place, "/F3 10 Tf", codes);
  };
  const std::vector<std::string> open = {"%DEBUT_CELL/%"};
  const std::vector<std::string> close = {"%FIN_CELL/%"};
  ExpectDrawn({
      // Courier 10 is 6 points a character; 64 points less two margins hold ten of them.
      {"left",
       [&](tqrPDF& d) {
         courier(d), d.PDFCell("abcdefghij k\n", 20, 64);
         EXPECT_EQ(d.PDFGetY(), 40);
       },
       open + text("2.00 829.00 Td", "abcdefghij") + text("2.00 809.00 Td", "k") + close},
      {"centre", [&](tqrPDF& d) { courier(d), d.PDFSetAlignement(kCenter), d.PDFCell("ab", 20, 64); },
       open + text("26.00 829.00 Td", "ab") + close},
      {"right", [&](tqrPDF& d) { courier(d), d.PDFSetAlignement(kRight), d.PDFCell("ab", 20, 64); },
       open + text("50.00 829.00 Td", "ab") + close},
      {"full", [&](tqrPDF& d) { courier(d), d.PDFSetAlignement(kFull), d.PDFCell("ab cd e fghijk", 20, 64); },
       open + std::vector<std::string>{"9.000 Tw"} + text("2.00 829.00 Td", "ab cd e") +
           std::vector<std::string>{"0.000 Tw"} + text("2.00 809.00 Td", "fghijk") +
           std::vector<std::string>{"0 Tw"} + close},
      {"box",
       [&](tqrPDF& d) { courier(d), d.PDFSetBorder("BR"), d.PDFSetFill(true), d.PDFCell("a", 20, 64); },
       open +
           std::vector<std::string>{"0 g", "0.00 842.00 64.00 -20.00 re f", "0 G", "1.00 w",
                                    "64.00 842.00 m 64.00 822.00 l S", "0.00 822.00 m 64.00 822.00 l S"} +
           text("2.00 829.00 Td", "a") + close},
  });
}

// Every operation with numbers that no caller should give: no fault but a measurement's, and a whole file.
TEST(Misuse, OddNumbersReachTheEnd) {
  for (const double odd : {0.0, -1.0, 1e300, -1e300, std::nan(""), HUGE_VAL, 1e-300}) {
    Drawn([odd](tqrPDF& d) {
      d.PDFSetMargins(odd, odd, odd, odd), d.PDFSetCellMargin(odd), d.PDFSetLineWidth(odd);
      d.PDFSetZoomMode(odd), d.PDFSetRotation(odd), d.PDFSetTextColor(odd), d.PDFSetBookmark("b", -7, odd);
      d.PDFDrawLine(odd, odd, odd, odd), d.PDFDrawRectangle(odd, odd, odd, odd, "x"),
          d.PDFDrawEllipse(odd, odd, odd, odd);
      d.PDFDrawPolygon({{odd, odd}});
      double width = odd, height = odd;
      d.PDFImage(ImageFile("stb_rgb.jpg"), odd, odd, width, height);
      for (const double size : {odd, 10.0}) {
        d.PDFSetFont(kArial, size);
        try {
          d.PDFTextOut("text", odd, odd);
          d.PDFCell("some words", odd, odd);
        } catch (const Fault&) {
        }
      }
      d.PDFFormatPage(odd, odd), d.PDFPageHeight(odd), d.PDFPageWidth(odd);
    });
  }
}

class CommaPoint : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Misuse, NumbersCarryNoLocale) {
  const auto draw = [](tqrPDF& d) {
    d.PDFSetFont(kArial, 1234.5), d.PDFSetRotation(1234.5), d.PDFTextOut("a", 1234567.5, 1.25);
    d.PDFSetTextColor(Color(1, 2, 3)), d.PDFDrawLine(1234.5, 2345.5, 0.5, 0.005);
  };
  const std::string plain = Drawn(draw);
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  const std::string page = Drawn(draw);
  std::setlocale(LC_ALL, "C");
  std::locale::global(before);
  EXPECT_EQ(page, plain);
  EXPECT_EQ(page.find(','), std::string::npos) << page;
  EXPECT_THAT(page, testing::HasSubstr(" 1234.5 Tf"));
}

}  // namespace
}  // namespace tarvane::pdf
