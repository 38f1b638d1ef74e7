#include "printing/rich_text_paper.h"

#include <memory>

#include "paper/rich_text_pages.h"
#include "printing/preview.h"

namespace tarvane::printing {
namespace {

paper::Edges InPoints(const Margins& margins) {
  return {margins.left / rich_text::kTwipsPerPoint, margins.top / rich_text::kTwipsPerPoint,
          margins.right / rich_text::kTwipsPerPoint, margins.bottom / rich_text::kTwipsPerPoint};
}

// A4 where the printer can't be asked: a text can be looked at without one.
paper::Paper PaperOf(Host& host) {
  paper::Paper paper;
  IgnoreFaults([&] { paper = host.PrinterPaper(); });
  return paper;
}

}  // namespace

void PreviewRichText(Screen& opener, const rich_text::Document& text, const Margins& margins,
                     const PreviewButton& button) {
  Host& host = opener.host();
  const auto make = [&] {
    return std::make_unique<paper::RichTextPages>(text, host.TextMeasure(), PaperOf(host), InPoints(margins));
  };
  auto pages = make();
  frmPreview preview(host, *pages, button);
  auto former = std::unique_ptr<paper::RichTextPages>();  // until the screen has left them
  preview.OnPaperChanged([&]() -> const paper::Pages& {
    former = std::exchange(pages, make());
    return *pages;
  });
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
