#pragma once

#include <string>
#include <utility>

namespace tarvane::script {

// The script itself is wrong: it stops here. Not a Fault: no screen may take it for one of its own.
class ScriptError {
 public:
  explicit ScriptError(std::string text) : text_(std::move(text)) {}
  // Without the line number; names the control and the screen where there are such.
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

// Unwinds everything that runs: the process ends at once.
struct ProcessEnd {};

}  // namespace tarvane::script
