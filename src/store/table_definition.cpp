#include "store/table_definition.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <optional>
#include <system_error>

#include "store/connection.h"
#include "store/data_files.h"
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
    case ColumnType::kNextKey:
      return name + " INTEGER PRIMARY KEY";
    case ColumnType::kText:
      return name + " TEXT(255) NOT NULL DEFAULT " + Literal(column.default_value);
    case ColumnType::kMemo:
      return name + " TEXT NOT NULL DEFAULT " + Literal(column.default_value);
    case ColumnType::kYesNo:
      return name + " BOOLEAN NOT NULL DEFAULT " + (column.default_value == "1" ? "1" : "0");
  }
  return {};
}

// The version of a database file, by its first bytes; nothing where it is none of this program. Not by a
// connection: the file is opened in a moment, and then brought up.
std::optional<std::int64_t> VersionOf(const std::filesystem::path& file) {
  constexpr std::string_view kBegin = "SQLite format 3";
  constexpr std::size_t kVersionAt = 60;
  constexpr std::size_t kApplicationAt = 68;
  std::array<char, 100> head{};
  std::ifstream in(file, std::ios::binary);
  if (!in.read(head.data(), head.size())) return std::nullopt;
  if (!std::string_view(head.data(), head.size()).starts_with(kBegin)) return std::nullopt;
  const auto number = [&head](std::size_t at) {
    std::int64_t value = 0;
    for (std::size_t i = at; i < at + 4; ++i) value = value * 256 + static_cast<unsigned char>(head.at(i));
    return value;
  };
  const std::int64_t application = number(kApplicationAt);
  if (application != kApplicationId && application != 0) return std::nullopt;
  return number(kVersionAt);
}

// Under another name until it is whole.
void MakeFile(const std::filesystem::path& path, std::string_view file) {
  const std::filesystem::path fresh = path.string() + ".new";
  std::filesystem::remove(fresh);
  {
    Database database(fresh, Database::Mode::kCreate);
    for (const TableDefinition& table : TableDefinitions()) {
      if (table.file == file) CreateTable(database, table);
    }
  }
  std::filesystem::rename(fresh, path);
  std::filesystem::remove(fresh.string() + "-journal");
}

}  // namespace

void MakeFilesOfLaterVersions(const std::filesystem::path& folder) {
  const auto version = VersionOf(FindFile(folder, data_file::kJobs));
  if (!version) return;
  for (const TableDefinition& table : TableDefinitions()) {
    const std::filesystem::path path = FindFile(folder, table.file);
    const auto is_there = [](const std::filesystem::path& file) {
      std::error_code error;
      return std::filesystem::symlink_status(file, error).type() != std::filesystem::file_type::not_found;
    };
    if (table.file_since <= *version || is_there(path) || is_there(path.string() + "-journal")) continue;
    try {
      MakeFile(path, table.file);
    } catch (const Fault&) {
    } catch (const std::filesystem::filesystem_error&) {
    }
  }
}

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
    const bool key = column.type == ColumnType::kKey || column.type == ColumnType::kNextKey;
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
