#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

#include "text/fault.h"
#include "text_number/decimal_reference.h"
#include "text_number/text_number.h"

namespace tarvane {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

// All of the text is a number. Blanks stand anywhere; the last ones are the ends of the range.
constexpr std::string_view kNumbers =
    "84=84;-12.25=-12.25;+7=7;.5=0.5;-.5=-0.5;5.=5;00012.50=12.5;1e3=1000;1.5E-2=0.015;1e+2=100;1e30 0=1e300;"
    "  1 234 . 5\t0 =1234.5;- 5=-5;1\r\n2=12;1 e - 2 =0.01;. 5=0.5;"
    "5e-324=5e-324;1e-999=0;1e-99999999999999999999=0;0e99999999999999999999=0";

// The text only begins with a number, or is none at all, whatever a C library makes of it. An exponent counts
// once it has a digit; the first other character ends the number.
constexpr std::string_view kOthers =
    "=0; \t\r\n=0;cm=0;$5=0;-=0;--5=0;+-5=0;.=0;e5=0;.e5=0;inf=0;-infinity=0;nan=0;0x1F=0;2e=2;2e-=2;"
    "2 each=2;1e2.5=100;12cm=12;12 cm=12;12,5=12;1.2.3=1.2;1-2=1;3|4~5=3;7\"=7;5\u00A06=5";

void ExpectNumber(const std::string& text, double number) {
  EXPECT_EQ(ParseLeading(text), number) << text;
  EXPECT_TRUE(IsNumber(text)) << text;
  EXPECT_EQ(ParseStrict(text), number) << text;
}

void ExpectOther(const std::string& text, double leading) {
  EXPECT_EQ(ParseLeading(text), leading) << text;
  EXPECT_FALSE(IsNumber(text)) << text;
  EXPECT_THROW(ParseStrict(text), Fault) << text;
}

TEST(Parse, ReadsTheLeadingNumberAndStrictlyNothingElse) {
  for (const auto& [text, number] : reference::Cases(kNumbers)) {
    ExpectNumber(text, std::strtod(number.c_str(), nullptr));
  }
  ExpectNumber("0." + std::string(400, '0') + "1e401", 1);
  ExpectNumber("1" + std::string(400, '0') + "e-400", 1);
  ExpectNumber("." + std::string(100000, '0') + " 1e100001", 1);
  for (const auto& [text, leading] : reference::Cases(kOthers)) {
    ExpectOther(text, std::strtod(leading.c_str(), nullptr));
  }
  ExpectOther({'4', '\0', '5'}, 4);
  ExpectOther("-1e99999999999999999999", -kLargest);
  for (const std::string& large : {std::string("1e999"), std::string("1 e999"), std::string(400, '9')}) {
    ExpectOther(large, kLargest);
  }
}

TEST(Parse, FaultNamesTheText) {
  // A long text is cut short, between two letters.
  std::string long_text = std::string(79, 'x');
  for (int i = 0; i < 1000; ++i) long_text += "é";
  const std::pair<std::string, std::string> faults[] = {
      {"12 cm", "\"12 cm\" is not a number."},
      {"", "\"\" is not a number."},
      {"1e999", "\"1e999\" is too large a number."},
      {long_text, '"' + std::string(79, 'x') + "...\" is not a number."}};
  for (const auto& [text, told] : faults) {
    EXPECT_THAT([&number = text] { ParseStrict(number); }, testing::ThrowsMessage<Fault>(told));
  }
}

// Digits beyond those that tell two doubles apart still decide where they fall halfway.
TEST(Parse, RoundsLongTextsToTheNearestDouble) {
  const std::string halfway = "9007199254740993";  // between two doubles, the lower of them even
  for (const char* point : {".", " ."}) {
    const std::string text = halfway + point + std::string(5000, '0');
    EXPECT_EQ(ParseLeading(text), 9007199254740992.0);
    EXPECT_EQ(ParseLeading(text + "1"), 9007199254740994.0);
  }
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
