#pragma once

namespace tarvane {

class MainCWizard;

// What a drawing of the window to scale needs, from the fields of the first step. Measures in inches, none of
// them negative or endless; 0 where the field says nothing of use.
struct WindowSketch {
  double track = 0;
  double drop = 0;  // finished length
  double fabric_width = 0;
  double fullness = 0;  // gathered into the track: the auto measure factor where one is chosen
  double widths = 0;    // number of widths
  double cut_length = 0;
  double hem = 0;             // heads and hems
  double pattern_repeat = 0;  // 0 for plain fabric

  bool operator==(const WindowSketch&) const = default;
};

WindowSketch SketchWindow(const MainCWizard& wizard);

}  // namespace tarvane
