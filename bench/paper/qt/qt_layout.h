#pragma once

#include <string>

namespace tarvane::paper {

// Gets the toolkit ready, without a display.
void StartQt();
// How many pages of 595 by 842 points, an inch around the text, its layout makes of a plain text.
int QtPagesOf(const std::string& text);

}  // namespace tarvane::paper
