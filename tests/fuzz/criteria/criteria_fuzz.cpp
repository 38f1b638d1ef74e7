// The first line is a pattern and a criterion, all behind it the text to be matched.
#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/require.h"
#include "store/criteria.h"
#include "store/prefix_ranges.h"
#include "text/fault.h"
#include "text/fold.h"

namespace tarvane {
namespace {

constexpr std::size_t kMostForReference = 300;

std::u32string Folded(std::string_view text) {
  std::u32string folded;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCharacter decoded = DecodeCharacter(text, at);
    folded += FoldCharacter(decoded.character);
    at += decoded.length;
  }
  return folded;
}

// Whether `c` is of the set between the brackets.
bool InSet(std::u32string_view set, char32_t c) {
  for (std::size_t i = 0; i < set.size();) {
    const bool range = i + 2 < set.size() && set[i + 1] == U'-';
    if (set[i] <= c && c <= set[range ? i + 2 : i]) return true;
    i += range ? 3 : 1;
  }
  return false;
}

// By table instead of by going back: reach[j] tells whether the pattern so far meets the first j characters.
bool LikeByTable(std::u32string_view text, std::u32string_view pattern) {
  std::vector<bool> reach(text.size() + 1, false);
  reach[0] = true;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    std::vector<bool> next(text.size() + 1, false);
    const char32_t token = pattern[i];
    std::u32string_view set;
    bool none_of = false;
    if (token == U'[') {
      const std::size_t close = pattern.find(U']', i + 1);
      if (close == std::u32string_view::npos) return false;
      none_of = pattern[i + 1] == U'!' && i + 2 < close;
      set = pattern.substr(i + 1 + (none_of ? 1 : 0), close - i - 1 - (none_of ? 1 : 0));
      i = close;
    }
    for (std::size_t j = 0; j <= text.size(); ++j) {
      if (token == U'*') {
        next[j] = reach[j] || (j > 0 && next[j - 1]);
        continue;
      }
      if (j == 0 || !reach[j - 1]) continue;
      const char32_t c = text[j - 1];
      next[j] = token == U'?'   ? true
                : token == U'#' ? c >= U'0' && c <= U'9'
                : token == U'[' ? InSet(set, c) != none_of
                                : c == token;
    }
    reach = next;
  }
  return reach[text.size()];
}

void CheckLike(std::string_view text, std::string_view pattern) {
  const bool like = Like(text, pattern);
  if (text.size() <= kMostForReference && pattern.size() <= kMostForReference) {
    Require(like == LikeByTable(Folded(text), Folded(pattern)));
  }
  if (!IsPrefixPattern(pattern)) return;
  if (!pattern.ends_with('*')) {
    Require(like == (CompareFolded(text, pattern) == 0));
    return;
  }
  const std::string_view prefix = pattern.substr(0, pattern.size() - 1);
  const SpelledPrefix spelled = SpellPrefix(prefix);
  const bool begins = std::ranges::any_of(spelled.spellings, [&](const std::string& spelling) {
    return EqualNames(text.substr(0, spelling.size()), spelling);
  });
  const bool stray = std::ranges::any_of(
      std::array{"\u0130", "\u0131", "\u017F", "\u212A"},
      [&](std::string_view character) { return text.find(character) != std::string_view::npos; });
  Require(!like || begins || stray);
  Require(like || !begins || !spelled.exact);
}

void CheckParse(std::string_view text) {
  try {
    const Criterion criterion = ParseCriterion(text);
    Require(!criterion.column.empty() && criterion.pattern.find('\'') == std::string::npos);
    const Criterion again = ParseCriterion("[" + criterion.column + "] LIKE '" + criterion.pattern + "'");
    Require(again.column == criterion.column && again.pattern == criterion.pattern);
  } catch (const Fault&) {
  }
}

}  // namespace
}  // namespace tarvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text = tarvane::InputText(data, size);
  const std::string_view pattern = tarvane::TakeLine(text);
  tarvane::CheckLike(text, pattern);
  tarvane::CheckParse(pattern);
  tarvane::CheckParse("Name LIKE '" + std::string(text) + "*'");
  tarvane::Require((tarvane::CompareFolded(text, pattern) < 0) ==
                   (tarvane::CompareFolded(pattern, text) > 0));
  return 0;
}
