#pragma once

#include <string>
#include <string_view>

#include "screen/rich_text_box.h"
#include "screen/screen.h"
#include "shop/shop.h"

namespace tarvane::printing {

// The rich text screen: a text that can be edited, looked at page by page, printed and kept.
class FrmPrintDB : public Screen {
 public:
  static constexpr std::string_view kName = "FrmPrintDB";

  FrmPrintDB(Host& host, Shop& shop);

  TextField TxtTab{this, "TxtTab"};  // who handed the text over: "curtainwizard"
  RichTextBox RichTextBox1{this, "RichTextBox1"};
  Button CmdPreviewPrint{this, "CmdPreviewPrint", "&Preview and Print"};

  // PrintLetter_Click of the main screen: margins of an inch. False where the worker cancels.
  bool PrintLetter();

 private:
  Shop& shop_;
};

// Shows a plain text of the wizards and work sheets in the rich text screen, in the printer's font.
void ShowTextInPrintDB(Screen& opener, Shop& shop, std::string_view text);
// The same with pictures and looks.
void ShowInPrintDB(Screen& opener, Shop& shop, rich_text::Document text);

}  // namespace tarvane::printing
