#include "catalogues/price_list/file_text.h"

#include <array>
#include <cstddef>

#include "text/fault.h"
#include "text/fold.h"
#include "text/utf8.h"

namespace tarvane::catalogues {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

// What Windows-1252 has at 0x80 to 0x9F; 0 where it has nothing.
constexpr std::array<char32_t, 32> kWindowsMarks = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

bool IsSoundUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCharacter decoded = DecodeCharacter(text, at);
    if (decoded.character >= kBadByte) return false;
    at += decoded.length;
  }
  return true;
}

std::string FromWindows(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80) {
      text += c;
      continue;
    }
    const char32_t character = byte < 0xA0 ? kWindowsMarks[byte - 0x80U] : byte;
    text += EncodeCharacter(character == 0 ? kReplacement : character);
  }
  return text;
}

char32_t Unit(std::string_view bytes, std::size_t at, bool big) {
  const auto first = static_cast<unsigned char>(bytes[at]);
  const auto second = static_cast<unsigned char>(bytes[at + 1]);
  return big ? static_cast<char32_t>(first << 8U | second) : static_cast<char32_t>(second << 8U | first);
}

std::string FromUtf16(std::string_view bytes, bool big) {
  const auto is_high = [](char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; };
  const auto is_low = [](char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; };
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t character = Unit(bytes, at, big);
    if (is_high(character) && at + 3 < bytes.size() && is_low(Unit(bytes, at + 2, big))) {
      at += 2;
      character = 0x10000 + ((character - 0xD800) << 10U) + (Unit(bytes, at, big) - 0xDC00);
    } else if (is_high(character) || is_low(character)) {
      character = kReplacement;
    }
    text += EncodeCharacter(character);
  }
  return text;
}

std::string Decode(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE")) return FromUtf16(bytes.substr(2), false);
  if (bytes.starts_with("\xFE\xFF")) return FromUtf16(bytes.substr(2), true);
  const std::string_view text = WithoutByteOrderMark(bytes);
  return IsSoundUtf8(text) ? std::string(text) : FromWindows(text);
}

}  // namespace

std::string DecodeFileText(std::string_view bytes) {
  std::string text = Decode(bytes);
  if (text.find('\0') != std::string::npos) throw Fault("it is neither a spreadsheet nor a text");
  return text;
}

}  // namespace tarvane::catalogues
