#include "curtain_wizard/frm_preferences.h"
#include "desktop/builders.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"

namespace tarvane {

void BuildPreferencesForm(Form& form) {
  auto& screen = static_cast<FrmPreferences&>(form.screen());
  Builder build(form);
  // Beside the labels; prices have none.
  constexpr std::array<const char*, FrmPreferences::kBoxes> kUnits = {"%",     "",       "",  "", "",
                                                                      "times", "inches", "%", ""};
  std::vector<FieldLine> lines;
  for (std::size_t i = 0; i < kUnits.size(); ++i) {
    lines.push_back({std::string(FrmPreferences::kLabels[i]),
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

}  // namespace tarvane
