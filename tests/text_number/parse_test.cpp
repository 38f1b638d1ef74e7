#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include "text_number/decimal_reference.h"
#include "text_number/fault.h"
#include "text_number/text_number.h"

namespace tarvane {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

struct ParseCase {
  std::string text;
  double leading;
  bool whole;
};

const ParseCase kParseCases[] = {
    {"", 0, false},
    {" \t\r\n", 0, false},
    {"84", 84, true},
    {"-12.25", -12.25, true},
    {"+7", 7, true},
    {".5", 0.5, true},
    {"-.5", -0.5, true},
    {"5.", 5, true},
    {"00012.50", 12.5, true},
    // Blanks stand anywhere.
    {"  1 234 . 5\t0 ", 1234.5, true},
    {"- 5", -5, true},
    {"1\r\n2", 12, true},
    {"1 e - 2 ", 0.01, true},
    {". 5", 0.5, true},
    // An exponent counts once it has a digit.
    {"1e3", 1000, true},
    {"1.5E-2", 0.015, true},
    {"1e+2", 100, true},
    {"1e30 0", 1e300, true},
    {"2e", 2, false},
    {"2e-", 2, false},
    {"2 each", 2, false},
    {"1e2.5", 100, false},
    // The first other character ends the number.
    {"12cm", 12, false},
    {"12 cm", 12, false},
    {"12,5", 12, false},
    {"1.2.3", 1.2, false},
    {"1-2", 1, false},
    {"3|4~5", 3, false},
    {"7\"", 7, false},
    {"5\xC2\xA0"
     "6",
     5, false},
    {std::string("4\0"
                 "5",
                 3),
     4, false},
    // No number at all, whatever a C library makes of it.
    {"cm", 0, false},
    {"$5", 0, false},
    {"-", 0, false},
    {"--5", 0, false},
    {"+-5", 0, false},
    {".", 0, false},
    {"e5", 0, false},
    {".e5", 0, false},
    {"inf", 0, false},
    {"-infinity", 0, false},
    {"nan", 0, false},
    {"0x1F", 0, false},
    // The ends of the range.
    {"5e-324", 5e-324, true},
    {"1e-999", 0, true},
    {"1e-99999999999999999999", 0, true},
    {"0e99999999999999999999", 0, true},
    {"1e999", kLargest, false},
    {"-1e99999999999999999999", -kLargest, false},
    {"1 e999", kLargest, false},
    {std::string(400, '9'), kLargest, false},
    {"0." + std::string(400, '0') + "1e401", 1, true},
    {"1" + std::string(400, '0') + "e-400", 1, true},
    {"." + std::string(100000, '0') + " 1e100001", 1, true},
};

TEST(Parse, ReadsTheLeadingNumber) {
  for (const auto& [text, leading, whole] : kParseCases) EXPECT_EQ(ParseLeading(text), leading) << text;
}

TEST(Parse, StrictlyTakesOnlyWholeNumbers) {
  for (const auto& [text, leading, whole] : kParseCases) {
    EXPECT_EQ(IsNumber(text), whole) << text;
    if (whole) {
      EXPECT_EQ(ParseStrict(text), leading) << text;
    } else {
      EXPECT_THROW(ParseStrict(text), Fault) << text;
    }
  }
}

std::string FaultOf(std::string_view text) {
  try {
    ParseStrict(text);
  } catch (const Fault& fault) {
    return fault.what();
  }
  return "no fault";
}

TEST(Parse, FaultNamesTheText) {
  EXPECT_EQ(FaultOf("12 cm"), "\"12 cm\" is not a number.");
  EXPECT_EQ(FaultOf(""), "\"\" is not a number.");
  EXPECT_EQ(FaultOf("1e999"), "\"1e999\" is too large a number.");
  // A long text is cut short, between two letters.
  std::string long_text = std::string(79, 'x');
  for (int i = 0; i < 1000; ++i) long_text += "\xC3\xA9";
  EXPECT_EQ(FaultOf(long_text), '"' + std::string(79, 'x') + "...\" is not a number.");
}

// Digits beyond those that tell two doubles apart still decide where they fall halfway.
TEST(Parse, RoundsLongTextsToTheNearestDouble) {
  const std::string halfway = "9007199254740993";  // between two doubles, the lower of them even
  EXPECT_EQ(ParseLeading(halfway + "." + std::string(5000, '0')), 9007199254740992.0);
  EXPECT_EQ(ParseLeading(halfway + "." + std::string(5000, '0') + "1"), 9007199254740994.0);
  EXPECT_EQ(ParseLeading(halfway + " ." + std::string(5000, '0')), 9007199254740992.0);
  EXPECT_EQ(ParseLeading(halfway + " ." + std::string(5000, '0') + "1"), 9007199254740994.0);
}

// The C library reads the same texts once their blanks are gone.
TEST(Parse, AgreesWithTheCLibraryOnRandomTexts) {
  constexpr std::string_view kLetters = "0123456789012345678901234567890123456789....eE+-  \t\n,m";
  std::mt19937_64 dice(20240611);
  int numbers = 0;
  for (int round = 0; round < 200000; ++round) {
    std::string text;
    std::string solid;
    for (auto length = dice() % 24; length > 0; --length) {
      const char letter = kLetters[dice() % kLetters.size()];
      text += letter;
      if (std::string_view(" \t\n").find(letter) == std::string_view::npos) solid += letter;
    }
    char* stop = nullptr;
    const double expected = std::strtod(solid.c_str(), &stop);
    const bool whole = !solid.empty() && *stop == '\0' && std::isfinite(expected);
    ASSERT_EQ(ParseLeading(text), std::clamp(expected, -kLargest, kLargest)) << text;
    ASSERT_EQ(IsNumber(text), whole) << text;
    numbers += whole;
  }
  EXPECT_GT(numbers, 5000);
}

}  // namespace
}  // namespace tarvane
