#pragma once

#include <QMouseEvent>
#include <functional>
#include <utility>

namespace tarvane::desktop {

// What the worker does in a list is told when it is done: a row once the mouse is let go or the key has
// moved, and an opening by double click or Enter. -1 is the empty space below the rows.
template <typename View>
class PickingView : public View {
 public:
  std::function<void(int)> picked;
  std::function<void(int)> opened;

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override {
    View::mouseReleaseEvent(event);
    const QModelIndex at = this->indexAt(event->position().toPoint());
    const bool after_opening = std::exchange(opened_by_mouse_, false);
    if (event->button() == Qt::LeftButton && at.isValid() && !after_opening) picked(at.row());
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    opened_by_mouse_ = true;
    opened(this->indexAt(event->position().toPoint()).row());
  }

 private:
  bool opened_by_mouse_ = false;
};

}  // namespace tarvane::desktop
