// A save on a disk that fails: the old state or the new one stands, and what was told is true.
#include "store/failing_disk.h"

#include <gmock/gmock.h>

#include "store/plain_sqlite.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

using testing::HasSubstr;
using Failure = FailingDisk::Failure;
namespace fs = std::filesystem;

class FailingDiskTest : public ShopFile {
 protected:
  FailingDiskTest() : before_(folder_.path() / "before.mdb") {
    AddJobs(std::vector<std::string>(20, "old"));
    Database database(file_);
    RowSet admin = Opened(database, "Admin");
    Add(admin, {{"LastOrderNo", "20"}});
    fs::copy_file(file_, before_);
  }

  // The file as it was first, on a disk that works until it is told otherwise.
  Database BroughtBack() {
    disk_.Heal();
    fs::remove(file_.string() + "-journal");
    fs::copy_file(before_, file_, fs::copy_options::overwrite_existing);
    return Database(file_, Database::Mode::kExisting, disk_.name());
  }

  // Everything in the file, as one text.
  static std::string StateOf(const fs::path& file) {
    return PlainSqlite(file).Run(
        "PRAGMA integrity_check; SELECT * FROM TblBrindel ORDER BY RefNo; SELECT * FROM Admin");
  }

  enum Kind { kChange, kAdd, kTogether };

  struct Saved {
    Kind kind;
    Failure failure;
    Database database;
    RowSet jobs = Opened(database);
    std::string town = "";
    std::string fault = "";

    bool IsUnsure() const { return fault.find("may or may not") != std::string::npos; }

    void Make() {
      const Values values = {{"Name", "new"}, {"1T(11)", "new"}, {"1T(5)", std::string(20000, 'x')}};
      if (kind == kChange) return Save(jobs, values);
      if (kind == kAdd) return Add(jobs, values);
      Database::Transaction transaction(database);
      Add(jobs, values);
      town = "in the same transaction";
      Save(jobs, {{"Town", town}});
      RowSet admin = Opened(database, "Admin");
      Save(admin, {{"LastOrderNo", "21"}});
      transaction.Commit();
    }
  };

  // Saves in each way, and fails each change in turn, until none fails any more.
  void FailEachChange(const std::function<void(std::unique_ptr<Saved>)>& check) {
    for (const Kind kind : {kChange, kAdd, kTogether}) {
      for (const Failure failure : {Failure::kError, Failure::kFull}) {
        for (const bool lasting : {false, true}) {
          bool failed = true;
          for (int change = 1; failed && !HasFailure(); ++change) {
            auto saved = std::make_unique<Saved>(kind, failure, BroughtBack());
            disk_.Fail(change, failure, lasting);
            saved->fault = FaultOf([&] { saved->Make(); });
            failed = disk_.failed();
            disk_.Heal();
            SCOPED_TRACE(std::to_string(change) + " of kind " + std::to_string(kind) + ": " + saved->fault);
            check(std::move(saved));
            ASSERT_LT(change, 500);
          }
        }
      }
    }
  }

  FailingDisk disk_;
  fs::path before_;
};

TEST_F(FailingDiskTest, TheOldStateOrTheNewOneStands) {
  const std::string old_state = StateOf(before_);
  std::string new_states[3];
  for (const Kind kind : {kChange, kAdd, kTogether}) {
    Saved{kind, Failure::kError, BroughtBack()}.Make();
    new_states[kind] = StateOf(file_);
    ASSERT_TRUE(old_state != new_states[kind] && new_states[kind].starts_with("ok|"));
  }
  int told = 0;
  FailEachChange([&](std::unique_ptr<Saved> saved) {
    const auto [kind, full, unsure, fault] =
        std::tuple(saved->kind, saved->failure == Failure::kFull, saved->IsUnsure(), saved->fault);
    saved.reset();
    const std::string stands = StateOf(file_);
    ASSERT_TRUE(stands == old_state || stands == new_states[kind]);
    if (fault.empty()) {
      EXPECT_TRUE(stands == new_states[kind]);
      return;
    }
    EXPECT_THAT(fault, HasSubstr(file_.string()));
    EXPECT_THAT(fault, HasSubstr(full ? "disk is full" : "the disk reported an error"));
    // Only a save that says so may turn out to be made, and none says so on a full disk.
    EXPECT_TRUE(unsure ? !full : stands == old_state);
    ++told;
  });
  EXPECT_GT(told, 12);
}

// Whatever a save that failed has told, what was typed waits and can be saved again, and a new row is never
// added twice.
TEST_F(FailingDiskTest, WhatWaitsIsKeptAndCanBeSavedAgain) {
  int unsure = 0;
  FailEachChange([&](std::unique_ptr<Saved> saved) {
    RowSet& jobs = saved->jobs;
    if (saved->IsUnsure()) ++unsure;
    EXPECT_EQ(jobs.IsEditing(), !saved->fault.empty());
    EXPECT_EQ(jobs.Value("Name"), "new");
    Save(jobs, {{"County", "typed since"}});
    EXPECT_FALSE(jobs.IsEditing());
    EXPECT_EQ(Where(jobs), saved->kind == kChange ? "1 at 0 of 20" : "21 at 20 of 21");
    jobs.Open(saved->database, "SELECT * FROM TblBrindel WHERE Name LIKE 'new'");
    EXPECT_EQ(jobs.RecordCount(), 1);
    EXPECT_EQ(jobs.Value("1T(11)") + jobs.Value("County"), "newtyped since");
    EXPECT_EQ(jobs.Value("Town"), saved->town);
  });
  EXPECT_GT(unsure, 3);
}

TEST_F(FailingDiskTest, WhatATransactionLosesWaitsAgain) {
  Database database(file_);
  RowSet jobs = Opened(database, "SELECT * FROM TblBrindel WHERE Name LIKE 'old'");
  {
    const Database::Transaction transaction(database);
    Save(jobs, {{"Town", "first"}});
    EXPECT_FALSE(jobs.IsEditing());
  }
  EXPECT_TRUE(jobs.IsEditing());
  EXPECT_EQ(jobs.StoredValue(jobs.FindColumn("Town")), "");
  jobs.Update();
  {
    const Database::Transaction transaction(database);
    Add(jobs, {{"Name", "old, and new"}});
  }
  EXPECT_TRUE(jobs.IsAdding());
  EXPECT_EQ(Where(jobs), " at -1 of 20");
  jobs.CancelUpdate();
  EXPECT_EQ(jobs.Value("Town"), "first");
}

}  // namespace
}  // namespace tarvane
