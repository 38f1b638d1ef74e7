#include <algorithm>
#include <array>

#include "curtain_wizard/fabric_requirement.h"
#include "curtain_wizard/frm_preferences.h"
#include "curtain_wizard/wizard.h"
#include "job/job_screen.h"
#include "job/option_lists.h"
#include "store/data_files.h"

namespace tarvane {
namespace {

using Wizard = MainCWizard;

constexpr int kFabricStep = 1;
constexpr int kTapeStep = 2;
constexpr int kLiningStep = 3;
constexpr int kTrimStep = 4;
constexpr int kLabourStep = 5;
constexpr int kLastStep = Wizard::kSteps - 1;

// Printing waits for the screen that shows rich text.
constexpr bool kPrintingBuilt = false;

constexpr std::array<std::string_view, Wizard::kSteps> kHelpLines = {
    "Welcome to the Tarvane Window Wizard. Enter in your curtain details to get the amount of fabric needed.",
    "Step 2 Costing for Fabric.",
    "Step 3 Costing for Tape",
    "Step 4 Costing for Lining",
    "Step 5 Costing for Trims",
    "Step 6 Costing for Labour and the markup cost for the curtains.",
    "Step 7 Printing or saving the information.",
};

constexpr std::string_view kSaveCaption = "Save As New Order and Close";

}  // namespace

MainCWizard::MainCWizard(Host& host, JobScreen& job)
    : Screen(host, "MainCWizard"),
      StepTabs(
          this, "StepTabs",
          {"1 Measurements", "2 Fabric", "3 Tape", "4 Lining", "5 Trims", "6 Labour", "7 Print or Save"}),
      Option5(this, "Option5", kOptionLists[0].caption, kListGroup),
      Option6(this, "Option6", kOptionLists[1].caption, kListGroup),
      Option7(this, "Option7", kOptionLists[2].caption, kListGroup),
      Option8(this, "Option8", kOptionLists[3].caption, kListGroup),
      Option9(this, "Option9", kOptionLists[4].caption, kListGroup),
      Option10(this, "Option10", kOptionLists[5].caption, kListGroup),
      job_(&job) {
  PlaceControls();
  CostingGrid.SetWidths({500, 1000, 4200, 1000});
  for (OptionButton* preset : {&UnitCms, &OptionCancel, &NoTieBacks, &Option5}) preset->Set(true);
  CmdUpdateAndClose.SetVisible(false);
  // What these open isn't built yet.
  for (Button* button : {&CmdSelect, &CmdGobletWizard, &CmdConverter, &CmdGetFabricFromDatabase, &CmdPrint,
                         &Cmdprintwithoutprices}) {
    button->SetEnabled(false);
  }
  HookFlow();
  HookMeasurements();
  HookCosting();
  HookTrims();
  HookLabour();
  HookSaving();
  HookLists();
}

void MainCWizard::HookFlow() {
  CmdNext.OnClicked([this] { MoveBy(1); });
  CmdBack.OnClicked([this] { MoveBy(-1); });
  StepTabs.SetGate([this](int tab) {
    if (tab != 0) Message("Please use the <<Back and Next>> buttons");
    return false;
  });
  CmdClose.OnClicked([this] {
    if (SureToClose()) Close();
  });
  CmdCurOptions.OnClicked([this] {
    FrmPreferences preferences(host(), *this);
    ShowModal(preferences);
  });
  CmdCalculator.OnClicked([this] { host().Launch("calc"); });
  CmdHelpTip.OnClicked(
      [this] { Message("All input measurement fields need information before this option will work."); });
}

void MainCWizard::Load() {
  CalculateTrims.SetEnabled(false);
  ShowSteps(true);
  step_ = 0;
  SetStep();
  FillPickLists();
  FillListEntries();
  SetPrompts();
  ReadOptions();
  TxtAdminVat.SetText(job_->Data2.HasRow() ? job_->Data2.rows().Value("VatAmount") : "");
  cboVAT.SetText(TxtAdminVat.text());
  ApplyTieBacks();
  ApplyLiningNeeded();
  MarkLinkSaved();
}

void MainCWizard::Activate() {
  const bool view_only = TxtViewOnly.text() == "1";
  if (view_only) {
    CmdWizard.SetEnabled(false);
    CmdListOptions.SetEnabled(false);
    CmdUpdateAndClose.SetVisible(false);
    CmdFinishTwo.SetVisible(false);
    if (!Txtinfo.empty()) LoadItemRecord();
    SetTitle("View and Printing Only");
  }
  AddTrims.RunClick();
  ShowSteps(true);
  FabricPriceExVat.RunClick();
  TrimPriceExVat.RunClick();
  InputInInches.RunClick();
  if (!Txtinfo.empty()) {
    LoadItemRecord();
    SetTitle("Edit Entry");
    CmdFinishTwo.SetCaption(kSaveCaption);
    CmdUpdateAndClose.SetVisible(true);
    // Without Get Info the item would be saved with no price.
    CmdUpdateAndClose.SetEnabled(false);
  } else if (!view_only) {
    StartNewEntry();
  }
  if (TxtViewOnly.text() == "2") {
    CmdFinishTwo.SetVisible(false);
    SetTitle("Quick Curtain Wizard");
  }
}

// The number is used up at once, whether the item is saved or not.
void MainCWizard::StartNewEntry() {
  SetTitle("New Entry");
  TxtRoom.SetText("Room " + job_->TxtRoomNum.text());
  ItemNumber.SetText(job_->TxtLastOrderNo.text());
  job_->TxtLastOrderNo.SetText(NumberText(job_->TxtLastOrderNo.Number() + 1));
  CmdFinishTwo.SetCaption(kSaveCaption);
  CmdFinishTwo.SetVisible(true);
}

int MainCWizard::CurrentMember(std::string_view family) const { return family == "StepPanel" ? step_ : 0; }

bool MainCWizard::MayClose() { return SureToClose(); }

bool MainCWizard::SureToClose() {
  return host().Ask({"Closing Wizard", "Closing wizard. Are you sure?.", {Answer::kYes, Answer::kNo}}) !=
         Answer::kNo;
}

void MainCWizard::ShowSteps(bool steps) {
  StepsPanel.SetVisible(steps);
  ListPanel.SetVisible(!steps);
}

void MainCWizard::MoveBy(int steps) {
  step_ = std::clamp(step_ + steps, 0, kLastStep);
  SetStep();
}

void MainCWizard::SetStep() {
  StepTabs.Select(step_);
  CmdBack.SetEnabled(step_ != 0);
  CmdNext.SetEnabled(step_ != kLastStep);
  // While it loads, the first field of the screen is to have the focus.
  if (step_ == 0 && is_shown()) SetFocus(CmdNext);
  // On the last step too it waits for Get Info.
  CmdFinishTwo.SetEnabled(false);
  for (int i = 0; i < kSteps; ++i) StepPanel[i].SetVisible(i == step_);
  HelpLine.SetCaption(kHelpLines[static_cast<std::size_t>(step_)]);
  RunEntryAction();
}

void MainCWizard::RunEntryAction() {
  switch (step_) {
    case kFabricStep:
      Calculate();
      RoundUpCheck();
      if (MetresRequired.empty()) MetresRequired.SetText("0");
      FabricMetres.SetText(MetresRequired.text());
      break;
    case kTapeStep:
      ComputeTape();
      break;
    case kLiningStep:
      LiningByWidths.RunClick();
      break;
    case kTrimStep:
      TrimByWidths.RunClick();
      TxtDropCuts.SetText(CutLengthIns.text());
      break;
    case kLabourStep:
      ArriveAtLabour();
      break;
    default:
      break;
  }
}

// The texts for the customer and for the room are kept: a second pass appends to them.
void MainCWizard::ArriveAtLabour() {
  if (TrimCost.Number() > 0) CalculateTrims.Press();
  if (AutoRoundup.on()) RoundUpTrims.Press();
  LabourWidths.SetText(NumberOfDrops.text());
  CmdGetInfo.SetEnabled(true);
  CmdUpdateAndClose.SetEnabled(false);
  EnablePrinting(false);
  ItemTextPriced.SetText("");
  for (TextField* total : {&totalCostingWiz, &TotalCostingVat, &GrandTotal}) total->SetText("0.00");
  while (CostingGrid.RowCount() > 1) CostingGrid.RemoveLastRow();
}

void MainCWizard::EnablePrinting(bool on) {
  CmdPrint.SetEnabled(on && kPrintingBuilt);
  Cmdprintwithoutprices.SetEnabled(on && kPrintingBuilt);
}

// A file that isn't there, or an entry that it lacks, leaves the defaults.
void MainCWizard::ReadOptions() {
  // By line; the first is the mark-up, which the wizard has no use for. Mirrors follow by themselves.
  TextField* const fields[] = {nullptr,    &LabourPrice, &LiningPrice,    &InterliningPrice,
                               &TapePrice, &Fullness,    &HemAllowanceIns};
  const auto text = ReadFile(FindFile(job_->folder(), data_file::kWizardOptions));
  if (!text) return;
  const std::vector<std::string> lines = SplitLines(*text);
  for (std::size_t i = 1; i < std::min(lines.size(), std::size(fields)); ++i) fields[i]->SetText(lines[i]);
  // The start values of the two hem boxes disagree, also where the hem stays as it is.
  IgnoreFaults([this] { HemAllowanceCm.SetText(InchesToCm(HemAllowanceIns.text())); });
}

}  // namespace tarvane
