#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>

#include "app/main_screen.h"
#include "curtain_wizard/wizard.h"
#include "desktop/sample_shop.h"
#include "desktop/trial_host.h"

namespace tarvane {
namespace {

using testing::HasSubstr;

// A worker without a mouse: all that she does is keys to the window on top.
class Typist {
 public:
  explicit Typist(TrialHost& host) : host_(host) {}

  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(Target(), static_cast<Qt::Key>(key), modifiers);
    Settle();
  }
  void Type(const char* text) {
    for (const char* letter = text; *letter != 0; ++letter) {
      QTest::keyClick(Target(), *letter);
      Settle();
    }
  }
  // Tabs on until the control has the keyboard.
  bool TabTo(const Control& control) {
    const Form& form = *host_.forms().back();
    for (int i = 0; i < 200; ++i) {
      if (form.WidgetOf(control) != nullptr && Holds(form.WidgetOf(control))) return true;
      Key(Qt::Key_Tab);
    }
    return false;
  }
  static void Settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }

 private:
  // No window manager brings the window on top to the front.
  QWidget* Target() const {
    if (QApplication::activeWindow() != host_.TopWindow()) {
      QApplication::setActiveWindow(host_.TopWindow());
      Settle();
    }
    QWidget* focus = QApplication::focusWidget();
    return focus != nullptr ? focus : host_.TopWindow();
  }
  static bool Holds(QObject* object) {
    const auto* widget = qobject_cast<const QWidget*>(object);
    return widget != nullptr && widget->isVisible() && widget->hasFocus();
  }
  TrialHost& host_;
};

// From the start to a curtain in a room, by keys alone: a new job, a name, the wizard's measurements, its
// seven steps, save.
class KeyboardTest : public testing::Test {
 protected:
  void Visit(Form& form) {
    QApplication::setActiveWindow(form.window());
    Typist::Settle();
    const std::string& name = form.screen().name();
    if (name == "frmSplash") {
      typist_.Key(Qt::Key_Return);
    } else if (name == "Form1") {
      MakeJob();
      main_.Close();
    } else if (name == "FrmEnterSalesPerson") {
      typist_.Key(Qt::Key_Down);
      typist_.Key(Qt::Key_Tab);
      typist_.Key(Qt::Key_Return);
    } else if (name == "MainCWizard") {
      MakeCurtain(static_cast<MainCWizard&>(form.screen()));
    }
  }

  void MakeJob() {
    typist_.Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(main_.in_job_mode());
    EXPECT_FALSE(main_.SalesPerson.empty()) << "picked with the Down key";
    typist_.Type("Mrs Keys");
    EXPECT_EQ(main_.Name.text(), "Mrs Keys");
    typist_.Key(Qt::Key_Return);
    typist_.Key(Qt::Key_Return);
    typist_.Type("1 Tab Lane");
    EXPECT_EQ(main_.Address.text(), "1 Tab Lane") << "Enter goes from field to field";
    typist_.Key(Qt::Key_PageDown, Qt::ControlModifier);
    typist_.Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(main_.SSTab2.selected(), 2);
    ASSERT_TRUE(typist_.TabTo(main_.CommandButton("Command1", 0)));
    typist_.Key(Qt::Key_Return);
    EXPECT_EQ(main_.RoomItemGrid[0].RowCount(), 1);
    EXPECT_GT(main_.RoomTotal[0].Number(), 0);
    EXPECT_EQ(main_.GTotal.text(), main_.RoomTotal[0].text());
    typist_.Key(Qt::Key_S, Qt::ControlModifier);
    typist_.Key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(main_.in_job_mode());
    ASSERT_TRUE(typist_.TabTo(main_.QuickFinderGrid));
    typist_.Key(Qt::Key_Home);
    typist_.Key(Qt::Key_Return);
    EXPECT_TRUE(main_.in_job_mode());
    EXPECT_EQ(main_.focus(), &main_.Name) << "an opened job is typed into at once";
    EXPECT_EQ(QApplication::focusWidget(), host_.forms().back()->WidgetOf(main_.Name));
  }

  void Enter(const TextField& field, const char* text) {
    ASSERT_TRUE(typist_.TabTo(field)) << field.name();
    typist_.Key(Qt::Key_A, Qt::ControlModifier);
    typist_.Type(text);
    EXPECT_EQ(field.text(), text) << field.name();
  }

  void MakeCurtain(MainCWizard& wizard) {
    if (!wizard.TrackWidthIns.enabled()) {
      ASSERT_TRUE(typist_.TabTo(wizard.InputInInches));
      typist_.Key(Qt::Key_Space);
    }
    Enter(wizard.TrackWidthIns, "100");
    Enter(wizard.FinishedLengthIns, "80");
    Enter(wizard.PatternRepeatIns, "10");
    Press(wizard.CmdNext);
    EXPECT_EQ(wizard.step(), 1);
    EXPECT_GT(wizard.MetresRequired.Number(), 0);
    Enter(wizard.FabricPrice, "20.00");
    for (int step = 2; step < MainCWizard::kSteps; ++step) {
      Press(wizard.CmdNext);
      EXPECT_EQ(wizard.step(), step);
    }
    if (wizard.CmdGetInfo.enabled()) Press(wizard.CmdGetInfo);
    Press(wizard.CmdFinishTwo);
    EXPECT_TRUE(wizard.is_closed());
    if (!wizard.is_closed()) wizard.Close();
  }

  void Press(const Button& button) {
    ASSERT_TRUE(typist_.TabTo(button)) << button.name();
    typist_.Key(Qt::Key_Return);
  }

  SampleShop shop_;
  TrialHost host_;
  Typist typist_{host_};
  MainScreen main_{host_, shop_.folder()};
};

TEST_F(KeyboardTest, AJobWithACurtainNeedsNoMouse) {
  host_.OnShown([this](Form& form) { Visit(form); });
  main_.RunAsMain();
  MainScreen again(host_, shop_.folder());
  host_.OnShown([](Form& form) { form.screen().Close(); });
  again.RunAsMain();
  again.Data1.rows().MoveLast();
  EXPECT_EQ(again.Name.text(), "Mrs Keys");
  EXPECT_THAT(again.RoomItems[0].text(), HasSubstr("CurtainWizard"));
}

}  // namespace
}  // namespace tarvane
