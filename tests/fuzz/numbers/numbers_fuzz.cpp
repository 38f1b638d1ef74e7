#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "text_number/currency.h"
#include "text_number/fault.h"
#include "text_number/text_number.h"

namespace tarvane {
namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void CheckParse(std::string_view text) {
  const double leading = ParseLeading(text);
  Require(std::isfinite(leading));
  Require(std::isfinite(RoundToWhole(text)));
  const std::string plain = NumberText(leading);
  Require(plain.find_first_not_of("-.0123456789") == std::string::npos);
  Require(NumberText(ParseLeading(plain)) == plain);
  try {
    Require(ParseStrict(text) == leading && IsNumber(text));
  } catch (const Fault&) {
    Require(!IsNumber(text));
  }
}

void CheckFormat(std::string_view text) {
  for (const Mask mask : {Mask::k0, Mask::k0_0, Mask::k0_00, Mask::k0_000}) {
    const std::string formatted = Format(text, mask);
    Require(Format(formatted, mask) == formatted);
    if (!IsNumber(text)) {
      Require(formatted == text);
      continue;
    }
    Require(formatted == FormatNumber(ParseStrict(text), mask));
    const auto places = static_cast<std::size_t>(mask);
    const auto point = formatted.find('.');
    Require(places == 0 ? point == std::string::npos : formatted.size() - point == places + 1);
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
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  tarvane::CheckParse(text);
  tarvane::CheckFormat(text);
  tarvane::CheckCurrency(text);
  return 0;
}
