#include "desktop/start_benchmark.h"

#include <sys/resource.h>
#include <time.h>
#include <unistd.h>

#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>

#include "app/main_screen.h"
#include "desktop/qt_host.h"
#include "desktop/shop_check.h"
#include "shop/shop_lock.h"
#include "text/fault.h"

namespace tarvane::desktop {
namespace {

// From the kernel's account of the process: hundredths of a second.
double MillisecondsSinceStart() {
  std::ifstream file("/proc/self/stat");
  std::string text{std::istreambuf_iterator<char>(file), {}};
  std::istringstream fields(text.substr(text.rfind(')') + 1));
  std::string field;
  for (int i = 0; i < 20; ++i) fields >> field;
  timespec now{};
  clock_gettime(CLOCK_BOOTTIME, &now);
  const double started = std::stod(field) / static_cast<double>(sysconf(_SC_CLK_TCK));
  return (static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9 - started) * 1000;
}

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
    std::printf("first paint %.0f ms, peak memory %ld KiB\n", MillisecondsSinceStart(), usage.ru_maxrss);
    std::fflush(stdout);
    std::_Exit(0);
  }

  bool painted_ = false;
};

}  // namespace

int BenchmarkStart(const std::filesystem::path& folder) {
  QtHost host;
  PaintWatch watch;
  host.OnShown([&watch](Form& form) {
    if (form.screen().name() == "frmSplash") {
      form.screen().Close();
    } else {
      form.window()->installEventFilter(&watch);
      form.window()->update();
    }
  });
  const std::optional<ShopLock> lock = ShopLock::Take(folder);
  Shop shop(folder);
  if (const auto trouble = FindTrouble(shop)) throw Fault(trouble->why);
  app::MainScreen screen(host, shop);
  screen.RunAsMain();
  return 0;
}

}  // namespace tarvane::desktop
