#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

class Connection;

// A table as its file tells it.
struct TableSchema {
  struct Column {
    std::string name;
    std::int64_t most_characters = 0;  // of a text of limited length, 0 for any other
    bool yes_no = false;
    bool key = false;
  };

  std::string name;
  std::string quoted;
  std::vector<Column> columns;

  // -1 where there is none; names without regard to case.
  int Find(std::string_view column) const;
  // Faults where there is none.
  int Require(std::string_view column) const;
};

// Faults for a table that isn't there.
TableSchema ReadSchema(Connection& connection, std::string_view table);

// The values of a new row, in the order of the columns. Only plain literals are read.
std::vector<std::string> ReadDefaults(Connection& connection, const TableSchema& table);

// Quoted name of the index over `column` alone, "" where there is none. Indexes go by their names: table,
// underline, column.
std::string FindIndex(Connection& connection, const TableSchema& table, std::string_view column);
std::string IndexName(std::string_view table, std::string_view column);

}  // namespace tarvane
