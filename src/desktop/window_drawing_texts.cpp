// What a drawing of the window reads from the wizard, and what it says in words.
#include <array>
#include <cmath>
#include <utility>

#include "curtain_wizard/wizard.h"
#include "desktop/text.h"
#include "desktop/window_drawing.h"

namespace tarvane::desktop {
namespace {

constexpr double kCentimetresPerInch = 2.54;
constexpr double kInchRounding = 0.06;

bool Mentions(const std::string& text, const char* word) {
  return ToQt(text).contains(QLatin1String(word), Qt::CaseInsensitive);
}

Heading HeadingOf(const curtain_wizard::MainCWizard& wizard, double fullness) {
  const std::string& style = wizard.CboCurtainStyle.text();
  if (wizard.AutoMeasureGoblet.on() || Mentions(style, "goblet")) return Heading::kGoblet;
  if (wizard.AutoMeasureBoxPleat.on() || Mentions(style, "box pleat")) return Heading::kBoxPleat;
  return fullness > 0 && fullness <= 1.05 ? Heading::kFlat : Heading::kGathered;
}

LengthUnit UnitOf(const curtain_wizard::MainCWizard& wizard) {
  if (wizard.InputInInches.on()) return LengthUnit::kInches;
  return wizard.UnitMm.on() ? LengthUnit::kMillimetres : LengthUnit::kCentimetres;
}

// Of a measure that the worker types in centimetres, in inches: the inch box is rounded, and she knows her
// own figure. Millimetres stand in the box where it was converted for reading. Otherwise the inches count,
// but for the box that is being typed into.
double FromMirror(double shown, double inches, bool typing) {
  if (!(std::isfinite(shown) && shown > 0)) return typing ? 0 : inches;
  const double centimetres = shown / kCentimetresPerInch;
  for (const double mirror : {centimetres, centimetres / 10}) {
    if (std::abs(mirror - inches) <= kInchRounding) return mirror;
  }
  return typing ? centimetres : inches;
}

}  // namespace

DrawnWindow ReadWindow(const curtain_wizard::MainCWizard& wizard) {
  DrawnWindow window{.sketch = curtain_wizard::SketchWindow(wizard), .unit = UnitOf(wizard)};
  const std::array<std::pair<const TextField*, double curtain_wizard::WindowSketch::*>, 5> boxes = {{
      {&wizard.TrackWidthCm, &curtain_wizard::WindowSketch::track},
      {&wizard.FinishedLengthCm, &curtain_wizard::WindowSketch::drop},
      {&wizard.FabricWidthCm, &curtain_wizard::WindowSketch::fabric_width},
      {&wizard.PatternRepeatCm, &curtain_wizard::WindowSketch::pattern_repeat},
      {&wizard.HemAllowanceCm, &curtain_wizard::WindowSketch::hem},
  }};
  for (const auto& [box, measure] : boxes) {
    if (!box->enabled()) continue;
    double& inches = window.sketch.*measure;
    const double typed = FromMirror(box->Number(), inches, wizard.focus() == box);
    const bool calculated = window.sketch.widths > 0 || window.sketch.cut_length > 0;
    if (calculated && std::abs(typed - inches) > kInchRounding) window.sketch.outdated = true;
    inches = typed;
  }
  if (window.sketch.track <= 0 || window.sketch.drop <= 0) window.sketch.outdated = false;
  window.heading = HeadingOf(wizard, window.sketch.fullness);
  return window;
}

QString LengthText(double inches, LengthUnit unit) {
  static constexpr std::array<std::pair<double, const char*>, 3> kUnits = {
      {{1, "in"}, {kCentimetresPerInch, "cm"}, {kCentimetresPerInch * 10, "mm"}}};
  const auto& [factor, name] = kUnits[static_cast<std::size_t>(unit)];
  const double length = inches * factor;
  const QString number =
      length < 1e6 ? QString::number(std::round(length * 10) / 10, 'g', 8) : QString::number(length, 'g', 3);
  return number + ' ' + QLatin1String(name);
}

QString WindowDrawing::Description() const {
  const auto length = [this](double inches) { return LengthText(inches, window_.unit); };
  QStringList parts = {"Track " + length(window_.sketch.track), "drop " + length(window_.sketch.drop),
                       WidthsNote(), ExtrasNote()};
  if (window_.sketch.outdated) parts += kOutdated;
  parts.removeAll(QString());
  return parts.join(", ");
}

QString WindowDrawing::WidthsNote() const {
  const curtain_wizard::WindowSketch& sketch = window_.sketch;
  QStringList parts;
  if (sketch.fabric_width > 0) {
    const QString widths = sketch.widths <= 0   ? QString("fabric")
                           : sketch.widths == 1 ? QString("1 width")
                                                : QString("%1 widths").arg(sketch.widths, 0, 'g', 6);
    parts += widths + " of " + LengthText(sketch.fabric_width, window_.unit);
  }
  if (sketch.fullness > 0) parts += QString("fullness %1").arg(sketch.fullness, 0, 'g', 4);
  return parts.join(", ");
}

QString WindowDrawing::ExtrasNote() const {
  const curtain_wizard::WindowSketch& sketch = window_.sketch;
  const curtain_wizard::TrimSketch& trim = sketch.trim;
  QStringList parts;
  if (trim.Anywhere()) {
    QStringList edges;
    if (trim.top) edges += "top";
    if (trim.bottom) edges += "bottom";
    if (trim.sides) edges += trim.middle ? "four sides" : "sides";
    const QString what = trim.depth > 0 ? LengthText(trim.depth, window_.unit) + " border" : QString("trim");
    parts += what + " at " + edges.join(" and ");
  }
  if (sketch.tie_backs > 0) parts += sketch.tie_backs == 1 ? "1 tie back" : "tie backs";
  if (sketch.lined) parts += "lined";
  if (sketch.interlined) parts += "interlined";
  return parts.join(", ");
}

QString WindowDrawing::Notes(const CurtainPlace& place) const {
  const curtain_wizard::WindowSketch& sketch = window_.sketch;
  if (sketch.track <= 0 || sketch.drop <= 0) return "Enter the track width and the finished length";
  QStringList cut;
  if (sketch.cut_length > 0) cut += "cut " + LengthText(sketch.cut_length, window_.unit);
  if (sketch.hem > 0) cut += "heads and hems " + LengthText(sketch.hem, window_.unit);
  QStringList lines = {WidthsNote(), cut.join(", "), ExtrasNote(),
                       place.to_scale ? QString() : QString("Not to scale")};
  lines.removeAll(QString());
  return lines.join('\n');
}

}  // namespace tarvane::desktop
