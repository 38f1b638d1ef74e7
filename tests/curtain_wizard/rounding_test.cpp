#include <gtest/gtest.h>

#include "curtain_wizard/costing.h"
#include "curtain_wizard/fabric_requirement.h"
#include "text_number/fault.h"

namespace tarvane {
namespace {

struct TextCase {
  std::string in;
  std::string out;
};

TEST(Rounding, CountsKeepWholeNumbersAndGoDownAtHalfAnEvenOne) {
  for (const auto& [in, out] : std::vector<TextCase>{{"2", "2"},
                                                     {"2.0004", "2.0004"},
                                                     {"2.0006", "3"},
                                                     {"2.05", "3"},
                                                     {"2.1", "3"},
                                                     {"2.4994", "3"},
                                                     {"2.4996", "2"},
                                                     {"2.5", "2"},
                                                     {"3.5", "4"},
                                                     {"2.51", "3"},
                                                     {"3.7037037037037", "4"},
                                                     {"8.8", "9"},
                                                     {"", ""},
                                                     {"abc", "abc"},
                                                     {"2 ", "2 "},
                                                     {"-2.3", "-1"}}) {
    EXPECT_EQ(RoundUpCount(in), out) << in;
  }
}

TEST(Rounding, MetresGoUpFromWholeNumbersToo) {
  for (const auto& [in, out] : std::vector<TextCase>{{"3", "4"},
                                                     {"3.00", "4"},
                                                     {"3.05", "4"},
                                                     {"9.11", "10"},
                                                     {"9.49", "10"},
                                                     {"9.5", "10"},
                                                     {"8.5", "8"},
                                                     {"8.51", "9"},
                                                     {"", "1"},
                                                     {"abc", "1"}}) {
    EXPECT_EQ(RoundUpMetres(in), out) << in;
  }
}

TEST(Rounding, UnitsConvertWithoutRounding) {
  EXPECT_EQ(InchesToCm("100"), "254");
  EXPECT_EQ(InchesToCm("2.0"), "5.08");
  EXPECT_EQ(CmToInches("120"), "47.244094488189");
  EXPECT_EQ(CmToInches("254"), "100");
  for (const char* bad : {"", " ", "abc", "12a", "1e308"}) {
    EXPECT_THROW(InchesToCm(bad), Fault) << bad;
  }
  EXPECT_THROW(CmToInches("12 cm"), Fault);
}

TEST(Rounding, VatDivisorIsJoinedText) {
  for (const auto& [rate, divisor] : std::vector<TextCase>{
           {"17.5", "117.5"}, {"20", "120"}, {"5", "15"}, {"0.0", "1"}, {"", "1"}, {"-5", "1"}, {"x", "1"}}) {
    EXPECT_EQ(VatDivisor(rate), divisor) << rate;
  }
}

TEST(Rounding, ThroughTextKeepsFifteenDigits) { EXPECT_EQ(ThroughText(1.0 / 3), 0.333333333333333); }

}  // namespace
}  // namespace tarvane
