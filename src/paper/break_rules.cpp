#include "paper/break_rules.h"

#include <algorithm>
#include <array>

#include "rich_text/document.h"
#include "text/utf8.h"

namespace tarvane::paper {
namespace {

using Kind = Segment::Kind;

// Longer words are measured in parts, so that a text without blanks isn't measured again for each line.
constexpr std::size_t kLongest = 64;
constexpr std::size_t kMostMarks = 32;

struct Span {
  char32_t first;
  char32_t last;
};
// What is set without blanks between words, a line ending behind any of it: Chinese, Japanese, Korean, and
// emoji.
constexpr std::array<Span, 7> kIdeographs = {{{0x2E80, 0x9FFF},
                                              {0xAC00, 0xD7A3},
                                              {0xF900, 0xFAFF},
                                              {0xFE30, 0xFE4F},
                                              {0xFF00, 0xFFEF},
                                              {0x1F300, 0x1FAFF},
                                              {0x20000, 0x3FFFD}}};
// What stands upon the character before it.
constexpr std::array<Span, 9> kMarks = {{{0x0300, 0x036F},
                                         {0x1AB0, 0x1AFF},
                                         {0x1DC0, 0x1DFF},
                                         {0x200D, 0x200D},
                                         {0x20D0, 0x20FF},
                                         {0x3099, 0x309A},
                                         {0xFE00, 0xFE0F},
                                         {0x1F3FB, 0x1F3FF},
                                         {0xE0100, 0xE01EF}}};
constexpr std::u32string_view kOpening = U"([{‘“〈《「『【〔〖〘〚〝（［｛｟｢";
constexpr std::u32string_view kClosing =
    U"!%),.:;?]}"
    U"’”‥…、。々〉》」』】〕〗〙〛〞〟ぁぃぅぇぉっゃゅょゎゕゖ゛゜ゝゞァィゥェォッャュョヮヵヶ・ーヽヾ！"
    U"），．：；？］｝｠｡｣､･";
constexpr std::u32string_view kHyphens = U"-‐–—";

template <std::size_t count>
bool Within(const std::array<Span, count>& spans, char32_t character) {
  const auto span = std::ranges::lower_bound(spans, character, {}, &Span::last);
  return span != spans.end() && character >= span->first;
}

bool Among(std::u32string_view characters, char32_t character) {
  return characters.find(character) != std::u32string_view::npos;
}

struct Character {
  char32_t code = 0;
  std::size_t length = 1;
};

Character CharacterAt(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  const std::size_t length = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (length == 1 || at + length > text.size()) return {lead, 1};
  char32_t code = lead & (0x7FU >> length);
  for (std::size_t behind = 1; behind < length; ++behind) {
    if (!ContinuesCharacter(text[at + behind])) return {lead, 1};
    code = code << 6 | (static_cast<unsigned char>(text[at + behind]) & 0x3FU);
  }
  return {code, length};
}

// What kind of segment a character is alone; kText for one that goes on with a text.
Kind KindOf(char32_t code) {
  switch (code) {
    case ' ':
      return Kind::kBlanks;
    case '\t':
      return Kind::kTab;
    case 0x00AD:
      return Kind::kSoftHyphen;
    case 0x200B:
      return Kind::kNoWidth;
    case 0x2028:
      return Kind::kLineEnd;
    case 0xFFFC:
      return Kind::kPicture;
    default:
      return Kind::kText;
  }
}

// Whether a line may end between two characters of a text; the hyphen of "-5" or of "--" is none that parts
// words.
bool BreaksBetween(std::string_view text, char32_t before, std::size_t at, char32_t behind) {
  if (before == 0 || Within(kMarks, behind) || before == 0x200D) return false;
  if (Within(kIdeographs, before) || Within(kIdeographs, behind)) {
    return !Among(kOpening, before) && !Among(kClosing, behind);
  }
  if (!Among(kHyphens, before) || Among(kHyphens, behind) || Among(kClosing, behind)) return false;
  if (before != '-') return true;
  const char word = at >= 2 ? text[at - 2] : ' ';
  return word != ' ' && word != '\t' && word != '-' && word != '\n' && word != '(';
}

char32_t CodeBefore(std::string_view text, std::size_t at) {
  if (at == 0) return 0;
  std::size_t begin = at - 1;
  while (begin > 0 && at - begin < 4 && ContinuesCharacter(text[begin])) --begin;
  return CharacterAt(text, begin).code;
}

Segment TextSegment(std::string_view text, std::size_t begin, std::size_t limit) {
  limit = std::min(limit, begin + kLongest);
  char32_t before = CodeBefore(text, begin);
  std::size_t at = begin;
  while (at < text.size()) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte < 0x80 && byte > ' ' && before < 0x80 && before != '-' && at < limit) {  // plain text goes fast
      before = byte;
      ++at;
      continue;
    }
    const Character character = CharacterAt(text, at);
    if (at > begin && KindOf(character.code) != Kind::kText) break;
    if (at > begin && BreaksBetween(text, before, at, character.code)) return {Kind::kText, at, true};
    if (at >= limit) break;
    before = character.code;
    at += character.length;
  }
  return {Kind::kText, at, false};
}

}  // namespace

Segment NextSegment(std::string_view text, std::size_t begin, std::size_t limit) {
  const Character first = CharacterAt(text, begin);
  const Kind kind = KindOf(first.code);
  if (kind == Kind::kText) return TextSegment(text, begin, limit);
  std::size_t end = begin + first.length;
  while (kind == Kind::kBlanks && end < limit && text[end] == ' ') ++end;
  return {kind, end, false};
}

std::size_t CharacterEnd(std::string_view text, std::size_t at) {
  const std::size_t limit = at + kMostMarks;
  at += CharacterAt(text, at).length;
  while (at < text.size() && at < limit) {
    const Character next = CharacterAt(text, at);
    if (!Within(kMarks, next.code)) break;
    at += next.length;
  }
  return at;
}

std::string_view WithoutHidden(std::string_view text, std::string& room) {
  room.clear();
  for (std::size_t at = 0; at < text.size();) {
    const Character character = CharacterAt(text, at);
    const Kind kind = KindOf(character.code);
    if (kind != Kind::kSoftHyphen && kind != Kind::kNoWidth) room += text.substr(at, character.length);
    at += character.length;
  }
  return room;
}

}  // namespace tarvane::paper
