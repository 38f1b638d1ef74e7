#include "store/table_schema.h"

#include <algorithm>
#include <charconv>

#include "store/connection.h"
#include "store/prefix_ranges.h"
#include "text/fault.h"
#include "text/fold.h"

namespace tarvane {

namespace {

constexpr std::string_view kBeyond = "_beyond";

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

// An index that somebody made otherwise under the same name isn't one to search on.
void TakeIndex(TableSchema& schema, const std::string& name, const std::string& sql) {
  std::string_view column_name = name;
  if (!name.starts_with(schema.name + "_")) return;
  column_name.remove_prefix(schema.name.size() + 1);
  const bool beyond = column_name.ends_with(kBeyond);
  if (beyond) column_name.remove_suffix(kBeyond.size());
  const int at = schema.Find(column_name);
  if (at < 0) return;
  TableSchema::Column& column = schema.columns[static_cast<std::size_t>(at)];
  if (sql !=
      (beyond ? BeyondIndexSql(schema.name, column.name) : IndexSql(schema.name, column.name, column.key)))
    return;
  (column.key ? schema.key_index : beyond ? column.beyond_index : column.index) = QuotedName(name);
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
  std::vector<std::pair<std::string, std::string>> indexes;
  {
    Statement find =
        connection.Use("SELECT type, name, sql FROM sqlite_schema WHERE tbl_name = ?1 COLLATE NOCASE");
    find.Bind(1, table);
    while (find.Step()) {
      if (find.Text(0) == "table") schema.name = find.Text(1);
      if (find.Text(0) == "index") indexes.emplace_back(find.Text(1), find.Text(2));
    }
  }
  if (schema.name.empty()) {
    throw Fault(connection.file().string() + " has no table \"" + std::string(table) + "\".");
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
  for (const auto& [name, sql] : indexes) TakeIndex(schema, name, sql);
  for (TableSchema::Column& column : schema.columns) {
    if (column.beyond_index.empty()) column.index.clear();
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

// The index over the key alone looks needless, since the table is in that order; but its rows are narrow, so
// that counting and finding positions don't read through the wide rows of the table.
std::string IndexSql(std::string_view table, std::string_view column, bool key) {
  return "CREATE INDEX " + QuotedName(IndexName(table, column)) + " ON " + QuotedName(table) + " (" +
         QuotedName(column) + (key ? ")" : " COLLATE NOCASE)");
}

std::string BeyondIndexName(std::string_view table, std::string_view column) {
  return IndexName(table, column).append(kBeyond);
}

std::string BeyondIndexSql(std::string_view table, std::string_view column) {
  const std::string quoted = QuotedName(column);
  return "CREATE INDEX " + QuotedName(BeyondIndexName(table, column)) + " ON " + QuotedName(table) + " (" +
         IsStraySql(quoted) + ", " + quoted + " COLLATE NOCASE) WHERE " + IsBeyondSql(quoted);
}

}  // namespace tarvane
