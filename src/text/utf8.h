#pragma once

#include <cstddef>
#include <string_view>

// Steps over UTF-8 text. Bytes that are no UTF-8 are passed on as they stand and never make a step fail.
namespace tarvane {

// True for a byte that goes on with a character, false for one that begins one.
constexpr bool ContinuesCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// How many characters `text` has.
std::size_t CountCharacters(std::string_view text) noexcept;

// The first `characters` of `text`, or all of it where it has no more.
std::string_view FirstCharacters(std::string_view text, std::size_t characters) noexcept;

// At most `bytes` of `text`, cut at a whole character.
std::string_view FirstBytes(std::string_view text, std::size_t bytes) noexcept;

// Without its last character, which may be several bytes long.
std::string_view WithoutLastCharacter(std::string_view text) noexcept;

// Without the mark that some editors put in front of a UTF-8 file.
std::string_view WithoutByteOrderMark(std::string_view text) noexcept;

}  // namespace tarvane
