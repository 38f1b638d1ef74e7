#include "setup/sample_wizard.h"

#include <string>
#include <string_view>

#include "curtain_wizard/wizard.h"
#include "screen/kinds.h"
#include "setup/sample_tables.h"
#include "setup/sample_typing.h"
#include "text/fault.h"

namespace tarvane::setup {

namespace {

void Tick(curtain_wizard::MainCWizard& wizard, std::string_view name) {
  Control* const control = wizard.Find(name);
  auto* const box = control == nullptr ? nullptr : As<TickBox>(*control);
  if (box == nullptr) throw Fault("The wizard has no box " + std::string(name) + ".");
  box->UserSet(true);
}

void EnterMeasurements(curtain_wizard::MainCWizard& wizard, const SampleWindow& window, int track) {
  wizard.TxtDescription.UserType(window.description);
  Pick(wizard.CboCurtainStyle, window.style);
  wizard.InputInInches.UserSet(window.inches);
  if (window.inches) {
    Type(wizard.TrackWidthIns, std::to_string(track));
    Type(wizard.FabricWidthIns, window.fabric_width);
    Type(wizard.Fullness, window.fullness);
    Type(wizard.FinishedLengthIns, window.length);
    Type(wizard.PatternRepeatIns, window.repeat);
  } else {
    Type(wizard.TrackWidthCm, std::to_string(track));
    Type(wizard.FabricWidthCm, window.fabric_width);
    Type(wizard.FullnessMirror, window.fullness);
    Type(wizard.FinishedLengthCm, window.length);
    Type(wizard.PatternRepeatCm, window.repeat);
  }
  wizard.AutoRoundup.UserSet(window.round_up);
  if (!window.auto_measure.empty()) Tick(wizard, window.auto_measure);
}

void EnterTape(curtain_wizard::MainCWizard& wizard, const SampleWindow& window) {
  Type(wizard.TapePrice, window.tape_price);
  if (window.tie_backs.size.empty()) return;
  wizard.TieBacksNeeded.UserSet(true);
  Pick(wizard.CboTieBacks, window.tie_backs.size);
  Pick(wizard.TieBackStyle, window.tie_backs.style);
  Type(wizard.TxtTieBacksUnitPrice, window.tie_backs.price);
}

void EnterLining(curtain_wizard::MainCWizard& wizard, const SampleWindow& window) {
  wizard.LiningByWidths.UserSet(window.lining_by_metres);
  if (!window.lining.name.empty()) {
    wizard.LiningNeeded.UserSet(true);
    Type(wizard.TxtLiningName, window.lining.name);
    Type(wizard.LiningPrice, window.lining.price);
  }
  if (!window.interlining.name.empty()) {
    wizard.InterliningNeeded.UserSet(true);
    Type(wizard.TxtInterliningName, window.interlining.name);
    Type(wizard.InterliningPrice, window.interlining.price);
  }
}

void EnterTrim(curtain_wizard::MainCWizard& wizard, const SampleTrim& trim) {
  if (trim.kind.empty()) {
    wizard.TrimName.SetText("");
    return;
  }
  wizard.AddTrims.UserSet(true);
  Pick(wizard.TrimKind, trim.kind);
  Pick(wizard.CboTrims, trim.description);
  Type(wizard.TrimName, trim.name);
  if (trim.kind == "Border") Type(wizard.TxtBorderCutSize, trim.border_size);
  Tick(wizard, trim.placement);
  wizard.TrimByWidths.UserSet(trim.by_widths);
  wizard.CalculateTrims.UserPress();
  Type(wizard.TrimPrice, trim.price);
}

void EnterLabour(curtain_wizard::MainCWizard& wizard, const SampleWindow& window) {
  Type(wizard.LabourPrice, window.labour_price);
  Type(wizard.TieBackLabour, window.tie_back_labour);
  if (window.extra_labour_text.empty()) return;
  Type(wizard.ExtraLabourText, window.extra_labour_text);
  Type(wizard.ExtraLabour, window.extra_labour);
}

}  // namespace

void EnterWindow(curtain_wizard::MainCWizard& wizard, const SampleWindow& window, int track) {
  EnterMeasurements(wizard, window, track);
  wizard.CmdNext.UserPress();
  Type(wizard.FabricName, window.fabric);
  Type(wizard.FabricPrice, window.fabric_price);
  wizard.CmdNext.UserPress();
  EnterTape(wizard, window);
  wizard.CmdNext.UserPress();
  EnterLining(wizard, window);
  wizard.CmdNext.UserPress();
  EnterTrim(wizard, window.trim);
  wizard.CmdNext.UserPress();
  EnterLabour(wizard, window);
  wizard.CmdNext.UserPress();
  Type(wizard.TxtVatRate, window.vat_rate);
  wizard.CmdGetInfo.UserPress();
  wizard.CmdFinishTwo.UserPress();
  if (!wizard.is_closed())
    throw Fault("The item \"" + std::string(window.description) + "\" cannot be saved.");
}

}  // namespace tarvane::setup
