#include "curtain_wizard/frm_preferences.h"

#include <algorithm>

#include "curtain_wizard/fabric_requirement.h"
#include "curtain_wizard/wizard.h"
#include "shop/shop.h"
#include "text/trim.h"

namespace tarvane::curtain_wizard {
namespace {

// Mark-up, fullness and hem have one decimal, prices two.
Mask BoxMask(int box) { return box == 0 || box == 5 || box == 6 ? Mask::k0_0 : Mask::k0_00; }

// Where each line goes; the wizard has no use for the mark-up. Mirrors follow by themselves.
std::array<TextField*, FrmPreferences::kStored> OptionFields(MainCWizard& w) {
  return {nullptr,      &w.LabourPrice, &w.LiningPrice,     &w.InterliningPrice,
          &w.TapePrice, &w.Fullness,    &w.HemAllowanceIns, &w.cboVAT};
}
constexpr std::size_t kTaxLine = 7;

}  // namespace

std::vector<std::string> ReadOptionLines(const Shop& shop) {
  return shop.ReadList(data_file::kWizardOptions);
}

void TakeOptions(MainCWizard& wizard, const std::vector<std::string>& lines, OptionsFor purpose) {
  const auto fields = OptionFields(wizard);
  const std::size_t end = purpose == OptionsFor::kNewItem ? kTaxLine : fields.size();
  for (std::size_t i = 1; i < std::min(lines.size(), end); ++i) fields[i]->SetText(lines[i]);
  // The start values of the two hem boxes disagree, also where the hem stays as it is.
  if (!lines.empty()) MirrorToCm(wizard.HemAllowanceIns, wizard.HemAllowanceCm);
}

FrmPreferences::FrmPreferences(Host& host, Shop& shop, MainCWizard& wizard)
    : Screen(host, std::string(kName)), shop_(shop), wizard_(&wizard) {
  SetTitle("Curtain Wizard Preferences");
  for (int box = 0; box < kBoxes; ++box) {
    TextField& field = Text1[box];
    field.SetSelectAllOnFocus();
    field.OnLeft([&field, box] { field.SetText(Format(field.text(), BoxMask(box))); });
  }
  Command22.OnClicked([this] { Save(); });
  Command1.OnClicked([this] { Close(); });
}

void FrmPreferences::Load() {
  const std::vector<std::string> lines = ReadOptionLines(shop_);
  for (std::size_t i = 0; i < std::min<std::size_t>(lines.size(), kStored); ++i) Text1[i].SetText(lines[i]);
}

void FrmPreferences::Save() {
  std::vector<std::string> lines;
  lines.reserve(kStored);
  for (int i = 0; i < kStored; ++i) lines.push_back(OneLine(Text1[i].text()));
  TakeOptions(*wizard_, lines, OptionsFor::kAll);
  try {
    ReplaceFile(shop_.File(data_file::kWizardOptions), JoinLines(lines));
  } catch (const Fault&) {
    Message("Error Found! cannot save options", kProgramTitle, Icon::kWarning);
  }
  Close();
}

}  // namespace tarvane::curtain_wizard
