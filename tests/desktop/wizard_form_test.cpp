#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <map>

#include "app/main_screen.h"
#include "curtain_wizard/costing.h"
#include "curtain_wizard/wizard.h"
#include "desktop/sample_shop.h"
#include "desktop/step_bar.h"
#include "desktop/text.h"
#include "desktop/trial_host.h"

namespace tarvane {
namespace {

class WizardFormTest : public testing::Test {
 protected:
  using Step = std::function<void(Form&, MainCWizard&)>;

  // Runs `step` on the wizard of a new item while its window is shown.
  void Show(const Step& step) {
    host_.OnShown([&](Form& form) {
      if (form.screen().name() != "MainCWizard") return form.screen().Close();
      QApplication::setActiveWindow(form.window());
      Settle();
      step(form, static_cast<MainCWizard&>(form.screen()));
      form.screen().Close();
    });
    main_.RunAsMain();
    MainCWizard wizard(host_, main_);
    wizard.RoomIndex.SetText("0");
    main_.ShowModal(wizard);
  }

  static void Settle() {
    for (int i = 0; i < 3; ++i) {
      QCoreApplication::sendPostedEvents();
      QCoreApplication::processEvents();
    }
  }
  static void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key), modifiers);
    Settle();
  }
  // Next by its access key; the button comes up again before it acts.
  static void GoOn(const MainCWizard& wizard) {
    const int step = wizard.step();
    Press(Qt::Key_N, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return wizard.step() == step + 1; }, 2000));
    Settle();
  }
  // Types into the field with the focus and goes on with Enter.
  static void Enter(const char* text) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClicks(QApplication::focusWidget(), text);
    Press(Qt::Key_Return);
  }
  static void TabTo(const MainCWizard& wizard, const Control& control) {
    for (int i = 0; i < 60 && wizard.focus() != &control; ++i) Press(Qt::Key_Tab);
    ASSERT_EQ(wizard.focus(), &control) << control.name();
  }
  template <typename Widget>
  static const Widget* Named(const Form& form, const QString& name) {
    for (const Widget* widget : form.window()->findChildren<Widget*>()) {
      if (widget->accessibleName() == name) return widget;
    }
    throw Fault("Nothing is called " + name.toStdString());
  }
  static QString CostTag(const Form& form) { return Named<QLabel>(form, "Cost of the item")->text(); }

  SampleShop shop_;
  TrialHost host_;
  MainScreen main_{host_, shop_.folder()};
};

TEST_F(WizardFormTest, AWholeItemByKeyboardAlone) {
  Show([](Form& form, MainCWizard& w) {
    EXPECT_EQ(w.focus(), &w.TxtDescription) << "typing starts at once";
    Enter("Bay");
    TabTo(w, w.InputInInches);
    Press(Qt::Key_Space);
    EXPECT_TRUE(w.InputInInches.on());
    Press(Qt::Key_Tab);
    for (const char* measure : {"100", "54", "2", "80", "10", "8"}) Enter(measure);
    EXPECT_EQ(w.step(), 0) << "Enter in a field goes on to the next one, not to the next step";
    EXPECT_EQ(w.TrackWidthCm.text(), "254") << "and runs the field's own rule";
    GoOn(w);
    EXPECT_EQ(w.focus(), &w.FabricName);
    Enter("Linen");
    EXPECT_EQ(w.FabricName.text(), "Linen") << "the prompt is typed over";
    Enter("");
    Enter("20");
    EXPECT_EQ(CostTag(form), ToQt(CostSoFar(w)));
    EXPECT_NE(CostTag(form), "0.00");
    while (w.step() < MainCWizard::kSteps - 1 && !HasFatalFailure()) GoOn(w);
    EXPECT_EQ(w.focus(), &w.TxtVatRate);
    Enter("20");
    EXPECT_EQ(w.focus(), &w.CmdGetInfo);
    Press(Qt::Key_Return);
    EXPECT_GT(w.CostingGrid.RowCount(), 10);
    EXPECT_EQ(CostTag(form), ToQt(w.GrandTotal.text()));
    TabTo(w, w.CmdFinishTwo);
    Press(Qt::Key_Return);
    EXPECT_TRUE(w.is_closed());
  });
}

// Of the last field of a page, Enter leads to Next and not through it.
TEST_F(WizardFormTest, TheLastFieldOfAStepLeadsToNext) {
  Show([](Form&, MainCWizard& w) {
    GoOn(w);
    for (int i = 0; i < 10 && w.focus() != &w.CmdNext; ++i) Press(Qt::Key_Return);
    EXPECT_FALSE(w.FabricPriceExVat.on()) << "passed, not ticked";
    EXPECT_EQ(w.focus(), &w.CmdNext);
    EXPECT_EQ(w.step(), 1);
    Press(Qt::Key_Return);
    EXPECT_EQ(w.step(), 2);
  });
}

void ExpectDistinctAccessKeys(const Form& form, const std::string& where) {
  std::map<std::string, std::string> owners;
  for (const QAbstractButton* button : form.window()->findChildren<QAbstractButton*>()) {
    const std::string key = button->shortcut().toString().toStdString();
    if (key.empty() || !button->isVisible()) continue;
    const auto [owner, is_new] = owners.emplace(key, button->text().toStdString());
    EXPECT_TRUE(is_new) << key << " is for " << owner->second << " and " << button->text().toStdString()
                        << ", " << where;
  }
  EXPECT_GE(owners.size(), 3U) << where;
}

TEST_F(WizardFormTest, NoTwoButtonsInViewShareAnAccessKey) {
  Show([](Form& form, MainCWizard& w) {
    for (int step = 0; step < MainCWizard::kSteps; ++step) {
      if (step > 0) w.CmdNext.UserPress();
      Settle();
      ExpectDistinctAccessKeys(form, "step " + std::to_string(step + 1));
    }
    w.CmdListOptions.UserPress();
    Settle();
    ExpectDistinctAccessKeys(form, "lists");
  });
}

TEST_F(WizardFormTest, StepsListsAndDrawingTakeTurns) {
  Show([this](Form& form, MainCWizard& w) {
    form.window()->resize(1280, 700);
    Settle();
    const auto* steps = static_cast<StepBar*>(form.WidgetOf(w.StepTabs));
    const QWidget* drawing = Named<QWidget>(form, "Drawing of the window");
    const auto shown = [&form](const Control& control) {
      return qobject_cast<QWidget*>(form.WidgetOf(control))->isVisible();
    };
    EXPECT_TRUE(drawing->isVisible());
    for (int step = 0; step < MainCWizard::kSteps; ++step) {
      if (step > 0) w.CmdNext.UserPress();
      Settle();
      for (int other = 0; other < MainCWizard::kSteps; ++other) {
        EXPECT_EQ(shown(w.StepPanel[other]), other == step) << step << ", " << other;
      }
    }
    EXPECT_EQ(steps->accessibleName(), "Step 7 of 7, Print or Save");
    EXPECT_FALSE(drawing->isVisible());
    steps->pressed(2);
    Settle();
    EXPECT_THAT(host_.messages, testing::Contains("Please use the <<Back and Next>> buttons"));
    EXPECT_EQ(w.step(), 6);
    w.CmdListOptions.UserPress();
    Settle();
    EXPECT_TRUE(shown(w.lstData));
    EXPECT_FALSE(shown(w.TxtVatRate));
    w.CmdWizard.UserPress();
    Settle();
    EXPECT_FALSE(shown(w.lstData));
    EXPECT_TRUE(shown(w.TxtVatRate));
  });
}

}  // namespace
}  // namespace tarvane
