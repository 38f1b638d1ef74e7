#include "printing/quick_print.h"

#include "printing/letter_file.h"
#include "printing/rich_text_paper.h"
#include "rich_text/rtf.h"

namespace tarvane::printing {
namespace {

constexpr std::string_view kWordFile = "temp1.doc";
constexpr std::string_view kLineEnd = "\r\n";

LetterKind KindOf(std::string_view track) {
  if (track == "1") return LetterKind::kReminder;
  return track == "3" ? LetterKind::kStatement : LetterKind::kEstimate;
}

}  // namespace

FrmPrint::FrmPrint(Host& host, Shop& shop, job::JobScreen& job)
    : FrmPrint(host, shop, job, KindOf(job.TxtTrack.text())) {}

FrmPrint::FrmPrint(Host& host, Shop& shop, job::JobScreen& job, LetterKind kind)
    : Screen(host, std::string(kName)), shop_(shop), job_(job), kind_(kind) {
  SetTitle(kind == LetterKind::kStatement ? "Tarvane Statement Preview" : "Tarvane Print Preview");
  RichTextBox1.SetReadOnly(true);
  SetRules();
}

void FrmPrint::SetRules() {
  CmdPrintOne.OnClicked([this] { QuickPrint(1); });
  CmdPrintTwo.OnClicked([this] { QuickPrint(2); });
  CmdPreview.OnClicked([this] { Preview(); });
  CmdEdit.OnClicked([this] {
    RichTextBox1.SetReadOnly(false);
    SetFocus(RichTextBox1);
  });
  CmdSave.OnClicked([this] { SaveTemplate(); });
  CmdPrinterSetup.OnClicked([this] { host().SetUpPrinter(); });
  CmdWord.OnClicked([this] { OpenInWord(); });
  CmdCancel.OnClicked([this] { Close(); });
}

LetterValues FrmPrint::ValuesOf(const job::JobScreen& job, Day today) {
  return {.reference = job.RefNo.text(),
          .order_reference = job.OrderReference.text(),
          .name = job.Name.text(),
          .address = {job.Address.text(), job.Town.text(), job.County.text()},
          .post_code = job.PostCode.text(),
          .telephone = job.HomeTelephone.text(),
          .sales_person = job.SalesPerson.text(),
          .today = LongDate(today),
          .symbol = job.TxtCurrencySymbol.text(),
          .sub_total = job.GTotal.text(),
          .vat = job.TxtTotalVat.text(),
          .total = job.Total.text(),
          .discount = job.TxtTotalDiscount.text(),
          .deposit = job.DepositPaid.text(),
          .paid = job.PrePaid.text(),
          .balance = job.Balance.text()};
}

void FrmPrint::Load() {
  const std::optional<std::string> rtf = ReadLetterFile(*this, shop_, FormOf(kind_).file);
  if (!rtf) {
    for (Button* button : {&CmdPrintOne, &CmdPrintTwo, &CmdPreview, &CmdEdit, &CmdSave, &CmdWord}) {
      button->SetEnabled(false);
    }
    return;
  }
  const auto tokens = LetterTokens(kind_, ValuesOf(job_, host().Now().day));
  RichTextBox1.SetDocument(rich_text::ReadRtf(FillLetter(*rtf, tokens)));
}

std::string FrmPrint::Title() const {
  std::string title(FormOf(kind_).word);
  if (!job_.OrderReference.empty()) title += " " + job_.OrderReference.text();
  return title;
}

bool FrmPrint::Print(int copies, bool ask) {
  const PrintOrder order{.title = Title(), .copies = copies, .ask = ask};
  if (!PrintRichText(*this, RichTextBox1.document(), kLetterMargins, order)) return false;
  // What is on paper stays printed, whatever becomes of the note.
  RunEach({[this] { NotePrinted(); }});
  return true;
}

void FrmPrint::QuickPrint(int copies) {
  if (Print(copies, false) && CloseAfterPrinting.on()) Close();
}

void FrmPrint::Preview() {
  bool printed = false;
  const auto print = [this, &printed] {
    const bool done = Print(1, true);
    printed = printed || done;
    return done;
  };
  PreviewRichText(*this, RichTextBox1.document(), kPreviewMargins,
                  {.caption = std::string(kPrintLetter), .print = print, .name = Title()});
  if (printed && CloseAfterPrinting.on()) Close();
}

void FrmPrint::NotePrinted() {
  if (!job_.Data1.HasRow()) return;
  const std::string before = job_.JobNotes.text();
  std::string notes = before;
  if (!notes.empty() && !notes.ends_with('\n')) notes += kLineEnd;
  notes.append("Printed out ").append(FormOf(kind_).word).append(" on ").append(LongDate(host().Now().day));
  job_.JobNotes.SetText(notes);
  try {
    job_.Data1.Save();
  } catch (const Fault& fault) {
    // A job that can't be stored must not keep the worker from leaving it.
    job_.JobNotes.SetText(before);
    throw Fault(std::string("The letter was printed, but the job's notes don't tell it: ") + fault.what());
  }
}

void FrmPrint::SaveTemplate() {
  const std::filesystem::path file = shop_.File(FormOf(kind_).file);
  const std::string text =
      "This letter is filled in for one customer. Saved, it replaces the template " +
      file.filename().string() +
      ", and every letter from now on begins with what it says.\n\nReplace the template?";
  if (!AskYesNo(title(), text, Answer::kNo, Icon::kWarning)) return;
  ReplaceFile(file, rich_text::WriteRtf(RichTextBox1.document()));
  RichTextBox1.SetUnchanged();
}

void FrmPrint::OpenInWord() {
  const std::filesystem::path file = shop_.File(kWordFile);
  ReplaceFile(file, rich_text::WriteRtf(RichTextBox1.document()));
  host().Launch(file.string());
}

}  // namespace tarvane::printing
