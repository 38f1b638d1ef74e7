#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <iostream>

#include "desktop/theme.h"

// One application for all tests, on no display, with settings of its own.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // No test is to find a printer, wherever it runs.
  qputenv("CUPS_SERVER", "/nowhere");
  // That platform has no say in the size of windows, and tells so of each of them.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.contains("propagateSizeHints")) std::cerr << text.toStdString() << "\n";
  });
  QStandardPaths::setTestModeEnabled(true);
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QCoreApplication::setOrganizationName("TarvaneTest");
  QCoreApplication::setApplicationName("TarvaneTest");
  tarvane::desktop::ApplyTheme({tarvane::desktop::ColourScheme::kLight});
  return RUN_ALL_TESTS();
}
