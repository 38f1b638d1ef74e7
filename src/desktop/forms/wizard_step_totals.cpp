#include "curtain_wizard/wizard.h"
#include "desktop/forms/wizard_steps.h"
#include "desktop/theme.h"

namespace tarvane {

Piece TotalsPage(Builder& build, MainCWizard& wizard) {
  const TableLook rows{.columns = {{.heading = "I-No", .shown_as = "No", .width = 4, .number = true},
                                   {.heading = "Item", .width = 18},
                                   {.heading = "Description", .width = 50},
                                   {.heading = "Price", .width = 11, .number = true}},
                       .wide = "Description"};
  const Look amount{.width = 13, .number = true};
  const Piece totals =
      Results(build, {
                         build.Fields({
                             {"Costing Exc Vat/Tax", {{wizard.totalCostingWiz, amount}}},
                             {"Vat/Tax", {{wizard.TotalCostingVat, amount}}},
                             {"Total", {{wizard.GrandTotal, {.width = 11, .number = true, .strong = true}}}},
                         }),
                     });
  // What is typed here comes before the button that works with it.
  const Piece rate =
      build.Fields({{"Vat/Tax Rate", {{wizard.TxtVatRate, {.width = 7, .number = true, .unit = "%"}}}}});
  return build.Column({
      build.Row({
          rate,
          Builder::Gap(1),
          build.Press(wizard.CmdGetInfo, true),
          Builder::Gap(1),
          Advice(build,
                 "Get Info gathers the whole item and works out its total. After that it can be saved or "
                 "copied.")
              .Grow(),
      }),
      build
          .Row({
              build.Table(wizard.CostingGrid, rows).Grow(),
              Builder::Gap(1),
              build.Column({totals, Builder::Gap(2), build.Press(wizard.CmdCopy),
                            build.Press(wizard.CmdPrint), build.Press(wizard.Cmdprintwithoutprices),
                            Builder::Spring()}),
          })
          .Grow(),
  });
}

Piece WizardListsPage(Builder& build, MainCWizard& wizard) {
  const Piece choice = build.Group(
      "Option lists",
      {
          build.Column({build.Tick(wizard.Option5), build.Tick(wizard.Option6), build.Tick(wizard.Option7),
                        build.Tick(wizard.Option8), build.Tick(wizard.Option9), build.Tick(wizard.Option10)},
                       1),
          build.Row({build.Press(wizard.CMDLOAD, true), Builder::Spring()}),
          Builder::Gap(2),
          build.Group("Vat/Tax",
                      {build.Fields(
                          {{"Set Vat/Tax", {{wizard.cboVAT, {.width = 8, .number = true, .unit = "%"}}}}})}),
          Builder::Spring(),
      });
  const Piece edit = build.Column({build.Press(wizard.CMDADD), build.Press(wizard.CMDDELETE),
                                   build.Press(wizard.CMDSAVE, true), Builder::Spring()},
                                  1);
  const Piece entries = build.Group("Entries", {build.Row({build.List(wizard.lstData), edit}).Grow()});
  return build.Column({
      build.Row({choice, Builder::Gap(3), entries.Grow()}).Grow(),
      build.Fields({{"List Location: ", {{wizard.txtLog}}}}),
      build.Row({build.Press(wizard.CmdWizard), Builder::Spring()}),
  });
}

}  // namespace tarvane
