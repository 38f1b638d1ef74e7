#include "text/fold.h"

#include <utf8proc.h>

#include <algorithm>

namespace tarvane {

namespace {

constexpr char32_t kLastCharacter = 0x10FFFF;

constexpr unsigned char LowerAscii(unsigned char byte) noexcept {
  return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

// Behind the last letter that has a capital in any script, with room for scripts to come.
constexpr char32_t kBehindCasedLetters = 0x20000;

struct Variant {
  char32_t folded;
  char32_t character;
  bool operator<(const Variant& other) const {
    return folded != other.folded ? folded < other.folded : character < other.character;
  }
};

std::vector<Variant> FindVariants() {
  std::vector<Variant> variants;
  for (char32_t character = 0x80; character < kBehindCasedLetters; ++character) {
    const char32_t folded = FoldCharacter(character);
    if (folded != character) variants.push_back({folded, character});
  }
  std::sort(variants.begin(), variants.end());
  return variants;
}

}  // namespace

DecodedCharacter DecodeBeyondAscii(std::string_view text, std::size_t at) noexcept {
  const auto byte = static_cast<unsigned char>(text[at]);
  utf8proc_int32_t character = 0;
  const auto rest = static_cast<utf8proc_ssize_t>(std::min<std::size_t>(text.size() - at, 4));
  const auto length =
      utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data() + at), rest, &character);
  if (length <= 0) return {kBadByte + byte, 1};
  return {static_cast<char32_t>(character), static_cast<std::size_t>(length)};
}

char32_t FoldBeyondAscii(char32_t character) noexcept {
  if (character > kLastCharacter) return character;
  // By way of the capital, so that the two small sigmas, the long s and their like meet.
  const auto upper = utf8proc_toupper(static_cast<utf8proc_int32_t>(character));
  return static_cast<char32_t>(utf8proc_tolower(upper));
}

std::strong_ordering CompareFolded(std::string_view left, std::string_view right) noexcept {
  std::size_t at_left = 0;
  std::size_t at_right = 0;
  while (at_left < left.size() && at_right < right.size()) {
    const auto byte_left = static_cast<unsigned char>(left[at_left]);
    const auto byte_right = static_cast<unsigned char>(right[at_right]);
    if ((byte_left | byte_right) < 0x80) {
      const auto low_left = LowerAscii(byte_left);
      const auto low_right = LowerAscii(byte_right);
      if (low_left != low_right) return low_left <=> low_right;
      ++at_left;
      ++at_right;
      continue;
    }
    const DecodedCharacter a = DecodeCharacter(left, at_left);
    const DecodedCharacter b = DecodeCharacter(right, at_right);
    const char32_t folded_a = FoldCharacter(a.character);
    const char32_t folded_b = FoldCharacter(b.character);
    if (folded_a != folded_b) return folded_a <=> folded_b;
    at_left += a.length;
    at_right += b.length;
  }
  return (left.size() - at_left) <=> (right.size() - at_right);
}

std::vector<char32_t> VariantsBeyondAscii(char32_t folded) {
  static const std::vector<Variant> all = FindVariants();
  std::vector<char32_t> found;
  if (folded >= 0x80) found.push_back(folded);
  for (auto at = std::lower_bound(all.begin(), all.end(), Variant{folded, 0});
       at != all.end() && at->folded == folded; ++at) {
    found.push_back(at->character);
  }
  return found;
}

std::string EncodeCharacter(char32_t character) {
  if (character >= kBadByte) return {static_cast<char>(character - kBadByte)};
  utf8proc_uint8_t bytes[4];
  const auto length = utf8proc_encode_char(static_cast<utf8proc_int32_t>(character), bytes);
  return {bytes, bytes + length};
}

bool EqualNames(std::string_view left, std::string_view right) noexcept {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
    return LowerAscii(static_cast<unsigned char>(a)) == LowerAscii(static_cast<unsigned char>(b));
  });
}

bool LessName(std::string_view left, std::string_view right) noexcept {
  return std::lexicographical_compare(
      left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
        return LowerAscii(static_cast<unsigned char>(a)) < LowerAscii(static_cast<unsigned char>(b));
      });
}

}  // namespace tarvane
