#include "desktop/access_keys.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>

namespace tarvane::desktop {
namespace {

qsizetype MarkOf(const QString& text) {
  for (qsizetype at = 0; at + 1 < text.size(); ++at) {
    if (text[at] != '&') continue;
    if (text[at + 1] != '&') return at;
    ++at;
  }
  return -1;
}

// The text with its access key on a letter that isn't taken yet, which is taken then.
QString WithFreeKey(const QString& text, QSet<QChar>& taken) {
  const qsizetype mark = MarkOf(text);
  if (mark < 0) return text;
  if (!taken.contains(text[mark + 1].toLower())) {
    taken.insert(text[mark + 1].toLower());
    return text;
  }
  QString plain = QString(text).remove(mark, 1);
  for (qsizetype at = 0; at < plain.size(); ++at) {
    const QChar letter = plain.at(at).toLower();
    if (!letter.isLetter() || taken.contains(letter)) continue;
    taken.insert(letter);
    return plain.insert(at, '&');
  }
  return plain;
}

template <typename Worded>
void Reletter(Worded& worded, QSet<QChar>& taken) {
  const QString text = WithFreeKey(worded.text(), taken);
  if (text != worded.text()) worded.setText(text);
}

void ReletterMenu(const QList<QAction*>& actions, QSet<QChar>& taken) {
  for (QAction* action : actions) {
    if (!action->isVisible() || action->isSeparator()) continue;
    Reletter(*action, taken);
    QSet<QChar> inside;
    if (action->menu() != nullptr) ReletterMenu(action->menu()->actions(), inside);
  }
}

}  // namespace

void MakeAccessKeysUnique(QWidget& window) {
  QSet<QChar> taken;
  if (auto* main = qobject_cast<QMainWindow*>(&window)) ReletterMenu(main->menuBar()->actions(), taken);
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&window)) continue;
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) Reletter(*button, taken);
    auto* caption = qobject_cast<QLabel*>(widget);
    if (caption != nullptr && caption->buddy() != nullptr) Reletter(*caption, taken);
  }
}

}  // namespace tarvane::desktop
