#include "text_number/decimal_reference.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sstream>

namespace tarvane::reference {
namespace {

bool IsZero(const std::string& plain) { return plain.find_first_not_of("-0.") == std::string::npos; }

// The digit string one larger.
std::string Successor(std::string digits) {
  for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
    if (*digit != '9') {
      ++*digit;
      return digits;
    }
    *digit = '0';
  }
  digits.insert(0, 1, '1');
  return digits;
}

std::string Signed(std::string digits, bool negative) {
  if (negative) digits.insert(0, 1, '-');
  return digits;
}

}  // namespace

std::string FifteenDigits(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.14e", std::abs(value));
  const std::string scientific = text;
  std::string digits = scientific.substr(0, 1) + scientific.substr(2, 14);
  const int shift = std::atoi(scientific.c_str() + scientific.find('e') + 1);
  if (shift < 0) digits.insert(0, static_cast<std::size_t>(-shift), '0');
  if (shift > 14) digits.append(static_cast<std::size_t>(shift - 14), '0');
  const auto whole = static_cast<std::size_t>(shift < 0 ? 1 : shift + 1);
  if (whole < digits.size()) digits.insert(whole, 1, '.');
  return Signed(digits, std::signbit(value));
}

std::string Round(const std::string& plain, int places, Half half) {
  const bool negative = plain[0] == '-';
  const auto point = plain.find('.');
  const auto count = static_cast<std::size_t>(places);
  std::string whole = plain.substr(negative, point == std::string::npos ? point : point - negative);
  std::string fraction = point == std::string::npos ? "" : plain.substr(point + 1);
  if (fraction.size() < count) fraction.append(count - fraction.size(), '0');
  const std::string rest = fraction.substr(count);
  std::string digits = whole + fraction.substr(0, count);
  std::string middle(rest.size(), '0');
  if (!rest.empty()) middle[0] = '5';
  const bool odd = (digits.back() - '0') % 2 != 0;
  // Digit strings of one length compare as their numbers do.
  if (rest > middle || (!rest.empty() && rest == middle && (half == Half::kAwayFromZero || odd))) {
    digits = Successor(digits);
  }
  if (places > 0) digits.insert(digits.size() - count, 1, '.');
  return Signed(digits, negative && !IsZero(digits));
}

std::string Trimmed(std::string plain) {
  if (IsZero(plain)) return "0";
  const std::size_t sign = plain[0] == '-';
  while (plain[sign] == '0' && plain[sign + 1] != '.' && plain.size() > sign + 1) plain.erase(sign, 1);
  if (plain.find('.') != std::string::npos) {
    while (plain.back() == '0') plain.pop_back();
    if (plain.back() == '.') plain.pop_back();
  }
  return plain;
}

double AnyDouble(std::mt19937_64& dice) {
  while (true) {
    const auto value = std::bit_cast<double>(dice());
    if (std::isfinite(value)) return value;
  }
}

std::string AnyDigits(std::mt19937_64& dice, int whole, int fraction) {
  std::string text = dice() % 2 != 0 ? "-" : "";
  for (int i = 0; i < whole; ++i) text += static_cast<char>('0' + dice() % 10);
  if (fraction > 0) text += '.';
  for (int i = 0; i < fraction; ++i) text += static_cast<char>('0' + dice() % 10);
  return text;
}

std::vector<std::pair<std::string, std::string>> Cases(std::string_view table) {
  std::vector<std::pair<std::string, std::string>> cases;
  std::istringstream parts{std::string(table)};
  for (std::string part; std::getline(parts, part, ';');) {
    const std::size_t sign = part.find('=');
    cases.emplace_back(part.substr(0, sign), part.substr(sign + 1));
  }
  return cases;
}

}  // namespace tarvane::reference
