#pragma once

#include <QIcon>
#include <string_view>

namespace tarvane::desktop {

// An icon drawn by code in the colours of the palette. Names are those of the toolbar's buttons, "New
// Record", "Payment" and so on, "Previous" and "Next", and those of the rich text screen's tools; any other
// name gives an empty icon.
QIcon MakeIcon(std::string_view name);

// The program's own, in colours that stand out on any ground.
QIcon WindowIcon();

}  // namespace tarvane::desktop
