#include "desktop/forms/form_window.h"

#include <QAction>
#include <QLayout>
#include <QPushButton>

#include "desktop/text.h"
#include "desktop/windows.h"

namespace tarvane::desktop {

void FillDialog(Form& form, const Pieces& pieces, Button* escape) {
  auto* window = static_cast<DialogWindow*>(form.window());
  Builder build(form);
  window->setLayout(build.Column({build.Scroll(build.Column(pieces))}, 0).layout);
  window->layout()->setContentsMargins(0, 0, 0, 0);
  if (escape == nullptr) return;
  window->escaped = [&form, escape] {
    if (escape->shown()) form.Act(*escape, [escape](Control&) { escape->UserPress(); });
  };
}

void ClosesWindow(Form& form, const Button& button) {
  QObject* widget = form.WidgetOf(button);
  if (auto* action = qobject_cast<QAction*>(widget)) {
    QObject::disconnect(action, &QAction::triggered, &form, nullptr);
    QObject::connect(action, &QAction::triggered, form.window(), &QWidget::close);
  } else if (auto* made = qobject_cast<QPushButton*>(widget)) {
    QObject::disconnect(made, &QPushButton::clicked, &form, nullptr);
    QObject::connect(made, &QPushButton::clicked, form.window(), &QWidget::close);
  }
}

void SayWhyOff(Form& form, const Control& control, const char* why) {
  QObject* widget = form.WidgetOf(control);
  if (widget == nullptr || control.to_come()) return;
  const QString usual = widget->property("toolTip").toString();
  form.Follow([widget, &control, usual, why = QString(why)] {
    const QString& tip = control.enabled() ? usual : why;
    if (widget->property("toolTip").toString() != tip) widget->setProperty("toolTip", tip);
  });
}

}  // namespace tarvane::desktop
