#include <QWidget>

#include "curtain_wizard/wizard.h"
#include "desktop/flow_row.h"
#include "desktop/forms/wizard_form.h"
#include "desktop/forms/wizard_steps.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

constexpr int kAdviceWidth = 36;   // digits
constexpr int kTableWidth = 60;    // digits, beside the totals
constexpr int kEntriesWidth = 40;  // digits
constexpr int kTableHeight = 32;   // quarters

}  // namespace

Piece TotalsPage(Builder& build, curtain_wizard::MainCWizard& wizard) {
  const TableLook rows{.columns = {{.heading = "I-No", .width = 5, .number = true},
                                   {.heading = "Item", .width = 18},
                                   {.heading = "Description", .width = 50},
                                   {.heading = "Price", .width = 11, .number = true}},
                       .wide = "Description",
                       .name = "Costing"};
  const Look amount{.width = 13, .number = true};
  const Piece totals =
      Results(build, {
                         build.Fields({
                             {"Costing Exc Vat/Tax", {{wizard.totalCostingWiz, amount}}},
                             {"Vat/Tax", {{wizard.TotalCostingVat, amount}}},
                             {"Total", {{wizard.GrandTotal, {.width = 11, .number = true, .strong = true}}}},
                         }),
                         PriceChange(build, wizard),
                     });
  // What is typed here comes before the button that works with it.
  const Piece rate =
      build.Fields({{"Vat/Tax Rate", {{wizard.TxtVatRate, {.width = 7, .number = true, .unit = "%"}}}}});
  const Piece rate_and_button = build.Row({rate, Builder::Gap(1), build.Press(wizard.CmdGetInfo, true)});
  const Piece advice = Advice(build,
                              "Get Info gathers the whole item and works out its total. After that it can be "
                              "saved, printed or copied.")
                           .Grow();
  const Piece table = build.Table(wizard.CostingGrid, rows);
  build.form().AddSizer([table] { table.widget->setMinimumHeight(Quarters(kTableHeight)); });
  const Piece beside =
      build.Column({totals, Builder::Gap(2), build.Press(wizard.CmdCopy), build.Press(wizard.CmdPrint),
                    build.Press(wizard.Cmdprintwithoutprices), Builder::Spring()});
  return build.Column({
      FlowRow({rate_and_button, {advice, kAdviceWidth}}, 3),
      FlowRow({{table, kTableWidth}, beside}, 3).Grow(),
  });
}

Piece WizardListsPage(Builder& build, curtain_wizard::MainCWizard& wizard) {
  Pieces options;
  for (OptionButton& option : wizard.Lists.Options) options.push_back(build.Tick(option));
  const Piece choice = build.Group(
      "Option lists",
      {
          build.Column(options, 1),
          build.Row({build.Press(wizard.Lists.CMDLOAD, true), Builder::Spring()}),
          Builder::Gap(2),
          build.Group("Vat/Tax",
                      {build.Fields(
                          {{"Set Vat/Tax", {{wizard.cboVAT, {.width = 8, .number = true, .unit = "%"}}}}})}),
          Builder::Spring(),
      });
  const Piece edit = build.Column({build.Press(wizard.Lists.CMDADD), build.Press(wizard.Lists.CMDDELETE),
                                   build.Press(wizard.Lists.CMDSAVE, true), Builder::Spring()},
                                  1);
  const Piece entries = build.Group("Entries", {build.Row({build.List(wizard.Lists.lstData), edit}).Grow()});
  return build.Column({
      FlowRow({choice, {entries.Grow(), kEntriesWidth}}, 5).Grow(),
      build.Fields({{"List Location: ", {{wizard.Lists.txtLog}}}}),
      build.Row({build.Press(wizard.CmdWizard), Builder::Spring()}),
  });
}

}  // namespace tarvane::desktop
