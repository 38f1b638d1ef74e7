#include "text_number/currency.h"

#include <charconv>

#include "text/fault.h"
#include "text_number/decimal.h"

namespace tarvane {
namespace {

constexpr int kPlaces = 4;
// The digits of the largest amount.
constexpr std::int64_t kMostDigits = 19;

}  // namespace

Currency Currency::FromText(std::string_view text) {
  Decimal number;
  if (!ReadWholeDecimal(text, number)) throw Fault(NotANumber(text));
  number.Round(kPlaces, Ties::kToEven);
  number.exponent += kPlaces;
  std::int64_t amount = 0;
  if (number.exponent <= kMostDigits) {
    char digits[kMaxPlainText];
    const char* const end = WritePlain(number, 0, digits);
    if (std::from_chars(digits, end, amount).ec == std::errc()) return Currency(amount);
  }
  throw Fault(Quoted(text) + " is too large an amount.");
}

std::string Currency::ToText() const {
  Decimal number;
  char digits[kMostDigits + 1];
  const char* const end = std::to_chars(digits, digits + sizeof digits, ten_thousandths_).ptr;
  ReadDecimal({digits, static_cast<std::size_t>(end - digits)}, number);
  number.TrimTrailingZeros();
  number.exponent -= kPlaces;
  return PlainText(number);
}

Currency Currency::operator+(Currency other) const {
  std::int64_t sum = 0;
  if (__builtin_add_overflow(ten_thousandths_, other.ten_thousandths_, &sum)) {
    throw Fault("The sum of " + ToText() + " and " + other.ToText() + " is too large an amount.");
  }
  return Currency(sum);
}

Currency Currency::operator-(Currency other) const {
  std::int64_t difference = 0;
  if (__builtin_sub_overflow(ten_thousandths_, other.ten_thousandths_, &difference)) {
    throw Fault("The difference of " + ToText() + " and " + other.ToText() + " is too large an amount.");
  }
  return Currency(difference);
}

}  // namespace tarvane
