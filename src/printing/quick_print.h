#pragma once

#include <string>
#include <string_view>

#include "job/job_screen.h"
#include "printing/letter_tokens.h"
#include "screen/rich_text_box.h"
#include "screen/screen.h"
#include "shop/shop.h"

namespace tarvane::printing {

// A form letter with the values of the open job in it, to be printed as it is or after an edit. What was
// printed is noted in the job at once.
class FrmPrint : public Screen {
 public:
  static constexpr std::string_view kName = "FrmPrint";

  // The letter that TxtTrack of the job tells: "1" reminder, "3" statement, else the estimate. `job` must
  // outlive the screen.
  FrmPrint(Host& host, Shop& shop, job::JobScreen& job);
  // That letter; a receipt is had only so.
  FrmPrint(Host& host, Shop& shop, job::JobScreen& job, LetterKind kind);

  LetterKind kind() const { return kind_; }

  // Read-only until the worker wants to edit. Empty where there is no template, and most buttons are off
  // then.
  RichTextBox RichTextBox1{this, "RichTextBox1"};
  Button CmdPrintOne{this, "CmdPrintOne", "Quick Print &One"};
  Button CmdPrintTwo{this, "CmdPrintTwo", "Quick Print &Two"};
  TickBox CloseAfterPrinting{this, "CloseAfterPrinting", "Close After Printing"};
  Button CmdPreview{this, "CmdPreview", "Pre&view"};
  Button CmdEdit{this, "CmdEdit", "&Edit"};
  Button CmdSave{this, "CmdSave", "&Save"};
  Button CmdPrinterSetup{this, "CmdPrinterSetup", "Printer Setup"};
  Button CmdWord{this, "CmdWord", "Preview and print with MS Word"};
  Button CmdCancel{this, "CmdCancel", "&Cancel"};

  // The values of a job, as they are shown.
  static LetterValues ValuesOf(const job::JobScreen& job, Day today);

 protected:
  void Load() override;

 private:
  void SetRules();
  std::string Title() const;  // of the letter, for the printer and files
  // False where the worker cancelled it. Notes what was printed.
  bool Print(int copies, bool ask);
  void QuickPrint(int copies);
  void Preview();
  void NotePrinted();
  void SaveTemplate();
  void OpenInWord();

  Shop& shop_;
  job::JobScreen& job_;
  LetterKind kind_;
};

}  // namespace tarvane::printing
