#pragma once

#include "catalogues/price_list/sheet_cells.h"
#include "catalogues/price_list/zip_parts.h"

namespace tarvane::catalogues {

// The cells of the first sheet of an ODS file that has any; as ReadSpreadsheet tells.
SheetCells ReadOds(const ZipParts& parts, const KeepGoing& keep_going);

}  // namespace tarvane::catalogues
