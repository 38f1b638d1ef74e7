#include "catalogues/room_entry.h"

#include <gmock/gmock.h>

#include "job/job_screen.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::catalogues {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kItems = "10|Blind|state|AddItem|101|text~|\r\n";
const RoomEntry kPole = {"Accessories/Items Database", "7", "Ashcombe Pole, oak OP240", "45"};

class RoomEntryTest : public testing::Test {
 protected:
  job::JobScreen& Open(const RowValues& job) {
    folder_.AddSettings();
    folder_.AddJob(job);
    job_.emplace(host_, shop_);
    job_->OpenData();
    return *job_;
  }
  // The main screen shows the catalogue, which puts the entry in; then it is activated, and closed.
  void Show(const std::function<void()>& step) {
    host_.OnShow<job::JobScreen>([this, step](job::JobScreen& job) {
      Screen catalogue(host_, "catalogue");
      host_.shows.emplace_back([step](Screen&) { step(); });
      job.ShowModal(catalogue);
    });
    job_->RunAsMain();
  }
  bool PutIn(const RoomEntry& entry = kPole) { return PutIntoRoom(*job_, *job_, entry); }

  ShopFolder folder_;
  Shop shop_{folder_.path()};
  FakeHost host_;
  std::optional<job::JobScreen> job_;
};

TEST_F(RoomEntryTest, WritesTheTextTheTotalsAndTheItemLine) {
  job::JobScreen& job = Open({{"Text16", "Before"}, {"Text17", "1.005"}, {"1T(3)", kItems}});
  job.GTotal.SetText("100");
  job.cboVAT.SetText("20");
  host_.inputs = {"2.4", "4"};
  EXPECT_TRUE(PutIn());
  EXPECT_EQ(job.RoomSummary[3].text(),
            "Before\r\n\r\n"
            "------------------------------\r\n"
            "Item added from Accessories/Items Database Ref No: 7\r\n"
            "Ashcombe Pole, oak OP240\r\n"
            "Price excludes Vat/Tax 2 X 37.50 = 75.00\r\n"
            "------------------------------");
  EXPECT_EQ(job.RoomTotal[3].text(), "76.01") << "1.005 was formatted by then, to 1.01";
  EXPECT_EQ(job.RoomItems[3].text(), "4) - Order Total 76.01 Exc Vat");
  EXPECT_EQ(job.GTotal.text(), "175");
  EXPECT_THAT(host_.messages, ElementsAre("Item Added in Tab Order 4"));
}

TEST_F(RoomEntryTest, RoomSixShowsTheTotalOfTheFirst) {
  job::JobScreen& job = Open({{"Text11", "12.5"}, {"Text21", "3.00"}});
  job.RoomTotal[0].SetText("12.5");
  host_.inputs = {"1", "6"};
  EXPECT_TRUE(PutIn());
  EXPECT_EQ(job.RoomTotal[5].text(), "12.50");
  EXPECT_EQ(job.RoomTotal[0].text(), "12.5") << "the first room isn't touched";
  EXPECT_EQ(job.RoomItems[5].text(), "6) - Order Total 12.50 Exc Vat");
}

TEST_F(RoomEntryTest, AsksAgainForWhatIsOutsideTheLimits) {
  Open({});
  host_.inputs = {
      "0.4", "-3", "0.5", "0", "13", "12.5", "",
  };
  EXPECT_FALSE(PutIn());
  EXPECT_THAT(host_.messages, ElementsAre("Invlid Number 1 or more!", "Invlid Number 1 or more!",
                                          "Invlid Number 1 to 12 only!", "Invlid Number 1 to 12 only!",
                                          "Invlid Number 1 to 12 only!"));
  host_.messages.clear();
  host_.inputs = {"1", "five", "1.2"};
  EXPECT_TRUE(PutIn());
  EXPECT_THAT(host_.messages, ElementsAre("Invlid Number 1 to 12 only!", "Item Added in Tab Order 1"));
}

TEST_F(RoomEntryTest, GivingUpOrNoNumberChangesNothing) {
  job::JobScreen& job = Open({{"1T(0)", kItems}});
  const bool edited = job.Data1.rows().IsEditing();
  const auto total = job.GTotal.text();
  for (const std::deque<std::optional<std::string>>& answers :
       {std::deque<std::optional<std::string>>{""}, {std::nullopt}, {"3", ""}, {"3", std::nullopt}}) {
    host_.inputs = answers;
    EXPECT_FALSE(PutIn());
  }
  EXPECT_THAT(host_.messages, IsEmpty());
  for (const char* const wrong : {"two", "٣", " ", "1,5", "2 poles", "1e400"}) {
    host_.inputs = {wrong};
    EXPECT_THROW(PutIn(), Fault) << wrong;
  }
  for (const char* const huge : {"1e308", "1e13"}) {
    host_.inputs = {huge, "1"};
    EXPECT_THROW(PutIn(), Fault) << huge;
  }
  EXPECT_EQ(job.RoomItems[0].text(), kItems);
  EXPECT_EQ(job.RoomTotal[0].text(), "10.00");
  EXPECT_EQ(job.GTotal.text(), total);
  EXPECT_EQ(job.Data1.rows().IsEditing(), edited);
}

TEST_F(RoomEntryTest, WithoutAJobItAsksNothing) {
  folder_.AddSettings();
  job_.emplace(host_, shop_);
  EXPECT_THROW(PutIn(), Fault) << "no table is open";
  job_->OpenData();
  EXPECT_THROW(PutIn(), Fault) << "no job is there";
  EXPECT_EQ(WhoseRooms(*job_), "No job is open to put it into.");
}

TEST_F(RoomEntryTest, PutsAllInWhereATotalCannotBeWorkedOut) {
  // The total of room 2 is the one that works out the job anew, and the pre-paid amount keeps it from that.
  job::JobScreen& job = Open({{"5T(4)", "ten pounds"}});
  host_.messages.clear();
  host_.inputs = {"1", "2"};
  EXPECT_TRUE(PutIn());
  EXPECT_EQ(job.RoomTotal[1].text(), "45.00");
  EXPECT_EQ(job.RoomItems[1].text(), "2) - Order Total 45.00 Exc Vat");
  EXPECT_THAT(host_.messages, ElementsAre("\"ten pounds\" is not a number.", "Item Added in Tab Order 2"));
}

TEST_F(RoomEntryTest, TheRoomThatIsOpenLosesWhatItHad) {
  Open({{"Name", "Blake"}, {"1T(0)", kItems}, {"Text11", "10.00"}, {"1T(2)", kItems}, {"Text15", "10.00"}});
  EXPECT_EQ(WhoseRooms(*job_), "Goes into the job of Blake.");
  EXPECT_THAT(WhatItemsLose(*job_), ::testing::StartsWith("Rooms 1, 3 have items. "));
  Show([this] {
    host_.inputs = {"1", "1", "1", "3"};
    EXPECT_TRUE(PutIn());
    EXPECT_TRUE(PutIn());
    EXPECT_EQ(WhatItemsLose(*job_), "");
    EXPECT_EQ(job_->RoomTotal[0].text(), "55.00");
  });
  EXPECT_EQ(job_->RoomTotal[0].text(), "0.00");
  EXPECT_EQ(job_->RoomTotal[2].text(), "55.00") << "until it is opened";
  EXPECT_EQ(job_->GTotal.text(), "55.00");
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "1T(0)"), kItems) << "an open job is the worker's to save";
  job_->Data1.Save();
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "1T(0)"), "1) - Order Total 55.00 Exc Vat");
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "Text11"), "0.00");
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "4text"), "55.00");
}

}  // namespace
}  // namespace tarvane::catalogues
