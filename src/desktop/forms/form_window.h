#pragma once

#include <QSize>

#include "desktop/builders.h"

namespace tarvane::desktop {

// Lays the pieces one under the other into the form's dialog. Escape presses `escape`, if one is given.
void FillDialog(Form& form, const Pieces& pieces, Button* escape = nullptr);

// The same with a head and a foot that stay in view: only what is between them scrolls, unless the window is
// too low for that. The head may be empty. The window comes as large as its pieces, but not smaller than
// `usual`.
struct Framed {
  Piece head;
  Pieces middle;
  Pieces foot;  // the buttons, flowing
};
void FillDialog(Form& form, const Framed& pieces, Button* escape, QSize usual);

// The button or menu entry does what the window's own close button does, which asks for what isn't saved.
void ClosesWindow(Form& form, const Button& button);

// Why a button or menu entry is off, as its tooltip while it is.
void SayWhyOff(Form& form, const Control& control, const char* why);

}  // namespace tarvane::desktop
