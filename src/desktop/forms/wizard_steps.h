#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/builders.h"

namespace tarvane::curtain_wizard {
class MainCWizard;
}

namespace tarvane::desktop {

// Pages of the curtain wizard, one a step.
Piece MeasurePage(Builder& build, curtain_wizard::MainCWizard& wizard);
Piece FabricPage(Builder& build, curtain_wizard::MainCWizard& wizard);
Piece TapePage(Builder& build, curtain_wizard::MainCWizard& wizard);
Piece LiningPage(Builder& build, curtain_wizard::MainCWizard& wizard);
Piece TrimsPage(Builder& build, curtain_wizard::MainCWizard& wizard);
Piece LabourPage(Builder& build, curtain_wizard::MainCWizard& wizard);
Piece TotalsPage(Builder& build, curtain_wizard::MainCWizard& wizard);
// The editor of the option lists, in place of the steps.
Piece WizardListsPage(Builder& build, curtain_wizard::MainCWizard& wizard);

// Lines whose captions are at least so many digits wide, so that the fields of a page stand in one column.
Piece Lines(Builder& build, int digits, const std::vector<FieldLine>& lines);

// What comes out of the fields above, on a ground of its own; its fields stand in the column of those.
Piece Results(Builder& build, const Pieces& pieces);
Piece Results(Builder& build, int digits, const std::vector<FieldLine>& lines);

// A quiet text that changes with the screen.
Piece FollowingText(Builder& build, std::function<std::string()> text);

// A field with the name by which it is read aloud, where no caption of a line says it.
Piece Named(Builder& build, TextField& field, const Look& look, std::string_view name);

// A quiet explanation, broken into lines where it must be.
Piece Advice(Builder& build, std::string_view text);

inline constexpr int kMoneyWidth = 10;  // digits
inline const Look kMoney{.width = kMoneyWidth, .number = true};
inline const Look kMoneyResult{.width = kMoneyWidth, .number = true, .strong = true};

inline Look Measured(const char* unit, int width = 9) {
  return {.width = width, .number = true, .unit = unit};
}

}  // namespace tarvane::desktop
