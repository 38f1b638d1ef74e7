#include "setup/sample_catalogues.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "setup/csv.h"
#include "setup/data_folder.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"
#include "text/fault.h"

namespace tarvane::setup {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kCataloguesFolder = "catalogues";

struct SampleCatalogue {
  std::string_view file;  // its head are columns of the table; those that aren't in it keep their defaults
  std::string_view table;
};

constexpr SampleCatalogue kCatalogues[] = {
    {"products.csv", "Products"},   {"accessories.csv", "Items"}, {"suppliers.csv", "Suppliers"},
    {"templates.csv", "Templates"}, {"pricing.csv", "PopUp1"},
};

std::vector<int> ColumnsOf(const CsvRecord& head, const RowSet& rows) {
  std::vector<int> columns;
  columns.reserve(head.fields.size());
  for (const std::string& name : head.fields) {
    const int column = rows.FindColumn(name);
    if (std::ranges::find(columns, column) != columns.end())
      throw Fault(fmt::format("{} stands in the head twice.", name));
    columns.push_back(column);
  }
  return columns;
}

void AddRow(RowSet& rows, const std::vector<int>& columns, const CsvRecord& record) {
  rows.AddNew();
  for (std::size_t i = 0; i < columns.size(); ++i) rows.SetValue(columns[i], record.fields[i]);
  rows.Update();
}

void Fill(Database& database, std::string_view table, const fs::path& file) {
  const std::vector<CsvRecord> records = ReadCsv(ReadDataFile(file), file.string());
  Database::Transaction transaction(database);
  RowSet rows;
  rows.Open(database, table);
  std::vector<int> columns;
  for (const CsvRecord& record : records) {
    try {
      if (columns.empty()) {
        columns = ColumnsOf(record, rows);
      } else {
        AddRow(rows, columns, record);
      }
    } catch (const Fault& fault) {
      throw Fault(fmt::format("{}, line {}: {}", file.string(), record.line, fault.what()));
    }
  }
  transaction.Commit();
}

}  // namespace

void AddSampleRows(Database& database, const TableDefinition& table, const fs::path& data) {
  const auto* catalogue = std::ranges::find(kCatalogues, table.name, &SampleCatalogue::table);
  if (catalogue == std::end(kCatalogues)) return;
  Fill(database, table.name, data / kCataloguesFolder / catalogue->file);
}

}  // namespace tarvane::setup
