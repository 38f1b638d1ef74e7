// desktop_work_sheet: how long a work sheet of twelve rooms of 20 curtains takes from the press of its button
// to the preview with its first page drawn, offscreen, without and with the drawings. Medians and the longest
// of all; at most 150 ms are meant to be kept.
#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "app/main_screen.h"
#include "app/show.h"
#include "desktop/qt_host.h"
#include "desktop/theme.h"
#include "printing/preview.h"
#include "printing/print_db.h"
#include "printing/printing_options.h"
#include "support/work_sheet_job.h"

namespace tarvane::desktop {
namespace {

constexpr int kRounds = 15;

class WorkSheets {
 public:
  explicit WorkSheets(printing::FrmPrinting& screen) : screen_(screen) {}

  void Tell(const char* what, bool drawings) {
    screen_.CheckDrawings.Set(drawings);
    times_.clear();
    // The first one also loads fonts.
    for (int round = 0; round <= kRounds; ++round) {
      timer_.start();
      screen_.Command2.Press();
    }
    times_.erase(times_.begin());
    if (times_.size() != kRounds) {
      std::fprintf(stderr, "desktop_work_sheet: the preview didn't come up\n");
      std::exit(1);
    }
    std::ranges::sort(times_);
    std::printf("%-20s median %6.1f ms, longest %6.1f ms\n", what, times_[times_.size() / 2], times_.back());
  }

  void Shown(Form& form) {
    if (auto* text = dynamic_cast<printing::FrmPrintDB*>(&form.screen())) {
      text->CmdPreviewPrint.Press();
    } else if (dynamic_cast<printing::frmPreview*>(&form.screen()) != nullptr) {
      if (!QTest::qWaitForWindowExposed(form.window())) std::exit(1);
      form.Flush();
      form.window()->repaint();
      times_.push_back(static_cast<double>(timer_.nsecsElapsed()) / 1e6);
    }
  }

 private:
  printing::FrmPrinting& screen_;
  QElapsedTimer timer_;
  std::vector<double> times_;
};

}  // namespace
}  // namespace tarvane::desktop

int main(int argc, char** argv) {
  using namespace tarvane;  // NOLINT(google-build-using-namespace)
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  desktop::ApplyTheme({});
  const ShopFolder folder;
  folder.AddSettings();
  folder.AddRow("TblLetters", {});
  folder.AddJob(JobOfCurtains(20));
  desktop::QtHost host;
  Shop shop(folder.path());
  app::MainScreen screen(host, shop);
  printing::FrmPrinting printing(host, shop, screen);
  desktop::WorkSheets work_sheets(printing);
  host.OnShown([&](desktop::Form& form) {
    Screen& shown = form.screen();
    if (&shown == &screen) {
      screen.ShowModal(printing);
    } else if (&shown == &printing) {
      work_sheets.Tell("without drawings", false);
      work_sheets.Tell("with drawings", true);
    } else {
      work_sheets.Shown(form);
    }
    shown.Close();
  });
  screen.RunAsMain();
  return 0;
}
