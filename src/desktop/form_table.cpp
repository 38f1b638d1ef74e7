#include "desktop/form_table.h"

#include <algorithm>
#include <array>

#include "desktop/forms/forms.h"

namespace tarvane {
namespace {

constexpr std::array kForms = {
    FormEntry{"Form1", BuildMainForm, true},
    FormEntry{"frmSplash", BuildSplashForm, false},
    FormEntry{"frmOptions", BuildOptionsForm, true},
    FormEntry{"FrmListAdmin", BuildListAdminForm, true},
    FormEntry{"FrmEnterSalesPerson", BuildEnterSalesPersonForm, false},
    FormEntry{"FrmPreferences", BuildPreferencesForm, false},
    FormEntry{"MainCWizard", BuildWizardForm, true},
};

}  // namespace

const FormEntry* FindForm(std::string_view screen) {
  const auto found = std::ranges::find(kForms, screen, &FormEntry::screen);
  return found == kForms.end() ? nullptr : &*found;
}

}  // namespace tarvane
