#include <QShortcut>
#include <QWidget>

#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/forms/wizard_steps.h"
#include "desktop/make.h"

namespace tarvane::desktop {

void BuildPricingEntryForm(Form& form, curtain_wizard::FrmPopUp1Options& screen) {
  Builder build(form);
  const Look text{.width = 36};
  const Look hem{.width = 10, .number = true};
  const auto measured = [&hem](const char* unit) {
    Look look = hem;
    look.unit = unit;
    return look;
  };
  FillDialog(
      form,
      {
          build.Fields({{"Product ID", {{screen.PopUpID, {.width = 8, .number = true}}}},
                        {"&Reference", {{screen.Reference, text}}},
                        {"&Description/ Style", {{screen.Description, text}}},
                        {"&Labour Price", {{screen.LabourPrice, kMoney}}},
                        {"L&ining Price", {{screen.LiningPrice, kMoney}}},
                        {"Lining &Name", {{screen.LiningName, text}}},
                        {"In&terlining Price", {{screen.InterliningPrice, kMoney}}},
                        {"Interlining Na&me", {{screen.InterLiningName, text}}},
                        {"Ta&pe Price", {{screen.TapePrice, kMoney}}},
                        {"&Fullness", {{screen.Fullness, measured("\u00d7")}}},
                        {"&Hems Cms", {{screen.HemsCms, measured("cm")}}},
                        {"Hems &Ins", {{screen.HemsIns, measured("in")}}},
                        {"&Auto Round Up", {{screen.AutoRoundUp, {.width = 10}}}},
                        {"N&otes", {{screen.Notes, {.width = 36, .lines = 3}}}}}),
          Advice(
              build,
              "The wizard takes the hem from the inches. Its box \"Auto Round Up\" follows ON and OFF; YES, "
              "NO and anything else leave it as it is."),
          Builder::Spring(),
          build.Rule(),
          build.Flow({build.Text(screen.Messages, true), Builder::Spring(), build.Press(screen.CmdSave, true),
                      build.Press(screen.CmdClose)}),
      },
      &screen.CmdClose);
  ClosesWindow(form, screen.CmdClose);
  auto* save = Make<QShortcut>(QKeySequence("Ctrl+S"), form.window());
  QObject::connect(save, &QShortcut::activated, &form, [&form, &screen] {
    form.Act(screen.CmdSave, [&screen](Control&) { screen.CmdSave.UserPress(); });
  });
}

}  // namespace tarvane::desktop
