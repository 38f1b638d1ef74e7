#include <gmock/gmock.h>

#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

#include "curtain_wizard/costing.h"
#include "curtain_wizard/wizard.h"
#include "desktop/shop_test.h"
#include "desktop/step_bar.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

using curtain_wizard::MainCWizard;

class WizardFormTest : public ShopTest {
 protected:
  using Look = std::function<void(Form&, MainCWizard&)>;

  // Runs `look` on the wizard of a new item while its window is shown; `row` of the first room's grid: of
  // that item, which is edited.
  void Show(const Look& look, int row = 0) {
    if (!main_.Data1.HasRow()) Run([](Form&) {});
    host_.OnShown([&](Form& form) {
      if (form.screen().name() != "MainCWizard") return form.screen().Close();
      ToFront(form.window());
      look(form, static_cast<MainCWizard&>(form.screen()));
      form.screen().Close();
    });
    MainCWizard wizard(host_, shop_, main_);
    wizard.RoomIndex.SetText("0");
    if (row > 0) {
      wizard.Txtinfo.SetText(main_.RoomItemGrid[0].Text(row, job::kInfomationColumn));
      wizard.TxtRow.SetText(std::to_string(row));
      wizard.TxtViewOnly.SetText("1");
    }
    main_.ShowModal(wizard);
  }
  int LastRow() const { return static_cast<int>(main_.RoomItemGrid[0].RowCount()); }
  static void Press(Button& button) {
    button.UserPress();
    Settle();
  }
  static void GoTo(MainCWizard& w, int step) {
    while (w.step() < step) w.CmdNext.UserPress();
    Settle();
  }
  // Goes to the last step, and makes the total there.
  static void FinishItem(MainCWizard& w) {
    GoTo(w, MainCWizard::kSteps - 1);
    Press(w.CmdGetInfo);
  }
  static const QWidget* Named(const Form& form, const QString& name) {
    for (const QWidget* widget : form.window()->findChildren<QWidget*>()) {
      if (widget->accessibleName() == name) return widget;
    }
    throw Fault("Nothing is called " + FromQt(name));
  }
  static std::string CostTag(const Form& form) {
    return FromQt(qobject_cast<const QLabel*>(Named(form, "Cost of the item"))->text());
  }
};

// Of the last field of a page, Enter leads to Next and not through it.
TEST_F(WizardFormTest, TheLastFieldOfAStepLeadsToNext) {
  Show([](Form& form, MainCWizard& w) {
    for (int step = 0; step + 1 < MainCWizard::kSteps; ++step) {
      const auto* page = WidgetOf(form, w.StepPanel[step]);
      QWidget* last = nullptr;
      for (QWidget* at = page->nextInFocusChain(); at != page; at = at->nextInFocusChain()) {
        const bool takes = page->isAncestorOf(at) && at->isVisible() && at->isEnabled();
        if (takes && (at->focusPolicy() & Qt::TabFocus) != 0 && at->focusProxy() == nullptr) last = at;
      }
      ASSERT_NE(last, nullptr) << step;
      last->setFocus(Qt::TabFocusReason);
      Settle();
      Key(Qt::Key_Return);
      EXPECT_EQ(w.focus(), &w.CmdNext) << step;
      EXPECT_EQ(w.step(), step);
      Press(w.CmdNext);
    }
    EXPECT_FALSE(w.AutoRoundup.on()) << "passed, not ticked";
  });
}

TEST_F(WizardFormTest, SavingHasKeysAndComesAfterGetInfo) {
  Show([](Form&, MainCWizard& w) {
    GoTo(w, MainCWizard::kSteps - 1);
    Key(Qt::Key_G, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([&] { return w.focus() == &w.CmdFinishTwo; }, 2000));
    Press(w.CmdListOptions);
    Key(Qt::Key_A, Qt::AltModifier);
    QTest::qWait(200);
    EXPECT_FALSE(w.is_closed()) << "here the key adds an entry";
    Press(w.CmdWizard);
    Key(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return w.is_closed(); }, 2000));
  });
  const auto edit = [](Form&, MainCWizard& w) {
    FinishItem(w);
    EXPECT_EQ(w.focus(), &w.CmdUpdateAndClose);
  };
  Show(edit, LastRow());
}

TEST_F(WizardFormTest, AnEditedItemShowsItsSavedPriceUntilItIsWorkedOutAnew) {
  Show([](Form&, MainCWizard& w) {
    w.ExtraLabour.SetText("500");
    FinishItem(w);
    w.CmdFinishTwo.UserPress();
  });
  const std::string saved = main_.RoomItemGrid[0].Text(LastRow(), job::kPriceColumn);
  ASSERT_GT(ParseLeading(saved), 400);
  for (const bool changed : {false, true}) {
    const auto edit = [&](Form& form, MainCWizard& w) {
      EXPECT_EQ(CostTag(form), saved);
      EXPECT_THAT(Seen(*form.window()), testing::Contains("Saved price Inc Vat/Tax"));
      GoTo(w, 5);
      if (changed) w.ExtraLabour.UserType("600");
      Settle();
      EXPECT_EQ(CostTag(form), curtain_wizard::CostSoFar(w));
      FinishItem(w);
      EXPECT_EQ(CostTag(form), w.GrandTotal.text());
      const std::string was = "was " + saved + ", now " + w.GrandTotal.text();
      EXPECT_THAT(Seen(*form.window()), testing::Contains(was).Times(changed ? 1 : 0));
    };
    Show(edit, LastRow());
  }
}

TEST_F(WizardFormTest, AsksBeforeThePreferencesDivideAPrice) {
  struct Case {
    const char* rate;
    const char* fabric;
    const char* trim;
    bool trim_without;
    const char* asked;  // of which price; nullptr: nothing
    const char* answer;
  };
  constexpr Case kCases[] = {
      {"20", "0.00", "0.00", false, nullptr, "Stay"},
      {"0", "24.00", "12.00", true, nullptr, "Stay"},
      {"20", "as last time", "0.00", true, nullptr, "Stay"},
      {"20", "24.00", "12.00", false, "divides the fabric price by", "Stay"},
      {"20", "24.00", "12.00", true, "divides the fabric price and the trim price by", "Stay"},
      {"20", "24.00", "12.00", false, "divides the fabric price by", "Continue"},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.rate) + " " + c.fabric + " " + c.answer);
    Show([&](Form& form, MainCWizard& w) {
      w.cboVAT.SetText(c.rate);
      w.TrimPriceExVat.Set(c.trim_without);
      w.FabricPrice.SetText(c.fabric);
      w.TrimPrice.SetText(c.trim);
      Settle();
      const NextBox box(c.answer);
      WidgetOf<QPushButton>(form, w.CmdCurOptions)->click();
      Settle();
      EXPECT_EQ(box.preset, c.asked == nullptr ? "" : "Stay") << "the safe answer";
      EXPECT_EQ(box.text.contains(c.asked == nullptr ? "divides" : c.asked), c.asked != nullptr);
      const bool went = c.asked == nullptr || std::string_view(c.answer) == "Continue";
      EXPECT_EQ(w.FabricPrice.text() != c.fabric, went && c.asked != nullptr) << "divided";
      EXPECT_EQ(w.focus() == &w.CmdCurOptions, went);
    });
  }
}

TEST_F(WizardFormTest, TheWorkersUnitIsKeptForNewItemsAlone) {
  Show([](Form&, MainCWizard& w) {
    ASSERT_FALSE(w.InputInInches.on());
    FinishItem(w);
    w.CmdFinishTwo.Press();  // in centimetres
  });
  Show([](Form& form, MainCWizard& w) {
    WidgetOf<QAbstractButton>(form, w.InputInInches)->click();
    Settle();
    EXPECT_TRUE(w.InputInInches.on());
  });
  Show([](Form&, MainCWizard& w) {
    EXPECT_TRUE(w.InputInInches.on());
    EXPECT_TRUE(w.TrackWidthIns.enabled()) << "as by a click";
    EXPECT_EQ(w.focus(), &w.TxtDescription);
  });
  Show([](Form&, MainCWizard& w) { EXPECT_FALSE(w.InputInInches.on()); }, LastRow());
}

// The window stays as it is, and what leads on stays in view.
void ExpectRoom(const Form& form, const QSize& size, const std::string& where) {
  SCOPED_TRACE(where);
  const QWidget& window = *form.window();
  EXPECT_EQ(window.size(), size);
  int scrolling = 0;
  for (const QScrollArea* area : window.findChildren<QScrollArea*>()) {
    const QScrollBar* bar = area->verticalScrollBar();
    if (bar->isVisible() && bar->maximum() > 0) ++scrolling;
  }
  EXPECT_LE(scrolling, 1);
  for (const QScrollBar* bar : window.findChildren<QScrollBar*>()) {
    EXPECT_FALSE(bar->orientation() == Qt::Horizontal && bar->isVisible() && bar->maximum() > 0);
  }
  for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    const int right = button->mapTo(&window, QPoint(button->width(), 0)).x();
    EXPECT_TRUE(!button->isVisible() || right <= size.width()) << FromQt(button->text());
  }
  auto& wizard = static_cast<MainCWizard&>(form.screen());
  for (const Control* control : {&wizard.CmdNext, &wizard.CmdClose}) {
    const auto* button = qobject_cast<QWidget*>(form.WidgetOf(*control));
    const QRect place(button->mapTo(&window, QPoint()), button->size());
    EXPECT_TRUE(window.rect().contains(place)) << control->name();
  }
  EXPECT_GE(ExpectDistinctAccessKeys(window, where), 3U);
}

TEST_F(WizardFormTest, StepsAndListsTakeTurnsWithinTheWindow) {
  constexpr std::pair<QSize, int> kCases[] = {{{640, 440}, 11},  {{1020, 560}, 11}, {{1280, 700}, 11},
                                              {{1366, 684}, 11}, {{1360, 720}, 22}, {{1020, 540}, 22}};
  for (const auto& each : kCases) {
    const auto [size, points] = each;
    Show([&](Form& form, MainCWizard& w) {
      SetTextSize({&form}, points);
      form.window()->resize(size);
      Settle();
      const std::string at = std::to_string(size.width()) + " at " + std::to_string(points) + " pt, ";
      const QWidget* drawing = Named(form, "Drawing of the window");
      EXPECT_TRUE(drawing->isVisible() || size.width() != 1280) << at;
      for (int step = 0; step < MainCWizard::kSteps; ++step) {
        GoTo(w, step);
        ExpectRoom(form, size, at + "step " + std::to_string(step + 1));
        EXPECT_FALSE(QApplication::focusWidget()->visibleRegion().isEmpty()) << at << step + 1;
        for (int other = 0; other < MainCWizard::kSteps; ++other) {
          EXPECT_EQ(WidgetOf(form, w.StepPanel[other])->isVisible(), other == step) << step << ", " << other;
        }
      }
      EXPECT_FALSE(drawing->isVisible()) << at;
      auto* steps = static_cast<StepBar*>(form.WidgetOf(w.StepTabs));
      EXPECT_EQ(steps->accessibleName(), "Step 7 of 7, Print or Save");
      steps->pressed(2);
      Settle();
      EXPECT_THAT(host_.messages, testing::Contains("Please use the <<Back and Next>> buttons"));
      EXPECT_EQ(w.step(), 6);
      Press(w.CmdGetInfo);
      ExpectRoom(form, size, at + "total");
      for (const bool lists : {true, false}) {
        Press(lists ? w.CmdListOptions : w.CmdWizard);
        if (lists) Press(w.Lists.CMDLOAD);
        if (lists) Press(w.Lists.CMDADD);
        EXPECT_EQ(WidgetOf(form, w.Lists.lstData)->isVisible(), lists);
        EXPECT_EQ(WidgetOf(form, w.TxtVatRate)->isVisible(), !lists);
        ExpectRoom(form, size, at + (lists ? "lists" : "back from the lists"));
      }
    });
  }
  SetTextSize({}, Theme::kUsualTextSize);
}

}  // namespace
}  // namespace tarvane::desktop
