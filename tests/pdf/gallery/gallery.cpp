#include "gallery.h"

#include <array>
#include <cmath>

namespace tarvane::pdf {
namespace {

constexpr double kLeftEdge = 40;
constexpr double kMargin = 30;  // not the edge: a text at x 0 would stand at the current place
const Color kBlack(0, 0, 0);
const Color kBlue(30, 60, 160);
const Color kSand("#F0E0C0");

// Text whose left end is at x, whatever the margin.
void TextAt(tqrPDF& document, const std::string& text, double x, double y) {
  document.PDFTextOut(text, x - document.PDFGetLeftMargin(), y);
}

void Heading(tqrPDF& document, const std::string& text) {
  document.PDFSetFont(kArial, 18, kBold);
  document.PDFSetTextColor(kBlue);
  TextAt(document, text, kLeftEdge, 50);
  document.PDFSetTextColor(kBlack);
  document.PDFSetBookmark(text, 0, 30);
}

void Label(tqrPDF& document, const std::string& text, double x, double y) {
  document.PDFSetFont(kArial, 8);
  TextAt(document, text, x, y);
}

void FontsPage(tqrPDF& document) {
  static constexpr std::array<std::string_view, 5> kFamilies = {"Arial", "Courier", "Times", "Symbol",
                                                                "ZapfDingbats"};
  static constexpr std::array<std::string_view, 4> kStyles = {"plain", "bold", "italic", "bold italic"};
  Heading(document, "Fonts and texts");
  double y = 80;
  for (int family = kArial; family <= kZapfDingbats; ++family) {
    const int styles = family <= kTimes ? 4 : 1;
    for (int style = kNormal; style < styles; ++style, y += 20) {
      const std::string name = std::string(kFamilies[family]) + ", " + std::string(kStyles[style]);
      Label(document, name, kLeftEdge, y);
      document.PDFSetFont(family, 14, style);
      TextAt(document, "Pleats, 2.5 x heading", 160, y);
    }
  }
  document.PDFSetBookmark("Codes", 1, y);
  document.PDFSetFont(kTimes, 14);
  TextAt(document, "(brackets), £ € § é ü ß ø – — “quotes” … ™ and ? for 漢", kLeftEdge, y += 15);
  TextAt(document, "one backslash shows as two: \\", kLeftEdge, y += 20);
  for (const double size : {6.0, 9.0, 12.5, 18.0, 24.0}) {
    document.PDFSetFont(kArial, size);
    TextAt(document, "size", kLeftEdge + size * 12, y + 30);
  }
  y += 60;
  document.PDFSetFont(kTimes, 14);
  TextAt(document, "side ", kLeftEdge, y);
  document.PDFSetTextColor("#C00000");
  document.PDFSetFont(kTimes, 14, kBoldItalic);
  document.PDFTextOut("by ", 0, y);
  document.PDFSetTextColor(kBlue);
  document.PDFTextOut("side, each behind the one before", 0, y);
  document.PDFSetTextColor(kBlack);
  document.PDFSetBookmark("Rotation", 1, y + 40);
  document.PDFSetFont(kArial, 11);
  for (int angle = 0; angle < 360; angle += 30) {
    document.PDFSetRotation(angle == 0 ? 360 : angle);
    const double radians = angle * M_PI / 180;
    document.PDFTextOut(std::to_string(angle) + " degrees", 300 + 25 * std::cos(radians),
                        640 - 25 * std::sin(radians));
  }
}

void LinesPage(tqrPDF& document) {
  static constexpr std::array<std::string_view, 4> kNames = {"solid", "dashed", "dash, dot",
                                                             "dash, dot, dot"};
  Heading(document, "Lines, styles and widths");
  double y = 90;
  for (int style = kSolid; style <= kDashDotDot; ++style) {
    for (const double width : {0.567, 2.0, 5.0}) {
      Label(document, std::string(kNames[style]) + ", " + std::to_string(width).substr(0, 5), kLeftEdge,
            y + 3);
      document.PDFSetLineStyle(style);
      document.PDFSetLineWidth(width);
      document.PDFSetLineColor(Color(style * 60, 0, 255 - style * 60));
      document.PDFDrawLineHor(150, y, 380);
      y += 18;
    }
  }
  document.PDFSetLineStyle(kSolid);
  document.PDFSetLineWidth(1);
  document.PDFSetLineColor(kBlack);
  for (int step = 0; step <= 10; ++step) {
    document.PDFDrawLineVer(60 + step * 20, 360, 20 + step * 10);
    document.PDFDrawLine(320, 360, 320 + step * 20, 480 - step * 12);
  }
  Label(document, "upright lines, each longer", 60, 500);
  Label(document, "a fan of slanting lines", 320, 500);
}

void ShapesPage(tqrPDF& document) {
  static constexpr std::array<std::string_view, 3> kNames = {"outline", "filled", "filled and outlined"};
  Heading(document, "Rectangles, ellipses and polygons");
  document.PDFSetLineWidth(1.5);
  document.PDFSetLineColor("#8B0000");
  document.PDFSetDrawColor(kSand);
  for (int mode = kOutline; mode <= kFillAndOutline; ++mode) {
    const double x = kLeftEdge + mode * 180;
    document.PDFSetDrawMode(mode);
    document.PDFDrawRectangle(x, 90, 140, 80, mode == kFill ? "http://localhost/rectangle" : "");
    document.PDFDrawEllipse(140, x, 200, 80);
    document.PDFDrawEllipse(90, x, 300);
    std::vector<Point> star;
    for (int corner = 0; corner < 5; ++corner) {
      const double angle = (corner * 144 - 90) * M_PI / 180;
      star.push_back({x + 60 + 60 * std::cos(angle), 480 + 60 * std::sin(angle)});
    }
    document.PDFDrawPolygon(star);
    document.PDFDrawPolygon({{x, 570}, {x + 120, 570}, {x + 100, 620}, {x + 20, 620}});
    Label(document, std::string(kNames[mode]), x, 640);
  }
  document.PDFSetDrawMode(kOutline);
}

// Leaves `height` free below the cell before.
void Gap(tqrPDF& document, double height) {
  document.PDFSetBorder(0);
  document.PDFSetFill(false);
  document.PDFCell("", height, 10);
}

void CellsPage(tqrPDF& document) {
  static constexpr std::array<std::string_view, 4> kNames = {"left", "centre", "right", "full"};
  static constexpr std::array<std::string_view, 3> kFrames = {"bare", "all sides, filled",
                                                              "left and bottom, a link"};
  static const std::string kText =
      "Curtains in the front room: two pairs, lined, with a heading of two and a half times the width of the "
      "track.\n"
      "The track stands 15 cm out on either side.\n";
  static const std::array<Setting, 3> kBorders = {0, 1, "LB"};
  Heading(document, "Cells");
  document.PDFSetLineWidth(0.5);
  document.PDFSetLineColor(kBlack);
  document.PDFSetDrawColor(kSand);
  document.PDFSetCellMargin(4);
  document.PDFTextOut("", kLeftEdge, 1);  // cells stand at the current x
  for (int alignment = kLeft; alignment <= kFull; ++alignment) {
    document.PDFSetAlignement(alignment);
    for (size_t frame = 0; frame < kFrames.size(); ++frame) {
      document.PDFSetFont(kTimes, 11);
      document.PDFSetBorder(kBorders[frame]);
      document.PDFSetFill(frame == 1);
      document.PDFCell(kText, 14, 300, frame == 2 ? "http://localhost/cell" : "");
      Label(document, std::string(kNames[alignment]) + ", " + std::string(kFrames[frame]), 360,
            document.PDFGetY() - 20);
      document.PDFTextOut("", kLeftEdge, 1);
      Gap(document, 10);
    }
  }
  document.PDFSetFont(kCourier, 9);
  document.PDFSetAlignement(kLeft);
  document.PDFSetBorder(1);
  document.PDFCell("A-word-of-many-letters-that-has-no-blank-to-break-at-is-cut-where-the-room-ends", 12,
                   150);
}

void ImagesPage(tqrPDF& document, const std::string& folder) {
  static constexpr std::array<std::string_view, 8> kImages = {
      "turbo_rgb.jpg",  "turbo_gray.jpg",     "turbo_progressive.jpg", "magick_cmyk.jpg",
      "ffmpeg_rgb.jpg", "exif_thumbnail.jpg", "guetzli_rgb.jpg",       "stb_rgb.jpg"};
  Heading(document, "Images, in millimetres");
  document.PDFSetUnit(kMillimeter);
  document.PDFSetLeftMargin(0);
  document.PDFSetFont(kArial, 8);
  int place = 0;
  for (const std::string_view name : kImages) {
    const double x = 15 + place % 2 * 90;
    const double y = 30 + place / 2 * 60;
    double width = place == 0 ? 0 : 60;
    double height = place == 1 ? 20 : 0;
    document.PDFImage(folder + "/" + std::string(name), x, y, width, height);
    document.PDFLink("http://localhost/" + std::string(name));
    document.PDFTextOut(std::string(name) + (place == 0   ? ", its own size"
                                             : place == 1 ? ", 60 by 20 mm"
                                                          : ""),
                        x, y + height + 4);
    ++place;
  }
  document.PDFSetUnit(kPoint);
}

void LandscapePage(tqrPDF& document) {
  Heading(document, "A5 in landscape");
  document.PDFSetDrawMode(kOutline);
  document.PDFSetLineWidth(1);
  document.PDFDrawRectangle(20, 20, document.PDFGetPageWidth() - 40, document.PDFGetPageHeight() - 40);
  document.PDFSetFont(kArial, 10);
  TextAt(document,
         "page " + std::to_string(document.PDFPageNumber()) + " of " + std::to_string(document.PDFNbPage()),
         kLeftEdge, 80);
  TextAt(document,
         "The watermark of this page stands where it would on the A4 page before: the size was changed after "
         "it.",
         kLeftEdge, 100);
}

}  // namespace

void WriteGallery(const GalleryFiles& files, MessageSink& messages) {
  tqrPDF document({&messages, [] { return DateTime{MakeDay(2024, 2, 29), 13, 5, 9}; }, {}, ""});
  document.PDFStrict(files.strict);
  document.PDFSetUnit(kPoint);
  document.PDFFormatPage(kA4);
  document.PDFOrientation(kPortrait);
  document.PDFSetMargins(kMargin, 75, kMargin, 60);
  document.PDFFileName(files.output);
  document.PDFPathConfiguration(files.fonts);
  document.PDFTitle("Gallery of the PDF writer");
  document.PDFAuthor("Tarvane");
  document.PDFSubject("Every operation, style, alignment and mode");
  document.PDFKeywords("gallery, pdf");
  document.PDFCreator("tarvane-pdf-gallery");
  document.PDFProducer(std::string(kWriterName));
  document.PDFSetZoomMode(kZoomDefault);
  document.PDFSetLayoutMode(kOneColumn);
  document.PDFUseOutlines(true);
  document.PDFSetViewerPreferences(kDisplayDocTitle | kCenterWindow);
  document.PDFWatermark("SAMPLE");
  document.PDFSetFont(kArial, 10);
  document.PDFBeginDoc();
  FontsPage(document);
  document.PDFNewPage();
  LinesPage(document);
  document.PDFNewPage();
  ShapesPage(document);
  document.PDFNewPage();
  CellsPage(document);
  document.PDFNewPage();
  ImagesPage(document, files.images);
  document.PDFSetMargins(kMargin, 75, kMargin, 60);
  // The next page takes the size of the one before; a format of its own follows.
  document.PDFEndPage();
  document.PDFNewPage();
  document.PDFFormatPage(kA5);
  document.PDFOrientation(kLandscape);
  LandscapePage(document);
  document.PDFEndDoc();
}

}  // namespace tarvane::pdf
