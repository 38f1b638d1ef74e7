#include "store/criterion_scanner.h"

#include <algorithm>

#include "text/fault.h"
#include "text/fold.h"

namespace tarvane {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool IsWordCharacter(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

}  // namespace

void CriterionScanner::SkipBlanks() { at_ = std::min(text_.find_first_not_of(kBlanks, at_), text_.size()); }

void CriterionScanner::Fail() const {
  throw Fault("The search \"" + std::string(text_) +
              "\" can't be read: it wants a column, LIKE, and a text in quote marks.");
}

std::string CriterionScanner::Name() {
  SkipBlanks();
  const bool bracketed = at_ < text_.size() && text_[at_] == '[';
  const std::size_t start = bracketed ? at_ + 1 : at_;
  const std::size_t end = bracketed ? text_.find(']', start)
                                    : std::min(text_.find_first_of(" \t\r\n'\"[];", start), text_.size());
  if (end == std::string_view::npos || end == start) Fail();
  at_ = bracketed ? end + 1 : end;
  return std::string(text_.substr(start, end - start));
}

std::string CriterionScanner::Quoted() {
  SkipBlanks();
  if (at_ >= text_.size() || text_[at_] != '\'') Fail();
  const std::size_t end = text_.find('\'', at_ + 1);
  if (end == std::string_view::npos) Fail();
  std::string quoted(text_.substr(at_ + 1, end - at_ - 1));
  at_ = end + 1;
  return quoted;
}

bool CriterionScanner::TryWord(std::string_view word) {
  SkipBlanks();
  if (!EqualNames(text_.substr(at_, word.size()), word)) return false;
  const std::size_t end = at_ + word.size();
  if (IsWordCharacter(word.back()) && end < text_.size() && IsWordCharacter(text_[end])) return false;
  at_ = end;
  return true;
}

void CriterionScanner::Word(std::string_view word) {
  if (!TryWord(word)) Fail();
}

bool CriterionScanner::AtEnd() {
  SkipBlanks();
  return at_ == text_.size();
}

void CriterionScanner::End() {
  if (!AtEnd()) Fail();
}

}  // namespace tarvane
