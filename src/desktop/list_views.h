#pragma once

class QTableView;

#include "desktop/builders.h"

namespace tarvane::desktop {

// A table for a grid. It reads the cells that are looked at and no others, and so serves a million rows.
QTableView* MakeTable(Form& form, Grid& grid, const TableLook& look);

// A list for a list box, over its entries.
QWidget* MakeListBox(Form& form, ListBox& list);

}  // namespace tarvane::desktop
