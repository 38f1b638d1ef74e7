#include "store/row_set.h"

#include <gmock/gmock.h>

#include "store/shop_file.h"

namespace tarvane {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class RowSetTest : public ShopFile {
 protected:
  RowSetTest() {
    AddJobs({"Smith", "Jones", "smithers", "Brown", "SMITH"});
    database_ = std::make_unique<Database>(file_);
  }

  RowSet Opened(std::string_view source) {
    RowSet rows;
    rows.Open(*database_, source);
    return rows;
  }

  std::unique_ptr<Database> database_;
};

TEST_F(RowSetTest, OpensTablesAndQueries) {
  struct Case {
    const char* source;
    std::vector<std::string> keys;
  };
  const Case cases[] = {
      {"TblBrindel", {"1", "2", "3", "4", "5"}},
      {"  tblbrindel ;", {"1", "2", "3", "4", "5"}},
      {"select * from [TblBrindel]", {"1", "2", "3", "4", "5"}},
      {"SELECT * FROM TblBrindel WHERE Name LIKE 'smi*'", {"1", "5", "3"}},
      {"SELECT * FROM TblBrindel WHERE Name LIKE 'smith'", {"1", "5"}},
      {"SELECT * FROM TblBrindel WHERE [name] like'*o*'", {"4", "2"}},
      {"SELECT * FROM TblBrindel WHERE Name LIKE '*'", {"4", "2", "1", "5", "3"}},
      {"SELECT * FROM TblBrindel WHERE G-Total LIKE '0.0#'", {"1", "2", "3", "4", "5"}},
      {"SELECT * FROM TblBrindel WHERE RefNo LIKE '2*'", {"2"}},
      {"SELECT * FROM TblBrindel WHERE RefNo LIKE '[24]'", {"2", "4"}},
      {"SELECT * FROM TblBrindel WHERE RefNo LIKE '*'", {"1", "2", "3", "4", "5"}},
      {"SELECT * FROM TblBrindel WHERE RefNo LIKE '02*'", {}},
      {"SELECT * FROM TblBrindel WHERE Name LIKE 'x*'", {}},
      {"Admin", {}},
  };
  for (const Case& each : cases) {
    RowSet rows = Opened(each.source);
    EXPECT_EQ(rows.RecordCount(), static_cast<std::int64_t>(each.keys.size())) << each.source;
    EXPECT_EQ(rows.HasRow(), !each.keys.empty()) << each.source;
    EXPECT_EQ(Walk(rows, rows.ColumnName(0)), each.keys) << each.source;
  }
}

TEST_F(RowSetTest, FaultsForSourcesItCannotRead) {
  for (const char* source :
       {"", "Nothing", "SELECT Name FROM TblBrindel", "SELECT * FROM TblBrindel WHERE",
        "SELECT * FROM TblBrindel WHERE Name LIKE 'O'Brien*'", "SELECT * FROM TblBrindel WHERE Nme LIKE 'x*'",
        "SELECT * FROM TblBrindel WHERE Name LIKE 'a*' OR 1=1", "TblBrindel; DROP TABLE TblBrindel"}) {
    RowSet rows = Opened("TblBrindel");
    EXPECT_THROW(rows.Open(*database_, source), Fault) << source;
    EXPECT_FALSE(rows.IsOpen()) << source;
    EXPECT_THROW(rows.MoveFirst(), Fault);
    EXPECT_THROW(rows.Value("Name"), Fault);
  }
}

TEST_F(RowSetTest, TextOfUsersIsNeverRunAsSql) {
  for (const char* text : {"x\"; DROP TABLE TblBrindel; --*", "%*", "_*", "*\\*", ") OR (1=1"}) {
    RowSet rows = Opened("SELECT * FROM TblBrindel WHERE Name LIKE '" + std::string(text) + "'");
    EXPECT_EQ(rows.RecordCount(), 0) << text;
    RowSet jobs = Opened("TblBrindel");
    EXPECT_EQ(jobs.RecordCount(), 5);
    jobs.SetValue("Name", text);
    jobs.Update();
    EXPECT_EQ(Opened("TblBrindel").Value("Name"), text);
  }
}

TEST_F(RowSetTest, MovesBetweenTheEnds) {
  for (const char* source : {"TblBrindel", "SELECT * FROM TblBrindel WHERE RefNo LIKE '*'"}) {
    RowSet rows = Opened(source);
    rows.MovePrevious();
    EXPECT_FALSE(rows.HasRow());
    EXPECT_EQ(rows.AbsolutePosition(), -1);
    EXPECT_EQ(rows.Value("Name"), "");
    rows.MovePrevious();
    EXPECT_FALSE(rows.HasRow());
    rows.MoveNext();
    EXPECT_EQ(rows.Value("RefNo"), "1");
    rows.MoveLast();
    EXPECT_EQ(rows.AbsolutePosition(), 4);
    rows.MoveNext();
    EXPECT_FALSE(rows.HasRow());
    rows.MoveNext();
    EXPECT_FALSE(rows.HasRow());
    rows.MovePrevious();
    EXPECT_EQ(rows.Value("RefNo"), "5");
    rows.MoveTo(2);
    EXPECT_EQ(rows.Value("RefNo"), "3");
    EXPECT_THROW(rows.MoveTo(5), Fault);
    EXPECT_THROW(rows.MoveTo(-1), Fault);
    EXPECT_EQ(rows.AbsolutePosition(), 2);
  }
}

TEST_F(RowSetTest, PositionsHoldAlsoWhereRowsAreMissing) {
  Database other(file_);
  RowSet rows = Opened("TblBrindel");
  rows.MoveTo(1);
  rows.Delete();
  EXPECT_EQ(rows.Value("RefNo"), "3");
  EXPECT_EQ(rows.AbsolutePosition(), 1);
  AddJobs(std::vector<std::string>(500, "many"));
  rows.Resync();
  RowSet expected = Opened("SELECT * FROM TblBrindel WHERE RefNo LIKE '*'");
  ASSERT_EQ(rows.RecordCount(), 504);
  for (const std::int64_t position : {0, 1, 250, 251, 503, 502, 400, 3}) {
    rows.MoveTo(position);
    expected.MoveTo(position);
    EXPECT_EQ(rows.Value("RefNo"), expected.Value("RefNo"));
    rows.SetBookmark(rows.Bookmark());
    EXPECT_EQ(rows.AbsolutePosition(), position);
    EXPECT_EQ(rows.PeekRow(position, {0, 1}), (std::vector<std::string>{rows.Value(0), rows.Value(1)}));
  }
  EXPECT_TRUE(rows.PeekRow(504, {0}).empty());
  EXPECT_TRUE(rows.PeekRow(-1, {0}).empty());
}

TEST_F(RowSetTest, FindsTheFirstRowInTheOrderOfTheSource) {
  struct Case {
    const char* source;
    const char* criterion;
    const char* key;  // "" for no match
  };
  const char* const by_name = "SELECT * FROM TblBrindel WHERE Name LIKE '*'";  // 4 2 1 5 3
  const Case cases[] = {
      {"TblBrindel", "name Like 'smi*'", "1"},
      {"TblBrindel", "name Like 'smithe*'", "3"},
      {"TblBrindel", "name Like '*row*'", "4"},
      {"TblBrindel", "name Like '*'", "1"},
      {"TblBrindel", "Town Like '*'", "1"},
      {"TblBrindel", "Town Like 'x*'", ""},
      {"TblBrindel", "refno Like'3*'", "3"},
      {"TblBrindel", "refno Like'0*'", ""},
      {"TblBrindel", "refno Like'[!12]*'", "3"},
      {"TblBrindel", "refno Like'99999999999999999999*'", ""},
      {"TblBrindel", "[G-Total] Like '0*'", "1"},
      {by_name, "name Like '*s*'", "2"},
      {by_name, "refno Like '[1-3]*'", "2"},
      {by_name, "name LIKE 'SMITH'", "1"},
      {"SELECT * FROM TblBrindel WHERE Name LIKE 'smi*'", "name Like 'Jon*'", ""},
  };
  for (const Case& each : cases) {
    RowSet rows = Opened(each.source);
    rows.MoveLast();
    const std::string before = rows.Value("RefNo");
    rows.FindFirst(each.criterion);
    EXPECT_EQ(rows.NoMatch(), std::string(each.key).empty()) << each.criterion;
    EXPECT_EQ(rows.Value("RefNo"), rows.NoMatch() ? before : each.key)
        << each.source << ": " << each.criterion;
  }
  RowSet rows = Opened("TblBrindel");
  EXPECT_THROW(rows.FindFirst("name Like 'O'Brien*'"), Fault);
  EXPECT_EQ(rows.Value("RefNo"), "1");
}

TEST_F(RowSetTest, FindsReferencesByTheirFirstDigits) {
  AddJobs(std::vector<std::string>(130, "more"));
  RowSet rows = Opened("TblBrindel");
  rows.FindFirst("RefNo Like '12*'");
  EXPECT_EQ(rows.Value("RefNo"), "12");
  rows.Delete();
  rows.FindFirst("RefNo Like '12*'");
  EXPECT_EQ(rows.Value("RefNo"), "120");
  RowSet found = Opened("SELECT * FROM TblBrindel WHERE RefNo LIKE '12*'");
  EXPECT_THAT(Walk(found, "RefNo"),
              ElementsAre("120", "121", "122", "123", "124", "125", "126", "127", "128", "129"));
  EXPECT_EQ(found.RecordCount(), 10);
}

TEST_F(RowSetTest, LongResultsAreReadFurtherOnNeed) {
  AddJobs(std::vector<std::string>(300, "later"));
  RowSet rows = Opened("SELECT * FROM TblBrindel WHERE Name LIKE 'later*'");
  // A change by another row set, between the first screenful and the others, loses and doubles no row.
  RowSet other = Opened("TblBrindel");
  other.SetBookmark("6");
  other.SetValue("Name", "later than all");
  other.Update();
  const std::vector<std::string> keys = Walk(rows, "RefNo");
  ASSERT_EQ(keys.size(), 300U);
  EXPECT_EQ(keys.front(), "6");
  EXPECT_EQ(keys.back(), "305");
  EXPECT_EQ(rows.RecordCount(), 300);
}

TEST_F(RowSetTest, BookmarksGoBack) {
  for (const char* source : {"TblBrindel", "SELECT * FROM TblBrindel WHERE Name LIKE '*'"}) {
    RowSet rows = Opened(source);
    rows.MoveTo(3);
    const std::string bookmark = rows.Bookmark();
    const std::string key = rows.Value("RefNo");
    rows.MoveFirst();
    rows.SetBookmark(bookmark);
    EXPECT_EQ(rows.Value("RefNo"), key);
    EXPECT_EQ(rows.AbsolutePosition(), 3);
    for (const char* bad : {"", "99", "1x", "-1"}) EXPECT_THROW(rows.SetBookmark(bad), Fault) << bad;
    EXPECT_EQ(rows.Value("RefNo"), key);
  }
  RowSet smiths = Opened("SELECT * FROM TblBrindel WHERE Name LIKE 'smi*'");
  EXPECT_THROW(smiths.SetBookmark("2"), Fault);
  EXPECT_EQ(Opened("Admin").Bookmark(), "");
}

TEST_F(RowSetTest, PeeksWithoutMoving) {
  RowSet rows = Opened("SELECT * FROM TblBrindel WHERE Name LIKE 'smi*'");
  rows.SetValue("Name", "waiting");
  EXPECT_THAT(rows.PeekRow(2, {1, 0, -1}), ElementsAre("smithers", "3", ""));
  EXPECT_THAT(rows.PeekRow(0, {1}), ElementsAre("Smith"));
  EXPECT_EQ(rows.AbsolutePosition(), 0);
  EXPECT_TRUE(rows.IsEditing());
  RowSet other = Opened("TblBrindel");
  other.SetBookmark("3");
  other.SetValue("Name", "Smithson");
  other.Update();
  EXPECT_THAT(rows.PeekRow(2, {1, 0, -1}), ElementsAre("Smithson", "3", ""));
}

TEST_F(RowSetTest, TellsListeners) {
  RowSet rows;
  int moves = 0;
  int changes = 0;
  rows.OnReposition([&] { ++moves; });
  rows.OnRowsChanged([&] { ++changes; });
  const auto expect = [&](int expected_moves, int expected_changes, const char* step) {
    EXPECT_EQ(moves, expected_moves) << step;
    EXPECT_EQ(changes, expected_changes) << step;
    moves = changes = 0;
  };
  rows.Open(*database_, "TblBrindel");
  expect(1, 1, "open");
  rows.MoveNext();
  expect(1, 0, "next");
  rows.SetValue("Name", "x");
  rows.Update();
  expect(0, 0, "save");
  rows.AddNew();
  expect(1, 0, "new");
  rows.Update();
  expect(0, 1, "save new");
  rows.Delete();
  expect(1, 1, "delete");
  rows.FindFirst("Name Like 'nobody*'");
  expect(0, 0, "no match");
  rows.Resync();
  expect(0, 0, "nothing new");
  rows.MoveLast();
  rows.MoveNext();
  expect(2, 0, "past the end");
  rows.MoveNext();
  expect(0, 0, "still there");
}

TEST_F(RowSetTest, ListenersMayStepThemselves) {
  RowSet rows;
  std::vector<std::string> seen;
  rows.OnReposition([&] {
    seen.push_back(rows.Value("RefNo"));
    rows.SetValue("Town", "of " + rows.Value("Name"));
    if (rows.Value("RefNo") == "2") rows.MoveNext();
  });
  rows.Open(*database_, "TblBrindel");
  rows.MoveNext();
  EXPECT_THAT(seen, ElementsAre("1", "2", "3"));
  rows.Close();
  EXPECT_EQ(Opened("TblBrindel").Value("Town"), "of Smith");
}

TEST_F(RowSetTest, ResyncBringsWhatOthersWrote) {
  RowSet mine = Opened("TblBrindel");
  mine.SetValue("Name", "mine");
  mine.SetValue("Town", "my town");
  int moves = 0;
  mine.OnReposition([&] { ++moves; });
  EXPECT_EQ(mine.RecordCount(), 5);
  {
    Database other_database(file_);
    RowSet others;
    others.Open(other_database, "TblBrindel");
    others.SetValue("Name", "theirs");
    others.SetValue("County", "their county");
    others.AddNew();
    others.Update();
  }
  mine.Resync();
  EXPECT_EQ(moves, 1);
  EXPECT_EQ(mine.RecordCount(), 6);
  EXPECT_EQ(mine.Value("Name"), "theirs");
  EXPECT_EQ(mine.Value("County"), "their county");
  EXPECT_EQ(mine.Value("Town"), "my town");
  EXPECT_EQ(mine.StoredValue(mine.FindColumn("Town")), "");
  mine.Update();
  EXPECT_EQ(Opened("TblBrindel").Value("Town"), "my town");
}

TEST_F(RowSetTest, RowsThatWentAreSteppedOver) {
  RowSet rows = Opened("SELECT * FROM TblBrindel WHERE Name LIKE '*'");  // 4 2 1 5 3
  RowSet table = Opened("TblBrindel");
  for (const char* key : {"2", "1"}) {
    table.SetBookmark(key);
    table.Delete();
  }
  rows.MoveNext();
  EXPECT_EQ(rows.Value("RefNo"), "5");
  EXPECT_EQ(rows.RecordCount(), 3);
  rows.MovePrevious();
  EXPECT_EQ(rows.Value("RefNo"), "4");
  table.SetBookmark("4");
  table.Delete();
  rows.SetValue("Name", "gone");
  EXPECT_THAT(FaultOf([&] { rows.Update(); }), HasSubstr("isn't there any more"));
  EXPECT_TRUE(rows.IsEditing());
  rows.Resync();
  EXPECT_FALSE(rows.HasRow());
}

}  // namespace
}  // namespace tarvane
