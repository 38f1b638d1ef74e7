#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

#include "desktop/theme.h"

// One application for all tests, on no display, with settings of its own.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  QCoreApplication::setOrganizationName("TarvaneTest");
  QCoreApplication::setApplicationName("TarvaneTest");
  tarvane::ApplyTheme({tarvane::ColourScheme::kLight});
  return RUN_ALL_TESTS();
}
