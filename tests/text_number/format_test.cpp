#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include "text_number/decimal_reference.h"
#include "text_number/text_number.h"

namespace tarvane {
namespace {

using reference::Half;

constexpr Mask kMasks[] = {Mask::k0, Mask::k0_0, Mask::k0_00, Mask::k0_000};

TEST(NumberText, WritesPlainDecimals) {
  const std::pair<double, std::string> kCases[] = {
      {0, "0"},
      {-0.0, "0"},
      {84, "84"},
      {-12.5, "-12.5"},
      {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333333333"},
      {2.0 / 3, "0.666666666666667"},
      {100000, "100000"},
      {0.00001, "0.00001"},
      {-0.000123, "-0.000123"},
      {123456789012345, "123456789012345"},
      {1234567890123456, "1234567890123460"},
      {999999999999999.9, "1000000000000000"},
      {1e21, "1" + std::string(21, '0')},
      {-1e300, "-1" + std::string(300, '0')},
      {5e-324, "0." + std::string(323, '0') + "494065645841247"},
      {std::numeric_limits<double>::infinity(), "0"},
      {-std::numeric_limits<double>::infinity(), "0"},
      {std::nan(""), "0"},
  };
  for (const auto& [value, text] : kCases) EXPECT_EQ(NumberText(value), text);
}

TEST(NumberText, KeepsFifteenDigitsOfAnyDouble) {
  std::mt19937_64 dice(15);
  for (int round = 0; round < 100000; ++round) {
    const double value = reference::AnyDouble(dice);
    const std::string text = NumberText(value);
    ASSERT_EQ(text, reference::Trimmed(reference::FifteenDigits(value)));
    ASSERT_EQ(NumberText(ParseLeading(text)), text);
    ASSERT_LE(std::abs(ParseLeading(text) - value), std::abs(value) * 1e-14 + 5e-324) << text;
  }
  const double largest = std::numeric_limits<double>::max();
  EXPECT_EQ(ParseLeading(NumberText(largest)), largest);
}

TEST(NumberText, GivesTextsOfFifteenDigitsBack) {
  std::mt19937_64 dice(16);
  for (int round = 0; round < 100000; ++round) {
    const int whole = static_cast<int>(dice() % 14) + 1;
    std::string text = reference::AnyDigits(dice, whole, 15 - whole);
    const std::size_t sign = text[0] == '-';
    text[sign] = static_cast<char>('1' + dice() % 9);
    ASSERT_EQ(NumberText(ParseLeading(text)), reference::Trimmed(text));
  }
}

struct FormatCase {
  std::string text;
  std::string masked[4];
};

const FormatCase kFormatCases[] = {
    {"0", {"0", "0.0", "0.00", "0.000"}},
    {"84", {"84", "84.0", "84.00", "84.000"}},
    {"1.015", {"1", "1.0", "1.02", "1.015"}},
    {"0.675", {"1", "0.7", "0.68", "0.675"}},
    {"-1.015", {"-1", "-1.0", "-1.02", "-1.015"}},
    {"2.5", {"3", "2.5", "2.50", "2.500"}},
    {"-2.5", {"-3", "-2.5", "-2.50", "-2.500"}},
    {"0.5", {"1", "0.5", "0.50", "0.500"}},
    {"0.4999", {"0", "0.5", "0.50", "0.500"}},
    {"0.05", {"0", "0.1", "0.05", "0.050"}},
    {"99.9995", {"100", "100.0", "100.00", "100.000"}},
    {"9.95", {"10", "10.0", "9.95", "9.950"}},
    // A result of zero has no sign.
    {"-0", {"0", "0.0", "0.00", "0.000"}},
    {"-0.0004", {"0", "0.0", "0.00", "0.000"}},
    {"-0.0005", {"0", "0.0", "0.00", "-0.001"}},
    // However the number is written.
    {" 1 2.345 ", {"12", "12.3", "12.35", "12.345"}},
    {"+.5", {"1", "0.5", "0.50", "0.500"}},
    {"007.", {"7", "7.0", "7.00", "7.000"}},
    {"1.5e3", {"1500", "1500.0", "1500.00", "1500.000"}},
    {"15E-3", {"0", "0.0", "0.02", "0.015"}},
    {"1e-999", {"0", "0.0", "0.00", "0.000"}},
    // Digits beyond the fifteenth count by the double's own fifteen.
    {"2.4999999999999999", {"3", "2.5", "2.50", "2.500"}},
    {"2.49999999999999", {"2", "2.5", "2.50", "2.500"}},
    {"1.00499999999999999999", {"1", "1.0", "1.01", "1.005"}},
    {"1234567890123456.75",
     {"1234567890123460", "1234567890123460.0", "1234567890123460.00", "1234567890123460.000"}},
    // What is no number stays as it is.
    {"", {"", "", "", ""}},
    {"  ", {"  ", "  ", "  ", "  "}},
    {"12 cm", {"12 cm", "12 cm", "12 cm", "12 cm"}},
    {"1,234.5", {"1,234.5", "1,234.5", "1,234.5", "1,234.5"}},
    {"N/A", {"N/A", "N/A", "N/A", "N/A"}},
    {"nan", {"nan", "nan", "nan", "nan"}},
    {"1e309", {"1e309", "1e309", "1e309", "1e309"}},
};

TEST(Format, FollowsTheMask) {
  for (const auto& [text, masked] : kFormatCases) {
    for (const Mask mask : kMasks) EXPECT_EQ(Format(text, mask), masked[static_cast<int>(mask)]) << text;
    EXPECT_EQ(Format2(text), masked[2]);
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

TEST(Format, AgreesWithDecimalsOnPaper) {
  std::mt19937_64 dice(20240612);
  for (int round = 0; round < 100000; ++round) {
    const int whole = static_cast<int>(dice() % 9) + 1;
    // Short fractions meet the halves; long ones go beyond fifteen digits.
    std::string text = reference::AnyDigits(dice, whole, static_cast<int>(dice() % 12));
    if (dice() % 4 == 0) text += '5';
    const std::string plain = reference::FifteenDigits(ParseLeading(text));
    for (const Mask mask : kMasks) {
      ASSERT_EQ(Format(text, mask), reference::Round(plain, static_cast<int>(mask), Half::kAwayFromZero))
          << text;
    }
  }
}

TEST(Format, AgreesWithDecimalsOnPaperForAnyDouble) {
  std::mt19937_64 dice(20240613);
  for (int round = 0; round < 50000; ++round) {
    const double value = round % 2 == 0 ? reference::AnyDouble(dice)
                                        : std::ldexp(static_cast<double>(dice()), -64 + round % 60);
    const std::string plain = reference::FifteenDigits(value);
    for (const Mask mask : kMasks) {
      const std::string expected = reference::Round(plain, static_cast<int>(mask), Half::kAwayFromZero);
      ASSERT_EQ(FormatNumber(value, mask), expected);
      ASSERT_EQ(Format(NumberText(value), mask), expected);
    }
  }
}

TEST(RoundToWhole, GoesToEven) {
  const std::pair<std::string, double> kCases[] = {
      {"", 0},
      {"cm", 0},
      {"0.5", 0},
      {"1.5", 2},
      {"2.5", 2},
      {"3.5", 4},
      {"-2.5", -2},
      {"-3.5", -4},
      {"-0.5", 0},
      {"2.51", 3},
      {"2.49", 2},
      {"9.5", 10},
      {"99.5", 100},
      {"7.5 cm", 8},
      {" 1 0.5", 10},
      {"25e-1", 2},
      {"1e300", 1e300},
      {"1e-300", 0},
      {"1e999", std::numeric_limits<double>::max()},
      // Fifteen digits decide: these are 2.5 and 2.49999999999999.
      {"2.4999999999999999", 2},
      {"3.4999999999999999", 4},
      {"3.49999999999999", 3},
  };
  for (const auto& [text, expected] : kCases) EXPECT_EQ(RoundToWhole(text), expected) << text;
  EXPECT_FALSE(std::signbit(RoundToWhole("-0.2")));
}

TEST(RoundToWhole, AgreesWithDecimalsOnPaper) {
  std::mt19937_64 dice(20240614);
  for (int round = 0; round < 100000; ++round) {
    const int whole = static_cast<int>(dice() % 12) + 1;
    std::string text = reference::AnyDigits(dice, whole, static_cast<int>(dice() % 6));
    if (dice() % 2 == 0) text = text.substr(0, text.find('.')) + ".5";
    const std::string plain = reference::FifteenDigits(ParseLeading(text));
    ASSERT_EQ(RoundToWhole(text), std::strtod(reference::Round(plain, 0, Half::kToEven).c_str(), nullptr))
        << text;
  }
}

}  // namespace
}  // namespace tarvane
