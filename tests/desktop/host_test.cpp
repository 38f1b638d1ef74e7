#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "app/splash.h"
#include "desktop/page_printer.h"
#include "desktop/program.h"
#include "desktop/trial_host.h"

namespace tarvane {
namespace {

// Presses the button of the box that comes up next, and tells what the box said.
class NextBox {
 public:
  explicit NextBox(QMessageBox::StandardButton button) {
    QTimer::singleShot(0, &timer_, [this, button] { Press(button); });
  }
  QString text;
  QString title;
  QMessageBox::StandardButton preset = QMessageBox::NoButton;

 private:
  void Press(QMessageBox::StandardButton button) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(box, nullptr);
    text = box->text();
    title = box->windowTitle();
    preset = box->standardButton(box->defaultButton());
    if (button == QMessageBox::NoButton) {
      box->close();
    } else {
      box->button(button)->click();
    }
  }
  QTimer timer_;
};

TEST(HostTest, QuestionsHaveTheirPresetAndClosingGivesTheLastAnswer) {
  QtHost host;
  const Question question{
      "Delete Item...", "Are You Sure?\r\nYes?", {Answer::kYes, Answer::kNo}, Answer::kNo, Icon::kWarning};
  {
    const NextBox box(QMessageBox::Yes);
    EXPECT_EQ(host.Ask(question), Answer::kYes);
    EXPECT_EQ(box.text, "Are You Sure?\nYes?");
    EXPECT_EQ(box.title, "Delete Item...");
    EXPECT_EQ(box.preset, QMessageBox::No);
  }
  const NextBox box(QMessageBox::NoButton);
  EXPECT_EQ(host.Ask(question), Answer::kNo);
}

TEST(HostTest, MessagesTakeMarkupAsPlainText) {
  QtHost host;
  const NextBox box(QMessageBox::Ok);
  host.Message("Tarvane", "<b>5 < 6</b>", Icon::kNone);
  EXPECT_EQ(box.text, "<b>5 < 6</b>");
}

TEST(HostTest, AWindowLivesUntilItsScreenIsClosed) {
  TrialHost host;
  frmSplash splash(host);
  bool pressed = false;
  host.OnShown([&](Form& form) {
    EXPECT_TRUE(form.window()->isVisible());
    pressed = true;
    qobject_cast<QPushButton*>(form.WidgetOf(splash.Command1))->click();
  });
  host.RunModal(splash);
  EXPECT_TRUE(pressed);
  EXPECT_TRUE(host.forms().empty());
  EXPECT_TRUE(splash.is_closed());
}

// The second window opens within the first one's click, and both close within the second one's.
TEST(HostTest, WindowsOpenFromWithinClicks) {
  TrialHost host;
  frmSplash first(host);
  frmSplash second(host);
  int most = 0;
  first.lblVersion.OnClicked([] {});
  host.OnShown([&](Form& form) {
    most = std::max<int>(most, static_cast<int>(host.forms().size()));
    if (&form.screen() == &first) {
      form.Act(first.Command1, [&](Control&) { first.ShowModal(second); });
      EXPECT_FALSE(first.is_closed());
      first.Close();
    } else {
      qobject_cast<QPushButton*>(form.WidgetOf(second.Command1))->click();
    }
  });
  host.RunModal(first);
  EXPECT_EQ(most, 2);
}

TEST(HostTest, TheCloseButtonOnlyAsks) {
  class Stubborn : public frmSplash {
   public:
    using frmSplash::frmSplash;
    int asked = 0;

   protected:
    bool MayClose() override { return ++asked > 1; }
  };
  TrialHost host;
  Stubborn screen(host);
  host.OnShown([&](Form& form) {
    form.window()->close();
    EXPECT_TRUE(form.window()->isVisible());
    form.window()->close();
  });
  host.RunModal(screen);
  EXPECT_EQ(screen.asked, 2);
}

TEST(HostTest, AScreenWithoutAWindowIsAFault) {
  TrialHost host;
  class Unknown : public Screen {
   public:
    explicit Unknown(Host& host) : Screen(host, "FrmUnknown") {}
  };
  Unknown screen(host);
  EXPECT_THROW(host.RunModal(screen), Fault);
}

TEST(HostTest, WhatNobodyCanOpenIsAFault) {
  QtHost host;
  EXPECT_THROW(host.Launch("no such thing"), Fault);
}

TEST(HostTest, ClipboardKeepsUnicode) {
  QtHost host;
  host.SetClipboardText("Brontë £5\r\n");
  EXPECT_EQ(host.ClipboardText(), "Brontë £5\r\n");
}

TEST(PagePrinterTest, PrintsEachPageOnASheet) {
  const QTemporaryDir folder;
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(folder.filePath("pages.pdf"));
  PrintOn(printer, {{{{0, "Track"}, {40, "254"}}, {}, {{0, std::string(200, 'w')}}}, {{{0, "second"}}}});
  QFile file(folder.filePath("pages.pdf"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray bytes = file.readAll();
  EXPECT_TRUE(bytes.startsWith("%PDF-"));
  EXPECT_TRUE(bytes.contains("/Count 2"));
}

TEST(ProgramTest, ReadsItsCommandLine) {
  EXPECT_EQ(ParseOptions({}).folder, "");
  const ProgramOptions options = ParseOptions({"--theme", "dark", "/shop", "--text-size", "14"});
  EXPECT_EQ(options.folder, "/shop");
  EXPECT_EQ(options.scheme, ColourScheme::kDark);
  EXPECT_EQ(options.text_size, 14);
  EXPECT_TRUE(ParseOptions({"--benchmark-start"}).benchmark_start);
  EXPECT_EQ(ParseOptions({"--screenshots", "out"}).screenshots, "out");
  for (const std::vector<std::string>& wrong : std::vector<std::vector<std::string>>{{"--theme"},
                                                                                     {"--theme", "blue"},
                                                                                     {"--text-size", "7"},
                                                                                     {"--text-size", "12x"},
                                                                                     {"--what"},
                                                                                     {"a", "b"}}) {
    EXPECT_THROW(ParseOptions(wrong), Fault) << wrong.front();
  }
}

TEST(ThemeTest, ComesBackFromTheWorkersSettings) {
  SaveTheme({ColourScheme::kDark, 15});
  EXPECT_EQ(LoadTheme().scheme, ColourScheme::kDark);
  EXPECT_EQ(LoadTheme().text_size, 15);
  SaveTheme({});
  EXPECT_EQ(LoadTheme().scheme, ColourScheme::kSystem);
}

}  // namespace
}  // namespace tarvane
