#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane {
namespace {

class GetInfo : public testing::Test {
 protected:
  void At(const WizardShop::Step& step) { shop.NewItem(step); }
  // Column `column` of the costing, row by row.
  static std::vector<std::string> Column(const MainCWizard& w, int column) {
    std::vector<std::string> cells;
    for (std::int64_t row = 1; row <= w.CostingGrid.RowCount(); ++row) {
      cells.push_back(w.CostingGrid.Cell(row, column));
    }
    return cells;
  }
  WizardShop shop;
};

const char kFullPriced[] =
    "1 - Room & Ref No:  Room 1 -  Item No: 100 -  0.00\r\n"
    "2 - Style: Pinch Pleat -  0.00\r\n"
    "3 - Size: Track(Width) 254Cms (100in) -  0.00\r\n"
    "4 - Size: Drop 203.2Cms (80in) -  0.00\r\n"
    "5 - Size: Fullness = 2 : PR 25.4Cms (10in) -  0.00\r\n"
    "6 - Size: Patterns per Drop: 9 -  0.00\r\n"
    "7 - Size: Number of Drops (Widths) = 4 -  0.00\r\n"
    "8 - Size: Cuts: 90 Ins 228.6 Cms -  0.00\r\n"
    "9 - Fabric: Fabric Name: Blue linen -  0.00\r\n"
    "10 - Fabric: Fabric Required 10 Metre's -  0.00\r\n"
    "11 - Fabric: Price Per Metre: 12.5 -  125.00\r\n"
    "12 - Tape: Tape Needed: 5.5 Metre's -  2.75\r\n"
    "13 - Tie Backs: Size: 1 - 1.5 Widths 50.8cm (20in) -  0.00\r\n"
    "14 - Tie Backs:  Style: Crescent Shaped Stiff (Buckram) -  0.00\r\n"
    "15 - Tie Backs:  Qty: 2 at 7.25 each = -  14.50\r\n"
    "16 - Lining:  Lining Needed 8.9 Metres - Lining Name: Sateen -  26.70\r\n"
    "17 - Interlining:  Interlining Needed 8.9 Metres Interlining Name: Bump -  40.05\r\n"
    "18 - Trimmings Style: Border - Border to 2 sides and base -  0.00\r\n"
    "19 - Trimmings Trim/Fabric: Red border Mts Needed 4 -  0.00\r\n"
    "20 - Trimmings Boarder Size: 10 Inches -  0.00\r\n"
    "21 - Trimmings Costing: Mts 4 @ 6 Per Mtr =  -  24\r\n"
    "22 - Labour:  Costing - Widths 4 @ 15 each =  -  60.00\r\n"
    "23 - Labour:  Tie Backs Labour Costing =  -  5\r\n"
    "24 - Labour:  Extra Labour Costing ( Hooks ) =  -  2.50\r\n";

const char kFullPlain[] =
    "1 - Room & Ref No:  Room 1 -  Item No: 100\r\n"
    "2 - Style: Pinch Pleat\r\n"
    "3 - Size: Track(Width) 254Cms (100in)\r\n"
    "4 - Size: Drop 203.2Cms (80in)\r\n"
    "5 - Size: Fullness = 2 : PR 25.4Cms (10in)\r\n"
    "6 - Size: Patterns per Drop: 9\r\n"
    "7 - Size: Number of Drops (Widths) = 4\r\n"
    "8 - Size: Cuts: 90 Ins 228.6 Cms\r\n"
    "9 - Fabric: Fabric Name: Blue linen\r\n"
    "10 - Fabric: Fabric Required 10 Metre's\r\n"
    "12 - Tape: Tape Needed: 5.5 Metre's\r\n"
    "13 - Tie Backs: Size: 1 - 1.5 Widths 50.8cm (20in)\r\n"
    "14 - Tie Backs:  Style: Crescent Shaped Stiff (Buckram)\r\n"
    "16 - Lining:  Lining Needed 8.9 Metres - Lining Name: Sateen\r\n"
    "17 - Interlining:  Interlining Needed 8.9 Metres Interlining Name: Bump\r\n"
    "18 - Trimmings Style: Border - Border to 2 sides and base\r\n"
    "19 - Trimmings Trim/Fabric: Red border Mts Needed 4\r\n"
    "20 - Trimmings Boarder Size: 10 Inches\r\n";

const char kFullRoom[] =
    "~1 - Room & Ref No:  Room 1 -  Item No: 100~"
    "2 - Style: Pinch Pleat~"
    "3 - Size: Track(Width) 254Cms (100in)~"
    "4 - Size: Drop 203.2Cms (80in)~"
    "5 - Size: Fullness = 2 : PR 25.4Cms (10in)~"
    "6 - Size: Patterns per Drop: 9~"
    "7 - Size: Number of Drops (Widths) = 4~"
    "8 - Size: Cuts: 90 Ins 228.6 Cms~"
    "9 - Fabric: Fabric Name: Blue linen~"
    "10 - Fabric: Fabric Required 10 Metre's~"
    "12 - Tape: Tape Needed: 5.5 Metre's~"
    "13 - Tie Backs: Size: 1 - 1.5 Widths 50.8cm (20in)~"
    "14 - Tie Backs:  Style: Crescent Shaped Stiff (Buckram)~"
    "16 - Lining:  Lining Needed 8.9 Metres - Lining Name: Sateen~"
    "17 - Interlining:  Interlining Needed 8.9 Metres Interlining Name: Bump~"
    "18 - Trimmings Style: Border - Border to 2 sides and base~"
    "19 - Trimmings Trim/Fabric: Red border Mts Needed 4~"
    "20 - Trimmings Boarder Size: 10 Inches~"
    "~----------------------------------------------------------"
    "~Price Includes Vat/Tax 360.60"
    "~----------------------------------------------------------~";

TEST_F(GetInfo, FullItem) {
  At([](MainCWizard& w) {
    FillFullItem(w);
    EXPECT_EQ(w.ItemTextPriced.text(), kFullPriced);
    EXPECT_EQ(w.ItemTextPlain.text(), kFullPlain);
    EXPECT_EQ(w.ItemTextRoom.text(), kFullRoom);
    EXPECT_EQ(w.totalCostingWiz.text(), "300.50");
    EXPECT_EQ(w.TotalCostingVat.text(), "60.10");
    EXPECT_EQ(w.GrandTotal.text(), "360.60");
    EXPECT_EQ(w.CostingGrid.RowCount(), 24);
    EXPECT_EQ(w.CostingGrid.Cell(0, 0), "I-No");
    EXPECT_EQ(w.CostingGrid.Cell(24, 0), "24");
    EXPECT_EQ(w.CostingGrid.Cell(24, 1), "Labour: ");
    EXPECT_EQ(w.CostingGrid.Cell(24, 3), "2.50");
    EXPECT_EQ(w.CostingGrid.selected_row(), 24);
    EXPECT_FALSE(w.CmdGetInfo.enabled());
    EXPECT_TRUE(w.CmdFinishTwo.enabled());
    EXPECT_FALSE(w.CmdPrint.enabled()) << "there is nothing to print with yet";
  });
}

TEST_F(GetInfo, BareItem) {
  At([](MainCWizard& w) {
    w.InputInInches.UserSet(true);
    GoTo(w, 2);
    w.TapePrice.UserType("0");
    GoTo(w, 6);
    w.CmdGetInfo.UserPress();
    const std::vector<std::string> descriptions = Column(w, 2);
    ASSERT_EQ(descriptions.size(), 18U);
    EXPECT_EQ(descriptions[5], "Patterns per Drop: Plain Fabric Used");
    EXPECT_EQ(descriptions[11], "No Tape Needed.");
    EXPECT_EQ(w.CostingGrid.Cell(12, 3), "0.00");
    EXPECT_EQ(descriptions[12], "No Tie Backs Needed in same Fabric");
    EXPECT_EQ(descriptions[13], "No Lining Needed ");
    EXPECT_EQ(descriptions[14], "No Interlining Needed ");
    EXPECT_EQ(descriptions[15], "Costing - Widths 0 @ 0.00 each = ") << "trims weren't added: no row";
    EXPECT_EQ(w.totalCostingWiz.text(), "0.00");
    EXPECT_EQ(w.TotalCostingVat.text(), "0.00") << "no rate given";
    EXPECT_EQ(w.GrandTotal.text(), "0.00");
  });
}

TEST_F(GetInfo, TrimRowsTellAZeroCostByItsText) {
  At([](MainCWizard& w) {
    TypePatternedItem(w);
    w.AddTrims.Set(true);
    GoTo(w, 6);
    w.CmdGetInfo.UserPress();
    EXPECT_EQ(Column(w, 2)[15], "No Trimmings needed");
    EXPECT_EQ(w.CostingGrid.RowCount(), 19);
    w.TrimCost.UserType("0");
    w.TxtBorderCutSize.UserType("0");
    GoTo(w, 5);
    GoTo(w, 6);
    w.CmdGetInfo.UserPress();
    EXPECT_EQ(w.CostingGrid.RowCount(), 21) << "style, trim, cost; no border of 0";
  });
}

TEST_F(GetInfo, TieBackRowUsesPriceAndQuantity) {
  At([](MainCWizard& w) {
    TypePatternedItem(w);
    GoTo(w, 2);
    w.TieBacksNeeded.UserSet(true);
    w.TxtTieBacksUnitPrice.UserType("1.115");
    w.TxtNoOfTieBacks.UserType("3");
    w.TieBackTotal.UserType("1000");
    GoTo(w, 6);
    w.CmdGetInfo.UserPress();
    EXPECT_EQ(w.CostingGrid.Cell(15, 3), "3.35") << "3.345, rounded away from zero";
  });
}

TEST_F(GetInfo, VatRateChangesTheTotalsButNotTheTexts) {
  At([](MainCWizard& w) {
    FillFullItem(w);
    w.TxtVatRate.UserType("17.54");
    EXPECT_EQ(w.TotalCostingVat.text(), "52.71") << "52.7077";
    EXPECT_EQ(w.GrandTotal.text(), "353.21");
    w.TxtVatRate.UserLeave();
    EXPECT_EQ(w.TxtVatRate.text(), "17.5");
    EXPECT_EQ(w.GrandTotal.text(), "353.09");
    EXPECT_EQ(w.ItemTextRoom.text(), kFullRoom);
  });
}

TEST_F(GetInfo, ASecondPassAppendsToTheCustomersTexts) {
  At([](MainCWizard& w) {
    FillFullItem(w);
    GoTo(w, 5);
    EXPECT_EQ(w.ItemTextPriced.text(), "");
    EXPECT_EQ(w.totalCostingWiz.text(), "0.00");
    EXPECT_EQ(w.GrandTotal.text(), "0.00");
    EXPECT_EQ(w.CostingGrid.RowCount(), 1) << "heading and first row stay";
    EXPECT_TRUE(w.CmdGetInfo.enabled());
    GoTo(w, 6);
    EXPECT_FALSE(w.CmdFinishTwo.enabled());
    w.CmdGetInfo.UserPress();
    EXPECT_EQ(w.CostingGrid.RowCount(), 24);
    EXPECT_TRUE(w.ItemTextPlain.text().starts_with(std::string(kFullPlain) + "1 - Room"));
    EXPECT_TRUE(w.ItemTextRoom.text().starts_with(std::string(kFullRoom) + "~1 - Room"));
    EXPECT_TRUE(w.ItemTextPriced.text().starts_with("1 - Room"));
  });
}

TEST_F(GetInfo, OverflowEndsItWhereItIs) {
  At([this](MainCWizard& w) {
    TypePatternedItem(w);
    GoTo(w, 6);
    w.TapeCost.UserType("1e308");
    w.LiningNeeded.Set(true);
    w.LiningCost.UserType("1.7e308");
    w.CmdGetInfo.UserPress();
    EXPECT_EQ(w.CostingGrid.RowCount(), 14) << "the rows up to the lining stay";
    EXPECT_EQ(w.GrandTotal.text(), "0.00");
    EXPECT_TRUE(shop.host.messages.empty());
  });
}

}  // namespace
}  // namespace tarvane
