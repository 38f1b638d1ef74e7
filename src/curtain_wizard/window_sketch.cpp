#include "curtain_wizard/window_sketch.h"

#include <cmath>

#include "curtain_wizard/wizard.h"

namespace tarvane {
namespace {

double Measure(const TextField& field) {
  const double value = field.Number();
  return std::isfinite(value) && value > 0 ? value : 0;
}

double GatheredFullness(const MainCWizard& wizard) {
  if (wizard.AutoMeasureGoblet.on()) return 2.5;
  if (wizard.AutoMeasureBoxPleat.on()) return 3;
  return Measure(wizard.Fullness);
}

}  // namespace

WindowSketch SketchWindow(const MainCWizard& wizard) {
  return {.track = Measure(wizard.TrackWidthIns),
          .drop = Measure(wizard.FinishedLengthIns),
          .fabric_width = Measure(wizard.FabricWidthIns),
          .fullness = GatheredFullness(wizard),
          .widths = Measure(wizard.NumberOfDrops),
          .cut_length = Measure(wizard.CutLengthIns),
          .hem = Measure(wizard.HemAllowanceIns),
          .pattern_repeat = Measure(wizard.PatternRepeatIns)};
}

}  // namespace tarvane
