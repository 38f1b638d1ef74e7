#pragma once

#include <stdexcept>
#include <string>

namespace tarvane {

// The one exception of the system: a step that could not be done. The text is one a user can read; it names
// the place (file, field) and the cause.
class Fault : public std::runtime_error {
 public:
  explicit Fault(const std::string& text) : std::runtime_error(text) {}
};

}  // namespace tarvane
