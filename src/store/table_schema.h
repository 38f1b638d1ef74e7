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
    // Quoted names of the indexes that searches run on; both "" where the file hasn't them as IndexSql and
    // BeyondIndexSql make them.
    std::string index;
    std::string beyond_index;
  };

  std::string name;
  std::string quoted;
  std::vector<Column> columns;
  std::string key_index;  // quoted name of the index over the key, "" where there is none

  // -1 where there is none; names without regard to case.
  int Find(std::string_view column) const;
  // Faults where there is none.
  int Require(std::string_view column) const;
};

// Faults for a table that isn't there.
TableSchema ReadSchema(Connection& connection, std::string_view table);

// The values of a new row, in the order of the columns. Only plain literals are read.
std::vector<std::string> ReadDefaults(Connection& connection, const TableSchema& table);

// The index over a column: its name (table, underline, column) and the statement that makes it. With each but
// that of the key goes one over the texts beyond ASCII alone (prefix_ranges.h), strays behind the others.
std::string IndexName(std::string_view table, std::string_view column);
std::string IndexSql(std::string_view table, std::string_view column, bool key);
std::string BeyondIndexName(std::string_view table, std::string_view column);
std::string BeyondIndexSql(std::string_view table, std::string_view column);

}  // namespace tarvane
