#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "store/criteria.h"
#include "store/folded_order.h"
#include "store/table_schema.h"

namespace tarvane {

class Connection;
class Statement;

// The rows of a table that meet a criterion, by their keys, in the order of the column (ignoring case), then
// the key. A plain prefix is a range, or a few, of the column's index; digits of a key are ranges of keys;
// anything else is looked for along the index, or along the table where the column has none.
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
  using TextRange = std::pair<std::string, std::string>;  // the end isn't part of it

  void PlanKeys(const TableSchema& table);
  void PlanColumn(const TableSchema& table, const TableSchema::Column& column);
  void PlanRanges();
  std::vector<FoldedOrder::Row> Strays() const;
  bool InRanges(std::string_view text) const;
  void ReadKeys(std::int64_t most, std::vector<std::int64_t>& keys) const;
  void ReadAllKeys(std::vector<std::int64_t>& keys) const;
  // `select` of the rows in each range, or of all where there is none, row by row while `row` says so.
  void Read(const std::string& select, const std::function<bool(const Statement&)>& row) const;

  Connection& connection_;
  std::string pattern_;
  std::string from_;       // " FROM table ..."
  std::string where_;      // " WHERE ..."; ?1 and ?2 are a range, ?3 the pattern
  std::string order_;      // " ORDER BY ..."
  std::string column_;     // quoted; "" for the key
  std::string first_row_;  // selects the smallest key of all rows; "" for the key
  std::string strays_;     // selects keys and texts of the strays that match; "" without an index
  std::string beyond_;     // selects those of the others beyond ASCII; the same ranges
  std::vector<KeyRange> key_ranges_;
  std::vector<TextRange> text_ranges_;
  bool by_ranges_ = false;
  bool prefix_ = false;
  bool range_ = false;
};

}  // namespace tarvane
