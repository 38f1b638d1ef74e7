#include "desktop/barcode_drawing.h"

#include <QPainter>

#include "desktop/theme.h"

namespace tarvane::desktop {

namespace {

constexpr int kQuietUnits = 10;  // at each side: what scanners need at least
constexpr int kMostDots = 3;     // a unit; more makes no code easier to read
constexpr char kTooLong[] = "too long to be drawn here";

}  // namespace

BarcodeDrawing::BarcodeDrawing(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setAccessibleName("Drawing of the bar code");
}

void BarcodeDrawing::Show(const std::string& bars, const QString& note) {
  if (bars == bars_ && note == note_) return;
  bars_ = bars;
  note_ = note;
  setAccessibleDescription(bars_.empty() ? note_ : QString("drawn"));
  update();
}

int BarcodeDrawing::DotsPerUnit() const {
  const int units = static_cast<int>(bars_.size()) + 2 * kQuietUnits;
  const int dots = static_cast<int>(width() * devicePixelRatioF());
  return std::min(kMostDots * std::max(1, qRound(devicePixelRatioF())), dots / units);
}

QString BarcodeDrawing::note() const {
  if (bars_.empty()) return note_;
  return DotsPerUnit() < 1 ? QString(kTooLong) : QString();
}

QSize BarcodeDrawing::sizeHint() const { return {Digits(30), Quarters(11)}; }
QSize BarcodeDrawing::minimumSizeHint() const { return {Digits(10), Quarters(11)}; }

void BarcodeDrawing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (const QString text = note(); !text.isEmpty() || bars_.empty()) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text);
    return;
  }
  const double ratio = devicePixelRatioF();
  painter.scale(1 / ratio, 1 / ratio);
  const int unit = DotsPerUnit();
  const int height = static_cast<int>(this->height() * ratio);
  const int width = unit * (static_cast<int>(bars_.size()) + 2 * kQuietUnits);
  painter.fillRect(QRect(0, 0, width, height), Qt::white);
  int left = unit * kQuietUnits;
  for (const char bar : bars_) {
    if (bar == '1') painter.fillRect(QRect(left, unit * 2, unit, height - unit * 4), Qt::black);
    left += unit;
  }
}

}  // namespace tarvane::desktop
