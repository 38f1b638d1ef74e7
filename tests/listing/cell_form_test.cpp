#include "listing/cell_form.h"

#include <gtest/gtest.h>

namespace tarvane::listing {
namespace {

using enum SheetCell::Kind;

TEST(CellOf, TellsNumbersFromTextsOfDigits) {
  struct Case {
    const char* text;
    SheetCell::Kind kind;
    double number = 0;
    int decimals = 0;
  };
  const Case cases[] = {
      {"", kNothing},
      {"  ", kNothing},
      {"0", kNumber, 0},
      {"24", kNumber, 24},
      {"24.50", kNumber, 24.5, 2},
      {" 7.125 ", kNumber, 7.125, 3},
      {"-3.5", kNumber, -3.5, 1},
      {".5", kNumber, 0.5, 1},
      {"0.05", kNumber, 0.05, 2},
      {"12345678901", kNumber, 12345678901.0},
      {"123456789012", kText},   // a bar code of a shop in other parts
      {"5012345678900", kText},  // a bar code
      {"1234567890.123456", kText},
      {"1234567890.12345", kNumber, 1234567890.12345, 5},
      {"007", kText},
      {"-05", kText},
      {"00.50", kText},
      {"01632960011", kText},
      {"+44", kText},
      {"1e3", kText},
      {"1 000", kText},
      {"1,000.00", kText},
      {"\xC2\xA3"
       "5.00",
       kText},
      {"5.", kText},
      {".", kText},
      {"-", kText},
      {"--5", kText},
      {"1.2.3", kText},
      {"nan", kText},
      {"0x10", kText},
      {"=1+1", kText},
      {"12/11/2026", kText},
  };
  for (const Case& expected : cases) {
    const SheetCell cell = CellOf(expected.text, false);
    EXPECT_EQ(cell.kind, expected.kind) << expected.text;
    EXPECT_EQ(cell.number, expected.number) << expected.text;
    EXPECT_EQ(cell.decimals, expected.decimals) << expected.text;
    EXPECT_EQ(CellOf(expected.text, true).kind, expected.kind == kNothing ? kNothing : kText)
        << expected.text;
  }
}

TEST(NamesThings, GoesByTheLastWordOfAHeading) {
  for (const char* heading :
       {"ID",          "SuppliersID",  "Record ID", "RefNo",     "Order No",      "DocNo",   "Ext2",
        "Telephone",   "Telephone No", "Mobile",    "Fax",       "Fax2",          "BarCode", "Bar Code",
        "Barcode",     "ItemCode",     "PostCode",  "Post Code", "AccountNumber", "BatchNo", "Reference",
        "Des/Job Ref", "phone"}) {
    EXPECT_TRUE(NamesThings(heading)) << heading;
  }
  for (const char* heading :
       {"", "NumberDueDays", "StockOnOrder", "AmountOfStockToOrder", "DepositPaid", "Total", "Qty", "4text",
        "SellingPrice", "Paid", "Coded", "Notes", "Unit Price", "No of Drops"}) {
    EXPECT_FALSE(NamesThings(heading)) << heading;
  }
}

TEST(SheetText, KeepsWhatAReaderWouldChangeOrRefuse) {
  const std::pair<std::string, std::string> cases[] = {
      {"Voile, ivory", "Voile, ivory"},
      {"Bront\u00EB \u00A35", "Bront\u00EB \u00A35"},
      {"one\r\ntwo\rthree\n", "one\ntwo\nthree\n"},
      {"bad \xFF byte", "bad \uFFFD byte"},
      {std::string("a\0b", 3), "a\uFFFDb"},
      {"\uFFFE", "\uFFFD"},
      {"_x0041_", "_x005F_x0041_"},
      {"_x00g1_ _x41_ x_x", "_x00g1_ _x41_ x_x"},
  };
  for (const auto& [text, held] : cases) {
    std::string changed;
    EXPECT_EQ(SheetText(text, changed), held);
  }
}

}  // namespace
}  // namespace tarvane::listing
