#include "curtain_wizard/pricing_entry.h"

#include <utility>

#include "shop/shop.h"
#include "store/row_set.h"
#include "text/trim.h"

namespace tarvane::curtain_wizard {
namespace {

constexpr int kMostCharacters = 255;  // of a column of text

// What a box makes of its number as it is left.
struct BoxMask {
  TextField FrmPopUp1Options::*box;
  Mask mask;
};

constexpr BoxMask kMasks[] = {
    {&FrmPopUp1Options::LabourPrice, Mask::k0_00},
    {&FrmPopUp1Options::LiningPrice, Mask::k0_00},
    {&FrmPopUp1Options::InterliningPrice, Mask::k0_00},
    {&FrmPopUp1Options::TapePrice, Mask::k0_00},
    {&FrmPopUp1Options::Fullness, Mask::k0},
    {&FrmPopUp1Options::HemsCms, Mask::k0_0},
    {&FrmPopUp1Options::HemsIns, Mask::k0_0},
};

}  // namespace

FrmPopUp1Options::FrmPopUp1Options(Host& host, Shop& shop) : Screen(host, std::string(kName)), shop_(shop) {
  SetTitle("Pop Up 1 Option Database");
  PopUpID.SetReadOnly(true);
  Reference.SetEntries({"1 Per of Curtains", "1 Roman Blind", "Valance", "Curtains", "Blind"});
  AutoRoundUp.SetEntries({"YES", "NO"});
  for (TextField* field : Fields()) {
    if (field->kind() == TextField::Kind::kLine) field->SetMaxLength(kMostCharacters);
  }
  for (const BoxMask& masked : kMasks) {
    TextField& box = this->*masked.box;
    box.OnLeft([&box, mask = masked.mask] { box.SetText(Format(box.text(), mask)); });
  }
  CmdSave.OnClicked([this] { Save(); });
  CmdClose.OnClicked([this] { Close(); });
  stored_ = Texts();
}

std::vector<TextField*> FrmPopUp1Options::Fields() {
  return {&Reference,        &Description,     &LabourPrice, &LiningPrice, &LiningName,
          &InterliningPrice, &InterLiningName, &TapePrice,   &Fullness,    &HemsCms,
          &HemsIns,          &AutoRoundUp,     &Notes};
}

std::vector<std::string> FrmPopUp1Options::Texts() {
  std::vector<std::string> texts;
  for (const TextField* field : Fields()) texts.push_back(field->text());
  return texts;
}

bool FrmPopUp1Options::changed() { return Texts() != stored_; }

void FrmPopUp1Options::Load() {
  // A list that can't be read is told and stays empty.
  Guard([this] { Description.SetEntries(shop_.ReadList(data_file::kCurtainList)); });
  SetFocus(Reference);
}

void FrmPopUp1Options::Change(std::string_view key) {
  RowSet row;
  row.Open(shop_.database(data_file::kPricing), kPricingTable);
  row.SetBookmark(key);
  for (TextField* field : Fields()) field->SetText(row.Value(field->name()));
  NowStored(key);
}

void FrmPopUp1Options::Save() {
  LeaveFocus();
  RowSet row;
  row.Open(shop_.database(data_file::kPricing), kPricingTable);
  if (PopUpID.empty()) {
    row.AddNew();
  } else {
    row.SetBookmark(PopUpID.text());
  }
  for (TextField* field : Fields()) {
    if (field->kind() == TextField::Kind::kLine) field->SetText(OneLine(field->text()));
    row.SetValue(field->name(), field->text());
  }
  row.Update();
  NowStored(row.Bookmark());
  Messages.SetCaption("Saved.");
  SetFocus(CmdClose);
  if (saved_) saved_(PopUpID.text());
}

void FrmPopUp1Options::NowStored(std::string_view key) {
  PopUpID.SetText(key);
  CmdSave.SetCaption("Update");
  stored_ = Texts();
}

}  // namespace tarvane::curtain_wizard
