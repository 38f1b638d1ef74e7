#include <gmock/gmock.h>

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>

#include "desktop/readers.h"
#include "desktop/shown_form.h"

namespace tarvane::desktop {
namespace {

using testing::ElementsAre;

// What a line shows while it is typed into, and after the worker has left it.
class TypingTest : public TrialTest {
 protected:
  void SetUp() override {
    Show({build_.Field(screen_.Width, {.number = true}), build_.Field(screen_.Style, {.number = true}),
          build_.Field(screen_.Length, {.mirror = true})});
    StartAt(screen_.Width);
  }
  QLineEdit* EditOf(const TextField& field) {
    auto* line = Of<QLineEdit>(field);
    return line != nullptr ? line : Of<QComboBox>(field)->lineEdit();
  }
  const std::vector<TextField*> fields_ = {&screen_.Width, &screen_.Style};
};

TEST_F(TypingTest, RulesThatWriteIntoTheLineDoNotDisturbTheHand) {
  const auto fill = [](TextField& field) {
    if (field.empty()) field.SetText("10");
  };
  const auto money = [](TextField& field) { field.SetText(Format2(field.text())); };
  struct Case {
    std::function<void(TextField&)> rule;
    const char* start;
    const char* keys;
    const char* shown;
    const char* selected;
    const char* left;  // after the worker has gone on
  };
  const Case kCases[] = {
      {fill, "7", "\b", "10", "10", "10"},
      {fill, "7", "\b5", "5", "", "5"},
      {money, "", "5", "5", "", "5.00"},
      {money, "", "12.345", "12.345", "", "12.35"},
      {money, "", "12.34\b\b5", "12.5", "", "12.50"},
      {money, "2.00", "\b", "2.0", "", "2.00"},
      {money, "", "1x", "1x", "", "1x"},
      {[](TextField& field) { field.SetText("7"); }, "", "3", "7", "7", "7"},
      {[](TextField& field) { field.SetText("AB"); }, "a", "b", "AB", "", "AB"},
  };
  for (TextField* field : fields_) {
    const Case* present = nullptr;
    bool at_work = false;
    field->OnChanged([&present, &at_work, field] {
      if (present == nullptr || std::exchange(at_work, true)) return;
      present->rule(*field);
      at_work = false;
    });
    QLineEdit* edit = EditOf(*field);
    for (const Case& each : kCases) {
      SCOPED_TRACE(field->name() + ": " + each.keys + " to " + each.shown);
      present = nullptr;
      edit->setFocus();
      field->SetText(each.start);
      Settle();
      edit->end(false);
      present = &each;
      Type(each.keys);
      EXPECT_EQ(edit->text(), each.shown);
      EXPECT_EQ(edit->selectedText(), each.selected);
      Type("\t");
      EXPECT_EQ(edit->text(), each.left);
      EXPECT_EQ(field->text(), each.left);
    }
  }
}

TEST_F(TypingTest, PastedLineEndsBecomeBlanks) {
  QApplication::clipboard()->setText("Hall\r\nleft\nbay");
  for (const TextField* field : fields_) {
    QLineEdit* edit = EditOf(*field);
    edit->setFocus();
    edit->paste();
    Settle();
    EXPECT_EQ(field->text(), "Hall left bay");
    EXPECT_EQ(edit->text(), "Hall left bay");
    EXPECT_EQ(edit->cursorPosition(), 13);
    EXPECT_EQ(edit->selectedText(), "");
  }
}

TEST_F(TypingTest, WhatIsNoNumberIsMarkedAndSaidToBeNone) {
  for (const auto& [text, fault] :
       {std::pair("12x", true), {"12", false}, {"", false}, {"-1.5", false}, {"ten", true}}) {
    for (TextField* field : fields_) {
      field->SetText(text);
      Settle();
      const auto* widget = Of(*field);
      EXPECT_EQ(HasFault(*widget), fault) << text;
      EXPECT_EQ(widget->toolTip().contains("is not a number"), fault) << text;
      EXPECT_EQ(widget->accessibleDescription().contains("is not a number"), fault) << text;
    }
  }
  const auto edge_is_red = [this](const char* text) {
    screen_.Width.SetText(text);
    Settle();
    const QColor edge = Of(screen_.Width)->grab().toImage().pixelColor(Of(screen_.Width)->width() / 2, 1);
    return edge.red() > edge.blue() + 60;
  };
  StartAt(screen_.Style);
  EXPECT_TRUE(edge_is_red("x"));
  EXPECT_FALSE(edge_is_red("1"));
}

TEST_F(TypingTest, ComingBackFromAnotherWindowLeavesCursorAndSelectionAlone) {
  screen_.Width.SetSelectAllOnFocus();
  screen_.Width.SetText("Measure");
  Settle();
  QLineEdit* edit = EditOf(screen_.Width);
  edit->setCursorPosition(3);
  QWidget other;
  other.show();
  ToFront(&other);
  ToFront(&shown_.window);
  EXPECT_THAT(screen_.log, testing::IsEmpty()) << "the field wasn't left";
  EXPECT_EQ(edit->selectedText(), "");
  EXPECT_EQ(edit->cursorPosition(), 3);
}

TEST_F(TypingTest, ALedFieldIsReadAndNeverEntered) {
  auto* length = EditOf(screen_.Length);
  for (const bool led : {false, true, false}) {
    screen_.Length.SetEnabled(!led);
    StartAt(screen_.Width);
    EXPECT_TRUE(length->isEnabled());
    EXPECT_EQ(length->isReadOnly(), led);
    if (!led) continue;
    Click(length);
    EXPECT_THAT(screen_.log, ElementsAre("leave Width"));
  }
}

// Two fields and a button.
class FocusTest : public TrialTest {
 protected:
  void ShowAll() {
    Show({build_.Field(screen_.Width), build_.Field(screen_.Length), build_.Press(screen_.Save)});
    StartAt(screen_.Width);
  }
};

TEST_F(FocusTest, TabAndEnterRunTheRulesInReadingOrderAndNeverCloseTheWindow) {
  ShowAll();
  Type("\t\t");
  EXPECT_THAT(screen_.log, ElementsAre("leave Width", "enter Length", "leave Length", "enter Save"));
  StartAt(screen_.Width);
  Type("\n");
  EXPECT_THAT(screen_.log, ElementsAre("enter key", "leave Width", "enter Length"));
  Key(Qt::Key_Enter);
  EXPECT_TRUE(shown_.window.isVisible());
  EXPECT_TRUE(IsAt(screen_.Save));
}

TEST_F(FocusTest, AClickRunsTheLeaveRuleFirstAndSelectsTheTextOfAFieldThatAsksForIt) {
  screen_.Length.SetSelectAllOnFocus();
  screen_.Length.SetText("120");
  ShowAll();
  Click(Of(screen_.Save));
  EXPECT_THAT(screen_.log, ElementsAre("leave Width", "enter Save", "saved"));
  Click(Of(screen_.Length));
  EXPECT_EQ(Of<QLineEdit>(screen_.Length)->selectedText(), "120");
}

TEST_F(FocusTest, APageThatIsBuiltLaterComesInItsPlace) {
  const auto second = [this] {
    return build_.Column({build_.Field(screen_.Length), build_.Field(screen_.Style)});
  };
  Show({build_.Pages(screen_.Steps, {[this] { return build_.Field(screen_.Width); }, second}),
        build_.Press(screen_.Save)});
  screen_.Steps.Select(1);
  Settle();
  StartAt(screen_.Steps);
  Type("\t\t\t");
  EXPECT_THAT(screen_.log, ElementsAre("leave Steps", "enter Length", "leave Length", "enter Style",
                                       "leave Style", "enter Save"));
}

// Where the worker answers No, as the host then tells the form.
TEST_F(FocusTest, AButtonThatWasNotMeantGivesTheFocusBack) {
  bool refused = true;
  screen_.Save.OnClicked([this, &refused] {
    if (refused) shown_.form.PutFocusBack();
  });
  Show({build_.Field(screen_.Length), build_.Field(screen_.Width), build_.Press(screen_.Save)});
  for (const bool by_key : {true, false}) {
    for (const bool refuses : {true, false}) {
      refused = refuses;
      StartAt(screen_.Width);
      if (by_key) Key(Qt::Key_F2);
      if (!by_key) Click(Of(screen_.Save));
      const Control& there = refuses ? static_cast<Control&>(screen_.Width) : screen_.Save;
      EXPECT_TRUE(IsAt(there)) << by_key << refuses;
      EXPECT_EQ(screen_.focus(), &there) << by_key << refuses;
    }
  }
}

}  // namespace
}  // namespace tarvane::desktop
