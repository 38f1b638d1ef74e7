#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/text.h"

// A person's hands and eyes: what a key or a click leads to has happened before the next one comes.
namespace tarvane::desktop {

inline void Settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
  }
}

inline void ToFront(QWidget* window) {
  QApplication::setActiveWindow(window);
  Settle();
}

inline void Focus(QWidget* widget) {
  widget->setFocus();
  Settle();
}

// Keys go where the keyboard is, or else to the window in front.
inline QWidget* AtKeyboard() {
  QWidget* focus = QApplication::focusWidget();
  return focus != nullptr ? focus : QApplication::activeWindow();
}

inline void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  QTest::keyClick(AtKeyboard(), static_cast<Qt::Key>(key), modifiers);
  Settle();
}

// One key after the other; '\b' takes a letter back, '\n' is Enter, '\t' is Tab.
inline void Type(std::string_view keys) {
  for (const char key : keys) {
    QTest::keyClick(AtKeyboard(), key == '\n' ? '\r' : key);
    Settle();
  }
}

// In the middle of the widget, or at a place in it.
inline void Click(QWidget* widget, QPoint place = {}) {
  QTest::mouseClick(widget, Qt::LeftButton, {}, place);
  Settle();
}

// Presses a button of the box that comes up next, or closes it where the button is "", and tells what it
// said.
class NextBox {
 public:
  explicit NextBox(const QString& button) {
    QTimer::singleShot(0, &timer_, [this, button] { Press(button); });
  }
  QString text, title, preset;

 private:
  void Press(const QString& wanted) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    text = box->text();
    title = box->windowTitle();
    if (box->defaultButton() != nullptr) preset = box->defaultButton()->text().remove('&');
    if (wanted.isEmpty()) return (void)box->close();
    for (QAbstractButton* button : box->buttons()) {
      if (button->text().remove('&') == wanted) button->click();
    }
  }
  QTimer timer_;
};

// The texts that stand in a window: of labels, then of buttons.
inline std::vector<std::string> Seen(const QWidget& window) {
  std::vector<std::string> texts;
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    if (label->isVisible()) texts.push_back(FromQt(label->text()));
  }
  for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    if (button->isVisible()) texts.push_back(FromQt(button->text()));
  }
  return texts;
}

// Each letter of Alt leads to one place. Tells how many letters do.
inline std::size_t ExpectDistinctAccessKeys(const QWidget& window, const std::string& where) {
  std::map<std::string, std::string> owners;
  const auto take = [&](const QKeySequence& key, const QString& text) {
    if (key.isEmpty()) return;
    const auto [owner, is_new] = owners.emplace(FromQt(key.toString()), FromQt(text));
    EXPECT_TRUE(is_new) << owner->first << ": " << owner->second << ", " << FromQt(text) << "; " << where;
  };
  for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
    for (const QAction* menu : bar->actions()) {
      if (menu->isVisible()) take(QKeySequence::mnemonic(menu->text()), menu->text());
    }
  }
  for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
    if (button->isVisible()) take(button->shortcut(), button->text());
  }
  return owners.size();
}

}  // namespace tarvane::desktop
