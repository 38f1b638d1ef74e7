// paper_bench: how long it takes to lay out and record 200 pages, beside Qt's layout of the same text; and to
// write 1,000 pages as a PDF file, beside the PDF writer that is handed the same texts.
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "paper/metric_measure.h"
#include "paper/pdf_file.h"
#include "paper/recorder.h"
#include "paper/rich_text_pages.h"
#include "pdf/tqr_pdf.h"
#include "support/compare.h"
#ifdef TARVANE_BENCH_QT
#include "paper/qt/qt_layout.h"
#endif

namespace tarvane::paper {
namespace {

const std::filesystem::path kFonts = TARVANE_DATA_DIR "/Fonts";
const Paper kPaper{{595, 842}, {}};
const Edges kMargins{72, 72, 72, 72};

// Paragraphs of a letter's length, so that most lines are wrapped.
std::string TextOf(int paragraphs) {
  static constexpr const char* kWords[] = {"curtain", "of",  "lined", "fabric",          "the", "window",
                                           "a",       "hem", "with",  "pattern-matched", "and", "measured,",
                                           "twice",   "by",  "Mr",    "Baker."};
  std::string text;
  unsigned dice = 1;
  for (int paragraph = 0; paragraph < paragraphs; ++paragraph) {
    for (int word = 0; word < 60; ++word) {
      dice = dice * 1103515245 + 12345;
      text += std::string(word == 0 ? "" : " ") + kWords[dice >> 16 & 15];
    }
    text += '\n';
  }
  return text;
}

int Recorded(const std::string& text, Measure& measure) {
  const rich_text::Document document = rich_text::FromPlainText(text);
  const RichTextPages pages(document, measure, kPaper, kMargins);
  Recorder recorder(measure, kPaper);
  for (int page = 0; page < pages.Count(); ++page) {
    if (page > 0) recorder.NewPage();
    pages.Draw(page, recorder);
  }
  return static_cast<int>(recorder.pages().size());
}

void ComparePages(Measure& measure) {
  static constexpr int kParagraphs = 2920;
  const std::string text = TextOf(kParagraphs);
  const int pages = Recorded(text, measure);
#ifdef TARVANE_BENCH_QT
  StartQt();
  // The fonts differ, and with them how much goes on a page: each side gets the text for as many pages.
  const std::string their_text = TextOf(kParagraphs * pages / QtPagesOf(text));
  const int theirs = QtPagesOf(their_text);
  std::printf("%d pages of plain text laid out and recorded, %d by Qt\n", pages, theirs);
  Expect(std::abs(theirs - pages) <= pages / 50, "pages");
  Compare(
      "200 pages laid out and recorded", 0.2, 15, [&] { Recorded(text, measure); },
      [&] { QtPagesOf(their_text); });
#else
  std::printf("%d pages: %.1f us\n", pages, Microseconds([&] { Recorded(text, measure); }));
#endif
}

void WriteAlone(const std::vector<RecordedPage>& pages, const std::string& file) {
  pdf::tqrPDF document;
  document.PDFStrict(true);
  document.PDFSetUnit(pdf::kPoint);
  document.PDFSetMargins(0, 0, 0, 0);
  document.PDFPathConfiguration(kFonts.string());
  document.PDFFormatPage(kPaper.size.width, kPaper.size.height);
  document.PDFFileName(file);
  document.PDFBeginDoc();
  document.PDFSetFont(pdf::kArial, 10);
  for (std::size_t page = 0; page < pages.size(); ++page) {
    if (page > 0) document.PDFNewPage();
    for (const auto& item : pages[page].items) {
      const auto& text = std::get<RecordedText>(item);
      document.PDFTextOut(text.text, text.at.x, text.at.y);
    }
  }
  document.PDFEndDoc();
  Expect(document.PDFWritten(), "the file is written");
}

void CompareFiles(Measure& measure) {
  const rich_text::Document document = rich_text::FromPlainText(TextOf(14600));
  const RichTextPages pages(document, measure, kPaper, kMargins);
  Recorder recorder(measure, kPaper);
  for (int page = 0; page < pages.Count(); ++page) {
    if (page > 0) recorder.NewPage();
    pages.Draw(page, recorder);
  }
  const RecordedPages recorded(recorder.pages(), kPaper);
  const auto folder = std::filesystem::temp_directory_path() / ("paper_bench-" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  const std::string file = (folder / "pages.pdf").string();
  std::printf("%d pages\n", pages.Count());
  const auto alone = [&] { WriteAlone(recorder.pages(), file); };
  Compare(
      "a PDF file of recorded pages", 2, 9,
      [&] {
        WritePdf(recorded, file, {"", kFonts, LocalNow});
      },
      alone);
  Compare(
      "a PDF file of pages laid out as they come", 2, 9,
      [&] {
        WritePdf(pages, file, {"", kFonts, LocalNow});
      },
      alone);
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tarvane::paper

int main() {
  tarvane::paper::MetricMeasure measure(tarvane::paper::kFonts);
  tarvane::PrintHeading("ours", "theirs");
  tarvane::paper::ComparePages(measure);
  tarvane::paper::CompareFiles(measure);
  return 0;
}
