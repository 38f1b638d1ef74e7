#pragma once

#include <QPainterPath>
#include <QWidget>

#include "curtain_wizard/window_sketch.h"

class QPainter;

namespace tarvane::curtain_wizard {
class MainCWizard;
}

namespace tarvane::desktop {

enum class LengthUnit { kInches, kCentimetres, kMillimetres };
enum class Heading { kGathered, kGoblet, kBoxPleat, kFlat };

// A window as it is drawn: lengths are inches, whatever unit the worker reads them in.
struct DrawnWindow {
  curtain_wizard::WindowSketch sketch;
  Heading heading = Heading::kGathered;
  LengthUnit unit = LengthUnit::kInches;

  bool operator==(const DrawnWindow&) const = default;
};

// From the fields of the wizard, as the worker types them: in centimetres before the inches follow.
DrawnWindow ReadWindow(const curtain_wizard::MainCWizard& wizard);

// `inches` in the worker's unit, for reading: one decimal at most.
QString LengthText(double inches, LengthUnit unit);

// Where the curtain of a window stands in a room of so many pixels.
struct CurtainPlace {
  QRectF curtain;
  double scale = 0;      // pixels an inch downwards
  bool to_scale = true;  // false: a side is unknown, or too long beside the other to be seen
};
CurtainPlace PlaceCurtain(const curtain_wizard::WindowSketch& sketch, const QRectF& room);

// A window with its curtain, to scale: pole, widths with their seams, folds, hems, pattern repeats, borders,
// tie backs, the turned lining, and the measures of the track and the drop. Draws a bounded number of lines,
// whatever the measures are. The notes say so where they weren't worked out from the measures that are drawn.
class WindowDrawing : public QWidget {
 public:
  explicit WindowDrawing(QWidget* parent = nullptr);

  void Show(const DrawnWindow& window);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void DrawPole(QPainter& painter, const CurtainPlace& place) const;
  void DrawCloth(QPainter& painter, const CurtainPlace& place, const QPainterPath& cloth) const;
  void DrawPattern(QPainter& painter, const CurtainPlace& place) const;
  void DrawSeams(QPainter& painter, const CurtainPlace& place) const;
  void DrawHems(QPainter& painter, const CurtainPlace& place) const;
  void DrawHeading(QPainter& painter, const CurtainPlace& place) const;
  void DrawTrim(QPainter& painter, const CurtainPlace& place) const;
  void DrawTieBacks(QPainter& painter, const CurtainPlace& place) const;
  void DrawLining(QPainter& painter, const CurtainPlace& place) const;
  void DrawMeasures(QPainter& painter, const CurtainPlace& place) const;
  void DrawNotes(QPainter& painter, const CurtainPlace& place) const;
  QColor TrimColour() const;
  QString Description() const;
  QString WidthsNote() const;
  QString ExtrasNote() const;
  QString Notes(const CurtainPlace& place) const;

  static constexpr char kOutdated[] = "From other measurements: calculate again";

  DrawnWindow window_;
};

}  // namespace tarvane::desktop
