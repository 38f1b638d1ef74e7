#include "setup/piece.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>

#include "setup/data_folder.h"
#include "setup/first_rows.h"
#include "setup/sample_catalogues.h"
#include "store/data_files.h"
#include "store/database.h"
#include "store/table_definition.h"

namespace tarvane::setup {

namespace {

namespace fs = std::filesystem;

// Stand in the data folder under the same names.
constexpr std::string_view kTextFiles[] = {
    data_file::kSettings,      data_file::kCheckListCaptions, data_file::kWizardOptions,
    data_file::kCurtainList,   data_file::kTieBacksList,      data_file::kTieBacksStyleList,
    data_file::kTrimmingsList, data_file::kCheckList,         data_file::kSalesPersonsList,
};
// Copied to the byte: of the barcode's tables line ends stand between the lines only, and letters are what a
// word processor may have written.
constexpr std::string_view kExactFiles[] = {
    data_file::kBarcodeSymbols,  data_file::kBarcodePatterns, data_file::kEstimateLetter,
    data_file::kStatementLetter, data_file::kReminderLetter,  data_file::kReceiptLetter,
};
constexpr std::string_view kFontsFolder = "Fonts";

void MakeDatabase(const fs::path& file, std::string_view name, const fs::path& data, bool sample) {
  // Gives the database the rights of all files that are laid down.
  ReplaceFile(file, "");
  Database database(file, Database::Mode::kCreate);
  Database::Transaction transaction(database);
  for (const TableDefinition& table : TableDefinitions()) {
    if (table.file != name) continue;
    CreateTable(database, table);
    AddFirstRow(database, table, data);
    if (sample) AddSampleRows(database, table, data);
  }
  transaction.Commit();
}

void AddDatabases(std::vector<LaidDownPiece>& pieces, const fs::path& data, bool sample) {
  std::vector<std::string_view> names;
  for (const TableDefinition& table : TableDefinitions()) {
    if (std::ranges::find(names, table.file) == names.end()) names.push_back(table.file);
  }
  for (const std::string_view name : names) {
    pieces.push_back({std::string(name), [name, data, sample](const fs::path& file) {
                        MakeDatabase(file, name, data, sample);
                      }});
  }
}

void AddTextFiles(std::vector<LaidDownPiece>& pieces, const fs::path& data) {
  for (const std::string_view name : kTextFiles) {
    pieces.push_back({std::string(name), [name, data](const fs::path& file) {
                        ReplaceFile(file, JoinLines(SplitLines(ReadDataFile(data / name))));
                      }});
  }
}

void AddExactFiles(std::vector<LaidDownPiece>& pieces, const fs::path& data) {
  for (const std::string_view name : kExactFiles) {
    pieces.push_back({std::string(name),
                      [name, data](const fs::path& file) { ReplaceFile(file, ReadDataFile(data / name)); }});
  }
}

void AddFonts(std::vector<LaidDownPiece>& pieces, const fs::path& data) {
  std::error_code error;
  std::vector<fs::path> sources;
  for (const auto& entry : fs::directory_iterator(data / kFontsFolder, error))
    sources.push_back(entry.path());
  std::ranges::sort(sources);
  for (const fs::path& source : sources) {
    pieces.push_back({fmt::format("{}/{}", kFontsFolder, source.filename().string()),
                      [source](const fs::path& file) { ReplaceFile(file, ReadDataFile(source)); }});
  }
}

}  // namespace

std::vector<LaidDownPiece> LaidDownPieces(const fs::path& data, bool sample) {
  std::vector<LaidDownPiece> pieces;
  AddDatabases(pieces, data, sample);
  AddTextFiles(pieces, data);
  AddExactFiles(pieces, data);
  AddFonts(pieces, data);
  return pieces;
}

}  // namespace tarvane::setup
