#include "text/trim.h"

namespace tarvane {

std::string OneLine(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') continue;
    line += text[at] == '\r' || text[at] == '\n' ? ' ' : text[at];
  }
  return line;
}

std::string PlainCaption(std::string_view caption) {
  std::string plain;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&' && ++at == caption.size()) break;
    plain += caption[at];
  }
  return std::string(TrimSpaces(plain));
}

}  // namespace tarvane
