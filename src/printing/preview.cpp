#include "printing/preview.h"

#include <algorithm>
#include <cmath>

namespace tarvane::printing {

frmPreview::frmPreview(Host& host, const paper::Pages& pages, PreviewButton button)
    : Screen(host, std::string(kName)), pages_(&pages), button_(std::move(button)) {
  SetTitle("Print Preview");
  btnPreview[kPrint].SetCaption(button_.caption);
  cboPercent.SetTypingAllowed(false);
  cmdStart.SetTip("First page");
  cmdPrevious.SetTip("Previous page");
  cmdNext.SetTip("Next page");
  cmdEnd.SetTip("Last page");

  btnPreview[kPrint].OnClicked([this] { Print(); });
  btnPreview[kZoomIn].OnClicked([this] { Zoom(1); });
  btnPreview[kZoomOut].OnClicked([this] { Zoom(-1); });
  CmdSavePdf.OnClicked([this] {
    if (SavePdf("Save as PDF")) Message(told_);
  });
  CmdEmail.OnClicked([this] { Email(); });
  CmdPrintSetup.OnClicked([this] { SetUpPrinter(); });
  cmdClose.OnClicked([this] { Close(); });

  cmdStart.OnClicked([this] { ShowPage(0); });
  cmdPrevious.OnClicked([this] { ShowPage(picChild.page() - 1); });
  cmdNext.OnClicked([this] { ShowPage(picChild.page() + 1); });
  cmdEnd.OnClicked([this] { ShowPage(pages_->Count() - 1); });
  Slider1.OnMoved([this] { ShowPage(Slider1.value() - 1); });
  tabPreview.OnSelected([this] { ShowPage(tabPreview.selected()); });
  cboPercent.OnPicked([this] { TakeZoom(); });
}

std::vector<std::string> frmPreview::ZoomEntries() {
  std::vector<std::string> entries;
  for (int percent = kMostZoom; percent >= kLeastZoom; percent -= kZoomStep) {
    entries.push_back(std::to_string(percent) + "%");
  }
  return entries;
}

void frmPreview::Load() {
  cboPercent.SetEntries(ZoomEntries());
  cboPercent.SetText("100%");
  TakePages(*pages_);
  TakeZoom();
  SetFocus(picChild);
}

void frmPreview::TakePages(const paper::Pages& pages) {
  pages_ = &pages;
  const int page = picChild.page();
  picChild.SetPages(pages_);
  std::vector<std::string> captions;
  for (int number = 1; number <= pages.Count(); ++number) {
    captions.push_back("Page " + std::to_string(number));
  }
  tabPreview.SetCaptions(std::move(captions));
  Slider1.SetEnds(1, pages.Count());
  ShowPage(page);
}

void frmPreview::ShowPage(int page) {
  const int last = pages_->Count() - 1;
  page = std::clamp(page, 0, last);
  if (picChild.page() != page) picChild.SetPage(page);
  Label2.SetCaption("Page " + std::to_string(page + 1) + " of " + std::to_string(last + 1));
  for (Button* button : {&cmdStart, &cmdPrevious}) button->SetEnabled(page > 0);
  for (Button* button : {&cmdNext, &cmdEnd}) button->SetEnabled(page < last);
  SizePreview();
  // Their rules come back here, with the page that is shown by then.
  Slider1.Set(page + 1);
  tabPreview.Select(page);
}

void frmPreview::TakeZoom() {
  std::string percent = cboPercent.text();
  if (!percent.empty()) percent.pop_back();
  picChild.SetZoom(static_cast<int>(ParseLeading(percent)));
  SizePreview();
}

void frmPreview::Zoom(int steps) {
  const std::vector<std::string>& entries = cboPercent.entries();
  const auto now = std::ranges::find(entries, cboPercent.text());
  const auto next = (now - entries.begin()) - steps;
  if (next < 0 || next >= static_cast<std::ptrdiff_t>(entries.size())) return;
  cboPercent.SetText(entries[static_cast<std::size_t>(next)]);
  TakeZoom();
}

void frmPreview::SizePreview() {
  const auto set = [this](Slider& bar, double length) {
    const int more = static_cast<int>(std::lround(length * (zoom() - 100) / 100));
    bar.SetVisible(more > 0);
    bar.SetEnds(0, std::max(0, more));
    bar.Set(0);
  };
  const paper::Size& sheet = pages_->paper().size;
  set(vscPreview, sheet.height);
  set(hscPreview, sheet.width);
}

// Whatever the button is called, the worker is asked how it went, unless nothing was sent at all.
void frmPreview::Print() {
  const bool prints = btnPreview[kPrint].caption() == kPrintLetter && button_.print;
  if (prints && !button_.print()) return;
  if (AskYesNo("Printing Check ", "Did the document print ok. ")) Close();
}

void frmPreview::SetUpPrinter() {
  host().SetUpPrinter();
  if (remake_ && host().PrinterPaper() != pages_->paper()) TakePages(remake_());
}

std::string frmPreview::PdfName() const {
  std::string name = button_.name.empty() ? "letter" : button_.name;
  std::ranges::replace_if(
      name, [](char c) { return c == '/' || c == '\\' || static_cast<unsigned char>(c) < ' '; }, '-');
  return name;
}

std::optional<std::filesystem::path> frmPreview::SavePdf(std::string_view title) {
  auto file = host().ChooseFile(FileChoice::kSave, title, "PDF (*.pdf)|*.pdf", PdfName() + ".pdf");
  if (!file) return std::nullopt;
  const std::string missing = host().SavePdf(*pages_, *file, PdfName());
  told_ = "Saved in " + file->string() + ".";
  if (!missing.empty()) told_ += "\r\nThese characters can't be shown in it: " + missing;
  return file;
}

// The file stays where the worker wanted it, mailed or not.
void frmPreview::Email() {
  const auto file = SavePdf("E-mail: save as PDF first");
  if (!file) return;
  try {
    host().SendMail("", PdfName(), *file);
  } catch (const Fault& fault) {
    return Message(std::string(fault.what()) + "\r\n" + told_ + "\r\nAttach it to a mail by hand.");
  }
  if (told_.find('\n') != std::string::npos) Message(told_);
}

}  // namespace tarvane::printing
