// desktop_rich_text_keys: how long the rich text screen takes for a text of 200 pages to come up, and for a
// key in its middle, with its drawing and without Qt's own part. Medians and the longest of all.
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTest>
#include <QTextEdit>
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "desktop/builders.h"
#include "desktop/rich_text_edit.h"
#include "desktop/theme.h"
#include "desktop/windows.h"
#include "support/silent_host.h"

namespace tarvane::desktop {
namespace {

constexpr int kPages = 200;
constexpr int kLines = 50;  // of a page

class Text : public Screen {
 public:
  explicit Text(Host& host) : Screen(host, "Text") {}
  RichTextBox Box{this, "Box"};
};

rich_text::Document TwoHundredPages() {
  std::string text;
  for (int line = 0; line < kPages * kLines; ++line) {
    text += "Line " + std::to_string(line) + " of a letter that is longer than any that was ever sent.\n";
  }
  rich_text::Document document = rich_text::FromPlainText(text);
  for (std::size_t at = 0; at + 20 < document.text.size(); at += 700) {
    rich_text::ChangeStyle(document, {at, at + 20}, {.bold = true});
  }
  return document;
}

double Milliseconds(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

double Key(QTextEdit& edit, int key, const QString& text) {
  QElapsedTimer timer;
  timer.start();
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QCoreApplication::sendEvent(&edit, &press);
  QCoreApplication::sendPostedEvents();
  edit.viewport()->repaint();
  return Milliseconds(timer);
}

void Tell(const char* what, std::vector<double> times) {
  std::ranges::sort(times);
  std::printf("%-28s median %7.3f ms, longest %7.3f ms\n", what, times[times.size() / 2], times.back());
}

void Measure(const char* what, QTextEdit& edit) {
  QTextCursor cursor(edit.document());
  cursor.setPosition(edit.document()->characterCount() / 2);
  edit.setTextCursor(cursor);
  QCoreApplication::processEvents();
  std::vector<double> letters;
  std::vector<double> lines;
  for (int i = 0; i < 200; ++i) {
    letters.push_back(Key(edit, Qt::Key_X, "x"));
    if (i % 10 == 0) lines.push_back(Key(edit, Qt::Key_Return, "\r"));
  }
  Tell((std::string(what) + ", a letter").c_str(), letters);
  Tell((std::string(what) + ", Enter").c_str(), lines);
}

}  // namespace
}  // namespace tarvane::desktop

int main(int argc, char** argv) {
  using namespace tarvane;           // NOLINT(google-build-using-namespace)
  using namespace tarvane::desktop;  // NOLINT(google-build-using-namespace)
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  ApplyTheme({});
  SilentHost host;
  Text screen(host);
  DialogWindow window(nullptr);
  Form form(screen, &window);
  Builder build(form);
  const Piece piece = build.Rich(screen.Box);
  window.setLayout(build.Column({piece.Grow()}).layout);
  window.resize(1000, 700);
  window.show();
  if (!QTest::qWaitForWindowExposed(&window)) return 1;

  const rich_text::Document text = TwoHundredPages();
  QElapsedTimer opening;
  opening.start();
  screen.Box.SetDocument(text);
  form.Flush();
  std::printf("200 pages put in after %.1f ms\n", Milliseconds(opening));
  auto* edit = static_cast<QTextEdit*>(piece.widget);
  edit->viewport()->repaint();
  std::printf("200 pages seen after %.1f ms\n", Milliseconds(opening));
  Measure("rich text box", *edit);
  // The model's part alone.
  QElapsedTimer timer;
  timer.start();
  for (int i = 0; i < 200; ++i) {
    const std::size_t paragraph = screen.Box.document().paragraphs.size() / 2;
    screen.Box.UserReplaceParagraphs(paragraph, paragraph + 1,
                                     rich_text::FromPlainText("a line of a letter"));
  }
  std::printf("of which the model %.3f ms\n", Milliseconds(timer) / 200);

  QTextEdit plain;
  plain.resize(1000, 700);
  plain.show();
  plain.setPlainText(QString::fromStdString(text.text));
  Measure("Qt's editor by itself", plain);
  return 0;
}
