#pragma once

#include <memory>
#include <utility>

namespace tarvane::desktop {

// A widget, layout or other object of Qt's, for the parent or layout that takes it over.
template <typename Made, typename... Arguments>
Made* Make(Arguments&&... arguments) {
  return std::make_unique<Made>(std::forward<Arguments>(arguments)...).release();
}

}  // namespace tarvane::desktop
