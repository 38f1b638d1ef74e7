#include <gmock/gmock.h>

#include "store/row_set.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

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
    RowSet rows;
    rows.Open(database, "TblBrindel");
    rows.SetBookmark(key);
    return rows.Value(column);
  }

  std::unique_ptr<Database> database_;
  RowSet jobs_;
};

TEST_F(RowEditTest, ChangesWaitUntilUpdate) {
  EXPECT_FALSE(jobs_.IsEditing());
  jobs_.SetValue("town", "Marlow");
  EXPECT_TRUE(jobs_.IsEditing());
  EXPECT_EQ(jobs_.Value("Town"), "Marlow");
  EXPECT_EQ(jobs_.StoredValue(jobs_.FindColumn("Town")), "");
  EXPECT_EQ(Stored("1", "Town"), "");
  jobs_.Update();
  EXPECT_FALSE(jobs_.IsEditing());
  EXPECT_EQ(jobs_.StoredValue(jobs_.FindColumn("Town")), "Marlow");
  EXPECT_EQ(Stored("1", "Town"), "Marlow");
  jobs_.SetValue("Town", "Henley");
  jobs_.SetValue("Town", "Marlow");
  EXPECT_FALSE(jobs_.IsEditing()) << "the stored value again: nothing waits";
}

TEST_F(RowEditTest, OnlyChangedColumnsAreWritten) {
  jobs_.SetValue("Town", "Marlow");
  Database other_database(file_);
  RowSet other;
  other.Open(other_database, "TblBrindel");
  other.SetValue("County", "Bucks");
  other.Update();
  jobs_.Update();
  EXPECT_EQ(Stored("1", "County"), "Bucks");
  EXPECT_EQ(Stored("1", "Town"), "Marlow");
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
  EXPECT_EQ(Stored("1", "Town"), "");
  {
    RowSet rows;
    rows.Open(*database_, "TblBrindel");
    rows.SetValue("Town", "lost");
  }
  EXPECT_EQ(Stored("1", "Town"), "");
}

TEST_F(RowEditTest, ANewRowHasItsDefaults) {
  jobs_.MoveTo(1);
  jobs_.AddNew();
  EXPECT_TRUE(jobs_.HasRow());
  EXPECT_TRUE(jobs_.IsAdding());
  EXPECT_EQ(jobs_.AbsolutePosition(), -1);
  EXPECT_EQ(jobs_.Bookmark(), "");
  const std::pair<const char*, const char*> defaults[] = {
      {"RefNo", ""},       {"Name", ""},       {"Text10", "Empty\r\n"}, {"Text33", "0.00"},
      {"G-Total", "0.00"}, {"Completed", "0"}, {"YesNo2", "0"},         {"Memo21", ""},
      {"Ext4", "0"},       {"Ext1", "20"},     {"5T(4)", "0.00"},       {"1T(11)", ""}};
  for (const auto& [column, value] : defaults) EXPECT_EQ(jobs_.Value(column), value) << column;
  jobs_.SetValue("Name", "Four");
  jobs_.SetValue("Check12", "1");
  EXPECT_EQ(jobs_.RecordCount(), 3);
  jobs_.Update();
  EXPECT_FALSE(jobs_.IsAdding());
  EXPECT_EQ(jobs_.Value("RefNo"), "4");
  EXPECT_EQ(jobs_.Bookmark(), "4");
  EXPECT_EQ(jobs_.AbsolutePosition(), 3);
  EXPECT_EQ(jobs_.RecordCount(), 4);
  EXPECT_EQ(Stored("4", "Text32"), "Empty\r\n");
  EXPECT_EQ(Stored("4", "Check12"), "1");
  EXPECT_EQ(Stored("4", "Check11"), "0");
}

TEST_F(RowEditTest, CancelBringsTheFormerRowBack) {
  jobs_.MoveTo(1);
  jobs_.SetValue("Name", "changed");
  jobs_.CancelUpdate();
  EXPECT_EQ(jobs_.Value("Name"), "Two");
  jobs_.AddNew();
  jobs_.SetValue("Name", "never");
  jobs_.CancelUpdate();
  EXPECT_EQ(jobs_.Value("Name"), "Two");
  EXPECT_EQ(jobs_.AbsolutePosition(), 1);
  jobs_.AddNew();
  jobs_.Delete();
  EXPECT_EQ(jobs_.Value("Name"), "Two");
  EXPECT_EQ(jobs_.RecordCount(), 3);
  RowSet admin;
  admin.Open(*database_, "Admin");
  admin.AddNew();
  admin.CancelUpdate();
  EXPECT_FALSE(admin.HasRow());
}

TEST_F(RowEditTest, DeleteGoesToTheNextThenTheLast) {
  jobs_.MoveTo(1);
  jobs_.SetValue("Name", "dropped with its row");
  jobs_.Delete();
  EXPECT_EQ(jobs_.Value("Name"), "Three");
  EXPECT_EQ(jobs_.AbsolutePosition(), 1);
  jobs_.Delete();
  EXPECT_EQ(jobs_.Value("Name"), "One");
  jobs_.Delete();
  EXPECT_FALSE(jobs_.HasRow());
  EXPECT_EQ(jobs_.RecordCount(), 0);
  EXPECT_THROW(jobs_.Delete(), Fault);
  EXPECT_THROW(jobs_.Edit(), Fault);
  EXPECT_THROW(jobs_.SetValue("Name", "x"), Fault);
  jobs_.Update();
}

TEST_F(RowEditTest, KeysAreNeverUsedAgain) {
  jobs_.MoveLast();
  jobs_.Delete();
  jobs_.Close();
  AddJobs({"Next"});
  jobs_.Open(*database_, "TblBrindel");
  EXPECT_THAT(Walk(jobs_, "RefNo"), ElementsAre("1", "2", "4"));
}

TEST_F(RowEditTest, ColumnsRefuseWhatTheyCannotHold) {
  const std::string fits = [] {
    std::string text;
    for (int i = 0; i < 255; ++i) text += "é";
    return text;
  }();
  jobs_.SetValue("Name", fits);
  jobs_.Update();
  EXPECT_EQ(Stored("1", "Name"), fits);
  jobs_.SetValue("Name", fits + "x");
  jobs_.SetValue("Town", "waits too");
  EXPECT_THAT(FaultOf([&] { jobs_.MoveNext(); }), HasSubstr("Name of TblBrindel holds at most 255"));
  EXPECT_EQ(jobs_.AbsolutePosition(), 0);
  EXPECT_EQ(jobs_.Value("Town"), "waits too");
  EXPECT_EQ(Stored("1", "Town"), "");
  jobs_.SetValue("Name", "short");
  jobs_.SetValue("1T(0)", std::string(100000, 'm'));
  jobs_.SetValue("Completed", "yes");
  EXPECT_THAT(FaultOf([&] { jobs_.Update(); }), HasSubstr("Completed"));
  jobs_.SetValue("Completed", "1");
  jobs_.Update();
  EXPECT_EQ(Stored("1", "1T(0)").size(), 100000U);
  EXPECT_THROW(jobs_.SetValue("RefNo", "7"), Fault);
  EXPECT_THROW(jobs_.SetValue("NoColumn", "7"), Fault);
  EXPECT_THROW(jobs_.SetValue(-1, "7"), Fault);
  EXPECT_THROW(jobs_.ColumnName(jobs_.ColumnCount()), Fault);
  EXPECT_EQ(jobs_.Value(-1), "");
  EXPECT_EQ(jobs_.Value("NoColumn"), "");
}

TEST_F(RowEditTest, TextsComeBackByteForByte) {
  const std::string texts[] = {"",
                               " ",
                               "a'b\"c",
                               "line\r\nline\n",
                               std::string("nul\0within", 10),
                               "Ångström €",
                               "\xFF\xFE",
                               "NULL",
                               "'",
                               "1e5",
                               "007",
                               "|~"};
  for (const std::string& text : texts) {
    jobs_.SetValue("Name", text);
    jobs_.SetValue("5T(3)", text);
    jobs_.Update();
    EXPECT_EQ(Stored("1", "Name"), text);
    EXPECT_EQ(Stored("1", "5T(3)"), text);
    if (text.find('\'') == std::string::npos && text.find('\0') == std::string::npos) {
      jobs_.FindFirst("Name LIKE '" + text + "'");
      EXPECT_EQ(jobs_.Value("RefNo"), "1") << text;
    }
  }
}

TEST_F(RowEditTest, ANewRowOfASearchComesLastAndStays) {
  jobs_.Open(*database_, "SELECT * FROM TblBrindel WHERE Name LIKE 't*'");
  jobs_.AddNew();
  jobs_.SetValue("Name", "Other");
  jobs_.Update();
  EXPECT_EQ(jobs_.RecordCount(), 3);
  EXPECT_EQ(jobs_.AbsolutePosition(), 2);
  jobs_.MoveFirst();
  EXPECT_EQ(jobs_.Value("Name"), "Three");
  jobs_.SetValue("Name", "Zed");
  jobs_.Update();
  EXPECT_THAT(Walk(jobs_, "Name"), ElementsAre("Zed", "Two", "Other"));
}

TEST_F(RowEditTest, TransactionsHoldTogether) {
  const auto save = [&](bool commit) {
    Database::Transaction outer(*database_);
    {
      Database::Transaction inner(*database_);
      RowSet admin;
      admin.Open(*database_, "Admin");
      admin.AddNew();
      admin.SetValue("LastOrderNo", "1");
      admin.Update();
      inner.Commit();
    }
    jobs_.SetValue("Ext2", "1");
    jobs_.Update();
    if (commit) outer.Commit();
  };
  save(false);
  EXPECT_EQ(Stored("1", "Ext2"), "");
  jobs_.Resync();
  EXPECT_EQ(jobs_.Value("Ext2"), "");
  save(true);
  EXPECT_EQ(Stored("1", "Ext2"), "1");
  RowSet admin;
  admin.Open(*database_, "Admin");
  EXPECT_EQ(admin.RecordCount(), 1);
}

}  // namespace
}  // namespace tarvane
