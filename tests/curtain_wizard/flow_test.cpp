#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane {
namespace {

TEST(Flow, NewEntryTakesANumberAtOnce) {
  WizardShop shop;
  shop.WithJob([&shop](JobScreen& job) {
    job.GoToRoom(3);
    shop.Wizard(job, [](MainCWizard& w) {
      EXPECT_EQ(w.title(), "New Entry");
      EXPECT_EQ(w.TxtRoom.text(), "Room 3");
      EXPECT_EQ(w.ItemNumber.text(), "100");
      EXPECT_EQ(w.CmdFinishTwo.caption(), "Save As New Order and Close");
      EXPECT_TRUE(w.CmdFinishTwo.shown());
      EXPECT_FALSE(w.CmdFinishTwo.enabled());
      EXPECT_FALSE(w.CmdUpdateAndClose.shown());
      EXPECT_EQ(w.TrimName.text(), "Enter Trim or Fabric Name Etc Here");
    });
    EXPECT_EQ(job.TxtLastOrderNo.text(), "101");
    EXPECT_EQ(job.RoomItems[2].text(), "");
  });
}

TEST(Flow, OtherModes) {
  WizardShop shop;
  shop.WithJob([&shop](JobScreen& job) {
    shop.Wizard(
        job,
        [](MainCWizard& w) {
          EXPECT_EQ(w.title(), "Quick Curtain Wizard");
          EXPECT_FALSE(w.CmdFinishTwo.shown());
          EXPECT_FALSE(w.CmdUpdateAndClose.shown());
          EXPECT_TRUE(w.CmdListOptions.enabled());
        },
        [](MainCWizard& w) { w.TxtViewOnly.SetText("2"); });
    shop.Wizard(
        job,
        [](MainCWizard& w) {
          EXPECT_EQ(w.title(), "Edit Entry");
          EXPECT_FALSE(w.CmdFinishTwo.shown());
          EXPECT_TRUE(w.CmdUpdateAndClose.shown());
          EXPECT_FALSE(w.CmdWizard.enabled());
          EXPECT_FALSE(w.CmdListOptions.enabled());
        },
        [](MainCWizard& w) {
          w.Txtinfo.SetText("Room 1~");
          w.TxtViewOnly.SetText("1");
        });
    shop.Wizard(
        job,
        [](MainCWizard& w) {
          EXPECT_EQ(w.title(), "View and Printing Only");
          EXPECT_FALSE(w.CmdFinishTwo.shown());
          EXPECT_FALSE(w.CmdUpdateAndClose.shown());
          EXPECT_EQ(w.FabricWidthIns.text(), "54");
        },
        [](MainCWizard& w) { w.TxtViewOnly.SetText("1"); });
    EXPECT_EQ(job.TxtLastOrderNo.text(), "101") << "only the quick wizard took one";
  });
}

TEST(Flow, StepsForthAndBack) {
  WizardShop shop;
  shop.NewItem([&shop](MainCWizard& w) {
    const std::vector<std::string> help = {
        "Welcome to the Tarvane Window Wizard. Enter in your curtain details to get the amount of fabric "
        "needed.",
        "Step 2 Costing for Fabric.",
        "Step 3 Costing for Tape",
        "Step 4 Costing for Lining",
        "Step 5 Costing for Trims",
        "Step 6 Costing for Labour and the markup cost for the curtains.",
        "Step 7 Printing or saving the information."};
    for (int step = 0; step < MainCWizard::kSteps; ++step) {
      EXPECT_EQ(w.step(), step);
      EXPECT_EQ(w.StepTabs.selected(), step);
      EXPECT_EQ(w.HelpLine.caption(), help[static_cast<std::size_t>(step)]);
      for (int i = 0; i < MainCWizard::kSteps; ++i) EXPECT_EQ(w.StepPanel[i].shown(), i == step);
      EXPECT_EQ(w.CmdBack.enabled(), step != 0);
      EXPECT_EQ(w.CmdNext.enabled(), step != 6);
      EXPECT_FALSE(w.CmdFinishTwo.enabled());
      w.CmdNext.UserPress();
    }
    EXPECT_EQ(w.step(), 6) << "there is nothing behind the last";
    EXPECT_EQ(w.FabricMetres.text(), "0.00");
    GoTo(w, 0);
    EXPECT_EQ(w.focus(), &w.CmdNext);

    w.StepTabs.UserSelect(3);
    EXPECT_EQ(shop.host.messages.back(), "Please use the <<Back and Next>> buttons");
    EXPECT_EQ(w.StepTabs.selected(), 0);
    w.CmdHelpTip.UserPress();
    EXPECT_EQ(shop.host.messages.back(),
              "All input measurement fields need information before this option will work.");
    w.CmdCalculator.UserPress();
    EXPECT_EQ(shop.host.launched, std::vector<std::string>{"calc"});
  });
}

TEST(Flow, ClosingAsks) {
  WizardShop shop;
  shop.NewItem([&shop](MainCWizard& w) {
    shop.host.answers = {Answer::kNo, Answer::kNo, Answer::kYes};
    w.CmdClose.UserPress();
    w.UserClose();
    EXPECT_FALSE(w.is_closed());
    w.CmdClose.UserPress();
    EXPECT_TRUE(w.is_closed());
    ASSERT_EQ(shop.host.questions.size(), 3U);
    for (const Question& question : shop.host.questions) {
      EXPECT_EQ(question.title, "Closing Wizard");
      EXPECT_EQ(question.text, "Closing wizard. Are you sure?.");
      EXPECT_EQ(question.answers, (std::vector{Answer::kYes, Answer::kNo}));
    }
  });
}

TEST(Flow, OptionsAndListsOfTheShop) {
  WizardShop shop("17.5");
  shop.folder.Write("Options.dat", "30.0\n15.00\n3.00\n4.50\n0.75\n2.5\n2.0\n20.00\nninth\n");
  shop.folder.Write("curtainlist.dat", "Cafe\r\nTab Top\r\n");
  shop.folder.Write("TieBackslist.Dat", "Own size\r\n");
  shop.NewItem([](MainCWizard& w) {
    EXPECT_EQ(w.LabourPrice.text(), "15.00");
    EXPECT_EQ(w.LiningPrice.text(), "3.00");
    EXPECT_EQ(w.InterliningPrice.text(), "4.50");
    EXPECT_EQ(w.TapePrice.text(), "0.75");
    EXPECT_EQ(w.Fullness.text(), "2.5");
    EXPECT_EQ(w.FullnessMirror.text(), "2.5");
    EXPECT_EQ(w.HemAllowanceIns.text(), "2.0");
    EXPECT_EQ(w.HemAllowanceCm.text(), "5.08");
    EXPECT_EQ(w.cboVAT.text(), "17.5");
    EXPECT_EQ(w.CboCurtainStyle.entries(), (std::vector<std::string>{"Cafe", "Tab Top"}));
    EXPECT_EQ(w.CboCurtainStyle.text(), "Enter Curtain / Valance Style ");
    EXPECT_EQ(w.CboTieBacks.entries().size(), 6U);
    EXPECT_EQ(w.CboTieBacks.entries().back(), "Own size");
    EXPECT_EQ(w.CboTrims.entries().size(), 23U);
    EXPECT_EQ(w.TieBackStyle.entries().size(), 7U);

    struct Series {
      const DropDownList& list;
      std::size_t count;
      std::string second, last;
    };
    for (const Series& c :
         {Series{w.FabricPrice, 101, "1.00", "100.00"}, Series{w.TapePrice, 21, "0.50", "10.00"},
          Series{w.LiningPrice, 101, "0.50", "50.00"}, Series{w.InterliningPrice, 101, "0.50", "50.00"},
          Series{w.LabourPrice, 101, "1.00", "100.00"}, Series{w.TrimPrice, 201, "0.50", "100.00"},
          Series{w.cboVAT, 101, "0.5", "50.0"}}) {
      ASSERT_EQ(c.list.entries().size(), c.count) << c.list.name();
      EXPECT_EQ(c.list.entries()[1], c.second) << c.list.name();
      EXPECT_EQ(c.list.entries().back(), c.last) << c.list.name();
    }
  });
}

TEST(Flow, WithoutFilesTheDefaultsStand) {
  WizardShop shop("");
  shop.folder.Write("Options.dat", "30.0\r\n15.00");
  shop.NewItem([](MainCWizard& w) {
    EXPECT_EQ(w.LabourPrice.text(), "15.00");
    EXPECT_EQ(w.TapePrice.text(), "0.50") << "a short file gives what it has";
    EXPECT_EQ(w.HemAllowanceIns.text(), "9");
    EXPECT_EQ(w.HemAllowanceCm.text(), "22.86") << "the boxes agree, though the hem stays as it is";
    EXPECT_TRUE(w.CboCurtainStyle.entries().empty());
    EXPECT_EQ(w.cboVAT.text(), "");
  });
}

TEST(Flow, ListEditor) {
  WizardShop shop;
  shop.folder.Write("Curtainlist.Dat", "Cafe\r\n");
  shop.NewItem([&shop](MainCWizard& w) {
    EXPECT_FALSE(w.cboVAT.shown());
    w.CmdListOptions.UserPress();
    EXPECT_TRUE(w.cboVAT.shown());
    EXPECT_FALSE(w.StepPanel[0].shown());
    EXPECT_FALSE(w.CMDADD.enabled());
    w.CMDLOAD.UserPress();
    EXPECT_EQ(w.lstData.entries(), std::vector<std::string>{"Cafe"});
    shop.host.inputs = {"Tab Top", std::nullopt};
    w.CMDADD.UserPress();
    w.CMDADD.UserPress();
    w.Option8.UserSet(true);
    w.CMDLOAD.UserPress();
    EXPECT_EQ(shop.host.messages.back(),
              "This list box has change please save before loading the next list.");
    w.lstData.UserPick(0);
    w.CMDDELETE.UserPress();
    w.CMDDELETE.UserPress();
    w.CMDSAVE.UserPress();
    EXPECT_EQ(shop.folder.Read("Curtainlist.Dat"), "Tab Top\r\n");
    EXPECT_EQ(w.CboCurtainStyle.entries(), std::vector<std::string>{"Tab Top"});
    w.CMDLOAD.UserPress();
    EXPECT_TRUE(w.lstData.entries().empty()) << "there are no trimmings yet";
    w.CmdWizard.UserPress();
    EXPECT_TRUE(w.StepPanel[0].shown());
    EXPECT_FALSE(w.lstData.shown());
  });
}

TEST(Flow, ComingBackIsANewActivation) {
  WizardShop shop;
  shop.NewItem([](MainCWizard& w) {
    w.TxtRoom.UserType("Hall");
    w.CmdCurOptions.UserPress();
    EXPECT_EQ(w.TxtRoom.text(), "Room 1");
    EXPECT_EQ(w.ItemNumber.text(), "101");
    EXPECT_EQ(w.job().TxtLastOrderNo.text(), "102");
  });
}

}  // namespace
}  // namespace tarvane
