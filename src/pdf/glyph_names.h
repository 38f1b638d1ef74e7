#pragma once

#include <array>
#include <string_view>

namespace tarvane::pdf {

// The names that metric files have for the characters of WinAnsi, by code. Empty for a code that shows
// nothing.
extern const std::array<std::string_view, 256> kWinAnsiGlyphs;

}  // namespace tarvane::pdf
