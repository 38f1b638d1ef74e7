#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "store/criterion_query.h"

namespace tarvane {

// Where a row stands in a source. Its position, from 0, isn't always known.
struct Place {
  std::int64_t key = 0;
  std::int64_t position = -1;
};

// The rows of a row set as places in an order; it knows keys, never values. Every step may fault with what
// SQLite refuses.
class RowSource {
 public:
  virtual ~RowSource() = default;

  virtual std::int64_t Count() = 0;
  virtual std::int64_t Position(const Place& place) = 0;
  virtual std::optional<Place> First() = 0;
  virtual std::optional<Place> Last() = 0;
  virtual std::optional<Place> Next(const Place& place) = 0;
  virtual std::vector<Place> Following(const Place& place, std::int64_t most) = 0;
  virtual std::optional<Place> Previous(const Place& place) = 0;
  virtual std::optional<Place> At(std::int64_t position) = 0;
  virtual std::optional<Place> OfKey(std::int64_t key) = 0;
  virtual std::optional<Place> FindFirst(const CriterionQuery& query) = 0;
  // Keys from `position` on, at most `most`.
  virtual std::vector<std::int64_t> Keys(std::int64_t position, std::int64_t most) = 0;

  // Before this row set writes; after it has added a row; after a row has gone: gives the one behind it.
  virtual void BeforeWrite() = 0;
  virtual Place Added(std::int64_t key) = 0;
  virtual std::optional<Place> Removed(const Place& place) = 0;
  // The row of a place that was given isn't there: others have removed rows. True where an index still names
  // it: then the file is damaged.
  virtual bool Lost(const Place& place) = 0;
  // Others have added or removed rows: counts are old, and the position of `place`, where there is one.
  virtual void RowsChanged(std::optional<Place>& place) = 0;
};

std::unique_ptr<RowSource> MakeTableSource(Connection& connection, const TableSchema& table);
std::unique_ptr<RowSource> MakeCriterionSource(Connection& connection, const TableSchema& table,
                                               CriterionQuery query);

}  // namespace tarvane
