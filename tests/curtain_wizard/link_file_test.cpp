#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
namespace {

const char kFullLink[] =
    "100\r\n54\r\n2\r\n80\r\n10\r\n9\r\n4\r\n360\r\n8\r\n10\r\n90\r\n228.6\r\n"  // 1 to 12
    "False\r\nTrue\r\nTrue\r\n0\r\nBlue linen\r\n12.5\r\n0.50\r\nFalse\r\n"      // 13 to 20
    "True\r\n1 - 1.5 Widths 50.8cm (20in)\r\n2\r\n7.25\r\n"                      // 21 to 24
    "Crescent Shaped Stiff (Buckram)\r\n1\r\n1\r\n3\r\n4.50\r\nBorder\r\n"       // 25 to 30
    "Border to 2 sides and base\r\n0\r\n1\r\n0\r\n1\r\n0\r\nRed border\r\n10\r\n15\r\n15\r\n";

TEST(LinkFile, RoundTrip) {
  WizardShop shop;
  const std::filesystem::path file = shop.folder.path() / "window.tvs";
  shop.NewItem([&](MainCWizard& w) {
    FillFullItem(w);
    shop.host.files = {std::nullopt, file};
    w.SaveLink();
    EXPECT_FALSE(std::filesystem::exists(file)) << "the choice was cancelled";
    w.SaveLink();
    EXPECT_EQ(shop.folder.Read("window.tvs"), kFullLink);
    w.FabricName.SetText("Red");
    w.SaveLink();
    EXPECT_NE(shop.folder.Read("window.tvs"), kFullLink) << "no second choice of a file";
  });
  shop.folder.Write("window.tvs", kFullLink);
  shop.NewItem([&](MainCWizard& w) {
    shop.host.files = {file};
    w.OpenLink();
    EXPECT_TRUE(shop.host.questions.empty()) << "nothing had changed";
    Play(w, R"(| TrackWidthIns=100 CboTrims='Border to 2 sides and base' TieBacksNeeded=on +CboTieBacks
      | LiningNeeded=on +LiningPrice PlaceTop=on AllSides=off LabourPrice=15)");

    w.TrackWidthIns.SetText("");
    shop.host.answers = {Answer::kNo, Answer::kYes};
    w.OpenLink();
    EXPECT_EQ(w.TrackWidthIns.text(), "") << "No ends it";
    EXPECT_EQ(shop.host.questions.back().title, "Save Data.");
    EXPECT_EQ(shop.host.questions.back().text, "This job has changed, Do you want to save?");
    shop.host.files = {file};
    w.OpenLink();
    EXPECT_EQ(w.TrackWidthIns.text(), "0") << "saved, then read back";
  });
}

TEST(LinkFile, AGobletChoiceIsLostAndTheListOptionKept) {
  WizardShop shop;
  const std::filesystem::path file = shop.folder.path() / "window.tvs";
  shop.host.files = {file, file};
  shop.NewItem([&](MainCWizard& w) {
    w.AutoMeasureGoblet.Set(true);
    w.Lists.Options[1].Set(true);
    w.SaveLinkAs();
  });
  shop.NewItem([](MainCWizard& w) {
    Play(w, "| OptionCancel=on Option5=on");
    w.OpenLink();
    Play(w, "| AutoMeasureGoblet=off OptionCancel=off Option5=off");
  });
}

TEST(LinkFile, LinesAreTrimmedAndBadFilesFault) {
  WizardShop shop;
  std::string text;
  for (int i = 1; i <= 40; ++i) text += "  " + std::to_string(i) + " \n";
  shop.folder.Write("window.tvs", text);
  shop.folder.Write("short.tvs", "100\r\n54\r\n");
  shop.NewItem([&](MainCWizard& w) {
    for (const char* file : {"window.tvs", "short.tvs", "missing.tvs"})
      shop.host.files.emplace_back(shop.folder.path() / file);
    w.OpenLink();
    Play(w, "| TrackWidthIns=1 LabourPrice=40");
    EXPECT_THROW(w.OpenLink(), Fault);
    EXPECT_THROW(w.OpenLink(), Fault);
    EXPECT_EQ(w.TrackWidthIns.text(), "1") << "a file that isn't one changes nothing";
  });
}

}  // namespace
}  // namespace tarvane::curtain_wizard
