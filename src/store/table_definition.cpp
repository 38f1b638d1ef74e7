#include "store/table_definition.h"

#include <algorithm>

#include "store/connection.h"
#include "store/file_version.h"
#include "store/table_schema.h"
#include "text/fault.h"
#include "text/fold.h"

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

}  // namespace

const TableDefinition& FindTable(std::string_view name) {
  const auto& tables = TableDefinitions();
  const auto found = std::find_if(tables.begin(), tables.end(),
                                  [&](const auto& table) { return EqualNames(table.name, name); });
  if (found == tables.end()) throw Fault("There is no table \"" + std::string(name) + "\".");
  return *found;
}

std::string TableSql(const TableDefinition& table) {
  std::string columns;
  for (const ColumnDefinition& column : table.columns) {
    columns += (columns.empty() ? "" : ", ") + ColumnSql(column);
  }
  return "CREATE TABLE " + QuotedName(table.name) + " (" + columns + ")";
}

std::string AddColumnSql(const TableDefinition& table, const ColumnDefinition& column) {
  return "ALTER TABLE " + QuotedName(table.name) + " ADD COLUMN " + ColumnSql(column);
}

std::vector<IndexDefinition> IndexesOf(const TableDefinition& table) {
  std::vector<IndexDefinition> indexes;
  for (const ColumnDefinition& column : table.columns) {
    if (!column.searched) continue;
    const bool key = column.type == ColumnType::kKey;
    indexes.push_back({IndexName(table.name, column.name), IndexSql(table.name, column.name, key)});
    if (!key)
      indexes.push_back({BeyondIndexName(table.name, column.name), BeyondIndexSql(table.name, column.name)});
  }
  return indexes;
}

bool CreateTable(Database& database, const TableDefinition& table) {
  if (database.HasTable(table.name)) return false;
  Database::Transaction transaction(database);
  if (!database.HasTable("sqlite_sequence")) database.Execute(VersionMarksSql());
  database.Execute(TableSql(table));
  for (const IndexDefinition& index : IndexesOf(table)) database.Execute(index.sql);
  transaction.Commit();
  return true;
}

}  // namespace tarvane
