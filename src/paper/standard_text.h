#pragma once

#include <string>
#include <string_view>

#include "paper/surface.h"

// What becomes of a text that is set in the standard fonts of PDF files.
namespace tarvane::paper {

// `text` (UTF-8) with what looks alike in place of some characters that these fonts lack (other blanks,
// hyphens), and without those that nobody sees: control characters, marks of direction and of joining. Plain
// text comes back as it is; `room` holds another one.
std::string_view StandardText(std::string_view text, std::string& room);

// The same in the codes that such a font is measured and drawn by; "?" for what it lacks.
std::string StandardCodes(std::string_view text);

// Adds to `lacking` the characters of a StandardText that become "?", each once.
void AddLacking(std::string_view text, std::string& lacking);

}  // namespace tarvane::paper
