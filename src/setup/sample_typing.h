#pragma once

#include <string_view>

#include "screen/field.h"

// How the sample shop's worker uses fields. What a worker couldn't do is a Fault.
namespace tarvane::setup {

// Types the text and presses Enter.
void Type(TextField& field, std::string_view text);
void Pick(DropDownList& list, std::string_view entry);

}  // namespace tarvane::setup
