#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <string_view>

#include "fuzz/require.h"
#include "text/fault.h"
#include "text_number/currency.h"
#include "text_number/decimal_reference.h"
#include "text_number/text_number.h"

namespace tarvane {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

// Whatever the text, its functions agree with arithmetic on paper.
void CheckNumber(std::string_view text) {
  const double leading = ParseLeading(text);
  Require(std::isfinite(leading));
  const std::string paper = reference::FifteenDigits(leading), plain = NumberText(leading);
  Require(plain == reference::Trimmed(paper) && NumberText(ParseLeading(plain)) == plain);
  const std::string even = reference::Round(paper, 0, reference::Half::kToEven);
  Require(RoundToWhole(text) == std::clamp(std::strtod(even.c_str(), nullptr), -kLargest, kLargest));
  try {
    Require(ParseStrict(text) == leading && IsNumber(text));
  } catch (const Fault&) {
    Require(!IsNumber(text));
  }
  for (const Mask mask : {Mask::k0, Mask::k0_0, Mask::k0_00, Mask::k0_000}) {
    const std::string rounded =
        reference::Round(paper, static_cast<int>(mask), reference::Half::kAwayFromZero);
    Require(FormatNumber(leading, mask) == rounded);
    Require(Format(text, mask) == (IsNumber(text) ? rounded : text));
  }
}

void CheckCurrency(std::string_view text) {
  try {
    const Currency amount = Currency::FromText(text);
    Require(IsNumber(text));
    Require(Currency::FromText(amount.ToText()) == amount);
    Require(amount - amount == Currency());
  } catch (const Fault&) {
  }
}

}  // namespace
}  // namespace tarvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = tarvane::InputText(data, size);
  tarvane::CheckNumber(text);
  tarvane::CheckCurrency(text);
  return 0;
}
