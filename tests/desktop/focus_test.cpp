#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>

#include "desktop/shown_form.h"

namespace tarvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FocusTest : public testing::Test {
 protected:
  QWidget* Edit(const Control& control) { return shown_.WidgetOf<QWidget>(control); }

  FakeHost host_;
  TrialScreen screen_{host_};
  ShownForm shown_{screen_};
  Builder& build_ = shown_.build;
};

TEST_F(FocusTest, TabRunsLeaveAndEntryRulesInReadingOrder) {
  shown_.Show({build_.Fields({{"Width", {screen_.Width}}, {"Length", {screen_.Length}}}),
               build_.Press(screen_.Save)});
  Edit(screen_.Width)->setFocus();
  ShownForm::Settle();
  QTest::keyClick(Edit(screen_.Width), Qt::Key_Tab);
  ShownForm::Settle();
  QTest::keyClick(Edit(screen_.Length), Qt::Key_Tab);
  ShownForm::Settle();
  EXPECT_THAT(screen_.log,
              ElementsAre("enter Width", "leave Width", "enter Length", "leave Length", "enter Save"));
}

TEST_F(FocusTest, EnterRunsTheRuleAndGoesOnAndNeverClosesTheWindow) {
  shown_.Show({build_.Field(screen_.Width), build_.Field(screen_.Length), build_.Press(screen_.Save)});
  Edit(screen_.Width)->setFocus();
  ShownForm::Settle();
  screen_.log.clear();
  QTest::keyClick(Edit(screen_.Width), Qt::Key_Return);
  ShownForm::Settle();
  EXPECT_THAT(screen_.log, ElementsAre("enter key", "leave Width", "enter Length"));
  QTest::keyClick(Edit(screen_.Length), Qt::Key_Enter);
  ShownForm::Settle();
  EXPECT_TRUE(shown_.window.isVisible());
  EXPECT_EQ(QApplication::focusWidget(), Edit(screen_.Save));
}

TEST_F(FocusTest, AProcedureMovesTheKeyboard) {
  screen_.Width.OnEnterKey([this] { screen_.SetFocus(screen_.Save); });
  shown_.Show({build_.Field(screen_.Width), build_.Field(screen_.Length), build_.Press(screen_.Save)});
  QTest::keyClick(Edit(screen_.Width), Qt::Key_Return);
  ShownForm::Settle();
  EXPECT_EQ(QApplication::focusWidget(), Edit(screen_.Save));
  EXPECT_EQ(screen_.focus(), &screen_.Save);
}

TEST_F(FocusTest, AnotherWindowInFrontIsNoLeaving) {
  shown_.Show({build_.Field(screen_.Width), build_.Field(screen_.Length)});
  Edit(screen_.Width)->setFocus();
  ShownForm::Settle();
  screen_.log.clear();
  QWidget other;
  other.show();
  QApplication::setActiveWindow(&other);
  ShownForm::Settle();
  QApplication::setActiveWindow(&shown_.window);
  ShownForm::Settle();
  EXPECT_THAT(screen_.log, IsEmpty());
}

TEST_F(FocusTest, AClickRunsTheLeaveRuleBeforeTheButtons) {
  shown_.Show({build_.Field(screen_.Width), build_.Press(screen_.Save)});
  Edit(screen_.Width)->setFocus();
  ShownForm::Settle();
  screen_.log.clear();
  QTest::mouseClick(Edit(screen_.Save), Qt::LeftButton);
  ShownForm::Settle();
  EXPECT_THAT(screen_.log, ElementsAre("leave Width", "enter Save", "saved"));
}

TEST_F(FocusTest, SelectsTheTextOfAFieldThatAsksForIt) {
  screen_.Length.SetSelectAllOnFocus();
  screen_.Length.SetText("120");
  shown_.Show({build_.Field(screen_.Width), build_.Field(screen_.Length)});
  QTest::mouseClick(Edit(screen_.Length), Qt::LeftButton);
  ShownForm::Settle();
  EXPECT_EQ(qobject_cast<QLineEdit*>(Edit(screen_.Length))->selectedText(), "120");
}

TEST_F(FocusTest, AFaultIsToldAndTheFieldStaysAsItWas) {
  screen_.Save.OnClicked([] { throw Fault("The disk is full."); });
  shown_.Show({build_.Press(screen_.Save)});
  qobject_cast<QPushButton*>(Edit(screen_.Save))->click();
  EXPECT_THAT(host_.messages, ElementsAre("The disk is full."));
}

}  // namespace
}  // namespace tarvane
