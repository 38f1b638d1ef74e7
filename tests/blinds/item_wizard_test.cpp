#include "blinds/item_wizard.h"

#include <gmock/gmock.h>

#include "job/job_screen.h"
#include "job/room_text.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::blinds {
namespace {

using ::testing::ElementsAre;

class ItemWizardTest : public testing::Test {
 protected:
  using Step = std::function<void(WizardNewBlinds&)>;

  ItemWizardTest() {
    folder_.AddSettings();
    folder_.AddJob({{"Name", "Ash"}});
  }
  void WithJob(std::function<void(job::JobScreen&)> step) {
    Shop shop(folder_.path());
    job::JobScreen job(host_, shop);
    job.OpenData();
    host_.OnShow<job::JobScreen>(std::move(step));
    job.RunAsMain();
  }
  // A new item of room 1, or what `prepare` makes of it.
  void Wizard(job::JobScreen& job, Step step, const Step& prepare = {}) {
    WizardNewBlinds wizard(host_, job.shop(), job);
    wizard.TargetRoomIndex.SetText("0");
    if (prepare) prepare(wizard);
    host_.OnShow<WizardNewBlinds>(std::move(step));
    job.Guard([&] { job.ShowModal(wizard); });
    if (!host_.shows.empty()) host_.shows.clear();
  }
  void Edit(job::JobScreen& job, const std::string& record, std::string_view row, Step step) {
    Wizard(job, std::move(step), [&](WizardNewBlinds& wizard) {
      wizard.Txtinfo.SetText(record);
      wizard.TxtRow.SetText(row);
    });
  }
  void NewItem(Step step) {
    WithJob([&](job::JobScreen& job) { Wizard(job, step); });
  }
  static void TypeItem(WizardNewBlinds& w) {
    w.HPtxtFields[2].UserType("Cushion");
    w.Elements.txtItems[0].UserType("Cover");
    w.Elements.TxtItemQty[0].UserType("2");
    w.Elements.TxtSubTotalForItem[0].UserType("7.5");
  }

  ShopFolder folder_;
  FakeHost host_;
};

TEST_F(ItemWizardTest, ThePanelFillsItselfAndChangesNoPrice) {
  NewItem([](WizardNewBlinds& w) {
    EXPECT_EQ(w.QtyNeeded.text(), "1");
    EXPECT_EQ(w.PricePerMetre.text(), "0.00");
    EXPECT_EQ(w.PricePerMetre.entries().size(), 101U);
    EXPECT_EQ(w.PricePerMetre.entries().back(), "100.00");
    EXPECT_EQ(w.BlindInfo.text(), "Select Blind Info");
    EXPECT_EQ(w.BlindInfo.entries().size(), 21U);
    EXPECT_EQ(w.CboTieBacks.text(), "Select made from");
    EXPECT_THAT(w.CboTieBacks.entries(),
                ElementsAre("Adhesive buckram", "Buckram", "MDF Board", "Ply Wood", "Pelform"));
    EXPECT_EQ(w.HPtxtFields[10].text(), "");
    TypeItem(w);
    w.BlindInfo.SetText("Roman Blinds");
    w.Elements.TxtSubTotalForItem[0].UserLeave();
    EXPECT_EQ(w.Elements.TxtGrandTotal.text(), "15.00");
    w.CboTieBacks.SetText("Wood");
    EXPECT_EQ(w.CostingLabel[3].caption(), "Costing for Wood:");
    w.CboTieBacks.SetText("MDF Board");
    EXPECT_EQ(w.CostingLabel[3].caption(), "Costing for Wood:");
    w.CboTieBacks.SetText("Buckram");
    EXPECT_EQ(w.CostingLabel[3].caption(), "Costing for Buckram:");
  });
}

TEST_F(ItemWizardTest, ThePanelsSumHoldsUntilTheElementsAreAddedUp) {
  NewItem([](WizardNewBlinds& w) {
    TypeItem(w);
    w.HPtxtFields[10].SetText("1.004");
    w.TxtDeliveryCosting.SetText("5.004");
    w.TxtLabour.SetText("two");
    w.SetProducts({{"9.99", {"Linen", "", "blue"}}, {"1.00", {"Silk", "red", ""}}});
    w.nsdProduct.SetText("Lin");
    EXPECT_EQ(w.FabricText.text(), "");
    w.nsdProduct.SetText("Linen");
    EXPECT_EQ(w.FabricText.text(), "Linen,blue");
    EXPECT_EQ(w.BlindPriceIncVat.text(), "9.99");
    w.QtyNeeded.SetText("2");
    EXPECT_EQ(w.BlindPriceIncVat.text(), "19.98");
    EXPECT_EQ(w.TxtSubTotal.text(), "25.98") << "19.98 + 5.00 + 0 + 1.00: rounded first";
    EXPECT_EQ(w.Elements.TxtGrandTotal.text(), "25.98");
    EXPECT_EQ(w.TxtLabour.text(), "two");
    w.TxtDeliveryCosting.SetText("6.00");
    w.TxtNoOfTieBacks.SetText("1");
    EXPECT_EQ(w.TxtSubTotal.text(), "26.98");
    w.SSTab1.UserSelect(1);
    EXPECT_EQ(w.Elements.TxtGrandTotal.text(), "15.00");
  });
}

TEST_F(ItemWizardTest, ANumberThatCantBeUsedUpIsntGiven) {
  WithJob([this](job::JobScreen& job) {
    Wizard(job, [](WizardNewBlinds& w) { EXPECT_EQ(w.HPtxtFields[0].text(), "100"); });
    Wizard(job, [](WizardNewBlinds& w) { EXPECT_EQ(w.HPtxtFields[0].text(), "101"); });
    Database(folder_.jobs_file())
        .Execute("CREATE TRIGGER no_numbers BEFORE UPDATE ON Admin BEGIN SELECT RAISE(FAIL, 'full'); END");
    const auto shown = host_.shown.size();
    Wizard(job, [](WizardNewBlinds&) {});
    EXPECT_EQ(host_.shown.size(), shown) << "no wizard without a number";
    EXPECT_THAT(host_.messages, testing::SizeIs(1));
    EXPECT_EQ(job.TxtLastOrderNo.text(), "102");
  });
}

// The job can't be written: it is as it was, and the item is still there to be saved.
TEST_F(ItemWizardTest, AFaultWhileSavingLeavesTheJobAsItWas) {
  const auto fail = [this] {
    Database(folder_.jobs_file())
        .Execute("CREATE TRIGGER no_jobs BEFORE UPDATE ON TblBrindel BEGIN SELECT RAISE(FAIL, 'full'); END");
  };
  const auto mend = [this] { Database(folder_.jobs_file()).Execute("DROP TRIGGER no_jobs"); };
  WithJob([&](job::JobScreen& job) {
    Wizard(job, [&](WizardNewBlinds& w) {
      TypeItem(w);
      fail();
      w.CmdFinishTwo.UserPress();
      EXPECT_FALSE(w.is_closed() || w.item_saved());
      EXPECT_TRUE(w.has_changes());
      EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 0);
      EXPECT_EQ(job.RoomItems[0].text(), "");
      EXPECT_EQ(job.RoomTotal[0].text(), "0.00");
      // Nor does another room that it was meant for have it.
      w.TargetRoomIndex.SetText("1");
      w.CmdFinishTwo.UserPress();
      EXPECT_EQ(job.RoomItemGrid[1].RowCount(), 0);
      w.TargetRoomIndex.SetText("0");
      mend();
      w.CmdFinishTwo.UserPress();
      EXPECT_TRUE(w.is_closed() && w.item_saved());
      w.CmdFinishTwo.UserPress();
    });
    ASSERT_EQ(job.RoomItemGrid[0].RowCount(), 1) << "once, also by a double click";
    const std::string stored = folder_.Stored(kJobTable, 0, "1T(0)");
    EXPECT_EQ(stored, job.RoomItems[0].text());
    const std::string record = job.RoomItemGrid[0].Text(1, job::kInfomationColumn);
    Edit(job, record, "1", [&](WizardNewBlinds& w) {
      EXPECT_FALSE(w.has_changes());
      w.Elements.TxtItemQty[0].UserType("3");
      fail();
      w.CmdUpdateAndClose.UserPress();
      EXPECT_FALSE(w.is_closed());
      EXPECT_EQ(job.RoomItems[0].text(), stored);
      EXPECT_EQ(job.RoomItemGrid[0].Text(1, job::kInfomationColumn), record);
      EXPECT_EQ(job.RoomTotal[0].text(), "15.00");
      mend();
      w.CmdUpdateAndClose.UserPress();
    });
    EXPECT_EQ(job.RoomTotal[0].text(), "22.50");
    EXPECT_EQ(folder_.Stored(kJobTable, 0, "Text11"), "22.50");
  });
}

TEST_F(ItemWizardTest, ARowThatIsGoneAndARoomThatIsNoneFault) {
  WithJob([this](job::JobScreen& job) {
    for (const std::string_view row : {"0", "1", "x", "-1", "1e9"}) {
      Edit(job, "1001~", row, [](WizardNewBlinds& w) {
        w.CmdUpdateAndClose.UserPress();
        EXPECT_FALSE(w.is_closed());
      });
      EXPECT_EQ(host_.messages.back(),
                "The item's row " + std::string(row) + " is not in the room any more.");
    }
    for (const std::string_view room : {"12", "-1"}) {
      Wizard(
          job, [](WizardNewBlinds& w) { w.CmdFinishTwo.UserPress(); },
          [room](WizardNewBlinds& w) { w.TargetRoomIndex.SetText(room); });
      EXPECT_EQ(host_.messages.back(),
                "There is no room for this item: room index \"" + std::string(room) + "\".");
    }
    EXPECT_EQ(job.RoomItems[0].text(), "");
  });
}

TEST_F(ItemWizardTest, TakesAnyTextAndAnyRecord) {
  std::string very_long;
  very_long.resize(10'000'000, '|');
  const std::string texts[] = {
      "",       " ",     "a|b~c\"d'e",          "line\r\nbreak",        "\xFF\xFE",
      "-1",     "1e308", std::string(400, '9'), "\xC3\xA9\xE2\x82\xAC", std::string("a\0b", 3),
      very_long};
  for (const std::string& text : texts) {
    WithJob([&](job::JobScreen& job) {
      Wizard(job, [&](WizardNewBlinds& w) {
        for (Control* control : w.controls()) {
          auto* field = dynamic_cast<TextField*>(control);
          if (field == nullptr || field->never_shown() || !field->enabled() || field->read_only()) continue;
          // The long one once: each change of an amount works out all totals.
          if (text.size() > 1000 && field != &w.HPtxtFields[4]) continue;
          field->UserType(text);
          field->UserLeave();
        }
        w.CmdFinishTwo.UserPress();
        EXPECT_TRUE(w.item_saved()) << text.substr(0, 20);
      });
    });
    std::string record;
    for (int i = 0; i < (text.size() > 1000 ? 1 : 70); ++i) record += text + "~";
    WithJob([&](job::JobScreen& job) {
      Edit(job, record, record, [&](WizardNewBlinds& w) {
        EXPECT_EQ(w.HPtxtFields[0].text(), text.empty() ? "101" : text.substr(0, text.find('~')));
        w.Command3.UserPress();
        w.CmdUpdateAndClose.UserPress();
      });
    });
  }
}

}  // namespace
}  // namespace tarvane::blinds
