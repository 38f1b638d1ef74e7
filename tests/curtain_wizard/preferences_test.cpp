#include <gtest/gtest.h>

#include "curtain_wizard/frm_preferences.h"
#include "wizard_shop.h"

namespace tarvane {
namespace {

const char kOptions[] = "30.0\r\n15.00\r\n3.00\r\n4.50\r\n0.75\r\n2.5\r\n2.0\r\n20.00\r\nninth\r\n";

// Opens the preferences from the wizard; `after` looks at the wizard.
void Show(WizardShop& shop, const std::function<void(FrmPreferences&)>& step,
          const WizardShop::Step& after = {}) {
  shop.NewItem([&](MainCWizard& w) {
    shop.host.OnShow<FrmPreferences>(step);
    w.CmdCurOptions.UserPress();
    if (after) after(w);
  });
}

TEST(Preferences, LoadsEightLinesAndFormatsOnLeaving) {
  WizardShop shop;
  shop.folder.Write("Options.dat", kOptions);
  Show(shop, [](FrmPreferences& f) {
    EXPECT_EQ(f.Text1[0].text(), "30.0");
    EXPECT_EQ(f.Text1[7].text(), "20.00");
    EXPECT_EQ(f.Text1[8].text(), "");
    for (int box = 0; box < FrmPreferences::kBoxes; ++box) {
      f.Text1[box].UserType("2.25");
      f.Text1[box].UserLeave();
      EXPECT_EQ(f.Text1[box].text(), box == 0 || box == 5 || box == 6 ? "2.3" : "2.25") << box;
    }
    f.Text1[1].UserType("much");
    f.Text1[1].UserLeave();
    EXPECT_EQ(f.Text1[1].text(), "much");
    f.Command1.UserPress();
    EXPECT_TRUE(f.is_closed());
  });
  EXPECT_EQ(shop.folder.Read("Options.dat"), kOptions);
}

TEST(Preferences, SaveReachesTheFileAndTheWizard) {
  WizardShop shop;
  shop.folder.Write("options.DAT", kOptions);
  Show(
      shop,
      [](FrmPreferences& f) {
        f.Text1[1].UserType("16");
        f.Text1[6].UserType("10");
        f.Text1[7].UserType("5\r\nx");
        f.Text1[8].UserType("1");
        f.Command22.UserPress();
        EXPECT_TRUE(f.is_closed());
      },
      [](MainCWizard& w) {
        EXPECT_EQ(w.LabourPrice.text(), "16.00");
        EXPECT_EQ(w.LiningPrice.text(), "3.00");
        EXPECT_EQ(w.InterliningPrice.text(), "4.50");
        EXPECT_EQ(w.TapePrice.text(), "0.75");
        EXPECT_EQ(w.FullnessMirror.text(), "2.5");
        EXPECT_EQ(w.HemAllowanceIns.text(), "10.0");
        EXPECT_EQ(w.HemAllowanceCm.text(), "25.4");
      });
  EXPECT_EQ(shop.folder.Read("options.DAT"),
            "30.0\r\n16.00\r\n3.00\r\n4.50\r\n0.75\r\n2.5\r\n10.0\r\n5  x\r\n");
}

TEST(Preferences, MissingFileLeavesBlanksAndAFailedSaveIsTold) {
  WizardShop shop;
  std::filesystem::create_directories(shop.folder.path() / "Options.dat");  // a folder can't be replaced
  Show(
      shop,
      [](FrmPreferences& f) {
        EXPECT_EQ(f.Text1[0].text(), "");
        f.Text1[1].UserType("16");
        f.Command22.UserPress();
      },
      [](MainCWizard& w) { EXPECT_EQ(w.LabourPrice.text(), "16.00"); });
  EXPECT_EQ(shop.host.messages, std::vector<std::string>{"Error Found! cannot save options"});
}

}  // namespace
}  // namespace tarvane
