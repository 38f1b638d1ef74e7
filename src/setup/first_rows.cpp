#include "setup/first_rows.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "setup/data_folder.h"
#include "shop/shop.h"
#include "store/data_files.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"

namespace tarvane::setup {

namespace {

namespace fs = std::filesystem;
using Values = std::vector<std::pair<std::string_view, std::string>>;

constexpr std::string_view kRowsFile = "first_rows.ini";

struct LetterFile {
  std::string_view column;
  std::string_view file;
};

constexpr std::string_view kLettersTable = "TblLetters";
constexpr LetterFile kLetterFiles[] = {
    {"TxtLetter(0)", "letters/estimate.txt"},     {"TxtLetter(1)", "letters/follow_up.txt"},
    {"TxtLetter(2)", "letters/thanks.txt"},       {"TxtLetter(3)", "letters/payment_reminder.txt"},
    {"TxtLetter(4)", "letters/promotions.txt"},   {"TxtLetter(5)", "letters/end_letter_1.txt"},
    {"TxtLetter(6)", "letters/end_letter_2.txt"}, {"TxtLetter(7)", "letters/except.txt"},
};

// The company record repeats what the settings tell of the shop.
struct Repeated {
  std::string_view column;
  std::string_view setting;
};

constexpr Repeated kCompanyDetails[] = {
    {"Company Name", "CompanyName"},
    {"Address", "CompanyAddress"},
    {"Town", "CompanyAddress1"},
    {"County", "CompanyAddress2"},
    {"Post Code", "CompanyPostCode"},
    {"Telephone No", "Telephone"},
    {"Fax No", "Fax"},
    {"Vat Number", "VatNumber"},
};

std::string ReadText(const fs::path& file) { return JoinLines(SplitLines(ReadDataFile(file))); }

Values LetterValues(const fs::path& data) {
  Values values;
  for (const auto& [column, file] : kLetterFiles) values.emplace_back(column, ReadText(data / file));
  return values;
}

Values SectionValues(const TableDefinition& table, const fs::path& data) {
  const std::string text = ReadText(data / kRowsFile);
  Values values;
  for (const ColumnDefinition& column : table.columns) {
    std::string value = ReadProfileValue(text, table.name, column.name);
    if (!value.empty()) values.emplace_back(column.name, std::move(value));
  }
  if (table.name != kCompanyTable) return values;
  for (const auto& [column, detail] : kCompanyDetails) {
    values.emplace_back(column, ReadProfileValue(text, kAdminTable, detail));
  }
  return values;
}

}  // namespace

void AddFirstRow(Database& database, const TableDefinition& table, const fs::path& data) {
  const Values values = table.name == kLettersTable ? LetterValues(data) : SectionValues(table, data);
  if (values.empty()) return;
  RowSet rows;
  rows.Open(database, table.name);
  rows.AddNew();
  for (const auto& [column, value] : values) rows.SetValue(column, value);
  rows.Update();
}

}  // namespace tarvane::setup
