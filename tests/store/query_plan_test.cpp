#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "store/connection.h"
#include "store/row_cursor.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

using testing::AllOf, testing::AnyOf, testing::Contains, testing::Each, testing::HasSubstr;
using testing::IsEmpty, testing::Matches, testing::Not;

// Looks over the shoulder of a connection: which statements it runs, and how SQLite goes about them.
class QueryPlanTest : public ShopFile {
 protected:
  QueryPlanTest() {
    AddJobs(std::vector<std::string>(400, "Smith"));
    connection_ = std::make_unique<Connection>(file_, Database::Mode::kExisting, "");
    // A gap, so that positions have to be counted.
    connection_->Execute("DELETE FROM TblBrindel WHERE RefNo = 17");
  }

  // Of the statements on jobs; those that fetch one row by its key are left out.
  std::vector<std::string> PlansOf(const std::function<void()>& step) {
    std::set<std::string> statements;
    const auto note = [](unsigned, void* into, void* statement, void*) {
      static_cast<std::set<std::string>*>(into)->insert(sqlite3_sql(static_cast<sqlite3_stmt*>(statement)));
      return 0;
    };
    sqlite3_trace_v2(connection_->handle(), SQLITE_TRACE_STMT, note, &statements);
    step();
    sqlite3_trace_v2(connection_->handle(), 0, nullptr, nullptr);
    std::vector<std::string> plans;
    for (const std::string& sql : statements) {
      const auto has = [&](const char* text) { return sql.find(text) != std::string::npos; };
      if (!has("TblBrindel") || has("WHERE rowid = ?1")) continue;
      plans.push_back(sql + "\n");
      Statement explain = connection_->Prepare("EXPLAIN QUERY PLAN " + sql);
      while (explain.Step()) plans.back().append(explain.Text(3)).append("\n");
    }
    return plans;
  }

  std::unique_ptr<Connection> connection_;
};

// The statements with one text in them (there are some) have the other in their plans, and sort nothing.
auto Runs(const char* statement, const char* plan) {
  const auto well = AllOf(HasSubstr(plan), Not(HasSubstr("TEMP B-TREE")));
  return AllOf(Contains(HasSubstr(statement)), Each(AnyOf(Not(HasSubstr(statement)), well)));
}

TEST_F(QueryPlanTest, CountsAndPositionsReadTheNarrowIndexOnly) {
  RowCursor rows(*connection_, "TblBrindel");
  EXPECT_THAT(PlansOf([&] { rows.Count(); }), AllOf(Not(IsEmpty()), Each(HasSubstr("COVERING INDEX"))));
  rows.SetBookmark("200");
  EXPECT_THAT(PlansOf([&] { rows.Position(); }),
              Runs("count(*)", "SEARCH TblBrindel USING COVERING INDEX TblBrindel_RefNo (RefNo<?)"));
  EXPECT_THAT(PlansOf([&] { rows.PeekRow(330, {0, 1}); }), Runs("OFFSET", "COVERING INDEX TblBrindel_RefNo"));
}

TEST_F(QueryPlanTest, PrefixesAreRangesOfTheColumnsIndex) {
  for (const std::string column : {"Name", "Telephone", "PostCode", "Ext2", "Ext6"}) {
    const std::string index = "USING COVERING INDEX TblBrindel_" + column;
    const auto plans = PlansOf([&] {
      RowCursor rows(*connection_, "SELECT * FROM TblBrindel WHERE " + column + " LIKE 'Smi*'");
      rows.Count();
      rows.MoveLast();
    });
    const auto range = AllOf(HasSubstr(index + " (" + column + ">? AND " + column + "<?)"),
                             Not(HasSubstr("TEMP")), Not(HasSubstr("_beyond")));
    EXPECT_THAT(plans, Each(AnyOf(range, HasSubstr(index + "_beyond"))));
    // The first keys; where there are more, the count and all keys too.
    EXPECT_EQ(std::ranges::count_if(plans, [&](const std::string& plan) { return Matches(range)(plan); }),
              column == "Name" ? 3 : 1);
  }
}

TEST_F(QueryPlanTest, FindingReadsIndexesNotRows) {
  RowCursor rows(*connection_, "TblBrindel");
  const std::pair<const char*, const char*> cases[] = {
      {"Name LIKE 'smi*'", "SEARCH TblBrindel USING COVERING INDEX TblBrindel_Name ("},
      {"Name LIKE '*mit*'", "TblBrindel USING COVERING INDEX TblBrindel_Name"},
      {"RefNo LIKE '*9'", "SCAN TblBrindel USING COVERING INDEX TblBrindel_RefNo"},
      {"RefNo LIKE '9*'", "SEARCH TblBrindel USING COVERING INDEX TblBrindel_RefNo (RefNo>? AND RefNo<?)"},
  };
  for (const auto& [criterion, plan] : cases) {
    const auto plans = PlansOf([&, text = criterion] { rows.FindFirst(text); });
    EXPECT_THAT(plans, Each(Not(HasSubstr("TEMP B-TREE"))));
    EXPECT_THAT(plans, Contains(HasSubstr(plan)).Times(1)) << criterion;
  }
}

TEST_F(QueryPlanTest, ResultsOfOtherPatternsComeAlongTheIndex) {
  for (const std::string criterion :
       {"Name LIKE '*th'", "RefNo LIKE '*3'", "Name LIKE '*'", "RefNo LIKE '*'"}) {
    const std::string source = "SELECT * FROM TblBrindel WHERE " + criterion;
    EXPECT_THAT(
        PlansOf([&] { RowCursor(*connection_, source).MoveLast(); }),
        AllOf(Not(IsEmpty()), Each(AllOf(HasSubstr("USING COVERING INDEX"), Not(HasSubstr("TEMP B-TREE"))))))
        << criterion;
  }
}

}  // namespace
}  // namespace tarvane
