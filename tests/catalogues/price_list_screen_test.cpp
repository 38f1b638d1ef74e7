#include <gmock/gmock.h>

#include "catalogues/price_list/frm_price_list.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"
#include "text/fault.h"

namespace tarvane::catalogues {
namespace {

using ::testing::HasSubstr;

class PriceListScreenTest : public testing::Test {
 protected:
  PriceListScreenTest() {
    folder_.AddSettings({{"VatAmount", "17.5"}});
    folder_.AddRow("Products", {{"SuppliersName", "Tarn"}, {"ItemCode", "A1"}, {"SellingPrice", "24.00"}});
  }
  void Choose(std::string_view csv) {
    folder_.Write("list.csv", csv);
    host_.files.emplace_back(folder_.path() / "list.csv");
    screen_.CmdOpen.UserPress();
  }

  ShopFolder folder_;
  FakeHost host_;
  Shop shop_{folder_.path()};
  FrmPriceList screen_{host_, shop_};
};

TEST_F(PriceListScreenTest, ReadsShowsAndTakesOver) {
  EXPECT_FALSE(screen_.CmdTakeOver.enabled());
  screen_.TxtSupplier.UserType("Tarn");
  Choose("List\nCode,Name,RRP\nA1,,26.5\nB1,Net,3\nC1,Gauze,free\n");
  EXPECT_EQ(screen_.FileName.caption(), "list.csv: 3 lines, headings in line 2");
  EXPECT_EQ(screen_.Counts.caption(), "1 new, 1 change, 0 stay, 1 wrong");
  EXPECT_EQ(screen_.Lines.Cell(1, PlanGrid::kChanges), "SellingPrice 24.00 -> 26.50");
  EXPECT_EQ(screen_.Lines.Cell(2, PlanGrid::kState), "new");
  EXPECT_EQ(screen_.Lines.Cell(3, PlanGrid::kWrong), "SellingPrice \"free\" is no price");
  EXPECT_EQ(screen_.Lines.Cell(3, PlanGrid::kLine), "5");
  EXPECT_FALSE(screen_.CmdTakeOver.enabled());
  screen_.ChkLeaveOut.UserSet(true);
  host_.answers = {Answer::kNo};
  screen_.CmdTakeOver.UserPress();
  EXPECT_EQ(folder_.Count("Products"), 1);
  EXPECT_EQ(host_.questions.back().text,
            "Take over this price list?\n1 product will be added, 1 product will be changed. 1 line is wrong "
            "and left out.");
  host_.answers = {Answer::kYes};
  screen_.CmdTakeOver.UserPress();
  EXPECT_EQ(host_.messages.back(), "1 product added, 1 product changed. 1 line is wrong and left out.");
  EXPECT_EQ(folder_.Stored("Products", 0, "SellingPrice"), "26.50");
  EXPECT_EQ(folder_.Stored("Products", 1, "VatRate"), "17.5");
  EXPECT_EQ(screen_.Counts.caption(), "0 new, 0 change, 2 stay, 1 wrong");
  EXPECT_FALSE(screen_.CmdTakeOver.enabled());
  screen_.ChkOnlyChanges.UserSet(true);
  EXPECT_EQ(screen_.Lines.RowCount(), 1);
  EXPECT_EQ(host_.busy, 0);
}

TEST_F(PriceListScreenTest, TheWorkerCorrectsColumnsAndSupplier) {
  Choose("Code,Name,Price\nA1,Check,5\n");
  EXPECT_EQ(screen_.Lines.Cell(1, PlanGrid::kWrong), "no supplier");
  screen_.TxtSupplier.UserType("tarn");
  screen_.TxtSupplier.UserLeave();
  EXPECT_EQ(screen_.Lines.Cell(1, PlanGrid::kChanges), "ProductName (blank) -> Check");
  EXPECT_EQ(screen_.CboColumn[kSellingPrice].text(), "(not in the list)");
  screen_.CboColumn[kSellingPrice].UserPick(3);
  screen_.CboColumn[kProductName].UserPick(0);
  EXPECT_EQ(screen_.Lines.Cell(1, PlanGrid::kChanges), "SellingPrice 24.00 -> 5.00");
  // Another file starts from its own headings, and a broken one leaves all as it is.
  Choose("\"");
  EXPECT_THAT(host_.messages.back(), HasSubstr("quote mark that isn't closed"));
  EXPECT_EQ(screen_.Lines.RowCount(), 1);
  Choose("Code,RRP\n");
  EXPECT_EQ(screen_.Lines.RowCount(), 0);
  EXPECT_EQ(screen_.CboColumn[kSellingPrice].text(), "RRP");
  EXPECT_FALSE(screen_.CmdTakeOver.enabled());
  host_.files = {std::nullopt};
  screen_.CmdOpen.UserPress();
  EXPECT_EQ(screen_.CboColumn[kSellingPrice].text(), "RRP");
}

TEST_F(PriceListScreenTest, WithoutItsDatabaseItIsNotShown) {
  std::filesystem::remove(folder_.FileOf("Products"));
  FakeHost host;
  Screen main(host, "Main");
  EXPECT_THROW(main.ShowModal(screen_), Fault);
  EXPECT_TRUE(host_.shown.empty());
}

}  // namespace
}  // namespace tarvane::catalogues
