#include "rich_text/rtf.h"

#include "rich_text/rtf_reader.h"

namespace tarvane::rich_text {

bool LooksLikeRtf(std::string_view bytes) { return bytes.starts_with("{\\rtf"); }

Document ReadRtf(std::string_view bytes) { return RtfReader(bytes).Read(); }

}  // namespace tarvane::rich_text
