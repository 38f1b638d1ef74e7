#include "curtain_wizard/trims.h"

#include <algorithm>

#include "curtain_wizard/costing.h"
#include "curtain_wizard/fabric_requirement.h"
#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {
namespace {

using Wizard = MainCWizard;

struct TrimPanel {
  std::string_view kind;
  Panel Wizard::*panel;
};

constexpr TrimPanel kTrimPanels[] = {
    {"Border", &Wizard::BordersPanel},
    {"Frill", &Wizard::FrillPanel},
    {"Trimming", &Wizard::TrimmingPanel},
    {"Manual", &Wizard::ManualPanel},
};

constexpr TickBox Wizard::*kPlacements[] = {&Wizard::AllSides, &Wizard::PlaceTop, &Wizard::PlaceBottom,
                                            &Wizard::PlaceTwoSides, &Wizard::PlaceFourSides};

}  // namespace

std::optional<double> BorderInches(const TrimMeasure& t) {
  const auto drops = [&t](double width) { return t.fabric_width < width ? t.drop + t.drop : t.drop; };
  std::optional<double> inches;
  if (t.all_sides) {
    inches = drops(t.widths * t.border_cut) + ThroughText(t.widths * t.border_cut * 2);
  }
  if (t.top || t.bottom) {
    inches = ThroughText(t.widths * t.border_cut * (t.top && t.bottom ? 2 : 1));
  }
  if (t.two_sides || t.four_sides) {
    const double across = ThroughText(inches.value_or(0));
    inches = across + drops(t.border_cut * (t.two_sides ? 2 : 4));
  }
  return inches;
}

double TrimmingInches(const TrimMeasure& t) {
  const double width = t.widths * t.fabric_width;
  double across = t.all_sides ? ThroughText(width * 2) : 0;
  double edge = t.all_sides ? t.drop * 4 : 0;
  if (t.top) across = ThroughText(width);
  if (t.bottom) across = ThroughText(across + width);
  if (t.two_sides) edge = t.drop + t.drop;
  if (t.four_sides) edge = t.drop * 4;
  return edge + across;
}

void MainCWizard::HookTrims() {
  AddTrims.OnClicked([this] { ApplyTrims(); });
  AllSides.OnClicked([this] { ApplyAllSides(); });
  PlaceTwoSides.OnClicked([this] {
    if (PlaceTwoSides.on()) PlaceFourSides.Set(false);
  });
  PlaceFourSides.OnClicked([this] {
    if (PlaceFourSides.on()) PlaceTwoSides.Set(false);
  });
  for (TickBox Wizard::*placement : kPlacements) {
    (this->*placement).OnClicked([this] { CalculateTrims.SetEnabled(true); });
  }
  TrimKind.OnChanged([this] {
    TxtAmountInches.SetText("0");
    TxtAmountMetres.SetText("0");
    for (const TrimPanel& panel : kTrimPanels) (this->*panel.panel).SetVisible(TrimKind.text() == panel.kind);
  });
  TrimByWidths.OnClicked([this] { ApplyTrimUnit(); });
  CalculateTrims.OnClicked([this] { CheckedCalTrims(); });
  RoundUpTrims.OnClicked([this] { RoundUpTrimMetres(); });
  TrimPrice.OnTyped([this] { TxtPriceTarget2.SetText(TrimPrice.text()); });
  TrimPrice.OnChanged([this] { PriceTrim(); });
  TrimPrice.OnPicked([this] { PriceTrim(); });
  TrimPrice.OnEnterKey([this] { PriceTrim(); });
  TrimPriceExVat.OnClicked([this] { ApplyTrimVat(); });
}

void MainCWizard::ApplyTrims() {
  const bool on = AddTrims.on();
  for (Control* control : std::initializer_list<Control*>{
           &TrimKind,         &CboTrims,       &TrimName,    &AllSides,         &BordersPanel,
           &FrillPanel,       &TrimmingPanel,  &ManualPanel, &TxtBorderCutSize, &TrimByWidths,
           &TxtCurtainWidths, &TxtFabricWidth, &TxtDropCuts, &CalculateTrims,   &TxtAmountInches,
           &TxtAmountMetres,  &RoundUpTrims,   &TrimMetres,  &TrimPrice,        &TrimPriceExVat,
           &TrimCost}) {
    control->SetEnabled(on);
  }
  ApplyPlacements();
}

void MainCWizard::ApplyAllSides() {
  if (AllSides.on()) {
    for (TickBox* place : {&PlaceTop, &PlaceBottom, &PlaceTwoSides, &PlaceFourSides}) place->Set(false);
  }
  ApplyPlacements();
}

void MainCWizard::ApplyPlacements() {
  const bool free = AddTrims.on() && !AllSides.on();
  for (TickBox* place : {&PlaceTop, &PlaceBottom, &PlaceTwoSides, &PlaceFourSides}) place->SetEnabled(free);
}

void MainCWizard::CheckedCalTrims() {
  const bool placed =
      std::ranges::any_of(kPlacements, [this](TickBox Wizard::*box) { return (this->*box).on(); });
  if (!placed) {
    Message("Please Select the Placement", kProgramTitle, Icon::kWarning);
    return;
  }
  CalTrims();
}

void MainCWizard::CalTrims() {
  TxtAmountInches.SetText("0");
  const TrimMeasure trim{.widths = TxtCurtainWidths.Number(),
                         .fabric_width = TxtFabricWidth.Number(),
                         .border_cut = TxtBorderCutSize.Number(),
                         .drop = TxtDropCuts.Number(),
                         .all_sides = AllSides.on(),
                         .top = PlaceTop.on(),
                         .bottom = PlaceBottom.on(),
                         .two_sides = PlaceTwoSides.on(),
                         .four_sides = PlaceFourSides.on()};
  std::optional<double> inches;
  if (TrimKind.text() == "Border") inches = BorderInches(trim);
  if (TrimKind.text() == "Trimming") inches = TrimmingInches(trim);
  if (inches) {
    TxtAmountInches.SetNumber(*inches);
    TxtAmountMetres.SetNumber(TxtAmountInches.Number() / kMetreInches, Mask::k0_00);
  }
  TrimMetres.SetText(TxtAmountMetres.text());
  PriceTrim();
}

// The field named widths holds metres of fabric while the box is clear.
void MainCWizard::ApplyTrimUnit() {
  const bool widths = TrimByWidths.on();
  TextField& from = widths ? NumberOfDrops : MetresRequired;
  if (from.empty()) from.SetText("0");
  TxtCurtainWidths.SetText(from.text());
  TrimByWidths.SetCaption(widths ? "Widths" : "Metres");
  PriceTrim();
}

void MainCWizard::PriceTrim() { TrimCost.SetNumber(TrimMetres.Number() * TrimPrice.Number(), Mask::k0_00); }

void MainCWizard::ApplyTrimVat() {
  const bool taxed = cboVAT.Number() > 0;
  const bool without = taxed && TrimPriceExVat.on();
  TrimPriceLabel.SetCaption(taxed ? "Price Per Metre Excluding Vat" : "Price Per Metre Including Vat");
  TrimPriceExVat.SetCaption(without ? "Price ex VAT" : "Price Inc VAT");
  if (without) {
    IgnoreFaults([this] {
      const double divisor = ParseLeading(VatDivisor(cboVAT.text()));
      TrimPrice.SetNumber(ParseStrict(TrimPrice.text()) / divisor * 100, Mask::k0_00);
    });
  } else {
    TrimPrice.SetText(TxtPriceTarget2.text());
  }
  PriceTrim();
}

// The cost stays without the two decimals here: the item's rows tell "0" from "0.00".
void MainCWizard::RoundUpTrimMetres() {
  TxtAmountMetres.SetText(RoundUpMetres(TxtAmountMetres.text()));
  TrimMetres.SetText(TxtAmountMetres.text());
  TrimCost.SetNumber(TrimMetres.Number() * TrimPrice.Number());
}

}  // namespace tarvane::curtain_wizard
