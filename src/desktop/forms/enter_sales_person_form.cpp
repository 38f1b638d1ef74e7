#include "desktop/builders.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"

namespace tarvane::desktop {

void BuildEnterSalesPersonForm(Form& form, tools::FrmEnterSalesPerson& screen) {
  Builder build(form);
  FillDialog(form, {
                       build.Fields({{"Sales Person", {{screen.CboSalesPerson, {.width = 26}}}}}),
                       Builder::Spring(),
                       build.Row({Builder::Spring(), build.Press(screen.Command1, true)}),
                   });
}

}  // namespace tarvane::desktop
