#include "desktop/forms/form_window.h"

#include <QAction>
#include <QLayout>
#include <QPushButton>
#include <QScrollArea>
#include <algorithm>

#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "desktop/windows.h"

namespace tarvane::desktop {

namespace {

// What a middle that scrolls by itself keeps at least, in quarters of a line.
constexpr int kLeastMiddle = 44;

// Asks for its least height alone, so that what stands around it scrolls only where even that isn't there.
class MiddleScroll : public QScrollArea {
 public:
  QSize sizeHint() const override { return {widget()->sizeHint().width(), Quarters(kLeastMiddle)}; }
  QSize minimumSizeHint() const override { return {Quarters(kLeastMiddle), Quarters(kLeastMiddle)}; }
};

void FillWindow(Form& form, const Piece& piece, Button* escape) {
  auto* window = static_cast<DialogWindow*>(form.window());
  window->setLayout(Builder(form).Column({piece}, 0).layout);
  window->layout()->setContentsMargins(0, 0, 0, 0);
  if (escape == nullptr) return;
  window->escaped = [&form, escape] {
    if (escape->shown()) form.Act(*escape, [escape](Control&) { escape->UserPress(); });
  };
}

}  // namespace

void FillDialog(Form& form, const Pieces& pieces, Button* escape) {
  Builder build(form);
  FillWindow(form, build.Scroll(build.Column(pieces)), escape);
}

void FillDialog(Form& form, const Framed& pieces, Button* escape, QSize usual) {
  Builder build(form);
  auto* middle = Make<MiddleScroll>();
  const Piece inside = build.Margin(build.Column(pieces.middle));
  middle->setFrameShape(QFrame::NoFrame);
  middle->setFocusPolicy(Qt::NoFocus);
  middle->setWidgetResizable(true);
  middle->setWidget(inside.widget);
  Pieces rows;
  if (pieces.head.widget != nullptr || pieces.head.layout != nullptr) {
    rows.push_back(build.Margin(pieces.head));
    // The margin of the middle follows at once.
    QLayout* head = rows.back().widget->layout();
    QMargins margins = head->contentsMargins();
    margins.setBottom(0);
    head->setContentsMargins(margins);
  }
  rows.insert(rows.end(), {{middle, nullptr, 1}, build.Rule(), build.Margin(build.Flow(pieces.foot))});
  FillWindow(form, build.Scroll(build.Column(rows, 0), 0), escape);

  const int hidden = std::max(0, inside.widget->sizeHint().height() - Quarters(kLeastMiddle));
  form.window()->resize((form.window()->sizeHint() + QSize(0, hidden)).expandedTo(usual));
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
