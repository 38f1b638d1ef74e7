#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/forms/wizard_steps.h"

namespace tarvane::desktop {

void BuildPleatsForm(Form& form, curtain_wizard::FrmPleats& screen) {
  Builder build(form);
  FillDialog(
      form,
      {
          build.Fields({{"&Track Size between finials", {{screen.PleatTrack, Measured("in")}}},
                        {"&Number of Goblets or Pleats", {{screen.PleatCount, Measured("")}}},
                        {"Pleats",
                         {{build.Column({build.Tick(screen.PleatGoblet), build.Tick(screen.PleatFrench),
                                         build.Tick(screen.PleatPinch)},
                                        1)}}}}),
          build.Row({build.Press(screen.CmdCalculate, true), Builder::Spring()}),
          Results(build, {build.Field(screen.PleatText, {.width = 62, .name = "Pleats and spaces"})}),
          Builder::Spring(),
          build.Rule(),
          build.Row({Builder::Spring(), build.Press(screen.CmdUse), build.Press(screen.CmdCancel)}),
      },
      &screen.CmdCancel);
  SayWhyOff(form, screen.CmdUse, "Calculate first.");
}

}  // namespace tarvane::desktop
