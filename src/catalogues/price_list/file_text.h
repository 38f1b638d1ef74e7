#pragma once

#include <string>
#include <string_view>

namespace tarvane::catalogues {

// The text of a file as UTF-8, without a byte order mark. UTF-8 and UTF-16 are known by their marks; without
// one a text that is sound UTF-8 is taken for it, and any other for Windows-1252. Faults (the cause alone)
// where the bytes are no text.
std::string DecodeFileText(std::string_view bytes);

}  // namespace tarvane::catalogues
