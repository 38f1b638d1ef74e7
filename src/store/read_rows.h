#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "store/connection.h"
#include "store/table_schema.h"

namespace tarvane {

// Several rows by one statement, in the order of `keys`: SQLite gives up all it holds of a row when a
// statement is reset, so that row by row costs twice as much. `columns` is SQL for what is read ("t.*"), from
// column 1 of the statement on; `row` gets the place of the row's key in `keys`. Rows that are gone are left
// out.
void ReadRows(Connection& connection, const TableSchema& table, const std::string& columns,
              const std::vector<std::int64_t>& keys,
              const std::function<void(std::size_t, const Statement&)>& row);

}  // namespace tarvane
