#include "job/job_screen.h"

#include <gmock/gmock.h>

#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::job {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::string ItemLine(std::string_view price, std::string_view info = "", std::string_view dialogbox = "") {
  return std::string(price) + "|item|state|" + std::string(dialogbox) + "|101|" + std::string(info) + "|\r\n";
}

class JobScreenTest : public testing::Test {
 protected:
  // A job screen on a shop with these jobs, the first one current.
  JobScreen& Open(const std::vector<RowValues>& jobs) {
    folder_.AddSettings();
    for (const RowValues& job : jobs) folder_.AddJob(job);
    job_.emplace(host_, shop_);
    job_->cboVAT.SetText("0");
    job_->OpenData();
    return *job_;
  }
  // As after another screen has closed.
  void Activate() { job_->RunAsMain(); }

  ShopFolder folder_;
  Shop shop_{folder_.path()};
  FakeHost host_;
  std::optional<JobScreen> job_;
};

TEST_F(JobScreenTest, LoadsTheCurrentRoomOnly) {
  JobScreen& job =
      Open({{{"1T(0)", ItemLine("10") + ItemLine("2.5")}, {"1T(1)", ItemLine("7")}, {"Text13", "99.00"}}});
  EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 2);
  EXPECT_EQ(job.RoomItemGrid[0].Text(2, kPriceColumn), "2.5");
  EXPECT_EQ(job.RoomTotal[0].text(), "12.50");
  EXPECT_EQ(job.RoomTotal[1].text(), "99.00") << "a room that isn't open keeps its stored total";
  EXPECT_EQ(job.GTotal.text(), "111.50");

  job.SSTab1.UserSelect(1);
  EXPECT_EQ(job.TxtRoomNum.text(), "2");
  EXPECT_EQ(job.RoomTotal[1].text(), "7.00");
  EXPECT_EQ(job.GTotal.text(), "19.50");
  EXPECT_EQ(job.RoomSummaryTotal[2].caption(), "7.00");
  EXPECT_EQ(job.Find("RoomItemGrid"), &job.RoomItemGrid[1]);
  EXPECT_EQ(job.Find("MSFlexGrid3"), &job.RoomItemGrid[1]);
  EXPECT_FALSE(job.CmdClearRoom[0].visible());
  EXPECT_TRUE(job.CmdClearRoom[1].visible());
}

TEST_F(JobScreenTest, RoundsThreeThirds) {
  JobScreen& job = Open({{{"1T(0)", ItemLine("0.335") + ItemLine("0.335") + ItemLine("0.335")}}});
  EXPECT_EQ(job.RoomTotal[0].text(), "1.02");
  EXPECT_EQ(job.GTotal.text(), "1.02");
}

TEST_F(JobScreenTest, RunningSumStartsAnewOnlyOnTheRoomsOwnTab) {
  JobScreen& job = Open({{{"1T(2)", ItemLine("5")}, {"Text15", "20.00"}}});
  job.TxtRoomNum.SetText("3");
  job.LoadRoom();
  EXPECT_EQ(job.RoomTotal[2].text(), "25.00");
}

TEST_F(JobScreenTest, UnknownRoomFaults) {
  JobScreen& job = Open({{}});
  for (const char* room : {"", "0", "13", "1.5", "two", "1e300"}) {
    job.TxtRoomNum.SetText(room);
    EXPECT_THROW(job.LoadRoom(), Fault) << room;
  }
}

struct TotalsCase {
  const char* what;
  RowValues job;
  std::string tax;
  // G-Total, tax, discount, total, deposit, balance
  std::vector<std::string> totals;
};

void PrintTo(const TotalsCase& each, std::ostream* out) { *out << each.what; }

class TotalsTest : public JobScreenTest, public testing::WithParamInterface<TotalsCase> {};

TEST_P(TotalsTest, Follow) {
  const TotalsCase& c = GetParam();
  JobScreen& job = Open({c.job});
  job.cboVAT.UserType(c.tax);
  job.cboVAT.UserEnterKey();
  const std::vector<std::string> totals = {job.GTotal.text(),           job.TxtTotalVat.text(),
                                           job.TxtTotalDiscount.text(), job.Total.text(),
                                           job.DepositPaid.text(),      job.Balance.text()};
  EXPECT_EQ(totals, c.totals);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, TotalsTest,
    testing::Values(TotalsCase{"new job", {}, "0", {"0.00", "0.00", "0.00", "0.00", "0.00", "0.00"}},
                    TotalsCase{"discount on the amount with tax",
                               {{"1T(0)", ItemLine("100")}, {"Ext4", "10"}, {"Ext1", "20"}},
                               "17.5",
                               {"100.00", "17.50", "11.75", "105.75", "21.15", "105.75"}},
                    TotalsCase{"blank tax is 17.5",
                               {{"1T(0)", ItemLine("100")}},
                               "",
                               {"100.00", "17.50", "0.00", "117.50", "23.50", "117.50"}},
                    TotalsCase{"rooms and single items",
                               {{"1T(0)", ItemLine("1.10")},
                                {"Text13", "2.20"},
                                {"Text33", "3.30"},
                                {"Memo21", "1|a|b|0.40|\r\n2|c|d|0.05|\r\n"}},
                               "0",
                               {"7.05", "0.00", "0.00", "7.05", "1.41", "7.05"}},
                    TotalsCase{"paid more than the total",
                               {{"1T(0)", ItemLine("10")}, {"5T(4)", "12.5"}},
                               "0",
                               {"10.00", "0.00", "0.00", "10.00", "2.00", "-2.50"}},
                    TotalsCase{
                        "negative and wrong figures",
                        {{"1T(0)", ItemLine("-10")}, {"Text13", "abc"}, {"Ext4", "x"}, {"Ext1", "-50"}},
                        "y",
                        {"-10.00", "0.00", "0.00", "-10.00", "5.00", "-10.00"}}),
    [](const auto& test) { return "case" + std::to_string(test.index); });

TEST_F(JobScreenTest, BlankPercentagesComeFromTheSettings) {
  JobScreen& job = Open({{{"1T(0)", ItemLine("200")}, {"Ext1", ""}, {"Ext4", ""}}});
  EXPECT_EQ(job.DiscountPercent.text(), "0");
  EXPECT_EQ(job.DepositPercent.text(), "25");
  EXPECT_EQ(job.DepositPaid.text(), "50.00");

  job.DepositPercent.UserType("10");
  EXPECT_EQ(job.DepositPaid.text(), "20.00");
  job.DepositPercent.UserType("");
  EXPECT_EQ(job.DepositPercent.text(), "25");
  EXPECT_EQ(job.DepositPaid.text(), "50.00");
  job.DiscountPercent.UserType("50");
  EXPECT_EQ(job.Total.text(), "100.00");
}

TEST_F(JobScreenTest, RoomTwosTotalWorksOutTheJobAtOnce) {
  JobScreen& job = Open({{}});
  job.RoomTotal[2].UserType("3");
  EXPECT_EQ(job.GTotal.text(), "0.00");
  job.RoomTotal[1].UserType("5");
  EXPECT_EQ(job.GTotal.text(), "8.00");
}

TEST_F(JobScreenTest, LettersInThePaidAmountStopTheTotals) {
  JobScreen& job = Open({{{"1T(0)", ItemLine("10")}}});
  job.PrePaid.UserType("abc");
  ASSERT_EQ(host_.messages.size(), 2u);
  EXPECT_THAT(host_.messages[0], HasSubstr("entering say -100.00 as a credit amount."));
  EXPECT_THAT(host_.messages[1], HasSubstr("abc"));
  EXPECT_EQ(job.Balance.text(), "10.00") << "what stood before, no interim value";
  EXPECT_EQ(job.PrePaid.text(), "abc");

  Activate();
  EXPECT_EQ(host_.messages.size(), 3u) << "told again, and the screen lives on";
  job.PrePaid.UserType("4");
  EXPECT_EQ(job.Balance.text(), "6.00");
  EXPECT_EQ(job.PrePaid.text(), "4.00");
}

TEST_F(JobScreenTest, ActivationStartsFromNoTax) {
  JobScreen& job = Open({{{"1T(0)", ItemLine("100")}, {"5T(4)", ""}}});
  job.cboVAT.SetText("20");
  Activate();
  EXPECT_EQ(job.cboVAT.text(), "0");
  EXPECT_EQ(job.PrePaid.text(), "0.00");
  EXPECT_EQ(job.Total.text(), "100.00");
  EXPECT_EQ(job.Records.Caption.caption(), "Record: 1 of 1");
}

TEST_F(JobScreenTest, ActivationTakesSettingsThatOthersChanged) {
  JobScreen& job = Open({{}});
  job.TxtLastOrderNo.SetText("101");  // waits
  {
    Database other(folder_.jobs_file());
    RowSet rows;
    rows.Open(other, kAdminTable);
    rows.SetValue("CurrencySymbol", "$");
    rows.Update();
  }
  Activate();
  EXPECT_EQ(job.TxtCurrencySymbol.text(), "$");
  EXPECT_EQ(job.TxtLastOrderNo.text(), "101");
}

TEST_F(JobScreenTest, TheFirstCompanyCountsAtOnce) {
  folder_.AddJob({});
  job_.emplace(host_, shop_);
  job_->OpenData();
  EXPECT_FALSE(job_->Data2.HasRow());
  folder_.AddSettings();
  Activate();
  EXPECT_EQ(job_->TxtLastOrderNo.text(), "100");
}

TEST_F(JobScreenTest, ADeletionNeverWritesFromAGridThatWasNotRead) {
  JobScreen& job = Open({{{"1T(0)", ItemLine("1", "a~") + ItemLine("2", "b~")}}});
  job.RoomItemGrid[0].Clear();
  job.PrePaid.SetText("0");
  job.RoomItems[0].SetText(ItemLine("3", "c~") + ItemLine("4", "d~"));
  host_.answers = {Answer::kNo};
  job.CmdDeleteFromRoom.UserPress();
  EXPECT_EQ(host_.questions.size(), 1u);
  EXPECT_EQ(job.RoomItems[0].text(), ItemLine("3", "c~") + ItemLine("4", "d~"));
}

TEST_F(JobScreenTest, AGridOfTheJobBeforeIsNotTakenForThisOne) {
  const std::string items = ItemLine("1", "a~") + ItemLine("2", "b~");
  JobScreen& job = Open({{{"1T(0)", items}}, {{"1T(0)", items}}});
  job.TxtRoomNum.SetText("none");
  job.Data1.rows().MoveNext();
  job.TxtRoomNum.SetText("1");
  EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 0);
  host_.answers = {Answer::kNo};
  job.CmdDeleteFromRoom.UserPress();
  EXPECT_EQ(job.RoomItems[0].text(), items);
}

TEST_F(JobScreenTest, AFaultInTheTotalsStopsNothingElse) {
  JobScreen& job = Open({{{"1T(1)", ItemLine("5", "a~")}, {"Text13", "9.00"}, {"5T(4)", "later"}}});
  job.SSTab1.UserSelect(1);
  EXPECT_EQ(job.RoomItemGrid[1].RowCount(), 1);
  EXPECT_EQ(job.RoomTotal[1].text(), "5.00") << "not the 0.00 of an interim step";
  EXPECT_EQ(job.Text1.text(), "a~") << "the selected item";
  host_.messages.clear();
  Activate();
  EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("later"))) << "told once";
  job.SSTab1.UserSelect(2);
  EXPECT_EQ(job.Text1.text(), "");
}

TEST_F(JobScreenTest, AnotherJobIsReadAnew) {
  JobScreen& job =
      Open({{{"Name", "Ann"}, {"1T(0)", ItemLine("1")}, {"1T(1)", ItemLine("2")}, {"Text13", "2.00"}},
            {{"Name", "Bea"}, {"Memo21", "2|Rail|3.00|6.00|\r\n"}}});
  EXPECT_EQ(job.HistoryHeading.caption(), " Payments History for Ann");
  job.SSTab1.UserSelect(1);
  job.Data1.rows().MoveNext();
  EXPECT_EQ(job.HistoryHeading.caption(), " Payments History for Bea");
  EXPECT_EQ(job.Records.Caption.caption(), "Record: 2 of 2");
  EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 0) << "no grid shows the items of another job";
  EXPECT_EQ(job.RoomItemGrid[1].RowCount(), 0);
  EXPECT_EQ(job.SingleItemGrid.RowCount(), 1);
  EXPECT_EQ(job.GTotal.text(), "6.00");
  job.Data1.rows().MovePrevious();
  EXPECT_EQ(job.GTotal.text(), "3.00");
}

TEST_F(JobScreenTest, RefreshingWritesNothingThatIsInOrder) {
  JobScreen& job = Open({{}});
  Activate();
  job.Data1.rows().Update();
  Activate();
  job.SSTab1.UserSelect(4);
  EXPECT_FALSE(job.Data1.rows().IsEditing());
}

TEST_F(JobScreenTest, ClearRoomCompilesTheSummary) {
  JobScreen& job = Open({{{"1T(0)", ItemLine("1", "Rail~2m~") + ItemLine("2", "Lining~")}}});
  EXPECT_EQ(job.RoomSummary[0].text(), "Empty\r\n");
  job.CmdClearRoom[0].UserPress();
  EXPECT_EQ(job.RoomSummary[0].text(), "Rail\r\n2m\r\nLining\r\n");
  EXPECT_EQ(job.Label8[0].caption(), "Room 1 as been Re-Compiled. ");
  EXPECT_EQ(host_.busy_times, 1);
  EXPECT_EQ(host_.busy, 0);
}

TEST_F(JobScreenTest, DeletesAnItemAfterTheQuestion) {
  JobScreen& job =
      Open({{{"1T(0)", ItemLine("1", "a~") + ItemLine("2", "b~") + ItemLine("4", "c~") + "lost|line"}}});
  job.RoomItemGrid[0].UserSelectRow(2);
  EXPECT_EQ(job.Text1.text(), "b~");

  host_.answers = {Answer::kNo, Answer::kYes, Answer::kYes, Answer::kYes};
  job.CmdDeleteFromRoom.UserPress();
  EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 3);
  EXPECT_EQ(job.RoomItems[0].text(), ItemLine("1", "a~") + ItemLine("2", "b~") + ItemLine("4", "c~"))
      << "written anew all the same";
  EXPECT_EQ(job.RoomSummary[0].text(), "Empty\r\n");
  const Question& question = host_.questions.at(0);
  EXPECT_EQ(question.title, "Delete Item...");
  EXPECT_EQ(question.text,
            "Delete item 2.  Are You Sure? \nThis will delete this item and update the costing.");
  EXPECT_EQ(question.preset, Answer::kNo);
  EXPECT_EQ(question.icon, Icon::kWarning);

  job.CmdDeleteFromRoom.UserPress();
  EXPECT_EQ(job.RoomItems[0].text(), ItemLine("1", "a~") + ItemLine("4", "c~"));
  EXPECT_EQ(job.RoomItemGrid[0].Text(2, kLineColumn), "2") << "lines are numbered anew";
  EXPECT_EQ(job.RoomTotal[0].text(), "5.00");
  EXPECT_EQ(job.GTotal.text(), "5.00");
  EXPECT_EQ(job.RoomSummary[0].text(), "a\r\nc\r\n");

  EXPECT_EQ(job.RoomItemGrid[0].selected_row(), 2);
  job.CmdDeleteFromRoom.UserPress();  // the last row: the one above is selected
  EXPECT_EQ(job.RoomItemGrid[0].selected_row(), 1);
  job.CmdDeleteFromRoom.UserPress();
  EXPECT_EQ(job.RoomItems[0].text(), "");
  EXPECT_EQ(job.RoomTotal[0].text(), "0.00");
  EXPECT_EQ(job.RoomSummary[0].text(), "");

  job.CmdDeleteFromRoom.UserPress();  // nothing left, no question
  EXPECT_EQ(host_.questions.size(), 4u);
}

TEST_F(JobScreenTest, DeletesASingleItem) {
  JobScreen& job = Open({{{"Memo21", "1|a|2.00|2.00|\r\n1|b|3.00|3.00|\r\n"}}});
  const auto enabled = [&job] { return std::array{job.CmdRooms[1].enabled(), job.CmdRooms[2].enabled()}; };
  EXPECT_EQ(enabled(), (std::array{false, false}));
  job.SingleItemGrid.UserSelectRow(1);
  EXPECT_EQ(enabled(), (std::array{true, true}));
  host_.answers = {Answer::kYes};
  job.CmdRooms[2].UserPress();
  EXPECT_EQ(job.SingleItems.text(), "1|b|3.00|3.00|\r\n");
  EXPECT_EQ(job.TxtSubTotal.text(), "3.00");
  EXPECT_EQ(job.RoomSummaryTotal[0].caption(), "3.00");
  EXPECT_EQ(job.Label8[0].caption(), "Messages") << "no room is compiled";
}

TEST_F(JobScreenTest, CompletedAndLostExcludeEachOther) {
  JobScreen& job = Open({{{"Check2", "1"}}});
  job.Completed.UserSet(true);
  EXPECT_FALSE(job.Lost.on());
  job.Lost.UserSet(true);
  EXPECT_FALSE(job.Completed.on());
  job.Lost.UserSet(false);
  EXPECT_FALSE(job.Completed.on());
  job.Data1.rows().Update();
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "Check2"), "0");
}

TEST_F(JobScreenTest, TheSummaryPanelLeadsToTheRooms) {
  JobScreen& job = Open({{{"1T(6)", ItemLine("5")}}});
  job.Label10[7].UserClick();
  EXPECT_EQ(job.SSTab2.selected(), 2);
  EXPECT_EQ(job.SSTab1.selected(), 6);
  EXPECT_EQ(job.TxtRoomNum.text(), "7");
  EXPECT_EQ(job.RoomSummaryTotal[7].caption(), "5.00");
  job.Label10[0].UserClick();
  EXPECT_EQ(job.SSTab2.selected(), 1);
}

TEST_F(JobScreenTest, AnEmptyTableLeavesFieldsBlank) {
  JobScreen& job = Open({});
  Activate();
  EXPECT_EQ(job.Records.Caption.caption(), "");
  EXPECT_EQ(job.GTotal.text(), "");
  EXPECT_EQ(job.RoomTotal[0].text(), "");
  job.SSTab1.UserSelect(1);
  EXPECT_EQ(job.RoomTotal[1].text(), "");
  EXPECT_TRUE(host_.messages.empty());
  job.Town.UserType("Ludlow");
  EXPECT_THAT(host_.messages, ElementsAre("No record is open. Add a new record first."));
  EXPECT_EQ(job.Town.text(), "");
}

TEST_F(JobScreenTest, EveryColumnHasItsControl) {
  JobScreen& job = Open({{}});
  for (const ColumnDefinition& column : FindTable(kJobTable).columns) {
    EXPECT_NE(job.Find(column.name), nullptr) << column.name;
  }
  EXPECT_EQ(job.Find("CheckList2"), job.Find("YesNo2"));
  EXPECT_EQ(job.Find("Label8", 0), job.Find("Label8"));
}

TEST_F(JobScreenTest, OddTextsComeThrough) {
  const std::string odd = "~|\"'\r\n\t\xE2\x82\xAC" + std::string(300, 'x');
  JobScreen& job = Open({{{"1T(0)", odd}, {"Memo21", odd}, {"5T(3)", odd}}});
  EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 1);
  EXPECT_EQ(job.JobNotes.text(), odd);
  job.JobNotes.UserType(odd + odd);
  job.Data1.rows().Update();
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "5T(3)"), odd + odd);
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "1T(0)"), odd);
}

}  // namespace
}  // namespace tarvane::job
