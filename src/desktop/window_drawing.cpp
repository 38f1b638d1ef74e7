#include "desktop/window_drawing.h"

#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

constexpr double kUsualTrack = 80;  // stands in for a side that isn't known yet
constexpr double kUsualDrop = 60;
constexpr double kFlattest = 1.0 / 6;  // width to height, as drawn
constexpr double kWidest = 6;
constexpr int kMostSeams = 60;
constexpr int kMostFolds = 60;
constexpr int kMostBands = 80;
constexpr double kInchesPerFold = 5;
constexpr double kLeastBand = 4;    // pixels
constexpr double kLeastMotif = 22;  // pixels

QColor Blend(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

QColor Faded(QColor colour, double alpha) {
  colour.setAlphaF(static_cast<float>(alpha));
  return colour;
}

int FoldsOf(const curtain_wizard::WindowSketch& sketch, const QRectF& curtain) {
  if (sketch.fullness <= 1.05 && sketch.fullness > 0) return 0;
  const double track = sketch.track > 0 ? sketch.track : kUsualTrack;
  const double most = std::min<double>(kMostFolds, curtain.width() / 8);
  return static_cast<int>(std::clamp(track / kInchesPerFold, std::min(4.0, most), most));
}

// Seams stand where one width, gathered, ends. The calculated number of widths shares the track out evenly,
// as long as it still fits the measures.
std::vector<double> Seams(const curtain_wizard::WindowSketch& sketch) {
  if (sketch.track <= 0) return {};
  double needed = 0;
  if (sketch.fabric_width > 0 && sketch.fullness > 0) {
    needed = sketch.track / sketch.fabric_width * sketch.fullness;
  }
  const bool calculated = sketch.widths > 0 && (needed == 0 || std::abs(sketch.widths - needed) <= 1);
  const double widths = calculated ? sketch.widths : needed;
  if (!(widths > 1 && widths <= kMostSeams)) return {};
  std::vector<double> seams;
  for (double at = 1; at < widths - 0.001; ++at) seams.push_back(at / widths);
  return seams;
}

QPainterPath ClothPath(const QRectF& curtain, int folds) {
  QPainterPath path(curtain.topLeft());
  path.lineTo(curtain.topRight());
  path.lineTo(curtain.bottomRight());
  if (folds > 0) {
    const double step = curtain.width() / folds;
    const double sag = std::min(4.0, curtain.height() / 40);
    for (int fold = folds - 1; fold >= 0; --fold) {
      const double x = curtain.left() + fold * step;
      path.quadTo(QPointF(x + step / 2, curtain.bottom() + sag), QPointF(x, curtain.bottom()));
    }
  } else {
    path.lineTo(curtain.bottomLeft());
  }
  path.closeSubpath();
  return path;
}

void DrawArrow(QPainter& painter, const QPointF& from, const QPointF& to) {
  const QLineF line(from, to);
  painter.drawLine(line);
  if (line.length() < 4) return;
  const double size = std::min(6.0, line.length() / 3);
  for (const QLineF& end : {line, QLineF(to, from)}) {
    for (const double turn : {25.0, -25.0}) {
      QLineF head(end);
      head.setLength(size);
      head.setAngle(end.angle() + turn);
      painter.drawLine(head);
    }
  }
}

}  // namespace

CurtainPlace PlaceCurtain(const curtain_wizard::WindowSketch& sketch, const QRectF& room) {
  CurtainPlace place;
  const double track = sketch.track > 0 ? sketch.track : kUsualTrack;
  const double drop = sketch.drop > 0 ? sketch.drop : kUsualDrop;
  const double shape = track / drop;
  const double drawn = std::clamp(shape, kFlattest, kWidest);
  place.to_scale = sketch.track > 0 && sketch.drop > 0 && drawn == shape;
  const double height = std::max(1.0, std::min(room.height(), room.width() / drawn));
  const QSizeF size(height * drawn, height);
  place.curtain = QRectF(room.center().x() - size.width() / 2, room.top(), size.width(), size.height());
  place.scale = height / drop;
  return place;
}

WindowDrawing::WindowDrawing(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAccessibleName("Drawing of the window");
}

void WindowDrawing::Show(const DrawnWindow& window) {
  if (window == window_) return;
  window_ = window;
  setAccessibleDescription(Description());
  update();
}

QSize WindowDrawing::sizeHint() const { return {Digits(24), Quarters(72)}; }
QSize WindowDrawing::minimumSizeHint() const { return {Digits(18), Quarters(20)}; }

void WindowDrawing::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double line = fontMetrics().height();
  const double notes = window_.sketch.outdated ? 5.4 : 4.4;
  const QRectF room = QRectF(rect()).adjusted(line * 2.2, line * 3, -line * 2.2, -line * notes);
  if (room.width() < 20 || room.height() < 20) return;
  const CurtainPlace place = PlaceCurtain(window_.sketch, room);
  const QPainterPath cloth = ClothPath(place.curtain, FoldsOf(window_.sketch, place.curtain));
  DrawCloth(painter, place, cloth);
  painter.save();
  painter.setClipPath(cloth);
  DrawPattern(painter, place);
  DrawSeams(painter, place);
  DrawHems(painter, place);
  DrawHeading(painter, place);
  DrawTrim(painter, place);
  DrawTieBacks(painter, place);
  painter.restore();
  DrawLining(painter, place);
  DrawPole(painter, place);
  DrawMeasures(painter, place);
  DrawNotes(painter, place);
}

void WindowDrawing::DrawPole(QPainter& painter, const CurtainPlace& place) const {
  const QRectF& curtain = place.curtain;
  const double thick = std::max(4.0, fontMetrics().height() / 3.0);
  const QRectF pole(curtain.left() - thick * 1.5, curtain.top() - thick, curtain.width() + thick * 3, thick);
  painter.setPen(Qt::NoPen);
  painter.setBrush(Blend(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.55));
  painter.drawRoundedRect(pole, thick / 2, thick / 2);
  for (const double x : {pole.left(), pole.right()}) {
    painter.drawEllipse(QPointF(x, pole.center().y()), thick * 0.9, thick * 0.9);
  }
}

void WindowDrawing::DrawCloth(QPainter& painter, const CurtainPlace& place, const QPainterPath& cloth) const {
  const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
  const bool known = window_.sketch.track > 0 && window_.sketch.drop > 0;
  painter.setPen(QPen(Blend(palette().color(QPalette::Base), accent, known ? 0.75 : 0.4), 1.2,
                      known ? Qt::SolidLine : Qt::DashLine));
  painter.setBrush(Blend(palette().color(QPalette::Base), accent, known ? 0.16 : 0.05));
  painter.drawPath(cloth);
  const int folds = FoldsOf(window_.sketch, place.curtain);
  if (folds == 0 || !known) return;
  const double fullness = window_.sketch.fullness > 0 ? window_.sketch.fullness : 2;
  const double depth = std::clamp((fullness - 1) * 0.11, 0.03, 0.24);
  QLinearGradient shade(place.curtain.left(), 0, place.curtain.left() + place.curtain.width() / folds, 0);
  shade.setSpread(QGradient::RepeatSpread);
  shade.setColorAt(0, Faded(accent, depth));
  shade.setColorAt(0.5, Faded(accent, 0));
  shade.setColorAt(1, Faded(accent, depth));
  painter.fillPath(cloth, shade);
}

void WindowDrawing::DrawPattern(QPainter& painter, const CurtainPlace& place) const {
  const double band = window_.sketch.pattern_repeat * place.scale;
  if (window_.sketch.drop <= 0 || !(band >= kLeastBand && band < place.curtain.height() * 4)) return;
  const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
  const std::vector<double> seams = Seams(window_.sketch);
  const double width = place.curtain.width() / static_cast<double>(seams.size() + 1);
  const bool motif = band >= kLeastMotif && width >= kLeastMotif;
  const double size = std::min({band, width, 60.0}) * 0.22;
  double y = place.curtain.top();
  for (int at = 0; at < kMostBands && y < place.curtain.bottom(); ++at, y += band) {
    painter.setPen(QPen(Faded(accent, 0.55), 1, Qt::DotLine));
    if (at > 0) painter.drawLine(QPointF(place.curtain.left(), y), QPointF(place.curtain.right(), y));
    if (!motif) continue;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Faded(accent, 0.3));
    for (std::size_t i = 0; i <= seams.size(); ++i) {
      const double left = i == 0 ? 0 : seams[i - 1];
      const double right = i == seams.size() ? 1 : seams[i];
      const QPointF centre(place.curtain.left() + place.curtain.width() * (left + right) / 2, y + band / 2);
      painter.drawPolygon(QPolygonF({centre + QPointF(0, -size), centre + QPointF(size * 0.7, 0),
                                     centre + QPointF(0, size), centre + QPointF(-size * 0.7, 0)}));
    }
  }
}

void WindowDrawing::DrawSeams(QPainter& painter, const CurtainPlace& place) const {
  painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), 1.4));
  for (const double seam : Seams(window_.sketch)) {
    const double x = place.curtain.left() + place.curtain.width() * seam;
    painter.drawLine(QPointF(x, place.curtain.top()), QPointF(x, place.curtain.bottom() + 4));
  }
}

// The allowance is shared by the head and the hem, both turned to the back.
void WindowDrawing::DrawHems(QPainter& painter, const CurtainPlace& place) const {
  const double depth = window_.sketch.hem / 2 * place.scale;
  if (window_.sketch.drop <= 0 || !(depth >= 1 && depth < place.curtain.height() / 2)) return;
  const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
  const QRectF& curtain = place.curtain;
  const QRectF hem(curtain.left(), curtain.bottom() - depth, curtain.width(), depth + 6);
  painter.fillRect(hem, Faded(accent, 0.16));
  painter.setPen(QPen(Faded(accent, 0.9), 1, Qt::DashLine));
  painter.drawLine(hem.topLeft(), hem.topRight());
  painter.drawLine(QPointF(curtain.left(), curtain.top() + depth),
                   QPointF(curtain.right(), curtain.top() + depth));
}

void WindowDrawing::DrawHeading(QPainter& painter, const CurtainPlace& place) const {
  const QRectF& curtain = place.curtain;
  const int folds = FoldsOf(window_.sketch, curtain);
  const bool gathered = window_.heading == Heading::kGathered;
  if (window_.heading == Heading::kFlat || folds == 0) return;
  const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
  const double depth = std::min(curtain.height() * 0.12, 26.0);
  const double step = curtain.width() / folds;
  painter.setPen(QPen(Faded(accent, 0.8), gathered ? 1 : 1.3));
  painter.setBrush(Blend(palette().color(QPalette::Base), accent, 0.3));
  for (int fold = 0; fold < folds; ++fold) {
    const double x = curtain.left() + (fold + 0.5) * step;
    const double half = step * 0.3;
    if (gathered) {
      painter.drawLine(QPointF(x, curtain.top()), QPointF(x, curtain.top() + depth * 0.6));
    } else if (window_.heading == Heading::kBoxPleat) {
      painter.drawRect(QRectF(x - half, curtain.top(), half * 2, depth));
    } else {
      painter.drawPolygon(QPolygonF({QPointF(x - half, curtain.top()), QPointF(x + half, curtain.top()),
                                     QPointF(x + half * 0.3, curtain.top() + depth),
                                     QPointF(x - half * 0.3, curtain.top() + depth)}));
      painter.drawEllipse(QPointF(x, curtain.top() + 1), half, std::min(3.0, half / 2));
    }
  }
}

// What isn't of the fabric itself has a colour of its own, warm where the accent is cool.
QColor WindowDrawing::TrimColour() const {
  return palette().color(QPalette::Window).lightness() < 128 ? QColor(0xe0, 0x9a, 0x5c)
                                                             : QColor(0xb0, 0x58, 0x20);
}

// A border is as deep as it will be; what is sewn on at the edge is a fringed line.
void WindowDrawing::DrawTrim(QPainter& painter, const CurtainPlace& place) const {
  const curtain_wizard::TrimSketch& trim = window_.sketch.trim;
  if (!trim.Anywhere()) return;
  const QRectF& curtain = place.curtain;
  const bool fringe = trim.depth <= 0;
  const double most = std::min(curtain.width(), curtain.height()) / 4;
  const double depth = std::min(most, fringe ? 4.0 : std::max(3.0, trim.depth * place.scale));
  const double middle = curtain.center().x();
  QPainterPath strips;
  strips.setFillRule(Qt::WindingFill);
  if (trim.top) strips.addRect(QRectF(curtain.left(), curtain.top(), curtain.width(), depth));
  if (trim.bottom)
    strips.addRect(QRectF(curtain.left(), curtain.bottom() - depth, curtain.width(), depth + 6));
  if (trim.sides) {
    strips.addRect(QRectF(curtain.left(), curtain.top(), depth, curtain.height() + 6));
    strips.addRect(QRectF(curtain.right() - depth, curtain.top(), depth, curtain.height() + 6));
  }
  if (trim.middle) strips.addRect(QRectF(middle - depth, curtain.top(), depth * 2, curtain.height() + 6));
  painter.setPen(QPen(TrimColour(), 1.2));
  painter.setBrush(QBrush(Faded(TrimColour(), 0.4), fringe ? Qt::BDiagPattern : Qt::SolidPattern));
  painter.drawPath(strips.simplified());
  if (!trim.middle) return;
  painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
  painter.drawLine(QPointF(middle, curtain.top()), QPointF(middle, curtain.bottom() + 6));
}

// Bands that would hold the cloth aside, at the height where they are hooked.
void WindowDrawing::DrawTieBacks(QPainter& painter, const CurtainPlace& place) const {
  const QRectF& curtain = place.curtain;
  const double reach = std::min(curtain.width() * 0.22, 90.0);
  const double thick = std::clamp(curtain.height() * 0.035, 4.0, 12.0);
  const double y = curtain.top() + curtain.height() * 0.62;
  for (int at = 0; at < window_.sketch.tie_backs; ++at) {
    const double edge = at == 0 ? curtain.left() : curtain.right();
    const double inner = at == 0 ? edge + reach : edge - reach;
    QPainterPath band(QPointF(edge, y - thick));
    band.quadTo(QPointF((edge + inner) / 2, y + thick * 2), QPointF(inner, y + thick));
    band.quadTo(QPointF((edge + inner) / 2, y + thick * 4), QPointF(edge, y + thick));
    band.closeSubpath();
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1));
    painter.setBrush(
        Blend(palette().color(QPalette::Base), palette().color(QPalette::Active, QPalette::Highlight), 0.65));
    painter.drawPath(band);
  }
}

// The lower corner turned up, so that the back is seen; an interlining as a second layer.
void WindowDrawing::DrawLining(QPainter& painter, const CurtainPlace& place) const {
  const curtain_wizard::WindowSketch& sketch = window_.sketch;
  if (!sketch.lined && !sketch.interlined) return;
  const QRectF& curtain = place.curtain;
  const double size = std::min({curtain.width() * 0.2, curtain.height() * 0.2, 46.0});
  const QPointF corner = curtain.bottomRight() + QPointF(0, 5);
  const QPointF up(corner.x(), corner.y() - size);
  const QPointF left(corner.x() - size, corner.y());
  const QPointF turned(corner.x() - size, corner.y() - size);
  const QColor ground = palette().color(QPalette::Window);
  const QColor ink = palette().color(QPalette::WindowText);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.drawPolygon(QPolygonF({up, left, corner + QPointF(1, 1)}));
  painter.setPen(QPen(Blend(ground, ink, 0.6), 1.2));
  painter.setBrush(Blend(palette().color(QPalette::Base), ink, sketch.lined ? 0.12 : 0.3));
  painter.drawPolygon(QPolygonF({up, left, turned}));
  if (!sketch.lined || !sketch.interlined) return;
  const QPointF in(-size * 0.22, -size * 0.22);
  painter.drawLine(QLineF(up + QPointF(in.x(), 0), left + QPointF(0, in.y())));
}

void WindowDrawing::DrawMeasures(QPainter& painter, const CurtainPlace& place) const {
  const curtain_wizard::WindowSketch& sketch = window_.sketch;
  const QRectF& curtain = place.curtain;
  const double line = fontMetrics().height();
  const auto text = [this](double inches) {
    return inches > 0 ? LengthText(inches, window_.unit) : QString("?");
  };
  painter.setPen(palette().color(QPalette::WindowText));
  const double above = curtain.top() - line * 0.9;
  DrawArrow(painter, {curtain.left(), above}, {curtain.right(), above});
  painter.drawText(QRectF(0, above - line * 1.35, width(), line * 1.2), Qt::AlignHCenter | Qt::AlignBottom,
                   "Track " + text(sketch.track));
  // The text stands in the middle of its arrow, or, where that is shorter, begins at its upper end.
  const auto upright = [&](double x, double top, double bottom, const QString& label) {
    DrawArrow(painter, {x, top}, {x, bottom});
    const bool left = x < curtain.center().x();
    const double length = std::max(bottom - top, fontMetrics().horizontalAdvance(label) + 4.0);
    painter.save();
    painter.translate(x + (left ? -line * 0.7 : line * 0.7), top + length / 2);
    painter.rotate(-90);
    painter.drawText(QRectF(-length / 2, -line * 0.6, length, line * 1.2), Qt::AlignCenter, label);
    painter.restore();
  };
  upright(curtain.left() - line * 0.7, curtain.top(), curtain.bottom(), "Drop " + text(sketch.drop));
  const double band = sketch.pattern_repeat * place.scale;
  if (sketch.drop <= 0 || !(band >= kLeastBand && band <= curtain.height())) return;
  const QString repeat = "Repeat " + LengthText(sketch.pattern_repeat, window_.unit);
  upright(curtain.right() + line * 0.7, curtain.top(), curtain.top() + band, repeat);
}

void WindowDrawing::DrawNotes(QPainter& painter, const CurtainPlace& place) const {
  double top = place.curtain.bottom() + fontMetrics().height() * 0.5;
  if (window_.sketch.outdated) {
    painter.setPen(TrimColour());
    const double line = fontMetrics().height() * 1.1;
    painter.drawText(QRectF(0, top, width(), line), Qt::AlignHCenter | Qt::AlignTop, kOutdated);
    top += line;
  }
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(QRectF(0, top, width(), height() - top),
                   Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, Notes(place));
}

}  // namespace tarvane::desktop
