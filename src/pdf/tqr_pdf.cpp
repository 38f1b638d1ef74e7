// The life of a document: its beginning, its pages and its end.
#include "pdf/tqr_pdf.h"

#include <cmath>
#include <ctime>

#include "pdf/markers.h"

namespace tarvane::pdf {

tqrPDF::tqrPDF(Surroundings surroundings) : surroundings_(std::move(surroundings)) { PDFInit(); }

void tqrPDF::PDFFileName(const std::string& path) {
  file_path_ = path;
  file_name_ = path.substr(path.find_last_of("/\\") + 1);
  file_.Open(path);
}

void tqrPDF::PDFLoadAfm(const std::string& folder) {
  fonts_.Load(folder);
  pen_.font_operator.clear();
}

void tqrPDF::PDFBeginDoc() {
  page_count_ = 1;
  pages_.resize(1);
  pages_.front().links.clear();
  images_.clear();
  bookmarks_.clear();
  last_image_ = {};
  number_told_ = false;
  MoveToMargins();
  file_.Begin(strict_);
  WriteInformation(file_, information_,
                   surroundings_.now ? surroundings_.now() : DateTime{MakeDay(1970, 1, 1)}, strict_);
  OpenStream();
  DrawWatermark();
}

// Opening clears the page buffer, and with it all that was drawn before the document began.
void tqrPDF::OpenStream() {
  const int number = file_.NextNumber();
  object_.Clear();
  object_.Line(number, " 0 obj").Line("<< /Length ", number + 1, " 0 R").Line(" >>");
  head_length_ = object_.size();
  object_.Line("stream");
  page_.Clear();
  links_.Clear();
}

// Writes the stream object of the page in progress and its length object. Their closing markers go behind
// `marker_lines`. A page that another follows passes the object itself, whose length then comes out 12 too
// great; the last page passes the page buffer, which is cleared without reaching the file. Deliberate, but
// for strict files: there the markers are dropped throughout, and the line end before "endstream" isn't
// counted.
void tqrPDF::CloseStream(LineBuffer& marker_lines) {
  static constexpr size_t kBeforeStream = 6;
  static constexpr size_t kStreamWord = std::string_view("Stream").size();
  static constexpr size_t kEndWord = std::string_view("endstream").size();
  static constexpr size_t kBehindStream = 6;
  const size_t drawn = page_.size() + links_.size();
  object_.Take(page_);
  object_.Take(links_);
  page_.Clear();
  links_.Clear();
  if (strict_) object_.Line();
  object_.Line("endstream").Line("endobj");
  marker_lines.Line(kObjectMarker.close);
  const size_t framing = head_length_ + kBeforeStream + kStreamWord + kEndWord + kBehindStream;
  const size_t length = strict_ ? drawn : object_.size() - std::min(framing, object_.size());
  file_.Write({object_.bytes()});
  object_.Clear();
  object_.Line(file_.NextNumber(), " 0 obj").Line(length).Line("endobj");
  marker_lines.Line(kObjectMarker.close);
  file_.Write({object_.bytes()});
}

void tqrPDF::PDFNewPage() {
  PDFEndPage();
  MoveToMargins();
  ++page_count_;
  CloseStream(strict_ ? page_ : object_);
  pages_.emplace_back();  // without a size: that of the page before holds until it has its own
  OpenStream();
  DrawWatermark();
}

void tqrPDF::PDFEndDoc() {
  PDFEndPage();
  CloseStream(page_);
  WriteEnd(file_, {fonts_.names(), images_, pages_, bookmarks_, view_, strict_});
  if (!PDFWritten()) {
    if (confirm_ || view_after_) Show(NotWrittenMessage(file_path_));
    return;
  }
  if (confirm_) Show(GeneratedMessage());
  if (view_after_ && surroundings_.view) surroundings_.view(file_path_);
}

const Page& tqrPDF::SizedPage() const {
  const Page& page = pages_.back();
  const bool sized = page.width != 0 || page.height != 0 || pages_.size() == 1;
  return sized ? page : pages_[pages_.size() - 2];
}

Page& tqrPDF::OwnPage() {
  const Page& sized = SizedPage();
  Page& page = pages_.back();
  page.width = sized.width;
  page.height = sized.height;
  page.landscape = sized.landscape;
  return page;
}

void tqrPDF::MoveToMargins() {
  pen_.x = margins_.left;
  pen_.y = margins_.top;
}

void tqrPDF::DrawWatermark() {
  static constexpr double kSize = 50;
  static constexpr Rgb kPink = {255, 192, 203};
  // Taken as radians, though degrees may have been meant: this is what sets the text's place on the page.
  static constexpr double kAngle = 45.0;
  if (!watermark_on_) return;
  struct Restore {
    Pen& pen;
    Pen saved;
    ~Restore() { pen = std::move(saved); }
  } restore{pen_, pen_};
  SetFontSize(kSize);
  PDFSetTextColor(kPink);
  const double width = PDFGetStringWidth(watermark_, "", kSize) / scale_;
  const double x = (std::sin(kAngle) * width + PDFGetPageHeight()) / 2.15;
  const double y = (PDFGetPageWidth() - std::cos(kAngle) * width) / 2.75;
  PDFSetRotation(45);
  PDFTextOut(watermark_, x, y);
}

}  // namespace tarvane::pdf
