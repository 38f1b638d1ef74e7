#include "printing/multi_page_preview.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "printing/page_browser.h"
#include "printing/page_files.h"
#include "text/utf8.h"

namespace tarvane::printing {
namespace {

constexpr double kCentimetresPerInch = 2.54;
constexpr double kLeastSheet = 72;  // points: what can't hold a line is no sheet

// A sheet lying on its other side.
paper::Paper Turned(const paper::Paper& paper) {
  const paper::Edges& edges = paper.unprintable;
  return {{paper.size.height, paper.size.width}, {edges.bottom, edges.left, edges.top, edges.right}};
}

double PrintableWidth(const paper::Paper& paper) {
  return paper.size.width - paper.unprintable.left - paper.unprintable.right;
}
double PrintableHeight(const paper::Paper& paper) {
  return paper.size.height - paper.unprintable.top - paper.unprintable.bottom;
}

bool HoldsText(const paper::Paper& paper) {
  return PrintableWidth(paper) >= kLeastSheet && PrintableHeight(paper) >= kLeastSheet;
}

}  // namespace

clsMultiPgPreview::clsMultiPgPreview(Screen& opener) : opener_(opener), font_(opener.host().printer_font()) {
  TakePaper();
}

clsMultiPgPreview::~clsMultiPgPreview() {
  if (!folder_.empty()) RemovePageFiles(folder_);
}

void clsMultiPgPreview::TakePaper() {
  paper_ = opener_.host().PrinterPaper();
  if (!HoldsText(paper_)) paper_ = {};
  const bool is_wide = paper_.size.width > paper_.size.height;
  if (is_wide != (orientation_ == 2)) paper_ = Turned(paper_);
  per_unit_ = scale_mode_ == kCentimetres ? kPointsPerInch / kCentimetresPerInch : kPointsPerInch;
  paper_width_ = PrintableWidth(paper_) / per_unit_;
  paper_height_ = PrintableHeight(paper_) / per_unit_;
}

void clsMultiPgPreview::pStartDoc() {
  page_ = 0;
  turning_ = false;
  records_.clear();
  unsaved_pages_ = 0;
  save_fault_.clear();
  prints_ = send_to_printer_;
  TakePaper();
  if (!prints_) {
    folder_ = PageFolder();
    RemovePageFiles(folder_);
    picture_.reset();
    IgnoreFaults([this] { picture_ = opener_.host().MakePagePicture(paper_); });
  }
  BeginPage();
}

void clsMultiPgPreview::BeginPage() {
  recorder_.emplace(measure(), paper_);
  x_ = y_ = 0;
}

void clsMultiPgPreview::FinishPage() {
  records_.push_back(recorder_->pages().front());
  recorder_.reset();
  if (!prints_) SavePage();
}

void clsMultiPgPreview::SavePage() {
  try {
    if (picture_ == nullptr) throw Fault("No picture can be made of a page here.");
    picture_->Clear();
    paper::RecordedPages({records_.back()}, paper_).Draw(0, *picture_);
    const std::filesystem::path file = PageFile(folder_, page_);
    // What stands there may be a link to somewhere else.
    std::error_code error;
    std::filesystem::remove(file, error);
    if (error) throw Fault(file.string() + " could not be replaced: " + error.message() + ".");
    picture_->Save(file);
  } catch (const Fault& fault) {
    if (unsaved_pages_++ == 0) save_fault_ = fault.what();
  }
}

void clsMultiPgPreview::pNewPage() {
  if (!recorder_) return;
  FinishPage();
  if (page_ == std::numeric_limits<std::int16_t>::max()) {
    records_.clear();
    picture_.reset();
    throw Fault("The report has too many pages: there is no number for one behind page 32768.");
  }
  ++page_;
  BeginPage();
}

void clsMultiPgPreview::pEndDoc(bool) {
  if (!recorder_) return;
  FinishPage();
  picture_.reset();
  const paper::RecordedPages pages(std::exchange(records_, {}), paper_);
  if (!prints_) return ShowPages(pages);
  const std::string title = report_title_.empty() ? std::string("Report") : report_title_;
  if (!opener_.host().Print(pages, {.title = title, .copies = copies_, .ask = false})) {
    opener_.Message("Nothing was printed.");
  }
}

void clsMultiPgPreview::ShowPages(const paper::RecordedPages& pages) {
  if (unsaved_pages_ > 0) {
    opener_.Message(std::to_string(unsaved_pages_) + " of " + std::to_string(pages.Count()) +
                    " pages can't be shown, but they can be printed. " + save_fault_);
  }
  frmMultiPgPreview preview(opener_.host(), pages, folder_);
  opener_.ShowModal(preview);
}

void clsMultiPgPreview::PrintCopies(int copies) {
  if (copies >= 1 && copies <= std::numeric_limits<std::int16_t>::max()) copies_ = copies;
}

void clsMultiPgPreview::pHeader(std::string_view title, std::optional<std::string_view> subtitle,
                                std::optional<bool> italic) {
  if (title.empty() && report_title_.empty()) return;
  const FontKeeper keeper(*this);
  x_ = y_ = 0;
  if (!title.empty()) report_title_ = title;
  if (subtitle) report_subtitle_ = *subtitle;
  header_italic_ = italic.value_or(header_italic_);
  const bool was_turning = std::exchange(turning_, true);
  font_ = {.name = "Times New Roman", .points = 16, .bold = true, .italic = header_italic_};
  pCenter(report_title_);
  font_ = {.name = "Times New Roman", .points = 11};
  if (!report_subtitle_.empty()) pCenter(report_subtitle_);
  pDoubleLine(0);
  pHalfSpace();
  turning_ = was_turning;
}

void clsMultiPgPreview::pFooter(std::string_view text) {
  static constexpr std::size_t kMostCharacters = 115;
  static constexpr double kRuleWidth = 6;
  const FontKeeper keeper(*this);
  font_ = {.name = "Times New Roman", .points = 10};
  y_ = paper_height_ - 2 * LineHeight();
  x_ = 0;
  pLine(0, kNotGiven, kRuleWidth);
  Put(FirstCharacters(text, kMostCharacters), false);
  pRightTab("Pg. " + std::to_string(GetPage()));
}

bool clsMultiPgPreview::pEndOfPage(double extra, bool reserve_footer) {
  double below = LineHeight() + extra;
  if (reserve_footer) {
    const FontKeeper keeper(*this);
    font_.points = 10;
    below += 2 * LineHeight();
  }
  return y_ + below >= paper_height_;
}

void clsMultiPgPreview::TurnFullPage() {
  if (!recorder_ || turning_ || !pEndOfPage()) return;
  turning_ = true;
  pFooter();
  pNewPage();
  pHeader();
  turning_ = false;
}

}  // namespace tarvane::printing
