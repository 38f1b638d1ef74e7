// A save on a disk that fails: the old state or the new one stands, and what was told is true.
#include "store/failing_disk.h"

#include <gmock/gmock.h>

#include "store/connection.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

using testing::HasSubstr;

class FailingDiskTest : public ShopFile {
 protected:
  FailingDiskTest() {
    AddJobs(std::vector<std::string>(20, "old"));
    Database database(file_);
    RowSet admin;
    admin.Open(database, "Admin");
    admin.AddNew();
    admin.SetValue("LastOrderNo", "20");
    admin.Update();
    before_ = folder_.path() / "before.mdb";
    std::filesystem::copy_file(file_, before_);
  }

  void BringBack() const {
    std::filesystem::remove(file_.string() + "-journal");
    std::filesystem::copy_file(before_, file_, std::filesystem::copy_options::overwrite_existing);
  }

  // Everything in the file, as one text.
  static std::string StateOf(const std::filesystem::path& file) {
    Connection connection(file, Database::Mode::kExisting, "");
    Statement check = connection.Prepare("PRAGMA integrity_check");
    check.Step();
    std::string state(check.Text(0));
    for (const char* table : {"TblBrindel", "Admin"}) {
      Statement rows = connection.Prepare("SELECT * FROM " + std::string(table) + " ORDER BY rowid");
      while (rows.Step()) {
        for (int i = 0; i < rows.ColumnCount(); ++i) state.append("|").append(rows.Text(i));
      }
    }
    return state;
  }

  using Save = std::function<void(Database&)>;

  // Fails each change of `save` in turn. What a save has told is held against what stands in the file.
  void FailInTurn(const Save& save, FailingDisk::Failure failure, bool lasting) {
    const std::string old_state = StateOf(file_);
    {
      Database database(file_);
      save(database);
    }
    const std::string new_state = StateOf(file_);
    ASSERT_TRUE(old_state != new_state);
    ASSERT_EQ(new_state.substr(0, 2), "ok");
    FailingDisk disk;
    int told = 0;
    for (int change = 1;; ++change) {
      BringBack();
      disk.Fail(0, failure, lasting);
      std::string fault;
      {
        Database database(file_, Database::Mode::kExisting, disk.name());
        disk.Fail(change, failure, lasting);
        fault = FaultOf([&] { save(database); });
      }
      const bool failed = disk.failed();
      disk.Fail(0, failure, lasting);
      const std::string stands = StateOf(file_);
      const std::string place =
          "change " + std::to_string(change) + (lasting ? " and all later: " : ": ") + fault;
      ASSERT_TRUE(stands == old_state || stands == new_state) << place;
      if (fault.empty()) {
        EXPECT_TRUE(stands == new_state) << place;
      } else {
        ++told;
        EXPECT_THAT(fault, HasSubstr(file_.string())) << place;
        EXPECT_THAT(fault, HasSubstr(failure == FailingDisk::Failure::kFull ? "disk is full"
                                                                            : "the disk reported an error"));
        // Only a save that says so may turn out to be made, and none says so on a full disk.
        const bool unsure = fault.find("may or may not") != std::string::npos;
        EXPECT_TRUE(unsure || stands == old_state) << place;
        EXPECT_FALSE(unsure && failure == FailingDisk::Failure::kFull) << place;
      }
      if (!failed) break;
      ASSERT_LT(change, 500);
    }
    EXPECT_GT(told, 0);
    BringBack();
  }

  void FailInEveryWay(const Save& save) {
    for (const auto failure : {FailingDisk::Failure::kError, FailingDisk::Failure::kFull}) {
      for (const bool lasting : {false, true}) FailInTurn(save, failure, lasting);
    }
  }

  std::filesystem::path before_;
};

void SetJob(RowSet& jobs, const std::string& text) {
  for (const char* column : {"Name", "1T(0)", "1T(11)", "G-Total", "Text10"}) jobs.SetValue(column, text);
}

TEST_F(FailingDiskTest, SavingAChangedJob) {
  FailInEveryWay([](Database& database) {
    RowSet jobs;
    jobs.Open(database, "TblBrindel");
    jobs.MoveTo(7);
    SetJob(jobs, "new");
    jobs.SetValue("1T(5)", std::string(20000, 'x'));
    jobs.Update();
  });
}

TEST_F(FailingDiskTest, SavingANewJob) {
  FailInEveryWay([](Database& database) {
    RowSet jobs;
    jobs.Open(database, "TblBrindel");
    jobs.AddNew();
    SetJob(jobs, "new");
    jobs.Update();
  });
}

TEST_F(FailingDiskTest, SavingWhatBelongsTogether) {
  FailInEveryWay([](Database& database) {
    Database::Transaction transaction(database);
    RowSet admin;
    admin.Open(database, "Admin");
    admin.SetValue("LastOrderNo", "21");
    admin.Update();
    RowSet jobs;
    jobs.Open(database, "TblBrindel");
    jobs.AddNew();
    jobs.SetValue("Ext2", "21");
    jobs.Update();
    transaction.Commit();
  });
}

TEST_F(FailingDiskTest, WhatWaitsIsKeptAndCanBeSavedAgain) {
  FailingDisk disk;
  for (int change = 1; change < 8; ++change) {
    BringBack();
    disk.Fail(0, FailingDisk::Failure::kFull, false);
    Database database(file_, Database::Mode::kExisting, disk.name());
    RowSet jobs;
    jobs.Open(database, "TblBrindel");
    SetJob(jobs, "kept");
    disk.Fail(change, FailingDisk::Failure::kFull, false);
    const std::string fault = FaultOf([&] { jobs.Update(); });
    if (fault.empty()) continue;
    EXPECT_TRUE(jobs.IsEditing());
    EXPECT_EQ(jobs.Value("Name"), "kept");
    jobs.Update();
    EXPECT_FALSE(jobs.IsEditing());
    jobs.Resync();
    EXPECT_EQ(jobs.Value("1T(11)"), "kept");
  }
}

}  // namespace
}  // namespace tarvane
