#include "printing/head_pdf.h"

#include "pdf/tqr_pdf.h"
#include "printing/pdf_rows.h"
#include "printing/pdf_surroundings.h"
#include "store/data_files.h"
#include "text/utf8.h"

namespace tarvane::printing {
namespace {

constexpr double kMargin = 57;
constexpr RowsOnPage kPlace = {.left = kMargin,
                               .right = 595.28 - kMargin,
                               .first = kMargin,
                               .last = 841.89 - kMargin,
                               .step = 15,
                               .size = 11};

}  // namespace

void ShowHeadPdf(Host& host, const std::filesystem::path& folder, const std::vector<std::string>& lines) {
  const std::filesystem::path fonts = FindFile(folder, "Fonts");
  PdfSurroundings surroundings(host, folder);
  pdf::tqrPDF document(surroundings.For());
  document.PDFStrict(true);
  document.PDFSetUnit(pdf::kPoint);
  document.PDFTitle("Test PDF Document");
  document.PDFFileName((folder / "test.pdf").string());
  document.PDFLoadAfm(fonts.string());
  document.PDFView(true);
  document.PDFBeginDoc();
  PdfRows rows(document, fonts, kPlace);
  for (const std::string& entry : lines) {
    for (const std::string& line : SplitLines(entry.empty() ? "\n" : entry)) rows.Write(line);
  }
  document.PDFEndDoc();
}

}  // namespace tarvane::printing
