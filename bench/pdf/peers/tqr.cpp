#include <memory>

#include "pdf/tqr_pdf.h"
#include "peers/peer.h"

namespace {

using tarvane::pdf::tqrPDF;

constexpr char kFonts[] = TARVANE_DATA_DIR "/Fonts";

void WritePages(const std::string& path, int pages) {
  tqrPDF document;
  document.PDFSetUnit(tarvane::pdf::kPoint);
  document.PDFFileName(path);
  document.PDFPathConfiguration(kFonts);
  document.PDFBeginDoc();
  document.PDFSetFont(tarvane::pdf::kArial, 10);
  for (int page = 0; page < pages; ++page) {
    if (page > 0) document.PDFNewPage();
    for (int line = 0; line < kLines; ++line) document.PDFTextOut(LineText(page, line), 40, 50 + line * 15);
  }
  document.PDFEndDoc();
}

std::function<double(const std::string&)> Measurer() {
  auto document = std::make_shared<tqrPDF>();
  document->PDFPathConfiguration(kFonts);
  document->PDFSetFont(tarvane::pdf::kArial, 10);
  return [document](const std::string& line) { return document->PDFGetStringWidth(line, "", 10); };
}

const bool kAdded = AddPeer({"tqr", WritePages, Measurer});

}  // namespace
