#include "desktop/builders.h"
#include "desktop/folding.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/windows.h"

namespace tarvane::desktop {

void BuildOptionsForm(Form& form, tools::frmOptions& screen) {
  Builder build(form);
  const Look percent{.width = 8, .number = true, .unit = "%"};
  const Look number{.width = 8, .number = true};
  const Piece prices = build.Group(
      "Prices and percentages", {build.Fields({
                                     {"Vat/Tax Rate >", {{screen.TxtVat, percent}}},
                                     {"Mark Up Price", {{screen.TxtLastEstimateNo, percent}}},
                                     {"Discount percentage on all items", {{screen.Text3, percent}}},
                                     {"Percentage for deposit needed", {{screen.Text4, percent}}},
                                     {"Currency Symbol", {{screen.TxtCurrencySymbol, {.width = 8}}}},
                                 }),
                                 build.Text("Initial discount percentage set for all new accounts", true)});
  const Piece counters =
      build.Group("Numbers", {build.Fields({
                                 {"Last Ref No", {{screen.TxtLastOrderNo, number}}},
                                 {"Last Doc No", {{screen.TxtLastInvoiceNo, number}}},
                                 {"Last credit Note No", {{screen.TxtLastCrdNote, number}}},
                                 {"Last Pro-Forma No", {{screen.TxtLastProFormaNo, number}}},
                             })});
  const Look wide{.width = 34};
  const Piece company = build.Group("Company", {build.Fields({
                                                   {"Company Name", {{screen.TxtCompany[0], wide}}},
                                                   {"Company Address", {{screen.TxtCompany[1], wide}}},
                                                   {"", {{screen.TxtCompany[2], wide}}},
                                                   {"", {{screen.TxtCompany[3], wide}}},
                                                   {"Post Code", {{screen.TxtCompany[4], {.width = 12}}}},
                                                   {"Telephone", {{screen.TxtCompany[5], wide}}},
                                                   {"Fax", {{screen.TxtCompany[6], wide}}},
                                                   {"Web Site", {{screen.TxtCompany[7], wide}}},
                                                   {"Email", {{screen.TxtCompany[8], wide}}},
                                                   {"Vat Number", {{screen.TxtCompany[9], wide}}},
                                                   {"Company ID", {{screen.TxtCompany[10], {.width = 12}}}},
                                                   {"Notes", {{screen.TxtNotes, {.lines = 4}}}},
                                               })});
  const Piece records =
      build.Row({build.Records(screen.Records), Builder::Spring(), build.Press(screen.CmdNew)});
  FillDialog(
      form,
      {
          Folding(build, {company, build.Column({prices, Builder::Gap(2), counters, Builder::Spring()})}),
          Builder::Gap(1),
          build.Rule(),
          records,
          build.Row({Builder::Spring(), build.Press(screen.cmdOK, true), build.Press(screen.cmdApply),
                     build.Press(screen.cmdCancel)}),
      },
      &screen.cmdCancel);
  ClosesWindow(form, screen.cmdCancel);
  static_cast<DialogWindow*>(form.window())->escaped = [&form] { form.window()->close(); };
  SayWhyOff(form, screen.cmdApply, "Nothing has been changed.");
}

}  // namespace tarvane::desktop
