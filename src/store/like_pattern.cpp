#include "store/like_pattern.h"

#include <algorithm>

#include "text/fold.h"

namespace tarvane {

LikePattern::LikePattern(std::string_view pattern) {
  std::size_t at = 0;
  while (at < pattern.size() && sound_) {
    const DecodedCharacter decoded = DecodeCharacter(pattern, at);
    switch (decoded.character) {
      case U'*':
        if (tokens_.empty() || tokens_.back().kind != Kind::kAnyRun) tokens_.push_back({Kind::kAnyRun});
        break;
      case U'?':
        tokens_.push_back({Kind::kAnyOne});
        break;
      case U'#':
        tokens_.push_back({Kind::kDigit});
        break;
      case U'[':
        at = ReadBracket(pattern, at + 1);
        continue;
      default:
        tokens_.push_back({Kind::kCharacter, FoldCharacter(decoded.character)});
    }
    at += decoded.length;
  }
}

// `at` is behind the opening bracket; returns the place behind the closing one.
std::size_t LikePattern::ReadBracket(std::string_view pattern, std::size_t at) {
  const std::size_t end = pattern.find(']', at);
  if (end == std::string_view::npos) {
    sound_ = false;
    return pattern.size();
  }
  Token token{Kind::kOneOf, 0, ranges_.size(), 0};
  if (pattern[at] == '!' && at + 1 < end) {
    token.kind = Kind::kNoneOf;
    ++at;
  }
  while (at < end) {
    const DecodedCharacter first = DecodeCharacter(pattern.substr(0, end), at);
    at += first.length;
    DecodedCharacter last = first;
    if (at + 1 < end && pattern[at] == '-') {
      last = DecodeCharacter(pattern.substr(0, end), at + 1);
      at += 1 + last.length;
    }
    ranges_.emplace_back(FoldCharacter(first.character), FoldCharacter(last.character));
    ++token.range_count;
  }
  tokens_.push_back(token);
  return end + 1;
}

bool LikePattern::MatchesOne(const Token& token, char32_t character) const noexcept {
  switch (token.kind) {
    case Kind::kCharacter:
      return FoldCharacter(character) == token.character;
    case Kind::kAnyOne:
      return true;
    case Kind::kDigit:
      return character >= U'0' && character <= U'9';
    case Kind::kOneOf:
    case Kind::kNoneOf: {
      const char32_t folded = FoldCharacter(character);
      const auto first = ranges_.begin() + static_cast<std::ptrdiff_t>(token.ranges);
      const bool within =
          std::any_of(first, first + static_cast<std::ptrdiff_t>(token.range_count),
                      [folded](auto range) { return range.first <= folded && folded <= range.second; });
      return within == (token.kind == Kind::kOneOf);
    }
    case Kind::kAnyRun:
      break;
  }
  return false;
}

// From `at` on, the place of the first character that could meet `token`.
std::size_t LikePattern::FindFirst(const Token& token, std::string_view text, std::size_t at) const noexcept {
  if (token.kind != Kind::kCharacter) return at;
  while (at < text.size()) {
    const DecodedCharacter decoded = DecodeCharacter(text, at);
    if (FoldCharacter(decoded.character) == token.character) break;
    at += decoded.length;
  }
  return at;
}

// Only the last star is ever gone back to: what an earlier one could give, the later one gives too.
bool LikePattern::Matches(std::string_view text) const noexcept {
  constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  if (!sound_) return false;
  std::size_t token = 0;
  std::size_t at = 0;
  std::size_t star_token = kNone;
  std::size_t star_at = 0;
  while (at < text.size()) {
    if (token < tokens_.size() && tokens_[token].kind == Kind::kAnyRun) {
      if (token + 1 == tokens_.size()) return true;
      star_token = ++token;
      star_at = at;
      continue;
    }
    const DecodedCharacter decoded = DecodeCharacter(text, at);
    if (token < tokens_.size() && MatchesOne(tokens_[token], decoded.character)) {
      ++token;
      at += decoded.length;
      continue;
    }
    if (star_token == kNone) return false;
    star_at += DecodeCharacter(text, star_at).length;
    token = star_token;
    at = star_at = FindFirst(tokens_[token], text, star_at);
  }
  while (token < tokens_.size() && tokens_[token].kind == Kind::kAnyRun) ++token;
  return token == tokens_.size();
}

}  // namespace tarvane
