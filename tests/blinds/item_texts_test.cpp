#include "blinds/item_texts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvane::blinds {
namespace {

const std::string kRule = std::string(58, '-') + "~";

ItemTexts Blind() {
  ItemTexts item;
  item.lines = {"1001", "Room 3", "Roller blind"};
  item.lines[10] = "fitted";
  item.elements[0] = {"Blind", "2", "45.50", "91.00"};
  item.elements[9] = {"Cord", "1", "2.00", "2.00"};
  item.grand_total = "93.00";
  return item;
}

std::string Tildes(int count) { return std::string(static_cast<std::size_t>(count), '~'); }

TEST(ItemRecord, HasItsTextsInAnOrderOfTheirOwn) {
  EXPECT_EQ(WriteRecord(ItemTexts()), Tildes(42));
  EXPECT_EQ(WriteRecord(Blind()), "1001~Room 3~Roller blind" + Tildes(8) + "fitted~Blind" + Tildes(9) +
                                      "Cord~2" + Tildes(9) + "1~45.50" + Tildes(9) + "2.00~93.00~");
}

TEST(ItemRecord, ComesBackWithoutItsTotals) {
  const std::string record = WriteRecord(Blind());
  ItemTexts expected = Blind();
  expected.grand_total = "";
  const ItemTexts item = ReadRecord(record);
  EXPECT_EQ(WriteRecord(item), WriteRecord(expected));
  EXPECT_EQ(item.elements[0].total, "");
}

// Token n of a record is where?
TEST(ItemRecord, OddRecordsAreReadAsFarAsTheyGo) {
  struct Case {
    std::string record;
    std::string_view first, second, last_price;
  };
  const Case cases[] = {
      {"", "", "", ""},
      {"no end", "", "", ""},
      {"one~two, no end", "one", "", ""},
      {"one\r\ntwo~\r~", "one\r\ntwo", "\r", ""},
      {"a~b~" + Tildes(38) + "price~total~", "a", "b", "price"},
      // A "~" in a text: everything behind it is one place off.
      {"a~b~c~" + Tildes(38) + "price~total~", "a", "b", ""},
      {"a~b~" + Tildes(38) + "price~" + Tildes(500), "a", "b", "price"},
  };
  for (const Case& each : cases) {
    const ItemTexts item = ReadRecord(each.record);
    EXPECT_EQ(item.lines[0], each.first) << each.record;
    EXPECT_EQ(item.lines[1], each.second) << each.record;
    EXPECT_EQ(item.elements[9].unit_price, each.last_price) << each.record;
  }
}

TEST(ItemText, LeavesOutWhatIsEmpty) {
  EXPECT_EQ(CompileItemText(Blind()),
            "~Item Number: 1001~Room 3~Roller blind~fitted~Blind Qty: 2 Unit Price: 45.50 Sub Total: 91.00~"
            "Cord Qty: 1 Unit Price: 2.00 Sub Total: 2.00~" +
                kRule + "Price Includes Vat/Tax  93.00~" + kRule);
  EXPECT_EQ(CompileItemText(ItemTexts()), "~Item Number: ~" + kRule) << "the number's line always stands";
}

TEST(ItemText, HasAPriceUnlessThatIsNothing) {
  for (const auto& [total, priced] : {std::pair("0.00", false),
                                      {"-0.00", false},
                                      {"", false},
                                      {"free", false},
                                      {"0.01", true},
                                      {"-5.00", true}}) {
    ItemTexts item = Blind();
    item.grand_total = total;
    const std::string text = CompileItemText(item);
    EXPECT_EQ(text.find("Price Includes") != std::string::npos, priced) << total;
    EXPECT_EQ(text.ends_with(kRule), true);
  }
}

}  // namespace
}  // namespace tarvane::blinds
