#include "store/table_definition.h"

#include <algorithm>

#include "store/connection.h"
#include "store/table_schema.h"
#include "store/text_fold.h"
#include "text_number/fault.h"

namespace tarvane {

namespace {

std::string Literal(std::string_view text) {
  std::string literal = "'";
  for (const char c : text) literal += c == '\'' ? std::string("''") : std::string(1, c);
  return literal + '\'';
}

std::string ColumnSql(const ColumnDefinition& column) {
  const std::string name = QuotedName(column.name);
  switch (column.type) {
    case ColumnType::kKey:
      return name + " INTEGER PRIMARY KEY AUTOINCREMENT";
    case ColumnType::kText:
      return name + " TEXT(255) NOT NULL DEFAULT " + Literal(column.default_value);
    case ColumnType::kMemo:
      return name + " TEXT NOT NULL DEFAULT " + Literal(column.default_value);
    case ColumnType::kYesNo:
      return name + " BOOLEAN NOT NULL DEFAULT " + (column.default_value == "1" ? "1" : "0");
  }
  return {};
}

std::string TableSql(const TableDefinition& table) {
  std::string columns;
  for (const ColumnDefinition& column : table.columns) {
    columns += (columns.empty() ? "" : ", ") + ColumnSql(column);
  }
  return "CREATE TABLE " + QuotedName(table.name) + " (" + columns + ")";
}

// The index over the key alone looks needless, since the table is in that order; but its rows are narrow, so
// that counting and finding positions don't read through the wide rows of the table.
std::string IndexSql(const TableDefinition& table, const ColumnDefinition& column) {
  const std::string order =
      column.type == ColumnType::kKey ? "" : " COLLATE " + std::string(kFoldedCollation);
  return "CREATE INDEX " + QuotedName(IndexName(table.name, column.name)) + " ON " + QuotedName(table.name) +
         " (" + QuotedName(column.name) + order + ")";
}

}  // namespace

const TableDefinition& FindTable(std::string_view name) {
  const auto& tables = TableDefinitions();
  const auto found = std::find_if(tables.begin(), tables.end(),
                                  [&](const auto& table) { return EqualNames(table.name, name); });
  if (found == tables.end()) throw Fault("There is no table \"" + std::string(name) + "\".");
  return *found;
}

bool CreateTable(Database& database, const TableDefinition& table) {
  if (database.HasTable(table.name)) return false;
  Database::Transaction transaction(database);
  database.Execute(TableSql(table));
  for (const ColumnDefinition& column : table.columns) {
    if (column.searched) database.Execute(IndexSql(table, column));
  }
  transaction.Commit();
  return true;
}

}  // namespace tarvane
