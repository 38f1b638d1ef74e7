#pragma once

#include "desktop/builders.h"

namespace tarvane {

// Lays the pieces one under the other into the form's dialog. Escape presses `escape`, if one is given.
void FillDialog(Form& form, const Pieces& pieces, Button* escape = nullptr);

}  // namespace tarvane
