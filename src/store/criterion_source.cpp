#include <algorithm>
#include <string>
#include <unordered_set>
#include <utility>

#include "store/connection.h"
#include "store/row_source.h"

namespace tarvane {

namespace {

constexpr std::int64_t kFirstKeys = 64;  // a screenful; the others are read when one of them is wanted

// The rows that met a criterion when they were read, by their keys. A row stays where it is when its values
// change; a row added through this source comes last.
class CriterionSource : public RowSource {
 public:
  CriterionSource(Connection& connection, const TableSchema& table, CriterionQuery query)
      : connection_(connection), table_(table.quoted), query_(std::move(query)) {}

  std::int64_t Count() override {
    if (!complete_ && !query_.IsRange()) ReadAll();
    if (complete_) return Size();
    if (!count_) count_ = query_.Count();
    return *count_;
  }

  std::int64_t Position(const Place& place) override { return place.position; }

  std::optional<Place> First() override { return At(0); }

  std::optional<Place> Last() override {
    ReadAll();
    return At(Size() - 1);
  }

  std::optional<Place> Next(const Place& place) override { return At(place.position + 1); }
  std::vector<Place> Following(const Place& place, std::int64_t most) override {
    Want(place.position + 2);
    std::vector<Place> places;
    for (std::int64_t at = place.position + 1; at < std::min(Size(), place.position + 1 + most); ++at) {
      places.push_back({keys_[static_cast<std::size_t>(at)], at});
    }
    return places;
  }

  std::optional<Place> Previous(const Place& place) override { return At(place.position - 1); }

  std::optional<Place> At(std::int64_t position) override {
    Want(position + 1);
    if (position < 0 || position >= Size()) return std::nullopt;
    return Place{keys_[static_cast<std::size_t>(position)], position};
  }

  std::optional<Place> OfKey(std::int64_t key) override {
    ReadAll();
    const auto found = std::find(keys_.begin(), keys_.end(), key);
    return found == keys_.end() ? std::nullopt : std::optional(Place{key, found - keys_.begin()});
  }

  std::optional<Place> FindFirst(const CriterionQuery& query) override {
    ReadAll();
    std::vector<std::int64_t> found = query.Keys();
    std::sort(found.begin(), found.end());
    const auto first = std::find_if(keys_.begin(), keys_.end(), [&](std::int64_t key) {
      return std::binary_search(found.begin(), found.end(), key);
    });
    return first == keys_.end() ? std::nullopt : std::optional(Place{*first, first - keys_.begin()});
  }

  std::vector<std::int64_t> Keys(std::int64_t position, std::int64_t most) override {
    Want(position + most);
    if (position < 0 || position >= Size()) return {};
    const auto first = keys_.begin() + position;
    return {first, first + std::min(most, Size() - position)};
  }

  // What is written may move rows within the query's order: the rest of the list is read first.
  void BeforeWrite() override { ReadAll(); }

  Place Added(std::int64_t key) override {
    if (keys_.empty() || keys_.back() != key) keys_.push_back(key);
    return {key, Size() - 1};
  }

  std::optional<Place> Removed(const Place& place) override {
    keys_.erase(keys_.begin() + place.position);
    count_.reset();
    return At(place.position);
  }

  // All that went are taken out at once: one by one a long list would take for ever.
  bool Lost(const Place& place) override {
    ReadAll();
    const std::vector<std::int64_t> named = query_.Keys();
    if (std::find(named.begin(), named.end(), place.key) != named.end()) return true;
    const std::string there = "SELECT 1 FROM " + table_ + " NOT INDEXED WHERE rowid = ?1";
    std::erase_if(keys_, [&](std::int64_t key) { return !connection_.Use(there).Bind(1, key).Step(); });
    count_.reset();
    return false;
  }

  void RowsChanged(std::optional<Place>&) override { count_.reset(); }

 private:
  std::int64_t Size() const { return static_cast<std::int64_t>(keys_.size()); }

  void Want(std::int64_t count) {
    if (complete_ || count <= Size()) return;
    if (count > kFirstKeys || !keys_.empty()) {
      ReadAll();
      return;
    }
    keys_ = query_.FirstKeys(kFirstKeys);
    complete_ = Size() < kFirstKeys;
  }

  // Keys that were given out keep their positions, also where other writers have changed the order since.
  void ReadAll() {
    if (complete_) return;
    std::vector<std::int64_t> all = query_.Keys();
    if (all.size() < keys_.size() || !std::equal(keys_.begin(), keys_.end(), all.begin())) {
      const std::unordered_set<std::int64_t> known(keys_.begin(), keys_.end());
      std::erase_if(all, [&](std::int64_t key) { return known.contains(key); });
      all.insert(all.begin(), keys_.begin(), keys_.end());
    }
    keys_ = std::move(all);
    complete_ = true;
  }

  Connection& connection_;
  std::string table_;
  CriterionQuery query_;
  std::vector<std::int64_t> keys_;
  std::optional<std::int64_t> count_;
  bool complete_ = false;
};

}  // namespace

std::unique_ptr<RowSource> MakeCriterionSource(Connection& connection, const TableSchema& table,
                                               CriterionQuery query) {
  return std::make_unique<CriterionSource>(connection, table, std::move(query));
}

}  // namespace tarvane
