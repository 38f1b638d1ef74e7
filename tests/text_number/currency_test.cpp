#include "text_number/currency.h"

#include <gtest/gtest.h>

#include <random>

#include "text_number/decimal_reference.h"
#include "text_number/fault.h"

namespace tarvane {
namespace {

TEST(Currency, ReadsAndWritesFourDecimals) {
  const std::pair<std::string, std::string> kCases[] = {
      {"0", "0"},
      {"-0", "0"},
      {"12.50", "12.5"},
      {"-3", "-3"},
      {" 1 000 ", "1000"},
      {".0001", "0.0001"},
      {"-0.0001", "-0.0001"},
      {"1e3", "1000"},
      // Halves go to even, on all digits of the text.
      {"0.00005", "0"},
      {"0.00015", "0.0002"},
      {"0.00025", "0.0002"},
      {"-0.00025", "-0.0002"},
      {"0.000250000000000000000000000001", "0.0003"},
      {"0.99995", "1"},
      {"123456789012345.6789", "123456789012345.6789"},
      {"922337203685477.5807", "922337203685477.5807"},
      {"-922337203685477.5808", "-922337203685477.5808"},
      {"1e-999", "0"},
  };
  for (const auto& [text, expected] : kCases) EXPECT_EQ(Currency::FromText(text).ToText(), expected) << text;
  EXPECT_EQ(Currency().ToText(), "0");
}

TEST(Currency, FaultsOnWhatIsNoAmount) {
  for (const std::string text : {"", " ", "cm", "12 cm", "1,5", "922337203685477.5808",
                                 "-922337203685477.5809", "1e15", "-1e99999999999999999999"}) {
    try {
      const Currency amount = Currency::FromText(text);
      ADD_FAILURE() << text << " gave " << amount.ToText();
    } catch (const Fault& fault) {
      EXPECT_EQ(std::string(fault.what()).rfind('"' + text + "\" is ", 0), 0U) << fault.what();
    }
  }
}

TEST(Currency, AddsSubtractsAndCompares) {
  const auto a = Currency::FromText("0.1");
  const auto b = Currency::FromText("0.2");
  EXPECT_EQ(a + b, Currency::FromText("0.3"));
  EXPECT_EQ((a - b).ToText(), "-0.1");
  EXPECT_LT(a - b, Currency());
  EXPECT_GT(b, a);
  EXPECT_NE(a, b);
}

TEST(Currency, FaultsRatherThanWrapRound) {
  const auto largest = Currency::FromText("922337203685477.5807");
  const auto smallest = Currency::FromText("-922337203685477.5808");
  const auto bit = Currency::FromText("0.0001");
  EXPECT_THROW(largest + bit, Fault);
  EXPECT_THROW(smallest - bit, Fault);
  EXPECT_THROW(Currency() - smallest, Fault);
  EXPECT_EQ(largest + smallest, Currency() - bit);
}

TEST(Currency, AgreesWithDecimalsOnPaper) {
  std::mt19937_64 dice(20240615);
  for (int round = 0; round < 100000; ++round) {
    const int whole = static_cast<int>(dice() % 14) + 1;
    std::string text = reference::AnyDigits(dice, whole, static_cast<int>(dice() % 8));
    // Leading zeros are the paper's, not the amount's.
    const std::size_t sign = text[0] == '-';
    text[sign] = static_cast<char>('1' + dice() % 9);
    const std::string expected = reference::Trimmed(reference::Round(text, 4, reference::Half::kToEven));
    ASSERT_EQ(Currency::FromText(text).ToText(), expected) << text;
  }
}

}  // namespace
}  // namespace tarvane
