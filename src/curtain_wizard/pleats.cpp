#include "curtain_wizard/pleats.h"

#include <cmath>

#include "curtain_wizard/fabric_requirement.h"
#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {
namespace {

constexpr double kAtEachEnd = 2;  // inches, both taken off the half track

// A pleat that can be chosen. All are made of 2.5 times the track: they differ in words.
struct Pleat {
  OptionButton FrmPleats::*option;
  std::string_view label;         // of the result
  std::string_view auto_measure;  // caption of the wizard's option
};

constexpr Pleat kPleatKinds[] = {
    {&FrmPleats::PleatGoblet, "Goblets = ", "Goblet - Track X by 2.5"},
    {&FrmPleats::PleatFrench, "French = ", "French - Track X by 2.5"},
    {&FrmPleats::PleatPinch, "Pinch = ", "Pinch - Track X by 2.5"},
};

const Pleat* Chosen(const FrmPleats& screen) {
  for (const Pleat& pleat : kPleatKinds) {
    if ((screen.*pleat.option).on()) return &pleat;
  }
  return nullptr;
}

}  // namespace

std::string PleatLayout::Text(std::string_view label, std::string_view pleats) const {
  const std::string each = NumberText(ParseLeading(size));
  const std::string spaces = NumberText(ParseLeading(count) - 1);
  return std::string(label) + std::string(pleats) + " @ " + each + " ins - Spaces = " + spaces + " @ " +
         each + " ins - with 2 ins at each side.";
}

PleatLayout LayOutPleats(std::string_view track, std::string_view pleats, std::string_view earlier_size) {
  double half = 0;
  IgnoreFaults([&] { half = ThroughText(ParseStrict(track) / 2); });
  const double run = ThroughText(half - kAtEachEnd);
  double size = run / ParseLeading(pleats);
  if (!std::isfinite(size)) size = ParseLeading(earlier_size);
  double count = run / size;
  if (!std::isfinite(count)) count = 0;
  return {FormatNumber(size, Mask::k0_0), FormatNumber(count, Mask::k0_0)};
}

FrmPleats::FrmPleats(Host& host, MainCWizard& wizard) : Screen(host, std::string(kName)), wizard_(&wizard) {
  SetTitle("Working out Goblet and Box Pleats etc");
  for (TextField* box : {&PleatTrack, &PleatCount}) box->SetSelectAllOnFocus();
  for (const Pleat& pleat : kPleatKinds)
    (this->*pleat.option).OnClicked([this] { CmdUse.SetEnabled(false); });
  PleatText.SetReadOnly(true);
  CmdUse.SetEnabled(false);
  CmdCalculate.OnClicked([this] { Calculate(); });
  CmdUse.OnClicked([this] { Use(); });
  CmdCancel.OnClicked([this] { Close(); });
}

void FrmPleats::Calculate() {
  const Pleat* const pleat = Chosen(*this);
  if (pleat == nullptr) {
    Message("Please select a Curtain Pleat", kProgramTitle, Icon::kInformation);
    return;
  }
  const PleatLayout layout = LayOutPleats(PleatTrack.text(), PleatCount.text(), size_);
  size_ = layout.size;
  PleatText.SetText(layout.Text(pleat->label, PleatCount.text()));
  CmdUse.SetEnabled(true);
  SetFocus(CmdUse);
}

void FrmPleats::Use() {
  const Pleat* const pleat = Chosen(*this);
  if (pleat == nullptr) return;
  wizard_->CboCurtainStyle.SetText(PleatText.text());
  wizard_->TrackWidthIns.SetText(PleatTrack.text());
  // As though it had been typed there.
  MirrorToCm(wizard_->TrackWidthIns, wizard_->TrackWidthCm);
  wizard_->AutoMeasureGoblet.SetCaption(pleat->auto_measure);
  wizard_->AutoMeasureGoblet.Set(true);
  wizard_->AutoMeasureGoblet.RunClick();
  used_ = true;
  Close();
}

}  // namespace tarvane::curtain_wizard
