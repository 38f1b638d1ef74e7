#include <gmock/gmock.h>

#include "catalogues/price_list/csv_reader.h"
#include "catalogues/price_list/list_columns.h"
#include "catalogues/price_list/price_plan.h"
#include "catalogues/price_list/price_text.h"
#include "catalogues/price_list/take_over.h"
#include "support/shop_folder.h"
#include "text/fault.h"

namespace tarvane::catalogues {
namespace {

using ::testing::HasSubstr;

bool GoOn(std::int64_t) { return true; }

TEST(ListPrice, IsReadWhereItCanOnlyMeanOneThing) {
  using enum DecimalMark;
  const struct {
    std::string_view text;
    bool number;
    DecimalMark known;
    std::string_view price;  // or why not
  } kCases[] = {
      {"24.5", false, kNotKnown, "24.50"},
      {"24,5", false, kNotKnown, "24.50"},
      {"\u00A31,234.50", false, kNotKnown, "1234.50"},
      {"1.234,50 \u20AC", false, kNotKnown, "1234.50"},
      {"gbp 12", false, kNotKnown, "12.00"},
      {"12.5USD", false, kNotKnown, "12.50"},
      {"1\u00A0234,50", false, kNotKnown, "1234.50"},
      {"1'234.5", false, kNotKnown, "1234.50"},
      {"1,234,567", false, kNotKnown, "1234567.00"},
      {".50", false, kNotKnown, "0.50"},
      {"0.125", false, kNotKnown, "0.13"},
      {"12.3456", false, kNotKnown, "12.35"},
      {"1234.567", false, kNotKnown, "1234.57"},
      {"0", false, kNotKnown, "0.00"},
      {"", false, kNotKnown, ""},
      {"1,234", false, kNotKnown, "may be read in two ways"},
      {"1.234", false, kNotKnown, "may be read in two ways"},
      {"1,234", false, kPoint, "1234.00"},
      {"1,234", false, kComma, "1.23"},
      {"1.234", false, kPoint, "1.23"},
      {"1.234", false, kComma, "1234.00"},
      {"13.475", true, kComma, "13.48"},
      {"1.005", true, kNotKnown, "1.01"},
      {"-5", true, kNotKnown, "is below 0"},
      {"-5", false, kNotKnown, "is below 0"},
      {"(5.00)", false, kNotKnown, "is below 0"},
      {"\u00A3-5", false, kNotKnown, "is below 0"},
      {"POA", false, kNotKnown, "is no price"},
      {"=2+3", false, kNotKnown, "is no price"},
      {"12 34", false, kNotKnown, "is no price"},
      {"1,23,456.00", false, kNotKnown, "is no price"},
      {"1.234.5", false, kNotKnown, "is no price"},
      {"1,234.567.8", false, kNotKnown, "is no price"},
      {"24.", false, kNotKnown, "is no price"},
      {"24 p.m.", false, kNotKnown, "is no price"},
      {"1E3", false, kNotKnown, "is no price"},
      {"\u00A35\u00A3", false, kNotKnown, "is no price"},
      {"\u00A3", false, kNotKnown, "is no price"},
      {"24/26", false, kNotKnown, "is no price"},
      {"12345678901", false, kNotKnown, "is too large for a price"},
  };
  for (const auto& [text, number, known, price] : kCases) {
    const ListPrice read = ReadListPrice(text, number, known);
    EXPECT_EQ(read.wrong.empty() ? std::string_view(read.price) : read.wrong, price) << text;
  }
}

// "ProductName=Name ItemCode=Ref".
std::string Matched(std::string_view csv) {
  const PriceSheet sheet = ReadSeparatedText(csv);
  const ColumnMatch match = MatchColumns(sheet);
  const std::vector<std::string> names = HeadingNames(sheet, match.heading_line);
  std::string text = std::to_string(match.heading_line) + ":";
  for (std::size_t i = 0; i < kListColumnCount; ++i) {
    if (match.cells[i] < 0) continue;
    text += " " + std::string(kListColumns[i].name) + "=" + names[static_cast<std::size_t>(match.cells[i])];
  }
  return text;
}

TEST(ListColumns, AreFoundByTheirHeadings) {
  const struct {
    std::string_view csv;
    std::string_view matched;
  } kCases[] = {
      {"Name,Code,EAN,RRP,Trade",
       "0: ProductName=Name ItemCode=Code BarCode=EAN SellingPrice=RRP BuyPrice=Trade"},
      {"PRODUCT  NAME,item_code,Bar-Code,R.R.P. (\u00A3),\u20AC Cost",
       "0: ProductName=PRODUCT  NAME ItemCode=item_code BarCode=Bar-Code SellingPrice=R.R.P. (\u00A3) "
       "BuyPrice=\u20AC Cost"},
      {"Spring list\n\nRef,Description,Width (cm),P. Repeat,RRP ex VAT",
       "1: ProductName=Description ItemCode=Ref PriceWithOutVat=RRP ex VAT Width=Width (cm) PattrenRepeat=P. "
       "Repeat"},
      {"Name,Description,Price", "0: ProductName=Name Description=Description"},
      {"Code,SKU,Code", "0: ItemCode=Code (column A)"},
      {"\u00C9AN,x", "0:"},
  };
  for (const auto& [csv, matched] : kCases) EXPECT_EQ(Matched(csv), matched);
  EXPECT_THAT(HeadingNames(ReadSeparatedText("a,,(column B),a\n1,2,3,4"), 0),
              testing::ElementsAre("a (column A)", "(column B)", "(column B) (column C)", "a (column D)"));
}

class PricePlanTest : public testing::Test {
 protected:
  PricePlanTest() { folder_.MakeFile(kProductsTable); }

  Database& Products() { return shop_.database(data_file::kProducts); }
  void Add(const RowValues& values) { folder_.AddRow(kProductsTable, values); }
  const PricePlan& Plan(std::string_view csv, std::string_view supplier = "Tarn") {
    sheet_ = ReadSeparatedText(csv);
    plan_ = PricePlan::Make(sheet_, MatchColumns(sheet_), supplier, Products(), GoOn);
    return *plan_;
  }
  // One word a line: "new", "same", "wrong: why", or its changes "SellingPrice 1.00>2.00".
  std::string Told(std::string_view csv, std::string_view supplier = "Tarn") {
    const PricePlan& plan = Plan(csv, supplier);
    std::string told;
    for (std::size_t line = 0; line < plan.LineCount(); ++line) {
      if (plan.StateOf(line) == PricePlan::State::kNew) told += "new";
      if (plan.StateOf(line) == PricePlan::State::kUnchanged) told += "same " + plan.KeyOf(line);
      if (plan.StateOf(line) == PricePlan::State::kWrong) told += "wrong: " + plan.WrongOf(line);
      if (plan.StateOf(line) == PricePlan::State::kChanged) {
        told += plan.KeyOf(line);
        for (const auto& [column, from, to] : plan.ChangesOf(line)) {
          told += " " + std::string(kListColumns[column].name) + " " + from + ">" + to;
        }
      }
      told += "\n";
    }
    return told;
  }
  bool Take(std::string_view csv) { return TakeOver(Plan(csv), Products(), "20", GoOn); }
  // Every value of every product.
  std::string Everything() {
    RowSet rows;
    rows.Open(Products(), kProductsTable);
    std::string all;
    for (rows.MoveFirst(); rows.HasRow(); rows.MoveNext()) {
      for (int i = 0; i < rows.ColumnCount(); ++i) all += rows.Value(i) + "|";
      all += "\n";
    }
    return all;
  }

  ShopFolder folder_;
  Shop shop_{folder_.path()};
  PriceSheet sheet_;
  std::optional<PricePlan> plan_;
};

TEST_F(PricePlanTest, FindsTheProductThatALineMeans) {
  Add({{"SuppliersName", "Tarn"}, {"ItemCode", "A1"}, {"ProductName", "Check"}, {"SellingPrice", "24"}});
  Add({{"SuppliersName", "Tarn"}, {"ItemCode", "A2"}, {"BarCode", "501"}, {"SellingPrice", "9.50"}});
  Add({{"SuppliersName", "Other"}, {"ItemCode", "A1"}, {"ProductName", "Net"}, {"BarCode", "777"}});
  Add({{"SuppliersName", "Tarn"}, {"ItemCode", "D"}, {"ProductName", "Twin"}});
  Add({{"SuppliersName", "Tarn"}, {"ItemCode", "d"}, {"ProductName", "twin"}});
  const std::string_view kHeading = "EAN,Code,Name,RRP\n";
  const struct {
    std::string_view line;
    std::string_view told;
  } kCases[] = {
      {",a1,,24.00", "1 ItemCode A1>a1\n"},
      {",A1,Check,26.5", "1 SellingPrice 24>26.50\n"},
      {"501,,,9.5", "same 2\n"},
      {"501,A9,,9.50", "2 ItemCode A2>A9\n"},
      {"502,A2,,9.50", "new\n"},
      {"502,A1,,24", "1 BarCode >502\n"},
      {"501,A1,,9.50", "wrong: bar code and item code belong to different products\n"},
      {"777,A1,,1", "wrong: bar code and item code belong to different products\n"},
      {",,check,24", "1 ProductName Check>check\n"},
      {",,Chec,24", "new\n"},
      {",D,,1", "wrong: more than one product of the supplier has this code\n"},
      {",,Twin,1", "wrong: more than one product of the supplier has this name\n"},
      {",,,5", "wrong: no name and no code\n"},
      {"909,,,5", "wrong: no name and no code\n"},
      {",B1,,", "wrong: no price\n"},
      {",B1,,POA", "wrong: SellingPrice \"POA\" is no price\n"},
      {"\"5,01235E+12\",B1,,3", "wrong: BarCode \"5,01235E+12\" has lost its digits\n"},
  };
  for (const auto& [line, told] : kCases)
    EXPECT_EQ(Told(std::string(kHeading) + std::string(line)), told) << line;
  Add({{"BarCode", "501"}});
  EXPECT_EQ(Told("EAN,Code,RRP\n501,A2,1"), "wrong: more than one product has this bar code\n");
  EXPECT_EQ(Told("EAN,Code,RRP\n777,,1\n,A1,1", ""), "3 SellingPrice >1.00\nwrong: no supplier\n");
  EXPECT_EQ(Told("Supplier,Code,Name\nOther,A1,Voile\n,A1,Check"), "3 ProductName Net>Voile\nsame 1\n");
}

TEST_F(PricePlanTest, ALineTwiceIsWrongBothTimes) {
  Add({{"SuppliersName", "Tarn"}, {"ItemCode", "A1"}, {"BarCode", "501"}});
  const std::string kTwice = "wrong: the same product as line ";
  EXPECT_EQ(Told("Code,RRP\nB,1\nC,1\nb,1"), kTwice + "4\nnew\n" + kTwice + "2\n");
  EXPECT_EQ(Told("EAN,Code,RRP\n9,B,1\n9,C,1"), kTwice + "3\n" + kTwice + "2\n");
  EXPECT_EQ(Told("EAN,Code,RRP\n8,B,1\n9,B,1"), "new\nnew\n") << "two bar codes are two products";
  EXPECT_EQ(Told("EAN,Code,RRP\n8,B,1\n,B,1"), kTwice + "3\n" + kTwice + "2\n");
  EXPECT_EQ(Told("EAN,Code,RRP\n501,,1\n,A1,1"), kTwice + "3\n" + kTwice + "2\n");
}

TEST_F(PricePlanTest, OneListHasOneDecimalMark) {
  EXPECT_EQ(Told("Code;RRP;Trade\nA;1.234;\nB;24,50;"), "new\nnew\n");
  EXPECT_EQ(plan_->Given(0, kSellingPrice), "1234.00");
  EXPECT_EQ(Told("Code;RRP\nA;1.234\nB;24.50"), "new\nnew\n");
  EXPECT_EQ(plan_->Given(0, kSellingPrice), "1.23");
  const std::string kTwoWays = "wrong: SellingPrice \"1.234\" may be read in two ways\n";
  EXPECT_EQ(Told("Code;RRP\nA;1.234"), kTwoWays);
  EXPECT_EQ(Told("Code;RRP\nA;1.234\nB;2.50\nC;3,50"), kTwoWays + "new\nnew\n");
}

TEST_F(PricePlanTest, TextsThatDontFitAreWrong) {
  const std::string fits(255, 'x');
  EXPECT_EQ(Told("Code,Name,Remarks,RRP\nA," + fits + ",,1\nB," + fits + "y,,1\nC,," + fits + "y,1"),
            "new\nwrong: ProductName is longer than 255 characters\nnew\n");
  EXPECT_EQ(Told("Code,Name,RRP\nA,\"two\nlines\",1"), "new\n");
  EXPECT_EQ(plan_->Given(0, kProductName), "two lines");
}

TEST_F(PricePlanTest, TakesAllOverAndOpenRowSetsSeeIt) {
  Add({{"SuppliersName", "Tarn"},
       {"ItemCode", "A1"},
       {"SellingPrice", "24.00"},
       {"AmountInStock", "7"},
       {"Remarks", "kept"}});
  RowSet open;
  open.Open(Products(), kProductsTable);
  EXPECT_EQ(open.RecordCount(), 1);
  EXPECT_TRUE(Take("Code,Name,RRP,Trade\nA1,,26.5,\nB1,=1+1,5,\nwrong,,x,\nB2,Net,,3"));
  EXPECT_EQ(open.RecordCount(), 3);
  open.Resync();
  EXPECT_EQ(open.Value("SellingPrice"), "26.50");
  EXPECT_EQ(open.Value("AmountInStock"), "7");
  EXPECT_EQ(open.Value("Remarks"), "kept");
  open.MoveNext();
  const RowValues kNew = {
      {"SuppliersName", "Tarn"}, {"ItemCode", "B1"},           {"ProductName", "=1+1"},
      {"SellingPrice", "5.00"},  {"BuyPrice", "0.00"},         {"PriceWithOutVat", "0.00"},
      {"VatRate", "20"},         {"AmountInStock", "0"},       {"StockLowLevelAmount", "0"},
      {"StockOnOrder", "0"},     {"AmountOfStockToOrder", "0"}};
  for (const auto& [column, value] : kNew) EXPECT_EQ(open.Value(column), value) << column;
  open.MoveNext();
  EXPECT_EQ(open.Value("SellingPrice"), "");
  EXPECT_EQ(open.Value("BuyPrice"), "3.00");
  EXPECT_EQ(Told("Code,Name,RRP,Trade\nA1,,26.5,\nB1,=1+1,5,\nB2,Net,,3"), "same 1\nsame 2\nsame 3\n");
}

std::string ManyLines(int lines) {
  std::string csv = "Code,Name,RRP\nA1,,26.5\n";
  for (int i = 0; i < lines; ++i) csv += "N" + std::to_string(i) + "," + std::string(200, 'x') + ",5\n";
  return csv;
}

TEST_F(PricePlanTest, WhatCantBeTakenOverWholeIsNotTakenOverAtAll) {
  Add({{"SuppliersName", "Tarn"}, {"ItemCode", "A1"}, {"SellingPrice", "24.00"}});
  const std::string before = Everything();
  Plan(ManyLines(2000));
  const auto stop = [](std::int64_t line) { return line < 1500; };
  EXPECT_FALSE(TakeOver(*plan_, Products(), "20", stop));
  EXPECT_EQ(Everything(), before);

  {
    Database other(folder_.FileOf(kProductsTable));
    const Database::Transaction locked(other);
    EXPECT_THROW(TakeOver(*plan_, Products(), "20", GoOn), Fault);
  }
  EXPECT_EQ(Everything(), before);

  Products().Execute("PRAGMA max_page_count=1");  // the disk is full
  try {
    TakeOver(*plan_, Products(), "20", GoOn);
    FAIL() << "there was room for it";
  } catch (const Fault& fault) {
    EXPECT_THAT(fault.what(), HasSubstr("Products.mdb could not be changed"));
  }
  EXPECT_EQ(Everything(), before);
  Products().Execute("PRAGMA max_page_count=1000000");
  EXPECT_TRUE(TakeOver(*plan_, Products(), "20", GoOn));
  EXPECT_EQ(folder_.Count(kProductsTable), 2001);
}

TEST_F(PricePlanTest, AProductThatChangedSinceIsNotOverwritten) {
  Add({{"SuppliersName", "Tarn"}, {"ItemCode", "A1"}, {"SellingPrice", "24.00"}});
  Plan("Code,RRP\nB,1\nA1,26");
  Products().Execute("UPDATE Products SET SellingPrice='25.00'");
  const std::string before = Everything();
  EXPECT_THROW(TakeOver(*plan_, Products(), "20", GoOn), Fault);
  EXPECT_EQ(Everything(), before);
}

}  // namespace
}  // namespace tarvane::catalogues
