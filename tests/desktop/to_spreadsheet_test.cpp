#include <gmock/gmock.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QTableView>
#include <QTemporaryDir>
#include <QTimer>
#include <fstream>

#include "desktop/shop_test.h"
#include "desktop/shown_form.h"
#include "store/data_files.h"

namespace tarvane::desktop {
namespace {

using testing::ElementsAre;

class TableMenuTest : public TrialTest {
 protected:
  TableMenuTest() {
    screen_.Rows.SetHeadings({"Line", "Price", "Description"});
    screen_.Rows.SetRows({{"1", "2.50", "Voile"}, {"2", "3.75", "Pole"}});
    TableLook look{{{"Description", "What", 20}, {"Price", "", 8, true}}, "Description"};
    look.name = "Room items";
    Show({build_.Table(screen_.Rows, look)});
    table_ = Of<QTableView>(screen_.Rows);
    StartAt(screen_.Rows);
  }
  // Opens the menu at a row (-1: by key, where the worker is) and presses a letter of it.
  void Choose(int row, Qt::Key letter) {
    QTimer::singleShot(0, table_, [letter] {
      QWidget* menu = QApplication::activePopupWidget();
      ASSERT_NE(menu, nullptr);
      QTest::keyClick(menu, letter);
    });
    const bool by_key = row < 0;
    const QPoint at = by_key ? QPoint() : table_->visualRect(table_->model()->index(row, 1)).center();
    if (!by_key) QTest::mousePress(table_->viewport(), Qt::RightButton, {}, at);
    QContextMenuEvent event(by_key ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse, at,
                            table_->viewport()->mapToGlobal(at));
    QApplication::sendEvent(table_->viewport(), &event);
    Settle();
  }
  QTableView* table_ = nullptr;
};

TEST_F(TableMenuTest, OpensAndCopiesWhereTheMouseIs) {
  Choose(1, Qt::Key_R);
  EXPECT_EQ(QApplication::clipboard()->text(), "Pole\t3.75");
  EXPECT_EQ(table_->currentIndex().row(), 0) << "what is marked is the screen's row again";
  Choose(1, Qt::Key_C);
  EXPECT_EQ(QApplication::clipboard()->text(), "3.75");
  Choose(1, Qt::Key_O);
  EXPECT_EQ(screen_.log.back(), "open 2");
}

TEST_F(TableMenuTest, TheShownColumnsGoToASpreadsheet) {
  const QTemporaryDir folder;
  const std::string file = FromQt(folder.filePath("room.csv"));
  host_.files = {file};
  Choose(-1, Qt::Key_S);
  EXPECT_EQ(ReadFile(file), "\uFEFFWhat,Price\r\nVoile,2.50\r\nPole,3.75\r\n");
  EXPECT_THAT(host_.suggestions, ElementsAre("Room items 2026-03-09.xlsx"));
}

// Types a name into the dialog that comes up next, chooses a kind of file, and presses Save.
std::optional<std::filesystem::path> Save(TrialHost& host, const QString& name, const QString& kind) {
  QTimer::singleShot(0, qApp, [name, kind] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->selectNameFilter(kind);
    dialog->findChild<QLineEdit*>()->setText(name);
    // A second time where the question was answered with no.
    QTimer::singleShot(0, dialog, [dialog] { QTimer::singleShot(0, dialog, &QDialog::reject); });
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
  });
  return host.ChooseFile(FileChoice::kSave, "Save",
                         "Spreadsheet (*.xlsx)|*.xlsx|Comma separated values (*.csv)|*.csv", "List.xlsx");
}

TEST(ChooseFileTest, AddsTheEndingOfTheKindAndAsksAboutTheRealName) {
  const QTemporaryDir folder;
  TrialHost host;
  const QString xlsx = "Spreadsheet (*.xlsx)";
  const QString csv = "Comma separated values (*.csv)";
  const auto path = [&](const char* name) { return folder.filePath(name); };
  const std::tuple<const char*, QString, const char*> cases[] = {{"one", xlsx, "one.xlsx"},
                                                                 {"one", csv, "one.csv"},
                                                                 {"one.CSV", xlsx, "one.CSV"},
                                                                 {"one.xlsx", csv, "one.xlsx"},
                                                                 {"1.12.2026", csv, "1.12.2026.csv"}};
  for (const auto& [typed, kind, real] : cases) {
    const auto chosen = Save(host, path(typed), kind);
    ASSERT_TRUE(chosen) << typed;
    EXPECT_EQ(*chosen, FromQt(path(real)));
  }
  EXPECT_THAT(host.messages, testing::IsEmpty());
  std::ofstream(FromQt(path("there.xlsx"))) << "former";
  EXPECT_FALSE(Save(host, path("there"), xlsx));
  EXPECT_THAT(host.messages, ElementsAre(testing::HasSubstr("there.xlsx already exists")));
  host.answers = {Answer::kYes};
  EXPECT_TRUE(Save(host, path("there"), xlsx));
}

TEST(ProgressTest, ComesUpAfterASecondAndStops) {
  QtHost host;
  EXPECT_TRUE(host.ShowProgress("Writing", 1, 4));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  QTest::qSleep(1010);
  EXPECT_TRUE(host.ShowProgress("Writing", 2, 4));
  QWidget* window = QApplication::activeModalWidget();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(window->findChild<QProgressBar*>()->value(), 500);
  window->findChild<QPushButton*>()->click();
  EXPECT_FALSE(host.ShowProgress("Writing", 3, 4));
  EXPECT_TRUE(window->isVisible()) << "until the work has ended";
  host.EndProgress();
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(host.ShowProgress("Writing", 1, 4)) << "another work";
}

}  // namespace
}  // namespace tarvane::desktop
