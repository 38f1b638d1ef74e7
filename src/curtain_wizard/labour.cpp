#include "curtain_wizard/fabric_requirement.h"
#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {

void MainCWizard::HookLabour() {
  LabourWidths.OnChanged([this] { CostLabour(); });
  LabourPrice.OnChanged([this] { CostLabour(); });
  LabourPrice.OnPicked([this] { CostLabour(); });
  LabourPrice.OnEnterKey([this] { CostLabour(); });
  LabourPrice.OnLeft([this] { CostLabour(); });
  TieBackLabour.OnChanged([this] { LabourCosting(); });
  ExtraLabour.OnChanged([this] { LabourCosting(); });

  CmdGetInfo.OnClicked([this] { GetInfo(); });
  TxtVatRate.OnChanged([this] { AddVat(); });
  TxtVatRate.OnLeft([this] { TxtVatRate.SetText(Format(TxtVatRate.text(), Mask::k0_0)); });
}

void MainCWizard::CostLabour() {
  LabourCost.SetNumber(LabourPrice.Number() * LabourWidths.Number(), Mask::k0_00);
  LabourCosting();
}

void MainCWizard::LabourCosting() {
  TotalLabour.SetNumber(TieBackLabour.Number() + ExtraLabour.Number() + LabourCost.Number(), Mask::k0_00);
}

void MainCWizard::AddVat() {
  TotalCostingVat.SetNumber(TxtVatRate.Number() * totalCostingWiz.Number() / 100, Mask::k0_00);
  GrandTotal.SetNumber(totalCostingWiz.Number() + TotalCostingVat.Number(), Mask::k0_00);
}

}  // namespace tarvane::curtain_wizard
