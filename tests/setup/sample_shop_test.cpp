#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "app/main_screen.h"
#include "blinds/item_wizard.h"
#include "curtain_wizard/wizard.h"
#include "job/room_text.h"
#include "setup/quiet_host.h"
#include "setup/sample_tables.h"
#include "setup/setup_folder.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"
#include "text_number/text_number.h"

namespace tarvane::setup {
namespace {

using testing::AllOf;
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
    Database database(shop / FindTable(table).file);
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

// Edits the curtain, or what else it is, of the selected row without a change.
void EditItem(QuietHost& host, app::MainScreen& main) {
  host.Await("MainCWizard",
             [](Screen& wizard) { PassThrough(dynamic_cast<curtain_wizard::MainCWizard&>(wizard)); });
  host.Await("WizardNewBlinds", [](Screen& screen) {
    auto& wizard = dynamic_cast<blinds::WizardNewBlinds&>(screen);
    wizard.SSTab1.UserSelect(1);
    wizard.CmdUpdateAndClose.UserPress();
    EXPECT_TRUE(wizard.is_closed());
  });
  main.CommandButton("Command1", 2).UserPress();
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

// A room that holds an accessory in place of items is passed over: it loses it as it is opened.
void EachRoom(app::MainScreen& main, const std::function<void(HeldGrid& items)>& step) {
  for (std::size_t room = 0; room < job::kRoomCount; ++room) {
    if (main.RoomItems[room].text().ends_with(" Exc Vat")) continue;
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
          EditItem(host_, main);
          EXPECT_EQ(grid.Text(row, job::kEstPageInfoColumn), lines) << main.Name.text();
          if (grid.Text(row, job::kDialogboxColumn) == "AddItem") continue;
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

// The jobs as they are stored, with what their totals should come to by their lines.
class SampleTotalsTest : public SampleShopTest {
 protected:
  using Kind = SampleExtra::Kind;

  void SetUp() override {
    SampleShopTest::SetUp();
    for (const job::RoomColumns& room : job::kRoomColumns) {
      for (const std::string_view column : {room.items, room.summary, room.total})
        columns_[std::string(column)] = Column(column);
    }
    for (const char* column : {"Memo21", "G-Total", "Ext4", "4text"}) columns_[column] = Column(column);
  }
  const std::string& At(std::size_t job, std::string_view column) const {
    return columns_.at(std::string(column)).at(job);
  }
  std::size_t JobCount() const { return columns_.at("G-Total").size(); }

  static double Sum(const job::ItemLines& lines, const job::LineLayout& layout) {
    double sum = 0;
    for (std::size_t i = 0; i < lines.size(); ++i)
      sum += ParseLeading(lines[i].at(static_cast<std::size_t>(layout.price_column - 1)));
    return sum;
  }
  // Of all the rows of a catalogue by their names.
  std::map<std::string, double> Prices(std::string_view table, std::string_view name) const {
    const Row names = Values(shop_, table, name);
    const Row prices = Values(shop_, table, "SellingPrice");
    std::map<std::string, double> by_name;
    for (std::size_t i = 0; i < names.size(); ++i) by_name[names[i]] = ParseLeading(prices[i]);
    return by_name;
  }

  std::map<std::string, Row> columns_;
};

TEST_F(SampleTotalsTest, FollowFromTheLines) {
  for (std::size_t job = 0; job < JobCount(); ++job) {
    double all = Sum(job::ItemLines(At(job, "Memo21"), job::kSingleItemLayout), job::kSingleItemLayout);
    for (const job::RoomColumns& room : job::kRoomColumns) {
      const std::string& items = At(job, room.items);
      const double total = ParseLeading(At(job, room.total));
      all += total;
      if (items.ends_with(" Exc Vat")) continue;
      EXPECT_NEAR(total, Sum(job::ItemLines(items, job::kRoomItemLayout), job::kRoomItemLayout), 0.001)
          << job << " " << room.items;
    }
    EXPECT_NEAR(ParseLeading(At(job, "G-Total")), all, 0.001) << job;
    const double discount = all * ParseLeading(At(job, "Ext4")) / 100;
    EXPECT_NEAR(ParseLeading(At(job, "4text")), all - discount, 0.01) << job;
  }
}

// Items of the templates cost what the templates tell as their price: it is that of their lines.
TEST_F(SampleTotalsTest, HoldWhatCameFromTheCatalogues) {
  auto templates = Prices("Templates", "Description");
  auto products = Prices("Products", "ProductName");
  auto accessories = Prices("Items", "ItemName");
  for (const SampleExtra& extra : SampleExtras()) {
    SCOPED_TRACE(std::string(extra.name));
    const auto job = static_cast<std::size_t>(extra.job);
    auto& prices = extra.kind == Kind::kTemplate  ? templates
                   : extra.kind == Kind::kProduct ? products
                                                  : accessories;
    const double price = prices[std::string(extra.name)];
    const std::string total = FormatNumber(price * extra.quantity, Mask::k0_00);
    ASSERT_GT(price, 0);
    if (extra.room == 0) {
      EXPECT_THAT(At(job, "Memo21"),
                  AllOf(HasSubstr(std::to_string(extra.quantity) + "|"),
                        HasSubstr(" " + std::string(extra.name) + " "), HasSubstr("|" + total + "|\r\n")));
      continue;
    }
    const job::RoomColumns& room = job::kRoomColumns.at(static_cast<std::size_t>(extra.room - 1));
    EXPECT_THAT(At(job, room.summary), HasSubstr(extra.name));
    if (extra.kind == Kind::kTemplate) {
      EXPECT_THAT(At(job, room.items), AllOf(HasSubstr(total + "|"), HasSubstr("|AddItem|")));
      for (const std::string_view line : extra.lines) EXPECT_THAT(At(job, room.summary), HasSubstr(line));
    } else {
      EXPECT_EQ(At(job, room.items), std::to_string(extra.room) + ") - Order Total " + total + " Exc Vat");
      EXPECT_EQ(At(job, room.total), total);
    }
  }
}

TEST_F(SampleTotalsTest, AreOfAllKinds) {
  std::map<std::string_view, int> counts;
  for (std::size_t job = 0; job < JobCount(); ++job) {
    for (const job::RoomColumns& room : job::kRoomColumns) {
      const std::string& text = At(job, room.items);
      const job::ItemLines lines(text, job::kRoomItemLayout);
      for (std::size_t i = 0; i < lines.size(); ++i) ++counts[lines[i].at(job::kDialogboxColumn - 1)];
      counts["accessories"] += static_cast<int>(text.ends_with(" Exc Vat"));
    }
    counts["singles"] += static_cast<int>(job::ItemLines(At(job, "Memo21"), job::kSingleItemLayout).size());
  }
  EXPECT_EQ(counts["AddItem"], std::ranges::count(SampleExtras(), Kind::kTemplate, &SampleExtra::kind));
  EXPECT_EQ(counts["AddItem"], 9);
  EXPECT_EQ(counts["accessories"], 3);
  EXPECT_GE(counts["singles"], 100);
  EXPECT_EQ(counts.size(), 4u) << "and curtains";
}

}  // namespace
}  // namespace tarvane::setup
