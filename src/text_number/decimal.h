#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The digits of a number held as text. Behind text_number.h and currency.h; nobody else needs it.
namespace tarvane {

enum class Ties { kAwayFromZero, kToEven };

// 0.d1d2d3... times ten to `exponent`; d1 is never '0', and a count of 0 is zero.
struct Decimal {
  // No double lies, and no two doubles meet, at a number of more digits; further ones only tell "a bit more".
  static constexpr int kMaxDigits = 800;
  // Exponents stop here; far beyond any double, and sums of two of them are still whole.
  static constexpr std::int64_t kMaxExponent = 1'000'000'000'000;

  bool negative = false;
  int count = 0;
  std::int64_t exponent = 0;
  char digits[kMaxDigits];  // NOLINT: left unset, the first `count` hold

  // Adds the next digit of a number that is read from the left.
  void Append(char digit, bool behind_point);
  void TrimTrailingZeros();
  // Rounds to `places` digits behind the point. A result of zero loses its sign.
  void Round(int places, Ties ties);
  // The nearest double; an infinity where the number is too large for one.
  double ToDouble() const;
};

// Reads the leading number of `text` into `out`, blanks (space, tab, line ends) skipped wherever they stand.
// Gives the place where reading stopped, which is behind blanks that follow; null where there is no number.
const char* ReadDecimal(std::string_view text, Decimal& out);

// True where the whole of `text` is a number.
bool ReadWholeDecimal(std::string_view text, Decimal& out);

// The at most 15 significant digits of a finite `value`, without trailing zeros.
void ReadDouble(double value, Decimal& out);

// Writes `number`, of an exponent within a double's range, with exactly `places` digits behind the point, at
// least one before it, and returns the end. It must have no more digits behind the point than that.
inline constexpr int kMaxPlainText = 800;
char* WritePlain(const Decimal& number, int places, char* to);

// The same with as many places as it takes.
std::string PlainText(const Decimal& number);

// `text` as a message shows it, in quote marks: not endless, and not cut within a letter.
std::string Quoted(std::string_view text);
// What ParseStrict and its like say of a `text` that is not a number.
std::string NotANumber(std::string_view text);

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

}  // namespace tarvane
