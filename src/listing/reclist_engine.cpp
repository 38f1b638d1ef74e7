#include "listing/reclist_engine.h"

#include <memory>
#include <utility>

#include "listing/grid_export.h"
#include "screen/field.h"
#include "shop/shop.h"
#include "store/data_files.h"
#include "store/row_set.h"
#include "text/fault.h"

namespace tarvane::listing {

namespace {

// A line is the key, "* ", and the two columns with a blank between them.
struct LineForm {
  std::string_view file;
  std::string_view table;
  std::string_view key;
  std::string_view first;
  std::string_view second;
};
constexpr LineForm kTemplates = {data_file::kTemplates, "Templates", "ItemID", "Description", "Info1"};
constexpr LineForm kAccessories = {data_file::kAccessories, "Items", "ItemID", "SuppliersName", "ItemName"};

void Load(Shop& shop, ListBox& list, const LineForm& form) {
  const auto rows = std::make_shared<RowSet>();
  try {
    rows->Open(shop.database(form.file), form.table);
  } catch (const Fault&) {
    return;
  }
  const std::vector<int> columns = {rows->FindColumn(form.key), rows->FindColumn(form.first),
                                    rows->FindColumn(form.second)};
  list.SetLines([rows] { return rows->RecordCount(); },
                [rows, columns](std::int64_t line) -> std::string {
                  const std::vector<std::string>& cells = rows->PeekRow(line, columns);
                  return cells.empty() ? "" : cells[0] + "* " + cells[1] + " " + cells[2];
                });
}

}  // namespace

void RECLIST_ENGINE::LoadItemsList(ListBox& list) { Load(shop_, list, kTemplates); }
void RECLIST_ENGINE::LoadAccessoriesList(ListBox& list) { Load(shop_, list, kAccessories); }

void RECLIST_ENGINE::CopyFlexDataToExcel(Screen& screen, const Grid& grid, std::vector<SheetColumn> columns) {
  listing::CopyFlexDataToExcel(screen, grid, std::move(columns));
}

}  // namespace tarvane::listing
