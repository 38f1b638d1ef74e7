#include "pdf/text_encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tarvane::pdf {
namespace {

// What WinAnsi has at the codes 0x80 to 0x9F; 0 where it has nothing.
constexpr std::array<char16_t, 32> kHighCodes = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
// What PDFDocEncoding has at the codes 0x18 to 0x1F, and 0x80 to 0xA0.
constexpr std::array<char16_t, 8> kAccents = {0x02D8, 0x02C7, 0x02C6, 0x02D9, 0x02DD, 0x02DB, 0x02DA, 0x02DC};
constexpr std::array<char16_t, 33> kDocumentCodes = {
    0x2022, 0x2020, 0x2021, 0x2026, 0x2014, 0x2013, 0x0192, 0x2044, 0x2039, 0x203A, 0x2212,
    0x2030, 0x201E, 0x201C, 0x201D, 0x2018, 0x2019, 0x201A, 0x2122, 0xFB01, 0xFB02, 0x0141,
    0x0152, 0x0160, 0x0178, 0x017D, 0x0131, 0x0142, 0x0153, 0x0161, 0x017E, 0,      0x20AC};
constexpr char32_t kHardBlank = 0xA0;
constexpr char32_t kSoftHyphen = 0xAD;
constexpr char kHexDigits[] = "0123456789ABCDEF";
constexpr char32_t kNoCharacter = 0xFFFFFFFF;

// The place of `character` in a table of codes from `first` on; "?" where it has none.
template <typename Codes>
char Placed(const Codes& codes, int first, char32_t character) {
  const auto found = std::find(codes.begin(), codes.end(), character);
  return found == codes.end() ? '?' : static_cast<char>(first + (found - codes.begin()));
}

char WinAnsiCode(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  return Placed(kHighCodes, 0x80, character);
}

char PdfDocCode(char32_t character) {
  if (character == kHardBlank) return ' ';
  if (character == kSoftHyphen) return '-';
  const bool same = character < 0x18 || (character >= 0x20 && character < 0x7F);
  if (same || (character > 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  const char accent = Placed(kAccents, 0x18, character);
  return accent != '?' ? accent : Placed(kDocumentCodes, 0x80, character);
}

// Takes one character off the front of `text`; of broken UTF-8 one byte.
char32_t TakeCharacter(std::string_view& text) {
  const auto lead = static_cast<uint8_t>(text.front());
  const size_t length = lead < 0x80   ? 1
                        : lead < 0xC2 ? 0
                        : lead < 0xE0 ? 2
                        : lead < 0xF0 ? 3
                        : lead < 0xF5 ? 4
                                      : 0;
  char32_t character = length <= 1 ? lead : lead & (0x7F >> length);
  bool whole = length > 0 && length <= text.size();
  for (size_t at = 1; whole && at < length; ++at) {
    const auto next = static_cast<uint8_t>(text[at]);
    whole = (next & 0xC0) == 0x80;
    character = character << 6 | (next & 0x3F);
  }
  const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
  if (!whole || overlong) {
    text.remove_prefix(1);
    return kNoCharacter;
  }
  text.remove_prefix(length);
  return character;
}

// Both look at every byte without stopping: most texts are plain, and so they run many bytes at a time.
bool Ascii(std::string_view text) {
  uint8_t bits = 0;
  for (const char c : text) bits |= static_cast<uint8_t>(c);
  return bits < 0x80;
}

bool Plain(std::string_view text) {
  uint8_t special = 0;
  for (const char c : text) special |= static_cast<uint8_t>((c == '\\') | (c == '(') | (c == ')'));
  return special == 0;
}

bool Pairs(std::string_view text) {
  int depth = 0;
  for (const char c : text) {
    if (c == '(') ++depth;
    if (c == ')' && --depth < 0) return false;
  }
  return depth == 0;
}

std::string WithBackslashes(std::string_view text, std::string_view for_backslash) {
  if (Plain(text)) return std::string(text);
  std::string out;
  out.reserve(text.size() + 8);
  for (const char c : text) {
    if (c == '\\') {
      out += for_backslash;
      continue;
    }
    if (c == '(' || c == ')') out += '\\';
    out += c;
  }
  return out;
}

// `text` with `mark` and two digits for what isn't visible ASCII or is among `special`.
std::string WithHexCodes(std::string_view text, std::string_view special, char mark) {
  std::string out;
  for (const char c : text) {
    const auto code = static_cast<uint8_t>(c);
    if (code > 0x20 && code < 0x7F && special.find(c) == std::string_view::npos) {
      out += c;
    } else {
      out += {mark, kHexDigits[code >> 4], kHexDigits[code & 15]};
    }
  }
  return out;
}

}  // namespace

std::string ToWinAnsi(std::string_view utf8) {
  if (Ascii(utf8)) return std::string(utf8);
  std::string codes;
  codes.reserve(utf8.size());
  while (!utf8.empty()) codes += WinAnsiCode(TakeCharacter(utf8));
  return codes;
}

std::string ToPdfDoc(std::string_view utf8) {
  std::string codes;
  while (!utf8.empty()) codes += PdfDocCode(TakeCharacter(utf8));
  return codes;
}

std::string ToUri(std::string_view utf8) { return WithHexCodes(utf8, "\"<>\\^`{|}", '%'); }

std::string EscapePageText(std::string_view codes) {
  // A backslash is doubled and each pair doubled again; readers of the files are used to it.
  return WithBackslashes(codes, "\\\\\\\\");
}

std::string EscapeString(std::string_view codes) { return WithBackslashes(codes, "\\\\"); }

std::string StringBody(std::string_view codes) {
  if (codes.find('\\') == std::string::npos && Pairs(codes)) return std::string(codes);
  return EscapeString(codes);
}

std::string NameBody(std::string_view text) { return WithHexCodes(text, "()<>[]{}/%#", '#'); }

}  // namespace tarvane::pdf
