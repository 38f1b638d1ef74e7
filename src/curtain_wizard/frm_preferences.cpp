#include "curtain_wizard/frm_preferences.h"

#include <algorithm>

#include "curtain_wizard/fabric_requirement.h"
#include "curtain_wizard/wizard.h"
#include "job/job_screen.h"
#include "store/data_files.h"

namespace tarvane {
namespace {

// Mark-up, fullness and hem have one decimal, prices two.
Mask BoxMask(int box) { return box == 0 || box == 5 || box == 6 ? Mask::k0_0 : Mask::k0_00; }

// A line break within a value would shift all lines behind it.
std::string OneLine(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\r' || c == '\n'; }, ' ');
  return text;
}

}  // namespace

FrmPreferences::FrmPreferences(Host& host, MainCWizard& wizard)
    : Screen(host, "FrmPreferences"), wizard_(&wizard) {
  SetTitle("Curtain Wizard Preferences");
  for (int box = 0; box < kBoxes; ++box) {
    TextField& field = Text1[box];
    field.SetSelectAllOnFocus();
    field.OnLeft([&field, box] { field.SetText(Format(field.text(), BoxMask(box))); });
  }
  Command22.OnClicked([this] { Save(); });
  Command1.OnClicked([this] { Close(); });
}

std::filesystem::path FrmPreferences::File() const {
  return FindFile(wizard_->job().folder(), data_file::kWizardOptions);
}

void FrmPreferences::Load() {
  const std::vector<std::string> lines = SplitLines(ReadFile(File()).value_or(""));
  for (std::size_t i = 0; i < std::min<std::size_t>(lines.size(), kStored); ++i) Text1[i].SetText(lines[i]);
}

void FrmPreferences::Save() {
  std::vector<std::string> lines;
  for (int i = 0; i < kStored; ++i) lines.push_back(OneLine(Text1[i].text()));
  wizard_->LabourPrice.SetText(lines[1]);
  wizard_->LiningPrice.SetText(lines[2]);
  wizard_->InterliningPrice.SetText(lines[3]);
  wizard_->TapePrice.SetText(lines[4]);
  wizard_->Fullness.SetText(lines[5]);
  wizard_->FullnessMirror.SetText(lines[5]);
  wizard_->HemAllowanceIns.SetText(lines[6]);
  IgnoreFaults([&] { wizard_->HemAllowanceCm.SetText(InchesToCm(wizard_->HemAllowanceIns.text())); });
  wizard_->cboVAT.SetText(lines[7]);
  try {
    ReplaceFile(File(), JoinLines(lines));
  } catch (const Fault&) {
    Message("Error Found! cannot save options", kProgramTitle, Icon::kWarning);
  }
  Close();
}

}  // namespace tarvane
