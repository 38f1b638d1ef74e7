#include "desktop/page_printer.h"

#include <QFile>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <optional>

#include "desktop/text.h"
#include "screen/busy.h"
#include "screen/screen.h"
#include "text/fault.h"

namespace tarvane::desktop {
namespace {

constexpr char kNoPrinter[] =
    "There is no printer. Add one in the system's settings and print again, or save the pages as PDF.";

bool IsPrinter(const QPrinter& printer) { return printer.outputFormat() == QPrinter::NativeFormat; }

std::string Named(const QPrinter& printer) { return "The printer \"" + FromQt(printer.printerName()) + "\""; }

// 1 where the pages fit the printer's sheet, less where they were made for a larger one.
double FitOf(const paper::Size& made_for, const QSizeF& sheet) {
  constexpr double kSame = 3;  // points: sheets of one name differ by that much
  const double width = made_for.width > sheet.width() + kSame ? sheet.width() / made_for.width : 1;
  const double height = made_for.height > sheet.height() + kSame ? sheet.height() / made_for.height : 1;
  return std::min(width, height);
}

}  // namespace

PagePrinter::PagePrinter(Host& host, PaperTools& tools) : host_(host), tools_(tools) {}
PagePrinter::~PagePrinter() = default;

QPrinter& PagePrinter::Printer() {
  if (!printer_) {
    printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer_->setFullPage(true);
  }
  return *printer_;
}

// One may have been added since.
QPrinter& PagePrinter::PrinterForJob() {
  if (printer_ && !IsPrinter(*printer_)) printer_.reset();
  if (!IsPrinter(Printer())) throw Fault(kNoPrinter);
  return *printer_;
}

paper::Paper PagePrinter::Sheet() {
  const QPrinter& printer = Printer();
  if (!IsPrinter(printer)) return {};
  QPageLayout layout = printer.pageLayout();
  layout.setUnits(QPageLayout::Point);
  const QSizeF size = layout.fullRect(QPageLayout::Point).size();
  if (!(size.width() > 0 && size.height() > 0)) return {};
  const QMarginsF edges = layout.minimumMargins();
  return {{size.width(), size.height()}, {edges.left(), edges.top(), edges.right(), edges.bottom()}};
}

void PagePrinter::SetUp(QWidget* parent) {
  QPrinter& printer = PrinterForJob();
  QPrintDialog dialog(&printer, parent);
  if (dialog.exec() != QDialog::Accepted) return;
  // Where the worker chose a file, that held for one job at most.
  printer.setOutputFileName({});
  QPageSetupDialog(&printer, parent).exec();
}

bool PagePrinter::Ask(int pages, QWidget* parent) {
  QPrintDialog dialog(printer_.get(), parent);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  dialog.setOption(QAbstractPrintDialog::PrintCollateCopies);
  dialog.setMinMax(1, pages);
  dialog.setFromTo(1, pages);
  dialog.setPrintRange(QAbstractPrintDialog::AllPages);
  return dialog.exec() == QDialog::Accepted;
}

void PagePrinter::CheckQueue() {
  if (!IsPrinter(*printer_)) return;  // into a file
  const std::string name = Named(*printer_);
  const QPrinterInfo info = QPrinterInfo::printerInfo(printer_->printerName());
  if (info.isNull()) {
    printer_.reset();
    throw Fault(name + " isn't there any more. Choose another one and print again.");
  }
  if (info.state() == QPrinter::Error) {
    throw Fault(name + " is stopped. Start it again in the system's settings, or choose another one.");
  }
}

bool PagePrinter::Print(const paper::Pages& pages, const PrintOrder& order, QWidget* parent) {
  QPrinter& printer = PrinterForJob();
  printer.setDocName(ToQt(order.title.empty() ? kProgramTitle : std::string_view(order.title)));
  printer.setCopyCount(std::max(1, order.copies));
  printer.setPrintRange(QPrinter::AllPages);
  printer.setFromTo(0, 0);
  const paper::Size& sheet = pages.paper().size;
  printer.setPageOrientation(sheet.width > sheet.height ? QPageLayout::Landscape : QPageLayout::Portrait);
  if (order.ask && !Ask(pages.Count(), parent)) return false;
  CheckQueue();
  const auto back_to_printer = [](QPrinter* used) { used->setOutputFileName({}); };
  const std::unique_ptr<QPrinter, decltype(back_to_printer)> in_use(printer_.get(), back_to_printer);
  return Send(pages);
}

std::vector<int> SheetsOf(const QPrinter& printer, int pages) {
  std::vector<int> chosen;
  const QPageRanges ranges = printer.pageRanges();
  const bool all = printer.printRange() != QPrinter::PageRange || ranges.isEmpty();
  for (int page = 0; page < pages; ++page) {
    if (all || ranges.contains(page + 1)) chosen.push_back(page);
  }
  if (printer.pageOrder() == QPrinter::LastPageFirst) std::ranges::reverse(chosen);
  const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
  std::vector<int> sheets;
  const auto repeat = [&](auto begin, auto end) {
    for (int copy = 0; copy < copies; ++copy) sheets.insert(sheets.end(), begin, end);
  };
  if (printer.collateCopies()) {
    repeat(chosen.begin(), chosen.end());
  } else {
    for (auto page = chosen.begin(); page != chosen.end(); ++page) repeat(page, page + 1);
  }
  return sheets;
}

bool PagePrinter::Send(const paper::Pages& pages) {
  const QString file = printer_->outputFileName();
  QPainter painter;
  if (!painter.begin(printer_.get())) {
    if (!file.isEmpty()) throw Fault("The file " + FromQt(file) + " can't be written.");
    throw Fault(Named(*printer_) + " can't be started. Choose another one and print again.");
  }
  bool drawn = false;
  const auto keep_back = [&] {
    const PrintQueue::KeptBack nowhere(queue_);
    printer_->abort();
    painter.end();
    if (!file.isEmpty()) QFile::remove(file);
  };
  try {
    drawn = DrawAll(pages, painter);
  } catch (...) {
    keep_back();
    throw;
  }
  if (!drawn) {
    keep_back();
    return false;
  }
  painter.end();
  CheckSent(!file.isEmpty());
  return true;
}

// False where the worker stopped it.
bool PagePrinter::DrawAll(const paper::Pages& pages, QPainter& painter) {
  const std::vector<int> sheets = SheetsOf(*printer_, pages.Count());
  if (sheets.empty())
    throw Fault("There are no such pages: there are " + std::to_string(pages.Count()) + ".");
  const double scale = printer_->resolution() / kPointsPerInch *
                       FitOf(pages.paper().size, printer_->pageLayout().fullRect(QPageLayout::Point).size());
  painter.scale(scale, scale);
  QtSurface surface(tools_, painter, pages.paper(), [this] {
    if (!printer_->newPage()) throw Fault(Named(*printer_) + " stopped amid the pages.");
  });
  const auto total = static_cast<std::int64_t>(sheets.size());
  const Progress progress(host_, "Printing", total);
  for (std::int64_t sheet = 0; sheet < total; ++sheet) {
    if (!host_.ShowProgress("Printing", sheet, total)) return false;
    if (sheet > 0) surface.NewPage();
    pages.Draw(sheets[static_cast<std::size_t>(sheet)], surface);
  }
  return true;
}

void PagePrinter::CheckSent(bool to_file) {
  const QPrinter::PrinterState state = printer_->printerState();
  const std::string trouble = to_file ? std::string() : queue_.Trouble();
  if (state != QPrinter::Error && state != QPrinter::Aborted && trouble.empty()) return;
  throw Fault(Named(*printer_) + " didn't take the pages. " + trouble);
}

}  // namespace tarvane::desktop
