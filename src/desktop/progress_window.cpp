#include "desktop/progress_window.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/make.h"
#include "desktop/qt_host.h"
#include "desktop/theme.h"
#include "desktop/windows.h"

namespace tarvane::desktop {
namespace {

constexpr qint64 kUnseen = 1000;  // milliseconds
constexpr qint64 kBetween = 40;   // from one drawing to the next
constexpr int kSteps = 1000;

}  // namespace

ProgressWindow::ProgressWindow() { since_start_.start(); }
ProgressWindow::~ProgressWindow() = default;

void ProgressWindow::Open(QWidget* parent, const QString& what) {
  auto window = std::make_unique<DialogWindow>(parent);
  window->setWindowTitle("Tarvane");
  window->setWindowModality(Qt::ApplicationModal);
  auto* label = Make<QLabel>(what);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  bar_ = Make<QProgressBar>();
  bar_->setRange(0, kSteps);
  bar_->setMinimumWidth(Digits(30));
  bar_->setAccessibleName(what);
  auto* stop = Make<QPushButton>("&Stop");
  const auto stops = [this, label, stop] {
    stopped_ = true;
    label->setText("Stopping...");
    stop->setEnabled(false);
  };
  QObject::connect(stop, &QPushButton::clicked, window.get(), stops);
  window->escaped = stops;
  window->close_asked = stops;
  auto* column = Make<QVBoxLayout>(window.get());
  column->setContentsMargins(Quarters(3), Quarters(3), Quarters(3), Quarters(3));
  column->setSpacing(Quarters(2));
  column->addWidget(label);
  column->addWidget(bar_);
  column->addWidget(stop, 0, Qt::AlignRight);
  window_ = std::move(window);
  window_->adjustSize();
  KeepOnScreen(*window_);
  window_->show();
  stop->setFocus();
  since_drawn_.start();
}

bool ProgressWindow::Show(QWidget* parent, const QString& what, std::int64_t done, std::int64_t total) {
  if (!window_) {
    // Nothing is served before: what the worker presses would reach the windows below.
    if (since_start_.elapsed() < kUnseen) return true;
    Open(parent, what);
  } else if (since_drawn_.elapsed() < kBetween) {
    return !stopped_;
  }
  since_drawn_.restart();
  bar_->setValue(total <= 0 ? 0 : static_cast<int>(kSteps * done / total));
  QApplication::processEvents();
  return !stopped_;
}

}  // namespace tarvane::desktop
