#pragma once

#include <string>
#include <string_view>

#include "rich_text/document.h"

namespace tarvane::rich_text {

// Whether the bytes begin as RTF does.
bool LooksLikeRtf(std::string_view bytes);

// Reads RTF as word processors write it; destinations that it doesn't know are skipped. Never faults: of what
// is damaged or cut off it gives the text that can be read.
Document ReadRtf(std::string_view bytes);

// ASCII, so that it survives every way; other characters as \u with their fallback. What is read back is the
// same document.
std::string WriteRtf(const Document& document);

// `text` (UTF-8) so that it can stand anywhere amid raw RTF: a group in which braces, backslashes and
// characters beyond ASCII are escaped and line ends are \line. What is no UTF-8 becomes U+FFFD, control
// characters but the tab are left out.
std::string EscapeForRtf(std::string_view text);

}  // namespace tarvane::rich_text
