#include "catalogues/price_list/spreadsheet_reader.h"

#include "catalogues/price_list/ods_reader.h"
#include "catalogues/price_list/sheet_cells.h"
#include "catalogues/price_list/xlsx_reader.h"
#include "text/fault.h"

namespace tarvane::catalogues {

std::optional<PriceSheet> ReadSpreadsheet(const ZipParts& parts, const KeepGoing& keep_going) {
  try {
    if (parts.Has("xl/workbook.xml")) return ReadXlsx(parts, keep_going).Sheet();
    if (parts.Has("content.xml")) return ReadOds(parts, keep_going).Sheet();
  } catch (const ReadingStopped&) {
    return std::nullopt;
  }
  throw Fault("it is a packed file, but no spreadsheet");
}

}  // namespace tarvane::catalogues
