#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "app/main_screen.h"
#include "curtain_wizard/wizard.h"
#include "setup/quiet_host.h"
#include "setup/sample_tables.h"
#include "setup/setup_folder.h"
#include "store/database.h"
#include "store/row_set.h"

namespace tarvane::setup {
namespace {

using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::Ge;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

using Row = std::vector<std::string>;

class SampleShopTest : public SetupTest {
 protected:
  void SetUp() override {
    SetupTest::SetUp();
    ASSERT_EQ(Run({"--sample"}), 0) << err_;
    ASSERT_THAT(out_, HasSubstr("sample shop: created\n"));
  }

  // Of every row, all columns or one.
  static Row Values(const std::filesystem::path& shop, std::string_view table, std::string_view column = "") {
    Database database(shop / data_file::kJobs);
    RowSet rows;
    rows.Open(database, table);
    Row values;
    for (; rows.HasRow(); rows.MoveNext()) {
      for (int i = 0; i < rows.ColumnCount(); ++i) {
        if (column.empty() || rows.ColumnName(i) == column) values.push_back(rows.Value(i));
      }
    }
    return values;
  }
  Row Column(std::string_view column) const { return Values(shop_, kJobTable, column); }

  // Starts the program on the shop, and lets `worker` work on its main screen.
  void Work(const std::function<void(app::MainScreen&)>& worker) {
    Shop shop(shop_);
    app::MainScreen main(host_, shop);
    host_.Await("frmSplash", [](Screen& splash) { splash.Close(); });
    host_.Await(main.name(), [&](Screen&) { worker(main); });
    main.RunAsMain();
  }

  QuietHost host_;
};

// The money columns that are stored with a job.
Row Totals(const app::MainScreen& main) {
  Row totals = {main.GTotal.text(),  main.Total.text(),   main.DepositPercent.text(), main.DepositPaid.text(),
                main.PrePaid.text(), main.Balance.text(), main.DiscountPercent.text()};
  for (const TextField& total : main.RoomTotal) totals.push_back(total.text());
  return totals;
}

const SampleWindow& WindowOf(const curtain_wizard::MainCWizard& wizard) {
  const auto windows = SampleWindows();
  const auto found = std::ranges::find(windows, wizard.TxtDescription.text(), &SampleWindow::description);
  EXPECT_NE(found, windows.end()) << wizard.TxtDescription.text();
  return *found;
}

// Through all steps and back into the room. That there are trims isn't kept with an item: the worker ticks
// it.
void PassThrough(curtain_wizard::MainCWizard& wizard) {
  const SampleTrim& trim = WindowOf(wizard).trim;
  for (int step = 1; step < curtain_wizard::MainCWizard::kSteps; ++step) {
    wizard.CmdNext.UserPress();
    if (wizard.step() == 4 && trim.by_widths) wizard.TrimByWidths.UserSet(true);
  }
  wizard.CmdGetInfo.UserPress();
  wizard.CmdUpdateAndClose.UserPress();
  EXPECT_TRUE(wizard.is_closed());
}

TEST_F(SampleShopTest, IsTheSameEachTime) {
  const auto former = shop_;
  shop_ = root_ / "another";
  ASSERT_EQ(Run({"--sample"}), 0) << err_;
  for (const char* table : {"TblBrindel", "Admin"}) EXPECT_EQ(Values(shop_, table), Values(former, table));
}

TEST_F(SampleShopTest, HoldsJobsOfManyShapes) {
  EXPECT_THAT(Column("RefNo"), SizeIs(Ge(60u)));
  const auto names = Column("Name");
  EXPECT_THAT(names, Not(Contains(IsEmpty())));
  EXPECT_THAT(names, Contains(SizeIs(Ge(80u))));
  EXPECT_THAT(names, Contains(HasSubstr("Ō")));
  const auto persons = Column("Ext6");
  EXPECT_THAT(std::set(persons.begin(), persons.end()),
              ElementsAre("Alison Hart", "Ben Okafor", "Megan Prys"));
  for (const char* flag : {"Completed", "Check2", "Check1", "Check12"}) {
    EXPECT_THAT(Column(flag), Contains("1")) << flag;
    EXPECT_THAT(Column(flag), Contains("0")) << flag;
  }
  for (const char* text : {"5T(2)", "5T(3)", "History", "Memo21", "1T(0)", "1T(11)", "5T(0)", "2Text"}) {
    EXPECT_THAT(Column(text), Contains(Not(IsEmpty()))) << text;
    EXPECT_THAT(Column(text), Contains(IsEmpty())) << text;
  }
  EXPECT_THAT(Column("Ext4"), Contains(AnyOf("5", "12.5")));
  EXPECT_THAT(Column("5Text"), Contains("0.00"));
  EXPECT_THAT(Column("G-Total"), Contains("0.00"));
  const auto references = Column("Ext2");
  EXPECT_THAT(std::set(references.begin(), references.end()), SizeIs(references.size()));
}

// Goes to each job; `step` has it open.
void EachJob(app::MainScreen& main, const std::function<void(RowSet& jobs)>& step) {
  RowSet& jobs = main.Data1.rows();
  for (std::int64_t job = 0; job < jobs.RecordCount(); ++job) {
    jobs.MoveTo(job);
    step(jobs);
  }
}

void EachRoom(app::MainScreen& main, const std::function<void(HeldGrid& items)>& step) {
  for (std::size_t room = 0; room < job::kRoomCount; ++room) {
    main.GoToRoom(static_cast<int>(room) + 1);
    step(main.RoomItemGrid[room]);
  }
}

TEST_F(SampleShopTest, EachJobOpensWithTheTotalsThatAreStored) {
  Work([](app::MainScreen& main) {
    EachJob(main, [&main](RowSet& jobs) {
      Row stored;
      for (const char* total : {"G-Total", "4text", "5Text"})
        stored.push_back(jobs.StoredValue(jobs.FindColumn(total)));
      EachRoom(main, [](HeldGrid&) {});
      EXPECT_EQ((Row{main.GTotal.text(), main.Total.text(), main.Balance.text()}), stored)
          << main.Name.text();
      EXPECT_FALSE(jobs.IsEditing()) << main.Name.text();
    });
  });
}

TEST_F(SampleShopTest, EachItemCanBeEditedAndComesToTheSameTotals) {
  int items = 0;
  Work([&](app::MainScreen& main) {
    EachJob(main, [&](RowSet&) {
      const Row before = Totals(main);
      EachRoom(main, [&](HeldGrid& grid) {
        for (std::int64_t row = 1; row <= grid.RowCount(); ++row, ++items) {
          const std::string lines = grid.Text(row, job::kEstPageInfoColumn);
          grid.UserSelectRow(row);
          host_.Await("MainCWizard", [](Screen& wizard) {
            PassThrough(dynamic_cast<curtain_wizard::MainCWizard&>(wizard));
          });
          main.CommandButton("Command1", 2).UserPress();
          EXPECT_EQ(grid.Text(row, job::kEstPageInfoColumn), lines) << main.Name.text();
          EXPECT_THAT(grid.Text(row, job::kDescriptionColumn), HasSubstr(" # Fabric = "));
        }
      });
      EXPECT_EQ(Totals(main), before) << main.Name.text();
      main.SaveRecord();
    });
  });
  EXPECT_GE(items, 150);
}

TEST_F(SampleShopTest, LastOrderNoIsPastEveryItem) {
  Work([](app::MainScreen& main) {
    double highest = 0;
    EachJob(main, [&](RowSet&) {
      highest = std::max(highest, main.OrderReference.Number());
      EachRoom(main, [&highest](HeldGrid& grid) {
        for (const HeldGrid::Row& row : grid.rows())
          highest = std::max(highest, ParseLeading(row.at(job::kItemNoColumn)));
      });
    });
    EXPECT_EQ(main.TxtLastOrderNo.Number(), highest + 1);
  });
}

}  // namespace
}  // namespace tarvane::setup
