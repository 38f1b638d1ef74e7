#pragma once

#include <cmath>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "pdf/cell_layout.h"
#include "pdf/document_objects.h"
#include "pdf/font_metrics.h"
#include "pdf/line_buffer.h"
#include "pdf/markers.h"
#include "pdf/messages.h"
#include "pdf/object_file.h"
#include "pdf/setting.h"
#include "text/day.h"

namespace tarvane::pdf {

// What the writer needs from outside. Any of it may be left out: messages then go nowhere, and nothing is
// viewed.
struct Surroundings {
  MessageSink* messages = nullptr;
  std::function<DateTime()> now = LocalNow;
  std::function<void(const std::string& path)> view;  // hands a finished file to the platform's viewer
  std::string program_folder;                         // where metric files are looked for by default
};

enum Unit { kPoint, kMillimeter, kCentimeter };
enum Orientation { kPortrait, kLandscape };
enum Format { kA4, kA3, kA5, kLetter, kLegal };
enum ZoomMode { kZoomFullPage, kZoomFullWidth, kZoomRealSize, kZoomDefault };
enum LayoutMode { kSinglePage, kOneColumn, kTwoColumns, kLayoutDefault };
enum ViewerPreference {
  kHideMenubar = 1,
  kHideToolbar = 2,
  kHideWindowUI = 4,
  kDisplayDocTitle = 8,
  kCenterWindow = 16,
  kFitWindow = 32
};

// The furthest that a place or a length may reach, in points: what the readers of this version of the format
// take for a number.
inline constexpr double kFarthest = 32767;

enum FontFamily { kArial, kCourier, kTimes, kSymbol, kZapfDingbats };
enum FontStyle { kNormal = 0, kBold = 1, kItalic = 2, kBoldItalic = 3 };
enum LineStyle { kSolid, kDashed, kDashDot, kDashDotDot };
enum DrawMode { kOutline, kFill, kFillAndOutline };
enum Alignment { kLeft, kCenter, kRight, kFull };

struct Point {
  double x = 0;
  double y = 0;
};

// Writes one PDF 1.3 file: settings, then PDFBeginDoc, drawing and PDFNewPage, then PDFEndDoc.
//
// Places and lengths are in user units (points, millimetres or centimetres, PDFSetUnit; centimetres at
// first), places to the right of the page's upper left corner and down from it; font sizes are points. Texts
// are UTF-8 and are written in WinAnsi, "?" for what has no place there; information and bookmarks are
// written in PDFDocEncoding. A bad setting shows a message and takes a fallback. A place, length or angle
// that is no number counts as 0, and one that is out of readers' range as the nearest within; the first of a
// document shows a message. Nothing guards the order of calls: what is drawn before PDFBeginDoc is dropped,
// and what comes behind PDFEndDoc reaches no file. A file that can't be written is passed over; PDFWritten
// tells. Only measuring text faults: without a metric file for the font, for a text with the character 0, and
// for one whose width is out of all bounds.
//
// A document belongs to one thread at a time; different documents may be written by different threads.
class tqrPDF {
 public:
  explicit tqrPDF(Surroundings surroundings = {});
  tqrPDF(const tqrPDF&) = delete;
  tqrPDF& operator=(const tqrPDF&) = delete;

  // Sets everything back to its beginning; a file that is open is left as far as it is.
  void PDFInit();

  // The output file, a full path: it is made at once, overwriting. The name is the last part of the path.
  void PDFFileName(const std::string& path);
  const std::string& PDFGetFileName() const { return file_name_; }
  // The folder of the metric files, and their loading. Without any there the fonts stay as they were.
  void PDFPathConfiguration(const std::string& folder) { PDFLoadAfm(folder); }
  void PDFLoadAfm(const std::string& folder);

  void PDFProducer(std::string text) { information_.producer = std::move(text); }
  void PDFSubject(std::string text) { information_.subject = std::move(text); }
  void PDFKeywords(std::string text) { information_.keywords = std::move(text); }
  void PDFCreator(std::string text) { information_.creator = std::move(text); }
  void PDFAuthor(std::string text) { information_.author = std::move(text); }
  void PDFTitle(std::string text) { information_.title = std::move(text); }

  // A ZoomMode, or any other number for a percentage.
  void PDFSetZoomMode(const Setting& mode);
  double PDFGetZoomMode() const;
  // A LayoutMode.
  void PDFSetLayoutMode(const Setting& mode);
  int PDFGetLayoutMode() const { return view_.layout; }
  void PDFUseThumbs(bool use) { view_.use_thumbs = use; }
  void PDFUseOutlines(bool use) { view_.use_outlines = use; }
  // A sum of ViewerPreference.
  void PDFSetViewerPreferences(int flags) { view_.preferences = flags; }
  // After the end: tell that the file is made; open it in the viewer. Where it couldn't be written, either
  // shows a message that says so instead.
  void PDFConfirm(bool confirm) { confirm_ = confirm; }
  void PDFView(bool view) { view_after_ = view; }
  // Whether the last document went into its file whole: false until PDFEndDoc, and where the system refused
  // any of its bytes.
  bool PDFWritten() const { return file_.written(); }
  // For files that leave the house: the same operations give a file with nothing in it that a reader has to
  // repair, and texts are measured as readers set them. To be set before anything else; off at first.
  void PDFStrict(bool strict);
  // The text behind every page's content.
  void PDFWatermark(std::string text);

  // A Unit. Amounts already set keep their number and change their meaning.
  void PDFSetUnit(const Setting& unit);
  int PDFGetUnit() const { return unit_; }
  // An Orientation; the page in progress swaps its sides when it changes.
  void PDFOrientation(const Setting& orientation);
  // The size of the page in progress: a Format, turned in landscape; or the width and height in points, as
  // they are. Pages behind it take its size. A side is 3 to 14,400 points long; another makes the page A4,
  // with the message of a bad format.
  void PDFFormatPage(const Setting& format);
  void PDFFormatPage(double width, double height);
  void PDFPageHeight(double height);
  void PDFPageWidth(double width);
  double PDFGetPageHeight() const { return SizedPage().height / scale_; }
  double PDFGetPageWidth() const { return SizedPage().width / scale_; }
  int PDFPageNumber() const { return page_count_; }
  int PDFNbPage() const { return page_count_; }

  void PDFSetMargins(double left, double top, double right, double bottom);
  void PDFSetLeftMargin(double margin) { margins_.left = margin; }
  void PDFSetRightMargin(double margin) { margins_.right = margin; }
  void PDFSetTopMargin(double margin) { margins_.top = margin; }
  void PDFSetBottomMargin(double margin) { margins_.bottom = margin; }
  void PDFSetCellMargin(double margin) { margins_.cell = margin; }
  double PDFGetLeftMargin() const { return margins_.left; }
  double PDFGetRightMargin() const { return margins_.right; }
  double PDFGetTopMargin() const { return margins_.top; }
  double PDFGetBottomMargin() const { return margins_.bottom; }
  double PDFGetCellMargin() const { return margins_.cell; }
  double PDFGetX() const { return pen_.x; }
  double PDFGetY() const { return pen_.y; }

  // Takes the settings and writes the head of the file.
  void PDFBeginDoc();
  // Closes the page in progress and begins the next one.
  void PDFNewPage();
  // Gives the page in progress the size of the one before, when it has none of its own.
  void PDFEndPage() { OwnPage(); }
  // Writes the rest of the file and closes it.
  void PDFEndDoc();

  void PDFSetTextColor(const Color& color);
  void PDFSetLineColor(const Color& color);
  void PDFSetDrawColor(const Color& color);
  Rgb PDFGetTextColor() const { return pen_.text_rgb; }
  Rgb PDFGetLineColor() const { return pen_.line_rgb; }
  Rgb PDFGetDrawColor() const { return pen_.draw_rgb; }
  // A LineStyle; takes effect where it stands on the page.
  void PDFSetLineStyle(const Setting& style);
  void PDFSetLineWidth(double width) { pen_.line_width = width; }
  // A DrawMode, for rectangles, ellipses and polygons.
  void PDFSetDrawMode(const Setting& mode);

  void PDFDrawLineHor(double x, double y, double length);
  void PDFDrawLineVer(double x, double y, double length);
  void PDFDrawLine(double x1, double y1, double x2, double y2);
  // The link is an address; empty for none.
  void PDFDrawRectangle(double x, double y, double width, double height, const std::string& link = "");
  // Fills the box whose upper left corner is x, y; without a height it is round.
  void PDFDrawEllipse(double width, double x, double y, double height = 0);
  // Without points nothing is drawn.
  void PDFDrawPolygon(const std::vector<Point>& points);

  // A FontFamily, the size in points (0 becomes 10 at the next text), and a sum of FontStyle.
  void PDFSetFont(const Setting& font, double size, int style = kNormal);
  double PDFTextHeight() const { return pen_.font_size / scale_; }
  // The width in points of `text` at `size`. An empty font is the current one.
  double PDFGetStringWidth(std::string_view text, std::string_view font, double size);
  // Degrees, against the clock, for the next text only.
  void PDFSetRotation(double degrees) { pen_.rotation = Sane(degrees); }
  // So much wider is each blank of the next text only.
  void PDFSetWiderBlanks(double width) { pen_.wider_blanks = Sane(width, scale_); }
  // At x plus the left margin, and y as the base line; 0 stands for the current place. The current x moves
  // behind the text. A rotated text stands at x itself.
  void PDFTextOut(const std::string& text, double x = 0, double y = 0);

  // An Alignment, for cells.
  void PDFSetAlignement(const Setting& alignment);
  int PDFGetAlignement() const { return cell_.alignment; }
  // 0 for none, 1 for all, or a text of any of "L", "R", "T", "B".
  void PDFSetBorder(const Setting& border) { cell_.border = border.Text(); }
  void PDFSetFill(bool fill) { cell_.fill = fill; }
  // Text wrapped to `width` in lines of `height` from the current place down; the current y moves below it.
  void PDFCell(const std::string& text, double height, double width, const std::string& link = "");

  // Places a JPEG file. A width or height of 0 is worked out from the other, or from the pixels, and given
  // back.
  void PDFImage(const std::string& path, double x, double y, double& width, double& height);
  // The size of a JPEG file in pixels; 0 for one that is refused, with its message.
  int PDFImageWidth(const std::string& path);
  int PDFImageHeight(const std::string& path);
  // The same in two steps, for a picture that the caller has read and that may stand in many places: its
  // number from 1, then as often as wanted that number at a place, stretched to a size.
  int PDFAddPicture(Image picture);
  void PDFPlacePicture(int number, double x, double y, double width, double height);
  // Makes the area of the last image a link.
  void PDFLink(const std::string& address);
  // A bookmark to `y` on this page; level 0 is the outermost.
  void PDFSetBookmark(const std::string& text, int level = 0, double y = 0);

 private:
  // Everything that drawing looks at and that a watermark gives back.
  struct Pen {
    double x = 0;
    double y = 0;
    double line_width = 0.567;
    double rotation = 0;
    double wider_blanks = 0;
    Rgb draw_rgb{};
    Rgb line_rgb{};
    Rgb text_rgb{};
    std::string draw_color = "0 g";
    std::string line_color = "0 G";
    std::string text_color = "0 g";
    int draw_mode = kOutline;
    std::string font;  // empty until one is set
    double font_size = 0;
    std::string font_operator;  // made of the two at the next text; empty when either has changed
  };
  struct Margins {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
    double cell = 0;
  };
  struct CellSettings {
    int alignment = kLeft;
    std::string border;
    bool fill = false;
  };
  struct CellBox {
    double x, y, width, height;
    std::string sides;
  };

  void Show(const Message& message) const;
  // The number of a setting that is one of `count` from 0; without, shows the message and gives `fallback`.
  int Choice(const Setting& value, int count, SettingError error, int fallback) const;
  Rgb RgbOf(const Color& color, SettingError error) const;

  // `number`, which is in units of `unit` points, within readers' range.
  double Sane(double number, double unit = 1) {
    return std::abs(number * unit) <= kFarthest ? number : Replaced(number, unit);
  }
  double Replaced(double number, double unit);
  void TellNumber(double number);
  double PointsX(double x) { return Sane(x * scale_); }
  double PointsY(double y) { return Sane(SizedPage().height - y * scale_); }
  double Length(double length) { return Sane(length * scale_); }
  void SizePage(double width, double height);
  const Page& SizedPage() const;
  Page& OwnPage();
  void MoveToMargins();
  void OpenStream();
  void CloseStream(LineBuffer& marker_lines);
  void DrawWatermark();

  // The line width stands behind the path, where it shapes the next one; in strict mode before it.
  void BeginPath();
  void EndPath(std::string_view paint);
  void AppendLine(const Marker& marker, double x1, double y1, double x2, double y2);
  void AppendModeColors();
  void RecordLink(const Area& area, const std::string& address);
  void RecordLink(double x, double y, double width, double height, const std::string& address);
  const std::string& FontInUse() const;
  const std::string& FontOperator();
  void SetFontSize(double size);
  void ShowText(std::string_view codes, double x, double y);
  void AppendCellBox(const CellBox& box);
  void AppendCellLine(const CellLine& line, const CellBox& box, const WidthTable& widths, double room);
  bool ReadImage(const std::string& path, Image& image) const;

  Surroundings surroundings_;
  FontFolder fonts_;
  ObjectFile file_;
  std::string file_path_;
  std::string file_name_;
  Information information_;
  ViewSettings view_;
  bool confirm_ = false;
  bool view_after_ = false;
  bool strict_ = false;
  bool number_told_ = false;
  bool watermark_on_ = false;
  std::string watermark_;

  int unit_ = kCentimeter;
  double scale_ = 1;  // points in a user unit
  Margins margins_;
  Pen pen_;
  CellSettings cell_;

  int page_count_ = 0;       // 0 until the document begins
  std::vector<Page> pages_;  // never empty: settings before the document begins are those of its first page
  std::vector<Image> images_;
  std::vector<Bookmark> bookmarks_;
  Area last_image_;

  LineBuffer page_;    // the page in progress
  LineBuffer links_;   // goes behind it
  LineBuffer object_;  // the stream object of the page in progress
  size_t head_length_ = 0;
};

}  // namespace tarvane::pdf
