#pragma once

#include <QCloseEvent>
#include <QDialog>
#include <QMainWindow>
#include <functional>

namespace tarvane::desktop {

// Closing a window is the screen's decision: the window's own close button and Escape only ask.
class MainWindow : public QMainWindow {
 public:
  std::function<void()> close_asked;

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    if (close_asked) close_asked();
  }
};

class DialogWindow : public QDialog {
 public:
  explicit DialogWindow(QWidget* parent) : QDialog(parent) {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
  }
  std::function<void()> close_asked;
  std::function<void()> escaped;  // none: Escape does nothing

  void reject() override {
    if (escaped) escaped();
  }

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->ignore();
    if (close_asked) close_asked();
  }
};

}  // namespace tarvane::desktop
