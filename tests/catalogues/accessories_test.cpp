#include "catalogues/accessories.h"

#include <gmock/gmock.h>

#include "store/ordinary_user.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::catalogues {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

constexpr std::string_view kItems = "Items";

class AccessoriesTest : public testing::Test {
 protected:
  AccessoriesTest() {
    folder_.AddSettings();
    folder_.AddJob({{"Name", "Blake"}});
    folder_.MakeFile(kItems);
    job_.OpenData();
  }
  void AddPoles() {
    folder_.AddRow(kItems, {{"SuppliersName", "Ashcombe"},
                            {"ItemName", "Pole"},
                            {"ItemCode", "P1"},
                            {"BuyPrice", "22.5"},
                            {"SellingPrice", "40"}});
    folder_.AddRow(kItems, {{"SuppliersName", "Ashcombe"},
                            {"ItemName", "Finial"},
                            {"ItemCode", "F1"},
                            {"BuyPrice", "6.25"},
                            {"SellingPrice", "12.50"}});
    folder_.AddRow(kItems, {{"SuppliersName", "Brack"}, {"ItemName", "Hook | 10*"}, {"SellingPrice", "3"}});
  }
  void Show(
      std::function<void(FrmItemsDatabase&)> step,
      const std::function<void(FrmItemsDatabase&)>& before = [](FrmItemsDatabase&) {}) {
    FrmItemsDatabase screen(host_, shop_, job_);
    before(screen);
    host_.OnShow<FrmItemsDatabase>(std::move(step));
    job_.Guard([&] { job_.ShowModal(screen); });
    EXPECT_TRUE(host_.shows.empty()) << "it was never shown";
  }
  std::string Selling(int row) const { return folder_.Stored(kItems, row, "SellingPrice"); }

  ShopFolder folder_;
  Shop shop_{folder_.path()};
  FakeHost host_;
  job::JobScreen job_{host_, shop_};
};

TEST_F(AccessoriesTest, MarksUpEachRecordThatIsLookedAt) {
  AddPoles();
  Show([this](FrmItemsDatabase& screen) {
    EXPECT_EQ(screen.Records.Caption.caption(), "Accessory Record: 1/3");
    EXPECT_EQ(screen.SellingPrice.text(), "45.00");
    EXPECT_EQ(Selling(0), "40") << "not before the record is left";
    screen.Records.CmdNext.UserPress();
    EXPECT_EQ(Selling(0), "45.00");
    EXPECT_EQ(Selling(2), "3") << "a record that nobody looked at keeps its price";
    screen.Records.CmdNext.UserPress();
    EXPECT_EQ(screen.SellingPrice.text(), "0.00") << "no buying price, no selling price";
    screen.Records.CmdPrevious.UserPress();
    EXPECT_EQ(screen.SellingPrice.text(), "12.50");

    screen.Check3.UserSet(true);
    screen.TxtMarkUp.UserType("33.3");
    EXPECT_EQ(screen.SellingPrice.text(), "8.33");
    screen.BuyPrice.UserType("10");
    EXPECT_EQ(screen.SellingPrice.text(), "13.33");
    screen.SellingPrice.UserType("99");
    EXPECT_EQ(screen.SellingPrice.text(), "99") << "until the record is next shown";
    screen.Update.UserPress();
    EXPECT_EQ(Selling(1), "99");
    EXPECT_EQ(screen.SellingPrice.text(), "13.33") << "a save shows it anew";
    screen.UserClose();
  });
  EXPECT_EQ(Selling(1), "13.33");
}

TEST_F(AccessoriesTest, BrowsesWhereNothingCanBeWritten) {
  AddPoles();
  const auto browse = [this](FrmItemsDatabase& screen) {
    EXPECT_EQ(screen.SellingPrice.text(), "45.00");
    EXPECT_THAT(screen.Messages.caption(), HasSubstr("can only be read"));
    screen.Records.CmdNext.UserPress();
    EXPECT_EQ(screen.Records.Caption.caption(), "Accessory Record: 2/3");
    screen.TxtMarkUp.SetText("0");
    EXPECT_EQ(screen.SellingPrice.text(), "6.25");
    host_.inputs = {"1", "1"};
    screen.CmdUse.UserPress();
    EXPECT_THAT(host_.messages, ElementsAre("Item Added in Tab Order 1"));
    screen.UserClose();
  };
  namespace fs = std::filesystem;
  const fs::path file = folder_.FileOf(kItems);
  for (const fs::path& folder : {folder_.path(), file.parent_path()}) {
    fs::permissions(folder, fs::perms::all);
  }
  fs::permissions(file, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  fs::remove(file.string() + "-journal");
  {
    const OrdinaryUser user;
    Show(browse);
  }
  EXPECT_THAT(host_.messages, ElementsAre("Item Added in Tab Order 1"));
  EXPECT_EQ(Selling(0), "40");
}

TEST_F(AccessoriesTest, AFolderThatMayOnlyBeReadKeepsNobodyFromBrowsing) {
  AddPoles();
  Database& database = shop_.database(data_file::kAccessories);
  EXPECT_TRUE(database.CanBeWritten());
  namespace fs = std::filesystem;
  const fs::path dat = folder_.FileOf(kItems).parent_path();
  fs::permissions(dat, fs::perms::owner_read | fs::perms::owner_exec);
  fs::remove(folder_.FileOf(kItems).string() + "-journal");
  {
    const OrdinaryUser user;
    EXPECT_FALSE(database.CanBeWritten());
    Show([](FrmItemsDatabase& screen) {
      screen.Records.CmdLast.UserPress();
      EXPECT_EQ(screen.Records.Caption.caption(), "Accessory Record: 3/3");
    });
  }
  EXPECT_THAT(host_.messages, IsEmpty());
}

TEST_F(AccessoriesTest, PricesThatDoNotFitStandAsTheyAre) {
  for (const std::string& price : {std::string("1e300"), std::string("1e308"), std::string(200, '9')}) {
    folder_.AddRow(kItems, {{"BuyPrice", price}, {"SellingPrice", "5"}});
  }
  Show([](FrmItemsDatabase& screen) {
    for (int row = 0; row < 3; ++row) {
      if (row < 2) {
        EXPECT_EQ(screen.SellingPrice.text(), "5");
      }
      screen.Records.CmdNext.UserPress();
    }
    EXPECT_EQ(screen.Records.Caption.caption(), "Accessory Record: 3/3");
    screen.TxtMarkUp.SetText("1e308");
    screen.BuyPrice.SetText("22.5");
    EXPECT_EQ(screen.SellingPrice.text().substr(0, 4), "2000")
        << "as it was before the mark-up got too large";
    screen.TxtMarkUp.SetText("ten");
    EXPECT_EQ(screen.SellingPrice.text(), "22.50");
  });
  EXPECT_THAT(host_.messages, IsEmpty());
}

TEST_F(AccessoriesTest, BuyPriceIsHiddenUntilAskedFor) {
  AddPoles();
  Show([this](FrmItemsDatabase& screen) {
    EXPECT_FALSE(screen.BuyPrice.shown());
    EXPECT_FALSE(screen.TxtMarkUp.shown());
    screen.Search.CboFabSearch.UserPick(4);
    EXPECT_TRUE(screen.Check3.on());
    EXPECT_TRUE(screen.BuyPrice.shown());
    screen.Search.FabSText.UserType("6");
    screen.Search.CmdSearch.UserPress();
    EXPECT_THAT(host_.messages, ElementsAre("1 matches found."));
    EXPECT_EQ(screen.ItemName.text(), "Finial");
    EXPECT_TRUE(screen.TxtMarkUp.shown());

    screen.Search.CmdReset.UserPress();
    screen.CmdFabAdd.UserPress();
    EXPECT_FALSE(screen.Check3.on());
    EXPECT_FALSE(screen.BuyPrice.shown());
    EXPECT_EQ(screen.Records.Caption.caption(), "Record: 4");
    EXPECT_EQ(screen.focus(), &screen.SuppliersName);
    screen.CmdUse.UserPress();
    EXPECT_THAT(host_.messages.back(), HasSubstr("There is no accessory. Add one first."));
    EXPECT_EQ(screen.Records.Caption.caption(), "Accessory Record: 1/3") << "and the new one is gone";

    screen.CmdFabAdd.UserPress();
    screen.ItemName.UserType("Cord");
    host_.inputs = {"1", "2"};
    screen.CmdUse.UserPress();
    EXPECT_THAT(job_.RoomSummary[1].text(), HasSubstr("Ref No: 4\r\n Cord \r\n"))
        << "stored first, with its key";
  });
}

TEST_F(AccessoriesTest, HandsOverWithoutTaxAndCloses) {
  AddPoles();
  job_.cboVAT.SetText("5");
  std::vector<std::pair<std::string, std::string>> taken;
  const TakePicked take = [&taken](std::string_view text, std::string_view price) {
    taken.emplace_back(text, price);
  };
  const auto pick = [](FrmItemsDatabase& screen) {
    ASSERT_NE(screen.use_button(), nullptr);
    EXPECT_TRUE(screen.use_button()->shown());
    EXPECT_FALSE(screen.CmdUse.shown());
    EXPECT_FALSE(screen.ItemsNote.shown());
    screen.MSFlexGrid1.UserOpenRow(1);
    EXPECT_TRUE(screen.is_closed());
  };
  Show(pick, [&](FrmItemsDatabase& screen) { screen.ForSingleItems(take); });
  Show(pick, [&](FrmItemsDatabase& screen) { screen.ForInvoice(take); });
  // 45 / 15 * 100: a rate of one digit is joined to a "1" all the same.
  EXPECT_THAT(taken, ElementsAre(Pair("Ashcombe Pole P1", "300.00"), Pair("Ashcombe Pole P1", "300.00")));
  EXPECT_EQ(Selling(0), "45.00") << "what is handed over stands in the table";
  EXPECT_THAT(host_.messages, IsEmpty());
}

TEST_F(AccessoriesTest, TheQuickListLeadsToTheVeryRecord) {
  for (int i = 0; i < 12; ++i) folder_.AddRow(kItems, {{"SuppliersName", "Ashcombe*"}, {"ItemName", "Pole"}});
  Show([this](FrmItemsDatabase& screen) {
    ListBox& list = screen.Quick.lstTitles;
    EXPECT_FALSE(list.shown());
    screen.Search.CboFabSearch.UserType("ItemID");
    screen.Search.FabSText.UserType("3");
    screen.Search.CmdSearch.UserPress();
    screen.Quick.Command1.UserPress();
    EXPECT_EQ(host_.busy, 0);
    EXPECT_TRUE(list.shown());
    ASSERT_EQ(list.EntryCount(), 12);
    EXPECT_EQ(list.Entry(11), "12* Ashcombe* Pole");
    EXPECT_EQ(screen.Records.Caption.caption(), "Accessory Record: 1/12") << "all rows are back";
    list.UserPick(11);
    EXPECT_EQ(screen.ItemID.text(), "12");
    list.UserPick(0);
    EXPECT_EQ(screen.ItemID.text(), "1") << "and not 10, 11 or 12";

    int redrawn = 0;
    const int watch = list.Watch([&](Aspect aspect) { redrawn += aspect == Aspect::kEntries ? 1 : 0; });
    host_.answers = {Answer::kYes};
    screen.CmdDelete.UserPress();
    EXPECT_GT(redrawn, 0);
    EXPECT_EQ(list.EntryCount(), 11);
    list.Unwatch(watch);

    screen.Search.FabSText.UserType("*nothing");
    screen.Search.CboFabSearch.UserType("ItemName");
    screen.Search.CmdSearch.UserPress();
    list.UserPick(3);
    EXPECT_FALSE(screen.Data1.HasRow()) << "a line that isn't among the found ones leads nowhere";
  });
}

}  // namespace
}  // namespace tarvane::catalogues
