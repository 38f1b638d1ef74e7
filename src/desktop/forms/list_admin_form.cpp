#include "desktop/builders.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "tools/list_admin.h"

namespace tarvane {

void BuildListAdminForm(Form& form) {
  auto& screen = static_cast<FrmListAdmin&>(form.screen());
  Builder build(form);
  Pieces options;
  for (OptionButton& option : screen.Options) options.push_back(build.Tick(option));
  options.push_back(Builder::Gap(1));
  options.push_back(
      build.Row({build.Press(screen.CMDLOAD, true), build.Press(screen.CMDNEW), Builder::Spring()}));
  options.push_back(Builder::Spring());
  const Piece choice = build.Group("Option lists", {build.Column(options, 1).Grow()});
  const Piece edit =
      build.Column({build.Press(screen.CMDADD), build.Press(screen.CMDDELETE), build.Press(screen.CMDCLEAR),
                    build.Press(screen.CMDSAVE, true), Builder::Spring()},
                   1);
  const Piece entries = build.Group("Entries", {build.Row({build.List(screen.lstData), edit}).Grow()});
  FillDialog(form,
             {
                 build.Row({choice, Builder::Gap(3), entries.Grow()}).Grow(),
                 build.Fields({{"List Location: ", {{screen.txtLog}}}}),
                 build.Text(screen.Note, true),
                 build.Row({Builder::Spring(), build.Press(screen.Command1)}),
             },
             &screen.Command1);
}

}  // namespace tarvane
