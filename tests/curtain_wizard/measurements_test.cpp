#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
namespace {

// Track, fabric width, fullness, length, repeat and hem; then drops, patterns, cut, total inches and metres.
TEST(Measurements, Calculate) {
  const std::pair<std::string_view, std::string_view> windows[] = {
      {"100 54 2 80 10 8", "4 9 90 360 9.11"},
      {"100 54 2 80 0 8", "4 'Plain Fabric Used' 88 352 8.91"},
      {"100 54 2 80 '' 8", "4 'Plain Fabric Used' 88 352 8.91"},
      // Halves go to an even number of widths; what shows no decimals isn't rounded.
      {"67.5 54 2 80 0 8", "2 'Plain Fabric Used' 88 176 4.46"},
      {"94.5 54 2 80 0 8", "4 'Plain Fabric Used' 88 352 8.91"},
      {"5001 5000 2 80 0 8", "2.0004 'Plain Fabric Used' 88 176.0352 4.46"},
      {"5001.5 5000 2 80 0 8", "3 'Plain Fabric Used' 88 264 6.68"},
      // The leading number counts, or nought.
      {"'100 in' 54\" 2x 80,5 10. '8 '", "4 9 90 360 9.11"},
      {"wide 54 full long 0 x", "0 'Plain Fabric Used' 0 0 0.00"}};
  for (const auto& [measures, figures] : windows) {
    WizardShop().NewItem([&](MainCWizard& w) {
      w.InputInInches.UserSet(true);
      const std::vector<std::string> typed = Words(measures), wanted = Words(figures);
      TextField* const boxes[] = {&w.TrackWidthIns,     &w.FabricWidthIns,   &w.Fullness,
                                  &w.FinishedLengthIns, &w.PatternRepeatIns, &w.HemAllowanceIns};
      for (std::size_t box = 0; box < std::size(boxes); ++box) boxes[box]->UserType(typed.at(box));
      w.CmdCalculate.UserPress();
      EXPECT_EQ((std::vector{w.NumberOfDrops.text(), w.PatternsPerDrop.text(), w.CutLengthIns.text(),
                             w.TotalInches.text(), w.MetresRequired.text()}),
                wanted)
          << measures;
    });
  }
}

// Plays `script` behind `before`; gives what was told.
std::vector<std::string> Told(std::string_view before, std::string_view script) {
  WizardShop shop;
  shop.Item(std::string(before) + std::string(script));
  return shop.host.messages;
}

TEST(Measurements, NoFabricWidthKeepsTheFormerDrops) {
  Told(kPatternedItem, R"(
    press CmdCalculate; type FabricWidthIns '' | FabricWidthIns=0; type FinishedLengthIns 90
    press CmdCalculate | NumberOfDrops=4 TotalInches=400
  )");
}

TEST(Measurements, AutoMeasureReplacesTheFullness) {
  const auto told = Told(kPatternedItem, R"(
    type TrackWidthIns 120; tick AutoMeasureGoblet | NumberOfDrops=6 TxtAutoTrack=300 TxtMTrack=2.5
    tick AutoMeasureBoxPleat | NumberOfDrops=7
    # The option that is on already runs its action as well, and so does Cancel, but without a message.
    type TrackWidthIns 60; click AutoMeasureBoxPleat | NumberOfDrops=4; type TrackWidthIns 120
    click OptionCancel | TxtMTrack=1 TxtAutoTrack=0 NumberOfDrops=5
  )");
  EXPECT_EQ(told, (std::vector<std::string>{"Goblet - Track X by 2.5 = 300", "Box Pleated Track X by 3 = 360",
                                            "Box Pleated Track X by 3 = 180"}));
}

TEST(Measurements, BoxesMirrorEachOther) {
  // On leaving or Enter: the track to a hundredth, the others to a tenth. The hem converts back on each
  // change.
  Told("", R"(
    | InputInInches@'Input Measument in Centimetres' -TrackWidthIns -Fullness +TrackWidthCm +FullnessMirror
    type TrackWidthCm 120; type FabricWidthCm 137 | TrackWidthIns=47.24
    key FabricWidthCm | FabricWidthIns=53.9; type FinishedLengthCm 200; type PatternRepeatCm 64
    type FullnessMirror 2.5 | FinishedLengthIns=78.7 PatternRepeatIns=25.2 Fullness=2.5
    type HemAllowanceCm 20; key HemAllowanceCm | HemAllowanceIns=7.9 HemAllowanceCm=20.066
    tick InputInInches | InputInInches@'Input Measument in Inches' -HemAllowanceCm -FullnessMirror
    | +HemAllowanceIns; type TrackWidthIns 100 | TrackWidthCm=120; key TrackWidthIns | TrackWidthCm=254
    type HemAllowanceIns 8 | HemAllowanceCm=20.32
    type HemAllowanceIns '' | HemAllowanceIns=0 HemAllowanceCm=0; type Fullness '' | FullnessMirror=
    leave Fullness | Fullness=2 FullnessMirror=2
  )");
}

TEST(Measurements, LeavingConvertsOnlyWhatWasChanged) {
  WizardShop().NewItem([](MainCWizard& w) {
    const auto pass = [&w](std::initializer_list<TextField*> boxes) {
      for (TextField* box : boxes) box->UserFocus();
      w.CmdNext.UserFocus();
    };
    pass({&w.FabricWidthCm, &w.HemAllowanceCm, &w.TrackWidthCm, &w.FabricWidthIns});
    Play(w, "| FabricWidthIns=54 FabricWidthCm=139.7 HemAllowanceIns=9 HemAllowanceCm=20.32");
    Play(w, kPatternedItem);
    Play(w, "tick UnitMm; untick InputInInches | TrackWidthCm=2540");
    pass({&w.TrackWidthCm, &w.FabricWidthCm, &w.FinishedLengthCm, &w.PatternRepeatCm, &w.HemAllowanceCm});
    Play(w, "| TrackWidthIns=100 FinishedLengthIns=80 PatternRepeatIns=10 HemAllowanceIns=8");
    // What Enter has converted isn't converted once more.
    Play(w, "type TrackWidthCm 300\nkey TrackWidthCm | TrackWidthIns=118.11");
    w.TrackWidthIns.SetText("7");
    pass({});
    EXPECT_EQ(w.TrackWidthIns.text(), "7");
  });
}

TEST(Measurements, BadTextLeavesTheMirror) {
  const auto told = Told("", R"(
    tick InputInInches; type TrackWidthIns 100; key TrackWidthIns; type TrackWidthIns ''
    key TrackWidthIns | TrackWidthCm=254 TrackWidthIns=; type TrackWidthIns wide
    leave TrackWidthIns | TrackWidthCm=254 TrackWidthIns=wide; type TrackWidthIns '12 ft'
    key TrackWidthIns; leave TrackWidthIns | TrackWidthCm=254 TrackWidthIns='12 ft'
    type PatternRepeatIns ''; leave PatternRepeatIns | PatternRepeatIns=
    key PatternRepeatIns | PatternRepeatIns=0 PatternRepeatCm=0
  )");
  EXPECT_TRUE(told.empty());
}

TEST(Measurements, MillimetresAreShownOnly) {
  Told(kPatternedItem, R"(
    press CmdCalculate
    tick UnitMm | UnitLabel[0]=mm UnitLabel[1]=mm TrackWidthCm=2540 FinishedLengthCm=2032 CutLengthCm=2286
    # Patterned fabric is cut in millimetres, plain fabric in centimetres all the same.
    press CmdCalculate | CutLengthCm=2286; type PatternRepeatIns 0
    press CmdCalculate | CutLengthCm=223.52; tick UnitCms | UnitLabel[1]=Cms TrackWidthCm=254
    tick UnitMm; untick InputInInches; type TrackWidthCm 300; key TrackWidthCm | TrackWidthIns=118.11
  )");
}

TEST(Measurements, WithAnEmptyBoxAPressOnAUnitDoesNothing) {
  for (const std::string& box :
       Words("TrackWidthIns TrackWidthCm FabricWidthIns FabricWidthCm FinishedLengthIns FinishedLengthCm "
             "PatternRepeatIns PatternRepeatCm HemAllowanceIns HemAllowanceCm")) {
    WizardShop().NewItem([&box](MainCWizard& w) {
      Play(w, kPatternedItem);
      Play(w, "press CmdCalculate");
      auto* field = As<TextField>(*w.Find(box));
      field->LoadText("");
      Play(w, "tick UnitMm  | UnitMm=off UnitCms=on UnitLabel[0]=Cms CutLengthCm=228.6");
      field->LoadText("1");
      Play(w, "tick UnitMm | UnitMm=on UnitLabel[0]=mm CutLengthCm=2286");
      field->LoadText("");
      Play(w, "tick UnitCms | UnitCms=off UnitMm=on UnitLabel[0]=mm CutLengthCm=2286");
    });
  }
}

}  // namespace
}  // namespace tarvane::curtain_wizard
