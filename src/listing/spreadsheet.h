#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "screen/grid.h"

namespace tarvane::listing {

struct SheetColumn {
  int column = 0;       // of the grid
  std::string heading;  // "": the grid's own
};

// Every column of the grid; the first one, which marks rows or counts them, only where it has a heading.
std::vector<SheetColumn> AllColumns(const Grid& grid);

// How many of `total` steps are done; false stops the work. Called on the thread that called.
using KeepGoing = std::function<bool(std::int64_t done, std::int64_t total)>;

// Writes a grid's rows under their headings to a file, which takes its place once it is whole: what stood
// there stands until then, and nothing is left of what faults or is stopped. False where it was stopped.
// Faults with the file and the cause, and as the grid's cells do.
//
// A workbook: bold headings, columns as wide as their contents, numbers that add up (CellOf). Faults also
// where the list is larger than a sheet, or a text longer than a cell.
bool WriteXlsx(const Grid& grid, const std::vector<SheetColumn>& columns, const std::filesystem::path& file,
               const KeepGoing& keep_going);
// Comma separated values as RFC 4180 has them, UTF-8 behind a byte order mark. Texts stand as they are, so
// that whoever reads them gets what the shop has.
bool WriteCsv(const Grid& grid, const std::vector<SheetColumn>& columns, const std::filesystem::path& file,
              const KeepGoing& keep_going);

}  // namespace tarvane::listing
