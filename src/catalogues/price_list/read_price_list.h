#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "catalogues/price_list/price_sheet.h"
#include "catalogues/price_list/spreadsheet_reader.h"

namespace tarvane::catalogues {

// A price list by its content, whatever it is called: a spreadsheet (XLSX, ODS), else a text of separated
// values. Nothing where it was stopped. Faults with the cause alone.
std::optional<PriceSheet> ReadPriceSheet(std::string_view bytes, const KeepGoing& keep_going);

// The same of a file. Faults with the file and the cause.
std::optional<PriceSheet> ReadPriceFile(const std::filesystem::path& file, const KeepGoing& keep_going);

}  // namespace tarvane::catalogues
