#include "store/criteria.h"

#include "store/criterion_scanner.h"
#include "store/like_pattern.h"
#include "text/fault.h"

namespace tarvane {

Criterion ParseCriterion(std::string_view text) {
  CriterionScanner scanner(text);
  Criterion criterion;
  criterion.column = scanner.Name();
  scanner.Word("LIKE");
  criterion.pattern = scanner.Quoted();
  scanner.End();
  return criterion;
}

bool Like(std::string_view text, std::string_view pattern) { return LikePattern(pattern).Matches(text); }

bool IsPrefixPattern(std::string_view pattern) {
  const std::size_t wild = pattern.find_first_of("*?#[");
  return wild == std::string_view::npos || (pattern[wild] == '*' && wild + 1 == pattern.size());
}

}  // namespace tarvane
