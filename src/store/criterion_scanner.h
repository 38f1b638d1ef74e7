#pragma once

#include <string>
#include <string_view>

namespace tarvane {

// Reads criteria and sources from left to right. Blanks before each step are skipped; a step that doesn't
// find what it wants faults, and the text says in which criterion.
class CriterionScanner {
 public:
  explicit CriterionScanner(std::string_view text) : text_(text) {}

  std::string Name();                   // bare, up to a blank; or in [brackets]
  std::string Quoted();                 // between single quote marks
  void Word(std::string_view word);     // in any case
  bool TryWord(std::string_view word);  // false where it isn't next
  bool AtEnd();
  void End();
  std::string_view Rest() const { return text_.substr(at_); }

 private:
  void SkipBlanks();
  [[noreturn]] void Fail() const;

  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace tarvane
