#include "curtain_wizard/fabric_requirement.h"

#include <algorithm>
#include <array>

#include "curtain_wizard/wizard.h"

namespace tarvane {
namespace {

using Wizard = MainCWizard;

// The measures that are held in inches and in centimetres.
struct MeasurePair {
  TextField Wizard::*inches;
  TextField Wizard::*centimetres;
  Mask inch_mask;  // of inches that come from centimetres
};

constexpr MeasurePair kMeasurePairs[] = {
    {&Wizard::TrackWidthIns, &Wizard::TrackWidthCm, Mask::k0_00},
    {&Wizard::FabricWidthIns, &Wizard::FabricWidthCm, Mask::k0_0},
    {&Wizard::FinishedLengthIns, &Wizard::FinishedLengthCm, Mask::k0_0},
    {&Wizard::PatternRepeatIns, &Wizard::PatternRepeatCm, Mask::k0_0},
    {&Wizard::HemAllowanceIns, &Wizard::HemAllowanceCm, Mask::k0_0},
};

struct AutoMeasure {
  OptionButton Wizard::*option;
  std::string_view factor_text;
  double factor;
};

constexpr AutoMeasure kAutoMeasures[] = {
    {&Wizard::AutoMeasureGoblet, "2.5", 2.5},
    {&Wizard::AutoMeasureBoxPleat, "3", 3},
};

void FillIfEmpty(TextField& field, std::string_view text) {
  if (field.empty()) field.SetText(text);
}

// A text that is no number leaves the mirror as it was.
void MirrorToCm(const TextField& inches, TextField& centimetres) {
  IgnoreFaults([&] { centimetres.SetText(InchesToCm(inches.text())); });
}

void MirrorToInches(const TextField& centimetres, TextField& inches, Mask mask) {
  IgnoreFaults([&] {
    inches.SetText(CmToInches(centimetres.text()));
    inches.SetText(Format(inches.text(), mask));
  });
}

}  // namespace

void MainCWizard::HookMeasurements() {
  // The defaults for empty boxes come before the conversions that read them.
  FabricWidthIns.OnTyped([this] { FillIfEmpty(FabricWidthIns, "0"); });
  FabricWidthIns.OnEnterKey([this] { FillIfEmpty(FabricWidthIns, "0"); });
  FabricWidthIns.OnLeft([this] { FillIfEmpty(FabricWidthIns, "0"); });
  PatternRepeatIns.OnEnterKey([this] { FillIfEmpty(PatternRepeatIns, "0"); });
  HemAllowanceIns.OnChanged([this] {
    FillIfEmpty(HemAllowanceIns, "0");
    MirrorToCm(HemAllowanceIns, HemAllowanceCm);
  });
  Fullness.OnChanged([this] { FullnessMirror.SetText(Fullness.text()); });
  FullnessMirror.OnChanged([this] { Fullness.SetText(FullnessMirror.text()); });
  Fullness.OnLeft([this] { FillIfEmpty(Fullness, "2"); });
  FullnessMirror.OnLeft([this] { FillIfEmpty(FullnessMirror, "2"); });

  for (const MeasurePair& pair : kMeasurePairs) {
    const auto to_cm = [this, &pair] { MirrorToCm(this->*pair.inches, this->*pair.centimetres); };
    const auto to_inches = [this, &pair] {
      MirrorToInches(this->*pair.centimetres, this->*pair.inches, pair.inch_mask);
    };
    (this->*pair.inches).OnEnterKey(to_cm);
    (this->*pair.inches).OnLeft(to_cm);
    (this->*pair.centimetres).OnEnterKey(to_inches);
    (this->*pair.centimetres).OnLeft(to_inches);
  }

  InputInInches.OnClicked([this] { ApplyInputUnit(); });
  UnitCms.OnClicked([this] { ShowCentimetres(); });
  UnitMm.OnClicked([this] { ShowMillimetres(); });
  CmdCalculate.OnClicked([this] { Calculate(); });
  AutoMeasureGoblet.OnClicked([this] { Calculate(); });
  AutoMeasureBoxPleat.OnClicked([this] { Calculate(); });
  OptionCancel.OnClicked([this] {
    TxtAutoTrack.SetText("0");
    TxtMTrack.SetText("0");
    Calculate();
  });
  CmdRoundUp.OnClicked([this] {
    MetresRequired.SetText(RoundUpMetres(MetresRequired.text()));
    AutoRoundup.Set(true);
  });
}

void MainCWizard::Calculate() {
  if (TxtMTrack.Number() <= 0) TxtMTrack.SetText("1");
  const double track = MeasuredTrack();
  const double fabric = FabricWidthIns.Number();
  const double fullness = TxtMTrack.text() == "1" ? Fullness.Number() : 1;
  PutNumber(NumberOfDrops, track * fullness / fabric);
  NumberOfDrops.SetText(RoundUpCount(NumberOfDrops.text()));

  const bool patterned = PatternRepeatIns.Number() != 0;
  if (patterned) {
    CalculatePatterned();
  } else {
    CalculatePlain();
  }
  PutNumber(MetresRequired, TotalInches.Number() / kMetreInches, Mask::k0_00);
  if (!patterned) PatternsPerDrop.SetText("Plain Fabric Used");
}

double MainCWizard::MeasuredTrack() {
  double track = TrackWidthIns.Number();
  for (const AutoMeasure& measure : kAutoMeasures) {
    const OptionButton& option = this->*measure.option;
    if (!option.on()) continue;
    TxtMTrack.SetText(measure.factor_text);
    TxtAutoTrack.SetText(NumberText(track * measure.factor));
    track = TxtAutoTrack.Number();
    Message(option.caption() + " = " + TxtAutoTrack.text(), "Tarvane Auto Mersure", Icon::kInformation);
  }
  return track;
}

void MainCWizard::CalculatePatterned() {
  PutNumber(PatternsPerDrop,
            (FinishedLengthIns.Number() + HemAllowanceIns.Number()) / PatternRepeatIns.Number());
  PatternsPerDrop.SetText(RoundUpCount(PatternsPerDrop.text()));
  PutNumber(CutLengthIns, PatternRepeatIns.Number() * PatternsPerDrop.Number());
  MirrorToCm(CutLengthIns, CutLengthCm);
  if (UnitMm.on()) PutNumber(CutLengthCm, CutLengthCm.Number() * 10);
  PutNumber(TotalInches, NumberOfDrops.Number() * CutLengthIns.Number());
}

// Unlike the cut of patterned fabric this one is shown in centimetres whatever the unit.
void MainCWizard::CalculatePlain() {
  PutNumber(PatternsPerDrop, FinishedLengthIns.Number() + HemAllowanceIns.Number());
  PutNumber(TotalInches, NumberOfDrops.Number() * PatternsPerDrop.Number());
  PutNumber(CutLengthIns, FinishedLengthIns.Number() + HemAllowanceIns.Number());
  MirrorToCm(CutLengthIns, CutLengthCm);
}

void MainCWizard::RoundUpCheck() {
  if (AutoRoundup.on()) MetresRequired.SetText(RoundUpMetres(MetresRequired.text()));
}

void MainCWizard::ApplyInputUnit() {
  const bool inches = InputInInches.on();
  InputInInches.SetCaption(inches ? "Input Measument in Inches" : "Input Measument in Centimetres");
  for (const MeasurePair& pair : kMeasurePairs) {
    (this->*pair.inches).SetEnabled(inches);
    (this->*pair.centimetres).SetEnabled(!inches);
  }
  Fullness.SetEnabled(inches);
  FullnessMirror.SetEnabled(!inches);
}

bool MainCWizard::AnyMeasureEmpty() const {
  return std::ranges::any_of(kMeasurePairs, [this](const MeasurePair& pair) {
    return (this->*pair.inches).empty() || (this->*pair.centimetres).empty();
  });
}

void MainCWizard::ShowCentimetres() {
  if (AnyMeasureEmpty()) return;
  SetUnitLabels("Cms");
  for (const MeasurePair& pair : kMeasurePairs) MirrorToCm(this->*pair.inches, this->*pair.centimetres);
  Calculate();
}

void MainCWizard::ShowMillimetres() {
  if (AnyMeasureEmpty()) return;
  SetUnitLabels("mm");
  for (const MeasurePair& pair : kMeasurePairs) {
    TextField& box = this->*pair.centimetres;
    MirrorToCm(this->*pair.inches, box);
    PutNumber(box, box.Number() * 10);
  }
  PutNumber(CutLengthCm, CutLengthCm.Number() * 10);
}

void MainCWizard::SetUnitLabels(std::string_view unit) {
  for (Label& label : UnitLabel) label.SetCaption(unit);
}

}  // namespace tarvane
