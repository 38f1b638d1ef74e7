#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

class Database;

enum class ColumnType {
  kKey,      // whole number given on insert, never reused
  kNextKey,  // the same, the largest that is there plus 1
  kText,     // at most 255 characters
  kMemo,     // unbounded
  kYesNo,    // "0" or "1"
};

struct ColumnDefinition {
  std::string_view name;
  ColumnType type = ColumnType::kText;
  std::string_view default_value = {};
  bool searched = false;  // gets an index that prefix patterns run on
};

struct TableDefinition {
  std::string_view file;  // as in data_locations.h, "Dat/Tarvane.mdb"
  std::string_view name;
  std::vector<ColumnDefinition> columns;  // in the order of their positions
  std::int64_t file_since = 0;            // the version that brought the file
};

// What each database file bears, so that it is known as one of this program, and of which version.
inline constexpr std::int64_t kApplicationId = 0x54617276;
// Raised by one with every change of the tables that lands.
inline constexpr std::int64_t kSchemaVersion = 2;

// A statement that files older than `version` need before the tables, columns and indexes that they lack are
// added as they are defined. It may count on what the steps before it did, and on nothing else.
struct UpgradeStep {
  std::int64_t version = 0;
  std::string_view table;  // the files that hold it are meant
  std::string_view sql;
};

// In the order of their versions.
const std::vector<UpgradeStep>& UpgradeSteps();

// Every table of the program, in the order tarvane-setup creates them.
const std::vector<TableDefinition>& TableDefinitions();
// Faults for a table that isn't defined.
const TableDefinition& FindTable(std::string_view name);

// Creates the table and its indexes where the table isn't there; true where it was created. A file without
// tables gets the marks of this version.
bool CreateTable(Database& database, const TableDefinition& table);

// For shops of an older version: where the jobs in `folder` are of one, the database files that have come
// since and aren't there are made, with their tables. What can't be made is left to whoever misses it.
void MakeFilesOfLaterVersions(const std::filesystem::path& folder);

// The statements that make a table, a column of one that is there, and all its indexes.
std::string TableSql(const TableDefinition& table);
std::string AddColumnSql(const TableDefinition& table, const ColumnDefinition& column);
struct IndexDefinition {
  std::string name;
  std::string sql;
};
std::vector<IndexDefinition> IndexesOf(const TableDefinition& table);

}  // namespace tarvane
