#pragma once

#include "app/main_screen.h"
#include "app/splash.h"
#include "blinds/item_wizard.h"
#include "blinds/templates.h"
#include "catalogues/suppliers.h"
#include "curtain_wizard/frm_preferences.h"
#include "curtain_wizard/wizard.h"
#include "desktop/form.h"
#include "tools/enter_sales_person.h"
#include "tools/list_admin.h"
#include "tools/options.h"

namespace tarvane::desktop {

// One for each screen that has a window, in the file of its name.
void BuildMainForm(Form& form, app::MainScreen& screen);
void BuildSplashForm(Form& form, app::frmSplash& screen);
void BuildOptionsForm(Form& form, tools::frmOptions& screen);
void BuildListAdminForm(Form& form, tools::FrmListAdmin& screen);
void BuildEnterSalesPersonForm(Form& form, tools::FrmEnterSalesPerson& screen);
void BuildPreferencesForm(Form& form, curtain_wizard::FrmPreferences& screen);
void BuildSuppliersForm(Form& form, catalogues::frmSuppliers2& screen);
void BuildBlindWizardForm(Form& form, blinds::WizardNewBlinds& wizard);
void BuildTemplatesForm(Form& form, blinds::FrmBlindsTemplates& screen);
void BuildWizardForm(Form& form, curtain_wizard::MainCWizard& wizard);

}  // namespace tarvane::desktop
