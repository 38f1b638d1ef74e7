// Keyed settings files of data_files.h.
#include <algorithm>

#include "store/data_files.h"
#include "text/fold.h"
#include "text/trim.h"
#include "text/utf8.h"

namespace tarvane {

namespace {

constexpr std::size_t kMostCharacters = 254;

// Where a value stands in the text, or where it would go.
struct Spot {
  bool has_section = false;
  bool has_value = false;
  std::size_t begin = 0;  // of the value behind "=", or the end of the section's last line that isn't blank
  std::size_t end = 0;
};

Spot FindSpot(std::string_view text, std::string_view section, std::string_view key) {
  Spot spot;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t line_end = std::min(text.find('\n', at), text.size());
    const std::size_t next = std::min(line_end + 1, text.size());
    std::string_view line = text.substr(at, line_end - at);
    if (at == 0) line = WithoutByteOrderMark(line);
    const std::string_view trimmed = Trim(line);
    const std::size_t equals = line.find('=');
    if (trimmed.starts_with('[')) {
      if (spot.has_section) return spot;
      const std::size_t close = std::min(trimmed.find(']'), trimmed.size());
      spot.has_section = EqualNames(Trim(trimmed.substr(1, close - 1)), Trim(section));
      spot.begin = spot.end = next;
    } else if (spot.has_section && !trimmed.empty()) {
      spot.begin = spot.end = next;
      if (!trimmed.starts_with(';') && equals != std::string_view::npos &&
          EqualNames(Trim(line.substr(0, equals)), Trim(key))) {
        const std::size_t content_end = line.ends_with('\r') ? line_end - 1 : line_end;
        return {true, true, static_cast<std::size_t>(line.data() - text.data()) + equals + 1, content_end};
      }
    }
    at = next;
  }
  if (!spot.has_section) spot.begin = spot.end = text.size();
  return spot;
}

}  // namespace

std::string ReadProfileValue(std::string_view text, std::string_view section, std::string_view key) {
  const Spot spot = FindSpot(text, section, key);
  if (!spot.has_value) return {};
  std::string_view value = Trim(text.substr(spot.begin, spot.end - spot.begin));
  if (value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'')) {
    value = value.substr(1, value.size() - 2);
  }
  return std::string(FirstCharacters(value, kMostCharacters));
}

std::string WithProfileValue(std::string_view text, std::string_view section, std::string_view key,
                             std::string_view value) {
  std::string clean(value);
  std::replace_if(
      clean.begin(), clean.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  const Spot spot = FindSpot(text, section, key);
  std::string changed(text.substr(0, spot.begin));
  if (!spot.has_value) {
    if (!changed.empty() && changed.back() != '\n') changed += "\r\n";
    if (!spot.has_section) changed.append("[").append(section).append("]\r\n");
    changed.append(key).append("=");
    clean.append("\r\n");
  }
  return changed + clean + std::string(text.substr(spot.end));
}

}  // namespace tarvane
