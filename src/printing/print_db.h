#pragma once

#include <filesystem>
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

  Button New{this, "New", "New", -1, Button::Kind::kToolButton};
  Button Open{this, "Open", "Open", -1, Button::Kind::kToolButton};
  Button Save{this, "Save", "Save", -1, Button::Kind::kToolButton};
  Button Copy{this, "Copy", "Copy", -1, Button::Kind::kToolButton};
  Button Paste{this, "Paste", "Paste", -1, Button::Kind::kToolButton};
  Button Bold{this, "Bold", "Bold", -1, Button::Kind::kToolButton};
  Button Italic{this, "Italic", "Italic", -1, Button::Kind::kToolButton};
  Button Underline{this, "Underline", "Underline", -1, Button::Kind::kToolButton};
  Button Center{this, "Center", "Center", -1, Button::Kind::kToolButton};
  Button FontPlus{this, "FontPlus", "FontPlus", -1, Button::Kind::kToolButton};
  Button FontMinus{this, "FontMinus", "FontMinus", -1, Button::Kind::kToolButton};
  Label LblStyle{this, "LblStyle"};  // how the selection begins: "Arial 10, bold"

  RichTextBox RichTextBox1{this, "RichTextBox1"};

  TextField TxtFind{this, "TxtFind"};
  Button CmdFind{this, "CmdFind", "&Find Next"};
  Button CmdPreviewPrint{this, "CmdPreviewPrint", "&Preview and Print"};
  Button Command2{this, "Command2", "Open in &Word Processor"};
  Button Command3{this, "Command3", "P&DF"};
  Button CmdClose{this, "CmdClose", "&Close"};

  // The main screen's operation: margins of an inch. False where the worker cancels.
  bool PrintLetter_Click();

  // "" where nothing waits to be saved: what the worker handed over unchanged can be had again.
  std::string Unsaved() const;
  // False where the worker cancels; faults where it can't be written.
  bool SaveText();

 private:
  void SetUpToolBar();
  void BeginText();
  void OpenText();
  bool MayDrop();
  void SetFile(std::filesystem::path file);
  std::string SuggestedName() const;
  void Toggle(bool rich_text::CharStyle::*look, std::optional<bool> rich_text::StyleChange::*change);
  void ToggleCenter();
  void FindNext();
  void Preview();
  void OpenInWordProcessor();
  void MakePdf();
  void TellStyle();

  Shop& shop_;
  std::filesystem::path file_;  // that it came from or was saved in; empty for none
};

// A plain text in the printer's font.
rich_text::Document InPrinterFont(const Host& host, std::string_view text);

// Shows a plain text of the wizards and work sheets in the rich text screen, in the printer's font.
void ShowTextInPrintDB(Screen& opener, Shop& shop, std::string_view text);
// The same with pictures and looks.
void ShowInPrintDB(Screen& opener, Shop& shop, rich_text::Document text);

}  // namespace tarvane::printing
