#pragma once

#include <string>
#include <string_view>

namespace tarvane {

// `column LIKE 'pattern'`, the one form of criterion the shop's screens build.
struct Criterion {
  std::string column;
  std::string pattern;
};

// Blanks are free, LIKE in any case, the column bare or in [brackets]. A quote mark inside the pattern, or
// anything left over, faults.
Criterion ParseCriterion(std::string_view text);

// Whether `text` meets `pattern`: `*` any run, `?` one character, `#` one digit, `[a-z]` one of, `[!a-z]`
// none of; letters without regard to case, also beyond ASCII. Both UTF-8; bad UTF-8 counts byte by byte. An
// unclosed bracket matches nothing. Linear in practice: no exponential blow-up with many stars.
bool Like(std::string_view text, std::string_view pattern);

// True for a pattern that is plain text and one final star (or plain text alone): an index answers it.
bool IsPrefixPattern(std::string_view pattern);

}  // namespace tarvane
