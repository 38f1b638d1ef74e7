#include "curtain_wizard/pricing.h"

#include <array>
#include <utility>

#include "curtain_wizard/fabric_requirement.h"
#include "curtain_wizard/pricing_entry.h"
#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {
namespace {

const catalogues::CatalogueLook kLook = {
    .name = FrmPopUp1::kName,
    .title = "Pricing Database for Curtain wizard",
    .file = data_file::kPricing,
    .table = kPricingTable,
    .categories = {{"Reference", ""},
                   {"Description", ""},
                   {"LabourPrice", ""},
                   {"LiningName", ""},
                   {"InterliningName", ""}},
    .add = "&Add...",
    .save = "&Update...",
    .named_by = "Description",
};

// Each column with the field of the wizard that takes it, in this order: what the centimetres of the hem say
// is replaced by its inches.
std::array<std::pair<std::string_view, TextField*>, 11> HandOvers(MainCWizard& w) {
  return {{{"Reference", &w.TxtDescription},
           {"Description", &w.CboCurtainStyle},
           {"LabourPrice", &w.LabourPrice},
           {"LiningPrice", &w.LiningPrice},
           {"LiningName", &w.TxtLiningName},
           {"InterliningPrice", &w.InterliningPrice},
           {"InterLiningName", &w.TxtInterliningName},
           {"TapePrice", &w.TapePrice},
           {"Fullness", &w.Fullness},
           {"HemsCms", &w.HemAllowanceCm},
           {"HemsIns", &w.HemAllowanceIns}}};
}

}  // namespace

FrmPopUp1::FrmPopUp1(Host& host, Shop& shop) : Catalogue(host, shop, kLook) {
  BindColumns();
  for (TextField* field :
       {&Reference, &Description, &LabourPrice, &LiningPrice, &LiningName, &InterliningPrice,
        &InterLiningName, &TapePrice, &Fullness, &HemsCms, &HemsIns, &AutoRoundUp, &Notes}) {
    field->SetReadOnly(true);
  }
  MSFlexGrid1.SetNumbersLines();
  CmdDelete.SetCaption("Delete");
  CmdUse.SetVisible(false);
  CmdUse.OnClicked([this] { Use(); });
  MSFlexGrid1.OnRowOpened([this] {
    if (use_button() == nullptr) Save();
  });
  Data1.OnReposition([this] { EnableButtons(); });
  EnableButtons();
}

FrmPopUp1::FrmPopUp1(Host& host, Shop& shop, MainCWizard& wizard) : FrmPopUp1(host, shop) {
  wizard_ = &wizard;
  OpenFor(CmdUse);
}

void FrmPopUp1::Load() {
  Catalogue::Load();
  // A search begins with its category; who comes for a price mostly sees it in the list.
  if (use_button() != nullptr) SetFocus(MSFlexGrid1);
}

void FrmPopUp1::EnableButtons() {
  CmdUse.SetEnabled(wizard_ != nullptr && Data1.HasRow());
  for (Button* button : {&Update, &CmdDelete}) button->SetEnabled(Data1.HasRow());
}

void FrmPopUp1::Use() {
  if (wizard_ == nullptr || !Data1.HasRow()) return;
  const RowSet& row = Data1.rows();
  for (const auto& [column, field] : HandOvers(*wizard_)) field->SetText(row.Value(column));
  // Also where the inches were the same before.
  MirrorToCm(wizard_->HemAllowanceIns, wizard_->HemAllowanceCm);
  // The entry screen's YES and NO say nothing to the wizard.
  const std::string& round_up = row.Value("AutoRoundUp");
  if (round_up == "ON" || round_up == "OFF") wizard_->AutoRoundup.Set(round_up == "ON");
  used_ = true;
  Close();
}

void FrmPopUp1::Add() { ShowEntry(""); }

void FrmPopUp1::Save() {
  if (Data1.HasRow()) ShowEntry(Data1.rows().Bookmark());
}

void FrmPopUp1::Delete() {
  const std::int64_t count = Data1.rows().RecordCount();
  Catalogue::Delete();
  if (Data1.rows().RecordCount() != count) LoadList(Data1.rows().Bookmark());
}

void FrmPopUp1::ShowEntry(std::string_view key) {
  FrmPopUp1Options entry(host(), shop());
  if (!key.empty()) entry.Change(key);
  entry.OnSaved([this](std::string_view saved) { LoadList(saved); });
  ShowModal(entry);
}

void FrmPopUp1::LoadList(std::string_view key) {
  Data1.Open(shop().database(look().file), look().table);
  GoToKey(key);
}

}  // namespace tarvane::curtain_wizard
