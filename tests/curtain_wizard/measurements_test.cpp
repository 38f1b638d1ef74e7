#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane {
namespace {

class Measurements : public testing::Test {
 protected:
  void At(const WizardShop::Step& step) { shop.NewItem(step); }
  WizardShop shop;
};

struct Window {
  std::string name;
  std::string track, fabric, fullness, length, repeat, hem;
  std::string drops, patterns, cut, total, metres;
};

TEST_F(Measurements, Calculate) {
  const std::string plain = "Plain Fabric Used";
  for (const Window& c : {
           Window{"patterned", "100", "54", "2", "80", "10", "8", "4", "9", "90", "360", "9.11"},
           Window{"plain", "100", "54", "2", "80", "0", "8", "4", plain, "88", "352", "8.91"},
           Window{"repeat left empty", "100", "54", "2", "80", "", "8", "4", plain, "88", "352", "8.91"},
           Window{"half goes to even", "67.5", "54", "2", "80", "0", "8", "2", plain, "88", "176", "4.46"},
           Window{"half of an odd one", "94.5", "54", "2", "80", "0", "8", "4", plain, "88", "352", "8.91"},
           Window{"no decimals to see", "5001", "5000", "2", "80", "0", "8", "2.0004", plain, "88",
                  "176.0352", "4.46"},
           Window{"barely a decimal", "5001.5", "5000", "2", "80", "0", "8", "3", plain, "88", "264", "6.68"},
           Window{"leading numbers", "100 in", "54\"", "2x", "80,5", "10.", "8 ", "4", "9", "90", "360",
                  "9.11"},
           Window{"nothing but words", "wide", "54", "full", "long", "0", "x", "0", plain, "0", "0", "0.00"},
       }) {
    At([&c](MainCWizard& w) {
      w.InputInInches.UserSet(true);
      w.TrackWidthIns.UserType(c.track);
      w.FabricWidthIns.UserType(c.fabric);
      w.Fullness.UserType(c.fullness);
      w.FinishedLengthIns.UserType(c.length);
      w.PatternRepeatIns.UserType(c.repeat);
      w.HemAllowanceIns.UserType(c.hem);
      w.CmdCalculate.UserPress();
      EXPECT_EQ(w.NumberOfDrops.text(), c.drops) << c.name;
      EXPECT_EQ(w.PatternsPerDrop.text(), c.patterns) << c.name;
      EXPECT_EQ(w.CutLengthIns.text(), c.cut) << c.name;
      EXPECT_EQ(w.TotalInches.text(), c.total) << c.name;
      EXPECT_EQ(w.MetresRequired.text(), c.metres) << c.name;
    });
  }
}

TEST_F(Measurements, NoFabricWidthKeepsTheFormerDrops) {
  At([](MainCWizard& w) {
    TypePatternedItem(w);
    w.CmdCalculate.UserPress();
    w.FabricWidthIns.UserType("");
    EXPECT_EQ(w.FabricWidthIns.text(), "0") << "an emptied box";
    w.FinishedLengthIns.UserType("90");
    w.CmdCalculate.UserPress();
    EXPECT_EQ(w.NumberOfDrops.text(), "4");
    EXPECT_EQ(w.TotalInches.text(), "400") << "the calculation carries on";
  });
}

TEST_F(Measurements, AutoMeasureReplacesTheFullness) {
  At([this](MainCWizard& w) {
    TypePatternedItem(w);
    w.TrackWidthIns.UserType("120");
    w.AutoMeasureGoblet.UserSet(true);
    EXPECT_EQ(shop.host.messages.back(), "Goblet - Track X by 2.5 = 300");
    EXPECT_EQ(shop.host.titles.back(), "Tarvane Auto Mersure");
    EXPECT_EQ(w.NumberOfDrops.text(), "6") << "300 / 54";
    EXPECT_EQ(w.TxtAutoTrack.text(), "300");
    EXPECT_EQ(w.TxtMTrack.text(), "2.5");
    EXPECT_EQ(w.TrackWidthIns.text(), "120");
    w.AutoMeasureBoxPleat.UserSet(true);
    EXPECT_EQ(shop.host.messages.back(), "Box Pleated Track X by 3 = 360");
    EXPECT_EQ(w.NumberOfDrops.text(), "7") << "360 / 54";
    const std::size_t told = shop.host.messages.size();
    w.CmdNext.UserPress();
    EXPECT_EQ(shop.host.messages.size(), told + 1) << "on arrival at the fabric too";
    w.CmdBack.UserPress();
    w.OptionCancel.UserSet(true);
    EXPECT_EQ(shop.host.messages.size(), told + 1);
    EXPECT_EQ(w.TxtMTrack.text(), "1");
    EXPECT_EQ(w.TxtAutoTrack.text(), "0");
    EXPECT_EQ(w.NumberOfDrops.text(), "5") << "the fullness counts again: 240 / 54";
  });
}

TEST_F(Measurements, RoundUp) {
  At([](MainCWizard& w) {
    TypePatternedItem(w);
    GoTo(w, 1);
    EXPECT_EQ(w.MetresRequired.text(), "9.11");
    EXPECT_EQ(w.FabricMetres.text(), "9.11");
    GoTo(w, 0);
    w.CmdRoundUp.UserPress();
    EXPECT_EQ(w.MetresRequired.text(), "10");
    EXPECT_TRUE(w.AutoRoundup.on());
    w.CmdRoundUp.UserPress();
    EXPECT_EQ(w.MetresRequired.text(), "11") << "a whole number goes up as well";
    GoTo(w, 1);
    EXPECT_EQ(w.MetresRequired.text(), "10") << "worked out from scratch";
    EXPECT_EQ(w.FabricMetres.text(), "10");
    // 3.00 metres: 118.5 inches.
    GoTo(w, 0);
    w.PatternRepeatIns.UserType("0");
    w.HemAllowanceIns.UserType("0");
    w.TrackWidthIns.UserType("27");
    w.FinishedLengthIns.UserType("118.5");
    GoTo(w, 1);
    EXPECT_EQ(w.MetresRequired.text(), "4");
    GoTo(w, 0);
    GoTo(w, 1);
    EXPECT_EQ(w.MetresRequired.text(), "4");
  });
}

TEST_F(Measurements, BoxesMirrorEachOther) {
  At([](MainCWizard& w) {
    w.TrackWidthCm.UserType("120");
    w.FabricWidthCm.UserType("137");
    EXPECT_EQ(w.TrackWidthIns.text(), "47.24") << "on leaving, to a hundredth";
    w.FabricWidthCm.UserEnterKey();
    EXPECT_EQ(w.FabricWidthIns.text(), "53.9") << "on Enter, to a tenth";
    w.FinishedLengthCm.UserType("200");
    w.PatternRepeatCm.UserType("64");
    w.FullnessMirror.UserType("2.5");
    EXPECT_EQ(w.FinishedLengthIns.text(), "78.7");
    EXPECT_EQ(w.PatternRepeatIns.text(), "25.2");
    EXPECT_EQ(w.Fullness.text(), "2.5") << "at once";
    w.HemAllowanceCm.UserType("20");
    w.HemAllowanceCm.UserEnterKey();
    EXPECT_EQ(w.HemAllowanceIns.text(), "7.9");
    EXPECT_EQ(w.HemAllowanceCm.text(), "20.066") << "the hem converts back on every change";

    w.InputInInches.UserSet(true);
    w.TrackWidthIns.UserType("100");
    EXPECT_EQ(w.TrackWidthCm.text(), "120");
    w.TrackWidthIns.UserEnterKey();
    EXPECT_EQ(w.TrackWidthCm.text(), "254");
    w.HemAllowanceIns.UserType("8");
    EXPECT_EQ(w.HemAllowanceCm.text(), "20.32");
    w.HemAllowanceIns.UserType("");
    EXPECT_EQ(w.HemAllowanceIns.text(), "0");
    EXPECT_EQ(w.HemAllowanceCm.text(), "0");
    w.Fullness.UserType("");
    EXPECT_EQ(w.FullnessMirror.text(), "");
    w.Fullness.UserLeave();
    EXPECT_EQ(w.Fullness.text(), "2");
    EXPECT_EQ(w.FullnessMirror.text(), "2");
  });
}

TEST_F(Measurements, BadTextLeavesTheMirror) {
  At([this](MainCWizard& w) {
    w.InputInInches.UserSet(true);
    w.TrackWidthIns.UserType("100");
    w.TrackWidthIns.UserEnterKey();
    for (const char* bad : {"", "wide", "12 ft"}) {
      w.TrackWidthIns.UserType(bad);
      w.TrackWidthIns.UserEnterKey();
      w.TrackWidthIns.UserLeave();
      EXPECT_EQ(w.TrackWidthCm.text(), "254") << bad;
      EXPECT_EQ(w.TrackWidthIns.text(), bad) << "no default";
    }
    w.PatternRepeatIns.UserType("");
    w.PatternRepeatIns.UserLeave();
    EXPECT_EQ(w.PatternRepeatIns.text(), "");
    w.PatternRepeatIns.UserEnterKey();
    EXPECT_EQ(w.PatternRepeatIns.text(), "0");
    EXPECT_EQ(w.PatternRepeatCm.text(), "0");
    EXPECT_TRUE(shop.host.messages.empty());
  });
}

TEST_F(Measurements, InputUnitSwitchesTheBoxes) {
  At([](MainCWizard& w) {
    EXPECT_EQ(w.InputInInches.caption(), "Input Measument in Centimetres");
    EXPECT_FALSE(w.TrackWidthIns.enabled());
    EXPECT_FALSE(w.Fullness.enabled());
    EXPECT_TRUE(w.TrackWidthCm.enabled());
    EXPECT_TRUE(w.FullnessMirror.enabled());
    w.InputInInches.UserSet(true);
    EXPECT_EQ(w.InputInInches.caption(), "Input Measument in Inches");
    EXPECT_TRUE(w.HemAllowanceIns.enabled());
    EXPECT_FALSE(w.HemAllowanceCm.enabled());
    EXPECT_FALSE(w.FullnessMirror.enabled());
  });
}

TEST_F(Measurements, MillimetresAreShownOnly) {
  At([](MainCWizard& w) {
    TypePatternedItem(w);
    w.TrackWidthIns.UserType("");
    w.UnitMm.UserSet(true);
    EXPECT_EQ(w.UnitLabel[0].caption(), "Cms") << "with an empty box a press does nothing";
    w.UnitCms.UserSet(true);

    w.TrackWidthIns.UserType("100");
    w.CmdCalculate.UserPress();
    w.UnitMm.UserSet(true);
    EXPECT_EQ(w.UnitLabel[0].caption(), "mm");
    EXPECT_EQ(w.UnitLabel[1].caption(), "mm");
    EXPECT_EQ(w.TrackWidthCm.text(), "2540");
    EXPECT_EQ(w.FinishedLengthCm.text(), "2032");
    EXPECT_EQ(w.CutLengthCm.text(), "2286");
    w.CmdCalculate.UserPress();
    EXPECT_EQ(w.CutLengthCm.text(), "2286") << "patterned: millimetres";
    w.PatternRepeatIns.UserType("0");
    w.CmdCalculate.UserPress();
    EXPECT_EQ(w.CutLengthCm.text(), "223.52") << "plain: centimetres all the same";

    w.UnitCms.UserSet(true);
    EXPECT_EQ(w.UnitLabel[1].caption(), "Cms");
    EXPECT_EQ(w.TrackWidthCm.text(), "254");
    w.UnitMm.UserSet(true);
    w.InputInInches.UserSet(false);
    w.TrackWidthCm.UserType("300");
    w.TrackWidthCm.UserEnterKey();
    EXPECT_EQ(w.TrackWidthIns.text(), "118.11") << "typed ones are centimetres still";
  });
}

}  // namespace
}  // namespace tarvane
