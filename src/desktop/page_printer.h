#pragma once

#include <memory>
#include <vector>

#include "desktop/print_queue.h"
#include "desktop/qt_paper.h"
#include "screen/host.h"

class QPrinter;
class QWidget;

namespace tarvane::desktop {

// The printer that the worker set up, for as long as the program runs.
class PagePrinter {
 public:
  // Both must outlive it. `host` shows how far it has come.
  PagePrinter(Host& host, PaperTools& tools);
  ~PagePrinter();
  PagePrinter(const PagePrinter&) = delete;
  PagePrinter& operator=(const PagePrinter&) = delete;

  // A4 without a printer.
  paper::Paper Sheet();
  // Lets the worker choose the printer and the paper.
  void SetUp(QWidget* parent);
  // As Host::Print. Whatever becomes of it, the next one starts afresh.
  bool Print(const paper::Pages& pages, const PrintOrder& order, QWidget* parent);

 private:
  QPrinter& Printer();
  QPrinter& PrinterForJob();
  void CheckQueue();
  bool Ask(int pages, QWidget* parent);
  bool Send(const paper::Pages& pages);
  bool DrawAll(const paper::Pages& pages, QPainter& painter);
  void CheckSent(bool to_file);

  Host& host_;
  PaperTools& tools_;
  PrintQueue queue_;
  std::unique_ptr<QPrinter> printer_;  // null until it is asked for
};

// The pages (from 0, of so many) in the order in which they are to be drawn for what the printer is set to:
// range, order, and copies where it can't make them itself.
std::vector<int> SheetsOf(const QPrinter& printer, int pages);

}  // namespace tarvane::desktop
