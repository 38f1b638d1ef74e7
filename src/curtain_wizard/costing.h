#pragma once

#include <string>
#include <string_view>

namespace tarvane::curtain_wizard {

class MainCWizard;

// What a price with VAT at `rate` is divided by, in percent: a 1 written in front of the rate. So 17.5 makes
// 117.5 and 20 makes 120, but 5 makes 15, which is on purpose. "1" for a rate that isn't above 0.
std::string VatDivisor(std::string_view rate);

// What the item comes to by its present cost fields, without VAT, two decimals. For display while the steps
// are filled in; the totals of the item are Get Info's.
std::string CostSoFar(const MainCWizard& wizard);

}  // namespace tarvane::curtain_wizard
