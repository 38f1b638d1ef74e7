#include "desktop/page_widget.h"

#include <QImageReader>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <optional>

#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

constexpr int kEdge = 16;   // of the ground that is seen around a sheet
constexpr int kShadow = 3;  // how far it falls
constexpr int kWheelStep = 120;

QImage ReadPicture(const std::filesystem::path& file) {
  QImageReader reader(QString::fromStdU16String(file.u16string()));
  reader.setDecideFormatFromContent(true);
  return reader.read();
}

std::optional<PageWidget::Step> ZoomOf(int key) {
  if (key == Qt::Key_Plus || key == Qt::Key_Equal) return PageWidget::Step::kZoomIn;
  if (key == Qt::Key_Minus) return PageWidget::Step::kZoomOut;
  return std::nullopt;
}

void DrawShadow(QPainter& painter, const QRect& sheet) {
  for (int layer = 1; layer <= kShadow; ++layer) {
    painter.fillRect(sheet.translated(layer, layer), QColor(0, 0, 0, 40));
  }
}

}  // namespace

PageWidget::PageWidget(const PageView& view) : view_(view) {
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::NoFrame);
  viewport()->setBackgroundRole(QPalette::Mid);
  viewport()->setAutoFillBackground(true);
}

// Whoever lays it out gives it the room that there is: it wants no more than it needs, so that nothing around
// it has to scroll.
QSize PageWidget::sizeHint() const { return minimumSizeHint(); }
QSize PageWidget::minimumSizeHint() const { return {Digits(20), Quarters(26)}; }

void PageWidget::Follow() {
  stale_ = true;
  SetRanges();
  horizontalScrollBar()->setValue(0);
  verticalScrollBar()->setValue(0);
  if (view_.pages() != nullptr) {
    setAccessibleName(QString("Page %1 of %2").arg(view_.page() + 1).arg(view_.pages()->Count()));
  } else {
    setAccessibleName("Page");
  }
  viewport()->update();
}

QSize PageWidget::SheetSize() const {
  const double zoom = view_.zoom() / 100.0;
  if (!view_.picture().empty()) return image_.isNull() ? QSize() : image_.size() * zoom;
  return view_.pages() != nullptr ? PixelsOf(view_.pages()->paper().size, zoom) : QSize();
}

void PageWidget::SetRanges() {
  if (stale_ && !view_.picture().empty()) Render();  // it alone tells how large it is
  const QSize more = SheetSize() + 2 * QSize(kEdge, kEdge) - viewport()->size();
  const auto set = [](QScrollBar* bar, int most, int page) {
    bar->setRange(0, std::max(0, most));
    bar->setPageStep(page);
    bar->setSingleStep(std::max(1, page / 20));
  };
  set(horizontalScrollBar(), more.width(), viewport()->width());
  set(verticalScrollBar(), more.height(), viewport()->height());
}

QRect PageWidget::SheetPlace() const {
  const QSize sheet = SheetSize();
  const QSize room = viewport()->size();
  const auto place = [](int length, int space, const QScrollBar* bar) {
    return bar->maximum() > 0 ? kEdge - bar->value() : std::max(kEdge, space / 2 - length / 2);
  };
  return {QPoint(place(sheet.width(), room.width(), horizontalScrollBar()),
                 place(sheet.height(), room.height(), verticalScrollBar())),
          sheet};
}

// Painting is no place for a message: what can't be drawn is left out.
void PageWidget::Render() {
  stale_ = false;
  if (!view_.picture().empty()) {
    image_ = ReadPicture(view_.picture());
    return;
  }
  if (view_.pages() == nullptr) {
    image_ = {};
    return;
  }
  try {
    DrawPage(*view_.pages(), view_.page(), tools_, view_.zoom() / 100.0 * devicePixelRatioF(), image_);
  } catch (const std::exception&) {
    return;
  }
}

void PageWidget::paintEvent(QPaintEvent*) {
  if (stale_) Render();
  QPainter painter(viewport());
  if (image_.isNull()) {
    if (view_.picture().empty()) return;
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, "This picture can't be read.");
    return;
  }
  const QRect sheet = SheetPlace();
  DrawShadow(painter, sheet);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(sheet, image_);
}

void PageWidget::resizeEvent(QResizeEvent*) { SetRanges(); }

void PageWidget::scrollContentsBy(int, int) { viewport()->update(); }

// Elsewhere in the window these keys change the size of the text.
bool PageWidget::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && asked) {
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->modifiers().testFlag(Qt::ControlModifier) && ZoomOf(key->key())) event->accept();
  }
  return QAbstractScrollArea::event(event);
}

// Down the page first, then to the next one.
void PageWidget::ScrollOrStep(int direction) {
  QScrollBar* bar = verticalScrollBar();
  const int before = bar->value();
  bar->setValue(before + direction * std::max(1, viewport()->height() - 2 * kEdge));
  if (bar->value() == before && asked) asked(direction > 0 ? Step::kNext : Step::kPrevious);
}

void PageWidget::keyPressEvent(QKeyEvent* event) {
  if (!asked) return QAbstractScrollArea::keyPressEvent(event);
  if (const auto zoom = ZoomOf(event->key())) return asked(*zoom);
  switch (event->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_Space:
      return ScrollOrStep(1);
    case Qt::Key_PageUp:
    case Qt::Key_Backspace:
      return ScrollOrStep(-1);
    case Qt::Key_Home:
      return asked(Step::kFirst);
    case Qt::Key_End:
      return asked(Step::kLast);
    default:
      return QAbstractScrollArea::keyPressEvent(event);
  }
}

void PageWidget::wheelEvent(QWheelEvent* event) {
  const int turn = event->angleDelta().y();
  const QScrollBar* bar = verticalScrollBar();
  const bool zooms = event->modifiers().testFlag(Qt::ControlModifier);
  const bool at_end = turn > 0 ? bar->value() == bar->minimum() : bar->value() == bar->maximum();
  if (!asked || turn == 0 || (!zooms && !at_end)) {
    turned_ = 0;
    return QAbstractScrollArea::wheelEvent(event);
  }
  event->accept();
  turned_ = (turned_ > 0) == (turn > 0) ? turned_ + turn : turn;
  if (std::abs(turned_) < kWheelStep) return;
  turned_ = 0;
  if (zooms) return asked(turn > 0 ? Step::kZoomIn : Step::kZoomOut);
  asked(turn > 0 ? Step::kPrevious : Step::kNext);
}

}  // namespace tarvane::desktop
