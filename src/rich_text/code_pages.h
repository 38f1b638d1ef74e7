#pragma once

#include <string>
#include <string_view>

// Texts in the code pages that RTF files are written in, made UTF-8.
namespace tarvane::rich_text {

inline constexpr char32_t kUnknownCharacter = 0xFFFD;
inline constexpr int kSymbolPage = 2;  // no code page: the Symbol font's own codes
inline constexpr int kDingbatsPage = 3;
inline constexpr int kWesternPage = 1252;
inline constexpr int kMacPage = 10000;
inline constexpr int kUtf8Page = 65001;

// The code page of a font's character set (\fcharset); 0 where the set names none, and the document's own
// holds.
int PageOfCharset(int charset);

// Whether `byte` begins a character of several bytes.
bool IsLeadByte(int page, unsigned char byte);

// The character of a single byte; an unknown code page is taken for 1252.
char32_t DecodeByte(int page, unsigned char byte);

// One character of several bytes; U+FFFD where they are none.
char32_t DecodeBytes(int page, std::string_view bytes);
// How many bytes the character has that begins with `lead`.
std::size_t LengthOfCharacter(int page, unsigned char lead);

// Characters that fonts of symbols keep at U+F020 to U+F0FF, as those that every font knows.
char32_t PlainSymbol(int page, char32_t character);

// A surrogate or beyond Unicode becomes U+FFFD.
void AppendUtf8(std::string& text, char32_t character);

}  // namespace tarvane::rich_text
