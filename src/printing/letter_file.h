#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "screen/screen.h"
#include "shop/shop.h"

namespace tarvane::printing {

// The form letter of that name in the program folder, as raw RTF. Nothing where it isn't there, can't be read
// or is no rich text; the worker has been told then, and what helps.
std::optional<std::string> ReadLetterFile(Screen& screen, const Shop& shop, std::string_view name);

}  // namespace tarvane::printing
