#include "paper/standard_text.h"

#include <algorithm>
#include <array>

#include "pdf/text_encoding.h"
#include "text/utf8.h"

namespace tarvane::paper {
namespace {

struct Likeness {
  std::string_view character;
  std::string_view looks_like;
};
// In the order of their bytes.
constexpr auto kLikenesses = std::to_array<Likeness>({
    {"\u2002", " "},      {"\u2003", " "}, {"\u2004", " "},      {"\u2005", " "}, {"\u2006", " "},
    {"\u2007", "\u00A0"}, {"\u2008", " "}, {"\u2009", " "},      {"\u200A", " "}, {"\u200B", ""},
    {"\u200C", ""},       {"\u200D", ""},  {"\u200E", ""},       {"\u200F", ""},  {"\u2010", "-"},
    {"\u2011", "-"},      {"\u2028", ""},  {"\u202A", ""},       {"\u202B", ""},  {"\u202C", ""},
    {"\u202D", ""},       {"\u202E", ""},  {"\u202F", "\u00A0"}, {"\u2060", ""},  {"\u2212", "-"},
    {"\uFEFF", ""},
});

bool Printable(char c) { return static_cast<unsigned char>(c) >= ' ' && c != 0x7F; }

// Looks at every byte without stopping, and so at many at a time.
bool Plain(std::string_view text) {
  unsigned others = 0;
  for (const char c : text) others |= static_cast<unsigned char>(c - ' ') >= 0x7F - ' ';
  return others == 0;
}

std::string_view CharacterAt(std::string_view text, std::size_t at) {
  std::size_t end = at + 1;
  while (end < text.size() && end < at + 4 && ContinuesCharacter(text[end])) ++end;
  return text.substr(at, end - at);
}

}  // namespace

std::string_view StandardText(std::string_view text, std::string& room) {
  if (Plain(text)) return text;
  room.clear();
  for (std::size_t at = 0; at < text.size();) {
    const std::string_view character = CharacterAt(text, at);
    at += character.size();
    const auto like = std::ranges::lower_bound(kLikenesses, character, {}, &Likeness::character);
    if (like != kLikenesses.end() && like->character == character) {
      room += like->looks_like;
    } else if (character.size() > 1 || Printable(character.front())) {
      room += character;
    }
  }
  return room;
}

std::string StandardCodes(std::string_view text) {
  std::string room;
  std::string codes = pdf::ToWinAnsi(StandardText(text, room));
  std::erase_if(codes, [](char code) { return !Printable(code); });
  return codes;
}

void AddLacking(std::string_view text, std::string& lacking) {
  if (Plain(text)) return;
  for (std::size_t at = 0; at < text.size();) {
    const std::string_view character = CharacterAt(text, at);
    at += character.size();
    const bool lacks = character != "?" && pdf::ToWinAnsi(character).starts_with('?');
    if (lacks && lacking.find(character) == std::string::npos) lacking += character;
  }
}

}  // namespace tarvane::paper
