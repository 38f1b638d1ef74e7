// The screens from which the wizard takes what it doesn't ask for itself. What they hand over is in the
// fields before the actions run that follow the return (Activate).
#include "catalogues/products.h"
#include "curtain_wizard/pleats.h"
#include "curtain_wizard/pricing.h"
#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {

void MainCWizard::HookPickers() {
  CmdSelect.OnClicked([this] { SelectTemplate(); });
  CmdGetFabricFromDatabase.OnClicked([this] { GetFabric(); });
  CmdGobletWizard.OnClicked([this] { SpacePleats(); });
}

// Where something was taken the worker goes on behind it.
void MainCWizard::SelectTemplate() {
  FrmPopUp1 prices(host(), shop_, *this);
  ShowModal(prices);
  if (!prices.used()) return;
  if (step_ != 0) return SetFocus(CmdNext);
  SetFocus(TrackWidthIns.enabled() ? TrackWidthIns : TrackWidthCm);
}

void MainCWizard::SpacePleats() {
  FrmPleats pleats(host(), *this);
  ShowModal(pleats);
  if (pleats.used()) SetFocus(FabricWidthIns.enabled() ? FabricWidthIns : FabricWidthCm);
}

void MainCWizard::GetFabric() {
  fabric_picked_ = false;
  catalogues::FrmFabricDatabase2 products(host(), shop_, *job_);
  products.ForCurtainWizard([this](std::string_view text, std::string_view price) {
    PickedFabric.SetText(text);
    PickedPrice.SetText(price);
    fabric_picked_ = true;
  });
  picking_fabric_ = true;
  try {
    ShowModal(products);
  } catch (...) {
    picking_fabric_ = false;
    throw;
  }
  if (fabric_picked_) SetFocus(FabricMetres);
}

// Also where nothing was picked: then once more what was picked last, or nothing.
void MainCWizard::TakeFabric() {
  picking_fabric_ = false;
  FabricName.SetText(PickedFabric.text());
  FabricPrice.SetText(PickedPrice.text());
}

}  // namespace tarvane::curtain_wizard
