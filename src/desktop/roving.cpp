#include <QKeyEvent>
#include <QPointer>
#include <QWidget>
#include <algorithm>

#include "desktop/builders.h"
#include "desktop/make.h"

namespace tarvane::desktop {
namespace {

// Watches the keys and the focus of widgets that are one Tab stop.
class Rover : public QObject {
 public:
  Rover(QObject* parent, std::vector<QWidget*> widgets)
      : QObject(parent), widgets_(widgets.begin(), widgets.end()) {
    for (QWidget* widget : widgets) widget->installEventFilter(this);
    StandAt(0);
  }

  // Where Tab arrives; of hidden ones at the next that is shown.
  void StandAt(int at) {
    for (int i = 0; i < Count(); ++i) {
      if (QWidget* widget = Widget(i)) widget->setFocusPolicy(i == at ? Qt::StrongFocus : Qt::ClickFocus);
    }
  }
  bool HasFocus() const {
    return std::ranges::any_of(widgets_,
                               [](const QPointer<QWidget>& each) { return each && each->hasFocus(); });
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto found = std::ranges::find(widgets_, watched, [](const auto& each) { return each.data(); });
    if (found == widgets_.end()) return false;
    const int at = static_cast<int>(found - widgets_.begin());
    if (event->type() == QEvent::FocusIn) StandAt(at);
    return event->type() == QEvent::KeyPress && Walk(at, static_cast<QKeyEvent*>(event)->key());
  }

 private:
  int Count() const { return static_cast<int>(widgets_.size()); }
  QWidget* Widget(int at) const { return widgets_[static_cast<std::size_t>(at)]; }

  bool Walk(int at, int key) {
    switch (key) {
      case Qt::Key_Up:
      case Qt::Key_Left:
        return GoTo(at - 1, -1);
      case Qt::Key_Down:
      case Qt::Key_Right:
        return GoTo(at + 1, 1);
      case Qt::Key_Home:
        return GoTo(0, 1);
      case Qt::Key_End:
        return GoTo(Count() - 1, -1);
      default:
        return false;
    }
  }
  // At an end the focus stays.
  bool GoTo(int at, int step) {
    while (at >= 0 && at < Count() && !(Widget(at) && Widget(at)->isVisible() && Widget(at)->isEnabled())) {
      at += step;
    }
    if (at >= 0 && at < Count()) Widget(at)->setFocus(Qt::TabFocusReason);
    return true;
  }

  std::vector<QPointer<QWidget>> widgets_;
};

}  // namespace

void Builder::OneTabStop(const std::vector<Control*>& controls, std::function<int()> preferred) {
  std::vector<QWidget*> widgets;
  for (const Control* control : controls) {
    if (auto* widget = qobject_cast<QWidget*>(form_->WidgetOf(*control))) widgets.push_back(widget);
  }
  if (widgets.empty()) return;
  auto* rover = Make<Rover>(widgets.front(), widgets);
  if (!preferred) return;
  form_->Follow([rover = QPointer<Rover>(rover), preferred = std::move(preferred)] {
    if (rover && !rover->HasFocus()) rover->StandAt(preferred());
  });
}

}  // namespace tarvane::desktop
