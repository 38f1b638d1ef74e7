#pragma once

#include "desktop/builders.h"

namespace tarvane::desktop {

// Lays the pieces one under the other into the form's dialog. Escape presses `escape`, if one is given.
void FillDialog(Form& form, const Pieces& pieces, Button* escape = nullptr);

// The button or menu entry does what the window's own close button does, which asks for what isn't saved.
void ClosesWindow(Form& form, const Button& button);

// Why a button or menu entry is off, as its tooltip while it is.
void SayWhyOff(Form& form, const Control& control, const char* why);

}  // namespace tarvane::desktop
