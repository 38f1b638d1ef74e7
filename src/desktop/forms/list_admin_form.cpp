#include <QLabel>

#include "desktop/builders.h"
#include "desktop/folding.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"

namespace tarvane::desktop {

void BuildListAdminForm(Form& form, tools::FrmListAdmin& screen) {
  Builder build(form);
  Pieces options;
  for (OptionButton& option : screen.Lists.Options) options.push_back(build.Tick(option));
  options.push_back(Builder::Gap(1));
  options.push_back(
      build.Row({build.Press(screen.Lists.CMDLOAD, true), build.Press(screen.CMDNEW), Builder::Spring()}));
  options.push_back(Builder::Spring());
  const Piece choice = build.Group("Option lists", {build.Column(options, 1).Grow()});
  const Piece edit =
      build.Column({build.Press(screen.Lists.CMDADD), build.Press(screen.Lists.CMDDELETE),
                    build.Press(screen.CMDCLEAR), build.Press(screen.Lists.CMDSAVE, true), Builder::Spring()},
                   1);
  const Piece entries = build.Group("Entries", {build.Row({build.List(screen.Lists.lstData), edit}).Grow()});
  const Piece note = build.Text(screen.Note, true);
  qobject_cast<QLabel*>(note.widget)->setWordWrap(true);
  FillDialog(form,
             {
                 Folding(build, {choice, entries.Grow()}),
                 build.Fields({{"List Location: ", {{screen.Lists.txtLog}}}}),
                 note,
                 build.Row({Builder::Spring(), build.Press(screen.Command1)}),
             },
             &screen.Command1);
  SayWhyOff(form, screen.Lists.CMDLOAD, "Choose one of the lists first.");
  for (const Button* button :
       {&screen.Lists.CMDADD, &screen.Lists.CMDDELETE, &screen.CMDCLEAR, &screen.Lists.CMDSAVE}) {
    SayWhyOff(form, *button, "Load a list first.");
  }
}

}  // namespace tarvane::desktop
