#include "curtain_wizard/trims.h"

#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane {
namespace {

constexpr TrimMeasure Trim(double widths, double fabric, double cut, double drop) {
  return {.widths = widths, .fabric_width = fabric, .border_cut = cut, .drop = drop};
}

TrimMeasure Placed(TrimMeasure trim, std::string_view places) {
  trim.all_sides = places.find('a') != std::string_view::npos;
  trim.top = places.find('t') != std::string_view::npos;
  trim.bottom = places.find('b') != std::string_view::npos;
  trim.two_sides = places.find('2') != std::string_view::npos;
  trim.four_sides = places.find('4') != std::string_view::npos;
  return trim;
}

struct InchCase {
  TrimMeasure trim;
  std::string places;  // a: all sides, t: top, b: bottom, 2 and 4: sides
  std::optional<double> inches;
};

TEST(Trims, BorderInches) {
  for (const InchCase& c : {
           InchCase{Trim(4, 54, 10, 90), "", std::nullopt},
           InchCase{Trim(4, 54, 10, 90), "a", 170},    // 54 holds the 40 of a strip: one drop
           InchCase{Trim(4, 39, 10, 90), "a", 260},    // it doesn't: two drops
           InchCase{Trim(4, 40, 10, 90), "a", 170},    // just so
           InchCase{Trim(4, 54, 10, 90), "t", 40},     //
           InchCase{Trim(4, 54, 10, 90), "b", 40},     //
           InchCase{Trim(4, 54, 10, 90), "tb", 80},    //
           InchCase{Trim(4, 54, 10, 90), "2", 90},     //
           InchCase{Trim(4, 19, 10, 90), "2", 180},    //
           InchCase{Trim(4, 30, 10, 90), "4", 180},    // 30 is less than 40
           InchCase{Trim(4, 40, 10, 90), "4", 90},     //
           InchCase{Trim(4, 54, 10, 90), "t2", 130},   // sides add to the top
           InchCase{Trim(4, 30, 10, 90), "tb4", 260},  //
           InchCase{Trim(4, 54, 0, 90), "t", 0},
       }) {
    EXPECT_EQ(BorderInches(Placed(c.trim, c.places)), c.inches) << c.places << ' ' << c.trim.fabric_width;
  }
}

TEST(Trims, TrimmingInches) {
  for (const InchCase& c : {
           InchCase{Trim(4, 54, 10, 90), "a", 4 * 54 * 2 + 360},
           InchCase{Trim(4, 54, 10, 90), "t", 216},
           InchCase{Trim(4, 54, 10, 90), "b", 216},
           InchCase{Trim(4, 54, 10, 90), "tb", 432},
           InchCase{Trim(4, 54, 10, 90), "2", 180},
           InchCase{Trim(4, 54, 10, 90), "4", 360},
           InchCase{Trim(4, 54, 10, 90), "b4", 576},
           InchCase{Trim(4, 54, 10, 90), "", 0},
       }) {
    EXPECT_EQ(TrimmingInches(Placed(c.trim, c.places)), c.inches) << c.places;
  }
}

class TrimStep : public testing::Test {
 protected:
  // The patterned item, at the step of the trims.
  void At(const WizardShop::Step& step, std::string_view vat = "0") {
    WizardShop shop(vat);
    host = &shop.host;
    shop.NewItem([&](MainCWizard& w) {
      TypePatternedItem(w);
      GoTo(w, 4);
      step(w);
    });
  }
  FakeHost* host = nullptr;
};

TEST_F(TrimStep, IsOffUntilTrimsAreAdded) {
  At([](MainCWizard& w) {
    for (const Control* control : std::initializer_list<Control*>{
             &w.TrimKind, &w.PlaceTop, &w.AllSides, &w.TxtBorderCutSize, &w.CalculateTrims, &w.TrimPrice}) {
      EXPECT_FALSE(control->enabled()) << control->name();
    }
    EXPECT_TRUE(w.AddTrims.enabled());
    w.AddTrims.UserSet(true);
    EXPECT_TRUE(w.PlaceTop.enabled());
    EXPECT_TRUE(w.BordersPanel.enabled());
    w.AllSides.UserSet(true);
    w.AddTrims.UserSet(false);
    w.AddTrims.UserSet(true);
    EXPECT_FALSE(w.PlaceTop.enabled()) << "all sides are still chosen";
    EXPECT_TRUE(w.AllSides.on()) << "values are kept";
  });
}

TEST_F(TrimStep, NeedsAPlacement) {
  At([this](MainCWizard& w) {
    w.AddTrims.UserSet(true);
    w.TrimPrice.UserType("6");
    w.CalculateTrims.UserPress();
    EXPECT_EQ(host->messages.back(), "Please Select the Placement");
    EXPECT_EQ(w.TrimCost.text(), "0.00");
  });
}

TEST_F(TrimStep, PlacementsExcludeEachOther) {
  At([](MainCWizard& w) {
    w.AddTrims.UserSet(true);
    w.PlaceTop.UserSet(true);
    w.PlaceTwoSides.UserSet(true);
    w.PlaceFourSides.UserSet(true);
    EXPECT_FALSE(w.PlaceTwoSides.on());
    EXPECT_TRUE(w.PlaceTop.on());
    w.PlaceTwoSides.UserSet(true);
    EXPECT_FALSE(w.PlaceFourSides.on());
    w.AllSides.UserSet(true);
    for (const TickBox* place : {&w.PlaceTop, &w.PlaceBottom, &w.PlaceTwoSides, &w.PlaceFourSides}) {
      EXPECT_FALSE(place->on()) << place->name();
      EXPECT_FALSE(place->enabled()) << place->name();
    }
    w.AllSides.UserSet(false);
    EXPECT_TRUE(w.PlaceBottom.enabled());
  });
}

TEST_F(TrimStep, CountsWidthsOrMetres) {
  At([](MainCWizard& w) {
    EXPECT_EQ(w.TxtCurtainWidths.text(), "9.11");
    EXPECT_EQ(w.TrimByWidths.caption(), "Metres");
    EXPECT_EQ(w.TxtDropCuts.text(), "90");
    w.AddTrims.UserSet(true);
    w.TrimByWidths.UserSet(true);
    EXPECT_EQ(w.TxtCurtainWidths.text(), "4");
    EXPECT_EQ(w.TrimByWidths.caption(), "Widths");
  });
}

TEST_F(TrimStep, BorderToMetresAndCost) {
  At([](MainCWizard& w) {
    w.AddTrims.UserSet(true);
    w.TrimByWidths.UserSet(true);
    w.TxtBorderCutSize.UserType("10");
    w.AllSides.UserSet(true);
    w.TrimPrice.UserType("6");
    EXPECT_EQ(w.TrimCost.text(), "0.00") << "typing alone doesn't price it";
    w.CalculateTrims.UserPress();
    EXPECT_EQ(w.TxtAmountInches.text(), "170");
    EXPECT_EQ(w.TxtAmountMetres.text(), "4.30");
    EXPECT_EQ(w.TrimMetres.text(), "4.30");
    EXPECT_EQ(w.TrimCost.text(), "25.80");
    w.TrimPrice.UserType("7");
    w.TrimPrice.UserEnterKey();
    EXPECT_EQ(w.TrimCost.text(), "30.10");
    w.TrimPrice.UserPick(4);
    EXPECT_EQ(w.TrimPrice.text(), "2.00");
    EXPECT_EQ(w.TrimCost.text(), "8.60");
    w.RoundUpTrims.UserPress();
    EXPECT_EQ(w.TxtAmountMetres.text(), "5");
    EXPECT_EQ(w.TrimCost.text(), "10") << "without decimals here";
  });
}

TEST_F(TrimStep, KindShowsItsPanelAndClearsTheAmounts) {
  At([](MainCWizard& w) {
    w.AddTrims.UserSet(true);
    EXPECT_TRUE(w.BordersPanel.visible());
    EXPECT_EQ(w.TxtAmountInches.text(), "0");
    w.TxtAmountMetres.UserType("3");
    w.TrimKind.UserPick(1);
    EXPECT_EQ(w.TrimKind.text(), "Trimming");
    EXPECT_EQ(w.TxtAmountMetres.text(), "0");
    EXPECT_TRUE(w.TrimmingPanel.visible());
    EXPECT_FALSE(w.BordersPanel.visible());
    w.TrimKind.UserType("Manual");
    EXPECT_TRUE(w.ManualPanel.visible());
    w.TxtAmountMetres.UserType("3");
    w.PlaceTop.UserSet(true);
    w.TrimPrice.UserType("2");
    w.CalculateTrims.UserPress();
    EXPECT_EQ(w.TxtAmountInches.text(), "0");
    EXPECT_EQ(w.TrimMetres.text(), "3") << "only copied and priced";
    EXPECT_EQ(w.TrimCost.text(), "6.00");
  });
}

TEST_F(TrimStep, TakesVatOutOfThePriceAndPutsItBack) {
  At(
      [](MainCWizard& w) {
        EXPECT_EQ(w.TrimPriceLabel.caption(), "Price Per Metre Excluding Vat");
        w.AddTrims.UserSet(true);
        w.TrimMetres.UserType("2");
        w.TrimPrice.UserType("11.75");
        w.TrimPriceExVat.UserSet(true);
        EXPECT_EQ(w.TrimPriceExVat.caption(), "Price ex VAT");
        EXPECT_EQ(w.TrimPrice.text(), "10.00");
        EXPECT_EQ(w.TrimCost.text(), "20.00");
        EXPECT_EQ(w.TxtPriceTarget2.text(), "11.75");
        w.TrimPriceExVat.UserSet(false);
        EXPECT_EQ(w.TrimPriceExVat.caption(), "Price Inc VAT");
        EXPECT_EQ(w.TrimPrice.text(), "11.75");
        EXPECT_EQ(w.TrimCost.text(), "23.50");
        w.TrimPrice.UserType("dear");
        w.TrimPriceExVat.UserSet(true);
        EXPECT_EQ(w.TrimPrice.text(), "dear");
        EXPECT_EQ(w.TrimCost.text(), "0.00");
      },
      "17.5");
  At([](MainCWizard& w) { EXPECT_EQ(w.TrimPriceLabel.caption(), "Price Per Metre Including Vat"); });
}

TEST_F(TrimStep, ArrivalAtLabourCalculatesAndRoundsUp) {
  At([](MainCWizard& w) {
    w.AddTrims.UserSet(true);
    w.TrimByWidths.UserSet(true);
    w.TxtBorderCutSize.UserType("10");
    w.AllSides.UserSet(true);
    w.TxtAmountMetres.UserType("77");
    GoTo(w, 5);
    EXPECT_EQ(w.TxtAmountMetres.text(), "77") << "an unpriced trim is left alone";
    GoTo(w, 4);
    w.TrimPrice.UserType("6");
    w.CalculateTrims.UserPress();
    w.TxtBorderCutSize.UserType("12");
    GoTo(w, 5);
    EXPECT_EQ(w.TxtAmountInches.text(), "186");
    GoTo(w, 0);
    w.AutoRoundup.UserSet(true);
    GoTo(w, 5);
    EXPECT_EQ(w.TrimMetres.text(), "5");
    EXPECT_EQ(w.TrimCost.text(), "30");
  });
}

}  // namespace
}  // namespace tarvane
