// listing_bench [ROWS]: a list of suppliers to a spreadsheet, against the library's own loop in its
// constant-memory mode over the same cells (same texts, numbers, formats, headings, widths) that lie in
// memory already. In turn, in one run; medians. Ours reads the rows from the database, tells kinds of cells,
// measures widths, checks what was packed, and brings the file to the disk.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "listing/cell_form.h"
#include "listing/spreadsheet.h"
#include "screen/screen.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"
#include "support/silent_host.h"
#include "support/temporary_folder.h"

namespace tarvane::listing {
namespace {

constexpr int kRounds = 7;

void MakeSuppliers(const std::filesystem::path& file, std::int64_t count) {
  Database database(file, Database::Mode::kCreate);
  CreateTable(database, FindTable("Suppliers"));
  database.Execute(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(count) +
      ") INSERT INTO Suppliers (SuppliersName, Telephone, CurrentBalance, CreditLimit, NumberDueDays,"
      " PaymentDiscount) SELECT printf('Tarnwater Weavers %d Ltd', i * 7919 % 99991),"
      " printf('01632 %06d', i * 31 % 960999), printf('%d.%02d', i % 4000, i % 100),"
      " printf('%d.00', i % 9 * 500), i % 4 * 15, printf('%d.5', i % 5) FROM n");
}

const std::vector<TableGrid::Column> kColumns = {
    {"SuppliersID", ""}, {"SuppliersName", ""}, {"Telephone", ""},      {"CurrentBalance", ""},
    {"CreditLimit", ""}, {"NumberDueDays", ""}, {"PaymentDiscount", ""}};

class ListScreen : public Screen {
 public:
  ListScreen(Host& host, const std::filesystem::path& file) : Screen(host, "List"), database_(file) {
    rows_.Open(database_, "Suppliers");
    List.SetSource(&rows_, kColumns);
  }
  TableGrid List{this, "List"};

 private:
  Database database_;
  RowSet rows_;
};

void WriteOurs(const Grid& grid, const std::filesystem::path& file) {
  WriteXlsx(grid, AllColumns(grid), file, [](std::int64_t, std::int64_t) { return true; });
}

struct HeldCell {
  SheetCell cell;
  std::string text;
};

std::vector<HeldCell> Hold(const Grid& grid) {
  std::vector<HeldCell> cells;
  for (std::int64_t row = 1; row <= grid.RowCount(); ++row) {
    for (int column = 1; column < grid.ColumnCount(); ++column) {
      const std::string text = grid.Cell(row, column);
      cells.push_back({CellOf(text, NamesThings(grid.Cell(0, column))), text});
    }
  }
  return cells;
}

void WritePeer(const std::vector<HeldCell>& cells, const std::string& file) {
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  lxw_workbook* book = workbook_new_opt(file.c_str(), &options);
  lxw_worksheet* sheet = workbook_add_worksheet(book, nullptr);
  std::array<lxw_format*, 4> formats{};
  const std::array<const char*, 4> masks = {nullptr, "0.0", "0.00", "0.000"};
  for (std::size_t i = 1; i < masks.size(); ++i) {
    formats[i] = workbook_add_format(book);
    format_set_num_format(formats[i], masks[i]);
  }
  lxw_format* bold = workbook_add_format(book);
  format_set_bold(bold);
  const auto width = kColumns.size();
  for (std::size_t i = 0; i < width; ++i) {
    const auto column = static_cast<lxw_col_t>(i);
    worksheet_set_column(sheet, column, column, 20, nullptr);
    worksheet_write_string(sheet, 0, column, kColumns[i].name.c_str(), bold);
  }
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const auto row = static_cast<lxw_row_t>(i / width + 1);
    const auto column = static_cast<lxw_col_t>(i % width);
    const auto& [cell, text] = cells[i];
    if (cell.kind == SheetCell::Kind::kNumber) {
      worksheet_write_number(sheet, row, column, cell.number,
                             formats[static_cast<std::size_t>(cell.decimals)]);
    } else if (cell.kind == SheetCell::Kind::kText) {
      worksheet_write_string(sheet, row, column, text.c_str(), nullptr);
    }
  }
  if (workbook_close(book) != LXW_NO_ERROR) std::exit(1);
}

struct Times {
  std::vector<double> passed;     // milliseconds
  std::vector<double> processor;  // of all threads
};

double ProcessorTime() {
  rusage usage{};
  ::getrusage(RUSAGE_SELF, &usage);
  const auto in_ms = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
  };
  return in_ms(usage.ru_utime) + in_ms(usage.ru_stime);
}

void Measure(Times& times, const std::function<void()>& step) {
  const double processor = ProcessorTime();
  const auto start = std::chrono::steady_clock::now();
  step();
  times.passed.push_back(
      std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
  times.processor.push_back(ProcessorTime() - processor);
}

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

double KilobytesOf(const std::string& what) {
  std::ifstream in("/proc/self/status");
  std::string word;
  while (in >> word) {
    double kilobytes = 0;
    if (word == what && in >> kilobytes) return kilobytes;
  }
  return 0;
}

// In a process of its own: what writing takes beyond what an open list has.
void TellMemory(const std::filesystem::path& database, const std::filesystem::path& file) {
  std::fflush(stdout);
  const pid_t child = ::fork();
  if (child == 0) {
    SilentHost host;
    const ListScreen screen(host, database);
    const std::string first = screen.List.Cell(1, 1);
    const double before = KilobytesOf("VmRSS:");
    WriteOurs(screen.List, file);
    std::printf("memory beyond the open list, at its height: %.1f MB (limit 8)\n",
                (KilobytesOf("VmHWM:") - before) / 1024);
    std::fflush(stdout);
    ::_exit(first.empty() ? 1 : 0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
}

void Run(std::int64_t count) {
  const TemporaryFolder folder;
  const std::filesystem::path database = folder.path() / "Suppliers2.mdb";
  const std::filesystem::path ours = folder.path() / "ours.xlsx";
  const std::filesystem::path csv = folder.path() / "ours.csv";
  const std::filesystem::path peer = folder.path() / "peer.xlsx";
  MakeSuppliers(database, count);
  TellMemory(database, ours);
  SilentHost host;
  const ListScreen screen(host, database);
  const std::vector<HeldCell> cells = Hold(screen.List);
  Times of_ours;
  Times of_peer;
  Times of_csv;
  for (int i = 0; i < kRounds; ++i) {
    Measure(of_ours, [&] { WriteOurs(screen.List, ours); });
    Measure(of_peer, [&] { WritePeer(cells, peer.string()); });
    Measure(of_csv, [&] {
      WriteCsv(screen.List, AllColumns(screen.List), csv, [](std::int64_t, std::int64_t) { return true; });
    });
  }
  std::printf("%lld rows of %zu columns\n", static_cast<long long>(count), kColumns.size());
  std::printf("time: ours %.0f ms, the library's loop %.0f ms, ratio %.2f (limit 1.15)\n",
              Median(of_ours.passed), Median(of_peer.passed),
              Median(of_ours.passed) / Median(of_peer.passed));
  std::printf("processor time: ours %.0f ms, the library's loop %.0f ms, ratio %.2f\n",
              Median(of_ours.processor), Median(of_peer.processor),
              Median(of_ours.processor) / Median(of_peer.processor));
  std::printf("bytes: ours %ju, the library's loop %ju\n", std::filesystem::file_size(ours),
              std::filesystem::file_size(peer));
  std::printf("comma separated values: %.0f ms\n", Median(of_csv.passed));
}

}  // namespace
}  // namespace tarvane::listing

int main(int count, char** words) {
  tarvane::listing::Run(count > 1 ? std::atoll(words[1]) : 100000);
  return 0;
}
