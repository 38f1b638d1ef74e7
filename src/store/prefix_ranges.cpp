#include "store/prefix_ranges.h"

#include "text/fold.h"

namespace tarvane {

namespace {

// More spellings would cost more than matching what a few find.
constexpr std::size_t kMostSpellings = 8;

// Capital i with a dot, small i without, long s, Kelvin sign. It stands in the files' schema: never changed.
constexpr std::string_view kStrayCharacters[] = {"\u0130", "\u0131", "\u017F", "\u212A"};

}  // namespace

SpelledPrefix SpellPrefix(std::string_view prefix) {
  SpelledPrefix spelled{{""}, true};
  for (std::size_t at = 0; at < prefix.size();) {
    const DecodedCharacter decoded = DecodeCharacter(prefix, at);
    const char32_t folded = FoldCharacter(decoded.character);
    const bool plain = folded > 0 && folded < 0x80;
    const std::vector<char32_t> variants = plain         ? std::vector{folded}
                                           : folded == 0 ? std::vector<char32_t>()
                                                         : VariantsBeyondAscii(folded);
    // NOCASE reads no further than a byte 0, and bad bytes have no neighbours.
    if (folded >= kBadByte || variants.empty() ||
        variants.size() * spelled.spellings.size() > kMostSpellings) {
      spelled.exact = false;
      break;
    }
    std::vector<std::string> longer;
    for (const std::string& spelling : spelled.spellings) {
      for (const char32_t variant : variants) longer.push_back(spelling + EncodeCharacter(variant));
    }
    spelled.spellings = std::move(longer);
    at += decoded.length;
  }
  return spelled;
}

std::string FirstBehind(std::string_view spelling) {
  std::string behind(spelling);
  auto last = static_cast<unsigned char>(FoldCharacter(static_cast<unsigned char>(behind.back())));
  if (static_cast<unsigned char>(behind.back()) >= 0x80) last = static_cast<unsigned char>(behind.back());
  ++last;
  // NOCASE takes capitals for small letters: no text stands where they would.
  if (last == 'A') last = 'Z' + 1;
  behind.back() = static_cast<char>(last);
  return behind;
}

// GLOB and length() read no further than a byte 0.
std::string IsBeyondSql(const std::string& quoted_column) {
  return "(" + quoted_column + " GLOB '*[^ -~]*' OR length(" + quoted_column + ") < length(CAST(" +
         quoted_column + " AS BLOB)))";
}

std::string IsStraySql(const std::string& quoted_column) {
  std::string sum;
  for (const std::string_view character : kStrayCharacters) {
    sum += (sum.empty() ? "instr(" : " + instr(") + quoted_column + ", '" + std::string(character) + "')";
  }
  return "(" + sum + " > 0)";
}

}  // namespace tarvane
