#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <sstream>

#include "text_number/currency.h"
#include "text_number/decimal_reference.h"
#include "text_number/text_number.h"

namespace tarvane {
namespace {

using reference::Half;

constexpr Mask kMasks[] = {Mask::k0, Mask::k0_0, Mask::k0_00, Mask::k0_000};

TEST(NumberText, WritesPlainDecimals) {
  const std::string nought(300, '0');
  const std::string cases =
      "0=0;-0=0;84=84;-12.5=-12.5;0.30000000000000004=0.3;0.33333333333333331=0.333333333333333;"
      "0.66666666666666663=0.666666666666667;100000=100000;0.00001=0.00001;-0.000123=-0.000123;"
      "123456789012345=123456789012345;1234567890123456=1234567890123460;999999999999999.9=1000000000000000;"
      "1e21=1000000000000000000000;-1e300=-1" +
      nought + ";5e-324=0." + nought + std::string(23, '0') + "494065645841247;inf=0;-inf=0;nan=0";
  for (const auto& [value, text] : reference::Cases(cases)) {
    EXPECT_EQ(NumberText(std::strtod(value.c_str(), nullptr)), text) << value;
  }
}

// What each mask makes of a text. A result of zero has no sign; of more than fifteen digits the double's own
// fifteen count.
constexpr std::string_view kFormatCases =
    "0=0 0.0 0.00 0.000;84=84 84.0 84.00 84.000;1.015=1 1.0 1.02 1.015;-1.015=-1 -1.0 -1.02 -1.015;"
    "0.675=1 0.7 0.68 0.675;2.5=3 2.5 2.50 2.500;-2.5=-3 -2.5 -2.50 -2.500;0.5=1 0.5 0.50 0.500;"
    "0.4999=0 0.5 0.50 0.500;0.05=0 0.1 0.05 0.050;99.9995=100 100.0 100.00 100.000;9.95=10 10.0 9.95 9.950;"
    "-0=0 0.0 0.00 0.000;-0.0004=0 0.0 0.00 0.000;-0.0005=0 0.0 0.00 -0.001;"
    " 1 2.345 =12 12.3 12.35 12.345;+.5=1 0.5 0.50 0.500;007.=7 7.0 7.00 7.000;"
    "1.5e3=1500 1500.0 1500.00 1500.000;15E-3=0 0.0 0.02 0.015;1e-999=0 0.0 0.00 0.000;"
    "2.4999999999999999=3 2.5 2.50 2.500;2.49999999999999=2 2.5 2.50 2.500;"
    "1.00499999999999999999=1 1.0 1.01 1.005;"
    "1234567890123456.75=1234567890123460 1234567890123460.0 1234567890123460.00 1234567890123460.000";

TEST(Format, FollowsTheMask) {
  for (const auto& [text, results] : reference::Cases(kFormatCases)) {
    std::istringstream masked(results);
    std::string expected;
    for (const Mask mask : kMasks) {
      masked >> expected;
      EXPECT_EQ(Format(text, mask), expected) << text;
      if (mask == Mask::k0_00) {
        EXPECT_EQ(Format2(text), expected) << text;
      }
    }
  }
  for (const char* other : {"", "  ", "12 cm", "1,234.5", "N/A", "nan", "1e309"}) {
    for (const Mask mask : kMasks) EXPECT_EQ(Format(other, mask), other) << "no number";
    EXPECT_EQ(Format2(other), other);
  }
}

TEST(Format, WritesNumbersOfAnySize) {
  EXPECT_EQ(Format2("1e300"), "1" + std::string(300, '0') + ".00");
  EXPECT_EQ(Format2("-1" + std::string(300, '0')), "-1" + std::string(300, '0') + ".00");
  EXPECT_EQ(Format2("0." + std::string(1000, '0') + "1"), "0.00");
  EXPECT_EQ(FormatNumber(-1e300, Mask::k0), "-1" + std::string(300, '0'));
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::infinity(), Mask::k0_00), "0.00");
  EXPECT_EQ(FormatNumber(std::nan(""), Mask::k0_0), "0.0");
}

// Three items of 0.335, each total rounded before the next is added.
TEST(Format, RoundsRunningTotalsStepByStep) {
  std::string total = "0";
  for (const std::string expected : {"0.34", "0.68", "1.02"}) {
    total = FormatNumber(ParseLeading(total) + ParseLeading(Format2("0.335")), Mask::k0_00);
    EXPECT_EQ(total, expected);
  }
}

TEST(RoundToWhole, GoesToEven) {
  // Fifteen digits decide: the last of them are 2.5, 3.5 and 3.49999999999999.
  for (const auto& [text, expected] : reference::Cases(
           "=0;cm=0;0.5=0;1.5=2;2.5=2;3.5=4;-2.5=-2;-3.5=-4;-0.5=0;2.51=3;2.49=2;9.5=10;99.5=100;7.5 cm=8;"
           " 1 0.5=10;25e-1=2;1e300=1e300;1e-300=0;1e999=1.7976931348623157e308;"
           "2.4999999999999999=2;3.4999999999999999=4;3.49999999999999=3")) {
    EXPECT_EQ(RoundToWhole(text), std::strtod(expected.c_str(), nullptr)) << text;
  }
  EXPECT_FALSE(std::signbit(RoundToWhole("-0.2")));
}

TEST(DecimalsOnPaper, AgreeForAnyText) {
  std::mt19937_64 dice(20240612);
  for (int round = 0; round < 200000; ++round) {
    // Short fractions meet the halves; long ones go beyond fifteen digits.
    const int whole = static_cast<int>(dice() % 14) + 1, fraction = static_cast<int>(dice() % 12);
    std::string text = reference::AnyDigits(dice, whole, fraction);
    if (whole + fraction <= 15) {
      ASSERT_EQ(NumberText(ParseLeading(text)), reference::Trimmed(text));
    }
    if (fraction > 0 && dice() % 4 == 0) text += '5';
    if (dice() % 4 == 0) text = text.substr(0, text.find('.')) + ".5";
    const std::string plain = reference::FifteenDigits(ParseLeading(text));
    for (const Mask mask : kMasks) {
      const int places = static_cast<int>(mask);
      ASSERT_EQ(Format(text, mask), reference::Round(plain, places, Half::kAwayFromZero)) << text;
    }
    const std::string even = reference::Round(plain, 0, Half::kToEven);
    ASSERT_EQ(RoundToWhole(text), std::strtod(even.c_str(), nullptr)) << text;
    ASSERT_EQ(Currency::FromText(text).ToText(), reference::Trimmed(reference::Round(text, 4, Half::kToEven)))
        << text;
  }
}

TEST(DecimalsOnPaper, AgreeForAnyDouble) {
  std::mt19937_64 dice(20240613);
  for (int round = 0; round < 100000; ++round) {
    const double value = round % 2 == 0 ? reference::AnyDouble(dice)
                                        : std::ldexp(static_cast<double>(dice()), -64 + round % 60);
    const std::string text = NumberText(value), plain = reference::FifteenDigits(value);
    ASSERT_EQ(text, reference::Trimmed(plain));
    ASSERT_EQ(NumberText(ParseLeading(text)), text);
    ASSERT_LE(std::abs(ParseLeading(text) - value), std::abs(value) * 1e-14 + 5e-324) << text;
    for (const Mask mask : kMasks) {
      const std::string expected = reference::Round(plain, static_cast<int>(mask), Half::kAwayFromZero);
      ASSERT_EQ(FormatNumber(value, mask), expected);
      ASSERT_EQ(Format(text, mask), expected);
    }
  }
  const double largest = std::numeric_limits<double>::max();
  EXPECT_EQ(ParseLeading(NumberText(largest)), largest);
}

}  // namespace
}  // namespace tarvane
