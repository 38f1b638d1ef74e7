#include "curtain_wizard/costing.h"

#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
namespace {

// The patterned item, then `script`.
void Patterned(std::string_view script, std::string_view vat = "0") {
  WizardShop(vat).Item(std::string(kPatternedItem) + std::string(script));
}

TEST(Costing, AmountTimesPriceFollowsEveryChange) {
  Patterned(R"(
    go 1; type FabricPrice 12.5 | FabricCost=113.88; type FabricMetres 10 | FabricCost=125.00
    pick FabricPrice 3 | FabricCost=30.00; type FabricCost 99; key FabricPrice | FabricCost=30.00
    type FabricPrice 'a lot' | FabricCost=0.00; type FabricPrice '5 each' | FabricCost=50.00
  )");
}

TEST(Costing, TapeIsWorkedOutOnEachArrivalAndTieBacksByTheirPrice) {
  Patterned(R"(
    go 2 | TxtTape=5.5 TapeCost=2.75 -CboTieBacks; type TxtTape 7 | TapeCost=3.50; go 3 | TxtTape=7
    go 2 | TxtTape=5.5; tick TieBacksNeeded | +CboTieBacks
    type TxtTieBacksUnitPrice 7.5 | TieBackTotal=15
    # Formatted on leaving the price; the quantity alone does nothing.
    type TxtNoOfTieBacks 3 | TieBackTotal=15.00; tick NoTieBacks | -TxtTieBacksUnitPrice
  )");
}

TEST(Costing, LiningByWidthsOrMetres) {
  Patterned(R"(
    go 3 | -LiningPrice LiningAmount=4 LiningByWidths@Widths
    tick LiningNeeded | +LiningPrice -InterliningPrice; type LiningPrice 3 | LiningCost=12.00
    # 4 times 88 inches; the cost is that of the 8.9.
    tick LiningByWidths | LiningByWidths@Metres LiningAmount=8.9 InterliningAmount=8.9 LiningCost=26.70
    type LiningAmount 1; untick LiningNeeded | LiningCost=3.00; go 4; go 3 | LiningAmount=8.9
  )");
}

TEST(Costing, TakesVatOutOfTheFabricPrice) {
  const std::array<std::string, 3> cases[] = {
      {"0", "12.345", "12.35"}, {"", "12.345", "12.35"},   {"17.5", "117.5", "100.00"},
      {"20", "12", "10.00"},    {"5", "100.00", "666.67"}, {"20", "twelve", "twelve"},
      {"20", "''", ""}};
  for (const auto& [vat, price, result] : cases) {
    Patterned("go 1; type FabricPrice " + price + "; tick FabricPriceExVat | FabricPrice=" + result, vat);
  }
  // Each run divides again, and so does coming back to the screen.
  Patterned(R"(
    go 1; type FabricPrice 144; tick FabricPriceExVat | FabricPrice=120.00
    untick FabricPriceExVat | FabricPrice=100.00 FabricCost=911.00
    press CmdCurOptions | FabricPrice=83.33
  )",
            "20");
}

TEST(Costing, Labour) {
  Patterned(R"(
    go 5 | LabourWidths=4; type LabourPrice 15 | LabourCost=60.00; type TieBackLabour 5
    type ExtraLabour 2.5 | TotalLabour=67.50; type LabourWidths 5 | TotalLabour=82.50; type LabourCost 1
    key LabourPrice | LabourCost=75.00
  )");
}

TEST(Costing, CostSoFarCountsWhatIsWanted) {
  WizardShop().NewItem([](MainCWizard& w) {
    EXPECT_EQ(CostSoFar(w), "0.00");
    FillFullItem(w);
    EXPECT_EQ(CostSoFar(w), "300.50");
    for (TickBox* box : {&w.LiningNeeded, &w.InterliningNeeded, &w.AddTrims}) box->Set(false);
    w.NoTieBacks.Set(true);
    EXPECT_EQ(CostSoFar(w), "195.25") << "fabric, tape and labour";
  });
}

}  // namespace
}  // namespace tarvane::curtain_wizard
