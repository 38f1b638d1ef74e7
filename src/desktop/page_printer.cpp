#include "desktop/page_printer.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>

#include "desktop/text.h"
#include "text/fault.h"

namespace tarvane::desktop {
namespace {

constexpr double kLargestPoints = 11;

struct Extent {
  int columns = 1;
  int lines = 1;
};

Extent ExtentOf(const std::vector<PrintedPage>& pages) {
  Extent extent;
  for (const PrintedPage& page : pages) {
    extent.lines = std::max(extent.lines, static_cast<int>(page.size()));
    for (const PrintedLine& line : page) {
      for (const PrintedPiece& piece : line) {
        extent.columns = std::max(extent.columns, piece.column + static_cast<int>(ToQt(piece.text).size()));
      }
    }
  }
  return extent;
}

QFont FittingFont(QPrinter& printer, const Extent& extent) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(kLargestPoints);
  const QFontMetricsF metrics(font, &printer);
  const QRectF page = printer.pageRect(QPrinter::DevicePixel);
  const double wide = page.width() / (metrics.horizontalAdvance('0') * extent.columns);
  const double high = page.height() / (metrics.lineSpacing() * extent.lines);
  font.setPointSizeF(kLargestPoints * std::min({1.0, wide, high}));
  return font;
}

}  // namespace

void PrintOn(QPrinter& printer, const std::vector<PrintedPage>& pages) {
  if (!printer.isValid()) throw Fault("No printer is set up.");
  const QFont font = FittingFont(printer, ExtentOf(pages));
  QPainter painter;
  if (!painter.begin(&printer)) throw Fault("The printer can't be reached.");
  painter.setFont(font);
  const QFontMetricsF metrics(font, &printer);
  bool first = true;
  for (const PrintedPage& page : pages) {
    if (!std::exchange(first, false)) printer.newPage();
    double bottom = metrics.ascent();
    for (const PrintedLine& line : page) {
      for (const PrintedPiece& piece : line) {
        painter.drawText(QPointF(piece.column * metrics.horizontalAdvance('0'), bottom), ToQt(piece.text));
      }
      bottom += metrics.lineSpacing();
    }
  }
}

void AskForPrinter(QPrinter& printer, QWidget* parent) {
  QPrintDialog dialog(&printer, parent);
  if (dialog.exec() != QDialog::Accepted) return;
  QPageSetupDialog(&printer, parent).exec();
}

}  // namespace tarvane::desktop
