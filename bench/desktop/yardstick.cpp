// A bare window to hold the desktop's start against: a menu, a toolbar and a page of 60 line edits. Prints
// "painted" after its first paint, and its peak memory.
#include <sys/resource.h>

#include <QApplication>
#include <QGridLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolBar>
#include <cstdio>
#include <memory>

namespace {

class PaintWatch : public QObject {
 public:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint && !std::exchange(painted_, true)) QTimer::singleShot(0, Tell);
    return false;
  }

 private:
  static void Tell() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("first paint, peak memory %ld KiB\n", usage.ru_maxrss);
    std::fflush(stdout);
    std::_Exit(0);
  }
  bool painted_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  QMenu* menu = window.menuBar()->addMenu("&File");
  menu->addAction("E&xit");
  window.addToolBar("Tools")->addAction("New");
  auto* tabs = std::make_unique<QTabWidget>().release();
  auto* page = std::make_unique<QWidget>().release();
  auto* grid = std::make_unique<QGridLayout>(page).release();
  for (int i = 0; i < 60; ++i) grid->addWidget(std::make_unique<QLineEdit>().release(), i / 3, i % 3);
  tabs->addTab(page, "Fields");
  window.setCentralWidget(tabs);
  PaintWatch watch;
  window.installEventFilter(&watch);
  window.resize(1366, 768);
  window.show();
  return application.exec();
}
