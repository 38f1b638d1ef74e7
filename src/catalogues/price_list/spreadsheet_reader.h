#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "catalogues/price_list/price_sheet.h"
#include "catalogues/price_list/zip_parts.h"

namespace tarvane::catalogues {

// Told what was done so far; false to stop.
using KeepGoing = std::function<bool(std::int64_t done)>;

// The first sheet that has something in it. Cells come as the file stores them, formulas by their stored
// result, and where there is none as the formula's text with "=" in front; nothing is worked out. Numbers are
// written in plain decimals, dates as yyyy-mm-dd. Nothing where it was stopped. Faults (the cause alone)
// where the parts are no spreadsheet (XLSX, ODS), can't be read, or hold more than a price list may.
std::optional<PriceSheet> ReadSpreadsheet(const ZipParts& parts, const KeepGoing& keep_going);

}  // namespace tarvane::catalogues
