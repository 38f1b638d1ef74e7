// desktop_finder_grid FOLDER: how long the finder's grid, the products' list and the accessories' quick list
// take, over the shop in FOLDER, for a page down, a row down, and to the end and back, each with its drawing;
// and how long the windows of the two take to come up. Medians and the longest of all.
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTableView>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "app/main_screen.h"
#include "app/show.h"
#include "catalogues/accessories.h"
#include "catalogues/products.h"
#include "desktop/qt_host.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

// A time without its drawing would be none.
class PaintCount : public QObject {
 public:
  explicit PaintCount(int& paints) : paints_(paints) {}
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++paints_;
    return false;
  }

 private:
  int& paints_;
};

double Press(QTableView& table, Qt::Key key) {
  int paints = 0;
  PaintCount count(paints);
  table.viewport()->installEventFilter(&count);
  QElapsedTimer timer;
  timer.start();
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QCoreApplication::sendEvent(&table, &press);
  QCoreApplication::sendPostedEvents();
  if (paints == 0) table.viewport()->repaint();
  const double time = static_cast<double>(timer.nsecsElapsed()) / 1e6;
  if (paints == 0) {
    std::fprintf(stderr, "desktop_finder_grid: nothing was drawn\n");
    std::exit(1);
  }
  return time;
}

void Tell(const char* what, std::vector<double> times) {
  std::ranges::sort(times);
  std::printf("%-12s median %6.2f ms, longest %6.2f ms\n", what, times[times.size() / 2], times.back());
}

void Measure(QTableView& table) {
  const auto series = [&table](const char* what, int count, Qt::Key key, Qt::Key back) {
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
      times.push_back(Press(table, key));
      if (back != Qt::Key_unknown) Press(table, back);
    }
    Tell(what, std::move(times));
  };
  series("row down", 200, Qt::Key_Down, Qt::Key_unknown);
  series("page down", 200, Qt::Key_PageDown, Qt::Key_unknown);
  series("to the end", 50, Qt::Key_End, Qt::Key_Home);
  series("to the start", 50, Qt::Key_Home, Qt::Key_End);
  std::printf("rows %d\n", table.model()->rowCount());
}

}  // namespace
}  // namespace tarvane::desktop

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "desktop_finder_grid FOLDER\n");
    return 2;
  }
  using namespace tarvane;  // NOLINT(google-build-using-namespace)
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  desktop::ApplyTheme({});
  desktop::QtHost host;
  Shop shop(argv[1]);
  app::MainScreen screen(host, shop);
  QElapsedTimer opening;
  const auto measure = [&](const char* what, desktop::Form& form, const Control& list) {
    std::printf("%s\n", what);
    if (&form.screen() != &screen) {
      std::printf("window up after %.1f ms\n", static_cast<double>(opening.nsecsElapsed()) / 1e6);
    }
    form.window()->setWindowState(Qt::WindowNoState);
    form.window()->resize(1366, 768);
    if (!QTest::qWaitForWindowExposed(form.window())) std::exit(1);
    desktop::Measure(*qobject_cast<QTableView*>(form.WidgetOf(list)));
  };
  host.OnShown([&](desktop::Form& form) {
    Screen& shown = form.screen();
    if (&shown == &screen) {
      measure("the finder", form, screen.QuickFinderGrid);
      opening.start();
      app::ShowScreen<catalogues::FrmFabricDatabase2>(screen);
      opening.start();
      app::ShowScreen<catalogues::FrmItemsDatabase>(screen);
    } else if (auto* products = dynamic_cast<catalogues::FrmFabricDatabase2*>(&shown)) {
      measure("products", form, products->MSFlexGrid1);
    } else if (auto* accessories = dynamic_cast<catalogues::FrmItemsDatabase*>(&shown)) {
      accessories->Quick.Command1.UserPress();
      measure("quick list of the accessories", form, accessories->Quick.lstTitles);
    }
    shown.Close();
  });
  screen.RunAsMain();
  return 0;
}
