#include "curtain_wizard/window_sketch.h"

#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
namespace {

TEST(WindowSketch, FollowsTheFields) {
  WizardShop().NewItem([](MainCWizard& w) {
    EXPECT_EQ(SketchWindow(w), (WindowSketch{.fabric_width = 54, .fullness = 2, .hem = 9}));
    Play(w, kPatternedItem);
    Play(w, "press CmdCalculate");
    // Track, drop, fabric, fullness, widths, cut, hem, repeat.
    EXPECT_EQ(SketchWindow(w), (WindowSketch{100, 80, 54, 2, 4, 90, 8, 10}));
    w.AutoMeasureGoblet.Set(true);
    EXPECT_EQ(SketchWindow(w).fullness, 2.5);
    w.AutoMeasureBoxPleat.Set(true);
    EXPECT_EQ(SketchWindow(w).fullness, 3);
    Play(w, "type TrackWidthIns -5; type FinishedLengthIns long; type PatternRepeatIns -0");
    w.FabricWidthIns.SetText("");
    EXPECT_EQ(SketchWindow(w), (WindowSketch{.fullness = 3, .widths = 4, .cut_length = 90, .hem = 8}));
  });
}

TEST(WindowSketch, IsOutdatedWhereTheMeasuresComeToOtherFigures) {
  WizardShop().NewItem([](MainCWizard& w) {
    Play(w, kPatternedItem);
    EXPECT_FALSE(SketchWindow(w).outdated) << "nothing was calculated yet";
    const std::tuple<TextField*, const char*, bool> cases[] = {
        {&w.TrackWidthIns, "99", false},    {&w.TrackWidthIns, "150", true},
        {&w.FinishedLengthIns, "95", true}, {&w.HemAllowanceIns, "30", true},
        {&w.PatternRepeatIns, "0", true},   {&w.FabricWidthIns, "40", true},
        {&w.Fullness, "3", true},           {&w.TrackWidthIns, "", false}};
    for (const auto& [field, text, outdated] : cases) {
      const std::string former = field->text();
      w.CmdCalculate.Press();
      EXPECT_FALSE(SketchWindow(w).outdated) << field->name();
      field->SetText(text);
      EXPECT_EQ(SketchWindow(w).outdated, outdated) << field->name() << " " << text;
      field->SetText(former);
    }
    w.AutoMeasureBoxPleat.UserClick();
    EXPECT_FALSE(SketchWindow(w).outdated);
    w.AutoMeasureGoblet.Set(true);
    EXPECT_TRUE(SketchWindow(w).outdated);
  });
}

TEST(WindowSketch, ShowsTrimsTieBacksAndLiningOnlyWhereTheyAreWanted) {
  WizardShop().NewItem([](MainCWizard& w) {
    w.AllSides.Set(true);
    EXPECT_FALSE(SketchWindow(w).trim.Anywhere()) << "trims are off";
    Play(w, "tick AddTrims; type TxtBorderCutSize 10");
    EXPECT_EQ(SketchWindow(w).trim, (TrimSketch{.top = true, .bottom = true, .sides = true, .depth = 5}));
    Play(w, "untick AllSides; tick PlaceFourSides; type TrimKind Trimming");
    EXPECT_EQ(SketchWindow(w).trim, (TrimSketch{.sides = true, .middle = true}));
    Play(w, "untick PlaceFourSides; tick PlaceTwoSides");
    EXPECT_EQ(SketchWindow(w).trim, (TrimSketch{.sides = true}));
    EXPECT_EQ(SketchWindow(w).tie_backs, 0);
    w.TieBacksNeeded.Set(true);
    EXPECT_EQ(SketchWindow(w).tie_backs, 2);
    w.TxtNoOfTieBacks.SetText("1");
    EXPECT_EQ(SketchWindow(w).tie_backs, 1);
    w.TxtNoOfTieBacks.SetText("1e300");
    EXPECT_EQ(SketchWindow(w).tie_backs, 2);
    w.LiningNeeded.Set(true);
    EXPECT_TRUE(SketchWindow(w).lined && !SketchWindow(w).interlined);
  });
}

}  // namespace
}  // namespace tarvane::curtain_wizard
