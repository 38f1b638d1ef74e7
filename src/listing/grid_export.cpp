#include "listing/grid_export.h"

#include <algorithm>
#include <optional>

#include "screen/busy.h"
#include "text/fold.h"
#include "text/trim.h"

namespace tarvane::listing {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kXlsx = ".xlsx";
constexpr std::string_view kCsv = ".csv";
constexpr std::string_view kFilter = "Spreadsheet (*.xlsx)|*.xlsx|Comma separated values (*.csv)|*.csv";

// "Your Suppliers 2026-11-23.xlsx"; signs that file names can't have on some disk are left out.
std::string SuggestedName(std::string_view name, Day day) {
  std::string kept;
  std::ranges::copy_if(name, std::back_inserter(kept), [](char byte) {
    return static_cast<unsigned char>(byte) >= ' ' &&
           std::string_view("/\\:*?\"<>|").find(byte) == std::string_view::npos;
  });
  const std::string_view trimmed = TrimSpaces(kept);
  return std::string(trimmed.empty() ? "List" : trimmed) + " " + IsoDate(day) + std::string(kXlsx);
}

bool EndsIn(const fs::path& file, std::string_view ending) {
  return EqualNames(file.extension().string(), ending);
}

// Nothing where the worker doesn't go on.
std::optional<fs::path> AskForFile(Screen& screen, std::string_view name) {
  Host& host = screen.host();
  std::optional<fs::path> file =
      host.ChooseFile(FileChoice::kSave, "Copy to Spreadsheet", kFilter, SuggestedName(name, host.Now().day));
  if (!file || EndsIn(*file, kXlsx) || EndsIn(*file, kCsv)) return file;
  *file += kXlsx;
  std::error_code error;
  const bool replaces = fs::exists(fs::symlink_status(*file, error));
  // The question before was about another name.
  if (replaces && !screen.AskYesNo("Copy to Spreadsheet", file->string() + " is there already.\nReplace it?",
                                   Answer::kNo, Icon::kWarning)) {
    return std::nullopt;
  }
  return file;
}

bool Write(Screen& screen, const Grid& grid, const std::vector<SheetColumn>& columns, const fs::path& file) {
  constexpr std::int64_t kParts = 100;
  const Busy busy(screen.host());
  Progress progress(screen.host(), "Writing the spreadsheet", kParts * Progress::kStepsUnseen);
  const auto write = EndsIn(file, kCsv) ? WriteCsv : WriteXlsx;
  return write(grid, columns, file, [&progress](std::int64_t done, std::int64_t total) {
    return progress.Step(kParts * done / total * Progress::kStepsUnseen);
  });
}

}  // namespace

void CopyFlexDataToExcel(Screen& screen, const Grid& grid, std::vector<SheetColumn> columns,
                         std::string_view name) {
  if (columns.empty()) columns = AllColumns(grid);
  if (grid.RowCount() < 1 || columns.empty()) return screen.Message("No Data to extract");
  const std::optional<fs::path> file = AskForFile(screen, name.empty() ? screen.title() : name);
  if (!file) return;
  if (!Write(screen, grid, columns, *file)) {
    return screen.Message("Stopped. Nothing was written to " + file->string() + ".");
  }
  std::string told = "Data has been successfully copied to Excel. ";
  try {
    screen.host().Launch(file->string());
  } catch (const Fault&) {
    told += "\nNo program was found that opens it. The file is\n" + file->string();
  }
  screen.Message(told, "Success", Icon::kInformation);
}

}  // namespace tarvane::listing
