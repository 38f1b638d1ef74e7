#pragma once

namespace tarvane::curtain_wizard {

class MainCWizard;

// Where a trim goes, and how deep a border is once it is folded: half of what is cut.
struct TrimSketch {
  bool top = false;
  bool bottom = false;
  bool sides = false;
  bool middle = false;  // the inner edges of a pair as well
  double depth = 0;     // of a border; 0 for what is sewn on at the edge

  bool Anywhere() const { return top || bottom || sides || middle; }
  bool operator==(const TrimSketch&) const = default;
};

// What a drawing of the window to scale needs, from the fields of the steps. Measures in inches, none of them
// negative or endless; 0 where the field says nothing of use.
struct WindowSketch {
  double track = 0;
  double drop = 0;  // finished length
  double fabric_width = 0;
  double fullness = 0;  // gathered into the track: the auto measure factor where one is chosen
  double widths = 0;    // number of widths
  double cut_length = 0;
  double hem = 0;             // heads and hems
  double pattern_repeat = 0;  // 0 for plain fabric
  TrimSketch trim = {};       // nowhere while trims are off
  int tie_backs = 0;          // 0 to 2
  bool lined = false;
  bool interlined = false;
  // Widths or cut length are there, and aren't what the measures come to; never without a track and a drop.
  bool outdated = false;

  bool operator==(const WindowSketch&) const = default;
};

WindowSketch SketchWindow(const MainCWizard& wizard);

}  // namespace tarvane::curtain_wizard
