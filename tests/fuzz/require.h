#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace tarvane {

// What holds for every input: a fuzzer keeps the one that it doesn't hold for.
inline void Require(bool holds) {
  if (!holds) std::abort();
}

inline std::string_view InputText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Takes the first line off.
inline std::string_view TakeLine(std::string_view& input) {
  const std::size_t end = std::min(input.find('\n'), input.size());
  const std::string_view line = input.substr(0, end);
  input.remove_prefix(std::min(end + 1, input.size()));
  return line;
}

}  // namespace tarvane
