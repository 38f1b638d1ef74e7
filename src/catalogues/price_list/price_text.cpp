#include "catalogues/price_list/price_text.h"

#include <algorithm>
#include <array>
#include <optional>

#include "text/fold.h"
#include "text/trim.h"
#include "text_number/text_number.h"

namespace tarvane::catalogues {

namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kNoNumber = "is no price";
constexpr std::string_view kNegative = "is below 0";
constexpr std::string_view kTooLarge = "is too large for a price";
constexpr std::string_view kTwoWays = "may be read in two ways";
constexpr std::size_t kMostPounds = 9;  // digits

constexpr std::array<std::string_view, 6> kCurrencies = {"\u00A3", "\u20AC", "$", "GBP", "EUR", "USD"};
// What also stands between thousands; all become blanks.
constexpr std::array<std::string_view, 5> kBlankMarks = {"\u00A0", "\u202F", "\u2009", "\u2019", "'"};

std::string WithPlainBlanks(std::string_view text) {
  const bool plain_already = std::all_of(
      text.begin(), text.end(), [](char c) { return c != '\'' && static_cast<signed char>(c) >= 0; });
  if (plain_already) return std::string(text);
  std::string plain;
  while (!text.empty()) {
    const auto mark = std::find_if(kBlankMarks.begin(), kBlankMarks.end(),
                                   [&](std::string_view each) { return text.starts_with(each); });
    plain += mark == kBlankMarks.end() ? text.front() : ' ';
    text.remove_prefix(mark == kBlankMarks.end() ? 1 : mark->size());
  }
  return plain;
}

// The amount without the one currency that stands before or behind it.
std::string_view WithoutCurrency(std::string_view text) {
  for (const std::string_view currency : kCurrencies) {
    if (text.size() < currency.size()) continue;
    if (EqualNames(text.substr(0, currency.size()), currency)) {
      return TrimSpaces(text.substr(currency.size()));
    }
    if (EqualNames(text.substr(text.size() - currency.size()), currency)) {
      return TrimSpaces(text.substr(0, text.size() - currency.size()));
    }
  }
  return text;
}

bool IsNegative(std::string_view amount) {
  return amount.starts_with('-') || amount.ends_with('-') || amount.starts_with("\u2212") ||
         (amount.starts_with('(') && amount.ends_with(')'));
}

// "1,234,567" with `mark` between the thousands: the digits alone; nothing where they stand otherwise.
std::optional<std::string> JoinThousands(std::string_view pounds, char mark) {
  std::string digits;
  bool first = true;
  for (;;) {
    const std::size_t end = std::min(pounds.find(mark), pounds.size());
    const std::string_view group = pounds.substr(0, end);
    const bool last = end == pounds.size();
    const bool alone = first && last;
    const bool sound = alone || (first ? !group.empty() && group.size() <= 3 : group.size() == 3);
    if (!sound || group.find_first_not_of(kDigits) != std::string_view::npos) return std::nullopt;
    digits += group;
    if (last) return digits;
    pounds.remove_prefix(end + 1);
    first = false;
  }
}

// The mark that stands before the pennies, 0 for none, '?' where that can't be told.
char FindDecimalMark(std::string_view amount) {
  const std::size_t point = amount.rfind('.');
  const std::size_t comma = amount.rfind(',');
  if (point != std::string_view::npos && comma != std::string_view::npos) return point > comma ? '.' : ',';
  const std::size_t at = std::min(point, comma);
  if (at == std::string_view::npos) return 0;
  if (amount.find(amount[at]) != at) return 0;
  const std::string_view before = amount.substr(0, at);
  const bool thousands = amount.size() - at - 1 == 3 && !before.empty() && before.size() <= 3 &&
                         !before.starts_with('0') && before.find(' ') == std::string_view::npos;
  return thousands ? '?' : amount[at];
}

DecimalMark MarkOf(char decimal, std::string_view amount) {
  if (decimal == '?') return DecimalMark::kNotKnown;
  if (decimal != 0) return decimal == '.' ? DecimalMark::kPoint : DecimalMark::kComma;
  // Two marks alike stand between thousands: the other one is for pennies.
  if (amount.find('.') != std::string_view::npos) return DecimalMark::kComma;
  return amount.find(',') != std::string_view::npos ? DecimalMark::kPoint : DecimalMark::kNotKnown;
}

ListPrice Rounded(const std::string& pounds, std::string_view pennies, DecimalMark mark) {
  if (pounds.size() > kMostPounds) return {"", kTooLarge, mark};
  return {Format2((pounds.empty() ? "0" : pounds) + "." + std::string(pennies.empty() ? "0" : pennies)), "",
          mark};
}

ListPrice ReadAmount(std::string_view amount, char decimal) {
  const DecimalMark mark = MarkOf(decimal, amount);
  const std::size_t at = decimal == 0 ? std::string_view::npos : amount.find(decimal);
  const std::string_view pounds = amount.substr(0, at);
  const std::string_view pennies = at == std::string_view::npos ? "" : amount.substr(at + 1);
  if (at != std::string_view::npos && pennies.empty()) return {"", kNoNumber, mark};
  if (pennies.find_first_not_of(kDigits) != std::string_view::npos) return {"", kNoNumber, mark};
  for (const char between : {' ', '.', ','}) {
    const auto digits = JoinThousands(pounds, between);
    if (digits) return Rounded(*digits, pennies, mark);
  }
  return {"", kNoNumber, mark};
}

ListPrice ReadNumber(std::string_view text) {
  const std::size_t point = text.find('.');
  return Rounded(std::string(text.substr(0, point)),
                 point == std::string_view::npos ? "" : text.substr(point + 1), DecimalMark::kNotKnown);
}

// "26.50": as nearly all prices are, and as they are stored.
bool IsStoredForm(std::string_view text) {
  if (text.size() < 4 || text.size() > kMostPounds + 3 || text[text.size() - 3] != '.') return false;
  const bool leading_zero = text.front() == '0' && text.size() > 4;
  const std::size_t other = text.find_first_not_of(kDigits);
  return !leading_zero && other == text.size() - 3 &&
         text.find_first_not_of(kDigits, other + 1) == std::string_view::npos;
}

}  // namespace

ListPrice ReadListPrice(std::string_view text, bool number, DecimalMark mark) {
  if (IsStoredForm(text)) {
    return {std::string(text), "", number ? DecimalMark::kNotKnown : DecimalMark::kPoint};
  }
  const std::string plain = WithPlainBlanks(text);
  std::string_view amount = TrimSpaces(plain);
  if (amount.empty()) return {};
  if (IsNegative(amount)) return {"", kNegative};
  amount = WithoutCurrency(amount);
  if (IsNegative(amount)) return {"", kNegative};
  if (number) return ReadNumber(amount);
  if (amount.find_first_of(kDigits) == std::string_view::npos) return {"", kNoNumber};
  const char decimal = FindDecimalMark(amount);
  if (decimal != '?') return ReadAmount(amount, decimal);
  if (mark == DecimalMark::kNotKnown) return {"", kTwoWays};
  const char known = mark == DecimalMark::kPoint ? '.' : ',';
  ListPrice read = ReadAmount(amount, amount.find(known) == std::string_view::npos ? '\0' : known);
  read.mark = DecimalMark::kNotKnown;
  return read;
}

}  // namespace tarvane::catalogues
