#include "curtain_wizard/costing.h"

#include "curtain_wizard/fabric_requirement.h"
#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {
namespace {

using Wizard = MainCWizard;

// A cost is an amount times a price.
struct CostLine {
  TextField Wizard::*cost;
  TextField Wizard::*amount;
  DropDownList Wizard::*price;
};

constexpr CostLine kCostLines[] = {
    {&Wizard::FabricCost, &Wizard::FabricMetres, &Wizard::FabricPrice},
    {&Wizard::TapeCost, &Wizard::TxtTape, &Wizard::TapePrice},
    {&Wizard::LiningCost, &Wizard::LiningAmount, &Wizard::LiningPrice},
    {&Wizard::InterliningCost, &Wizard::InterliningAmount, &Wizard::InterliningPrice},
};
constexpr const CostLine& kLiningLine = kCostLines[2];
constexpr const CostLine& kInterliningLine = kCostLines[3];

void Reprice(Wizard& wizard, const CostLine& line) {
  (wizard.*line.cost).SetNumber((wizard.*line.price).Number() * (wizard.*line.amount).Number(), Mask::k0_00);
}

void EnableLine(Wizard& wizard, const CostLine& line, bool on) {
  (wizard.*line.amount).SetEnabled(on);
  (wizard.*line.price).SetEnabled(on);
  (wizard.*line.cost).SetEnabled(on);
}

}  // namespace

std::string VatDivisor(std::string_view rate) {
  std::string divisor("1");
  if (ParseLeading(rate) > 0) divisor += rate;
  return divisor;
}

std::string CostSoFar(const MainCWizard& wizard) {
  double sum = wizard.FabricCost.Number() + wizard.TapeCost.Number() + wizard.TotalLabour.Number();
  if (wizard.TieBacksNeeded.on()) {
    sum += wizard.TxtTieBacksUnitPrice.Number() * wizard.TxtNoOfTieBacks.Number();
  }
  if (wizard.LiningNeeded.on()) sum += wizard.LiningCost.Number();
  if (wizard.InterliningNeeded.on()) sum += wizard.InterliningCost.Number();
  if (wizard.AddTrims.on()) sum += wizard.TrimCost.Number();
  return FormatNumber(sum, Mask::k0_00);
}

void MainCWizard::HookCosting() {
  for (const CostLine& line : kCostLines) {
    const auto reprice = [this, &line] { Reprice(*this, line); };
    DropDownList& price = this->*line.price;
    price.OnChanged(reprice);
    price.OnPicked(reprice);
    price.OnEnterKey(reprice);
    (this->*line.amount).OnChanged(reprice);
  }
  FabricPriceExVat.OnClicked([this] { RemoveFabricVat(); });
  LiningByWidths.OnClicked([this] { ComputeLining(); });
  LiningNeeded.OnClicked([this] { ApplyLiningNeeded(); });
  InterliningNeeded.OnClicked([this] { ApplyLiningNeeded(); });

  NoTieBacks.OnClicked([this] { ApplyTieBacks(); });
  TieBacksNeeded.OnClicked([this] { ApplyTieBacks(); });
  TxtTieBacksUnitPrice.OnChanged(
      [this] { TieBackTotal.SetNumber(TxtTieBacksUnitPrice.Number() * TxtNoOfTieBacks.Number()); });
  TxtTieBacksUnitPrice.OnLeft([this] { TieBackTotal.SetText(Format2(TieBackTotal.text())); });
}

// Tape runs across the heading: it follows the widths of fabric, not the track.
void MainCWizard::ComputeTape() {
  TxtTape.SetNumber(NumberOfDrops.Number() * FabricWidthIns.Number() / kMetreInches, Mask::k0_0);
}

// The repeat of the fabric is no matter for its lining.
void MainCWizard::ComputeLining() {
  if (LiningByWidths.on()) {
    const double inches = NumberOfDrops.Number() * (FinishedLengthIns.Number() + HemAllowanceIns.Number());
    const double metres = ThroughText(inches) / kMetreInches;
    LiningAmount.SetNumber(metres, Mask::k0_0);
    InterliningAmount.SetNumber(metres, Mask::k0_0);
    LiningByWidths.SetCaption("Metres");
  } else {
    if (NumberOfDrops.empty()) NumberOfDrops.SetText("0");
    LiningAmount.SetText(NumberOfDrops.text());
    InterliningAmount.SetText(NumberOfDrops.text());
    LiningByWidths.SetCaption("Widths");
  }
  Reprice(*this, kLiningLine);
  Reprice(*this, kInterliningLine);
}

// Whatever its own tick is, each run divides again.
void MainCWizard::RemoveFabricVat() {
  if (cboVAT.Number() <= 0) {
    FabricPrice.SetText(Format2(FabricPrice.text()));
    return;
  }
  IgnoreFaults([this] {
    const double divisor = ParseLeading(VatDivisor(cboVAT.text()));
    FabricPrice.SetNumber(ParseStrict(FabricPrice.text()) / divisor * 100, Mask::k0_00);
  });
}

void MainCWizard::ApplyLiningNeeded() {
  EnableLine(*this, kLiningLine, LiningNeeded.on());
  EnableLine(*this, kInterliningLine, InterliningNeeded.on());
}

void MainCWizard::ApplyTieBacks() {
  const bool needed = !NoTieBacks.on();
  for (TextField* field : std::initializer_list<TextField*>{&CboTieBacks, &TieBackStyle, &TxtNoOfTieBacks,
                                                            &TxtTieBacksUnitPrice, &TieBackTotal}) {
    field->SetEnabled(needed);
  }
}

}  // namespace tarvane::curtain_wizard
