#include "curtain_wizard/costing.h"

#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane {
namespace {

// The patterned item at `step`, with the tax rate of the settings.
void At(int step, const WizardShop::Step& action, std::string_view vat = "0") {
  WizardShop shop(vat);
  shop.NewItem([&](MainCWizard& w) {
    TypePatternedItem(w);
    GoTo(w, step);
    action(w);
  });
}

TEST(Costing, AmountTimesPriceFollowsEveryChange) {
  At(1, [](MainCWizard& w) {
    w.FabricPrice.UserType("12.5");
    EXPECT_EQ(w.FabricCost.text(), "113.88") << "9.11 times 12.5 is 113.875";
    w.FabricMetres.UserType("10");
    EXPECT_EQ(w.FabricCost.text(), "125.00");
    w.FabricPrice.UserPick(3);
    EXPECT_EQ(w.FabricCost.text(), "30.00");
    w.FabricCost.UserType("99");
    w.FabricPrice.UserEnterKey();
    EXPECT_EQ(w.FabricCost.text(), "30.00");
    w.FabricPrice.UserType("a lot");
    EXPECT_EQ(w.FabricCost.text(), "0.00");
    w.FabricPrice.UserType("5 each");
    EXPECT_EQ(w.FabricCost.text(), "50.00");
  });
}

TEST(Costing, TapeIsWorkedOutOnEachArrival) {
  At(2, [](MainCWizard& w) {
    EXPECT_EQ(w.TxtTape.text(), "5.5") << "4 widths of 54 inches";
    EXPECT_EQ(w.TapeCost.text(), "2.75");
    w.TxtTape.UserType("7");
    EXPECT_EQ(w.TapeCost.text(), "3.50");
    GoTo(w, 3);
    EXPECT_EQ(w.TxtTape.text(), "7");
    GoTo(w, 2);
    EXPECT_EQ(w.TxtTape.text(), "5.5");
  });
}

TEST(Costing, TieBackTotal) {
  At(2, [](MainCWizard& w) {
    EXPECT_FALSE(w.CboTieBacks.enabled());
    w.TieBacksNeeded.UserSet(true);
    EXPECT_TRUE(w.CboTieBacks.enabled());
    w.TxtTieBacksUnitPrice.UserType("7.5");
    EXPECT_EQ(w.TieBackTotal.text(), "15");
    w.TxtNoOfTieBacks.UserType("3");
    EXPECT_EQ(w.TieBackTotal.text(), "15.00")
        << "formatted on leaving the price; the quantity alone does nothing";
    w.NoTieBacks.UserSet(true);
    EXPECT_FALSE(w.TxtTieBacksUnitPrice.enabled());
  });
}

TEST(Costing, LiningByWidthsOrMetres) {
  At(3, [](MainCWizard& w) {
    EXPECT_FALSE(w.LiningPrice.enabled());
    EXPECT_EQ(w.LiningAmount.text(), "4");
    EXPECT_EQ(w.LiningByWidths.caption(), "Widths");
    w.LiningNeeded.UserSet(true);
    EXPECT_TRUE(w.LiningPrice.enabled());
    EXPECT_FALSE(w.InterliningPrice.enabled());
    w.LiningPrice.UserType("3");
    EXPECT_EQ(w.LiningCost.text(), "12.00");
    w.LiningByWidths.UserSet(true);
    EXPECT_EQ(w.LiningByWidths.caption(), "Metres");
    EXPECT_EQ(w.LiningAmount.text(), "8.9") << "4 times 88 inches";
    EXPECT_EQ(w.InterliningAmount.text(), "8.9");
    EXPECT_EQ(w.LiningCost.text(), "26.70") << "of the 8.9, not of the inches";
    w.LiningAmount.UserType("1");
    w.LiningNeeded.UserSet(false);
    EXPECT_EQ(w.LiningCost.text(), "3.00") << "turning it off clears nothing";
    GoTo(w, 4);
    GoTo(w, 3);
    EXPECT_EQ(w.LiningAmount.text(), "8.9");
  });
}

TEST(Costing, TakesVatOutOfTheFabricPrice) {
  struct Case {
    std::string vat, price, result;
  };
  for (const Case& c : {Case{"0", "12.345", "12.35"}, Case{"", "12.345", "12.35"},
                        Case{"17.5", "117.5", "100.00"}, Case{"20", "12", "10.00"},
                        Case{"5", "100.00", "666.67"}, Case{"20", "twelve", "twelve"}, Case{"20", "", ""}}) {
    At(
        1,
        [&c](MainCWizard& w) {
          w.FabricPrice.UserType(c.price);
          w.FabricPriceExVat.UserSet(true);
          EXPECT_EQ(w.FabricPrice.text(), c.result) << c.vat << ' ' << c.price;
        },
        c.vat);
  }
  At(
      1,
      [](MainCWizard& w) {
        w.FabricPrice.UserType("144");
        w.FabricPriceExVat.UserSet(true);
        EXPECT_EQ(w.FabricPrice.text(), "120.00");
        w.FabricPriceExVat.UserSet(false);
        EXPECT_EQ(w.FabricPrice.text(), "100.00") << "each run divides again";
        EXPECT_EQ(w.FabricCost.text(), "911.00");
        w.CmdCurOptions.UserPress();
        EXPECT_EQ(w.FabricPrice.text(), "83.33") << "and so does coming back to the screen";
      },
      "20");
}

TEST(Costing, Labour) {
  At(5, [](MainCWizard& w) {
    EXPECT_EQ(w.LabourWidths.text(), "4");
    w.LabourPrice.UserType("15");
    EXPECT_EQ(w.LabourCost.text(), "60.00");
    w.TieBackLabour.UserType("5");
    w.ExtraLabour.UserType("2.5");
    EXPECT_EQ(w.TotalLabour.text(), "67.50");
    w.LabourWidths.UserType("5");
    EXPECT_EQ(w.TotalLabour.text(), "82.50");
    w.LabourCost.UserType("1");
    w.LabourPrice.UserEnterKey();
    EXPECT_EQ(w.LabourCost.text(), "75.00");
  });
}

TEST(Costing, CostSoFarCountsWhatIsWanted) {
  WizardShop shop;
  shop.NewItem([](MainCWizard& w) {
    EXPECT_EQ(CostSoFar(w), "0.00");
    FillFullItem(w);
    EXPECT_EQ(CostSoFar(w), "300.50");
    w.LiningNeeded.Set(false);
    w.InterliningNeeded.Set(false);
    w.NoTieBacks.Set(true);
    w.AddTrims.Set(false);
    EXPECT_EQ(CostSoFar(w), "195.25") << "fabric, tape and labour";
  });
}

}  // namespace
}  // namespace tarvane
