#include "text_number/currency.h"

#include <gmock/gmock.h>

#include "text/fault.h"
#include "text_number/decimal_reference.h"

namespace tarvane {
namespace {

TEST(Currency, ReadsAndWritesFourDecimals) {
  // Halves go to even, on all digits of the text.
  for (const auto& [text, expected] : reference::Cases(
           "0=0;-0=0;12.50=12.5;-3=-3; 1 000 =1000;.0001=0.0001;-0.0001=-0.0001;1e3=1000;1e-999=0;"
           "0.00005=0;0.00015=0.0002;0.00025=0.0002;-0.00025=-0.0002;0.000250000000000000000000000001=0.0003;"
           "0.99995=1;123456789012345.6789=123456789012345.6789;922337203685477.5807=922337203685477.5807;"
           "-922337203685477.5808=-922337203685477.5808")) {
    EXPECT_EQ(Currency::FromText(text).ToText(), expected) << text;
  }
  EXPECT_EQ(Currency().ToText(), "0");
}

TEST(Currency, FaultsOnWhatIsNoAmount) {
  for (const std::string text : {"", " ", "cm", "12 cm", "1,5", "922337203685477.5808",
                                 "-922337203685477.5809", "1e15", "-1e99999999999999999999"}) {
    EXPECT_THAT([&] { Currency::FromText(text); },
                testing::ThrowsMessage<Fault>(testing::StartsWith('"' + text + "\" is ")));
  }
}

TEST(Currency, AddsSubtractsComparesAndFaultsRatherThanWrapRound) {
  const auto a = Currency::FromText("0.1"), b = Currency::FromText("0.2"), bit = Currency::FromText("0.0001");
  EXPECT_EQ(a + b, Currency::FromText("0.3"));
  EXPECT_EQ((a - b).ToText(), "-0.1");
  EXPECT_LT(a - b, Currency());
  EXPECT_GT(b, a);
  EXPECT_NE(a, b);
  const auto largest = Currency::FromText("922337203685477.5807");
  const auto smallest = Currency::FromText("-922337203685477.5808");
  EXPECT_THROW(largest + bit, Fault);
  EXPECT_THROW(smallest - bit, Fault);
  EXPECT_THROW(Currency() - smallest, Fault);
  EXPECT_EQ(largest + smallest, Currency() - bit);
}

}  // namespace
}  // namespace tarvane
