#include "pdf/line_buffer.h"

#include <cmath>
#include <cstdint>

namespace tarvane::pdf {

void AppendFixed(std::string& out, double value, Mask mask) {
  static constexpr int kScales[] = {1, 10, 100, 1000};
  static constexpr double kLargest = 1e9;
  static constexpr double kNearHalf = 1e-4;
  const int places = static_cast<int>(mask);
  const double scaled = std::abs(value) * kScales[places];
  // Only close to a half does the decimal text decide otherwise than the binary number.
  if (!(scaled < kLargest) || std::abs(scaled - std::floor(scaled) - 0.5) < kNearHalf) {
    out += FormatNumber(value, mask);
    return;
  }
  auto rest = static_cast<uint64_t>(scaled + 0.5);
  char digits[24];
  char* const end = digits + sizeof digits;
  char* at = end;
  const bool negative = value < 0 && rest != 0;
  for (int place = 0; place < places; ++place, rest /= 10) *--at = static_cast<char>('0' + rest % 10);
  if (places > 0) *--at = '.';
  do {
    *--at = static_cast<char>('0' + rest % 10);
    rest /= 10;
  } while (rest != 0);
  if (negative) *--at = '-';
  out.append(at, end);
}

}  // namespace tarvane::pdf
