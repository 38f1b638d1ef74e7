#pragma once

#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Decimal arithmetic on digit strings, as on paper: what the number functions are held against.
namespace tarvane::reference {

enum class Half { kAwayFromZero, kToEven };

// A finite `value` to 15 significant digits in plain decimals, with all their zeros.
std::string FifteenDigits(double value);

// `plain` (as FifteenDigits writes it) with `places` digits behind the point; zero has no sign.
std::string Round(const std::string& plain, int places, Half half);

// `plain` without the zeros that don't count; zero has no sign.
std::string Trimmed(std::string plain);

// A double of any bits but those of infinities and non-numbers.
double AnyDouble(std::mt19937_64& dice);

// A text of `whole` and `fraction` random digits (no point where `fraction` is 0), perhaps with a minus sign.
std::string AnyDigits(std::mt19937_64& dice, int whole, int fraction);

// The cases of a table "IN=OUT;IN=OUT".
std::vector<std::pair<std::string, std::string>> Cases(std::string_view table);

}  // namespace tarvane::reference
