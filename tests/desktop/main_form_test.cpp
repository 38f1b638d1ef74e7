#include <gmock/gmock.h>

#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include "app/show.h"
#include "curtain_wizard/wizard.h"
#include "desktop/shop_test.h"
#include "tools/options.h"

namespace tarvane::desktop {
namespace {

using curtain_wizard::MainCWizard;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using Keep = QtHost::Keep;

// The main window over the sample shop.
class MainFormTest : public ShopTest {
 protected:
  // Runs `story` once the main window is up, with a job open where `opened`; `other` sees the other windows.
  void Tell(
      bool opened, const std::function<void(Form&)>& story,
      const std::function<void(Form&)>& other = [](Form&) {}) {
    Run([&](Form& form) {
      ToFront(form.window());
      if (&form.screen() != &main_) return other(form);
      if (opened) main_.OpenRecord();
      Settle();
      story(form);
    });
  }
  // `text` into the name of the job.
  void Rename(const std::string& text) {
    main_.Name.UserType(text);
    Settle();
  }
  static QAction* Entry(Form& form, const QString& text) {
    for (QAction* action : form.window()->findChildren<QAction*>()) {
      if (action->text().remove('&').startsWith(text)) return action;
    }
    throw Fault("no entry " + FromQt(text));
  }
  static void Choose(Form& form, const QString& text) {
    Entry(form, text)->trigger();
    form.Flush();
  }
  bool Waits() { return main_.Data1.rows().IsEditing(); }
};

TEST_F(MainFormTest, WhatIsTypedIsMarkedAndAskedForBeforeItIsLost) {
  Tell(true, [this](Form& form) {
    EXPECT_TRUE(host_.MayEnd());
    EXPECT_FALSE(form.window()->isWindowModified());
    EXPECT_THAT(Seen(*form.window()), Not(Contains(HasSubstr("Not saved"))));
    Rename("Mrs Blake");
    EXPECT_TRUE(form.window()->isWindowModified());
    EXPECT_TRUE(form.window()->windowTitle().endsWith("[*]"));
    EXPECT_THAT(Seen(*form.window()), Contains(HasSubstr("Not saved")));

    host_.keeps = {Keep::kCancel, Keep::kCancel, Keep::kDrop};
    EXPECT_FALSE(host_.MayEnd());
    form.window()->close();
    EXPECT_FALSE(main_.is_closed());
    EXPECT_TRUE(host_.MayEnd());
    EXPECT_TRUE(Waits());

    host_.keeps = {Keep::kSave};
    EXPECT_TRUE(host_.MayEnd());
    EXPECT_FALSE(Waits());
    EXPECT_EQ(main_.Data1.rows().StoredValue(main_.Data1.rows().FindColumn("Name")), "Mrs Blake");
    EXPECT_TRUE(host_.MayEnd()) << "nothing is left to ask for";
    EXPECT_EQ(host_.unsaved, std::vector<std::string>(4, "the job of Mrs Blake"));

    main_.Name.SetText(std::string(300, 'x'));
    host_.keeps = {Keep::kSave};
    EXPECT_FALSE(host_.MayEnd()) << "where it can't be saved";
    EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("Name")));
    EXPECT_TRUE(Waits());
  });
}

TEST_F(MainFormTest, ChangesAreDiscardedAfterAQuestion) {
  Tell(true, [this](Form& form) {
    const std::string name = main_.Name.text();
    const std::string total = main_.Total.text();
    EXPECT_FALSE(Entry(form, "Discard changes")->isEnabled());
    main_.RoomTotal[1].SetText("50.00");
    Rename("Mrs Blake");
    EXPECT_NE(main_.Total.text(), total);
    ASSERT_TRUE(Entry(form, "Discard changes")->isEnabled());
    Choose(form, "Discard changes");
    EXPECT_EQ(main_.Name.text(), "Mrs Blake");
    host_.answers = {Answer::kYes};
    Choose(form, "Discard changes");
    EXPECT_EQ(main_.Name.text(), name);
    EXPECT_EQ(main_.Total.text(), total);
    EXPECT_FALSE(Waits());
    EXPECT_THAT(Seen(*form.window()), Not(Contains(HasSubstr("Not saved"))));
  });
}

TEST_F(MainFormTest, ThePreferencesAskAsWell) {
  const auto leave = [this](Form& form) {
    auto* options = dynamic_cast<tools::frmOptions*>(&form.screen());
    if (options == nullptr) return;
    options->TxtVat.UserType("17");
    host_.keeps = {Keep::kCancel, Keep::kCancel, Keep::kSave};
    WidgetOf<QPushButton>(form, options->cmdCancel)->click();
    Key(Qt::Key_Escape);
    EXPECT_FALSE(options->is_closed());
    form.window()->close();
    EXPECT_TRUE(options->is_closed());
  };
  Tell(
      false, [this](Form&) { app::ShowScreen<tools::frmOptions>(main_); }, leave);
  EXPECT_EQ(host_.unsaved, std::vector<std::string>(3, "the preferences of the shop"));
  EXPECT_EQ(shop_.Get(setting::kVat), "17");
}

TEST_F(MainFormTest, SavedIsSaidAndGrowsOld) {
  Tell(true, [this](Form& form) {
    auto* save = WidgetOf<QAction>(form, main_.CommandButton("Save Records"));
    const auto* line = WidgetOf<QLabel>(form, main_.Label8[0]);
    Rename("Mrs Blake");
    save->trigger();
    EXPECT_EQ(line->text(), "Saved.");
    EXPECT_EQ(line->foregroundRole(), QPalette::WindowText);
    QTest::keyClick(form.window(), Qt::Key_A);
    EXPECT_EQ(line->foregroundRole(), QPalette::PlaceholderText);
    main_.Label8[0].SetCaption("Room 1 as been Re-Compiled. ");
    Settle();
    EXPECT_EQ(line->foregroundRole(), QPalette::WindowText);
    main_.Name.SetText(std::string(300, 'x'));
    save->trigger();
    EXPECT_NE(line->text(), "Saved.");
    EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("Name"))) << "a fault is told";
    main_.Data1.rows().CancelUpdate();
  });
}

TEST_F(MainFormTest, TheSelectedItemIsTheRowThatStandsOut) {
  Tell(true, [this](Form& form) {
    main_.SSTab2.Select(2);
    Settle();
    const auto* text = WidgetOf<QPlainTextEdit>(form, main_.Text1);
    const QString first = text->toPlainText();
    EXPECT_THAT(FromQt(first), HasSubstr("Item No"));
    EXPECT_TRUE(main_.Text1.text().find('~') != std::string::npos && first.contains('\n'))
        << main_.Text1.text();
    EXPECT_FALSE(first.contains('~') || first.endsWith('\n')) << "marks of lines are shown as lines";
    Focus(WidgetOf(form, main_.RoomItemGrid[0]));
    Key(Qt::Key_Down);
    EXPECT_EQ(main_.RoomItemGrid[0].selected_row(), 2);
    EXPECT_NE(text->toPlainText(), first);
    main_.SSTab1.Select(11);
    Settle();
    EXPECT_EQ(main_.RoomItemGrid[11].RowCount(), 0);
    EXPECT_EQ(text->toPlainText(), "");
  });
}

TEST_F(MainFormTest, WhatIsToComeIsSeenOnDemandOnly) {
  Tell(true, [this](Form& form) {
    const auto menus = [&form] {
      std::string names;
      for (const QAction* action : qobject_cast<QMainWindow*>(form.window())->menuBar()->actions()) {
        if (action->isVisible()) names += FromQt(action->text().remove('&')) + " ";
      }
      return names;
    };
    const auto* payment = WidgetOf<QAction>(form, main_.CommandButton("Payment"));
    for (const bool seen : {false, true, false}) {
      EXPECT_EQ(menus(), seen ? "File Find Data Picture View Tools Reports Windows View Help "
                              : "File Data Reports Windows View Help ");
      EXPECT_EQ(payment->isVisible(), seen);
      Choose(form, "What is to come");
    }
    Choose(form, "What is to come");
  });
}

TEST_F(MainFormTest, DownLeadsFromTheSearchIntoTheList) {
  Tell(false, [this](Form& form) {
    Focus(WidgetOf(form, main_.JobFinder.FabSText));
    Key(Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), WidgetOf(form, main_.QuickFinderGrid));
    Key(Qt::Key_Return);
    EXPECT_TRUE(main_.in_job_mode());
  });
}

// The list keeps nothing for its rows: where each of them stands is reckoned.
TEST_F(MainFormTest, TheListScrollsByRows) {
  Tell(false, [this](Form& form) {
    form.window()->resize(700, 460);
    Settle();
    auto* table = WidgetOf<QTableView>(form, main_.QuickFinderGrid);
    const auto place = [table](int row) {
      return table->visualRect(table->model()->index(row, table->columnAt(40)));
    };
    const auto shown = [&](int row) { return table->viewport()->rect().contains(place(row).center()); };
    const int height = place(0).height();
    const int whole = table->viewport()->height() / height;
    ASSERT_LT(whole, 64);
    Focus(table);
    // A key, the row it leads to, and whether the first one is seen then: a row in view scrolls nothing.
    const std::tuple<Qt::Key, int, bool> cases[] = {
        {Qt::Key_PageDown, whole, false}, {Qt::Key_End, 63, false}, {Qt::Key_Home, 0, true},
        {Qt::Key_Down, 1, true},          {Qt::Key_Up, 0, true},    {Qt::Key_Up, 0, true},
        {Qt::Key_End, 63, false}};
    for (const auto& [key, row, first_shown] : cases) {
      Key(key);
      EXPECT_EQ(table->currentIndex().row(), row);
      EXPECT_TRUE(shown(row)) << row;
      EXPECT_EQ(shown(0), first_shown) << row;
    }
    EXPECT_EQ(table->verticalScrollBar()->value(), 64 - whole);
    EXPECT_EQ(table->indexAt(place(61).center()).row(), 61);
    Click(table->viewport(), place(61).center());
    EXPECT_EQ(table->currentIndex().row(), 61);
    EXPECT_EQ(main_.QuickFinderGrid.selected_row(), 62);
    EXPECT_FALSE(table->indexAt(QPoint(40, height * (whole + 2))).isValid());
  });
}

// From the start to a curtain in a room, by keys alone: a new job, a name, the wizard's seven steps, save.
class KeyboardTest : public ShopTest {
 protected:
  void MakeJob() {
    Key(Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(main_.in_job_mode());
    EXPECT_FALSE(main_.SalesPerson.empty()) << "picked with the Down key";
    ToFront(host_.TopWindow());
    Type("Mrs Keys\n\n1 Tab Lane");
    EXPECT_EQ(main_.Name.text(), "Mrs Keys");
    EXPECT_EQ(main_.Address.text(), "1 Tab Lane") << "Enter goes from field to field";
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    Key(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(main_.SSTab2.selected(), 2);
    ASSERT_NO_FATAL_FAILURE(TabTo(main_.CommandButton("Command1", 0)));
    Key(Qt::Key_Return);
    ToFront(host_.TopWindow());
    EXPECT_EQ(main_.RoomItemGrid[0].RowCount(), 1);
    EXPECT_GT(main_.RoomTotal[0].Number(), 0);
    EXPECT_EQ(main_.GTotal.text(), main_.RoomTotal[0].text());
    Key(Qt::Key_S, Qt::ControlModifier);
    Key(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(main_.in_job_mode());
    ASSERT_NO_FATAL_FAILURE(TabTo(main_.QuickFinderGrid));
    Key(Qt::Key_Home);
    Key(Qt::Key_Return);
    EXPECT_TRUE(main_.in_job_mode());
    EXPECT_EQ(main_.focus(), &main_.Name) << "an opened job is typed into at once";
    EXPECT_EQ(QApplication::focusWidget(), WidgetOf(*host_.forms().back(), main_.Name));
  }

  void MakeCurtain(MainCWizard& wizard) {
    EXPECT_EQ(wizard.focus(), &wizard.TxtDescription) << "typing starts at once";
    Type("Bay\n");
    ASSERT_NO_FATAL_FAILURE(TabTo(wizard.InputInInches));
    Type(" \t");
    EXPECT_TRUE(wizard.InputInInches.on());
    Type("100\n54\n2\n80\n10\n8\n");
    EXPECT_EQ(wizard.step(), 0) << "Enter in a field goes on to the next one, not to the next step";
    EXPECT_EQ(wizard.TrackWidthCm.text(), "254") << "and runs the field's own rule";
    for (int step = 1; step < MainCWizard::kSteps; ++step) {
      Key(Qt::Key_N, Qt::AltModifier);  // the button comes up again before it acts
      ASSERT_TRUE(QTest::qWaitFor([&] { return wizard.step() == step; }, 2000));
      Settle();
      if (step > 1) continue;
      EXPECT_EQ(wizard.focus(), &wizard.FabricName);
      EXPECT_GT(wizard.MetresRequired.Number(), 0);
      Type("Linen\n\n20\n");
      EXPECT_EQ(wizard.FabricName.text(), "Linen") << "the prompt is typed over";
      EXPECT_EQ(wizard.FabricPrice.text(), "20");
    }
    EXPECT_EQ(wizard.focus(), &wizard.TxtVatRate);
    Type("20\n");
    EXPECT_EQ(wizard.focus(), &wizard.CmdGetInfo);
    Type("\n");
    EXPECT_GT(wizard.CostingGrid.RowCount(), 10);
    EXPECT_EQ(wizard.focus(), &wizard.CmdFinishTwo) << "and what comes next is saving";
    Type("\n");
    EXPECT_TRUE(wizard.is_closed());
  }
};

TEST_F(KeyboardTest, AJobWithACurtainNeedsNoMouse) {
  Run([this](Form& form) {
    ToFront(form.window());
    const std::string& name = form.screen().name();
    if (name == "frmSplash") Type("\n");
    if (name == "Form1") MakeJob();
    if (name == "MainCWizard") MakeCurtain(static_cast<MainCWizard&>(form.screen()));
    if (name != "FrmEnterSalesPerson") return;
    Key(Qt::Key_Down);
    Type("\t\n");
  });
  Shop shop(folder_.folder());
  app::MainScreen again(host_, shop);
  host_.OnShown([](Form& form) { form.screen().Close(); });
  again.RunAsMain();
  again.Data1.rows().MoveLast();
  EXPECT_EQ(again.Name.text(), "Mrs Keys");
  EXPECT_THAT(again.RoomItems[0].text(), HasSubstr("CurtainWizard"));
}

}  // namespace
}  // namespace tarvane::desktop
