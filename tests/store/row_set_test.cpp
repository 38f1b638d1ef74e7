#include "store/row_set.h"

#include <gmock/gmock.h>

#include <set>

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

  RowSet Opened(std::string_view source = "TblBrindel") { return tarvane::Opened(*database_, source); }
  // The jobs whose names are like that.
  RowSet Like(std::string_view pattern) {
    return Opened("SELECT * FROM TblBrindel WHERE Name LIKE '" + std::string(pattern) + "'");
  }
  // Saves another name of the job with that key, by a row set of its own.
  void Rename(std::string_view key, const std::string& name) {
    RowSet jobs = Opened();
    jobs.SetBookmark(key);
    Save(jobs, {{"Name", name}});
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
    RowSet rows = Opened();
    EXPECT_THROW(rows.Open(*database_, source), Fault) << source;
    EXPECT_EQ(rows.RecordCount(), 5) << "what was open stays open: " << source;
    RowSet fresh;
    EXPECT_THROW(fresh.Open(*database_, source), Fault) << source;
    EXPECT_THROW(fresh.MoveFirst(), Fault);
  }
}

TEST_F(RowSetTest, TextOfUsersIsNeverRunAsSql) {
  for (const char* text : {"x\"; DROP TABLE TblBrindel; --*", "%*", "_*", "*\\*", ") OR (1=1"}) {
    EXPECT_EQ(Like(text).RecordCount(), 0) << text;
    EXPECT_EQ(Opened().RecordCount(), 5);
    Rename("1", text);
    EXPECT_EQ(Opened().Value("Name"), text);
  }
}

TEST_F(RowSetTest, MovesBetweenTheEnds) {
  const std::pair<const char*, void (*)(RowSet&)> steps[] = {
      {"- at -1 of 5", [](RowSet& rows) { rows.MovePrevious(); }},
      {"- at -1 of 5", [](RowSet& rows) { rows.MovePrevious(); }},
      {"1 at 0 of 5", [](RowSet& rows) { rows.MoveNext(); }},
      {"5 at 4 of 5", [](RowSet& rows) { rows.MoveLast(); }},
      {"- at -1 of 5", [](RowSet& rows) { rows.MoveNext(); }},
      {"- at -1 of 5", [](RowSet& rows) { rows.MoveNext(); }},
      {"5 at 4 of 5", [](RowSet& rows) { rows.MovePrevious(); }},
      {"3 at 2 of 5", [](RowSet& rows) { rows.MoveTo(2); }},
      {"3 at 2 of 5", [](RowSet& rows) { EXPECT_THROW(rows.MoveTo(5), Fault); }},
      {"3 at 2 of 5", [](RowSet& rows) { EXPECT_THROW(rows.MoveTo(-1), Fault); }},
  };
  for (const char* source : {"TblBrindel", "SELECT * FROM TblBrindel WHERE RefNo LIKE '*'"}) {
    RowSet rows = Opened(source);
    for (const auto& [place, step] : steps) {
      step(rows);
      EXPECT_EQ(Where(rows), place) << source;
      EXPECT_EQ(rows.Value("Name").empty(), !rows.HasRow());
    }
  }
}

TEST_F(RowSetTest, PositionsHoldAlsoWhereRowsAreMissing) {
  RowSet rows = Opened();
  rows.MoveLast();
  rows.Delete();
  EXPECT_EQ(Where(rows), "4 at 3 of 4");
  Add(rows, {});
  EXPECT_EQ(Where(rows), "6 at 4 of 5");
  rows.MoveTo(4);
  EXPECT_EQ(Where(rows), "6 at 4 of 5");
  rows.MoveTo(1);
  rows.Delete();
  EXPECT_EQ(Where(rows), "3 at 1 of 4");
  AddJobs(std::vector<std::string>(500, "many"));
  rows.Resync();
  RowSet expected = Opened("SELECT * FROM TblBrindel WHERE RefNo LIKE '*'");
  ASSERT_EQ(rows.RecordCount(), 504);
  for (const std::int64_t position : {0, 1, 250, 251, 503, 502, 400, 3}) {
    rows.MoveTo(position);
    expected.MoveTo(position);
    EXPECT_EQ(Where(rows), Where(expected));
    rows.SetBookmark(rows.Bookmark());
    EXPECT_EQ(rows.AbsolutePosition(), position);
    EXPECT_EQ(rows.PeekRow(position, {0, 1}), (std::vector<std::string>{rows.Value(0), rows.Value(1)}));
  }
  for (const int none : {504, -1}) EXPECT_TRUE(rows.PeekRow(none, {0}).empty());
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
  RowSet rows = Opened();
  EXPECT_THROW(rows.FindFirst("name Like 'O'Brien*'"), Fault);
  EXPECT_EQ(rows.Value("RefNo"), "1");
}

TEST_F(RowSetTest, FindsReferencesByTheirFirstDigits) {
  AddJobs(std::vector<std::string>(130, "more"));
  RowSet rows = Opened();
  rows.FindFirst("RefNo Like '12*'");
  EXPECT_EQ(rows.Value("RefNo"), "12");
  rows.Delete();
  rows.FindFirst("RefNo Like '12*'");
  EXPECT_EQ(rows.Value("RefNo"), "120");
  RowSet found = Opened("SELECT * FROM TblBrindel WHERE RefNo LIKE '12*'");
  EXPECT_EQ(Where(found), "120 at 0 of 10");
  found.MoveLast();
  EXPECT_EQ(Where(found), "129 at 9 of 10");
}

TEST_F(RowSetTest, LongResultsAreReadFurtherOnNeed) {
  AddJobs(std::vector<std::string>(300, "later"));
  RowSet rows = Like("later*");
  // A change by another row set, between the first screenful and the others, loses and doubles no row.
  Rename("6", "later than all");
  const std::vector<std::string> keys = Walk(rows, "RefNo");
  ASSERT_EQ(std::set(keys.begin(), keys.end()).size(), 300U);
  EXPECT_EQ(keys.front(), "6");
  EXPECT_EQ(keys.back(), "305");
  // A change of its own that doesn't match any more stays, too.
  RowSet changed = Like("later*");
  Save(changed, {{"Name", "no match any more"}});
  EXPECT_EQ(changed.RecordCount(), 300) << "before anything else is read";
  changed.MoveLast();
  EXPECT_EQ(Where(changed), "6 at 299 of 300");
}

TEST_F(RowSetTest, BookmarksGoBack) {
  for (const char* source : {"TblBrindel", "SELECT * FROM TblBrindel WHERE Name LIKE '*'"}) {
    RowSet rows = Opened(source);
    rows.MoveTo(3);
    const std::string place = Where(rows);
    const std::string bookmark = rows.Bookmark();
    rows.MoveFirst();
    rows.SetBookmark(bookmark);
    EXPECT_EQ(Where(rows), place);
    for (const char* bad : {"", "99", "1x", "-1"}) EXPECT_THROW(rows.SetBookmark(bad), Fault) << bad;
    EXPECT_EQ(Where(rows), place);
  }
  EXPECT_THROW(Like("smi*").SetBookmark("2"), Fault);
  EXPECT_EQ(Opened("Admin").Bookmark(), "");
}

TEST_F(RowSetTest, PeeksWithoutMoving) {
  RowSet rows = Like("smi*");
  rows.SetValue("Name", "waiting");
  EXPECT_THAT(rows.PeekRow(2, {1, 0}), ElementsAre("smithers", "3"));
  EXPECT_THAT(rows.PeekRow(0, {1}), ElementsAre("Smith"));
  EXPECT_EQ(rows.AbsolutePosition(), 0);
  EXPECT_TRUE(rows.IsEditing());
  Rename("3", "Smithson");
  EXPECT_THAT(rows.PeekRow(2, {1, 0}), ElementsAre("Smithson", "3"));
}

TEST_F(RowSetTest, TellsListeners) {
  RowSet rows;
  int moves = 0;
  int changes = 0;
  rows.OnReposition([&] { ++moves; });
  rows.OnRowsChanged([&] { ++changes; });
  struct Case {
    const char* what;
    std::function<void()> step;
    int moves;
    int changes;
  };
  const Case cases[] = {
      {"open", [&] { rows.Open(*database_, "TblBrindel"); }, 1, 1},
      {"next", [&] { rows.MoveNext(); }, 1, 0},
      {"save",
       [&] {
         Save(rows, {{"Name", "x"}});
       },
       0, 0},
      {"new", [&] { rows.AddNew(); }, 1, 0},
      {"save new", [&] { rows.Update(); }, 0, 1},
      {"delete", [&] { rows.Delete(); }, 1, 1},
      {"no match", [&] { rows.FindFirst("Name Like 'nobody*'"); }, 0, 0},
      {"nothing new", [&] { rows.Resync(); }, 0, 0},
      {"past the end", [&] { rows.MoveLast(), rows.MoveNext(); }, 2, 0},
      {"still there", [&] { rows.MoveNext(); }, 0, 0},
  };
  for (const Case& each : cases) {
    moves = changes = 0;
    each.step();
    EXPECT_EQ(moves, each.moves) << each.what;
    EXPECT_EQ(changes, each.changes) << each.what;
  }
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
  EXPECT_EQ(Opened().Value("Town"), "of Smith");
}

TEST_F(RowSetTest, ResyncBringsWhatOthersWrote) {
  RowSet mine = Opened();
  mine.SetValue("Name", "mine");
  mine.SetValue("Town", "my town");
  int moves = 0;
  mine.OnReposition([&] { ++moves; });
  {
    Database other_database(file_);
    RowSet others = tarvane::Opened(other_database);
    Save(others, {{"Name", "theirs"}, {"County", "their county"}});
    Add(others, {});
  }
  mine.Resync();
  EXPECT_EQ(moves, 1);
  EXPECT_EQ(Where(mine), "1 at 0 of 6");
  EXPECT_EQ(mine.Value("Name"), "theirs");
  EXPECT_EQ(mine.Value("County"), "their county");
  EXPECT_EQ(mine.Value("Town"), "my town");
  EXPECT_EQ(mine.StoredValue(mine.FindColumn("Town")), "");
  mine.Update();
  EXPECT_EQ(Opened().Value("Town"), "my town");
}

TEST_F(RowSetTest, RowsThatWentAreSteppedOver) {
  RowSet rows = Like("*");  // 4 2 1 5 3
  RowSet table = Opened();
  const auto remove = [&](const char* key) {
    table.SetBookmark(key);
    table.Delete();
  };
  remove("2");
  remove("1");
  rows.MoveNext();
  EXPECT_EQ(Where(rows), "5 at 1 of 3");
  rows.MovePrevious();
  EXPECT_EQ(rows.Value("RefNo"), "4");
  remove("4");
  EXPECT_THAT(FaultOf([&] { Save(rows, {{"Name", "gone"}}); }), HasSubstr("isn't there any more"));
  EXPECT_TRUE(rows.IsEditing());
  rows.Resync();
  EXPECT_FALSE(rows.HasRow());
}

}  // namespace
}  // namespace tarvane
