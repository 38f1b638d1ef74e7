#include "printing/print_db.h"

#include <cmath>

#include "printing/rich_text_paper.h"

namespace tarvane::printing {

FrmPrintDB::FrmPrintDB(Host& host, Shop& shop) : Screen(host, std::string(kName)), shop_(shop) {
  TxtTab.SetNeverShown();
  CmdPreviewPrint.OnClicked([this] {
    PreviewRichText(
        *this, RichTextBox1.document(), kPreviewMargins,
        {.caption = std::string(kPrintLetter), .print = [this] { return PrintLetter(); }, .name = {}});
  });
}

bool FrmPrintDB::PrintLetter() { return PrintRichText(*this, RichTextBox1.document(), kLetterMargins, {}); }

void ShowInPrintDB(Screen& opener, Shop& shop, rich_text::Document text) {
  FrmPrintDB screen(opener.host(), shop);
  screen.TxtTab.SetText("curtainwizard");
  screen.RichTextBox1.SetDocument(std::move(text));
  opener.ShowModal(screen);
}

void ShowTextInPrintDB(Screen& opener, Shop& shop, std::string_view text) {
  const paper::Font& font = opener.host().printer_font();
  rich_text::CharStyle style;
  style.half_points = static_cast<std::uint16_t>(std::lround(font.points * 2));
  style.bold = font.bold;
  style.italic = font.italic;
  ShowInPrintDB(opener, shop, rich_text::FromPlainText(text, style, font.name));
}

}  // namespace tarvane::printing
