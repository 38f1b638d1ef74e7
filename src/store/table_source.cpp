#include <algorithm>
#include <string>

#include "store/connection.h"
#include "store/row_source.h"

namespace tarvane {

namespace {

// All rows of a table in the order of their key. Neighbours are found by key; positions are counted along the
// narrow index of the key, or worked out where no key is missing between the first and the last.
class TableSource : public RowSource {
 public:
  TableSource(Connection& connection, const TableSchema& table)
      : connection_(connection), table_(table.quoted), rows_(table.quoted + " NOT INDEXED") {
    narrow_ = table.key_index.empty() ? table_ : table_ + " INDEXED BY " + table.key_index;
  }

  std::int64_t Count() override {
    if (!count_) count_ = Ask("SELECT count(*) FROM " + table_, {}).value_or(0);
    return *count_;
  }

  std::int64_t Position(const Place& place) override {
    if (place.position >= 0) return place.position;
    const Extent& extent = KnownExtent();
    if (extent.without_gaps) return place.key - extent.first;
    return Ask("SELECT count(*) FROM " + narrow_ + " WHERE rowid < ?1", {place.key}).value_or(0);
  }

  std::optional<Place> First() override {
    return PlaceOf(Ask("SELECT rowid FROM " + rows_ + " ORDER BY rowid LIMIT 1", {}), 0);
  }

  std::optional<Place> Last() override {
    return PlaceOf(Ask("SELECT rowid FROM " + rows_ + " ORDER BY rowid DESC LIMIT 1", {}),
                   count_ ? *count_ - 1 : -1);
  }

  std::optional<Place> Next(const Place& place) override {
    return PlaceOf(
        Ask("SELECT rowid FROM " + rows_ + " WHERE rowid > ?1 ORDER BY rowid LIMIT 1", {place.key}),
        place.position >= 0 ? place.position + 1 : -1);
  }

  std::vector<Place> Following(const Place& place, std::int64_t most) override {
    std::vector<Place> places;
    Statement next =
        connection_.Use("SELECT rowid FROM " + rows_ + " WHERE rowid > ?1 ORDER BY rowid LIMIT ?2");
    next.Bind(1, place.key).Bind(2, most);
    for (std::int64_t position = place.position; next.Step();) {
      places.push_back({next.Number(0), position >= 0 ? ++position : -1});
    }
    return places;
  }

  std::optional<Place> Previous(const Place& place) override {
    return PlaceOf(
        Ask("SELECT rowid FROM " + rows_ + " WHERE rowid < ?1 ORDER BY rowid DESC LIMIT 1", {place.key}),
        place.position > 0 ? place.position - 1 : -1);
  }

  std::optional<Place> At(std::int64_t position) override {
    if (position < 0 || position >= Count()) return std::nullopt;
    const Extent& extent = KnownExtent();
    if (extent.without_gaps) return Place{extent.first + position, position};
    const Place anchor = NearestAnchor(position);
    const bool onward = position >= anchor.position;
    const std::string sql = "SELECT rowid FROM " + narrow_ + " WHERE rowid " +
                            (onward ? ">= ?1 ORDER BY rowid" : "<= ?1 ORDER BY rowid DESC") +
                            " LIMIT 1 OFFSET ?2";
    const auto key = Ask(sql, {anchor.key, onward ? position - anchor.position : anchor.position - position});
    if (key) anchor_ = Place{*key, position};
    return PlaceOf(key, position);
  }

  std::optional<Place> OfKey(std::int64_t key) override { return Place{key, -1}; }

  std::optional<Place> FindFirst(const CriterionQuery& query) override {
    return PlaceOf(query.SmallestKey(), -1);
  }

  std::vector<std::int64_t> Keys(std::int64_t position, std::int64_t most) override {
    std::vector<std::int64_t> keys;
    const std::optional<Place> first = At(position);
    if (!first) return keys;
    Statement statement =
        connection_.Use("SELECT rowid FROM " + narrow_ + " WHERE rowid >= ?1 ORDER BY rowid LIMIT ?2");
    statement.Bind(1, first->key).Bind(2, most);
    while (statement.Step()) keys.push_back(statement.Number(0));
    return keys;
  }

  void BeforeWrite() override {}

  Place Added(std::int64_t key) override {
    if (count_) ++*count_;
    if (extent_ && extent_->without_gaps && key == extent_->last + 1) {
      extent_->last = key;
    } else {
      extent_.reset();
    }
    return {key, -1};
  }

  std::optional<Place> Removed(const Place& place) override {
    if (count_) --*count_;
    extent_.reset();
    anchor_.reset();
    std::optional<Place> next = Next(place);
    if (next) next->position = place.position;
    return next;
  }

  bool Lost(const Place& place) override {
    std::optional<Place> none;
    RowsChanged(none);
    return Ask("SELECT 1 FROM " + narrow_ + " WHERE rowid = ?1", {place.key}).has_value();
  }

  void RowsChanged(std::optional<Place>& place) override {
    count_.reset();
    extent_.reset();
    anchor_.reset();
    if (place) place->position = -1;
  }

 private:
  struct Extent {
    std::int64_t first = 0;
    std::int64_t last = -1;
    bool without_gaps = false;
  };

  std::optional<std::int64_t> Ask(const std::string& sql, std::initializer_list<std::int64_t> values) {
    Statement statement = connection_.Use(sql);
    int position = 0;
    for (const std::int64_t value : values) statement.Bind(++position, value);
    return statement.Step() ? std::optional(statement.Number(0)) : std::nullopt;
  }

  static std::optional<Place> PlaceOf(std::optional<std::int64_t> key, std::int64_t position) {
    return key ? std::optional(Place{*key, position}) : std::nullopt;
  }

  const Extent& KnownExtent() {
    if (!extent_) {
      const auto first = First();
      const auto last = Last();
      extent_ = Extent{};
      if (first && last) *extent_ = {first->key, last->key, last->key - first->key + 1 == Count()};
    }
    return *extent_;
  }

  Place NearestAnchor(std::int64_t position) {
    const Place first{KnownExtent().first, 0};
    const Place last{KnownExtent().last, Count() - 1};
    Place nearest = position < last.position - position ? first : last;
    if (anchor_ && std::abs(anchor_->position - position) < std::abs(nearest.position - position))
      nearest = *anchor_;
    return nearest;
  }

  Connection& connection_;
  std::string table_;
  std::string rows_;  // read without an index, which could name rows that aren't there
  std::string narrow_;
  std::optional<std::int64_t> count_;
  std::optional<Extent> extent_;
  std::optional<Place> anchor_;  // where the last position was found
};

}  // namespace

std::unique_ptr<RowSource> MakeTableSource(Connection& connection, const TableSchema& table) {
  return std::make_unique<TableSource>(connection, table);
}

}  // namespace tarvane
