#include "printing/print_db.h"

#include <fmt/format.h>

#include <cmath>

#include "printing/rich_text_paper.h"
#include "printing/text_files.h"
#include "printing/text_pdf.h"
#include "rich_text/rtf.h"
#include "store/data_files.h"

namespace tarvane::printing {

using rich_text::Alignment;
using rich_text::CharStyle;
using rich_text::StyleChange;

namespace {

constexpr std::string_view kTitle = "Letter";
constexpr std::string_view kRichTextFiles = "Rich Text Files (*.rtf)|*.rtf";
constexpr std::string_view kFilesToOpen =
    "Rich Text Files (*.rtf)|*.rtf|Text Files (*.txt)|*.txt|All Files (*.*)|*.*";
constexpr int kPoint = 2;  // half points

}  // namespace

FrmPrintDB::FrmPrintDB(Host& host, Shop& shop) : Screen(host, std::string(kName)), shop_(shop) {
  SetTitle(kTitle);
  TxtTab.SetNeverShown();
  SetUpToolBar();
  RichTextBox1.OnSelected([this] { TellStyle(); });
  CmdFind.OnClicked([this] { FindNext(); });
  TxtFind.OnEnterKey([this] { FindNext(); });
  CmdPreviewPrint.OnClicked([this] { Preview(); });
  CmdPreviewPrint.SetTip("Shows the pages as they will be printed");
  Command2.OnClicked([this] { OpenInWordProcessor(); });
  Command2.SetTip("Hands a copy of the text to the word processor");
  Command3.OnClicked([this] { MakePdf(); });
  Command3.SetTip("Writes the words of the text as a PDF file and shows it");
  CmdClose.OnClicked([this] { Close(); });
  RichTextBox1.SetDocument(InPrinterFont(host, ""));
}

void FrmPrintDB::SetUpToolBar() {
  const auto set_up = [](Button& button, const char* tip, Rule rule) {
    button.SetTip(tip);
    button.OnClicked(std::move(rule));
  };
  set_up(New, "New text", [this] { BeginText(); });
  set_up(Open, "Open a file", [this] { OpenText(); });
  set_up(Save, "Save in a file", [this] { SaveText(); });
  set_up(Copy, "Copy what is selected", [this] {
    if (RichTextBox1.selection().empty()) return this->host().Beep();
    this->host().SetClipboardText(RichTextBox1.SelectedText());
  });
  set_up(Paste, "Paste", [this] {
    const std::string text = this->host().ClipboardText();
    if (text.empty()) return this->host().Beep();
    RichTextBox1.Insert(text);
  });
  set_up(Bold, "Bold", [this] { Toggle(&CharStyle::bold, &StyleChange::bold); });
  set_up(Italic, "Italic", [this] { Toggle(&CharStyle::italic, &StyleChange::italic); });
  set_up(Underline, "Underline", [this] { Toggle(&CharStyle::underline, &StyleChange::underline); });
  set_up(Center, "Centre the paragraph", [this] { ToggleCenter(); });
  set_up(FontPlus, "Larger letters", [this] { RichTextBox1.ChangeStyle({.half_points_more = kPoint}); });
  set_up(FontMinus, "Smaller letters", [this] { RichTextBox1.ChangeStyle({.half_points_more = -kPoint}); });
}

// ---- Files ----

std::string FrmPrintDB::Unsaved() const {
  if (!RichTextBox1.changed()) return {};
  return file_.empty() ? "the text" : "the text of " + file_.filename().string();
}

bool FrmPrintDB::MayDrop() {
  const std::string unsaved = Unsaved();
  return unsaved.empty() || AskYesNo("Text not saved", "Changes to " + unsaved + " aren't saved. Drop them?",
                                     Answer::kNo, Icon::kWarning);
}

void FrmPrintDB::SetFile(std::filesystem::path file) {
  file_ = std::move(file);
  SetTitle(file_.empty() ? std::string(kTitle) : fmt::format("{} - {}", kTitle, file_.filename().string()));
}

void FrmPrintDB::BeginText() {
  if (!MayDrop()) return;
  SetFile({});
  RichTextBox1.SetDocument(InPrinterFont(host(), ""));
}

void FrmPrintDB::OpenText() {
  if (!MayDrop()) return;
  const auto file = host().ChooseFile(FileChoice::kOpen, "Open File...", kFilesToOpen, "");
  if (!file) return;
  const rich_text::Document plain = InPrinterFont(host(), "");
  RichTextBox1.SetDocument(OpenTextFile(*file, plain.runs.front().style, plain.fonts.front()));
  SetFile(*file);
}

std::string FrmPrintDB::SuggestedName() const {
  if (!file_.empty()) return file_.stem().string() + ".rtf";
  return fmt::format("Letter {}.rtf", IsoDate(host().Now().day));
}

bool FrmPrintDB::SaveText() {
  const auto file = host().ChooseFile(FileChoice::kSave, "Save File...", kRichTextFiles, SuggestedName());
  if (!file) return false;
  ReplaceFile(*file, rich_text::WriteRtf(RichTextBox1.document()));
  SetFile(*file);
  RichTextBox1.SetUnchanged();
  return true;
}

// ---- Looks ----

void FrmPrintDB::Toggle(bool CharStyle::*look, std::optional<bool> StyleChange::*change) {
  StyleChange wanted;
  wanted.*change = !(RichTextBox1.CurrentStyle().*look);
  RichTextBox1.ChangeStyle(wanted);
}

void FrmPrintDB::ToggleCenter() {
  const bool is_centered = RichTextBox1.CurrentAlignment() == Alignment::kCenter;
  RichTextBox1.Align(is_centered ? Alignment::kLeft : Alignment::kCenter);
}

void FrmPrintDB::TellStyle() {
  const CharStyle style = RichTextBox1.CurrentStyle();
  const Alignment alignment = RichTextBox1.CurrentAlignment();
  std::string told = fmt::format("{} {}", RichTextBox1.CurrentFont(), style.half_points / 2.0);
  const std::pair<bool, std::string_view> looks[] = {{style.bold, "bold"},
                                                     {style.italic, "italic"},
                                                     {style.underline, "underlined"},
                                                     {style.strike, "struck out"},
                                                     {alignment == Alignment::kCenter, "centred"},
                                                     {alignment == Alignment::kRight, "at the right"},
                                                     {alignment == Alignment::kJustified, "justified"}};
  for (const auto& [on, name] : looks) {
    if (on) told += fmt::format(", {}", name);
  }
  LblStyle.SetCaption(told);
}

void FrmPrintDB::FindNext() {
  if (TxtFind.empty()) return host().Beep();
  const auto found = rich_text::Find(RichTextBox1.document(), TxtFind.text(), RichTextBox1.selection().end);
  if (found) return RichTextBox1.Select(*found);
  Message(fmt::format("\"{}\" isn't in the text.", TxtFind.text()), "Find", Icon::kInformation);
}

// ---- Paper ----

void FrmPrintDB::Preview() {
  PreviewRichText(*this, RichTextBox1.document(), kPreviewMargins,
                  {.caption = std::string(kPrintLetter),
                   .print = [this] { return PrintLetter_Click(); },
                   .name = file_.stem().string()});
}

bool FrmPrintDB::PrintLetter_Click() {
  return PrintRichText(*this, RichTextBox1.document(), kLetterMargins,
                       {.title = file_.empty() ? std::string(kTitle) : file_.stem().string()});
}

void FrmPrintDB::OpenInWordProcessor() {
  const std::filesystem::path file = shop_.folder() / "temp.doc";
  ReplaceFile(file, rich_text::WriteRtf(RichTextBox1.document()));
  host().Launch(file.string());
}

void FrmPrintDB::MakePdf() {
  const std::filesystem::path file = shop_.folder() / "test.pdf";
  const std::string missing = WriteTextPdf(host(), shop_.folder(), file, RichTextBox1.document());
  if (!missing.empty()) {
    Message("The fonts of the PDF file lack these characters, \"?\" stands for them: " + missing,
            kProgramTitle, Icon::kInformation);
  }
  host().Launch(file.string());
}

// ---- Opened by others ----

rich_text::Document InPrinterFont(const Host& host, std::string_view text) {
  const paper::Font& font = host.printer_font();
  CharStyle style;
  style.half_points = static_cast<std::uint16_t>(std::lround(font.points * 2));
  style.bold = font.bold;
  style.italic = font.italic;
  return rich_text::FromPlainText(text, style, font.name);
}

void ShowInPrintDB(Screen& opener, Shop& shop, rich_text::Document text) {
  FrmPrintDB screen(opener.host(), shop);
  screen.TxtTab.SetText("curtainwizard");
  screen.RichTextBox1.SetDocument(std::move(text));
  opener.ShowModal(screen);
}

void ShowTextInPrintDB(Screen& opener, Shop& shop, std::string_view text) {
  ShowInPrintDB(opener, shop, InPrinterFont(opener.host(), text));
}

}  // namespace tarvane::printing
