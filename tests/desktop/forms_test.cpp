#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QWidget>
#include <cmath>

#include "app/main_screen.h"
#include "app/splash.h"
#include "curtain_wizard/frm_preferences.h"
#include "curtain_wizard/wizard.h"
#include "desktop/form_table.h"
#include "desktop/sample_shop.h"
#include "desktop/theme.h"
#include "desktop/trial_host.h"
#include "desktop/windows.h"
#include "tools/enter_sales_person.h"
#include "tools/list_admin.h"
#include "tools/options.h"

namespace tarvane {
namespace {

std::string Called(const Control& control) {
  return control.index() < 0 ? control.name() : control.name() + "(" + std::to_string(control.index()) + ")";
}

class FormsTest : public testing::Test {
 protected:
  // Builds the whole form of the screen in a window, unshown.
  void Build(Screen& screen, const std::function<void(Form&)>& look) {
    const FormEntry* entry = FindForm(screen.name());
    ASSERT_NE(entry, nullptr) << screen.name();
    MainWindow main;
    DialogWindow dialog(nullptr);
    const bool is_main = screen.name() == "Form1";
    Form form(screen, is_main ? static_cast<QWidget*>(&main) : &dialog);
    entry->build(form);
    form.BuildAll();
    look(form);
  }

  void EveryControlHasAPlace(Screen& screen) {
    Build(screen, [&screen](Form& form) {
      for (const Control* control : screen.controls()) {
        // A panel is but a switch; what stands in it is seen.
        if (control->never_shown() || dynamic_cast<const Panel*>(control) != nullptr) continue;
        EXPECT_NE(form.WidgetOf(*control), nullptr) << screen.name() << " shows no " << Called(*control);
      }
    });
  }

  SampleShop shop_;
  TrialHost host_;
  MainScreen main_{host_, shop_.folder()};
};

TEST_F(FormsTest, EveryControlHasAPlace) {
  frmSplash splash(host_);
  frmOptions options(host_, main_);
  FrmListAdmin lists(host_, shop_.folder());
  FrmEnterSalesPerson person(host_, main_);
  MainCWizard wizard(host_, main_);
  FrmPreferences preferences(host_, wizard);
  for (Screen* screen :
       std::initializer_list<Screen*>{&main_, &splash, &options, &lists, &person, &wizard, &preferences}) {
    EveryControlHasAPlace(*screen);
  }
}

// What a person can see must also be reached by one without a mouse.
TEST_F(FormsTest, EveryFieldAndButtonIsReachedWithTab) {
  MainCWizard wizard(host_, main_);
  frmOptions options(host_, main_);
  for (Screen* screen : std::initializer_list<Screen*>{&main_, &wizard, &options}) {
    Build(*screen, [screen](Form& form) {
      for (const Control* control : screen->controls()) {
        const auto* widget = qobject_cast<const QWidget*>(form.WidgetOf(*control));
        if (widget == nullptr || dynamic_cast<const Panel*>(control) != nullptr) continue;
        if (qobject_cast<const QLabel*>(widget) != nullptr) continue;
        // The wizard's steps are walked with Back and Next.
        if (control->name() == "StepTabs") continue;
        EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus) << screen->name() << " " << Called(*control);
      }
    });
  }
}

// At the usual size of the text a small laptop's screen holds every window.
TEST_F(FormsTest, WindowsFitASmallScreen) {
  std::vector<std::string> seen;
  host_.OnShown([&](Form& form) {
    const std::string& name = form.screen().name();
    if (name == "Form1") {
      main_.OpenRecord();
      for (int page = 0; page < 4; ++page) {
        main_.SSTab2.Select(page);
        form.Flush();
      }
    }
    seen.push_back(name);
    const QSize least = form.window()->minimumSizeHint();
    EXPECT_LE(least.width(), 1366) << name;
    EXPECT_LE(least.height(), 740) << name;
    form.screen().Close();
  });
  main_.RunAsMain();
  MainCWizard wizard(host_, main_);
  main_.ShowModal(wizard);
  frmOptions options(host_, main_);
  main_.ShowModal(options);
  FrmListAdmin lists(host_, shop_.folder());
  main_.ShowModal(lists);
  EXPECT_THAT(seen, testing::ElementsAre("frmSplash", "Form1", "MainCWizard", "frmOptions", "FrmListAdmin"));
}

double Luminance(const QColor& colour) {
  const auto part = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(ThemeTest, TextsReadWellInLightAndDark) {
  constexpr std::pair<QPalette::ColorRole, QPalette::ColorRole> kPairs[] = {
      {QPalette::WindowText, QPalette::Window},         {QPalette::Text, QPalette::Base},
      {QPalette::Text, QPalette::AlternateBase},        {QPalette::ButtonText, QPalette::Button},
      {QPalette::PlaceholderText, QPalette::Window},    {QPalette::PlaceholderText, QPalette::ToolTipBase},
      {QPalette::HighlightedText, QPalette::Highlight}, {QPalette::ToolTipText, QPalette::ToolTipBase}};
  const Theme before = CurrentTheme();
  for (const ColourScheme scheme : {ColourScheme::kLight, ColourScheme::kDark}) {
    ApplyTheme({scheme});
    const QPalette palette = QApplication::palette();
    for (const auto& [text, ground] : kPairs) {
      EXPECT_GE(Contrast(palette.color(text), palette.color(ground)), 4.5)
          << "roles " << text << " on " << ground << (scheme == ColourScheme::kDark ? ", dark" : ", light");
    }
  }
  ApplyTheme(before);
}

}  // namespace
}  // namespace tarvane
