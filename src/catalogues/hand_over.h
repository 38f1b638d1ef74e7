#pragma once

#include <functional>
#include <string_view>

namespace tarvane::catalogues {

// Takes what a worker picked in a catalogue: the text that names it, and its price.
using TakePicked = std::function<void(std::string_view text, std::string_view price)>;

}  // namespace tarvane::catalogues
