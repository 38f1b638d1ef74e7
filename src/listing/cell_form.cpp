#include "listing/cell_form.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "text/fold.h"
#include "text/trim.h"

namespace tarvane::listing {

namespace {

constexpr std::size_t kMostDigits = 15;       // that a sheet's number keeps
constexpr std::size_t kMostWholeDigits = 11;  // that it shows without an exponent

constexpr bool IsDigit(char byte) { return byte >= '0' && byte <= '9'; }
constexpr bool IsCapital(char byte) { return byte >= 'A' && byte <= 'Z'; }

std::size_t CountDigits(std::string_view text) {
  return static_cast<std::size_t>(std::ranges::find_if_not(text, IsDigit) - text.begin());
}

// The last word of a heading, where words begin with a capital or behind a blank or a sign; digits at its end
// don't count ("Email2").
std::string_view LastWord(std::string_view heading) {
  while (!heading.empty() && IsDigit(heading.back())) heading.remove_suffix(1);
  heading = TrimSpaces(heading);
  std::size_t begin = heading.size();
  const auto is_letter = [&](std::size_t at) {
    return IsCapital(heading[at]) || (heading[at] >= 'a' && heading[at] <= 'z');
  };
  while (begin > 0 && is_letter(begin - 1)) {
    --begin;
    // "ID" is one word, and so is "DocNo"'s "No".
    if (IsCapital(heading[begin]) && (begin == 0 || !IsCapital(heading[begin - 1]))) break;
  }
  return heading.substr(begin);
}

// A reader takes "_x0041_" for an A.
bool LooksMasked(std::string_view text) {
  constexpr std::size_t kLength = 7;
  const auto is_hex = [](char byte) {
    return IsDigit(byte) || (byte >= 'a' && byte <= 'f') || (byte >= 'A' && byte <= 'F');
  };
  return text.size() >= kLength && text.starts_with("_x") && text[kLength - 1] == '_' &&
         std::ranges::all_of(text.substr(2, 4), is_hex);
}

bool IsPlain(std::string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte >= 0x80 || byte == 0 || byte == '\r' || (byte == '_' && LooksMasked(text.substr(at)))) {
      return false;
    }
  }
  return true;
}

}  // namespace

SheetCell CellOf(std::string_view text, bool names_things) {
  using enum SheetCell::Kind;
  std::string_view digits = TrimSpaces(text);
  if (digits.empty()) return {};
  const SheetCell as_text{kText};
  if (names_things) return as_text;
  const std::string_view number = digits;
  if (digits.front() == '-') digits.remove_prefix(1);
  const std::size_t whole = CountDigits(digits);
  const bool leading_zero = whole > 1 && digits.front() == '0';
  if (leading_zero || whole > kMostWholeDigits) return as_text;
  digits.remove_prefix(whole);
  std::size_t decimals = 0;
  if (!digits.empty()) {
    if (digits.front() != '.') return as_text;
    digits.remove_prefix(1);
    decimals = CountDigits(digits);
    if (decimals == 0 || decimals < digits.size()) return as_text;
  }
  if (whole + decimals == 0 || whole + decimals > kMostDigits) return as_text;
  SheetCell cell{kNumber, 0, static_cast<int>(decimals)};
  std::from_chars(number.data(), number.data() + number.size(), cell.number);
  return cell;
}

bool NamesThings(std::string_view heading) {
  static constexpr std::array<std::string_view, 14> kWords = {
      "id",        "no",     "nr",  "number", "code", "barcode", "postcode",
      "telephone", "mobile", "tel", "phone",  "fax",  "ref",     "reference"};
  // Columns whose names don't tell: the order number of a job.
  if (EqualNames(heading, "Ext2")) return true;
  const std::string_view word = LastWord(heading);
  return std::ranges::any_of(kWords, [&](std::string_view known) { return EqualNames(word, known); });
}

const std::string& SheetText(const std::string& whole, std::string& changed) {
  static constexpr std::string_view kReplacement = "\uFFFD";
  const std::string_view text = whole;
  if (IsPlain(text)) return whole;
  changed.clear();
  for (std::size_t at = 0; at < text.size();) {
    const auto [character, length] = DecodeCharacter(text, at);
    if (character == '\r') {
      if (text.substr(at + 1, 1) != "\n") changed += '\n';
    } else if (character == 0 || character >= kBadByte || (character & 0xFFFE) == 0xFFFE) {
      changed += kReplacement;
    } else {
      if (character == '_' && LooksMasked(text.substr(at))) changed += "_x005F";
      changed += text.substr(at, length);
    }
    at += length;
  }
  return changed;
}

}  // namespace tarvane::listing
