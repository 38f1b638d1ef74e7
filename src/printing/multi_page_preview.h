#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "paper/page_picture.h"
#include "paper/recorder.h"
#include "screen/screen.h"

namespace tarvane::printing {

// Composes a report of many pages: pStartDoc, texts and shapes, pNewPage, pEndDoc. What comes of it is
// printed (SendToPrinter) or kept as page files, bitmaps in the folder for temporary files, and shown in a
// window of its own. Whoever composes never has to know which.
//
// Places and lengths are inches or centimetres from the upper left corner of what the printer can reach. Text
// stands with its upper edge at the current y. -1 (kNotGiven) as a place, a size or a colour is the current
// one, unless told otherwise. A colour is red + 256 green + 65,536 blue. Line widths are dots of a printer of
// 600 dots an inch.
//
// Each page is also kept as a record of what was drawn, some bytes a text, so that the window prints pages
// and not their bitmaps. Only one bitmap is in memory at a time, however long the report is.
class clsMultiPgPreview {
 public:
  static constexpr double kNotGiven = -1;
  static constexpr std::int32_t kCurrentColor = -1;
  enum ScaleMode : std::int16_t { kInches = 5, kCentimetres = 7 };
  enum FillStyle : std::int16_t { kSolid = 0, kHollow = 1 };

  // Over `opener`, which must outlive it, with the printer's font.
  explicit clsMultiPgPreview(Screen& opener);
  // The page files go with it.
  ~clsMultiPgPreview();
  clsMultiPgPreview(const clsMultiPgPreview&) = delete;
  clsMultiPgPreview& operator=(const clsMultiPgPreview&) = delete;

  // A document. What is drawn outside one is lost; one begun before another has ended takes its place. Both
  // switches, the scale mode and the orientation hold from the next pStartDoc on.
  void pStartDoc();
  // Faults for page 32,769, which ends the document.
  void pNewPage();
  // Prints, or opens the window. It is shown modally in any case, as all windows of the program are. Page
  // files that couldn't be written are told first. Faults where it can't be printed.
  void pEndDoc(bool modal = true);
  bool SendToPrinter() const { return send_to_printer_; }
  void SetSendToPrinter(bool send) { send_to_printer_ = send; }
  void SetScaleMode(std::int16_t mode) { scale_mode_ = mode; }  // any but 7 is inches
  std::int16_t Orientation() const { return orientation_; }     // 1: higher than wide; 2: wider than high
  void SetOrientation(std::int16_t orientation) { orientation_ = orientation; }
  std::int16_t ColorMode() const { return color_mode_; }  // 1: shades of grey
  void SetColorMode(std::int16_t mode) { color_mode_ = mode; }
  void PrintCopies(int copies);  // below 1: stays as it was
  double GetPaperWidth() const { return paper_width_; }
  double GetPaperHeight() const { return paper_height_; }
  void SetPaperWidth(double width) { paper_width_ = width; }  // until the next pStartDoc
  void SetPaperHeight(double height) { paper_height_ = height; }
  int GetPage() const { return page_ + 1; }

  // Pages. The header is printed where there is a title; an empty title and what isn't given stay as they
  // were. pEndOfPage: whether a further line, `extra` and the footer have no room any more.
  void pHeader(std::string_view title = {}, std::optional<std::string_view> subtitle = {},
               std::optional<bool> italic = {});
  void pFooter(std::string_view text = {});
  bool pEndOfPage(double extra = 0, bool reserve_footer = true);
  const std::string& ReportTitle() const { return report_title_; }
  void SetReportTitle(std::string_view title) { report_title_ = title; }
  const std::string& ReportSubTitle() const { return report_subtitle_; }
  void SetReportSubTitle(std::string_view subtitle) { report_subtitle_ = subtitle; }

  // Texts. With `newline` the cursor goes to the beginning of the next line, else behind the text. Wrapped
  // texts turn pages, with footer and header.
  void pPrint(std::string_view text = {}, double x = kNotGiven, bool newline = true);
  void pMultiline(std::string_view text, double left = kNotGiven, double right = kNotGiven,
                  bool newline = true);
  void pCenterMultiline(std::string_view text, bool newline = true, double left = kNotGiven,
                        double right = kNotGiven);
  // In the middle of `right`, a width, from `left` on.
  void pCenter(std::string_view text, bool newline = true, double right = kNotGiven, double left = 0);
  void pRightTab(std::string_view text, double right_margin = 0, bool newline = true);
  void pRightJust(std::string_view text, double right = kNotGiven, bool newline = true);
  // `angle`: degrees against the clock, 0 to 359, around the text's upper left corner. The cursor stays.
  void pPrintRotate(std::string_view text, double angle, double x = kNotGiven);
  void pPrintedDate(bool newline = true, double x = kNotGiven, double y = kNotGiven);
  void pCancled();
  void pBullet(double x = kNotGiven);
  void pDots(double target, double x = kNotGiven);
  // Blanks, or with `visible` marks that show them.
  void pSpaces(double target, double x = kNotGiven, bool visible = false);
  void pHalfSpace() { BlankLine(0.5); }
  void pQuarterSpace() { BlankLine(0.25); }
  void p15Space();
  static std::string GetFormalCase(std::string_view text);
  static std::string GetStripQuotes(std::string_view text);
  static std::string GetRemoveCRLF(std::string_view text);
  double GetTextWidth(std::string_view text) const;   // of its widest line
  double GetTextHeight(std::string_view text) const;  // of its lines, at least one

  // Shapes. A line width that isn't above 0 is the current one (DrawWidth). The current position stays, but
  // that rules move it down where told so.
  void pLine(double left = kNotGiven, double right = kNotGiven, double line_width = 0, bool newline = true);
  void pDoubleLine(double left = kNotGiven, double right = kNotGiven, double line_width = 0,
                   bool newline = true);
  void pVerticalLine(double x = kNotGiven, double top = kNotGiven, double bottom = kNotGiven,
                     double line_width = 0);
  // No width: to the right edge; no height: that of a text. The colour is that of outline and filling.
  void pBox(double x = kNotGiven, double y = kNotGiven, double width = kNotGiven, double height = kNotGiven,
            std::int32_t color = kCurrentColor, std::int16_t fill_style = kHollow, double line_width = 0);
  // `aspect`: height by width; the longer radius is `radius`.
  void pCircle(double x, double y, double radius, std::int32_t color = kCurrentColor,
               std::int16_t fill_style = kHollow, double aspect = 1);
  // No size: the picture's own. `fit`: in proportion, as large as the size allows. `centre`: in the middle of
  // the width.
  void pPrintPicture(const paper::Picture& picture, double x = kNotGiven, double y = kNotGiven,
                     double width = kNotGiven, double height = kNotGiven, bool fit = false,
                     bool centre = false);

  double CurrentX() const { return x_; }
  double CurrentY() const { return y_; }
  void SetCurrentX(double x) { x_ = x; }
  void SetCurrentY(double y) { y_ = y; }
  const std::string& FontName() const { return font_.name; }
  void pFontName(std::string_view name) { font_.name = name; }
  void SetFontName(std::string_view name) { pFontName(name); }
  double FontSize() const { return font_.points; }
  void SetFontSize(double points);  // kept between 1 and 2,160
  bool FontBold() const { return font_.bold; }
  void SetFontBold(bool bold) { font_.bold = bold; }
  bool FontItalic() const { return font_.italic; }
  void SetFontItalic(bool italic) { font_.italic = italic; }
  bool FontUnderline() const { return font_.underline; }
  void SetFontUnderline(bool underline) { font_.underline = underline; }
  void FontStrikethru(bool strike) { font_.strike = strike; }
  // False: texts stand on a ground of BackColor.
  bool FontTransparent() const { return font_transparent_; }
  void SetFontTransparent(bool transparent) { font_transparent_ = transparent; }
  std::int32_t ForeColor() const { return fore_color_; }
  void SetForeColor(std::int32_t color) { fore_color_ = color; }
  std::int32_t BackColor() const { return back_color_; }
  void SetBackColor(std::int32_t color) { back_color_ = color; }
  double DrawWidth() const { return draw_width_; }
  void SetDrawWidth(double width) { draw_width_ = width; }

 private:
  // Brings the font back.
  class FontKeeper {
   public:
    explicit FontKeeper(clsMultiPgPreview& report) : report_(report), font_(report.font_) {}
    ~FontKeeper() { report_.font_ = std::move(font_); }
    FontKeeper(const FontKeeper&) = delete;
    FontKeeper& operator=(const FontKeeper&) = delete;

   private:
    clsMultiPgPreview& report_;
    paper::Font font_;
  };

  // Pages.
  void TakePaper();
  void BeginPage();
  void FinishPage();
  void SavePage();
  void TurnFullPage();
  void ShowPages(const paper::RecordedPages& pages);

  // Texts.
  void Put(std::string_view text, bool newline);
  void PutLines(const std::vector<std::string>& lines, bool newline, double left, double room, bool centred);
  void PutSigns(std::string_view signs, paper::Font font);
  void PutUpTo(double target, double x, std::string_view sign, const paper::Font& font);
  void BlankLine(double share);
  double Width(std::string_view line) const;
  double LineHeight() const;
  paper::Measure& measure() const { return opener_.host().TextMeasure(); }

  // Shapes.
  void Rule(double left, double right, double line_width);
  double RuleGap() const { return per_unit_ < kPointsPerInch ? 0.07 : 0.03; }
  paper::Stroke StrokeOf(double line_width, std::int32_t color) const;
  paper::Color ColorOf(std::int32_t number) const;
  paper::Point OnSheet(double x, double y) const;

  static constexpr double kPointsPerInch = 72;
  static constexpr double kRightGap = 0.1;  // where wrapped lines end before the right edge

  Screen& opener_;
  bool send_to_printer_ = true;
  std::int16_t scale_mode_ = kInches;
  std::int16_t orientation_ = 1;
  std::int16_t color_mode_ = 2;
  int copies_ = 1;

  // The sheet.
  paper::Paper paper_;
  double per_unit_ = kPointsPerInch;  // points
  double paper_width_ = 0;
  double paper_height_ = 0;

  // The document.
  bool prints_ = true;
  bool turning_ = false;  // header and footer turn no pages
  std::int16_t page_ = 0;
  std::optional<paper::Recorder> recorder_;  // the page in progress; none outside a document
  std::vector<paper::RecordedPage> records_;
  std::filesystem::path folder_;  // of page files; empty where none were made
  std::unique_ptr<paper::PagePicture> picture_;
  int unsaved_pages_ = 0;
  std::string save_fault_;  // the first one

  std::string report_title_;
  std::string report_subtitle_;
  bool header_italic_ = true;

  double x_ = 0;
  double y_ = 0;
  paper::Font font_;
  bool font_transparent_ = true;
  std::int32_t fore_color_ = 0;
  std::int32_t back_color_ = 0xFFFFFF;
  double draw_width_ = 1;
};

}  // namespace tarvane::printing
