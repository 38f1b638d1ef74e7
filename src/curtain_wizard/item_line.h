#pragma once

#include <cstddef>

#include "screen/field.h"
#include "screen/grid.h"

namespace tarvane::curtain_wizard {

class MainCWizard;

// The room that a field tells, as an index from 0. Faults where it is no room of the job.
std::size_t RoomOf(const TextField& room_index);

// The six fields of a room's line for an item that is put in anew or changed, with the long description: what
// follows the line number in the room's grid.
HeldGrid::Row UpdatedItemLine(MainCWizard& wizard);

}  // namespace tarvane::curtain_wizard
