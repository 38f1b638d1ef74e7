#include "desktop/folding.h"

#include <QBoxLayout>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>
#include <algorithm>
#include <memory>

#include "desktop/make.h"
#include "desktop/theme.h"

namespace tarvane::desktop {

ElidedLabel::ElidedLabel() { setTextFormat(Qt::PlainText); }

QSize ElidedLabel::minimumSizeHint() const {
  return {std::min(Digits(8), QLabel::minimumSizeHint().width()), QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter,
                   fontMetrics().elidedText(text().simplified(), Qt::ElideRight, contentsRect().width()));
}

bool ElidedLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  const bool cut = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), cut ? text() : QString(), this);
  return true;
}

FoldingRow::FoldingRow(Builder& build, const Pieces& pieces, int quarters)
    : layout_(qobject_cast<QBoxLayout*>(build.Row(pieces, quarters).layout)) {
  layout_->setContentsMargins(0, 0, 0, 0);
  setLayout(layout_);
}

bool FoldingRow::is_folded() const { return layout_->direction() == QBoxLayout::TopToBottom; }

int FoldingRow::WidthSideBySide() const {
  int width = -layout_->spacing();
  for (int at = 0; at < layout_->count(); ++at) {
    width += layout_->itemAt(at)->minimumSize().width() + layout_->spacing();
  }
  return width;
}

QSize FoldingRow::sizeHint() const {
  QSize size(-layout_->spacing(), 0);
  for (int at = 0; at < layout_->count(); ++at) {
    const QSize hint = layout_->itemAt(at)->sizeHint();
    size = {size.width() + hint.width() + layout_->spacing(), std::max(size.height(), hint.height())};
  }
  // What comes into view later may need a scroll bar; it must not fold the row.
  return size + QSize(style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
}

// The width of the widest piece: the row is never what keeps the window wide.
QSize FoldingRow::minimumSizeHint() const {
  int width = 0;
  for (int at = 0; at < layout_->count(); ++at) {
    width = std::max(width, layout_->itemAt(at)->minimumSize().width());
  }
  return {width, layout_->totalMinimumSize().height()};
}

void FoldingRow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const bool fold = width() < WidthSideBySide();
  if (fold == is_folded()) return;
  layout_->setDirection(fold ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  updateGeometry();
}

Piece Folding(Builder& build, const Pieces& pieces, int quarters) {
  return {Make<FoldingRow>(build, pieces, quarters), nullptr, 1};
}

}  // namespace tarvane::desktop
