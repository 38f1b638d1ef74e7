#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane {

// Brings rows that come in the order of a NOCASE index into the order of the folded texts, then of the keys.
// The two orders differ among texts that are one up to a character beyond ASCII; those come in one run, which
// is held back and sorted. Strays (prefix_ranges.h) come apart and are put in between.
class FoldedOrder {
 public:
  struct Row {
    std::string text;
    std::int64_t key = 0;
  };

  // Keys are put behind those in `keys`. `strays`: in any order; one that also comes by Add is left out
  // there.
  FoldedOrder(std::vector<std::int64_t>& keys, std::vector<Row> strays);

  void Add(std::int64_t key, std::string_view text);
  // Behind the last row.
  void Finish();

 private:
  void Hold(std::int64_t key, std::string_view text, std::size_t plain);
  void Give(std::int64_t key, std::string_view text);
  void GiveRun();

  std::vector<std::int64_t>& keys_;
  std::vector<Row> strays_;  // in the order to come
  std::vector<std::int64_t> stray_keys_;
  std::size_t stray_ = 0;  // the next one
  std::vector<Row> run_;
  std::size_t run_plain_ = 0;  // bytes in front of the first one beyond ASCII, or 0
};

}  // namespace tarvane
