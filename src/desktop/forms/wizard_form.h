#pragma once

#include <string>

#include "desktop/builders.h"

namespace tarvane::curtain_wizard {
class MainCWizard;
}

// Parts of the wizard's window beside its steps.
namespace tarvane::desktop {

// What an item that is edited was saved at, tax included, with two decimals; "" for a new one.
std::string SavedPrice(const curtain_wizard::MainCWizard& wizard);
// The total has been worked out; before that there is only what the parts come to.
bool TotalIsKnown(const curtain_wizard::MainCWizard& wizard);

// The one price in view: what an edited item was saved at until its steps have been walked, what the parts
// come to so far, and in the end the total.
Piece CostTag(Builder& build, curtain_wizard::MainCWizard& wizard);
// "was 511.94, now 560.93" where the total isn't what the item was saved at; else nothing.
Piece PriceChange(Builder& build, curtain_wizard::MainCWizard& wizard);

// What the window does by itself, once all is built: where the focus goes, keys that captions don't name, the
// question before the preferences, the worker's own unit.
void AddWizardHabits(Form& form, curtain_wizard::MainCWizard& wizard);

}  // namespace tarvane::desktop
