#include "listing/spreadsheet.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <span>
#include <string_view>

#include "listing/cell_form.h"
#include "listing/fresh_file.h"
#include "listing/row_queue.h"
#include "listing/xlsx_sheet.h"
#include "text/fault.h"

namespace tarvane::listing {

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr std::int64_t kRowsOfBatch = 512;

std::string HeadingOf(const Grid& grid, const SheetColumn& column) {
  return column.heading.empty() ? grid.Cell(0, column.column) : column.heading;
}

std::vector<std::string> HeadingsOf(const Grid& grid, const std::vector<SheetColumn>& columns) {
  std::vector<std::string> headings;
  headings.reserve(columns.size());
  for (const SheetColumn& column : columns) headings.push_back(HeadingOf(grid, column));
  return headings;
}

// The name in the grid tells as well as the one that is shown.
std::vector<bool> WhichNameThings(const Grid& grid, const std::vector<SheetColumn>& columns) {
  std::vector<bool> name;
  name.reserve(columns.size());
  for (const SheetColumn& column : columns) {
    name.push_back(NamesThings(grid.Cell(0, column.column)) || NamesThings(column.heading));
  }
  return name;
}

std::vector<int> PlacesOf(const std::vector<SheetColumn>& columns) {
  std::vector<int> places;
  places.reserve(columns.size());
  for (const SheetColumn& column : columns) places.push_back(column.column);
  return places;
}

// Rows from `first` on, as many as a batch takes.
void ReadRows(const Grid& grid, const std::vector<int>& columns, std::int64_t first, std::int64_t count,
              RowBatch& batch) {
  const std::int64_t behind = std::min(first + kRowsOfBatch, count + 1);
  batch.size = static_cast<std::size_t>(behind - first) * columns.size();
  if (batch.cells.size() < batch.size) batch.cells.resize(batch.size);
  std::span<std::string> cells(batch.cells);
  for (std::int64_t row = first; row < behind; ++row) {
    grid.ReadCells(row, columns, cells.first(columns.size()));
    cells = cells.subspan(columns.size());
  }
}

// What the writing thread does: rows as they come, then the packing.
void WriteSheet(RowQueue& queue, XlsxSheet& sheet, std::size_t width) {
  try {
    RowBatch batch;
    while (queue.Take(batch)) {
      const std::span<const std::string> cells(batch.cells.data(), batch.size);
      for (std::size_t at = 0; at < cells.size(); at += width) sheet.AddRow(cells.subspan(at, width));
      sheet.CheckRoom();
    }
    if (!queue.closed()) sheet.Finish();
  } catch (...) {
    queue.Close();
    throw;
  }
}

// Packing takes about twice as long as the rows did; how far it is nobody tells.
bool AwaitPacking(std::future<void>& written, std::int64_t rows, steady_clock::duration reading,
                  const KeepGoing& keep_going) {
  const auto start = steady_clock::now();
  bool goes_on = true;
  do {
    const double part = std::min(0.99, (steady_clock::now() - start) / (2.0 * reading));
    const auto packed = static_cast<std::int64_t>(2.0 * part * static_cast<double>(rows));
    goes_on = keep_going(rows + packed, 3 * rows) && goes_on;
  } while (written.wait_for(milliseconds(50)) != std::future_status::ready);
  return goes_on;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char byte : text) {
    if (byte == '"') quoted += '"';
    quoted += byte;
  }
  return quoted + '"';
}

void AddCsvCell(std::string& line, std::string_view text) {
  const bool plain = text.find_first_of(",\"\r\n") == std::string_view::npos;
  line += plain ? std::string(text) : Quoted(text);
}

std::string CsvLine(std::span<const std::string> cells) {
  std::string line;
  for (std::size_t at = 0; at < cells.size(); ++at) {
    if (at > 0) line += ',';
    AddCsvCell(line, cells[at]);
  }
  // A line that is empty would be none.
  if (line.empty()) line = "\"\"";
  return line + "\r\n";
}

}  // namespace

std::vector<SheetColumn> AllColumns(const Grid& grid) {
  std::vector<SheetColumn> columns;
  for (int column = 0; column < grid.ColumnCount(); ++column) {
    if (column > 0 || !grid.Cell(0, column).empty()) columns.push_back({column, ""});
  }
  return columns;
}

bool WriteXlsx(const Grid& grid, const std::vector<SheetColumn>& columns, const fs::path& file,
               const KeepGoing& keep_going) {
  const std::int64_t count = grid.RowCount();
  if (count > XlsxSheet::kMostRows) {
    throw Fault("A spreadsheet holds " + std::to_string(XlsxSheet::kMostRows) + " rows, and this list has " +
                std::to_string(count) + ". Search for fewer, or save it as comma separated values (.csv).");
  }
  FreshFile fresh(file);
  XlsxSheet sheet(fresh.path(), file, HeadingsOf(grid, columns), WhichNameThings(grid, columns));
  RowQueue queue;
  const auto start = steady_clock::now();
  std::future<void> written =
      std::async(std::launch::async, [&] { WriteSheet(queue, sheet, columns.size()); });
  // The thread ends before what it works on.
  struct Ending {
    RowQueue& queue;
    const std::future<void>& written;
    ~Ending() {
      queue.Close();
      if (written.valid()) written.wait();
    }
  } const ending{queue, written};

  const std::vector<int> places = PlacesOf(columns);
  RowBatch batch;
  for (std::int64_t row = 1; row <= count; row += kRowsOfBatch) {
    ReadRows(grid, places, row, count, batch);
    if (!queue.Put(batch)) break;
    if (!keep_going(row - 1, 3 * count)) return false;
  }
  queue.End();
  const bool goes_on = AwaitPacking(written, count, steady_clock::now() - start, keep_going);
  written.get();
  if (goes_on) fresh.Keep();
  return goes_on;
}

bool WriteCsv(const Grid& grid, const std::vector<SheetColumn>& columns, const fs::path& file,
              const KeepGoing& keep_going) {
  FreshFile fresh(file);
  fresh.Write("\uFEFF" + CsvLine(HeadingsOf(grid, columns)));
  const std::int64_t count = grid.RowCount();
  const std::vector<int> places = PlacesOf(columns);
  RowBatch batch;
  std::string lines;
  for (std::int64_t row = 1; row <= count; row += kRowsOfBatch) {
    ReadRows(grid, places, row, count, batch);
    lines.clear();
    const std::span<const std::string> cells(batch.cells.data(), batch.size);
    for (std::size_t at = 0; at < cells.size(); at += columns.size()) {
      lines += CsvLine(cells.subspan(at, columns.size()));
    }
    fresh.Write(lines);
    if (!keep_going(row - 1, count)) return false;
  }
  fresh.Keep();
  return true;
}

}  // namespace tarvane::listing
