#include "curtain_wizard/fabric_requirement.h"

#include <algorithm>
#include <array>

#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {
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

constexpr std::string_view kMillimetres = "mm";

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

void MirrorToInches(const TextField& centimetres, TextField& inches, Mask mask) {
  IgnoreFaults([&] {
    inches.SetText(CmToInches(centimetres.text()));
    inches.SetText(Format(inches.text(), mask));
  });
}

}  // namespace

void MirrorToCm(const TextField& inches, TextField& centimetres) {
  IgnoreFaults([&] { centimetres.SetText(InchesToCm(inches.text())); });
}

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
    ConvertWhereChanged(this->*pair.inches, to_cm);
    ConvertWhereChanged(this->*pair.centimetres, to_inches);
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

// On Enter in any case, on leaving only what was changed in the box: millimetres that are merely passed
// through aren't taken for centimetres, nor is a measure rounded by it.
void MainCWizard::ConvertWhereChanged(TextField& box, const Rule& convert) {
  box.OnTyped([this, &box] { typed_box_ = &box; });
  box.OnEnterKey([this, convert] {
    convert();
    typed_box_ = nullptr;
  });
  box.OnLeft([this, &box, convert] {
    if (typed_box_ == &box) convert();
    typed_box_ = nullptr;
  });
}

void MainCWizard::Calculate() {
  if (TxtMTrack.Number() <= 0) TxtMTrack.SetText("1");
  const double track = MeasuredTrack();
  const double fabric = FabricWidthIns.Number();
  const double fullness = TxtMTrack.text() == "1" ? Fullness.Number() : 1;
  NumberOfDrops.SetNumber(track * fullness / fabric);
  NumberOfDrops.SetText(RoundUpCount(NumberOfDrops.text()));

  const bool patterned = PatternRepeatIns.Number() != 0;
  if (patterned) {
    CalculatePatterned();
  } else {
    CalculatePlain();
  }
  MetresRequired.SetNumber(TotalInches.Number() / kMetreInches, Mask::k0_00);
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
  PatternsPerDrop.SetNumber((FinishedLengthIns.Number() + HemAllowanceIns.Number()) /
                            PatternRepeatIns.Number());
  PatternsPerDrop.SetText(RoundUpCount(PatternsPerDrop.text()));
  CutLengthIns.SetNumber(PatternRepeatIns.Number() * PatternsPerDrop.Number());
  MirrorToCm(CutLengthIns, CutLengthCm);
  if (UnitMm.on()) CutLengthCm.SetNumber(CutLengthCm.Number() * 10);
  TotalInches.SetNumber(NumberOfDrops.Number() * CutLengthIns.Number());
}

// Unlike the cut of patterned fabric this one is shown in centimetres whatever the unit.
void MainCWizard::CalculatePlain() {
  PatternsPerDrop.SetNumber(FinishedLengthIns.Number() + HemAllowanceIns.Number());
  TotalInches.SetNumber(NumberOfDrops.Number() * PatternsPerDrop.Number());
  CutLengthIns.SetNumber(FinishedLengthIns.Number() + HemAllowanceIns.Number());
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

// A press that does nothing leaves the unit chosen that the boxes show.
void MainCWizard::KeepUnit() { (UnitLabel[0].caption() == kMillimetres ? UnitMm : UnitCms).Set(true); }

void MainCWizard::ShowCentimetres() {
  if (AnyMeasureEmpty()) return KeepUnit();
  SetUnitLabels("Cms");
  for (const MeasurePair& pair : kMeasurePairs) MirrorToCm(this->*pair.inches, this->*pair.centimetres);
  Calculate();
}

void MainCWizard::ShowMillimetres() {
  if (AnyMeasureEmpty()) return KeepUnit();
  SetUnitLabels(kMillimetres);
  for (const MeasurePair& pair : kMeasurePairs) {
    TextField& box = this->*pair.centimetres;
    MirrorToCm(this->*pair.inches, box);
    box.SetNumber(box.Number() * 10);
  }
  CutLengthCm.SetNumber(CutLengthCm.Number() * 10);
}

void MainCWizard::SetUnitLabels(std::string_view unit) {
  for (Label& label : UnitLabel) label.SetCaption(unit);
}

}  // namespace tarvane::curtain_wizard
