#include "blinds/templates.h"

#include <gmock/gmock.h>

#include "blinds/item_wizard.h"
#include "job/job_screen.h"
#include "store/ordinary_user.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::blinds {
namespace {

class TemplatesTest : public testing::Test {
 protected:
  TemplatesTest() {
    folder_.AddSettings();
    folder_.AddJob({{"Name", "Ash"}});
  }
  void WithTemplates(std::function<void(FrmBlindsTemplates&)> step) {
    Shop shop(folder_.path());
    job::JobScreen job(host_, shop);
    job.OpenData();
    FrmBlindsTemplates templates(host_, shop, job);
    host_.OnShow<FrmBlindsTemplates>(std::move(step));
    job.Guard([&] { job.ShowModal(templates); });
    host_.shows.clear();
  }

  ShopFolder folder_;
  FakeHost host_;
};

TEST_F(TemplatesTest, EveryColumnHasItsField) {
  RowValues row = {{"Description", "0"}, {"SellingPrice", "5"}, {"BuyPrice", "4"}, {"Remarks", "r"}};
  for (int i = 1; i <= 10; ++i) {
    const std::string number = std::to_string(i);
    if (i < 10) row["Info" + number] = number;
    row["Element" + number] = "e" + number;
    row["Qty" + number] = number;
    row["SubTotal" + number] = number + ".00";
  }
  folder_.AddRow("Templates", row);
  WithTemplates([](FrmBlindsTemplates& t) {
    for (std::size_t i = 0; i < 10; ++i) {
      const std::string number = std::to_string(i + 1);
      EXPECT_EQ(t.Info[i].text(), std::to_string(i));
      EXPECT_EQ(t.Elements.txtItems[i].text(), "e" + number);
      EXPECT_EQ(t.Elements.TxtItemQty[i].text(), number);
      EXPECT_EQ(t.Elements.TxtSubTotalForItem[i].text(), number + ".00");
    }
    EXPECT_EQ(t.Elements.TxtGrandTotal.text(), "385.00");
    EXPECT_EQ(t.FabselPrice.text(), "5");
    EXPECT_EQ(t.FabBuyPrice.text(), "4");
    EXPECT_EQ(t.FabRemarks.text(), "r");
    t.TxtMarkUp.UserType("300");
    EXPECT_EQ(t.FabselPrice.text(), "5");
  });
  EXPECT_EQ(folder_.Stored("Templates", 0, "Qty10"), "10") << "a look at it changes nothing";
}

TEST_F(TemplatesTest, WhatWasTypedIsCommittedBeforeItIsCopied) {
  folder_.AddRow("Templates", {{"Description", "Stock"}, {"Info1", "Roman blind"}});
  Shop shop(folder_.path());
  job::JobScreen job(host_, shop);
  job.OpenData();
  WizardNewBlinds wizard(host_, shop, job);
  wizard.HPtxtFields[11].SetText("left");
  FrmBlindsTemplates templates(host_, shop, job);
  templates.ForWizard(wizard);
  EXPECT_EQ(templates.use_button(), &templates.CmdUseItems);
  EXPECT_FALSE(templates.CmdUse.visible());
  host_.OnShow<FrmBlindsTemplates>([&](FrmBlindsTemplates& t) {
    t.Info[9].UserType("new");
    t.MSFlexGrid1.UserOpenRow(1);
    EXPECT_TRUE(t.is_closed());
  });
  job.ShowModal(templates);
  EXPECT_EQ(folder_.Stored("Templates", 0, "Info9"), "new");
  EXPECT_EQ(wizard.HPtxtFields[2].text(), "Roman blind");
  EXPECT_EQ(wizard.HPtxtFields[10].text(), "new");
  EXPECT_EQ(wizard.HPtxtFields[11].text(), "left");
  EXPECT_FALSE(wizard.Command1.enabled());
}

// What would be rounded at a look mustn't hold the worker in its row.
TEST_F(TemplatesTest, OnesThatCanOnlyBeReadAreLeafedThrough) {
  for (const char* name : {"a", "b"}) folder_.AddRow("Templates", {{"Description", name}, {"Qty1", "2.5"}});
  for (const auto& path : {folder_.path(), folder_.path() / "Dat"})
    std::filesystem::permissions(path, std::filesystem::perms(0755));
  std::filesystem::permissions(folder_.FileOf("Templates"), std::filesystem::perms(0444));
  const OrdinaryUser user;
  WithTemplates([this](FrmBlindsTemplates& t) {
    EXPECT_EQ(t.Elements.TxtItemQty[0].text(), "3");
    t.Records.CmdNext.UserPress();
    EXPECT_EQ(t.Info[0].text(), "b");
    EXPECT_TRUE(host_.messages.empty());
  });
}

TEST_F(TemplatesTest, WithoutAFileThereIsNoScreen) {
  WithTemplates([](FrmBlindsTemplates&) { FAIL() << "shown"; });
  EXPECT_THAT(host_.messages, testing::SizeIs(1));
}

}  // namespace
}  // namespace tarvane::blinds
