#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QSignalSpy>
#include <QTableView>

#include "desktop/shown_form.h"

namespace tarvane {
namespace {

using testing::ElementsAre;

// A million rows that count who looks at them.
class EndlessGrid : public Grid {
 public:
  explicit EndlessGrid(Screen* screen) : Grid(screen, "Endless") {}
  std::int64_t RowCount() const override { return 1'000'000; }
  int ColumnCount() const override { return 4; }
  std::string Cell(std::int64_t row, int column) const override {
    if (row > 0) ++reads;
    return std::to_string(row) + ":" + std::to_string(column);
  }
  std::int64_t selected_row() const override { return selected_; }
  mutable int reads = 0;

 protected:
  void MoveCursor(std::int64_t row) override { selected_ = row; }

 private:
  std::int64_t selected_ = 1;
};

class TableTest : public testing::Test {
 protected:
  FakeHost host_;
  TrialScreen screen_{host_};
  EndlessGrid endless_{&screen_};
  ShownForm shown_{screen_};
  Builder& build_ = shown_.build;
};

TEST_F(TableTest, ReadsOnlyTheRowsInView) {
  const EndlessGrid& grid = endless_;
  shown_.window.resize(600, 400);
  shown_.Show({build_.Table(endless_)});
  auto* table = shown_.WidgetOf<QTableView>(grid);
  shown_.window.grab();
  const int rows_in_view = table->viewport()->height() / table->rowHeight(0) + 2;
  EXPECT_GT(grid.reads, 0);
  EXPECT_LE(grid.reads, rows_in_view * 4 * 4) << "a few looks at each cell in view, none at others";
  grid.reads = 0;
  QTest::keyClick(table, Qt::Key_End);
  ShownForm::Settle();
  shown_.window.grab();
  EXPECT_EQ(grid.selected_row(), 1'000'000);
  EXPECT_LE(grid.reads, rows_in_view * 4 * 4);
}

TEST_F(TableTest, SelectsAndOpensRows) {
  screen_.Rows.SetRows({{"1", "2.50"}, {"2", "3.75"}, {"3", "1.00"}});
  shown_.Show({build_.Table(screen_.Rows)});
  auto* table = shown_.WidgetOf<QTableView>(screen_.Rows);
  EXPECT_EQ(table->currentIndex().row(), 0);
  table->setFocus();
  ShownForm::Settle();
  screen_.log.clear();
  const auto at = [&](int row) { return table->visualRect(table->model()->index(row, 1)).center(); };
  QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, at(0));
  ShownForm::Settle();
  QTest::keyClick(table, Qt::Key_Down);
  ShownForm::Settle();
  QTest::keyClick(table, Qt::Key_Return);
  ShownForm::Settle();
  EXPECT_THAT(screen_.log, ElementsAre("row 1", "row 2", "row 2", "open 2"))
      << "a click on the row that is selected counts as well";
  screen_.log.clear();
  QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, at(2));
  ShownForm::Settle();
  EXPECT_EQ(screen_.log.back(), "open 3");
  screen_.Rows.Select(1);
  ShownForm::Settle();
  EXPECT_EQ(table->currentIndex().row(), 0);
}

TEST_F(TableTest, ManyChangesAreDrawnOnce) {
  shown_.Show({build_.Table(screen_.Rows)});
  auto* table = shown_.WidgetOf<QTableView>(screen_.Rows);
  const QSignalSpy resets(table->model(), &QAbstractItemModel::modelReset);
  for (int i = 0; i < 1000; ++i) screen_.Rows.AddRow({std::to_string(i + 1), "1.00"});
  ShownForm::Settle();
  EXPECT_EQ(table->model()->rowCount(), 1000);
  EXPECT_EQ(resets.count(), 1);
}

TEST_F(TableTest, ShowsTheColumnsOfItsLookInTheirOrder) {
  screen_.Rows.SetHeadings({"Line", "Price", "Infomation", "Description"});
  shown_.Show(
      {build_.Table(screen_.Rows, {{{"Description", "What", 20}, {"Price", "", 8, true}}, "Description"})});
  auto* table = shown_.WidgetOf<QTableView>(screen_.Rows);
  QHeaderView* header = table->horizontalHeader();
  EXPECT_EQ(header->visualIndex(3), 0);
  EXPECT_EQ(header->visualIndex(1), 1);
  EXPECT_TRUE(table->isColumnHidden(0));
  EXPECT_TRUE(table->isColumnHidden(2));
  EXPECT_EQ(table->model()->headerData(3, Qt::Horizontal).toString(), "What");
  EXPECT_TRUE(table->model()->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

}  // namespace
}  // namespace tarvane
