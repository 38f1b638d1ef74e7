#include "blinds/element_lines.h"

#include <gtest/gtest.h>

#include "support/fake_host.h"

namespace tarvane::blinds {
namespace {

class LinesScreen : public Screen {
 public:
  explicit LinesScreen(Host& host) : Screen(host, "Lines") {}
  ElementLines Elements{this};
};

// One line, and what two passes make of it.
struct Pass {
  std::string_view total, grand_total, quantity, price;
};
struct Line {
  std::string_view quantity, price;
  Pass first, second;
};

TEST(Cal2, AddsUpBeforeItRoundsAndReadsTheRoundedNextTime) {
  constexpr Line kLines[] = {
      {"2", "45.50", {"91.00", "91.00", "2", "45.50"}, {"91.00", "91.00", "2", "45.50"}},
      {"2.5", "10", {"25.00", "25.00", "3", "10.00"}, {"30.00", "30.00", "3", "10.00"}},
      {"1.4", "10.00", {"14.00", "14.00", "1", "10.00"}, {"10.00", "10.00", "1", "10.00"}},
      {"3", "0.335", {"1.01", "1.01", "3", "0.34"}, {"1.02", "1.02", "3", "0.34"}},
      {"", "", {"0.00", "0.00", "", ""}, {"0.00", "0.00", "", ""}},
      {"0.00", "0.00", {"0.00", "0.00", "0", "0.00"}, {"0.00", "0.00", "0", "0.00"}},
      {"2 m", "10", {"20.00", "20.00", "2 m", "10.00"}, {"20.00", "20.00", "2 m", "10.00"}},
      {"2", "-10.005", {"-20.01", "-20.01", "2", "-10.01"}, {"-20.02", "-20.02", "2", "-10.01"}},
      {"1", "12,50", {"12.00", "12.00", "1", "12,50"}, {"12.00", "12.00", "1", "12,50"}},
      {"abc", "5", {"0.00", "0.00", "abc", "5.00"}, {"0.00", "0.00", "abc", "5.00"}},
  };
  for (const Line& line : kLines) {
    SCOPED_TRACE(std::string(line.quantity) + " of " + std::string(line.price));
    FakeHost host;
    LinesScreen screen(host);
    ElementLines& lines = screen.Elements;
    lines.TxtItemQty[9].SetText(line.quantity);
    lines.TxtSubTotalForItem[9].SetText(line.price);
    for (const Pass& pass : {line.first, line.second}) {
      lines.Cal2();
      EXPECT_EQ(lines.TxtItemTotal[9].text(), pass.total);
      EXPECT_EQ(lines.TxtGrandTotal.text(), pass.grand_total);
      EXPECT_EQ(lines.TxtItemQty[9].text(), pass.quantity);
      EXPECT_EQ(lines.TxtSubTotalForItem[9].text(), pass.price);
    }
  }
}

// Three lines of 0.335 are 1.005, where their rounded totals would make 1.02.
TEST(Cal2, TheGrandTotalIsThatOfTheLinesBeforeTheyAreRounded) {
  FakeHost host;
  LinesScreen screen(host);
  for (const std::size_t line : {0, 4, 9}) {
    screen.Elements.TxtItemQty[line].SetText("1");
    screen.Elements.TxtSubTotalForItem[line].SetText("0.335");
  }
  screen.Elements.Cal2();
  EXPECT_EQ(screen.Elements.TxtItemTotal[4].text(), "0.34");
  EXPECT_EQ(screen.Elements.TxtGrandTotal.text(), "1.01");
  screen.Elements.Cal2();
  EXPECT_EQ(screen.Elements.TxtGrandTotal.text(), "1.02");
}

}  // namespace
}  // namespace tarvane::blinds
