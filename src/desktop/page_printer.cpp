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
void AskForPrinter(QPrinter& printer, QWidget* parent) {
  QPrintDialog dialog(&printer, parent);
  if (dialog.exec() != QDialog::Accepted) return;
  QPageSetupDialog(&printer, parent).exec();
}

}  // namespace tarvane::desktop
