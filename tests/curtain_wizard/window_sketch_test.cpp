#include "curtain_wizard/window_sketch.h"

#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane {
namespace {

TEST(WindowSketch, FollowsTheFields) {
  WizardShop shop;
  shop.NewItem([](MainCWizard& w) {
    EXPECT_EQ(SketchWindow(w), (WindowSketch{.fabric_width = 54, .fullness = 2, .hem = 9}));
    TypePatternedItem(w);
    w.CmdCalculate.UserPress();
    const WindowSketch item{.track = 100,
                            .drop = 80,
                            .fabric_width = 54,
                            .fullness = 2,
                            .widths = 4,
                            .cut_length = 90,
                            .hem = 8,
                            .pattern_repeat = 10};
    EXPECT_EQ(SketchWindow(w), item);
    w.AutoMeasureGoblet.Set(true);
    EXPECT_EQ(SketchWindow(w).fullness, 2.5);
    w.AutoMeasureBoxPleat.Set(true);
    EXPECT_EQ(SketchWindow(w).fullness, 3);
    w.TrackWidthIns.SetText("-5");
    w.FinishedLengthIns.SetText("long");
    w.FabricWidthIns.SetText("");
    w.PatternRepeatIns.SetText("-0");
    EXPECT_EQ(SketchWindow(w), (WindowSketch{.fullness = 3, .widths = 4, .cut_length = 90, .hem = 8}));
  });
}

}  // namespace
}  // namespace tarvane
