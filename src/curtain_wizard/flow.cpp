#include <algorithm>
#include <array>

#include "curtain_wizard/frm_preferences.h"
#include "curtain_wizard/wizard.h"
#include "job/job_screen.h"
#include "shop/shop.h"

namespace tarvane::curtain_wizard {
namespace {

using Wizard = MainCWizard;

constexpr int kFabricStep = 1;
constexpr int kTapeStep = 2;
constexpr int kLiningStep = 3;
constexpr int kTrimStep = 4;
constexpr int kLabourStep = 5;
constexpr int kLastStep = Wizard::kSteps - 1;

constexpr std::array<std::string_view, Wizard::kSteps> kHelpLines = {
    "Welcome to the Tarvane Window Wizard. Enter in your curtain details to get the amount of fabric needed.",
    "Step 2 Costing for Fabric.",
    "Step 3 Costing for Tape",
    "Step 4 Costing for Lining",
    "Step 5 Costing for Trims",
    "Step 6 Costing for Labour and the markup cost for the curtains.",
    "Step 7 Printing or saving the information.",
};

constexpr int kFirstListOption = 5;
constexpr std::string_view kSaveCaption = "Save As New Order and Close";

}  // namespace

MainCWizard::MainCWizard(Host& host, Shop& shop, job::JobScreen& job)
    : Screen(host, std::string(kName)),
      StepTabs(
          &StepsPanel, "StepTabs",
          {"1 Measurements", "2 Fabric", "3 Tape", "4 Lining", "5 Trims", "6 Labour", "7 Print or Save"}),
      Lists(&ListPanel, shop, kFirstListOption, kListGroup, [this] { FillListEntries(); }),
      shop_(shop),
      job_(&job) {
  NameControls();
  CostingGrid.SetWidths({500, 1000, 4200, 1000});
  for (OptionButton* preset : {&UnitCms, &OptionCancel, &NoTieBacks}) preset->Set(true);
  CmdUpdateAndClose.SetVisible(false);
  CmdGetInfo.SetEnabled(false);
  HookFlow();
  HookMeasurements();
  HookCosting();
  HookTrims();
  HookLabour();
  HookPrinting();
  HookSaving();
  HookPickers();
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
    FrmPreferences preferences(host(), shop_, *this);
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
  // Where the file can't be read that is told, and the defaults stand.
  Guard([this] { TakeOptions(*this, ReadOptionLines(shop_), OptionsFor::kNewItem); });
  Guard([this] { TxtAdminVat.SetText(shop_.Get(setting::kVat)); });
  cboVAT.SetText(TxtAdminVat.text());
  entered_rate_ = cboVAT.text();
  ApplyTieBacks();
  ApplyLiningNeeded();
  MarkLinkSaved();
}

// A screen that was opened from here leaves the item as it is but for these actions: an item in work is
// neither read again nor numbered anew.
void MainCWizard::Activate() {
  if (is_shown()) {
    if (picking_fabric_) TakeFabric();
    RunClickActions();
    return;
  }
  const bool view_only = TxtViewOnly.text() == "1";
  if (view_only) {
    CmdWizard.SetEnabled(false);
    CmdListOptions.SetEnabled(false);
    CmdUpdateAndClose.SetVisible(false);
    CmdFinishTwo.SetVisible(false);
    if (!Txtinfo.empty()) LoadItemRecord();
    SetTitle("View and Printing Only");
  }
  RunClickActions();
  if (!Txtinfo.empty()) {
    LoadItemRecord();
    SetTitle("Edit Entry");
    CmdFinishTwo.SetCaption(kSaveCaption);
    CmdUpdateAndClose.SetVisible(true);
  } else if (!view_only) {
    StartNewEntry();
  }
  if (TxtViewOnly.text() == "2") {
    CmdFinishTwo.SetVisible(false);
    PrintMode.SetText("1");
    SetTitle("Quick Curtain Wizard");
  }
}

void MainCWizard::RunClickActions() {
  for (TickBox* box : {&AddTrims, &FabricPriceExVat, &TrimPriceExVat, &InputInInches}) box->RunClick();
}

// The number is used up at once, whether the item is saved or not. A quick calculation goes on without one
// that can't be stored; an item of the job doesn't, since two would get the same.
void MainCWizard::StartNewEntry() {
  SetTitle("New Entry");
  TxtRoom.SetText("Room " + job_->TxtRoomNum.text());
  ItemNumber.SetText(job_->TxtLastOrderNo.text());
  const auto raise = [this] { job_->RaiseOrderNumber(); };
  if (TxtViewOnly.text() == "2") {
    Guard(raise);
  } else {
    raise();
  }
  CmdFinishTwo.SetCaption(kSaveCaption);
  CmdFinishTwo.SetVisible(true);
}

int MainCWizard::CurrentMember(std::string_view family) const { return family == "StepPanel" ? step_ : 0; }

bool MainCWizard::MayClose() { return SureToClose(); }

bool MainCWizard::SureToClose() {
  if (focus() == &cboVAT) StoreTaxRate();
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
  // On the last step too they wait for Get Info.
  for (Button* save : {&CmdFinishTwo, &CmdUpdateAndClose}) save->SetEnabled(false);
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
  if (AddTrims.on()) {
    if (TrimCost.Number() > 0) CalculateTrims.Press();
    if (AutoRoundup.on()) RoundUpTrims.Press();
  }
  LabourWidths.SetText(NumberOfDrops.text());
  CmdGetInfo.SetEnabled(true);
  EnablePrinting(false);
  ItemTextPriced.SetText("");
  for (TextField* total : {&totalCostingWiz, &TotalCostingVat, &GrandTotal}) total->SetText("0.00");
  while (CostingGrid.RowCount() > 1) CostingGrid.RemoveLastRow();
}

void MainCWizard::EnablePrinting(bool on) {
  CmdPrint.SetEnabled(on);
  Cmdprintwithoutprices.SetEnabled(on);
}

}  // namespace tarvane::curtain_wizard
