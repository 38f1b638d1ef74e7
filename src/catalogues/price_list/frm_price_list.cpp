#include "catalogues/price_list/frm_price_list.h"

#include <algorithm>
#include <utility>

#include "catalogues/price_list/read_price_list.h"
#include "catalogues/price_list/take_over.h"
#include "screen/busy.h"
#include "store/row_set.h"
#include "text/trim.h"

namespace tarvane::catalogues {

namespace {

constexpr std::string_view kFilter =
    "Price lists (*.csv *.txt *.xlsx *.ods)|*.csv;*.txt;*.xlsx;*.ods|All files (*)|*";
constexpr std::string_view kNoFile =
    "No file is open. Open File reads a supplier's price list (CSV, XLSX, ODS).";
constexpr int kMostCharacters = 255;

// "3,008".
std::string WithCommas(std::int64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t at = text.size(); at > 3;) {
    at -= 3;
    text.insert(at, ",");
  }
  return text;
}

// "1 line", "3,008 lines".
std::string Counted(std::int64_t count, std::string_view thing) {
  return (WithCommas(count) + " ").append(thing) + (count == 1 ? "" : "s");
}

}  // namespace

FrmPriceList::FrmPriceList(Host& host, Shop& shop) : Screen(host, std::string(kName)), shop_(shop) {
  SetTitle("Read a Price List");
  TxtSupplier.SetMaxLength(kMostCharacters);
  TxtSupplier.SetTip("For the lines whose list doesn't name a supplier");
  for (DropDownList& column : CboColumn) {
    column.SetTypingAllowed(false);
    column.SetEnabled(false);
    column.OnPicked([this] {
      ReadColumns();
      Compare();
    });
  }
  CmdOpen.OnClicked([this] { ChooseFile(); });
  TxtSupplier.OnLeft([this] { SupplierLeft(); });
  TxtSupplier.OnEnterKey([this] { SupplierLeft(); });
  ChkOnlyChanges.OnClicked([this] { ShowPlan(); });
  ChkLeaveOut.OnClicked([this] { EnableTakeOver(); });
  CmdTakeOver.OnClicked([this] { TakeOverAll(); });
  CmdClose.OnClicked([this] { UserClose(); });
  FileName.SetCaption(kNoFile);
  ShowPlan();
}

void FrmPriceList::Load() {
  shop_.database(data_file::kProducts);
  for (const std::string& notice : shop_.TakeNotices()) Message(notice, kProgramTitle, Icon::kWarning);
}

void FrmPriceList::ChooseFile() {
  const auto file = host().ChooseFile(FileChoice::kOpen, "Open a Price List", kFilter, "");
  if (file) Open(*file);
}

void FrmPriceList::Open(const std::filesystem::path& file) {
  std::optional<PriceSheet> sheet;
  {
    const Busy busy(host());
    // How many cells there are isn't known before the end.
    Progress progress(host(), "Reading the price list", 0);
    sheet = ReadPriceFile(file, [&](std::int64_t done) { return progress.Step(done); });
  }
  if (!sheet) {
    Messages.SetCaption("Stopped. The file was not read.");
    return;
  }
  plan_.reset();
  Lines.Show(nullptr, false);
  sheet_ = std::move(sheet);
  match_ = MatchColumns(*sheet_);
  const auto count = static_cast<std::int64_t>(sheet_->LineCount() - match_.heading_line - 1);
  FileName.SetCaption(file.filename().string() + ": " + Counted(count, "line") + ", headings in line " +
                      std::to_string(sheet_->LineNumber(match_.heading_line)));
  Messages.SetCaption("");
  ChkLeaveOut.Set(false);
  ShowColumns();
  Compare();
}

void FrmPriceList::ShowColumns() {
  std::vector<std::string> entries = HeadingNames(*sheet_, match_.heading_line);
  entries.insert(entries.begin(), std::string(kNotInList));
  for (std::size_t i = 0; i < CboColumn.size(); ++i) {
    CboColumn[i].SetEntries(entries);
    const int cell = match_.cells[i];
    CboColumn[i].SetText(cell < 0 ? kNotInList
                                  : std::string_view(entries[static_cast<std::size_t>(cell) + 1]));
    CboColumn[i].SetEnabled(true);
  }
}

void FrmPriceList::ReadColumns() {
  for (std::size_t i = 0; i < CboColumn.size(); ++i) {
    const auto& entries = CboColumn[i].entries();
    const auto found = std::find(entries.begin(), entries.end(), CboColumn[i].text());
    match_.cells[i] = found == entries.end() ? -1 : static_cast<int>(found - entries.begin()) - 1;
  }
}

void FrmPriceList::SupplierLeft() {
  if (sheet_ && TrimSpaces(TxtSupplier.text()) != TrimSpaces(compared_supplier_)) Compare();
}

void FrmPriceList::Compare() {
  if (!sheet_) return;
  plan_.reset();
  ShowPlan();
  compared_supplier_ = TxtSupplier.text();
  const Busy busy(host());
  Database& database = shop_.database(data_file::kProducts);
  RowSet products;
  products.Open(database, kProductsTable);
  Progress progress(host(), "Comparing with the products", products.RecordCount());
  plan_ = PricePlan::Make(*sheet_, match_, compared_supplier_, database,
                          [&](std::int64_t done) { return progress.Step(done); });
  if (!plan_) Messages.SetCaption("Stopped. Open the file again to compare it.");
  ShowPlan();
}

void FrmPriceList::ShowPlan() {
  Lines.Show(plan_ ? &*plan_ : nullptr, ChkOnlyChanges.on());
  std::string counts;
  if (plan_) {
    const PricePlan::Counts& all = plan_->counts();
    counts = WithCommas(all.added) + " new, " + WithCommas(all.changed) + " change, " +
             WithCommas(all.unchanged) + " stay, " + WithCommas(all.wrong) + " wrong";
  }
  Counts.SetCaption(counts);
  EnableTakeOver();
}

void FrmPriceList::EnableTakeOver() {
  const bool something = plan_ && plan_->counts().added + plan_->counts().changed > 0;
  CmdTakeOver.SetEnabled(something && (plan_->counts().wrong == 0 || ChkLeaveOut.on()));
  ChkLeaveOut.SetEnabled(plan_ && plan_->counts().wrong > 0);
}

std::string FrmPriceList::WhatIsDone(std::string_view added, std::string_view changed) const {
  const PricePlan::Counts& all = plan_->counts();
  std::string text = Counted(all.added, "product").append(added) + ", " +
                     Counted(all.changed, "product").append(changed) + ".";
  if (all.wrong > 0) {
    text += " " + Counted(all.wrong, "line") + (all.wrong == 1 ? " is" : " are") + " wrong and left out.";
  }
  return text;
}

void FrmPriceList::TakeOverAll() {
  SupplierLeft();
  if (!plan_ || !CmdTakeOver.enabled()) return;
  const std::string question =
      "Take over this price list?\n" + WhatIsDone(" will be added", " will be changed");
  if (!AskYesNo("Take Over", question, Answer::kNo)) return;
  const std::string done = WhatIsDone(" added", " changed");
  bool whole = false;
  {
    const Busy busy(host());
    Progress progress(host(), "Taking over the price list", static_cast<std::int64_t>(plan_->LineCount()));
    whole = TakeOver(*plan_, shop_.database(data_file::kProducts), shop_.Get(setting::kVat),
                     [&](std::int64_t line) { return progress.Step(line); });
  }
  if (!whole) {
    Messages.SetCaption("Stopped. No product was changed.");
    return;
  }
  Compare();
  Messages.SetCaption(done);
  Message(done);
}

}  // namespace tarvane::catalogues
