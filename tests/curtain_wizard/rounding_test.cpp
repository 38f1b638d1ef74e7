#include <gtest/gtest.h>

#include "curtain_wizard/costing.h"
#include "curtain_wizard/fabric_requirement.h"
#include "play.h"
#include "text/fault.h"

namespace tarvane::curtain_wizard {
namespace {

// Each word of `cases` is what goes in and, behind an arrow, what comes out.
void ExpectEach(std::string (*function)(std::string_view), std::string_view cases) {
  for (const std::string& word : Words(cases)) {
    const std::size_t arrow = word.find("->");
    EXPECT_EQ(function(word.substr(0, arrow)), word.substr(arrow + 2)) << word;
  }
}

TEST(Rounding, CountsKeepWholeNumbersAndGoDownAtHalfAnEvenOne) {
  ExpectEach(RoundUpCount,
             "2->2 2.0004->2.0004 2.0006->3 2.05->3 2.1->3 2.4994->3 2.4996->2 2.5->2 3.5->4 2.51->3 "
             "3.7037037037037->4 8.8->9 ''-> abc->abc '2 ->2 ' -2.3->-1");
}

TEST(Rounding, MetresGoUpFromWholeNumbersToo) {
  ExpectEach(RoundUpMetres, "3->4 3.00->4 3.05->4 9.11->10 9.49->10 9.5->10 8.5->8 8.51->9 ''->1 abc->1");
}

TEST(Rounding, UnitsConvertWithoutRounding) {
  ExpectEach(InchesToCm, "100->254 2.0->5.08");
  ExpectEach(CmToInches, "120->47.244094488189 254->100");
  for (const char* bad : {"", " ", "abc", "12a", "1e308"}) EXPECT_THROW(InchesToCm(bad), Fault) << bad;
  EXPECT_THROW(CmToInches("12 cm"), Fault);
}

TEST(Rounding, VatDivisorIsJoinedText) {
  ExpectEach(VatDivisor, "17.5->117.5 20->120 5->15 0.0->1 ''->1 -5->1 x->1");
}

TEST(Rounding, ThroughTextKeepsFifteenDigits) { EXPECT_EQ(ThroughText(1.0 / 3), 0.333333333333333); }

}  // namespace
}  // namespace tarvane::curtain_wizard
