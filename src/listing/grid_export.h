#pragma once

#include <string_view>
#include <vector>

#include "listing/spreadsheet.h"
#include "screen/screen.h"

namespace tarvane::listing {

// Asks where a grid is to go, writes it there as a spreadsheet or as comma separated values (by the ending of
// the file's name; one without either gets .xlsx), and hands the file to the program that opens such files.
//
// No columns: AllColumns. `name` begins the suggested file name; "": the screen's title. Faults where the
// file can't be written.
void CopyFlexDataToExcel(Screen& screen, const Grid& grid, std::vector<SheetColumn> columns = {},
                         std::string_view name = "");

}  // namespace tarvane::listing
