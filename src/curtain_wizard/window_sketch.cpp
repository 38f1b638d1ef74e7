#include "curtain_wizard/window_sketch.h"

#include <algorithm>
#include <cmath>

#include "curtain_wizard/fabric_requirement.h"
#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {
namespace {

double Usable(double value) { return std::isfinite(value) && value > 0 ? value : 0; }

double Measure(const TextField& field) { return Usable(field.Number()); }

double AutoFullness(const MainCWizard& wizard) {
  if (wizard.AutoMeasureGoblet.on()) return 2.5;
  if (wizard.AutoMeasureBoxPleat.on()) return 3;
  return 0;
}

double GatheredFullness(const MainCWizard& wizard) {
  const double factor = AutoFullness(wizard);
  return factor > 0 ? factor : Measure(wizard.Fullness);
}

double WholeCount(double count) { return ParseLeading(RoundUpCount(NumberText(count))); }

bool Differ(double shown, double expected) {
  return std::abs(shown - expected) > 1e-6 * std::max(1.0, std::abs(expected));
}

// By the rules of the calculation, so that a figure that still holds isn't called old.
bool IsOutdated(const WindowSketch& sketch) {
  if (sketch.widths <= 0 && sketch.cut_length <= 0) return false;
  if (sketch.track <= 0 || sketch.drop <= 0) return false;
  if (sketch.fabric_width <= 0 || sketch.fullness <= 0) return true;
  const double widths = sketch.track * sketch.fullness / sketch.fabric_width;
  if (!std::isfinite(widths) || Differ(sketch.widths, WholeCount(widths))) return true;
  const double plain = sketch.drop + sketch.hem;
  const double cut =
      sketch.pattern_repeat > 0 ? sketch.pattern_repeat * WholeCount(plain / sketch.pattern_repeat) : plain;
  return !std::isfinite(cut) || Differ(sketch.cut_length, cut);
}

TrimSketch SketchTrim(const MainCWizard& wizard) {
  if (!wizard.AddTrims.on()) return {};
  const bool all = wizard.AllSides.on();
  const bool pair = wizard.PlaceFourSides.on();
  const bool border = wizard.TrimKind.text() == "Border";
  return {.top = all || wizard.PlaceTop.on(),
          .bottom = all || wizard.PlaceBottom.on(),
          .sides = all || pair || wizard.PlaceTwoSides.on(),
          .middle = pair,
          .depth = border ? Measure(wizard.TxtBorderCutSize) / 2 : 0};
}

int TieBacks(const MainCWizard& wizard) {
  if (!wizard.TieBacksNeeded.on()) return 0;
  return static_cast<int>(std::min(2.0, std::ceil(Measure(wizard.TxtNoOfTieBacks))));
}

}  // namespace

WindowSketch SketchWindow(const MainCWizard& wizard) {
  WindowSketch sketch{.track = Measure(wizard.TrackWidthIns),
                      .drop = Measure(wizard.FinishedLengthIns),
                      .fabric_width = Measure(wizard.FabricWidthIns),
                      .fullness = GatheredFullness(wizard),
                      .widths = Measure(wizard.NumberOfDrops),
                      .cut_length = Measure(wizard.CutLengthIns),
                      .hem = Measure(wizard.HemAllowanceIns),
                      .pattern_repeat = Measure(wizard.PatternRepeatIns),
                      .trim = SketchTrim(wizard),
                      .tie_backs = TieBacks(wizard),
                      .lined = wizard.LiningNeeded.on(),
                      .interlined = wizard.InterliningNeeded.on()};
  sketch.outdated = IsOutdated(sketch);
  return sketch;
}

}  // namespace tarvane::curtain_wizard
