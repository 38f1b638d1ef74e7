#pragma once

#include <string>
#include <string_view>

namespace tarvane {

class MainCWizard;

// The divisor that takes VAT of `rate` out of a price, as a percentage: the text "1" joined to the text of
// the rate. 17.5 gives 117.5 and 20 gives 120, but 5 gives 15: joined as text, on purpose. "1" where the rate
// is 0 or less.
std::string VatDivisor(std::string_view rate);

// What the item comes to by its present cost fields, without VAT, two decimals. For display while the steps
// are filled in; the totals of the item are Get Info's.
std::string CostSoFar(const MainCWizard& wizard);

}  // namespace tarvane
