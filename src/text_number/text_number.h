#pragma once

#include <string>
#include <string_view>

// Numbers held as decimal text. Nothing here looks at the locale: the decimal mark is a point.
namespace tarvane {

// The longest leading number of `text`; blanks are skipped wherever they stand, an exponent is read, and the
// first other character ends it. 0 for an empty text or one that starts with no number. Never faults.
double ParseLeading(std::string_view text) noexcept;

// The number that the whole of `text` is, blanks skipped. Faults for an empty text and for anything else.
double ParseStrict(std::string_view text);

// True where ParseStrict would not fault.
bool IsNumber(std::string_view text) noexcept;

// `value` in plain decimals (never an exponent) of at most 15 significant digits, without trailing zeros.
// A value that is no number or infinite gives "0".
std::string NumberText(double value);

// Fixed decimals, always with a digit before the point: "0", "0.0", "0.00", "0.000".
enum class Mask { k0 = 0, k0_0 = 1, k0_00 = 2, k0_000 = 3 };

// `text` with the decimals of `mask`, rounded half away from zero on its decimal value (the 15-digit text,
// not the binary double). A text that isn't a number is returned unchanged; so is an empty one.
std::string Format(std::string_view text, Mask mask);
inline std::string Format2(std::string_view text) { return Format(text, Mask::k0_00); }

// Format(NumberText(value), mask), without the detour.
std::string FormatNumber(double value, Mask mask);

// The leading number of `text` rounded to a whole number, half to even on its decimal value.
double RoundToWhole(std::string_view text);

}  // namespace tarvane
