#include <gmock/gmock.h>

#include "store/row_set.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::HasSubstr;

class RowEditTest : public ShopFile {
 protected:
  RowEditTest() {
    AddJobs({"One", "Two", "Three"});
    database_ = std::make_unique<Database>(file_);
    jobs_.Open(*database_, "TblBrindel");
  }

  // As another connection sees it: committed values only.
  std::string Stored(std::string_view key, std::string_view column) const {
    Database database(file_);
    RowSet rows = Opened(database);
    rows.SetBookmark(key);
    return rows.Value(column);
  }

  std::unique_ptr<Database> database_;
  RowSet jobs_;
};

TEST_F(RowEditTest, ChangesWaitUntilUpdate) {
  const int town = jobs_.FindColumn("Town");
  EXPECT_FALSE(jobs_.IsEditing());
  jobs_.SetValue("town", "Marlow");
  EXPECT_TRUE(jobs_.IsEditing());
  EXPECT_EQ(jobs_.Value("Town"), "Marlow");
  EXPECT_EQ(jobs_.StoredValue(town), "");
  EXPECT_EQ(Stored("1", "Town"), "");
  {
    Database other_database(file_);
    RowSet other = Opened(other_database);
    Save(other, {{"County", "Bucks"}});
  }
  jobs_.Update();
  EXPECT_FALSE(jobs_.IsEditing());
  EXPECT_EQ(jobs_.StoredValue(town), "Marlow");
  EXPECT_EQ(Stored("1", "Town"), "Marlow");
  EXPECT_EQ(Stored("1", "County"), "Bucks") << "only changed columns are written";
  jobs_.SetValue("Town", "Henley");
  jobs_.SetValue("Town", "Marlow");
  EXPECT_FALSE(jobs_.IsEditing()) << "the stored value again: nothing waits";
}

TEST_F(RowEditTest, EveryMoveCommits) {
  const std::pair<const char*, std::function<void()>> moves[] = {
      {"first", [&] { jobs_.MoveFirst(); }},
      {"last", [&] { jobs_.MoveLast(); }},
      {"next", [&] { jobs_.MoveNext(); }},
      {"previous", [&] { jobs_.MovePrevious(); }},
      {"to", [&] { jobs_.MoveTo(2); }},
      {"bookmark", [&] { jobs_.SetBookmark("3"); }},
      {"find", [&] { jobs_.FindFirst("Name Like 'Thr*'"); }},
      {"find nothing", [&] { jobs_.FindFirst("Name Like 'x*'"); }},
      {"new", [&] { jobs_.AddNew(); }},
  };
  for (const auto& [name, move] : moves) {
    jobs_.CancelUpdate();
    jobs_.SetBookmark("2");
    jobs_.SetValue("Town", name);
    move();
    EXPECT_EQ(Stored("2", "Town"), name);
  }
}

TEST_F(RowEditTest, CloseAndTheEndOfTheProcessLoseWhatWaits) {
  jobs_.SetValue("Town", "lost");
  jobs_.Close();
  EXPECT_FALSE(jobs_.IsOpen());
  Opened(*database_).SetValue("Town", "lost");
  EXPECT_EQ(Stored("1", "Town"), "");
}

TEST_F(RowEditTest, ANewRowHasItsDefaults) {
  jobs_.MoveTo(1);
  jobs_.AddNew();
  EXPECT_TRUE(jobs_.HasRow());
  EXPECT_TRUE(jobs_.IsAdding());
  EXPECT_EQ(jobs_.Bookmark(), "");
  EXPECT_EQ(Where(jobs_), " at -1 of 3");
  Save(jobs_, {{"Name", "Four"}, {"Check12", "1"}});
  EXPECT_FALSE(jobs_.IsAdding());
  EXPECT_EQ(jobs_.Bookmark(), "4");
  EXPECT_EQ(Where(jobs_), "4 at 3 of 4");
  const std::pair<const char*, const char*> stored[] = {
      {"Text32", "Empty\r\n"}, {"Text33", "0.00"}, {"Ext1", "20"}, {"Check12", "1"}, {"Check11", "0"}};
  for (const auto& [column, value] : stored) EXPECT_EQ(Stored("4", column), value) << column;
}

TEST_F(RowEditTest, CancelBringsTheFormerRowBack) {
  jobs_.MoveTo(1);
  const std::function<void()> steps[] = {[&] { jobs_.CancelUpdate(); },
                                         [&] { jobs_.AddNew(), jobs_.CancelUpdate(); },
                                         [&] { jobs_.AddNew(), jobs_.Delete(); }};
  jobs_.SetValue("Name", "changed");
  for (const auto& step : steps) {
    step();
    EXPECT_EQ(jobs_.Value("Name"), "Two");
    EXPECT_EQ(Where(jobs_), "2 at 1 of 3");
  }
  RowSet admin = Opened(*database_, "Admin");
  admin.AddNew();
  admin.CancelUpdate();
  EXPECT_FALSE(admin.HasRow());
}

TEST_F(RowEditTest, DeleteGoesToTheNextThenTheLast) {
  jobs_.MoveTo(1);
  jobs_.SetValue("Name", "dropped with its row");
  for (const char* place : {"3 at 1 of 2", "1 at 0 of 1", "- at -1 of 0"}) {
    jobs_.Delete();
    EXPECT_EQ(Where(jobs_), place);
  }
  EXPECT_THROW(jobs_.Delete(), Fault);
  EXPECT_THROW(jobs_.Edit(), Fault);
  EXPECT_THROW(jobs_.SetValue("Name", "x"), Fault);
  jobs_.Update();
  AddJobs({"Next"});
  jobs_.Open(*database_, "TblBrindel");
  EXPECT_EQ(jobs_.Value("RefNo"), "4") << "keys are never used again";
}

TEST_F(RowEditTest, ColumnsRefuseWhatTheyCannotHold) {
  std::string fits;
  for (int i = 0; i < 255; ++i) fits += "é";
  Save(jobs_, {{"Name", fits}});
  EXPECT_EQ(Stored("1", "Name"), fits);
  jobs_.SetValue("Name", fits + "x");
  jobs_.SetValue("Town", "waits too");
  EXPECT_THAT(FaultOf([&] { jobs_.MoveNext(); }), HasSubstr("Name of TblBrindel holds at most 255"));
  EXPECT_EQ(jobs_.AbsolutePosition(), 0);
  EXPECT_EQ(jobs_.Value("Town"), "waits too");
  EXPECT_EQ(Stored("1", "Town"), "");
  const Values with_a_memo = {{"Name", "short"}, {"1T(0)", std::string(100000, 'm')}, {"Completed", "yes"}};
  EXPECT_THAT(FaultOf([&] { Save(jobs_, with_a_memo); }), HasSubstr("Completed"));
  Save(jobs_, {{"Completed", "1"}});
  EXPECT_EQ(Stored("1", "1T(0)").size(), 100000U);
}

TEST_F(RowEditTest, ColumnsThatAreNotThereAndTheKeyAreRefused) {
  EXPECT_THROW(jobs_.SetValue("RefNo", "7"), Fault);
  EXPECT_THROW(jobs_.SetValue("NoColumn", "7"), Fault);
  EXPECT_THROW(jobs_.Value("NoColumn"), Fault);
  for (const int column : {-1, jobs_.ColumnCount()}) {
    EXPECT_THROW(jobs_.SetValue(column, "7"), Fault);
    EXPECT_THROW(jobs_.ColumnName(column), Fault);
    EXPECT_THROW(jobs_.Value(column), Fault);
    EXPECT_THROW(jobs_.StoredValue(column), Fault);
    EXPECT_THROW(jobs_.PeekRow(0, {0, column}), Fault);
  }
}

TEST_F(RowEditTest, TextsComeBackByteForByte) {
  for (const std::string& text : {""s, " "s, "a'b\"c"s, "line\r\nline\n"s, "nul\0within"s, "Ångström €"s,
                                  "\xFF\xFE"s, "NULL"s, "'"s, "1e5"s, "007"s, "|~"s}) {
    Save(jobs_, {{"Name", text}, {"5T(3)", text}});
    EXPECT_EQ(Stored("1", "Name"), text);
    EXPECT_EQ(Stored("1", "5T(3)"), text);
    if (text.find('\'') != std::string::npos || text.find('\0') != std::string::npos) continue;
    jobs_.FindFirst("Name LIKE '" + text + "'");
    EXPECT_EQ(jobs_.Value("RefNo"), "1") << text;
  }
}

TEST_F(RowEditTest, ANewRowOfASearchComesLastAndStays) {
  jobs_.Open(*database_, "SELECT * FROM TblBrindel WHERE Name LIKE 't*'");
  Add(jobs_, {{"Name", "Other"}});
  EXPECT_EQ(Where(jobs_), "4 at 2 of 3");
  jobs_.MoveFirst();
  Save(jobs_, {{"Name", "Zed"}});
  EXPECT_THAT(Walk(jobs_, "Name"), ElementsAre("Zed", "Two", "Other"));
}

TEST_F(RowEditTest, TransactionsHoldTogether) {
  for (const bool commit : {false, true}) {
    {
      Database::Transaction outer(*database_);
      {
        Database::Transaction inner(*database_);
        RowSet admin = Opened(*database_, "Admin");
        Add(admin, {{"LastOrderNo", "1"}});
        inner.Commit();
      }
      Save(jobs_, {{"Ext2", "1"}});
      if (commit) outer.Commit();
    }
    EXPECT_EQ(Stored("1", "Ext2"), commit ? "1" : "");
    EXPECT_EQ(Opened(*database_, "Admin").RecordCount(), commit ? 1 : 0);
    jobs_.Resync();
    EXPECT_EQ(jobs_.Value("Ext2"), commit ? "1" : "");
  }
}

// A new row that nobody put anything into isn't kept, however it is left; defaults alone don't count.
TEST_F(RowEditTest, AnUntouchedNewRowGoesAsItIsLeft) {
  AddJobs({"a", "b"});
  Database database(file_);
  const std::vector<std::function<void(RowSet&)>> ways = {
      [](RowSet& rows) { rows.MoveFirst(); },      [](RowSet& rows) { rows.MoveTo(1); },
      [](RowSet& rows) { rows.SetBookmark("2"); }, [](RowSet& rows) { rows.FindFirst("Name LIKE 'b'"); },
      [](RowSet& rows) { rows.Leave(); },          [](RowSet& rows) { rows.AddNew(), rows.CancelUpdate(); },
  };
  for (const bool touched : {false, true}) {
    for (const auto& leave : ways) {
      RowSet rows = Opened(database);
      const std::int64_t before = rows.RecordCount();
      rows.AddNew();
      rows.SetValue("Town", "by default");
      rows.SetUntouched();
      if (touched) rows.SetValue("Name", "typed");
      leave(rows);
      EXPECT_EQ(rows.RecordCount(), before + (touched ? 1 : 0));
      EXPECT_FALSE(rows.IsAdding());
      EXPECT_TRUE(rows.HasRow());
    }
  }
  RowSet rows = Opened(database);
  const std::int64_t before = rows.RecordCount();
  rows.AddNew();
  rows.SetUntouched();
  rows.Update();
  EXPECT_EQ(rows.RecordCount(), before + 1) << "a save keeps it";
}

}  // namespace
}  // namespace tarvane
