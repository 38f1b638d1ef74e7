#pragma once

#include <filesystem>

#include "rich_text/document.h"

namespace tarvane::printing {

// The text of a file: rich text, or any other text, which gets `style` and `font`. Faults with the file and
// the cause where it isn't there, can't be read, is too large or holds no text.
rich_text::Document OpenTextFile(const std::filesystem::path& file, const rich_text::CharStyle& style,
                                 std::string_view font);

}  // namespace tarvane::printing
