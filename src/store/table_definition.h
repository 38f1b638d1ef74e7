#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

class Database;

enum class ColumnType {
  kKey,    // whole number given on insert, never reused
  kText,   // at most 255 characters
  kMemo,   // unbounded
  kYesNo,  // "0" or "1"
};

struct ColumnDefinition {
  std::string_view name;
  ColumnType type = ColumnType::kText;
  std::string_view default_value = "";
  bool searched = false;  // gets an index that prefix patterns run on
};

struct TableDefinition {
  std::string_view file;  // as in data_locations.h, "Dat/Tarvane.mdb"
  std::string_view name;
  std::vector<ColumnDefinition> columns;  // in the order of their positions
};

// Every table of the program, in the order tarvane-setup creates them.
const std::vector<TableDefinition>& TableDefinitions();
// Faults for a table that isn't defined.
const TableDefinition& FindTable(std::string_view name);

// Creates the table and its indexes where the table isn't there; true where it was created.
bool CreateTable(Database& database, const TableDefinition& table);

}  // namespace tarvane
