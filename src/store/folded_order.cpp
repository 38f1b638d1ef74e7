#include "store/folded_order.h"

#include <algorithm>
#include <compare>
#include <cstring>

#include "text/fold.h"

namespace tarvane {

namespace {

bool InOrder(const FoldedOrder::Row& left, const FoldedOrder::Row& right) {
  const auto order = CompareFolded(left.text, right.text);
  return std::is_neq(order) ? std::is_lt(order) : left.key < right.key;
}

// How many bytes stand in front of the first byte 0 or beyond ASCII.
std::size_t PlainLength(std::string_view text) {
  constexpr std::uint64_t kOnes = 0x0101010101010101;
  constexpr std::uint64_t kHigh = 0x8080808080808080;
  std::size_t at = 0;
  for (std::uint64_t word = 0; at + sizeof word <= text.size(); at += sizeof word) {
    std::memcpy(&word, text.data() + at, sizeof word);
    if (((word | (word - kOnes)) & kHigh) != 0) break;
  }
  while (at < text.size() && text[at] > 0 && static_cast<unsigned char>(text[at]) < 0x80) ++at;
  return at;
}

}  // namespace

FoldedOrder::FoldedOrder(std::vector<std::int64_t>& keys, std::vector<Row> strays)
    : keys_(keys), strays_(std::move(strays)) {
  std::sort(strays_.begin(), strays_.end(), InOrder);
  for (const Row& row : strays_) stray_keys_.push_back(row.key);
  std::sort(stray_keys_.begin(), stray_keys_.end());
}

void FoldedOrder::Add(std::int64_t key, std::string_view text) {
  const std::size_t plain = PlainLength(text);
  if (plain < text.size()) {
    Hold(key, text, plain);
    return;
  }
  if (!run_.empty()) GiveRun();
  Give(key, text);
}

void FoldedOrder::Hold(std::int64_t key, std::string_view text, std::size_t plain) {
  if (std::binary_search(stray_keys_.begin(), stray_keys_.end(), key)) return;
  const bool same_run =
      !run_.empty() && plain == run_plain_ &&
      EqualNames(text.substr(0, plain), std::string_view(run_.front().text).substr(0, plain));
  if (!same_run) {
    GiveRun();
    run_plain_ = plain;
  }
  run_.push_back({std::string(text), key});
}

void FoldedOrder::Give(std::int64_t key, std::string_view text) {
  while (stray_ < strays_.size()) {
    const auto order = CompareFolded(strays_[stray_].text, text);
    if (std::is_gt(order) || (std::is_eq(order) && strays_[stray_].key > key)) break;
    keys_.push_back(strays_[stray_++].key);
  }
  keys_.push_back(key);
}

void FoldedOrder::GiveRun() {
  if (!std::is_sorted(run_.begin(), run_.end(), InOrder)) std::sort(run_.begin(), run_.end(), InOrder);
  for (const Row& row : run_) Give(row.key, row.text);
  run_.clear();
}

void FoldedOrder::Finish() {
  GiveRun();
  while (stray_ < strays_.size()) keys_.push_back(strays_[stray_++].key);
}

}  // namespace tarvane
