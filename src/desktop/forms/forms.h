#pragma once

#include "app/main_screen.h"
#include "app/splash.h"
#include "blinds/item_wizard.h"
#include "blinds/templates.h"
#include "catalogues/accessories.h"
#include "catalogues/price_list/frm_price_list.h"
#include "catalogues/products.h"
#include "catalogues/suppliers.h"
#include "curtain_wizard/frm_preferences.h"
#include "curtain_wizard/pleats.h"
#include "curtain_wizard/pricing.h"
#include "curtain_wizard/pricing_entry.h"
#include "curtain_wizard/single_item.h"
#include "curtain_wizard/wizard.h"
#include "desktop/form.h"
#include "printing/edit_template.h"
#include "printing/page_browser.h"
#include "printing/preview.h"
#include "printing/print_db.h"
#include "printing/printing_options.h"
#include "printing/quick_print.h"
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
void BuildQuickPrintForm(Form& form, printing::FrmPrint& screen);
void BuildEditTemplateForm(Form& form, printing::FrmEditTemp& screen);
void BuildPreferencesForm(Form& form, curtain_wizard::FrmPreferences& screen);
void BuildProductsForm(Form& form, catalogues::FrmFabricDatabase2& screen);
void BuildAccessoriesForm(Form& form, catalogues::FrmItemsDatabase& screen);
void BuildSuppliersForm(Form& form, catalogues::frmSuppliers2& screen);
void BuildPriceListForm(Form& form, catalogues::FrmPriceList& screen);
void BuildBlindWizardForm(Form& form, blinds::WizardNewBlinds& wizard);
void BuildTemplatesForm(Form& form, blinds::FrmBlindsTemplates& screen);
void BuildPrintingForm(Form& form, printing::FrmPrinting& screen);
void BuildWizardForm(Form& form, curtain_wizard::MainCWizard& wizard);
void BuildPricingForm(Form& form, curtain_wizard::FrmPopUp1& screen);
void BuildPricingEntryForm(Form& form, curtain_wizard::FrmPopUp1Options& screen);
void BuildPleatsForm(Form& form, curtain_wizard::FrmPleats& screen);
void BuildPreviewForm(Form& form, printing::frmPreview& screen);
void BuildSingleItemForm(Form& form, curtain_wizard::FrmSimgleItem& screen);
void BuildPageBrowserForm(Form& form, printing::frmMultiPgPreview& screen);
void BuildPrintDbForm(Form& form, printing::FrmPrintDB& screen);

}  // namespace tarvane::desktop
