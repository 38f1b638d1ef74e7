#include "printing/report_text.h"

#include <algorithm>
#include <array>
#include <optional>

#include "text/fold.h"
#include "text/trim.h"

namespace tarvane::printing {
namespace {

using Characters = std::u32string;

Characters Decode(std::string_view text) {
  Characters characters;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCharacter decoded = DecodeCharacter(text, at);
    characters += decoded.character;
    at += decoded.length;
  }
  return characters;
}

// The capital of a small letter is the one before it in the character set that folds to it.
char32_t Capital(char32_t character) {
  if (character < 0x80) return character >= U'a' && character <= U'z' ? character - 32 : character;
  if (FoldCharacter(character) != character) return character;
  const std::vector<char32_t> variants = VariantsBeyondAscii(character);
  const auto first = std::ranges::min_element(variants);
  return first != variants.end() && *first < character ? *first : character;
}

void RaiseBehind(Characters& name, const Characters& before) {
  for (std::size_t at = name.find(before); at != Characters::npos; at = name.find(before, at + 1)) {
    const std::size_t next = at + before.size();
    if (next < name.size()) name[next] = Capital(name[next]);
  }
}

// Characters may be of no width at all: in bytes, what one line takes all the same.
constexpr std::size_t kLongestLine = 2048;

bool IsLineEnd(char byte) { return byte == '\r' || byte == '\n'; }
std::size_t LineEndAt(std::string_view text, std::size_t at) {
  if (!IsLineEnd(text[at])) return 0;
  return text.substr(at).starts_with("\r\n") ? 2 : 1;
}
bool IsBreak(char byte) { return static_cast<unsigned char>(byte) < 33; }

}  // namespace

std::string FormalCase(std::string_view name) {
  // One after the other: what a later one raises is no beginning for an earlier one.
  static const std::array<Characters, 5> kBefore = {U" ", U".", U"Mc", U"O'", U"-"};
  Characters characters = Decode(name);
  std::ranges::transform(characters, characters.begin(), FoldCharacter);
  if (!characters.empty()) characters.front() = Capital(characters.front());
  for (const Characters& before : kBefore) RaiseBehind(characters, before);
  std::string formal;
  for (const char32_t character : characters) formal += EncodeCharacter(character);
  return formal.erase(0, std::min(formal.find_first_not_of(' '), formal.size()));
}

std::string_view WithoutQuotes(std::string_view text) {
  if (text.starts_with('"')) text.remove_prefix(1);
  if (text.ends_with('"')) text.remove_suffix(1);
  return text;
}

std::string WithoutLineEnds(std::string_view text) {
  std::string line;
  bool met_return = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    met_return = met_return || text[at] == '\r';
    if (text[at] == '\n' && (at == 0 || met_return)) continue;
    line += IsLineEnd(text[at]) ? ' ' : text[at];
  }
  return line;
}

bool HasLineEnds(std::string_view text) { return text.find_first_of("\r\n") != std::string_view::npos; }

std::string Drawable(std::string_view line) {
  std::string drawable(line);
  std::ranges::replace_if(
      drawable, [](char byte) { return IsBreak(byte) || byte == '\x7F'; }, ' ');
  return drawable;
}

std::vector<std::string> LinesOfText(std::string_view text) {
  std::vector<std::string> lines;
  for (;;) {
    const std::size_t end = text.find_first_of("\r\n");
    lines.push_back(Drawable(text.substr(0, end)));
    if (end == std::string_view::npos) return lines;
    text.remove_prefix(end + LineEndAt(text, end));
  }
}

std::vector<std::string> WrapLines(std::string_view text, double room,
                                   const std::function<double(std::string_view)>& width_of) {
  const bool trims = HasLineEnds(text);
  const std::string drawable = Drawable(text);  // byte for byte
  std::vector<std::string> lines;
  std::size_t begin = 0;
  std::optional<std::size_t> last_break;
  const auto part = [&](std::size_t end) { return std::string_view(drawable).substr(begin, end - begin); };
  const auto keep = [&](std::size_t end) { lines.emplace_back(trims ? TrimSpaces(part(end)) : part(end)); };
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t next = at + DecodeCharacter(text, at).length;
    if (IsBreak(text[at])) last_break = at;
    if (!IsLineEnd(text[at]) && next - begin <= kLongestLine && width_of(part(next)) < room) {
      at = next;
      continue;
    }
    if (last_break) {
      keep(*last_break);
      at = *last_break + std::max<std::size_t>(1, LineEndAt(text, *last_break));
    } else {
      at = at == begin ? next : at;
      keep(at);
    }
    begin = at;
    last_break.reset();
  }
  const bool has_more = begin < text.size() || lines.empty() || IsLineEnd(text.back());
  if (has_more) keep(text.size());
  return lines;
}

}  // namespace tarvane::printing
