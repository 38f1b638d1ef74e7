#include "rich_text/rtf.h"

namespace tarvane::rich_text {

bool LooksLikeRtf(std::string_view bytes) { return bytes.starts_with("{\\rtf"); }

Document ReadRtf(std::string_view bytes) { return FromPlainText(bytes); }

std::string WriteRtf(const Document& document) { return PlainText(document); }

std::string EscapeForRtf(std::string_view text) { return std::string(text); }

}  // namespace tarvane::rich_text
