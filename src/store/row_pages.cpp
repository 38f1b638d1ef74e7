#include "store/row_pages.h"

#include <algorithm>

#include "store/connection.h"
#include "store/read_rows.h"

namespace tarvane {

namespace {

constexpr std::int64_t kRowsOfPage = 64;
constexpr std::size_t kMostPages = 6;

std::string ColumnsSql(const TableSchema& table, const std::vector<int>& columns) {
  std::string sql;
  for (const int column : columns) {
    sql += sql.empty() ? "t." : ", t.";
    sql += QuotedName(table.columns[static_cast<std::size_t>(column)].name);
  }
  return sql.empty() ? "''" : sql;
}

}  // namespace

RowPages::Page RowPages::Read(Connection& connection, const TableSchema& table, RowSource& source,
                              std::int64_t first, const std::vector<int>& columns) {
  Page page{first, columns, {}};
  const Connection::ReadTogether together(connection);
  const std::vector<std::int64_t> keys = source.Keys(first, kRowsOfPage);
  page.rows.resize(keys.size());
  ReadRows(connection, table, ColumnsSql(table, columns), keys, [&](std::size_t at, const Statement& row) {
    for (std::size_t i = 0; i < columns.size(); ++i)
      page.rows[at].emplace_back(row.Text(static_cast<int>(i) + 1));
  });
  return page;
}

const std::vector<std::string>& RowPages::Row(Connection& connection, const TableSchema& table,
                                              RowSource& source, std::int64_t position,
                                              const std::vector<int>& columns) {
  static const std::vector<std::string> none;
  if (position < 0) return none;
  const std::int64_t first = position - position % kRowsOfPage;
  const auto found = std::find_if(pages_.begin(), pages_.end(), [&](const Page& page) {
    return page.first == first && page.columns == columns;
  });
  if (found != pages_.end()) {
    pages_.splice(pages_.begin(), pages_, found);
  } else {
    pages_.push_front(Read(connection, table, source, first, columns));
    if (pages_.size() > kMostPages) pages_.pop_back();
  }
  const Page& page = pages_.front();
  const auto row = static_cast<std::size_t>(position - first);
  return row < page.rows.size() ? page.rows[row] : none;
}

}  // namespace tarvane
