#pragma once

#include <cstdint>
#include <list>
#include <string>
#include <vector>

#include "store/row_source.h"

namespace tarvane {

// Rows as a grid draws them: some columns, some screenfuls at a time, the last few kept.
class RowPages {
 public:
  // Empty where there is no such row. Valid until the next call.
  const std::vector<std::string>& Row(Connection& connection, const TableSchema& table, RowSource& source,
                                      std::int64_t position, const std::vector<int>& columns);
  void Clear() { pages_.clear(); }

 private:
  struct Page {
    std::int64_t first = 0;
    std::vector<int> columns;
    std::vector<std::vector<std::string>> rows;
  };

  static Page Read(Connection& connection, const TableSchema& table, RowSource& source, std::int64_t first,
                   const std::vector<int>& columns);

  std::list<Page> pages_;  // the last used one first
};

}  // namespace tarvane
