// desktop_preview: how long the preview of a plain text of 65 pages takes to come up, each next page with its
// drawing, and a PDF file of 1,000 pages beside one that Qt's writer makes of the same texts; and how much
// memory previews of 10 and of 1,000 pages take. Medians and the longest of all.
#include "printing/preview.h"

#include <malloc.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <vector>

#include "desktop/page_widget.h"
#include "desktop/qt_host.h"
#include "desktop/theme.h"
#include "paper/rich_text_pages.h"

namespace tarvane::desktop {
namespace {

constexpr int kLines = 45;  // a page has room for a few more

std::string LineOf(int page, int line) {
  return "Page " + std::to_string(page + 1) + ", line " + std::to_string(line + 1) +
         ": bay window, ivory voile, three widths, lined and turned up by hand.";
}

rich_text::Document TextOf(int pages) {
  std::string text;
  for (int page = 0; page < pages; ++page) {
    if (page > 0) text += '\f';
    for (int line = 0; line < kLines; ++line) text += (line > 0 ? "\n" : "") + LineOf(page, line);
  }
  return rich_text::FromPlainText(text);
}

double Since(const QElapsedTimer& timer) { return static_cast<double>(timer.nsecsElapsed()) / 1e6; }

void Tell(const char* what, std::vector<double> times) {
  std::ranges::sort(times);
  std::printf("%-28s median %8.2f ms, longest %8.2f ms\n", what, times[times.size() / 2], times.back());
}

double MegabytesInUse() {
  malloc_trim(0);
  std::ifstream statm("/proc/self/statm");
  long all = 0;
  long resident = 0;
  statm >> all >> resident;
  return static_cast<double>(resident) * 4096 / (1 << 20);
}

// A time without its drawing would be none.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget* widget) { widget->installEventFilter(this); }
  ~PaintCount() override {
    if (paints_ > 0) return;
    std::fprintf(stderr, "desktop_preview: nothing was drawn\n");
    std::exit(1);
  }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints_;
    return false;
  }

 private:
  int paints_ = 0;
};

class NoHost : public QtHost {
 public:
  void Message(std::string_view, std::string_view text, Icon) override {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
    std::exit(1);
  }
};

double NextPage(PageWidget& widget, printing::frmPreview& preview) {
  const int page = preview.picChild.page();
  const PaintCount paints(widget.viewport());
  QElapsedTimer timer;
  timer.start();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
  while (preview.picChild.page() == page) {
    QCoreApplication::processEvents();
    timer.restart();  // keys that move down the page don't count
    QCoreApplication::sendEvent(&widget, &press);
  }
  QCoreApplication::sendPostedEvents();
  widget.viewport()->repaint();
  return Since(timer);
}

// Opens the preview of the text, walks over some pages, and gives the time until its window was drawn.
double Open(const rich_text::Document& text, std::vector<double>* steps, double* megabytes) {
  NoHost host;
  Screen opener(host, "Opener");
  QElapsedTimer timer;
  double opened = 0;
  host.OnShown([&](Form& form) {
    auto& preview = dynamic_cast<printing::frmPreview&>(form.screen());
    auto& widget = dynamic_cast<PageWidget&>(*form.WidgetOf(preview.picChild));
    if (!QTest::qWaitForWindowExposed(form.window())) std::exit(1);
    widget.viewport()->repaint();
    opened = Since(timer);
    if (steps != nullptr) {
      while (preview.cmdNext.enabled()) steps->push_back(NextPage(widget, preview));
    }
    if (megabytes != nullptr) *megabytes = MegabytesInUse();
    preview.Close();
  });
  timer.start();
  printing::PreviewRichText(opener, text, printing::kPreviewMargins, {});
  return opened;
}

double QtPdf(int pages, const QString& file) {
  QElapsedTimer timer;
  timer.start();
  QPdfWriter writer(file);
  writer.setResolution(1200);
  QPainter painter(&writer);
  painter.setFont(QFont("Arial", 10));
  for (int page = 0; page < pages; ++page) {
    if (page > 0) writer.newPage();
    for (int line = 0; line < kLines; ++line) {
      painter.drawText(QPointF(600, 600 + 200 * line), QString::fromStdString(LineOf(page, line)));
    }
  }
  painter.end();
  return Since(timer);
}

double OurPdf(const rich_text::Document& text, const std::string& file) {
  NoHost host;
  const paper::RichTextPages pages(text, host.TextMeasure(), {}, {70, 70, 70, 70});
  QElapsedTimer timer;
  timer.start();
  host.SavePdf(pages, file, "Bench");
  std::printf("pages %d, ", pages.Count());
  return Since(timer);
}

void Run() {
  double few = 0;
  double many = 0;
  const rich_text::Document ten = TextOf(10);
  Open(ten, nullptr, nullptr);  // fonts and styles are there from now on
  Open(ten, nullptr, &few);
  const rich_text::Document thousand = TextOf(1000);
  Open(thousand, nullptr, &many);
  std::printf("memory with 10 pages %.1f MB, with 1,000 pages %.1f MB: %.2f times\n", few, many, many / few);

  const rich_text::Document usual = TextOf(65);
  std::vector<double> opened;
  std::vector<double> steps;
  for (int i = 0; i < 9; ++i) opened.push_back(Open(usual, i == 0 ? &steps : nullptr, nullptr));
  Tell("open, 65 pages", opened);
  Tell("next page", steps);

  const QTemporaryDir folder;
  for (int i = 0; i < 3; ++i) {
    const double ours = OurPdf(thousand, folder.filePath("ours.pdf").toStdString());
    const double qt = QtPdf(1000, folder.filePath("qt.pdf"));
    std::printf("PDF file of 1,000 pages: ours %.0f ms, Qt's writer %.0f ms: %.2f times\n", ours, qt,
                ours / qt);
  }
}

}  // namespace
}  // namespace tarvane::desktop

int main(int argc, char** argv) {
  using namespace tarvane;  // NOLINT(google-build-using-namespace)
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  desktop::ApplyTheme({});
  desktop::Run();
  return 0;
}
