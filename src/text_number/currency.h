#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvane {

// An amount of money with four decimals, exact up to 922,337,203,685,477.5807 either side of zero. It comes
// from text and goes to text by name only, so that no amount passes through a double unseen.
class Currency {
 public:
  constexpr Currency() = default;

  // The amount that the whole of `text` is, read as ParseStrict reads and rounded half to even on all of its
  // digits. Faults for an empty text, one that isn't a number, and one too large.
  static Currency FromText(std::string_view text);

  // Plain decimals without trailing zeros: "12.5", "-0.0001", "0".
  std::string ToText() const;

  // Both fault where the result is too large.
  Currency operator+(Currency other) const;
  Currency operator-(Currency other) const;

  auto operator<=>(const Currency&) const = default;

 private:
  constexpr explicit Currency(std::int64_t ten_thousandths) : ten_thousandths_(ten_thousandths) {}

  std::int64_t ten_thousandths_ = 0;
};

}  // namespace tarvane
