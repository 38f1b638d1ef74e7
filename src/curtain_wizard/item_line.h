#pragma once

#include "screen/grid.h"

namespace tarvane::curtain_wizard {

class MainCWizard;

// The six fields of a room's line for an item that is put in anew or changed, with the long description: what
// follows the line number in the room's grid.
HeldGrid::Row UpdatedItemLine(MainCWizard& wizard);

}  // namespace tarvane::curtain_wizard
