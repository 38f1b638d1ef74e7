#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screen/kinds.h"
#include "screen/screen.h"
#include "script/script_error.h"
#include "script/script_line.h"

namespace tarvane::script {

// The controls that an address means, the likeliest first; never empty. `open`: the open screens, the one on
// top last. ScriptError with the nearest name where there is none.
std::vector<Control*> FindControls(const Argument& address, const std::vector<Screen*>& open);

// "a field", "a button": what a control is, for messages.
std::string_view KindOf(const Control& control);

// "TrackWidthIns on MainCWizard".
std::string Place(const Argument& address, const Control& control);

// "Command1" and "Command1[2]".
std::string FullName(const Control& control);

// The one of `names` that has the fewest letters different, case aside; "" where there are none.
std::string Nearest(std::string_view name, const std::vector<std::string>& names);

// The text without ampersands and outer blanks.
std::string BareCaption(std::string_view caption);

// The control as one of `Kind`; ScriptError where the address means no such control.
template <typename Kind>
Kind& FindKind(const Argument& address, const std::vector<Screen*>& open, std::string_view wanted) {
  const std::vector<Control*> found = FindControls(address, open);
  for (Control* control : found) {
    if (auto* of_kind = As<Kind>(*control)) return *of_kind;
  }
  throw ScriptError(Place(address, *found.front()) + " is " + std::string(KindOf(*found.front())) + ", not " +
                    std::string(wanted));
}

}  // namespace tarvane::script
