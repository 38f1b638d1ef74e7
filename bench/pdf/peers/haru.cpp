#include <hpdf.h>

#include <memory>

#include "peers/peer.h"

namespace {

void WritePages(const std::string& path, int pages) {
  HPDF_Doc document = HPDF_New(nullptr, nullptr);
  HPDF_Font font = HPDF_GetFont(document, "Helvetica", "WinAnsiEncoding");
  for (int page = 0; page < pages; ++page) {
    HPDF_Page handle = HPDF_AddPage(document);
    HPDF_Page_SetSize(handle, HPDF_PAGE_SIZE_A4, HPDF_PAGE_PORTRAIT);
    HPDF_Page_SetFontAndSize(handle, font, 10);
    HPDF_Page_BeginText(handle);
    for (int line = 0; line < kLines; ++line) {
      HPDF_Page_TextOut(handle, 40, static_cast<HPDF_REAL>(792 - line * 15), LineText(page, line).c_str());
    }
    HPDF_Page_EndText(handle);
  }
  HPDF_SaveToFile(document, path.c_str());
  HPDF_Free(document);
}

std::function<double(const std::string&)> Measurer() {
  const std::shared_ptr<_HPDF_Doc_Rec> document(HPDF_New(nullptr, nullptr), HPDF_Free);
  HPDF_Page page = HPDF_AddPage(document.get());
  HPDF_Page_SetFontAndSize(page, HPDF_GetFont(document.get(), "Helvetica", "WinAnsiEncoding"), 10);
  return [document, page](const std::string& line) { return HPDF_Page_TextWidth(page, line.c_str()); };
}

const bool kAdded = AddPeer({"haru", WritePages, Measurer});

}  // namespace
