#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>

#include "desktop/shown_form.h"

namespace tarvane {
namespace {

using testing::ElementsAre;

class BindingTest : public testing::Test {
 protected:
  FakeHost host_;
  TrialScreen screen_{host_};
  ShownForm shown_{screen_};
  Builder& build_ = shown_.build;
};

TEST_F(BindingTest, TypedTextReachesTheFieldAndARulesTextReachesTheWidget) {
  screen_.Width.OnTyped([this] { screen_.Length.SetText(screen_.Width.text() + "0"); });
  shown_.Show({build_.Field(screen_.Width), build_.Field(screen_.Length)});
  QTest::keyClicks(shown_.WidgetOf<QLineEdit>(screen_.Width), "12");
  ShownForm::Settle();
  EXPECT_EQ(screen_.Width.text(), "12");
  EXPECT_EQ(shown_.WidgetOf<QLineEdit>(screen_.Length)->text(), "120");
}

TEST_F(BindingTest, ARuleThatRewritesTheFieldItselfIsShown) {
  screen_.Width.OnTyped([this] { screen_.Width.SetText("7"); });
  shown_.Show({build_.Field(screen_.Width)});
  QTest::keyClicks(shown_.WidgetOf<QLineEdit>(screen_.Width), "x");
  ShownForm::Settle();
  EXPECT_EQ(shown_.WidgetOf<QLineEdit>(screen_.Width)->text(), "7");
}

TEST_F(BindingTest, TypingStaysWithinTheFieldsLimit) {
  screen_.Width.SetMaxLength(3);
  shown_.Show({build_.Field(screen_.Width)});
  QTest::keyClicks(shown_.WidgetOf<QLineEdit>(screen_.Width), "12345");
  EXPECT_EQ(screen_.Width.text(), "123");
}

TEST_F(BindingTest, MemosKeepTheirLineEnds) {
  screen_.Notes.SetText("a\r\nb");
  shown_.Show({build_.Field(screen_.Notes)});
  auto* edit = shown_.WidgetOf<QPlainTextEdit>(screen_.Notes);
  EXPECT_EQ(edit->toPlainText(), "a\nb");
  edit->moveCursor(QTextCursor::End);
  QTest::keyClick(edit, Qt::Key_Return);
  QTest::keyClicks(edit, "c");
  EXPECT_EQ(screen_.Notes.text(), "a\r\nb\r\nc");
}

TEST_F(BindingTest, ReadOnlyMemoWithALineMarkShowsLinesAndLeavesTheTextAlone) {
  screen_.Notes.SetReadOnly(true);
  screen_.Notes.SetText("1 - Style~2 - Size~");
  shown_.Show({build_.Field(screen_.Notes, {.line_mark = '~'})});
  EXPECT_EQ(shown_.WidgetOf<QPlainTextEdit>(screen_.Notes)->toPlainText(), "1 - Style\n2 - Size");
  EXPECT_EQ(screen_.Notes.text(), "1 - Style~2 - Size~");
}

TEST_F(BindingTest, DropDownTypesAndPicksApart) {
  screen_.Style.SetEntries({"Goblet", "Pencil"});
  shown_.Show({build_.Field(screen_.Style), build_.Field(screen_.Width)});
  auto* combo = shown_.WidgetOf<QComboBox>(screen_.Style);
  combo->setFocus();
  ShownForm::Settle();
  screen_.log.clear();
  QTest::keyClicks(combo, "Cafe");
  EXPECT_EQ(screen_.Style.text(), "Cafe");
  screen_.Style.SetText("Penci");
  ShownForm::Settle();
  combo->lineEdit()->end(false);
  screen_.log.clear();
  QTest::keyClicks(combo, "l");
  QTest::keyClick(combo, Qt::Key_Tab);
  ShownForm::Settle();
  EXPECT_THAT(screen_.log, ElementsAre("typed Pencil", "leave Style", "enter Width"))
      << "leaving a text that an entry has as well is no picking";
  combo->setFocus();
  ShownForm::Settle();
  screen_.log.clear();
  QTest::keyClick(combo, Qt::Key_Up);
  EXPECT_THAT(screen_.log, ElementsAre("typed Goblet", "picked Goblet"));
}

TEST_F(BindingTest, TypingInTheMiddleOfADropDownKeepsTheCursor) {
  screen_.Style.SetEntries({"1.50", "17.5"});
  shown_.Show({build_.Field(screen_.Style)});
  auto* combo = shown_.WidgetOf<QComboBox>(screen_.Style);
  QTest::keyClicks(combo, "1.5");
  combo->lineEdit()->setCursorPosition(1);
  QTest::keyClicks(combo, "7");
  ShownForm::Settle();
  QTest::keyClick(combo, Qt::Key_Delete);
  ShownForm::Settle();
  combo->lineEdit()->setCursorPosition(2);
  QTest::keyClicks(combo, ".");
  ShownForm::Settle();
  EXPECT_EQ(screen_.Style.text(), "17.5");
  EXPECT_EQ(combo->lineEdit()->cursorPosition(), 3) << "also where the text has become an entry's";
}

TEST_F(BindingTest, BoxesAndOptionsFollowBothWays) {
  screen_.Inches.Set(true);
  shown_.Show({build_.Tick(screen_.Lined), build_.Tick(screen_.Inches), build_.Tick(screen_.Metric)});
  auto* inches = shown_.WidgetOf<QRadioButton>(screen_.Inches);
  auto* metric = shown_.WidgetOf<QRadioButton>(screen_.Metric);
  EXPECT_TRUE(inches->isChecked());
  metric->click();
  ShownForm::Settle();
  EXPECT_TRUE(screen_.Metric.on());
  EXPECT_FALSE(screen_.Inches.on());
  EXPECT_FALSE(inches->isChecked());
  screen_.Metric.Set(false);
  ShownForm::Settle();
  EXPECT_FALSE(metric->isChecked()) << "a procedure may leave all of them off";
  shown_.WidgetOf<QCheckBox>(screen_.Lined)->click();
  EXPECT_TRUE(screen_.Lined.on());
  screen_.Lined.Set(false);
  ShownForm::Settle();
  EXPECT_FALSE(shown_.WidgetOf<QCheckBox>(screen_.Lined)->isChecked());
}

TEST_F(BindingTest, StateCaptionAndPanelFollowTheControl) {
  screen_.Length.SetPanel(&screen_.Frame);
  shown_.Show({build_.Fields({{"Length", {{screen_.Length, {.unit = "cm"}}}}}), build_.Press(screen_.Save),
               build_.Text(screen_.Hint)});
  auto* length = shown_.WidgetOf<QLineEdit>(screen_.Length);
  EXPECT_TRUE(length->isVisible());
  screen_.Frame.SetVisible(false);
  screen_.Save.SetEnabled(false);
  screen_.Save.SetCaption("&Update");
  screen_.Hint.SetCaption("Cut once");
  ShownForm::Settle();
  EXPECT_FALSE(length->isVisible());
  for (const QLabel* label : shown_.window.findChildren<QLabel*>()) {
    if (label->text() != "Length" && label->text() != "cm") continue;
    EXPECT_FALSE(label->isVisible()) << label->text().toStdString();
  }
  EXPECT_FALSE(shown_.WidgetOf<QPushButton>(screen_.Save)->isEnabled());
  EXPECT_EQ(shown_.WidgetOf<QPushButton>(screen_.Save)->text(), "&Update");
  EXPECT_EQ(shown_.WidgetOf<QLabel>(screen_.Hint)->text(), "Cut once");
  screen_.Frame.SetVisible(true);
  ShownForm::Settle();
  EXPECT_TRUE(length->isVisible());
}

TEST_F(BindingTest, ButtonsGoByClickEnterAndTheirFunctionKey) {
  shown_.Show({build_.Press(screen_.Save)});
  auto* save = shown_.WidgetOf<QPushButton>(screen_.Save);
  save->setFocus();
  ShownForm::Settle();
  screen_.log.clear();
  save->click();
  QTest::keyClick(save, Qt::Key_Return);
  QTest::keyClick(&shown_.window, Qt::Key_F2);
  EXPECT_THAT(screen_.log, ElementsAre("saved", "saved", "saved"));
  screen_.Save.SetEnabled(false);
  ShownForm::Settle();
  QTest::keyClick(&shown_.window, Qt::Key_F2);
  EXPECT_EQ(screen_.log.size(), 3U);
}

TEST_F(BindingTest, ListsTellWhatIsPickedAndOpened) {
  screen_.List.SetEntries({"a", "b", "c"});
  int opened = -2;
  screen_.List.OnOpened([&] { opened = screen_.List.selected(); });
  shown_.Show({build_.List(screen_.List)});
  auto* view = shown_.WidgetOf<QListView>(screen_.List);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                    view->visualRect(view->model()->index(1, 0)).center());
  ShownForm::Settle();
  EXPECT_EQ(screen_.List.selected(), 1);
  QTest::keyClick(view, Qt::Key_Down);
  ShownForm::Settle();
  EXPECT_EQ(screen_.List.selected(), 2);
  QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, QPoint(5, view->viewport()->height() - 3));
  ShownForm::Settle();
  EXPECT_EQ(opened, -1) << "below the entries: none of them";
  screen_.List.RemoveEntry(0);
  ShownForm::Settle();
  EXPECT_EQ(view->model()->rowCount(), 2);
  EXPECT_FALSE(view->currentIndex().isValid());
}

TEST_F(BindingTest, TabsAskBeforeTheyMoveAndBuildAPageOnce) {
  int built = 0;
  bool allowed = false;
  screen_.Steps.SetGate([&](int) { return allowed; });
  shown_.Show({build_.Pages(screen_.Steps, {[&] { return build_.Field(screen_.Width); },
                                            [&] {
                                              ++built;
                                              return build_.Field(screen_.Length);
                                            }})});
  auto* bar = shown_.WidgetOf<QTabBar>(screen_.Steps);
  const auto click_second = [&] {
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    ShownForm::Settle();
  };
  click_second();
  EXPECT_EQ(bar->currentIndex(), 0);
  EXPECT_EQ(built, 0) << "a page that wasn't looked at costs nothing";
  allowed = true;
  click_second();
  EXPECT_EQ(screen_.Steps.selected(), 1);
  EXPECT_EQ(bar->currentIndex(), 1);
  EXPECT_TRUE(shown_.WidgetOf<QLineEdit>(screen_.Length)->isVisible());
  QTest::keyClick(bar, Qt::Key_Left);
  ShownForm::Settle();
  screen_.Steps.Select(1);
  ShownForm::Settle();
  EXPECT_EQ(bar->currentIndex(), 1);
  EXPECT_EQ(built, 1);
}

TEST(FunctionKeyTest, IsNamedAtTheCaptionsEnd) {
  EXPECT_EQ(FunctionKeyOf("&Payment F2"), 2);
  EXPECT_EQ(FunctionKeyOf("Print F12"), 12);
  EXPECT_EQ(FunctionKeyOf("Print F13"), 0);
  EXPECT_EQ(FunctionKeyOf("Fax F"), 0);
  EXPECT_EQ(FunctionKeyOf("F2 Payment"), 0);
  EXPECT_EQ(FunctionKeyOf(""), 0);
}

}  // namespace
}  // namespace tarvane
