#include "paper/qt/qt_layout.h"

#include <QGuiApplication>
#include <QTextDocument>

namespace tarvane::paper {

void StartQt() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  static int count = 1;
  static char name[] = "paper_bench";
  static char* words[] = {name, nullptr};
  static QGuiApplication application(count, words);
}

int QtPagesOf(const std::string& text) {
  QTextDocument document;
  QFont font("Helvetica");
  font.setPixelSize(10);
  document.setDefaultFont(font);
  document.setDocumentMargin(72);
  document.setPageSize(QSizeF(595, 842));
  document.setPlainText(QString::fromStdString(text));
  return document.pageCount();
}

}  // namespace tarvane::paper
