#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>

#include "desktop/shown_form.h"

namespace tarvane::desktop {
namespace {

using testing::ElementsAre;

using BindingTest = TrialTest;

TEST_F(BindingTest, TypedTextReachesTheFieldAndARulesTextReachesTheWidget) {
  screen_.Width.SetMaxLength(3);
  screen_.Width.OnTyped([this] { screen_.Length.SetText(screen_.Width.text() + "0"); });
  Show({build_.Field(screen_.Width), build_.Field(screen_.Length)});
  Type("12345");
  EXPECT_EQ(screen_.Width.text(), "123") << "the field's limit";
  EXPECT_EQ(Of<QLineEdit>(screen_.Length)->text(), "1230");
  screen_.Width.OnTyped([this] { screen_.Width.SetText("7"); });
  Type("\b");
  EXPECT_EQ(Of<QLineEdit>(screen_.Width)->text(), "7") << "a rule may rewrite the field itself";
}

// Their text may also hold what an editor would write otherwise.
TEST_F(BindingTest, MemosKeepTheirLineEndsAndTypeNothingThatNobodyTyped) {
  int typed = 0;
  screen_.Notes.OnTyped([&typed] { ++typed; });
  screen_.Notes.SetText("5\u00a0m\r\nlining");
  Show({build_.Field(screen_.Notes)});
  auto* memo = Of<QPlainTextEdit>(screen_.Notes);
  EXPECT_EQ(memo->toPlainText(), "5 m\nlining");
  emit memo->textChanged();
  EXPECT_EQ(typed, 0);
  memo->moveCursor(QTextCursor::End);
  Type("s\nc");
  EXPECT_EQ(screen_.Notes.text(), "5\u00a0m\r\nlinings\r\nc");
}

TEST_F(BindingTest, DropDownTypesAndPicksApart) {
  screen_.Style.SetEntries({"Goblet", "Pencil"});
  Show({build_.Field(screen_.Style), build_.Field(screen_.Width)});
  StartAt(screen_.Style);
  Type("Cafe");
  EXPECT_EQ(screen_.Style.text(), "Cafe");
  screen_.Style.SetText("Penci");
  Settle();
  Of<QComboBox>(screen_.Style)->lineEdit()->end(false);
  screen_.log.clear();
  Type("l\t");
  EXPECT_THAT(screen_.log, ElementsAre("typed Pencil", "leave Style", "enter Width"))
      << "leaving a text that an entry has as well is no picking";
  StartAt(screen_.Style);
  Key(Qt::Key_Up);
  EXPECT_THAT(screen_.log, ElementsAre("typed Goblet", "picked Goblet"));
}

TEST_F(BindingTest, WhereAPickSendsTheFocusItStays) {
  screen_.Style.SetEntries({"Goblet", "Pencil"});
  screen_.Style.SetTypingAllowed(false);
  screen_.Style.OnPicked([this] { screen_.SetFocus(screen_.Width); });
  Show({build_.Field(screen_.Style), build_.Field(screen_.Width)});
  StartAt(screen_.Style);
  // The list gives the keyboard back as it closes, which may be seen before the pick or behind it.
  Of<QComboBox>(screen_.Style)->showPopup();
  Settle();
  QTest::keyClick(Of<QComboBox>(screen_.Style)->view(), Qt::Key_Down);
  QTest::keyClick(Of<QComboBox>(screen_.Style)->view(), Qt::Key_Return);
  Settle();
  EXPECT_EQ(screen_.Style.text(), "Pencil");
  EXPECT_TRUE(IsAt(screen_.Width));
  EXPECT_EQ(screen_.focus(), &screen_.Width);
}

TEST_F(BindingTest, TypingInTheMiddleOfADropDownKeepsTheCursor) {
  screen_.Style.SetEntries({"1.50", "17.5"});
  Show({build_.Field(screen_.Style)});
  QLineEdit* edit = Of<QComboBox>(screen_.Style)->lineEdit();
  Type("1.5");
  edit->setCursorPosition(1);
  Type("7");
  Key(Qt::Key_Delete);
  edit->setCursorPosition(2);
  Type(".");
  EXPECT_EQ(screen_.Style.text(), "17.5");
  EXPECT_EQ(edit->cursorPosition(), 3) << "also where the text has become an entry's";
}

TEST_F(BindingTest, BoxesAndOptionsFollowBothWays) {
  screen_.Inches.Set(true);
  Show({build_.Tick(screen_.Lined), build_.Tick(screen_.Inches), build_.Tick(screen_.Metric)});
  auto* inches = Of<QRadioButton>(screen_.Inches);
  auto* metric = Of<QRadioButton>(screen_.Metric);
  auto* lined = Of<QCheckBox>(screen_.Lined);
  EXPECT_TRUE(inches->isChecked());
  metric->click();
  lined->click();
  Settle();
  EXPECT_TRUE(screen_.Metric.on() && screen_.Lined.on());
  EXPECT_FALSE(screen_.Inches.on() || inches->isChecked());
  screen_.Metric.Set(false);
  screen_.Lined.Set(false);
  Settle();
  EXPECT_FALSE(metric->isChecked()) << "a procedure may leave all of them off";
  EXPECT_FALSE(lined->isChecked());
}

TEST_F(BindingTest, StateCaptionAndPanelFollowTheControl) {
  Show({build_.Fields({{"Length", {{screen_.Length, {.unit = "cm"}}}}}), build_.Press(screen_.Save),
        build_.Text(screen_.Hint)});
  EXPECT_TRUE(Of(screen_.Length)->isVisible());
  EXPECT_THAT(Seen(shown_.window), ElementsAre("Length", "cm", "Measure twice", "&Save F2"));
  screen_.Frame.SetVisible(false);
  screen_.Save.SetEnabled(false);
  screen_.Save.SetCaption("&Update");
  screen_.Hint.SetCaption("Cut once");
  Settle();
  EXPECT_FALSE(Of(screen_.Length)->isVisible());
  EXPECT_THAT(Seen(shown_.window), ElementsAre("Cut once", "&Update"));
  EXPECT_FALSE(Of(screen_.Save)->isEnabled());
  screen_.Frame.SetVisible(true);
  Settle();
  EXPECT_TRUE(Of(screen_.Length)->isVisible());
}

TEST_F(BindingTest, ButtonsGoByClickEnterAndTheirFunctionKey) {
  Show({build_.Press(screen_.Save)});
  StartAt(screen_.Save);
  Of<QPushButton>(screen_.Save)->click();
  Key(Qt::Key_Return);
  Key(Qt::Key_F2);
  EXPECT_THAT(screen_.log, ElementsAre("saved", "saved", "saved"));
  screen_.Save.SetEnabled(false);
  Settle();
  Key(Qt::Key_F2);
  EXPECT_EQ(screen_.log.size(), 3U);
}

TEST_F(BindingTest, ListsTellWhatIsPickedAndOpened) {
  screen_.List.SetEntries({"a", "b", "c"});
  int opened = -2;
  screen_.List.OnOpened([&] { opened = screen_.List.selected(); });
  Show({build_.List(screen_.List)});
  auto* view = Of<QTableView>(screen_.List);
  Click(view->viewport(), view->visualRect(view->model()->index(1, 0)).center());
  EXPECT_EQ(screen_.List.selected(), 1);
  Key(Qt::Key_Down);
  EXPECT_EQ(screen_.List.selected(), 2);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, QPoint(5, view->viewport()->height() - 3));
  Settle();
  EXPECT_EQ(opened, -1) << "below the entries: none of them";
  screen_.List.RemoveEntry(0);
  Settle();
  EXPECT_EQ(view->model()->rowCount(), 2);
  EXPECT_FALSE(view->currentIndex().isValid());
}

TEST(FunctionKeyTest, IsNamedAtTheCaptionsEnd) {
  for (const auto& [caption, key] : {std::pair("&Payment F2", 2),
                                     {"Print F12", 12},
                                     {"Print F13", 0},
                                     {"Fax F", 0},
                                     {"F2 Pay", 0},
                                     {"", 0}}) {
    EXPECT_EQ(FunctionKeyOf(caption), key) << caption;
  }
}

// Many rows that count who looks at them.
class CountingGrid : public HeldGrid {
 public:
  explicit CountingGrid(Screen* screen) : HeldGrid(screen, "Counting", {"1", "2", "3", "4"}) {
    SetRows(std::vector<std::vector<std::string>>(kRows, {"a", "b", "c", "d"}));
  }
  std::string Cell(std::int64_t row, int column) const override {
    if (row > 0) ++reads;
    return HeldGrid::Cell(row, column);
  }
  static constexpr int kRows = 100'000;
  mutable int reads = 0;
};

class TableTest : public TrialTest {
 protected:
  QTableView* ShowRows(const TableLook& look = {}) {
    Show({build_.Table(screen_.Rows, look), build_.Press(screen_.Save)});
    return Of<QTableView>(screen_.Rows);
  }
};

TEST_F(TableTest, ReadsOnlyTheRowsInView) {
  CountingGrid grid(&screen_);
  ShownForm shown(screen_);
  shown.window.resize(600, 400);
  shown.Show({shown.build.Table(grid)});
  const auto* table = shown.WidgetOf<QTableView>(grid);
  const int rows_in_view = table->viewport()->height() / table->verticalHeader()->defaultSectionSize() + 2;
  for (const bool at_end : {false, true}) {
    if (at_end) Key(Qt::Key_End);
    shown.window.grab();
    EXPECT_EQ(grid.selected_row(), at_end ? CountingGrid::kRows : 1);
    EXPECT_GT(grid.reads, 0);
    EXPECT_LE(grid.reads, rows_in_view * 4 * 4) << "a few looks at each cell in view, none at others";
    grid.reads = 0;
  }
}

// After a search that finds little nothing is left to scroll.
TEST_F(TableTest, ScrollsAsFarAsThereAreRows) {
  CountingGrid grid(&screen_);
  ShownForm shown(screen_);
  shown.window.resize(600, 400);
  shown.Show({shown.build.Table(grid)});
  const auto* table = shown.WidgetOf<QTableView>(grid);
  EXPECT_GT(table->verticalScrollBar()->maximum(), CountingGrid::kRows / 2);
  grid.SetRows({{"a"}, {"b"}});
  Settle();
  EXPECT_EQ(table->verticalScrollBar()->maximum(), 0);
}

TEST_F(TableTest, SelectsAndOpensRows) {
  screen_.Rows.SetRows({{"1", "2.50"}, {"2", "3.75"}, {"3", "1.00"}});
  const auto* table = ShowRows();
  EXPECT_EQ(table->currentIndex().row(), 0);
  StartAt(screen_.Rows);
  const auto at = [&](int row) { return table->visualRect(table->model()->index(row, 1)).center(); };
  Click(table->viewport(), at(0));
  Key(Qt::Key_Down);
  Key(Qt::Key_Return);
  EXPECT_THAT(screen_.log, ElementsAre("row 1", "row 2", "row 2", "open 2"))
      << "a click on the row that is selected counts as well";
  QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, at(2));
  Settle();
  EXPECT_EQ(screen_.log.back(), "open 3");
  screen_.Rows.Select(1);
  const QSignalSpy resets(table->model(), &QAbstractItemModel::modelReset);
  for (int i = 3; i < 1000; ++i) screen_.Rows.AddRow({std::to_string(i + 1), "1.00"});
  Settle();
  EXPECT_EQ(table->currentIndex().row(), 0);
  EXPECT_EQ(table->model()->rowCount(), 1000);
  EXPECT_EQ(resets.count(), 1) << "many changes are drawn once";
}

TEST_F(TableTest, InsertAndDeletePressTheirButtonsAndKeepTheFocus) {
  screen_.Rows.SetRows({{"1", "2.50"}});
  TableLook look;
  look.insert = &screen_.Later;
  look.remove = &screen_.Save;
  ShowRows(look);
  const auto press = [&](Qt::Key key) {
    StartAt(screen_.Rows);
    Key(key);
    return screen_.log;
  };
  EXPECT_THAT(press(Qt::Key_Delete), testing::Contains("saved"));
  EXPECT_TRUE(IsAt(screen_.Rows));
  EXPECT_EQ(screen_.focus(), &screen_.Rows);
  EXPECT_THAT(press(Qt::Key_Insert), testing::IsEmpty()) << "what is disabled stays undone";
  screen_.Save.SetVisible(false);
  EXPECT_THAT(press(Qt::Key_Delete), testing::IsEmpty());
}

TEST_F(TableTest, ShowsTheColumnsOfItsLookInTheirOrder) {
  screen_.Rows.SetHeadings({"Line", "Price", "Infomation", "Description"});
  const auto* table = ShowRows({{{"Description", "What", 20}, {"Price", "", 8, true}}, "Description"});
  EXPECT_EQ(table->horizontalHeader()->visualIndex(3), 0);
  EXPECT_EQ(table->horizontalHeader()->visualIndex(1), 1);
  EXPECT_TRUE(table->isColumnHidden(0) && table->isColumnHidden(2));
  EXPECT_EQ(table->model()->headerData(3, Qt::Horizontal).toString(), "What");
  EXPECT_TRUE(table->model()->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

}  // namespace
}  // namespace tarvane::desktop
