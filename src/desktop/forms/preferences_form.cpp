#include "desktop/builders.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"

namespace tarvane::desktop {

void BuildPreferencesForm(Form& form, curtain_wizard::FrmPreferences& screen) {
  Builder build(form);
  // Beside the labels; prices have none.
  constexpr std::array<const char*, curtain_wizard::FrmPreferences::kBoxes> kUnits = {
      "%", "", "", "", "", "times", "inches", "%", ""};
  std::vector<FieldLine> lines;
  for (std::size_t i = 0; i < kUnits.size(); ++i) {
    lines.push_back({std::string(curtain_wizard::FrmPreferences::kLabels[i]),
                     {{screen.Text1[i], {.width = 10, .number = true, .unit = kUnits[i]}}}});
  }
  FillDialog(
      form,
      {
          build.Group("Presets of the curtain wizard", {build.Fields(lines)}),
          Builder::Spring(),
          build.Row({Builder::Spring(), build.Press(screen.Command22, true), build.Press(screen.Command1)}),
      },
      &screen.Command1);
}

}  // namespace tarvane::desktop
