#include "store/criterion_query.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

#include "store/connection.h"
#include "store/prefix_ranges.h"
#include "store/text_functions.h"
#include "text/fold.h"

namespace tarvane {

namespace {

constexpr std::string_view kWhere = " WHERE ";
constexpr std::int64_t kLargestKey = std::numeric_limits<std::int64_t>::max();

bool IsDigits(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// The keys whose text begins with `digits` (or is `digits`): 12, 120 to 129, 1200 to 1299 and so on.
std::vector<std::pair<std::int64_t, std::int64_t>> KeysBeginningWith(std::string_view digits,
                                                                     bool only_equal) {
  std::int64_t first = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), first);
  if (read.ec != std::errc() || (digits.front() == '0' && digits.size() > 1)) return {};
  std::vector<std::pair<std::int64_t, std::int64_t>> ranges = {{first, first}};
  std::int64_t width = 1;
  while (!only_equal && first > 0 && first <= kLargestKey / 10) {
    first *= 10;
    width *= 10;
    ranges.emplace_back(first, first > kLargestKey - (width - 1) ? kLargestKey : first + (width - 1));
  }
  return ranges;
}

std::string IndexedBy(const std::string& index) { return index.empty() ? "" : " INDEXED BY " + index; }

std::string LikeSql(std::string_view what) {
  return std::string(kLikeFunction) + "(" + std::string(what) + ", ?3)";
}

}  // namespace

CriterionQuery::CriterionQuery(Connection& connection, const TableSchema& table, const Criterion& criterion)
    : connection_(connection), pattern_(criterion.pattern), prefix_(criterion.pattern.ends_with('*')) {
  const TableSchema::Column& column =
      table.columns[static_cast<std::size_t>(table.Require(criterion.column))];
  if (column.key) {
    PlanKeys(table);
  } else {
    PlanColumn(table, column);
  }
}

void CriterionQuery::PlanKeys(const TableSchema& table) {
  from_ = " FROM " + table.quoted + IndexedBy(table.key_index);
  order_ = " ORDER BY rowid";
  const std::string_view digits = std::string_view(pattern_).substr(0, pattern_.size() - (prefix_ ? 1 : 0));
  if (IsPrefixPattern(pattern_) && IsDigits(digits)) {
    range_ = by_ranges_ = true;
    key_ranges_ = KeysBeginningWith(digits, !prefix_);
    where_ = " WHERE rowid BETWEEN ?1 AND ?2";
  } else if (pattern_ == "*") {
    range_ = true;
  } else {
    where_ = " WHERE " + LikeSql("rowid");
  }
}

void CriterionQuery::PlanColumn(const TableSchema& table, const TableSchema::Column& column) {
  column_ = QuotedName(column.name);
  from_ = " FROM " + table.quoted + IndexedBy(column.index);
  first_row_ = "SELECT rowid FROM " + table.quoted + " ORDER BY rowid LIMIT 1";
  const bool all = pattern_ == "*";
  if (column.index.empty()) {
    order_ = " ORDER BY " + column_ + " COLLATE " + std::string(kFoldedCollation) + ", rowid";
    if (!all) where_ = " WHERE " + LikeSql(column_);
    return;
  }
  order_ = " ORDER BY " + column_ + " COLLATE NOCASE, rowid";
  const std::string beyond = "SELECT rowid, " + column_ + " FROM " + table.quoted +
                             IndexedBy(column.beyond_index) + " WHERE " + IsBeyondSql(column_) + " AND " +
                             IsStraySql(column_);
  strays_ = beyond + " = 1" + (all ? "" : " AND " + LikeSql(column_));
  if (all) {
    range_ = true;
  } else if (IsPrefixPattern(pattern_)) {
    PlanRanges();
  } else {
    where_ = " WHERE " + LikeSql(column_);
  }
  beyond_ = beyond + " = 0" + (where_.empty() ? "" : " AND " + where_.substr(kWhere.size())) + order_;
}

void CriterionQuery::PlanRanges() {
  const SpelledPrefix spelled = SpellPrefix(pattern_.substr(0, pattern_.size() - (prefix_ ? 1 : 0)));
  range_ = spelled.exact;
  const bool whole_text = spelled.exact && !prefix_;
  const std::string folded = column_ + " COLLATE NOCASE";
  if (whole_text) {
    where_ = " WHERE " + folded + " = ?1";
  } else if (!spelled.spellings.front().empty()) {
    where_ = " WHERE " + folded + " >= ?1 AND " + folded + " < ?2";
  }
  by_ranges_ = !where_.empty();
  if (!spelled.exact) where_ += (by_ranges_ ? " AND " : " WHERE ") + LikeSql(column_);
  if (!by_ranges_) return;
  for (const std::string& spelling : spelled.spellings) {
    text_ranges_.emplace_back(spelling, whole_text ? "" : FirstBehind(spelling));
  }
}

void CriterionQuery::Read(const std::string& select, const std::function<bool(const Statement&)>& row) const {
  const bool by_pattern = where_.find("?3") != std::string::npos;
  const std::size_t ranges = by_ranges_ ? std::max(key_ranges_.size(), text_ranges_.size()) : 1;
  const bool ends = where_.find("?2") != std::string::npos;
  for (std::size_t i = 0; i < ranges; ++i) {
    Statement statement = connection_.Use(select);
    if (!key_ranges_.empty()) statement.Bind(1, key_ranges_[i].first).Bind(2, key_ranges_[i].second);
    if (!text_ranges_.empty()) statement.Bind(1, text_ranges_[i].first);
    if (!text_ranges_.empty() && ends) statement.Bind(2, text_ranges_[i].second);
    if (by_pattern) statement.Bind(3, pattern_);
    while (statement.Step()) {
      if (!row(statement)) return;
    }
  }
}

std::vector<FoldedOrder::Row> CriterionQuery::Strays() const {
  std::vector<FoldedOrder::Row> strays;
  if (strays_.empty()) return strays;
  Statement statement = connection_.Use(strays_);
  if (pattern_ != "*") statement.Bind(3, pattern_);
  while (statement.Step()) strays.push_back({std::string(statement.Text(1)), statement.Number(0)});
  return strays;
}

bool CriterionQuery::InRanges(std::string_view text) const {
  if (!by_ranges_) return true;
  return std::any_of(text_ranges_.begin(), text_ranges_.end(), [&](const TextRange& range) {
    return EqualNames(prefix_ ? text.substr(0, range.first.size()) : text, range.first);
  });
}

std::int64_t CriterionQuery::Count() const {
  std::int64_t count = 0;
  Read("SELECT count(*)" + from_ + where_, [&count](const Statement& statement) {
    count += statement.Number(0);
    return true;
  });
  for (const FoldedOrder::Row& stray : by_ranges_ ? Strays() : std::vector<FoldedOrder::Row>()) {
    if (!InRanges(stray.text)) ++count;
  }
  return count;
}

void CriterionQuery::ReadKeys(std::int64_t most, std::vector<std::int64_t>& keys) const {
  const auto enough = [&] { return static_cast<std::int64_t>(keys.size()) >= most; };
  if (strays_.empty()) {
    Read("SELECT rowid" + from_ + where_ + order_, [&](const Statement& statement) {
      keys.push_back(statement.Number(0));
      return !enough();
    });
    return;
  }
  std::vector<FoldedOrder::Row> strays = Strays();
  if (strays.empty() && most == kLargestKey) {
    ReadAllKeys(keys);
    return;
  }
  FoldedOrder order(keys, std::move(strays));
  Read("SELECT rowid, " + column_ + from_ + where_ + order_, [&](const Statement& statement) {
    order.Add(statement.Number(0), statement.Bytes(1));
    return !enough();
  });
  if (!enough()) order.Finish();
  if (enough()) keys.resize(static_cast<std::size_t>(most));
}

// Without strays only rows beyond ASCII change places, and only among each other: no other text is read.
void CriterionQuery::ReadAllKeys(std::vector<std::int64_t>& keys) const {
  const Connection::ReadTogether together(connection_);
  Read("SELECT rowid" + from_ + where_ + order_, [&keys](const Statement& statement) {
    keys.push_back(statement.Number(0));
    return true;
  });
  std::vector<std::int64_t> indexed;
  std::vector<std::int64_t> folded;
  FoldedOrder order(folded, {});
  Read(beyond_, [&](const Statement& statement) {
    indexed.push_back(statement.Number(0));
    order.Add(statement.Number(0), statement.Bytes(1));
    return true;
  });
  order.Finish();
  for (std::size_t at = 0, next = 0; at < keys.size() && next < indexed.size(); ++at) {
    if (keys[at] == indexed[next]) keys[at] = folded[next++];
  }
}

std::vector<std::int64_t> CriterionQuery::Keys() const {
  std::vector<std::int64_t> keys;
  ReadKeys(kLargestKey, keys);
  return keys;
}

std::vector<std::int64_t> CriterionQuery::FirstKeys(std::int64_t most) const {
  std::vector<std::int64_t> keys;
  ReadKeys(most, keys);
  return keys;
}

std::optional<std::int64_t> CriterionQuery::SmallestKey() const {
  std::optional<std::int64_t> smallest;
  const auto take = [&smallest](std::int64_t key) { smallest = std::min(key, smallest.value_or(key)); };
  // Along a column's index the smallest key is known at the end only; along the keys it is the first.
  const bool along_keys = strays_.empty();
  if (!along_keys && where_.empty()) {
    Statement first = connection_.Use(first_row_);
    return first.Step() ? std::optional(first.Number(0)) : std::nullopt;
  }
  Read(along_keys ? "SELECT rowid" + from_ + where_ + " ORDER BY rowid LIMIT 1"
                  : "SELECT min(rowid)" + from_ + where_,
       [&](const Statement& statement) {
         if (!statement.IsNull(0)) take(statement.Number(0));
         return !along_keys;
       });
  if (by_ranges_) {
    for (const FoldedOrder::Row& stray : Strays()) take(stray.key);
  }
  return smallest;
}

}  // namespace tarvane
