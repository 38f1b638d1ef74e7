#pragma once

#include <QElapsedTimer>
#include <QString>
#include <cstdint>
#include <memory>

class QDialog;
class QProgressBar;
class QWidget;

namespace tarvane::desktop {

// Shows how far a long work has come, and lets the worker stop it. The window comes up when the work has
// taken a second, and belongs to one work.
class ProgressWindow {
 public:
  ProgressWindow();
  ~ProgressWindow();
  ProgressWindow(const ProgressWindow&) = delete;
  ProgressWindow& operator=(const ProgressWindow&) = delete;

  // False from the press of "Stop" on. Serves the worker while the window is up.
  bool Show(QWidget* parent, const QString& what, std::int64_t done, std::int64_t total);

 private:
  void Open(QWidget* parent, const QString& what);

  std::unique_ptr<QDialog> window_;
  QProgressBar* bar_ = nullptr;
  QElapsedTimer since_start_;
  QElapsedTimer since_drawn_;
  bool stopped_ = false;
};

}  // namespace tarvane::desktop
