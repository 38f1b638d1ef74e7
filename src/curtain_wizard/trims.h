#pragma once

#include <optional>

namespace tarvane::curtain_wizard {

// What a trim is cut from and where it goes. Measures in inches; `widths` may be metres of fabric where the
// worker counts by metres.
struct TrimMeasure {
  double widths = 0;
  double fabric_width = 0;
  double border_cut = 0;
  double drop = 0;
  bool all_sides = false;
  bool top = false;
  bool bottom = false;
  bool two_sides = false;
  bool four_sides = false;
};

// Inches of border; nothing where no placement is chosen. The strips of the sides come on top of those of
// top and bottom; where one drop is too narrow for them, a second one is taken.
std::optional<double> BorderInches(const TrimMeasure& trim);

// Inches of trimming.
double TrimmingInches(const TrimMeasure& trim);

}  // namespace tarvane::curtain_wizard
