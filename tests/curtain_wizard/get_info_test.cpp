#include <gtest/gtest.h>

#include "store/data_files.h"
#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
namespace {

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

// The lines that the customer and the room see: without prices, and without the rows of prices alone.
std::vector<std::string> FullLines() {
  std::vector<std::string> lines = SplitLines(kFullPriced);
  lines.resize(20);
  lines.erase(lines.begin() + 14);
  lines.erase(lines.begin() + 10);
  for (std::string& line : lines) line.erase(line.rfind(" -  "));
  return lines;
}

std::string FullRoom() {
  const std::string rule = "~" + std::string(58, '-');
  std::string room = "~";
  for (const std::string& line : FullLines()) room += line + "~";
  return room + rule + "~Price Includes Vat/Tax 360.60" + rule + "~";
}

TEST(GetInfo, FullItem) {
  WizardShop().NewItem([](MainCWizard& w) {
    FillFullItem(w);
    EXPECT_EQ(w.ItemTextPriced.text(), kFullPriced);
    EXPECT_EQ(w.ItemTextPlain.text(), JoinLines(FullLines()));
    EXPECT_EQ(w.ItemTextRoom.text(), FullRoom());
    Play(w,
         "| totalCostingWiz=300.50 TotalCostingVat=60.10 GrandTotal=360.60 CostingGrid#24 +CmdPrint "
         "+Cmdprintwithoutprices");
    const char* const headings[] = {"I-No", "Item", "Description", "Price"};
    for (int column = 0; column < 4; ++column) EXPECT_EQ(w.CostingGrid.Cell(0, column), headings[column]);
    EXPECT_EQ(w.CostingGrid.rows().back(),
              (HeldGrid::Row{"24", "Labour: ", "Extra Labour Costing ( Hooks ) = ", "2.50"}));
    EXPECT_EQ(w.CostingGrid.selected_row(), 24);
  });
}

TEST(GetInfo, BareItem) {
  WizardShop().NewItem([](MainCWizard& w) {
    Play(w, R"(
      tick InputInInches; go 2; type TapePrice 0; go 6
      press CmdGetInfo | CostingGrid#18 totalCostingWiz=0.00 TotalCostingVat=0.00 GrandTotal=0.00
    )");
    // Trims weren't added: they have no row.
    const char* const rows[] = {"No Tape Needed.", "No Tie Backs Needed in same Fabric", "No Lining Needed ",
                                "No Interlining Needed ", "Costing - Widths 0 @ 0.00 each = "};
    for (int row = 12; row <= 16; ++row) EXPECT_EQ(w.CostingGrid.Cell(row, 2), rows[row - 12]);
    EXPECT_EQ(w.CostingGrid.Cell(6, 2), "Patterns per Drop: Plain Fabric Used");
    EXPECT_EQ(w.CostingGrid.Cell(12, 3), "0.00");
  });
}

TEST(GetInfo, RowsOfTrimsAndTieBacks) {
  WizardShop().NewItem([](MainCWizard& w) {
    Play(w, kPatternedItem);
    // A cost of "0" has its rows, one of "0.00" hasn't; there is no border of 0.
    Play(w, R"(
      go 4; tick AddTrims; go 6; press CmdGetInfo | CostingGrid#19; go 4; type TrimCost 0
      type TxtBorderCutSize 0; go 6; type TrimCost 0; press CmdGetInfo | CostingGrid#21
      go 2; tick TieBacksNeeded; type TxtTieBacksUnitPrice 1.115; type TxtNoOfTieBacks 3
      type TieBackTotal 1000; go 6; press CmdGetInfo
    )");
    EXPECT_EQ(w.CostingGrid.Cell(1, 0), "1");
    EXPECT_EQ(w.CostingGrid.Cell(15, 3), "3.35") << "3.345, rounded away from zero";
  });
}

TEST(GetInfo, VatRateChangesTheTotalsButNotTheTexts) {
  WizardShop().NewItem([](MainCWizard& w) {
    FillFullItem(w);
    Play(w, R"(
      type TxtVatRate 17.54 | TotalCostingVat=52.71 GrandTotal=353.21
      leave TxtVatRate | TxtVatRate=17.5 GrandTotal=353.09
    )");
    EXPECT_EQ(w.ItemTextRoom.text(), FullRoom());
    // A second pass appends to the texts without prices.
    Play(w, R"(
      go 5 | ItemTextPriced= totalCostingWiz=0.00 TotalCostingVat=0.00 GrandTotal=0.00 CostingGrid#1
      go 6; press CmdGetInfo | CostingGrid#24
    )");
    EXPECT_TRUE(w.ItemTextPlain.text().starts_with(JoinLines(FullLines()) + "1 - Room"));
    EXPECT_TRUE(w.ItemTextRoom.text().starts_with(FullRoom() + "~1 - Room"));
    EXPECT_TRUE(w.ItemTextPriced.text().starts_with("1 - Room"));
  });
}

TEST(GetInfo, OverflowEndsItWhereItIs) {
  WizardShop shop;
  // The rows up to the lining stay.
  shop.Item(std::string(kPatternedItem) + R"(
    tick LiningNeeded; go 6; type TapeCost 1e308; type LiningCost 1.7e308
    press CmdGetInfo | CostingGrid#14 GrandTotal=0.00
  )");
  EXPECT_TRUE(shop.host.messages.empty());
}

}  // namespace
}  // namespace tarvane::curtain_wizard
