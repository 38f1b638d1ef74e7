#pragma once

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvane {

// A pattern of `Like` (criteria.h), read once to be matched with many texts.
class LikePattern {
 public:
  explicit LikePattern(std::string_view pattern);

  bool Matches(std::string_view text) const noexcept;

 private:
  enum class Kind : unsigned char { kCharacter, kAnyRun, kAnyOne, kDigit, kOneOf, kNoneOf };
  struct Token {
    Kind kind;
    char32_t character = 0;       // of kCharacter, folded
    std::size_t ranges = 0;       // of kOneOf and kNoneOf: the first in ranges_ and
    std::size_t range_count = 0;  // how many
  };

  std::size_t ReadBracket(std::string_view pattern, std::size_t at);
  std::size_t FindFirst(const Token& token, std::string_view text, std::size_t at) const noexcept;
  bool MatchesOne(const Token& token, char32_t character) const noexcept;

  std::vector<Token> tokens_;
  std::vector<std::pair<char32_t, char32_t>> ranges_;  // folded, both ends included
  bool sound_ = true;
};

}  // namespace tarvane
