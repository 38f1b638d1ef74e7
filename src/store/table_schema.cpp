#include "store/table_schema.h"

#include <algorithm>
#include <charconv>

#include "store/connection.h"
#include "store/text_fold.h"
#include "text_number/fault.h"

namespace tarvane {

namespace {

bool IsKey(const Connection& connection, const TableSchema& table, const std::string& column) {
  int primary_key = 0;
  sqlite3_table_column_metadata(connection.handle(), nullptr, table.name.c_str(), column.c_str(), nullptr,
                                nullptr, nullptr, &primary_key, nullptr);
  return primary_key != 0;
}

// "TEXT(255)" gives 255.
std::int64_t LimitOf(std::string_view type) {
  const std::size_t open = type.find('(');
  std::int64_t limit = 0;
  if (open != std::string_view::npos && EqualNames(type.substr(0, 4), "TEXT")) {
    std::from_chars(type.data() + open + 1, type.data() + type.size(), limit);
  }
  return limit;
}

std::string LiteralText(std::string_view literal) {
  if (literal.size() < 2 || literal.front() != '\'')
    return EqualNames(literal, "NULL") ? "" : std::string(literal);
  std::string text;
  for (std::size_t at = 1; at + 1 < literal.size(); ++at) {
    text += literal[at];
    if (literal[at] == '\'') ++at;
  }
  return text;
}

}  // namespace

int TableSchema::Find(std::string_view column) const {
  const auto found = std::find_if(columns.begin(), columns.end(),
                                  [&](const Column& each) { return EqualNames(each.name, column); });
  return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

int TableSchema::Require(std::string_view column) const {
  const int found = Find(column);
  if (found < 0) throw Fault("The table " + name + " has no column \"" + std::string(column) + "\".");
  return found;
}

TableSchema ReadSchema(Connection& connection, std::string_view table) {
  TableSchema schema;
  {
    Statement find =
        connection.Use("SELECT name FROM sqlite_schema WHERE type = 'table' AND name = ?1 COLLATE NOCASE");
    if (!find.Bind(1, table).Step()) {
      throw Fault(connection.file().string() + " has no table \"" + std::string(table) + "\".");
    }
    schema.name = find.Text(0);
  }
  schema.quoted = QuotedName(schema.name);
  const Statement row = connection.Use("SELECT * FROM " + schema.quoted + " WHERE rowid = ?1");
  schema.columns.resize(static_cast<std::size_t>(row.ColumnCount()));
  for (int i = 0; i < row.ColumnCount(); ++i) {
    TableSchema::Column& column = schema.columns[static_cast<std::size_t>(i)];
    const std::string_view type = row.ColumnType(i);
    column.name = row.ColumnName(i);
    column.most_characters = LimitOf(type);
    column.yes_no = EqualNames(type, "BOOLEAN");
    column.key = EqualNames(type, "INTEGER") && IsKey(connection, schema, column.name);
  }
  return schema;
}

std::vector<std::string> ReadDefaults(Connection& connection, const TableSchema& table) {
  std::vector<std::string> defaults(table.columns.size());
  Statement info = connection.Use("SELECT name, dflt_value FROM pragma_table_info(?1)");
  info.Bind(1, table.name);
  while (info.Step()) {
    const int column = table.Find(info.Text(0));
    if (column >= 0) defaults[static_cast<std::size_t>(column)] = LiteralText(info.Text(1));
  }
  return defaults;
}

std::string IndexName(std::string_view table, std::string_view column) {
  return std::string(table) + "_" + std::string(column);
}

std::string FindIndex(Connection& connection, const TableSchema& table, std::string_view column) {
  const std::string name = IndexName(table.name, column);
  Statement find =
      connection.Use("SELECT 1 FROM sqlite_schema WHERE type = 'index' AND tbl_name = ?1 AND name = ?2");
  return find.Bind(1, table.name).Bind(2, name).Step() ? QuotedName(name) : "";
}

}  // namespace tarvane
