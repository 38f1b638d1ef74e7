#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// How texts are compared without regard to case, character by character: the ground of criteria, of the order
// of search results, and of the indexes that answer them.
namespace tarvane {

// A byte that is part of no UTF-8 character stands for kBadByte plus itself: behind all characters.
inline constexpr char32_t kBadByte = 0x110000;

struct DecodedCharacter {
  char32_t character = 0;
  std::size_t length = 0;  // bytes taken, at least 1
};

DecodedCharacter DecodeBeyondAscii(std::string_view text, std::size_t at) noexcept;
char32_t FoldBeyondAscii(char32_t character) noexcept;

// The character at `at`, which must lie within `text`.
inline DecodedCharacter DecodeCharacter(std::string_view text, std::size_t at) noexcept {
  const auto byte = static_cast<unsigned char>(text[at]);
  return byte < 0x80 ? DecodedCharacter{byte, 1} : DecodeBeyondAscii(text, at);
}

// The form in which characters that differ only in case are equal. Folding twice changes nothing more.
inline char32_t FoldCharacter(char32_t character) noexcept {
  if (character >= 0x80) return FoldBeyondAscii(character);
  return character >= U'A' && character <= U'Z' ? character + (U'a' - U'A') : character;
}

// Order by folded characters; equal texts may differ in case.
std::strong_ordering CompareFolded(std::string_view left, std::string_view right) noexcept;

// The characters beyond ASCII that fold to `folded`, itself among them where it is one. Most often none for a
// character of ASCII; but the dotted capital and the dotless small i fold to "i", the long s and the Kelvin
// sign to "s" and "k".
std::vector<char32_t> VariantsBeyondAscii(char32_t folded);

// `character` as UTF-8; a bad byte (above kBadByte) as itself.
std::string EncodeCharacter(char32_t character);

// Equal but for the case of ASCII letters: names of columns, files, keys.
bool EqualNames(std::string_view left, std::string_view right) noexcept;
// Less in that comparison.
bool LessName(std::string_view left, std::string_view right) noexcept;

}  // namespace tarvane
