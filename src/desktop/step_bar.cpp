#include "desktop/step_bar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

int Disc() { return Quarters(6); }
int Gap() { return Quarters(2); }

}  // namespace

StepBar::StepBar(std::vector<QString> names) : names_(std::move(names)) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  SetStep(0);
}

void StepBar::SetStep(int step) {
  step_ = std::clamp(step, 0, static_cast<int>(names_.size()) - 1);
  setAccessibleName(QString("Step %1 of %2, %3")
                        .arg(step_ + 1)
                        .arg(names_.size())
                        .arg(names_[static_cast<std::size_t>(step_)]));
  update();
}

QFont StepBar::FontOf(int step) const {
  QFont made = font();
  made.setBold(step == step_);
  return made;
}

int StepBar::WidthOf(int step, bool named) const {
  const QString& name = names_[static_cast<std::size_t>(step)];
  const int text = named ? Gap() / 2 + QFontMetrics(FontOf(step)).horizontalAdvance(name) : 0;
  return Disc() + text + Gap();
}

std::vector<int> StepBar::Widths() const {
  std::vector<int> widths;
  int total = 0;
  for (const bool named : {true, false}) {
    widths.clear();
    total = 0;
    for (int step = 0; step < static_cast<int>(names_.size()); ++step) {
      widths.push_back(WidthOf(step, named || step == step_));
      total += widths.back();
    }
    if (total <= width()) break;
  }
  const int spare = std::max(0, width() - total) / static_cast<int>(widths.size());
  for (int& width : widths) width += spare;
  return widths;
}

int StepBar::StepAt(int x) const {
  int step = 0;
  for (const int width : Widths()) {
    if (x < width) return step;
    x -= width;
    ++step;
  }
  return -1;
}

QSize StepBar::sizeHint() const {
  int total = 0;
  for (int step = 0; step < static_cast<int>(names_.size()); ++step) total += WidthOf(step, true);
  return {total, Disc() + Quarters(2)};
}

QSize StepBar::minimumSizeHint() const {
  return {WidthOf(0, false) * static_cast<int>(names_.size()), sizeHint().height()};
}

void StepBar::mousePressEvent(QMouseEvent* event) {
  const int step = StepAt(event->position().toPoint().x());
  if (event->button() == Qt::LeftButton && step >= 0 && pressed) pressed(step);
}

void StepBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
  const QColor quiet = palette().color(QPalette::PlaceholderText);
  const std::vector<int> widths = Widths();
  double x = 0;
  for (int step = 0; step < static_cast<int>(widths.size()); ++step) {
    const int width = widths[static_cast<std::size_t>(step)];
    const bool present = step == step_;
    const QRectF disc(x + 1, (height() - Disc()) / 2.0, Disc(), Disc());
    const QRectF inner = disc.adjusted(2, 2, -2, -2);
    painter.setPen(QPen(step <= step_ ? accent : quiet, 1.4));
    painter.setBrush(present ? QBrush(accent) : QBrush(Qt::NoBrush));
    painter.drawEllipse(inner);
    painter.setFont(FontOf(step));
    if (step < step_) {
      QPainterPath tick(inner.topLeft() + QPointF(inner.width() * 0.27, inner.height() * 0.53));
      tick.lineTo(inner.topLeft() + QPointF(inner.width() * 0.44, inner.height() * 0.7));
      tick.lineTo(inner.topLeft() + QPointF(inner.width() * 0.74, inner.height() * 0.32));
      painter.setPen(QPen(accent, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      painter.drawPath(tick);
    } else {
      painter.setPen(present ? palette().color(QPalette::Active, QPalette::HighlightedText) : quiet);
      painter.drawText(disc, Qt::AlignCenter, QString::number(step + 1));
    }
    const QString& name = names_[static_cast<std::size_t>(step)];
    const double text = QFontMetrics(FontOf(step)).horizontalAdvance(name);
    const double start = disc.right() + Gap() / 2.0;
    double end = disc.right();
    if (start + text <= x + width) {
      painter.setPen(step <= step_ ? palette().color(QPalette::WindowText) : quiet);
      painter.drawText(QRectF(start, 0, text + 2, height()), Qt::AlignVCenter | Qt::AlignLeft, name);
      end = start + text;
    }
    const bool last = step + 1 == static_cast<int>(widths.size());
    const double line = x + width - Gap() / 2.0;
    if (!last && line - end > Gap()) {
      painter.setPen(QPen(step < step_ ? accent : RuleColour(), 1.4));
      painter.drawLine(QPointF(end + Gap() / 2.0, height() / 2.0), QPointF(line, height() / 2.0));
    }
    x += width;
  }
}

}  // namespace tarvane::desktop
