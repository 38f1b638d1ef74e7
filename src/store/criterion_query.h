#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "store/criteria.h"
#include "store/table_schema.h"

namespace tarvane {

class Connection;
class Statement;

// The rows of a table that meet a criterion, by their keys, in the order of the column (ignoring case), then
// the key. A plain prefix is a range of the column's index; digits of a key are ranges of keys; anything else
// is looked for along the index, or along the table where the column has none.
class CriterionQuery {
 public:
  // Faults for a column that isn't there.
  CriterionQuery(Connection& connection, const TableSchema& table, const Criterion& criterion);

  // Whether an index finds the rows, so that counting costs little.
  bool IsRange() const { return range_; }

  std::int64_t Count() const;
  std::vector<std::int64_t> Keys() const;
  std::vector<std::int64_t> FirstKeys(std::int64_t most) const;
  std::optional<std::int64_t> SmallestKey() const;

 private:
  using KeyRange = std::pair<std::int64_t, std::int64_t>;

  void PlanKeys(const TableSchema& table);
  void PlanColumn(const TableSchema& table, const std::string& column);
  void ReadKeys(std::int64_t most, std::vector<std::int64_t>& keys) const;
  void Bind(Statement& statement, const KeyRange& range) const;
  std::vector<KeyRange> Bindings() const;

  Connection& connection_;
  std::string pattern_;
  std::string rows_;      // " FROM table ... WHERE ..."
  std::string order_;     // " ORDER BY ..."
  std::string smallest_;  // the whole statement
  std::vector<std::string> texts_;
  std::vector<KeyRange> key_ranges_;
  bool by_key_ranges_ = false;
  bool range_ = false;
};

}  // namespace tarvane
