#include "printing/page_browser.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <functional>

#include "printing/page_files.h"
#include "printing/preview.h"
#include "store/data_files.h"
#include "text/fault.h"
#include "text/trim.h"

namespace tarvane::printing {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kTitle = "Print Preview";

std::string Of(std::string_view what, int number, int count) {
  return std::string(what) + std::to_string(number) + " of " + std::to_string(count);
}

// Some of the pages; tells of each as it is drawn.
class PageRange : public paper::Pages {
 public:
  PageRange(const paper::Pages& pages, int first, int last, std::function<void(int)> drawn)
      : pages_(pages), first_(first), last_(last), drawn_(std::move(drawn)) {}

  int Count() const override { return last_ - first_ + 1; }
  const paper::Paper& paper() const override { return pages_.paper(); }
  void Draw(int page, paper::Surface& surface) const override {
    drawn_(page + 1);
    pages_.Draw(first_ + page, surface);
  }
  double LeftOfText() const override { return pages_.LeftOfText(); }

 private:
  const paper::Pages& pages_;
  int first_;
  int last_;
  std::function<void(int)> drawn_;
};

// Tells in a label and at the host how far something has come, while it lives.
class Status {
 public:
  Status(Host& host, Label& label, std::string_view what, int count)
      : host_(host), label_(label), before_(label.caption()), what_(what), count_(count) {}
  ~Status() {
    host_.EndProgress();
    label_.SetCaption(before_);
  }
  Status(const Status&) = delete;
  Status& operator=(const Status&) = delete;

  // False where the worker wants it to stop.
  bool Tell(int number) {
    const std::string text = Of(what_, number, count_);
    label_.SetCaption(text);
    return host_.ShowProgress(text, number, count_);
  }

 private:
  Host& host_;
  Label& label_;
  std::string before_;
  std::string_view what_;
  int count_;
};

// Names without a beginning are below the worker's own folder.
fs::path FolderNamed(std::string_view name) {
  const char* home = std::getenv("HOME");
  if (name == "~" || name.starts_with("~/")) name.remove_prefix(std::min<std::size_t>(name.size(), 2));
  const fs::path folder(name);
  return folder.is_absolute() || home == nullptr ? folder : fs::path(home) / folder;
}

}  // namespace

frmMultiPgPreview::frmMultiPgPreview(Host& host, const paper::Pages& pages, fs::path folder)
    : Screen(host, std::string(kName)), pages_(pages), folder_(std::move(folder)) {
  SetTitle(kTitle);
  cboPercent.SetEntries(frmPreview::ZoomEntries());
  cboPercent.SetTypingAllowed(false);
  cboPercent.OnChanged([this] { picChild.SetZoom(static_cast<int>(cboPercent.Number())); });
  cboPercent.SetText("100%");
  cmdStart.OnClicked([this] { ShowPage(0); });
  cmdPrevious.OnClicked([this] { ShowPage(page_ - 1); });
  cmdNext.OnClicked([this] { ShowPage(page_ + 1); });
  cmdEnd.OnClicked([this] { ShowPage(pages_.Count() - 1); });
  cmdGoto.OnClicked([this] { GotoPage(); });
  cmdZoomIn.OnClicked([this] { StepZoom(-1); });
  cmdZoomOut.OnClicked([this] { StepZoom(1); });
  cmdPrint.OnClicked([this] { PrintRange(); });
  cmdCopy.OnClicked([this] { CopyPages(); });
  cmdClose.OnClicked([this] { Close(); });
}

fs::path frmMultiPgPreview::FileOf(int page) const { return PageFile(folder_, page); }

void frmMultiPgPreview::ShowPage(int page) {
  page_ = std::clamp(page, 0, pages_.Count() - 1);
  const bool can_show = IsPageFile(FileOf(page_));
  picChild.SetPicture(can_show ? FileOf(page_) : fs::path());
  lblStatus.SetCaption(can_show ? "" : "This page can't be shown: its page file is missing or damaged.");
  Label2.SetCaption(Of("Page ", page_ + 1, pages_.Count()));
  cmdStart.SetEnabled(page_ > 0);
  cmdPrevious.SetEnabled(page_ > 0);
  cmdNext.SetEnabled(page_ + 1 < pages_.Count());
  cmdEnd.SetEnabled(page_ + 1 < pages_.Count());
  cmdGoto.SetEnabled(pages_.Count() > 1);
}

void frmMultiPgPreview::StepZoom(int entries) {
  const int percent = picChild.zoom() - entries * frmPreview::kZoomStep;
  if (percent < frmPreview::kLeastZoom || percent > frmPreview::kMostZoom) return;
  cboPercent.SetText(std::to_string(percent) + "%");
}

std::optional<int> frmMultiPgPreview::AskPage(std::string_view prompt, int preset) {
  const auto typed = host().Input(kTitle, prompt, std::to_string(preset));
  if (!typed) return {};
  const std::string_view text = Trim(*typed);
  int page = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), page);
  if (error == std::errc() && end == text.data() + text.size() && page >= 1 && page <= pages_.Count()) {
    return page;
  }
  Message("There is no page \"" + std::string(text) + "\". Pages are 1 to " + std::to_string(pages_.Count()) +
          ".");
  return {};
}

void frmMultiPgPreview::GotoPage() {
  if (const auto page = AskPage("Goto Page#", page_ + 1)) ShowPage(*page - 1);
}

void frmMultiPgPreview::PrintRange() {
  const auto first = AskPage("Print from page", 1);
  if (!first) return;
  const auto last = AskPage("Print to page", pages_.Count());
  if (!last) return;
  if (*last < *first) return Message("Nothing was printed: the last page comes before the first one.");
  bool printed = false;
  {
    Status status(host(), lblStatus, "Printing page ", *last - *first + 1);
    const PageRange range(pages_, *first - 1, *last - 1, [&](int number) { status.Tell(number); });
    printed = host().Print(range, {.title = "Report"});
  }
  if (!printed) Message("Nothing was printed.");
}

void frmMultiPgPreview::CopyPages() {
  const auto name = host().Input(kTitle, "Enter Folder Name", "");
  if (!name || Trim(*name).empty()) return;
  const fs::path folder = FolderNamed(Trim(*name));
  std::error_code error;
  if (fs::equivalent(folder, folder_, error)) {
    return Message("The page files stand in " + folder.string() + " already.");
  }
  if (!fs::exists(folder, error)) {
    if (!AskYesNo(kTitle, folder.string() + " isn't there. Make this folder?")) return;
    fs::create_directories(folder, error);
    if (error) return Message(folder.string() + " could not be made: " + error.message() + ".");
  }
  if (MayWriteInto(folder)) CopyInto(folder);
}

bool frmMultiPgPreview::MayWriteInto(const fs::path& folder) {
  int there = 0;
  for (int page = 0; page < pages_.Count(); ++page) {
    std::error_code error;
    there += fs::exists(fs::symlink_status(PageFile(folder, page), error)) ? 1 : 0;
  }
  return there == 0 || AskYesNo(kTitle,
                                std::to_string(there) + " of these pages stand in " + folder.string() +
                                    " already. Write over them?",
                                Answer::kNo, Icon::kWarning);
}

void frmMultiPgPreview::CopyInto(const fs::path& folder) {
  int copied = 0;
  std::string fault;
  {
    Status status(host(), lblStatus, "Copying page ", pages_.Count());
    try {
      for (; copied < pages_.Count() && status.Tell(copied + 1); ++copied) {
        const auto bytes = ReadFile(FileOf(copied));
        if (!bytes) throw Fault("The file of page " + std::to_string(copied + 1) + " is missing.");
        ReplaceFile(PageFile(folder, copied), *bytes);
      }
    } catch (const Fault& failed) {
      fault = std::string("\n") + failed.what();
    }
  }
  const bool all = copied == pages_.Count();
  Message((all ? std::to_string(copied) : Of("Only ", copied, pages_.Count())) + " pages were copied to " +
              folder.string() + "." + fault,
          kTitle, all ? Icon::kInformation : Icon::kWarning);
}

}  // namespace tarvane::printing
