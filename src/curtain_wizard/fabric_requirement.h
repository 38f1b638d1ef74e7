#pragma once

#include <string>
#include <string_view>

#include "screen/field.h"

// The numbers of the curtain wizard: texts in, texts out.
namespace tarvane::curtain_wizard {

// A metre, in inches, throughout the wizard. The trade's figure, not the exact one.
inline constexpr double kMetreInches = 39.5;

// Widths and patterns to whole ones. The first of the three decimals decides: from 5 on the number is rounded
// half to even (so that 2.5 is 2), below that it goes up; a number whose three decimals are all 0 keeps its
// text.
std::string RoundUpCount(std::string_view text);

// Metres to whole ones: the same, but a number without decimals goes up as well, on each call. An empty text
// counts as 0.
std::string RoundUpMetres(std::string_view text);

// 15 significant digits, no further rounding. Both fault where the text isn't a number, or too large a one.
std::string InchesToCm(std::string_view inches);
std::string CmToInches(std::string_view centimetres);

// The box in inches into its mirror; a text that is no number leaves the mirror as it was.
void MirrorToCm(const TextField& inches, TextField& centimetres);

// The double that is left of `value` after it was held as text.
double ThroughText(double value);

}  // namespace tarvane::curtain_wizard
