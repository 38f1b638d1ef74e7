#include "printing/head_pdf.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "paper/metric_measure.h"
#include "pdf/tqr_pdf.h"
#include "printing/pdf_surroundings.h"
#include "store/data_files.h"
#include "text/utf8.h"

namespace tarvane::printing {
namespace {

// Points on A4.
constexpr double kMargin = 57;
constexpr double kLineHeight = 15;
constexpr double kFontSize = 11;
constexpr double kWidth = 595.28 - 2 * kMargin;
constexpr double kLastLine = 841.89 - kMargin;
// No character is narrower than a tenth of its height.
constexpr auto kMostCharacters = static_cast<std::size_t>(kWidth / kFontSize * 10);

std::string WithoutTabs(std::string_view text) {
  std::string plain(text);
  std::ranges::replace(plain, '\t', ' ');
  return plain;
}

class Wrapping {
 public:
  explicit Wrapping(const std::filesystem::path& fonts) : measure_(fonts) {}

  // The beginning of `line` that fits, up to a blank if there is one; at least a character. The blank itself
  // goes with it.
  std::string_view Take(std::string_view& line) {
    std::string_view fits = FirstCharacters(line, kMostCharacters);
    if (fits.size() < line.size() || !Fits(fits)) {
      fits = FirstCharacters(fits, MostThatFit(fits));
      const std::size_t blank = line.substr(0, fits.size() + 1).rfind(' ');
      if (blank != std::string_view::npos && blank > 0) fits = line.substr(0, blank);
    }
    line.remove_prefix(fits.size());
    if (!fits.empty() && line.starts_with(' ')) line.remove_prefix(1);
    return fits;
  }

 private:
  bool Fits(std::string_view text) {
    return measure_.WidthOf({.name = "Arial", .points = kFontSize}, text) <= kWidth;
  }
  std::size_t MostThatFit(std::string_view line) {
    std::size_t fits = 1;
    std::size_t too_many = CountCharacters(line) + 1;
    while (too_many - fits > 1) {
      const std::size_t middle = (fits + too_many) / 2;
      (Fits(FirstCharacters(line, middle)) ? fits : too_many) = middle;
    }
    return fits;
  }

  paper::MetricMeasure measure_;
};

}  // namespace

void ShowHeadPdf(Host& host, const std::filesystem::path& folder, const std::vector<std::string>& lines) {
  const std::filesystem::path fonts = folder / "Fonts";
  PdfSurroundings surroundings(host, folder);
  pdf::tqrPDF document(surroundings.For());
  document.PDFStrict(true);
  document.PDFSetUnit(pdf::kPoint);
  document.PDFTitle("Test PDF Document");
  document.PDFFileName((folder / "test.pdf").string());
  document.PDFLoadAfm(fonts.string());
  document.PDFView(true);
  document.PDFBeginDoc();
  document.PDFSetFont(pdf::kArial, kFontSize);
  Wrapping wrapping(fonts);
  double y = kMargin;
  for (const std::string& entry : lines) {
    for (const std::string& line : SplitLines(entry.empty() ? "\n" : entry)) {
      std::string_view rest = line;
      do {
        if (y > kLastLine) {
          document.PDFNewPage();
          y = kMargin;
        }
        const std::string_view row = wrapping.Take(rest);
        if (!row.empty()) document.PDFTextOut(WithoutTabs(row), kMargin, y);
        y += kLineHeight;
      } while (!rest.empty());
    }
  }
  document.PDFEndDoc();
}

}  // namespace tarvane::printing
