#include "text_number/text_number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "text/fault.h"
#include "text_number/decimal.h"

namespace tarvane {
namespace {

constexpr int kDoubleDigits = std::numeric_limits<double>::digits10;

double Clamped(double value) {
  constexpr double kLargest = std::numeric_limits<double>::max();
  return std::clamp(value, -kLargest, kLargest);
}

// Brings a number just read to the digits that its double's text has. False where no double holds it.
bool ShortenToDouble(Decimal& number) {
  // Up to 15 digits a double keeps them all, well within its range.
  constexpr std::int64_t kSafeExponent = 300;
  if (number.count <= kDoubleDigits && std::abs(number.exponent) < kSafeExponent) return true;
  const double value = number.ToDouble();
  if (!std::isfinite(value)) return false;
  ReadDouble(value, number);
  return true;
}

std::string Masked(Decimal& number, Mask mask) {
  const int places = static_cast<int>(mask);
  number.Round(places, Ties::kAwayFromZero);
  char text[kMaxPlainText];
  return std::string(text, WritePlain(number, places, text));
}

}  // namespace

double ParseLeading(std::string_view text) noexcept {
  const char* const end = text.data() + text.size();
  const char* at = text.data();
  // Most texts are a number and nothing else; the library reads those. It would also take "inf" and "nan".
  const char* const first = at != end && *at == '-' ? at + 1 : at;
  if (first != end && IsDigit(*first)) {
    double value = 0;
    const auto result = std::from_chars(at, end, value);
    const char* const stop = result.ptr;
    const bool complete = stop == end || (!IsBlank(*stop) && *stop != 'e' && *stop != 'E');
    if (result.ec == std::errc() && complete) return value;
  }
  Decimal number;
  return ReadDecimal(text, number) == nullptr ? 0 : Clamped(number.ToDouble());
}

double ParseStrict(std::string_view text) {
  Decimal number;
  if (!ReadWholeDecimal(text, number)) throw Fault(NotANumber(text));
  const double value = number.ToDouble();
  if (!std::isfinite(value)) throw Fault(Quoted(text) + " is too large a number.");
  return value;
}

bool IsNumber(std::string_view text) noexcept {
  Decimal number;
  return ReadWholeDecimal(text, number) && std::isfinite(number.ToDouble());
}

std::string NumberText(double value) {
  if (!std::isfinite(value) || value == 0) return "0";
  char text[32];
  char* const end =
      std::to_chars(text, text + sizeof text, value, std::chars_format::general, kDoubleDigits).ptr;
  if (std::find(text, end, 'e') == end) return std::string(text, end);
  Decimal number;
  ReadDecimal({text, static_cast<std::size_t>(end - text)}, number);
  return PlainText(number);
}

std::string Format(std::string_view text, Mask mask) {
  Decimal number;
  if (!ReadWholeDecimal(text, number) || !ShortenToDouble(number)) return std::string(text);
  return Masked(number, mask);
}

std::string FormatNumber(double value, Mask mask) {
  Decimal number;
  if (std::isfinite(value)) ReadDouble(value, number);
  return Masked(number, mask);
}

double RoundToWhole(std::string_view text) {
  Decimal number;
  if (ReadDecimal(text, number) == nullptr) return 0;
  if (!ShortenToDouble(number)) return Clamped(number.ToDouble());
  number.Round(0, Ties::kToEven);
  return Clamped(number.ToDouble());
}

}  // namespace tarvane
