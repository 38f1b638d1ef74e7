#include "text_number/decimal.h"

#include <algorithm>
#include <charconv>
#include <limits>

#include "text/utf8.h"

namespace tarvane {
namespace {

constexpr int kDoubleDigits = std::numeric_limits<double>::digits10;

const char* SkipBlanks(const char* at, const char* end) {
  while (at != end && IsBlank(*at)) ++at;
  return at;
}

// Reads a sign, if there is one, and the blanks around it.
const char* ReadSign(const char* at, const char* end, bool& negative) {
  at = SkipBlanks(at, end);
  negative = false;
  if (at == end || (*at != '-' && *at != '+')) return at;
  negative = *at == '-';
  return SkipBlanks(at + 1, end);
}

// Reads what stands behind an 'e'; gives null where that is no whole number.
const char* ReadExponent(const char* at, const char* end, std::int64_t& exponent) {
  bool negative = false;
  at = ReadSign(at, end, negative);
  if (at == end || !IsDigit(*at)) return nullptr;
  std::int64_t size = 0;
  for (; at != end && (IsDigit(*at) || IsBlank(*at)); ++at) {
    if (IsDigit(*at)) size = std::min(size * 10 + (*at - '0'), Decimal::kMaxExponent);
  }
  exponent += negative ? -size : size;
  return at;
}

}  // namespace

void Decimal::Append(char digit, bool behind_point) {
  if (count == 0 && digit == '0') {
    if (behind_point) --exponent;
    return;
  }
  if (!behind_point) ++exponent;
  if (count < kMaxDigits) {
    digits[count++] = digit;
  } else if (digit != '0' && digits[kMaxDigits - 1] == '0') {
    digits[kMaxDigits - 1] = '1';
  }
}

void Decimal::TrimTrailingZeros() {
  while (count > 0 && digits[count - 1] == '0') --count;
}

void Decimal::Round(int places, Ties ties) {
  const std::int64_t kept = exponent + places;
  if (kept < count) {
    const char* const cut = digits + std::max<std::int64_t>(kept, 0);
    bool up = kept >= 0 && *cut >= '5';
    if (up && *cut == '5' && ties == Ties::kToEven) {
      const bool exactly_half =
          std::all_of(cut + 1, static_cast<const char*>(digits) + count, [](char c) { return c == '0'; });
      const bool even = kept == 0 || (digits[kept - 1] - '0') % 2 == 0;
      up = !(exactly_half && even);
    }
    count = static_cast<int>(std::max<std::int64_t>(kept, 0));
    if (up) {
      while (count > 0 && digits[count - 1] == '9') --count;
      if (count > 0) {
        ++digits[count - 1];
      } else {
        digits[count++] = '1';
        ++exponent;
      }
    }
  }
  if (count == 0) {
    negative = false;
    exponent = 0;
  }
}

double Decimal::ToDouble() const {
  constexpr std::int64_t kBeyond = 400;
  double value = 0;
  if (count > 0 && exponent > kBeyond) {
    value = std::numeric_limits<double>::infinity();
  } else if (count > 0 && exponent > -kBeyond) {
    char text[kMaxDigits + 16] = {'.'};
    char* end = std::copy_n(digits, count, text + 1);
    *end++ = 'e';
    end = std::to_chars(end, text + sizeof text, exponent).ptr;
    const auto result = std::from_chars(text, end, value);
    // Out of range, the library leaves the value alone, whether it is too large or too small.
    if (result.ec != std::errc()) value = exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
  }
  return negative ? -value : value;
}

const char* ReadDecimal(std::string_view text, Decimal& out) {
  const char* const end = text.data() + text.size();
  const char* at = ReadSign(text.data(), end, out.negative);
  out.count = 0;
  out.exponent = 0;
  bool any = false;
  bool behind_point = false;
  for (; at != end; ++at) {
    if (IsDigit(*at)) {
      any = true;
      out.Append(*at, behind_point);
    } else if (*at == '.' && !behind_point) {
      behind_point = true;
    } else if (!IsBlank(*at)) {
      break;
    }
  }
  if (!any) return nullptr;
  if (at == end || (*at != 'e' && *at != 'E')) return at;
  const char* const behind_exponent = ReadExponent(at + 1, end, out.exponent);
  return behind_exponent == nullptr ? at : behind_exponent;
}

bool ReadWholeDecimal(std::string_view text, Decimal& out) {
  const char* const stop = ReadDecimal(text, out);
  return stop != nullptr && stop == text.data() + text.size();
}

void ReadDouble(double value, Decimal& out) {
  char text[32];
  const char* const end =
      std::to_chars(text, text + sizeof text, value, std::chars_format::scientific, kDoubleDigits - 1).ptr;
  ReadDecimal({text, static_cast<std::size_t>(end - text)}, out);
  out.TrimTrailingZeros();
}

char* WritePlain(const Decimal& number, int places, char* to) {
  const int exponent = number.count == 0 ? 0 : static_cast<int>(number.exponent);
  if (number.negative && number.count > 0) *to++ = '-';
  const int whole = std::clamp(exponent, 0, number.count);
  if (exponent <= 0) *to++ = '0';
  to = std::copy_n(number.digits, whole, to);
  to = std::fill_n(to, std::max(exponent - whole, 0), '0');
  if (places == 0) return to;
  *to++ = '.';
  const int leading = std::clamp(-exponent, 0, places);
  const int rest = std::min(number.count - whole, places - leading);
  to = std::fill_n(to, leading, '0');
  to = std::copy_n(number.digits + whole, rest, to);
  return std::fill_n(to, places - leading - rest, '0');
}

std::string PlainText(const Decimal& number) {
  const std::int64_t places = number.count == 0 ? 0 : number.count - number.exponent;
  char text[kMaxPlainText];
  return std::string(text, WritePlain(number, static_cast<int>(std::max<std::int64_t>(places, 0)), text));
}

std::string Quoted(std::string_view text) {
  constexpr std::size_t kLongest = 80;
  if (text.size() <= kLongest) return '"' + std::string(text) + '"';
  return '"' + std::string(FirstBytes(text, kLongest)) + "...\"";
}

std::string NotANumber(std::string_view text) { return Quoted(text) + " is not a number."; }

}  // namespace tarvane
