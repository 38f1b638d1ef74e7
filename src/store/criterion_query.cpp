#include "store/criterion_query.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

#include "store/connection.h"
#include "store/text_fold.h"

namespace tarvane {

namespace {

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

std::string Source(const TableSchema& table, const std::string& index) {
  return " FROM " + table.quoted + (index.empty() ? "" : " INDEXED BY " + index);
}

}  // namespace

CriterionQuery::CriterionQuery(Connection& connection, const TableSchema& table, const Criterion& criterion)
    : connection_(connection), pattern_(criterion.pattern) {
  const TableSchema::Column& column =
      table.columns[static_cast<std::size_t>(table.Require(criterion.column))];
  if (column.key) {
    PlanKeys(table);
  } else {
    PlanColumn(table, column.name);
  }
}

void CriterionQuery::PlanKeys(const TableSchema& table) {
  const auto key =
      std::find_if(table.columns.begin(), table.columns.end(), [](const auto& each) { return each.key; });
  const std::string source = Source(table, FindIndex(connection_, table, key->name));
  const bool starred = pattern_.ends_with('*');
  const std::string_view digits = std::string_view(pattern_).substr(0, pattern_.size() - (starred ? 1 : 0));
  order_ = " ORDER BY rowid";
  if (IsPrefixPattern(pattern_) && IsDigits(digits)) {
    range_ = by_key_ranges_ = true;
    key_ranges_ = KeysBeginningWith(digits, !starred);
    rows_ = source + " WHERE rowid BETWEEN ?1 AND ?2";
    return;
  }
  rows_ = source;
  if (pattern_ == "*") {
    range_ = true;
    return;
  }
  rows_ += " WHERE " + std::string(kLikeFunction) + "(rowid, ?1)";
  texts_ = {pattern_};
}

void CriterionQuery::PlanColumn(const TableSchema& table, const std::string& column) {
  const std::string index = FindIndex(connection_, table, column);
  const std::string folded = QuotedName(column) + " COLLATE " + std::string(kFoldedCollation);
  order_ = " ORDER BY " + folded + ", rowid";
  rows_ = Source(table, index);
  smallest_ = "SELECT rowid FROM " + table.quoted;
  if (pattern_ == "*") {
    range_ = true;
    smallest_ += " ORDER BY rowid LIMIT 1";
    return;
  }
  const bool prefix = pattern_.ends_with('*');
  const std::string start = pattern_.substr(0, pattern_.size() - (prefix ? 1 : 0));
  const std::string behind = prefix ? FirstBehindPrefix(start) : "";
  range_ = !index.empty() && IsPrefixPattern(pattern_) && (!prefix || !behind.empty());
  if (!range_) {
    const std::string like = " WHERE " + std::string(kLikeFunction) + "(" + QuotedName(column) + ", ?1)";
    rows_ += like;
    texts_ = {pattern_};
    // The index is read to its end for the smallest key, but the table's own rows are left alone.
    smallest_ = index.empty() ? smallest_ + like + " ORDER BY rowid LIMIT 1" : "SELECT min(rowid)" + rows_;
    return;
  }
  if (prefix) {
    rows_ += " WHERE " + folded + " >= ?1 AND " + folded + " < ?2";
    texts_ = {start, behind};
  } else {
    rows_ += " WHERE " + folded + " = ?1";
    texts_ = {start};
  }
  smallest_ = "SELECT min(rowid)" + rows_;
}

std::vector<CriterionQuery::KeyRange> CriterionQuery::Bindings() const {
  return by_key_ranges_ ? key_ranges_ : std::vector<KeyRange>{{0, 0}};
}

void CriterionQuery::Bind(Statement& statement, const KeyRange& range) const {
  if (by_key_ranges_) {
    statement.Bind(1, range.first).Bind(2, range.second);
    return;
  }
  int position = 0;
  for (const std::string& text : texts_) statement.Bind(++position, text);
}

std::int64_t CriterionQuery::Count() const {
  std::int64_t count = 0;
  for (const KeyRange& range : Bindings()) {
    Statement statement = connection_.Use("SELECT count(*)" + rows_);
    Bind(statement, range);
    if (statement.Step()) count += statement.Number(0);
  }
  return count;
}

void CriterionQuery::ReadKeys(std::int64_t most, std::vector<std::int64_t>& keys) const {
  const bool limited = most != kLargestKey;
  const std::string sql = "SELECT rowid" + rows_ + order_ + (limited ? " LIMIT " + std::to_string(most) : "");
  for (const KeyRange& range : Bindings()) {
    Statement statement = connection_.Use(sql);
    Bind(statement, range);
    while (static_cast<std::int64_t>(keys.size()) < most && statement.Step())
      keys.push_back(statement.Number(0));
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
  if (smallest_.empty()) {
    const std::vector<std::int64_t> first = FirstKeys(1);
    return first.empty() ? std::nullopt : std::optional(first.front());
  }
  Statement statement = connection_.Use(smallest_);
  Bind(statement, {});
  if (!statement.Step() || statement.IsNull(0)) return std::nullopt;
  return statement.Number(0);
}

}  // namespace tarvane
