#pragma once

#include <string>

#include "rich_text/document.h"

namespace tarvane::rich_text {

// A line for each paragraph: its place in a table and its look in brackets, then its text with the looks of
// its runs in braces where they change.
std::string Dump(const Document& document);

}  // namespace tarvane::rich_text
