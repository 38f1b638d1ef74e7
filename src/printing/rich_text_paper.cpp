#include "printing/rich_text_paper.h"

#include "paper/rich_text_pages.h"
#include "printing/preview.h"

namespace tarvane::printing {
namespace {

paper::Edges InPoints(const Margins& margins) {
  return {margins.left / rich_text::kTwipsPerPoint, margins.top / rich_text::kTwipsPerPoint,
          margins.right / rich_text::kTwipsPerPoint, margins.bottom / rich_text::kTwipsPerPoint};
}

}  // namespace

void PreviewRichText(Screen& opener, const rich_text::Document& text, const Margins& margins,
                     const PreviewButton& button) {
  Host& host = opener.host();
  const paper::RichTextPages pages(text, host.TextMeasure(), host.PrinterPaper(), InPoints(margins));
  frmPreview preview(host, pages, button);
  opener.ShowModal(preview);
}

bool PrintRichText(Screen& screen, const rich_text::Document& text, const Margins& margins,
                   const PrintOrder& order) {
  Host& host = screen.host();
  const paper::RichTextPages pages(text, host.TextMeasure(), host.PrinterPaper(), InPoints(margins));
  if (host.Print(pages, order)) return true;
  screen.Message("Nothing was printed.");
  return false;
}

}  // namespace tarvane::printing
