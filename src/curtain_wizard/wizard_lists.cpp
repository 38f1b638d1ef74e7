#include <utility>

#include "curtain_wizard/wizard.h"
#include "shop/shop.h"
#include "store/row_set.h"

namespace tarvane::curtain_wizard {
namespace {

using Wizard = MainCWizard;
using Entries = std::vector<std::string>;

Entries Series(int halves, int step, Mask mask) {
  Entries entries;
  for (int i = 0; i <= halves; i += step) entries.push_back(FormatNumber(i / 2.0, mask));
  return entries;
}

const Entries kTieBackSizes = {"No Tie Backs Needed", "1 - 1.5 Widths 50.8cm (20in)",
                               "2 - 2.5 Widths 60.9cm (24in)", "3 - 3.5 Widths 71.1cm (28in)",
                               "4 + Widths 81.2cm (32in)"};

const Entries kTieBackStyles = {"Crescent Shaped Stiff (Buckram)",
                                "Plaited Tie Backs)",
                                "Ruched Tie Backs (With rushed bound edge) ",
                                "Straight Tie Backs (With ruffle)",
                                "Box Pleated Tie Backs (with bound edge)",
                                "Tie Backs with piping edge",
                                "Tie backs with fringed edge"};

const Entries kTrims = {"Select Description",
                        "Border to 2 sides and base",
                        "Border to Leading Edge of Curtain",
                        "Border to Leading Edge of Curtain and Base",
                        "Buttons on Heading",
                        "Frill to two sides and base ",
                        "Frill to Leading Edge of Curtain",
                        "Frill to Leading Edge of Curtain and base",
                        "Frill to Shaped Edge",
                        "Frill to Straight edge",
                        "Piping to shaped edge",
                        "Piping to Leading edge and base",
                        "Piping to Leading edge Only",
                        "Piping to Shaped",
                        "Piping to Stright edge",
                        "Trimming to two sides and base",
                        "Trimming to leading edge",
                        "Trimming to leading edge and base",
                        "Trimming to Shape edge",
                        "Trimming to Straight edge",
                        "Fringe to leading edge",
                        "Fringe to Straight edge",
                        "Fringe to Shaped edge"};

// A list that offers its own entries and those of a file.
struct FiledList {
  DropDownList Wizard::*list;
  const Entries* own;  // nullptr: none
  std::string_view file;
  std::string_view prompt;
};

const FiledList kFiledLists[] = {
    {&Wizard::CboCurtainStyle, nullptr, data_file::kCurtainList, "Enter Curtain / Valance Style "},
    {&Wizard::TieBackStyle, &kTieBackStyles, data_file::kTieBacksStyleList,
     "Select Tie back Style _______________ "},
    {&Wizard::CboTieBacks, &kTieBackSizes, data_file::kTieBacksList, "No Tie Backs Size Selected"},
    {&Wizard::CboTrims, &kTrims, data_file::kTrimmingsList, "Select Description"},
};

// Suggestions from 0 in even steps, told in halves.
struct PickList {
  DropDownList Wizard::*list;
  Entries entries;
};

const PickList kPickLists[] = {
    {&Wizard::FabricPrice, Series(200, 2, Mask::k0_00)},
    {&Wizard::TapePrice, Series(20, 1, Mask::k0_00)},
    {&Wizard::LiningPrice, Series(100, 1, Mask::k0_00)},
    {&Wizard::InterliningPrice, Series(100, 1, Mask::k0_00)},
    {&Wizard::LabourPrice, Series(200, 2, Mask::k0_00)},
    {&Wizard::TrimPrice, Series(200, 1, Mask::k0_00)},
    {&Wizard::cboVAT, Series(100, 1, Mask::k0_0)},
};

}  // namespace

void MainCWizard::FillPickLists() {
  for (const PickList& pick : kPickLists) (this->*pick.list).SetEntries(pick.entries);
}

void MainCWizard::FillListEntries() {
  for (const FiledList& filed : kFiledLists) {
    Entries entries = filed.own == nullptr ? Entries() : *filed.own;
    // A list that can't be read is told and stays empty.
    Guard([&] {
      for (std::string& line : shop_.ReadList(filed.file)) entries.push_back(std::move(line));
    });
    (this->*filed.list).SetEntries(std::move(entries));
  }
  TrimKind.SetEntries({"Border", "Trimming"});
}

void MainCWizard::SetPrompts() {
  for (const FiledList& filed : kFiledLists) (this->*filed.list).SetText(filed.prompt);
  TrimKind.SetText("Border");
}

void MainCWizard::HookLists() {
  CmdListOptions.OnClicked([this] { ShowSteps(false); });
  CmdWizard.OnClicked([this] { ShowSteps(true); });
  cboVAT.OnEntered([this] { entered_rate_ = cboVAT.text(); });
  cboVAT.OnPicked([this] { StoreTaxRate(); });
  cboVAT.OnEnterKey([this] { StoreTaxRate(); });
  cboVAT.OnLeft([this] { StoreTaxRate(); });
}

// Only what the worker chose here: the preferences fill the box as well.
void MainCWizard::StoreTaxRate() {
  if (cboVAT.text() == entered_rate_) return;
  entered_rate_ = cboVAT.text();
  RowSet settings;
  settings.Open(shop_.database(), kAdminTable);
  if (!settings.HasRow()) return;
  settings.SetValue(setting::kVat.column, cboVAT.text());
  settings.Update();
}

}  // namespace tarvane::curtain_wizard
