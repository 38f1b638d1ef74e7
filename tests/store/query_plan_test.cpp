#include <gmock/gmock.h>

#include <set>

#include "store/connection.h"
#include "store/row_cursor.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

// Looks over the shoulder of a connection: which statements it runs, and how SQLite goes about them.
class QueryPlanTest : public ShopFile {
 protected:
  QueryPlanTest() {
    AddJobs(std::vector<std::string>(400, "Smith"));
    connection_ = std::make_unique<Connection>(file_, Database::Mode::kExisting, "");
    // A gap, so that positions have to be counted.
    connection_->Execute("DELETE FROM TblBrindel WHERE RefNo = 17");
  }

  template <typename Step>
  std::set<std::string> PlansOf(Step step) {
    std::set<std::string> statements;
    const auto note = [](unsigned, void* into, void* statement, void*) {
      static_cast<std::set<std::string>*>(into)->insert(sqlite3_sql(static_cast<sqlite3_stmt*>(statement)));
      return 0;
    };
    sqlite3_trace_v2(connection_->handle(), SQLITE_TRACE_STMT, note, &statements);
    step();
    sqlite3_trace_v2(connection_->handle(), 0, nullptr, nullptr);
    std::set<std::string> plans;
    for (const std::string& sql : statements) {
      if (sql.find("TblBrindel") == std::string::npos) continue;
      std::string plan = sql + "\n";
      Statement explain = connection_->Prepare("EXPLAIN QUERY PLAN " + sql);
      while (explain.Step()) plan += std::string(explain.Text(3)) + "\n";
      plans.insert(plan);
    }
    EXPECT_FALSE(plans.empty());
    return plans;
  }

  std::unique_ptr<Connection> connection_;
};

TEST_F(QueryPlanTest, CountsAndPositionsReadTheNarrowIndexOnly) {
  RowCursor rows(*connection_, "TblBrindel");
  for (const std::string& plan : PlansOf([&] { rows.Count(); })) {
    EXPECT_THAT(plan, HasSubstr("COVERING INDEX"));
  }
  rows.SetBookmark("200");
  for (const std::string& plan : PlansOf([&] { rows.Position(); })) {
    if (plan.find("count(*)") == std::string::npos) continue;
    EXPECT_THAT(plan, HasSubstr("SEARCH TblBrindel USING COVERING INDEX TblBrindel_RefNo (RefNo<?)"));
  }
  const auto plans = PlansOf([&] { rows.PeekRow(330, {0, 1}); });
  int by_offset = 0;
  for (const std::string& plan : plans) {
    if (plan.find("OFFSET") == std::string::npos) continue;
    ++by_offset;
    EXPECT_THAT(plan, AllOf(HasSubstr("COVERING INDEX TblBrindel_RefNo"), Not(HasSubstr("TEMP B-TREE"))));
  }
  EXPECT_EQ(by_offset, 1);
}

TEST_F(QueryPlanTest, PrefixesAreRangesOfTheColumnsIndex) {
  for (const char* column : {"Name", "Telephone", "PostCode", "Ext2", "Ext6"}) {
    const std::string criterion = std::string(column) + " LIKE 'Smi*'";
    const auto plans = PlansOf([&] {
      RowCursor rows(*connection_, "SELECT * FROM TblBrindel WHERE " + criterion);
      rows.Count();
      rows.MoveLast();
    });
    int ranges = 0;
    for (const std::string& plan : plans) {
      if (plan.find("WHERE rowid = ?1") != std::string::npos) continue;
      ++ranges;
      const std::string index = "SEARCH TblBrindel USING COVERING INDEX TblBrindel_" + std::string(column);
      EXPECT_THAT(
          plan, AllOf(HasSubstr(index + " (" + column + ">? AND " + column + "<?)"), Not(HasSubstr("TEMP"))));
    }
    // The first keys; where there are more, the count and all keys too.
    EXPECT_EQ(ranges, std::string(column) == "Name" ? 3 : 1);
  }
}

TEST_F(QueryPlanTest, FindingReadsIndexesNotRows) {
  RowCursor rows(*connection_, "TblBrindel");
  const std::pair<const char*, const char*> cases[] = {
      {"Name LIKE 'smi*'", "SEARCH TblBrindel USING COVERING INDEX TblBrindel_Name"},
      {"Name LIKE '*mit*'", "TblBrindel USING COVERING INDEX TblBrindel_Name"},
      {"RefNo LIKE '*9'", "SCAN TblBrindel USING COVERING INDEX TblBrindel_RefNo"},
      {"RefNo LIKE '9*'", "SEARCH TblBrindel USING COVERING INDEX TblBrindel_RefNo (RefNo>? AND RefNo<?)"},
  };
  for (const auto& [criterion, expected] : cases) {
    int found = 0;
    for (const std::string& plan : PlansOf([&, text = criterion] { rows.FindFirst(text); })) {
      EXPECT_THAT(plan, Not(HasSubstr("TEMP B-TREE")));
      if (plan.find(expected) != std::string::npos) ++found;
    }
    EXPECT_EQ(found, 1) << criterion;
  }
}

TEST_F(QueryPlanTest, ResultsOfOtherPatternsComeAlongTheIndex) {
  for (const char* source :
       {"SELECT * FROM TblBrindel WHERE Name LIKE '*th'", "SELECT * FROM TblBrindel WHERE RefNo LIKE '*3'",
        "SELECT * FROM TblBrindel WHERE Name LIKE '*'", "SELECT * FROM TblBrindel WHERE RefNo LIKE '*'"}) {
    for (const std::string& plan : PlansOf([&] { RowCursor(*connection_, source).MoveLast(); })) {
      if (plan.find("WHERE rowid = ?1") != std::string::npos) continue;
      EXPECT_THAT(plan, AllOf(HasSubstr("USING COVERING INDEX"), Not(HasSubstr("TEMP B-TREE")))) << source;
    }
  }
}

}  // namespace
}  // namespace tarvane
