#include <gtest/gtest.h>

#include "curtain_wizard/frm_preferences.h"
#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
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
    Play(f, "| Text1[0]=30.0 Text1[7]=20.00 Text1[8]=");
    for (int box = 0; box < FrmPreferences::kBoxes; ++box) {
      f.Text1[box].UserType("2.25");
      f.Text1[box].UserLeave();
      EXPECT_EQ(f.Text1[box].text(), box == 0 || box == 5 || box == 6 ? "2.3" : "2.25") << box;
    }
    Play(f, "type Text1[1] much; leave Text1[1] | Text1[1]=much; press Command1");
    EXPECT_TRUE(f.is_closed());
  });
  EXPECT_EQ(shop.folder.Read("Options.dat"), kOptions);
}

TEST(Preferences, SaveReachesTheFileAndTheWizard) {
  WizardShop shop;
  shop.folder.Write("options.DAT", kOptions);
  const auto save = [](FrmPreferences& f) {
    Play(f, "type Text1[1] 16; type Text1[6] 10; type Text1[8] 1");
    f.Text1[7].UserType("5\r\nx");
    f.Command22.UserPress();
    EXPECT_TRUE(f.is_closed());
  };
  Show(shop, save, WizardShop::Played(R"(
    | LabourPrice=16.00 LiningPrice=3.00 InterliningPrice=4.50 TapePrice=0.75 Fullness=2.5
    | FullnessMirror=2.5 HemAllowanceIns=10.0 HemAllowanceCm=25.4 cboVAT='5 x'
  )"));
  EXPECT_EQ(shop.folder.Stored(kAdminTable, 0, "VatAmount"), "0") << "the shop's rate is chosen elsewhere";
  EXPECT_EQ(shop.folder.Read("options.DAT"),
            "30.0\r\n16.00\r\n3.00\r\n4.50\r\n0.75\r\n2.5\r\n10.0\r\n5 x\r\n");
}

TEST(Preferences, MissingFileLeavesBlanksAndAFailedSaveIsTold) {
  WizardShop shop;
  const auto save = [&shop](FrmPreferences& f) {
    std::filesystem::create_directories(shop.folder.path() / "Options.dat");  // can't be replaced
    Play(f, "| Text1[0]=; type Text1[1] 16; press Command22");
  };
  Show(shop, save, WizardShop::Played("| LabourPrice=16.00"));
  EXPECT_EQ(shop.host.messages, std::vector<std::string>{"Error Found! cannot save options"});
}

}  // namespace
}  // namespace tarvane::curtain_wizard
