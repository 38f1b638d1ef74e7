#pragma once

#include <vector>

#include "listing/spreadsheet.h"

namespace tarvane {
class ListBox;
class Screen;
class Shop;
}  // namespace tarvane

namespace tarvane::listing {

// Fills a list with one short line for each row of a table: its key, "* ", and what names the row. What
// stands before the first star of a line is therefore the key of its row.
//
// Lines are made as they are looked at: a table of a million rows is there at once. They follow what is
// written to the table; ListBox::LinesChanged tells faces to count them anew. A table that can't be had
// leaves the list as it is.
class RECLIST_ENGINE {
 public:
  // `shop` must outlive the lists that are loaded.
  explicit RECLIST_ENGINE(Shop& shop) : shop_(shop) {}

  void LoadItemsList(ListBox& list);        // the templates of the item wizard
  void LoadAccessoriesList(ListBox& list);  // the accessories

  // A grid to a spreadsheet (grid_export.h).
  static void CopyFlexDataToExcel(Screen& screen, const Grid& grid, std::vector<SheetColumn> columns = {});

 private:
  Shop& shop_;
};

}  // namespace tarvane::listing
