#include "curtain_wizard/trims.h"

#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
namespace {

struct Placement {
  std::string_view places;  // a: all sides, t: top, b: bottom, 2 and 4: sides
  double fabric, cut;       // of 4 widths and a drop of 90 inches
  std::optional<double> border;
  double trimming;
};

TEST(Trims, InchesOfBorderAndTrimming) {
  const Placement placements[] = {{"", 54, 10, std::nullopt, 0},  //
                                  {"a", 54, 10, 170, 792},        // 54 holds the 40 of a strip: one drop
                                  {"a", 39, 10, 260, 672},        // it doesn't: two drops
                                  {"a", 40, 10, 170, 680},        // just so
                                  {"t", 54, 10, 40, 216},         //
                                  {"b", 54, 10, 40, 216},         //
                                  {"tb", 54, 10, 80, 432},        //
                                  {"2", 54, 10, 90, 180},         //
                                  {"2", 19, 10, 180, 180},        //
                                  {"4", 54, 10, 90, 360},         //
                                  {"4", 30, 10, 180, 360},        // 30 is less than 40
                                  {"4", 40, 10, 90, 360},         //
                                  {"t2", 54, 10, 130, 396},       // sides add to the top
                                  {"b4", 54, 10, 130, 576},       //
                                  {"tb4", 30, 10, 260, 600},      //
                                  {"t", 54, 0, 0, 216}};
  for (const Placement& c : placements) {
    const auto at = [&c](char place) { return c.places.find(place) != std::string_view::npos; };
    const TrimMeasure trim = {4, c.fabric, c.cut, 90, at('a'), at('t'), at('b'), at('2'), at('4')};
    EXPECT_EQ(BorderInches(trim), c.border) << c.places << ' ' << c.fabric;
    EXPECT_EQ(TrimmingInches(trim), c.trimming) << c.places << ' ' << c.fabric;
  }
}

// The patterned item, at the step of the trims; gives what was told.
std::vector<std::string> AtTrims(std::string_view script, std::string_view vat = "0") {
  WizardShop shop(vat);
  shop.Item(std::string(kPatternedItem) + "go 4\n" + std::string(script));
  return shop.host.messages;
}

TEST(TrimStep, IsOffUntilTrimsAreAdded) {
  WizardShop().NewItem([](MainCWizard& w) {
    Play(w, "go 4");
    std::vector<const Control*> shown;
    for (const Control* control : w.controls()) {
      if (control->shown() && control != &w.AddTrims && control != &w.TrimPriceLabel)
        shown.push_back(control);
    }
    // What stands on the step is what goes out of view with it; panels that aren't in view belong to it as
    // well.
    w.StepPanel[4].SetVisible(false);
    std::vector<const Control*> of_the_step = {&w.FrillPanel, &w.TrimmingPanel, &w.ManualPanel};
    for (const Control* control : shown) {
      if (!control->shown() && control != &w.StepPanel[4]) of_the_step.push_back(control);
    }
    EXPECT_GT(of_the_step.size(), 20U);
    const auto all_are = [&of_the_step](bool on) {
      for (const Control* control : of_the_step) EXPECT_EQ(control->enabled(), on) << control->name();
    };
    all_are(false);
    Play(w, "| +AddTrims; tick AddTrims");
    all_are(true);
    Play(w, "tick AllSides; untick AddTrims; tick AddTrims | -PlaceTop AllSides=on");
  });
}

TEST(TrimStep, PlacementsExcludeEachOtherAndOneIsNeeded) {
  const auto told = AtTrims(R"(
    tick AddTrims; type TrimPrice 6; press CalculateTrims | TrimCost=0.00; tick PlaceTop
    tick PlaceTwoSides; tick PlaceFourSides | PlaceTwoSides=off PlaceTop=on
    tick PlaceTwoSides | PlaceFourSides=off
    tick AllSides | PlaceTop=off PlaceTwoSides=off -PlaceTop -PlaceBottom -PlaceTwoSides -PlaceFourSides
    untick AllSides | +PlaceBottom
  )");
  EXPECT_EQ(told, std::vector<std::string>{"Please Select the Placement"});
}

TEST(TrimStep, BorderToMetresAndCost) {
  AtTrims(R"(
    | TxtCurtainWidths=9.11 TrimByWidths@Metres TxtDropCuts=90; tick AddTrims
    tick TrimByWidths | TxtCurtainWidths=4 TrimByWidths@Widths; type TxtBorderCutSize 10; tick AllSides
    type TrimPrice 6 | TrimCost=0.00
    press CalculateTrims | TxtAmountInches=170 TxtAmountMetres=4.30 TrimMetres=4.30 TrimCost=25.80
    # The cost follows the price at each key, not only on Enter or a choice.
    type TrimPrice 7 | TrimCost=30.10; pick TrimPrice 4 | TrimPrice=2.00 TrimCost=8.60
    # Rounding leaves it without decimals, until it is priced again.
    press RoundUpTrims | TxtAmountMetres=5 TrimCost=10; key TrimPrice | TrimCost=10.00
  )");
}

TEST(TrimStep, TakesVatOutOfThePriceAndPutsItBack) {
  AtTrims(R"(
    | TrimPriceLabel='Price Per Metre Excluding Vat'; tick AddTrims; type TrimMetres 2
    type TrimPrice 11.75
    tick TrimPriceExVat | TrimPriceExVat@'Price ex VAT' TrimPrice=10.00 TrimCost=20.00 TxtPriceTarget2=11.75
    untick TrimPriceExVat | TrimPriceExVat@'Price Inc VAT' TrimPrice=11.75 TrimCost=23.50
    type TrimPrice dear; tick TrimPriceExVat | TrimPrice=dear TrimCost=0.00
  )",
          "17.5");
  AtTrims("| TrimPriceLabel='Price Per Metre Including Vat'");
}

TEST(TrimStep, ArrivalAtLabourCalculatesAndRoundsUp) {
  AtTrims(R"(
    tick AddTrims; tick TrimByWidths; type TxtBorderCutSize 10; tick AllSides; type TxtAmountMetres 77
    # An unpriced trim is left alone.
    go 5 | TxtAmountMetres=77; go 4; type TrimPrice 6; press CalculateTrims; type TxtBorderCutSize 12
    go 5 | TxtAmountInches=186; go 0; tick AutoRoundup; go 5 | TrimMetres=5 TrimCost=30
  )");
}

TEST(TrimStep, ArrivalAtLabourLeavesTrimsThatAreOff) {
  const auto told = AtTrims(R"(
    tick AddTrims; type TrimMetres 3; type TrimPrice 6; untick AddTrims; go 0; tick AutoRoundup
    go 5 | TrimMetres=3 TrimCost=18.00 TxtAmountMetres=0
  )");
  EXPECT_TRUE(told.empty());
}

}  // namespace
}  // namespace tarvane::curtain_wizard
