#include "text/utf8.h"

#include <algorithm>

namespace tarvane {

std::size_t CountCharacters(std::string_view text) noexcept {
  return static_cast<std::size_t>(
      std::ranges::count_if(text, [](char byte) { return !ContinuesCharacter(byte); }));
}

std::string_view FirstCharacters(std::string_view text, std::size_t characters) noexcept {
  if (text.size() <= characters) return text;
  std::size_t met = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!ContinuesCharacter(text[at]) && ++met > characters) return text.substr(0, at);
  }
  return text;
}

std::string_view FirstBytes(std::string_view text, std::size_t bytes) noexcept {
  if (text.size() <= bytes) return text;
  while (bytes > 0 && ContinuesCharacter(text[bytes])) --bytes;
  return text.substr(0, bytes);
}

std::string_view WithoutLastCharacter(std::string_view text) noexcept {
  return text.empty() ? text : FirstBytes(text, text.size() - 1);
}

std::string_view WithoutByteOrderMark(std::string_view text) noexcept {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
  return text;
}

}  // namespace tarvane
