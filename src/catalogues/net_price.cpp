#include "catalogues/net_price.h"

#include "text_number/text_number.h"

namespace tarvane::catalogues {

std::string NetPrice(std::string_view price, std::string_view rate) {
  if (ParseLeading(rate) <= 0) return Format2(price);
  const double divisor = ParseLeading("1" + std::string(rate));
  return FormatNumber(ParseLeading(price) / divisor * 100, Mask::k0_00);
}

}  // namespace tarvane::catalogues
