#pragma once

#include <string>
#include <string_view>

namespace tarvane::catalogues {

// The price without tax, with two places, of one that includes it. `rate`: the tax in percent, as the job
// holds it; at 0 or below the price stays as it is. A price that is no number counts as 0, and stays as it is
// where there is no tax.
//
// The divisor is the text of the rate with a "1" put before it: 17.5 gives 117.5. Rates below ten get a
// wrong one: 5 divides by 15 and not by 105. That is how the shop's figures have
// always come about, and it is meant to stay so.
std::string NetPrice(std::string_view price, std::string_view rate);

}  // namespace tarvane::catalogues
