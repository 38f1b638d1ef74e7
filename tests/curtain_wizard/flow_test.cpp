#include <gmock/gmock.h>

#include <set>

#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
namespace {

using ::testing::ElementsAre;

TEST(Flow, ANewEntryTakesANumberThatIsStoredAtOnce) {
  WizardShop shop;
  shop.WithJob([&shop](job::JobScreen& job) {
    job.GoToRoom(3);
    shop.Wizard(job, [&](MainCWizard& w) {
      Play(w, R"(
        | title='New Entry' TxtRoom='Room 3' ItemNumber=100 TrimName='Enter Trim or Fabric Name Etc Here'
        | CmdFinishTwo@'Save As New Order and Close' ^CmdFinishTwo -CmdFinishTwo
        | _CmdUpdateAndClose -CmdUpdateAndClose -CmdGetInfo
      )");
      EXPECT_EQ(shop.folder.Stored(kAdminTable, 0, "LastOrderNo"), "101");
    });
    EXPECT_EQ(job.TxtLastOrderNo.text(), "101");
    EXPECT_EQ(job.RoomItems[2].text(), "");
  });
  shop.Item("| ItemNumber=101");
}

TEST(Flow, WithoutSettingsNumbersCountUpUnstored) {
  WizardShop shop;
  shop.WithJob([&shop](job::JobScreen& job) {
    job.Data2.rows().Delete();
    job.TxtLastOrderNo.LoadText("7");
    shop.Wizard(job, WizardShop::Played("| ItemNumber=7 cboVAT="));
    EXPECT_EQ(job.TxtLastOrderNo.text(), "8");
  });
}

TEST(Flow, OtherModes) {
  const std::array<std::string_view, 3> modes[] = {
      {"2", "", "| title='Quick Curtain Wizard' _CmdFinishTwo _CmdUpdateAndClose +CmdListOptions"},
      {"1", "Room 1~",
       "| title='Edit Entry' _CmdFinishTwo ^CmdUpdateAndClose -CmdUpdateAndClose -CmdWizard -CmdListOptions"},
      {"1", "", "| title='View and Printing Only' _CmdFinishTwo _CmdUpdateAndClose FabricWidthIns=54"}};
  WizardShop shop;
  shop.WithJob([&](job::JobScreen& job) {
    for (const auto& mode : modes) {
      const auto prepare = [&mode](MainCWizard& w) {
        w.TxtViewOnly.SetText(mode[0]);
        w.Txtinfo.SetText(mode[1]);
      };
      shop.Wizard(job, WizardShop::Played(mode[2]), prepare);
    }
    EXPECT_EQ(job.TxtLastOrderNo.text(), "101") << "only the quick wizard took one";
  });
}

TEST(Flow, StepsForthAndBack) {
  WizardShop shop;
  shop.NewItem([&](MainCWizard& w) {
    EXPECT_TRUE(w.HelpLine.caption().starts_with("Welcome to the Tarvane Window Wizard. Enter in your "));
    for (int step = 0; step < MainCWizard::kSteps; ++step) {
      EXPECT_EQ(w.step(), step);
      EXPECT_EQ(w.StepTabs.selected(), step);
      EXPECT_EQ(w.CmdBack.enabled(), step != 0);
      EXPECT_EQ(w.CmdNext.enabled(), step != 6);
      EXPECT_EQ(w.CmdGetInfo.enabled(), step >= 5) << "from the arrival at labour on";
      EXPECT_FALSE(w.CmdFinishTwo.enabled());
      w.CmdNext.UserPress();
    }
    EXPECT_EQ(w.step(), 6) << "there is nothing behind the last";
    w.StepTabs.UserSelect(0);
    EXPECT_EQ(w.StepTabs.selected(), 6) << "the first is refused in silence";
    Play(w, "| FabricMetres=0.00; go 0");
    EXPECT_EQ(w.focus(), &w.CmdNext);
    w.StepTabs.UserSelect(3);
    EXPECT_EQ(w.StepTabs.selected(), 0);
  });
  EXPECT_THAT(shop.host.messages, ElementsAre("Please use the <<Back and Next>> buttons"));
}

TEST(Flow, EveryControlStandsOnItsStep) {
  // Of the steps 1 to 7, then the panel of the lists; what stands on none is always in view, or never.
  const std::array<std::string_view, 8> places = {
      "CboCurtainStyle InputInInches TrackWidthIns TrackWidthCm FabricWidthIns FabricWidthCm Fullness "
      "FullnessMirror FinishedLengthIns FinishedLengthCm PatternRepeatIns PatternRepeatCm HemAllowanceIns "
      "HemAllowanceCm UnitLabel UnitCms UnitMm AutoMeasureGoblet AutoMeasureBoxPleat OptionCancel "
      "CmdCalculate NumberOfDrops PatternsPerDrop CutLengthIns CutLengthCm MetresRequired CmdRoundUp "
      "AutoRoundup",
      "CmdGetFabricFromDatabase FabricName FabricMetres FabricPrice FabricPriceExVat FabricCost",
      "TxtTape TapePrice TapeCost NoTieBacks TieBacksNeeded CboTieBacks TieBackStyle TxtNoOfTieBacks "
      "TxtTieBacksUnitPrice TieBackTotal",
      "LiningByWidths LiningNeeded TxtLiningName LiningAmount LiningPrice LiningCost InterliningNeeded "
      "TxtInterliningName InterliningAmount InterliningPrice InterliningCost",
      "AddTrims TrimKind CboTrims TrimName AllSides PlaceTop PlaceBottom PlaceTwoSides PlaceFourSides "
      "BordersPanel TxtBorderCutSize TrimByWidths TxtCurtainWidths TxtFabricWidth TxtDropCuts "
      "CalculateTrims TxtAmountInches TxtAmountMetres RoundUpTrims TrimMetres TrimPriceLabel TrimPrice "
      "TrimPriceExVat TrimCost",
      "LabourWidths LabourPrice LabourCost TieBackLabour ExtraLabourText ExtraLabour TotalLabour",
      "CmdGetInfo CostingGrid totalCostingWiz TxtVatRate TotalCostingVat GrandTotal CmdPrint "
      "Cmdprintwithoutprices CmdCopy",
      "Option5 Option6 Option7 Option8 Option9 Option10 lstData txtLog CMDLOAD CMDADD CMDDELETE CMDSAVE "
      "cboVAT"};
  const std::string frame =
      "HelpLine CmdBack CmdNext CmdClose CmdWizard CmdListOptions CmdCurOptions CmdSelect CmdGobletWizard "
      "CmdConverter CmdCalculator CmdHelpTip CmdFinishTwo TxtRoom TxtDescription ItemNumber";
  WizardShop().NewItem([&](MainCWizard& w) {
    for (std::size_t at = 0; at < places.size(); ++at) {
      Play(w, at == 7 ? "press CmdListOptions" : "go " + std::to_string(at));
      const std::string panels = at == 7 ? " ListPanel " : " StepsPanel StepPanel StepTabs ";
      const std::vector<std::string> wanted = Words(frame + panels + std::string(places[at]));
      std::set<std::string> shown;
      for (const Control* control : w.controls()) {
        if (control->shown() && !control->never_shown()) shown.insert(control->name());
      }
      EXPECT_EQ(shown, std::set(wanted.begin(), wanted.end())) << "place " << at;
    }
    Play(w, "press CmdWizard | ^CostingGrid _lstData");
  });
}

TEST(Flow, OptionsAndListsOfTheShop) {
  WizardShop shop("17.5");
  shop.folder.Write("Options.dat", "30.0\n15.00\n3.00\n4.50\n0.75\n2.5\n2.0\n20.00\nninth\n");
  shop.folder.Write("curtainlist.dat", "Cafe\r\nTab Top\r\n");
  shop.folder.Write("TieBackslist.Dat", "Own size\r\n");
  shop.NewItem([](MainCWizard& w) {
    Play(w, R"(| LabourPrice=15.00 LiningPrice=3.00 InterliningPrice=4.50 TapePrice=0.75 Fullness=2.5
      | FullnessMirror=2.5 HemAllowanceIns=2.0 HemAllowanceCm=5.08 cboVAT=17.5
      | CboCurtainStyle='Enter Curtain / Valance Style ' TieBackStyle='Select Tie back Style _______________ '
      | CboTieBacks='No Tie Backs Size Selected' CboTrims='Select Description' TrimKind=Border)");
    const std::tuple<const DropDownList*, std::size_t, const char*, const char*> series[] = {
        {&w.FabricPrice, 101, "1.00", "100.00"},
        {&w.TapePrice, 21, "0.50", "10.00"},
        {&w.LiningPrice, 101, "0.50", "50.00"},
        {&w.InterliningPrice, 101, "0.50", "50.00"},
        {&w.LabourPrice, 101, "1.00", "100.00"},
        {&w.TrimPrice, 201, "0.50", "100.00"},
        {&w.cboVAT, 101, "0.5", "50.0"},
        {&w.CboCurtainStyle, 2, "Tab Top", "Tab Top"},
        {&w.CboTieBacks, 6, "1 - 1.5 Widths 50.8cm (20in)", "Own size"},
        {&w.TieBackStyle, 7, "Plaited Tie Backs)", "Tie backs with fringed edge"},
        {&w.CboTrims, 23, "Border to 2 sides and base", "Fringe to Shaped edge"}};
    for (const auto& [list, count, second, last] : series) {
      ASSERT_EQ(list->entries().size(), count) << list->name();
      EXPECT_EQ(list->entries()[1], second) << list->name();
      EXPECT_EQ(list->entries().back(), last) << list->name();
    }
  });
}

TEST(Flow, WithoutFilesTheDefaultsStand) {
  WizardShop shop("");
  shop.Item("| LabourPrice=0.00 TapePrice=0.50 HemAllowanceIns=9 HemAllowanceCm=20.32 cboVAT=");
  // A short file gives what it has; then the boxes of the hem agree, though the hem stays as it is.
  shop.folder.Write("Options.dat", "30.0\r\n15.00");
  shop.Item("| LabourPrice=15.00 TapePrice=0.50 HemAllowanceIns=9 HemAllowanceCm=22.86");
}

TEST(Flow, AListThatIsSavedIsOfferedAtOnce) {
  WizardShop shop;
  shop.folder.Write("Curtainlist.Dat", "Cafe\r\n");
  shop.host.inputs = {"Tab Top"};
  shop.NewItem([&shop](MainCWizard& w) {
    Play(w, "press CmdListOptions; press CMDLOAD; press CMDADD; press CMDSAVE");
    EXPECT_EQ(shop.folder.Read("Curtainlist.Dat"), "Cafe\r\nTab Top\r\n");
    EXPECT_THAT(w.CboCurtainStyle.entries(), ElementsAre("Cafe", "Tab Top"));
    Play(w, "tick Option9");
    EXPECT_THAT(shop.host.messages, ElementsAre("List has been saved"));
  });
}

TEST(Flow, TheTaxRateThatIsChosenIsTheShops) {
  WizardShop shop("17.5");
  shop.host.answers = {Answer::kYes};
  shop.NewItem([&shop](MainCWizard& w) {
    w.cboVAT.SetText("9");
    const std::pair<const char*, const char*> steps[] = {
        {"press CmdListOptions; focus cboVAT; leave cboVAT", "17.5"},  // nothing was chosen
        {"pick cboVAT 40", "20.0"},
        {"type cboVAT 21", "20.0"},  // still being typed
        {"key cboVAT", "21"},
        {"type cboVAT 22; press CmdWizard", "22"}};
    for (const auto& [step, rate] : steps) {
      Play(w, step);
      EXPECT_EQ(shop.folder.Stored(kAdminTable, 0, "VatAmount"), rate) << step;
    }
    Play(w, "press CmdListOptions; type cboVAT 23");
    w.UserClose();
    EXPECT_EQ(shop.folder.Stored(kAdminTable, 0, "VatAmount"), "23");
  });
  shop.Item("| cboVAT=23");
}

TEST(Flow, ComingBackRunsTheClickActionsAlone) {
  WizardShop shop("20");
  shop.WithJob([&shop](job::JobScreen& job) {
    shop.Wizard(job, [&job](MainCWizard& w) {
      Play(w, R"(
        type TxtRoom Hall; go 1; type FabricPrice 144
        press CmdCurOptions | TxtRoom=Hall ItemNumber=100 FabricPrice=120.00
      )");
      EXPECT_EQ(w.step(), 1);
      EXPECT_EQ(job.TxtLastOrderNo.text(), "101");
      FillFullItem(w);
      w.CmdFinishTwo.UserPress();
    });
    shop.Edit(job, 1, [](MainCWizard& w) {
      Play(w, R"(
        tick AutoMeasureGoblet | TxtMTrack=2.5; type TrackWidthIns 120; go 4; type TrimPrice 7
        untick AddTrims; press CmdCurOptions | AutoMeasureGoblet=on TrackWidthIns=120 AddTrims=off
        | -TrimKind TrimPrice=7 FabricPrice=10.42 title='Edit Entry'
      )");
      EXPECT_EQ(w.step(), 4);
    });
  });
}

TEST(Flow, SavesWaitForGetInfo) {
  WizardShop shop;
  shop.WithJob([&shop](job::JobScreen& job) {
    shop.Wizard(job, [](MainCWizard& w) {
      FillFullItem(w);
      Play(w, R"(
        | +CmdFinishTwo -CmdGetInfo; go 5 | -CmdFinishTwo +CmdGetInfo; go 6 | -CmdFinishTwo
        press CmdGetInfo; press CmdFinishTwo
      )");
    });
    shop.Edit(job, 1, WizardShop::Played(R"(
      | -CmdUpdateAndClose -CmdGetInfo; go 6 | -CmdUpdateAndClose
      press CmdGetInfo | +CmdUpdateAndClose; go 5 | -CmdUpdateAndClose; go 6 | -CmdUpdateAndClose
    )"));
  });
}

}  // namespace
}  // namespace tarvane::curtain_wizard
