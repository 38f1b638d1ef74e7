#include "desktop/forms/message_line.h"

#include <QApplication>
#include <QEvent>
#include <memory>

#include "desktop/make.h"
#include "desktop/text.h"

namespace tarvane::desktop {

MessageLine::MessageLine() { QApplication::instance()->installEventFilter(this); }

void MessageLine::Say(const QString& text) {
  setForegroundRole(QPalette::WindowText);
  setText(text);
}

bool MessageLine::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress) {
    setForegroundRole(QPalette::PlaceholderText);
  }
  return QObject::eventFilter(watched, event);
}

MessageLine* MakeMessageLine(Form& form, Label& label) {
  auto* line = Make<MessageLine>();
  form.Bind(label, line, [line, &label](Aspect aspect) {
    if (aspect == Aspect::kCaption) line->Say(LinesToQt(label.caption()));
  });
  // What it says before anything has happened is no news.
  line->setForegroundRole(QPalette::PlaceholderText);
  return line;
}

}  // namespace tarvane::desktop
