#include "catalogues/barcode.h"

#include <gtest/gtest.h>

#include "shop/shop.h"
#include "support/shop_folder.h"

namespace tarvane::catalogues {
namespace {

std::string LaidDown(std::string_view name) {
  return ReadFile(std::filesystem::path(TARVANE_DATA_DIR) / name).value();
}

// The patterns of start, characters, check symbol (worked out by hand) and stop.
TEST(BarcodeTest, DrawsStartCharactersCheckAndStop) {
  const BarcodeTables tables = ParseBarcodeTables(LaidDown("char.txt"), LaidDown("binary.txt"));
  // A 33, 1 17: 103 + 1 * 33 + 2 * 17 = 170, less 103: 67.
  EXPECT_EQ(BarcodeBars(tables, "A1"),
            "11010000100"
            "10100011000"
            "10011100110"
            "10000101100"
            "1100011101011");
  // In a code the two signs are characters of their own: 103 + 28 + 2 * 30 = 191, less 103: 88.
  EXPECT_EQ(BarcodeBars(tables, "<>"),
            "11010000100"
            "11100110100"
            "11011011000"
            "11110010010"
            "1100011101011");
}

TEST(BarcodeTest, WhatTheTablesLackHasNoBars) {
  const BarcodeTables tables = ParseBarcodeTables(LaidDown("char.txt"), LaidDown("binary.txt"));
  for (const char* code : {"", "a", "12a", "\xC2\xA3", "12\t3", "\r\n"}) {
    EXPECT_EQ(BarcodeBars(tables, code), "") << code;
  }
  for (char c = ' '; c <= '_'; ++c) EXPECT_NE(BarcodeBars(tables, std::string(1, c)), "") << c;
  EXPECT_NE(BarcodeBars(tables, std::string(255, '_')), "");
}

TEST(BarcodeTest, ABrokenTableHasNoBarsAndABrokenLineOnlySomeLess) {
  const std::string patterns = LaidDown("binary.txt");
  const std::string symbols = LaidDown("char.txt");
  for (const char* broken :
       {"", "103 <\r\n33 A\r\n106 >", "\t\r\n\t\t", "33\tA", "33\tA\r\n103\t<", "-1\tA\r\n103\t<\r\n106\t>",
        "1e999\tA\r\n103\t<\r\n106\t>", "106\t>\r\n103\t<\r\n33\tAB", "nan\tA\r\n103\t<\r\n106\t>"}) {
    EXPECT_EQ(BarcodeBars(ParseBarcodeTables(broken, patterns), "A"), "") << broken;
  }
  for (const char* broken : {"", "1\r\n0", "x", "\r\n\r\n"}) {
    EXPECT_EQ(BarcodeBars(ParseBarcodeTables(symbols, broken), "A"), "") << broken;
  }
  std::string torn = patterns;
  torn.replace(torn.find("10100011000"), 11, "10100x11000");
  EXPECT_EQ(BarcodeBars(ParseBarcodeTables(symbols, torn), "A"), "");
  EXPECT_NE(BarcodeBars(ParseBarcodeTables(symbols, torn), "B"), "");
  const BarcodeTables less = ParseBarcodeTables("rubbish\r\n103\t<\n106\t>\r\n16\t0", patterns);
  EXPECT_NE(BarcodeBars(less, "0"), "");
  EXPECT_EQ(BarcodeBars(less, "1"), "");
}

TEST(BarcodeTest, IsReadFromTheShopInSilence) {
  const ShopFolder folder;
  const Shop shop(folder.path());
  EXPECT_TRUE(ReadBarcodeTables(shop).empty());
  folder.Write("char.txt", LaidDown("char.txt"));
  EXPECT_TRUE(ReadBarcodeTables(shop).empty());
  std::filesystem::create_directory(folder.path() / "Binary.txt");
  EXPECT_TRUE(ReadBarcodeTables(shop).empty()) << "can't be read";
  std::filesystem::remove(folder.path() / "Binary.txt");
  folder.Write("BINARY.TXT", LaidDown("binary.txt"));
  EXPECT_NE(BarcodeBars(ReadBarcodeTables(shop), "0"), "");
}

}  // namespace
}  // namespace tarvane::catalogues
