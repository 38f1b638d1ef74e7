#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "screen/control.h"

namespace tarvane::script {

// What a control holds, without quotes: a field's text, "on" or "off", a list's selected entry, a tab's or
// label's caption, a calendar's day as 2026-12-24. A grid has none: "".
std::string ValueOf(const Control& control);

// The same in the form that it is printed in: quoted, on and off apart.
std::string PrintedValueOf(const Control& control);

// Tells the lines of a transcript that show the control under `address`, each as soon as it is known. Faults
// where the rows of a grid can't be read; those before have been told.
void TellControl(std::string_view address, const Control& control,
                 const std::function<void(std::string_view line)>& tell);

}  // namespace tarvane::script
