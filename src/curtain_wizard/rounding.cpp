#include <cmath>

#include "curtain_wizard/fabric_requirement.h"
#include "text/fault.h"
#include "text_number/text_number.h"

namespace tarvane::curtain_wizard {
namespace {

// The three decimals of the text's number.
std::string Decimals(std::string_view text) {
  const std::string number = FormatNumber(ParseLeading(text), Mask::k0_000);
  return number.substr(number.size() - 3);
}

std::string RoundByFirstDecimal(std::string_view text, char first_decimal) {
  const double whole = RoundToWhole(text);
  return NumberText(first_decimal >= '5' ? whole : whole + 1);
}

// The text of a converted measure; too large a one faults as a bad text does.
std::string ConvertedText(double value) {
  if (!std::isfinite(value)) throw Fault("The measure is too large.");
  return NumberText(value);
}

}  // namespace

std::string RoundUpCount(std::string_view text) {
  const std::string decimals = Decimals(text);
  return decimals == "000" ? std::string(text) : RoundByFirstDecimal(text, decimals[0]);
}

std::string RoundUpMetres(std::string_view text) { return RoundByFirstDecimal(text, Decimals(text)[0]); }

std::string InchesToCm(std::string_view inches) {
  return ConvertedText(ParseStrict(inches) * 2.54 * 10 / 10);
}

std::string CmToInches(std::string_view centimetres) {
  return ConvertedText(ParseStrict(centimetres) * (1 / 2.54) * 10 / 10);
}

double ThroughText(double value) { return ParseLeading(NumberText(value)); }

}  // namespace tarvane::curtain_wizard
