#include "desktop/builders.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "tools/enter_sales_person.h"

namespace tarvane {

void BuildEnterSalesPersonForm(Form& form) {
  auto& screen = static_cast<FrmEnterSalesPerson&>(form.screen());
  Builder build(form);
  FillDialog(form, {
                       build.Fields({{"Sales Person", {{screen.CboSalesPerson, {.width = 26}}}}}),
                       Builder::Spring(),
                       build.Row({Builder::Spring(), build.Press(screen.Command1, true)}),
                   });
}

}  // namespace tarvane
