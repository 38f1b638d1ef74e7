#include "store/read_rows.h"

#include <map>

namespace tarvane {

namespace {

// Few lengths, so that few statements are kept; what isn't needed stays NULL and finds nothing.
std::size_t LengthFor(std::size_t keys) {
  std::size_t length = 16;
  while (length < keys) length *= 4;
  return length;
}

// One marker for each key; made once for each length.
const std::string& KeysSql(std::size_t length) {
  static std::map<std::size_t, std::string> made;
  std::string& sql = made[length];
  if (sql.empty()) {
    sql = "WITH keys(k) AS (VALUES (?1)";
    for (std::size_t i = 2; i <= length; ++i) sql += ",(?" + std::to_string(i) + ")";
    sql += ") SELECT k, ";
  }
  return sql;
}

}  // namespace

void ReadRows(Connection& connection, const TableSchema& table, const std::string& columns,
              const std::vector<std::int64_t>& keys,
              const std::function<void(std::size_t, const Statement&)>& row) {
  if (keys.empty()) return;
  Statement rows = connection.Use(KeysSql(LengthFor(keys.size())) + columns + " FROM keys CROSS JOIN " +
                                  table.quoted + " AS t WHERE t.rowid = k");
  for (std::size_t i = 0; i < keys.size(); ++i) rows.Bind(static_cast<int>(i) + 1, keys[i]);
  for (std::size_t at = 0; rows.Step(); ++at) {
    while (at < keys.size() && keys[at] != rows.Number(0)) ++at;
    if (at == keys.size()) return;
    row(at, rows);
  }
}

}  // namespace tarvane
