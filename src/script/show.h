#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screen/control.h"

namespace tarvane {

// What a control holds, without quotes: a field's text, "on" or "off", a list's selected entry, a tab's or
// label's caption, a calendar's day as 2026-12-24. A grid has none: "".
std::string ValueOf(const Control& control);

// The same in the form that it is printed in: quoted, on and off apart.
std::string PrintedValueOf(const Control& control);

// The lines of a transcript that show the control under `address`.
std::vector<std::string> Shown(std::string_view address, const Control& control);

}  // namespace tarvane
