#include "setup/sample_catalogues.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "setup/csv.h"
#include "setup/setup_folder.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"
#include "text/fault.h"
#include "text_number/text_number.h"

namespace tarvane::setup {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::AnyOf;
using testing::Contains;
using testing::Ge;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Le;
using testing::MatchesRegex;
using testing::SizeIs;

using Fields = std::vector<std::string>;
using Rows = std::vector<std::map<std::string, std::string>>;  // by column

constexpr std::pair<const char*, std::size_t> kTables[] = {
    {"Products", 300}, {"Items", 120}, {"Suppliers", 25}, {"Templates", 25}, {"PopUp1", 20}};

Rows RowsOf(const fs::path& shop, std::string_view table) {
  Database database(shop / FindTable(table).file);
  RowSet rows;
  Rows all;
  for (rows.Open(database, table); rows.HasRow(); rows.MoveNext()) {
    auto& row = all.emplace_back();
    for (int i = 0; i < rows.ColumnCount(); ++i) row[rows.ColumnName(i)] = rows.Value(i);
  }
  return all;
}

Fields Column(const Rows& rows, const std::string& name) {
  Fields values;
  values.reserve(rows.size());
  for (const auto& row : rows) values.push_back(row.at(name));
  return values;
}

bool IsMoney(const std::string& text) { return std::regex_match(text, std::regex("\\d+\\.\\d\\d")); }
double Number(const std::string& text) { return ParseLeading(text); }

class SampleCataloguesTest : public SetupTest {
 protected:
  // As laid down with the sample shop, which these tests have no need of.
  Rows Catalogue(std::string_view table) {
    if (!fs::exists(shop_)) {
      EXPECT_EQ(Run(), 0) << err_;
      for (const TableDefinition& each : TableDefinitions()) {
        Database database(shop_ / each.file);
        AddSampleRows(database, each, TARVANE_DATA_DIR);
      }
    }
    return RowsOf(shop_, table);
  }
};

TEST_F(SampleCataloguesTest, ComeWithTheSampleAloneAndAreOfGoodSize) {
  ASSERT_EQ(Run(), 0) << err_;
  for (const auto& [table, count] : kTables) EXPECT_THAT(RowsOf(shop_, table), IsEmpty()) << table;
  fs::remove_all(shop_);
  ASSERT_EQ(Run({"--sample"}), 0) << err_;
  for (const auto& [table, count] : kTables) EXPECT_THAT(RowsOf(shop_, table), SizeIs(Ge(count))) << table;
}

TEST_F(SampleCataloguesTest, NothingIsThereTwice) {
  const std::pair<const char*, const char*> names[] = {
      {"Products", "ItemCode"},   {"Products", "BarCode"},        {"Products", "ProductName"},
      {"Items", "ItemCode"},      {"Items", "ItemName"},          {"Suppliers", "SuppliersName"},
      {"Suppliers", "Telephone"}, {"Suppliers", "AccountNumber"}, {"Templates", "Description"}};
  for (const auto& [table, column] : names) {
    std::set<std::string> met;
    for (const std::string& value : Column(Catalogue(table), column))
      EXPECT_TRUE(met.insert(value).second && !value.empty()) << table << " " << column << " " << value;
  }
}

TEST_F(SampleCataloguesTest, ProductsAreWhatAShopWouldSell) {
  std::set<std::string> categories;
  int low = 0;
  for (const auto& row : Catalogue("Products")) {
    SCOPED_TRACE(row.at("ProductName"));
    categories.insert(row.at("Category"));
    EXPECT_THAT(row.at("BarCode"), MatchesRegex("[1-8]{13}"));
    for (const char* price : {"SellingPrice", "BuyPrice", "PriceWithOutVat"})
      EXPECT_TRUE(IsMoney(row.at(price)));
    EXPECT_EQ(row.at("PriceWithOutVat"), Format2(NumberText(Number(row.at("SellingPrice")) / 1.2)));
    EXPECT_LT(Number(row.at("BuyPrice")), Number(row.at("PriceWithOutVat")));
    for (const char* amount :
         {"AmountInStock", "StockLowLevelAmount", "StockOnOrder", "AmountOfStockToOrder"})
      EXPECT_THAT(row.at(amount), MatchesRegex("[0-9]+(\\.5)?")) << amount;
    low += Number(row.at("AmountInStock")) < Number(row.at("StockLowLevelAmount")) ? 1 : 0;
    const bool fabric = row.at("Category") == "Fabric";
    const bool has_width = fabric || row.at("Category") == "Lining";
    EXPECT_EQ(row.at("BookName").empty(), !fabric);
    EXPECT_EQ(row.at("Width").empty(), !has_width);
    EXPECT_EQ(row.at("PattrenRepeat").empty(), !has_width);
    if (has_width) {
      EXPECT_THAT(Number(row.at("Width")), AllOf(Ge(110), Le(300)));
      EXPECT_THAT(Number(row.at("PattrenRepeat")), AllOf(Ge(0), Le(fabric ? 100 : 0)));
    }
  }
  EXPECT_THAT(categories,
              IsSupersetOf({"Fabric", "Lining", "Tape", "Trimming", "Haberdashery", "Wallpaper"}));
  EXPECT_GE(low, 10);
}

TEST_F(SampleCataloguesTest, AccessoriesCostTwiceWhatTheyCostTheShop) {
  for (const auto& row : Catalogue("Items")) {
    EXPECT_TRUE(IsMoney(row.at("BuyPrice"))) << row.at("ItemName");
    EXPECT_EQ(row.at("SellingPrice"), Format2(NumberText(Number(row.at("BuyPrice")) * 2)))
        << row.at("ItemName");
  }
}

TEST_F(SampleCataloguesTest, EachGoodsComesFromASupplierOfTheShop) {
  const Fields suppliers = Column(Catalogue("Suppliers"), "SuppliersName");
  std::set<std::string> met;
  for (const char* table : {"Products", "Items"}) {
    for (const std::string& name : Column(Catalogue(table), "SuppliersName")) met.insert(name);
  }
  EXPECT_EQ(met, std::set(suppliers.begin(), suppliers.end()));
  for (const auto& row : Catalogue("Suppliers")) {
    EXPECT_THAT(row.at("Telephone"), MatchesRegex("01632 960[0-9]{3}"));
    EXPECT_THAT(row.at("Email"), MatchesRegex("[a-z]+@[a-z-]+\\.example"));
    EXPECT_THAT(row.at("WebSite"), MatchesRegex("www\\.[a-z-]+\\.example"));
    EXPECT_THAT(row.at("Address"), HasSubstr("\r\n"));
    EXPECT_TRUE(IsMoney(row.at("CurrentBalance")) && IsMoney(row.at("CreditLimit")));
  }
  EXPECT_THAT(suppliers, Contains("Weberei Möwenbrück"));
  EXPECT_THAT(suppliers, Contains("O'Dunnery Haberdashers"));
}

TEST_F(SampleCataloguesTest, TemplatesSellForWhatTheirLinesComeTo) {
  for (const auto& row : Catalogue("Templates")) {
    SCOPED_TRACE(row.at("Description"));
    EXPECT_FALSE(row.at("Info1").empty());
    double total = 0;
    for (int line = 1; line <= 10; ++line) {
      const std::string& quantity = row.at(fmt::format("Qty{}", line));
      const std::string& price = row.at(fmt::format("SubTotal{}", line));
      EXPECT_THAT(quantity, MatchesRegex("[0-9]+"));
      EXPECT_TRUE(IsMoney(price)) << price;
      EXPECT_EQ(quantity == "0", row.at(fmt::format("Element{}", line)).empty());
      total += Number(quantity) * Number(price);
    }
    EXPECT_EQ(row.at("SellingPrice"), Format2(NumberText(total)));
  }
}

TEST_F(SampleCataloguesTest, PricesAreAsTheirScreenWritesThem) {
  const Rows rows = Catalogue("PopUp1");
  const Fields linings = Column(Catalogue("Products"), "ProductName");
  for (const auto& row : rows) {
    SCOPED_TRACE(row.at("PopUpID"));
    EXPECT_THAT(row.at("Reference"),
                AnyOf("1 Per of Curtains", "1 Roman Blind", "Valance", "Curtains", "Blind"));
    for (const char* price : {"LabourPrice", "LiningPrice", "InterliningPrice", "TapePrice"})
      EXPECT_TRUE(IsMoney(row.at(price))) << price;
    EXPECT_THAT(row.at("Fullness"), MatchesRegex("[1-3]"));
    EXPECT_THAT(row.at("HemsIns"), MatchesRegex("[0-9]+\\.[0-9]"));
    EXPECT_THAT(row.at("HemsCms"), MatchesRegex("[0-9]+\\.[0-9]"));
    EXPECT_NEAR(Number(row.at("HemsCms")), Number(row.at("HemsIns")) * 2.54, 0.05);
    EXPECT_THAT(row.at("AutoRoundUp"), AnyOf("ON", "OFF", "YES", "NO"));
    for (const char* name : {"LiningName", "InterLiningName"})
      EXPECT_TRUE(row.at(name).empty() || std::ranges::count(linings, row.at(name)) == 1) << row.at(name);
  }
  const Fields round_up = Column(rows, "AutoRoundUp");
  EXPECT_GT(std::ranges::count(round_up, "ON"), static_cast<int>(rows.size() / 2));
}

TEST_F(SampleCataloguesTest, AFileAtFaultIsToldWithItsLineAndLeavesNothing) {
  const fs::path data = root_ / "data";
  fs::copy(TARVANE_DATA_DIR, data, fs::copy_options::recursive);
  const fs::path file = data / "catalogues" / "suppliers.csv";
  const std::string longest(256, 'x');
  const std::pair<std::string, const char*> cases[] = {
      {"SuppliersName,Fax\nA,1\n\"B\nC\",2\nD,1,2\n", ", line 5: 3 fields; the head has 2."},
      {"SuppliersName,Fox\nA,1\n", ", line 1: The table Suppliers has no column Fox."},
      {"SuppliersID,SuppliersName\n7,A\n", ", line 2: "},
      {"SuppliersName\nA\n" + longest + "\n", ", line 3: "}};
  for (const auto& [content, message] : cases) {
    std::ofstream(file, std::ios::binary) << content;
    EXPECT_EQ(RunBare({"--sample", "--data", data.string(), shop_.string()}), 1);
    EXPECT_THAT(err_, HasSubstr(file.string() + message));
    EXPECT_FALSE(fs::exists(shop_)) << message;
  }
  fs::remove(file);
  EXPECT_EQ(RunBare({"--sample", "--data", data.string(), shop_.string()}), 1);
  EXPECT_THAT(err_, HasSubstr(file.string()));
  EXPECT_EQ(RunBare({"--data", data.string(), shop_.string()}), 0) << "no sample is asked for: " << err_;
}

TEST(Csv, FieldsAreReadAsTheyStand) {
  const auto records = ReadCsv(
      "\xEF\xBB\xBF"
      "a,b\r\n\"x \"\"y\"\"\", z \n\"1\n2,3\",\r\n,\"\"\"\"\né,ö",
      "f");
  const Fields expected[] = {{"a", "b"}, {"x \"y\"", " z "}, {"1\r\n2,3", ""}, {"", "\""}, {"é", "ö"}};
  const int lines[] = {1, 2, 3, 5, 6};
  ASSERT_THAT(records, SizeIs(std::size(expected)));
  for (std::size_t i = 0; i < records.size(); ++i) {
    EXPECT_EQ(records[i].fields, expected[i]) << i;
    EXPECT_EQ(records[i].line, lines[i]) << i;
  }
}

TEST(Csv, WhatIsBrokenIsToldWithItsLine) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "f.csv, line 1: no head."},
      {"a,b\n\n1,2\n", "f.csv, line 2: a blank line."},
      {"a,b\n1\n", "f.csv, line 2: 1 fields; the head has 2."},
      {"a,b\n\"1\n\n\",2\n1,\"2\n", "f.csv, line 5: a quote that isn't closed."},
      {"a\n\"\"\"\n", "f.csv, line 2: a quote that isn't closed."},
      {"a,b\n1,2\"\n", "f.csv, line 2: a quote amid a field."},
      {"a,b\n\"1\"x,2\n", "f.csv, line 2: text behind a closing quote."}};
  for (const auto& [text, message] : cases) {
    try {
      ReadCsv(text, "f.csv");
      ADD_FAILURE() << message;
    } catch (const Fault& fault) {
      EXPECT_STREQ(fault.what(), message);
    }
  }
}

}  // namespace
}  // namespace tarvane::setup
