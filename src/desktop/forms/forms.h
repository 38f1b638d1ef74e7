#pragma once

namespace tarvane {

class Form;

// One for each screen that has a window, in the file of its name.
void BuildMainForm(Form& form);
void BuildSplashForm(Form& form);
void BuildOptionsForm(Form& form);
void BuildListAdminForm(Form& form);
void BuildEnterSalesPersonForm(Form& form);
void BuildPreferencesForm(Form& form);
void BuildWizardForm(Form& form);

}  // namespace tarvane
