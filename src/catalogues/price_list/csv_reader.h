#pragma once

#include <string_view>

#include "catalogues/price_list/price_sheet.h"

namespace tarvane::catalogues {

// Comma, semicolon or tab: what most of the first lines agree on, quoted pieces apart; a first line "sep=;"
// settles it.
char FindSeparator(std::string_view text);

// The lines of a text of separated values. Lines end with CR LF, LF or CR; a piece that begins with a quote
// mark goes on to the next single one, over separators and line ends, and a doubled one stands for itself.
// Faults (the cause alone) where a quote mark isn't closed, and where the list is too large.
PriceSheet ReadSeparatedText(std::string_view text);

}  // namespace tarvane::catalogues
