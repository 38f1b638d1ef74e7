#pragma once

#include <QAbstractScrollArea>
#include <QImage>
#include <functional>

#include "desktop/qt_paper.h"
#include "screen/page_view.h"

namespace tarvane::desktop {

// The page of a view on a quiet ground, like a sheet on a desk: drawn when it is looked at, and kept until
// another one is. Holds one page at a time, however many there are.
class PageWidget : public QAbstractScrollArea {
 public:
  enum class Step { kFirst, kPrevious, kNext, kLast, kZoomIn, kZoomOut };

  explicit PageWidget(const PageView& view);

  // What the worker's keys and wheel ask for.
  std::function<void(Step)> asked;

  // The view shows something else: draws it anew, from its upper left corner.
  void Follow();

  // The sheet in the viewport, in its pixels.
  QRect SheetPlace() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;

 private:
  QSize SheetSize() const;
  void SetRanges();
  void Render();
  void ScrollOrStep(int direction);

  const PageView& view_;
  PaperTools tools_;
  QImage image_;       // the sheet as it is shown; null: there is nothing to show
  bool stale_ = true;  // image_ isn't that of the view's page
  int turned_ = 0;     // by the wheel, since its last step
};

}  // namespace tarvane::desktop
