#include <QFont>
#include <QGuiApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cstdlib>
#include <memory>

#include "peers/peer.h"

namespace {

// Qt embeds the font and compresses; it has no public way to keep it from either.
void WritePages(const std::string& path, int pages) {
  static int count = 1;
  static char name[] = "pdf_bench";
  static char* arguments[] = {name, nullptr};
  setenv("QT_QPA_PLATFORM", "offscreen", 0);
  static const QGuiApplication kApplication(count, arguments);
  QPdfWriter writer(QString::fromStdString(path));
  writer.setPageSize(QPageSize(QPageSize::A4));
  writer.setResolution(72);
  QPainter painter(&writer);
  painter.setFont(QFont("Helvetica", 10));
  for (int page = 0; page < pages; ++page) {
    if (page > 0) writer.newPage();
    for (int line = 0; line < kLines; ++line) {
      painter.drawText(40, 50 + line * 15, QString::fromStdString(LineText(page, line)));
    }
  }
}

const bool kAdded = AddPeer({"qt", WritePages, nullptr});

}  // namespace
