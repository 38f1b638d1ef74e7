#include "curtain_wizard/wizard.h"
#include "desktop/flow_row.h"
#include "desktop/forms/wizard_steps.h"

namespace tarvane::desktop {
namespace {

constexpr int kCaptions = 26;  // digits, for the longest caption

// One of the rows of the lining step.
struct LiningRow {
  TickBox curtain_wizard::MainCWizard::*needed;
  const char* name_caption;
  TextField curtain_wizard::MainCWizard::*name;
  TextField curtain_wizard::MainCWizard::*amount;
  DropDownList curtain_wizard::MainCWizard::*price;
  TextField curtain_wizard::MainCWizard::*cost;
};

constexpr LiningRow kLiningRows[] = {
    {&curtain_wizard::MainCWizard::LiningNeeded, "Lining Fabric Name",
     &curtain_wizard::MainCWizard::TxtLiningName, &curtain_wizard::MainCWizard::LiningAmount,
     &curtain_wizard::MainCWizard::LiningPrice, &curtain_wizard::MainCWizard::LiningCost},
    {&curtain_wizard::MainCWizard::InterliningNeeded, "Interlining Fabric Name",
     &curtain_wizard::MainCWizard::TxtInterliningName, &curtain_wizard::MainCWizard::InterliningAmount,
     &curtain_wizard::MainCWizard::InterliningPrice, &curtain_wizard::MainCWizard::InterliningCost},
};

Piece LiningGroup(Builder& build, curtain_wizard::MainCWizard& wizard, const LiningRow& row) {
  const Piece unit =
      FollowingText(build, [&wizard] { return std::string(wizard.LiningByWidths.on() ? "m" : "widths"); });
  return build.Column(
      {
          build.Tick(wizard.*row.needed),
          Lines(build, kCaptions,
                {
                    {row.name_caption, {{wizard.*row.name}}},
                    {"Amount", {{wizard.*row.amount, {.width = 9, .number = true}}, {unit}}},
                    {"Price", {{wizard.*row.price, kMoney}}},
                }),
          Results(build, kCaptions, {{"Costing", {{wizard.*row.cost, kMoneyResult}}}}),
      },
      1);
}

}  // namespace

Piece FabricPage(Builder& build, curtain_wizard::MainCWizard& wizard) {
  const Piece price = FlowRow({Named(build, wizard.FabricPrice, kMoney, "Price Per Metre Exc Vat/Tax"),
                               build.Tick(wizard.FabricPriceExVat)});
  return build.Column({
      Lines(build, kCaptions,
            {
                {"Fabric Name", {{wizard.FabricName}, {wizard.CmdGetFabricFromDatabase}}},
                {"Metres required", {{wizard.FabricMetres, Measured("m")}}},
                {"Price Per Metre Exc Vat/Tax", {{price.Grow()}}},
            }),
      Results(build, kCaptions, {{"Costing Exc Vat/Tax", {{wizard.FabricCost, kMoneyResult}}}}),
      Builder::Spring(),
  });
}

Piece TapePage(Builder& build, curtain_wizard::MainCWizard& wizard) {
  const Piece tape = build.Group(
      "Tape",
      {
          Lines(build, kCaptions,
                {
                    {"Tape Needed", {{wizard.TxtTape, Measured("m")}}},
                    {"Per Metre =", {{wizard.TapePrice, kMoney}}},
                }),
          Advice(build,
                 "The amount of Tape has been worked out automatically by this wizard. You can alter this "
                 "manually if you wish."),
          Results(build, kCaptions, {{"Costing Exc Vat/Tax", {{wizard.TapeCost, kMoneyResult}}}}),
      });
  const Piece tie_backs = build.Group(
      "Tie Backs",
      {
          build.Row({build.Tick(wizard.NoTieBacks), build.Tick(wizard.TieBacksNeeded), Builder::Spring()}, 4),
          Lines(build, kCaptions,
                {
                    {"Size", {{wizard.CboTieBacks}}},
                    {"Style", {{wizard.TieBackStyle}}},
                    {"Qty", {{wizard.TxtNoOfTieBacks, {.width = 6, .number = true}}}},
                    {"Unit Price", {{wizard.TxtTieBacksUnitPrice, kMoney}}},
                }),
          Results(build, kCaptions, {{"Total Excludes Vat/Tax", {{wizard.TieBackTotal, kMoneyResult}}}}),
      });
  return build.Column({tape, Builder::Gap(2), tie_backs, Builder::Spring()});
}

Piece LiningPage(Builder& build, curtain_wizard::MainCWizard& wizard) {
  return build.Column({
      Advice(build, "The lining amount is based on the amount of Fabric that is needed for the Curtains. "),
      build.Row({build.Text("Priced by"), build.Tick(wizard.LiningByWidths), Builder::Spring()}),
      build.Rule(),
      LiningGroup(build, wizard, kLiningRows[0]),
      build.Rule(),
      LiningGroup(build, wizard, kLiningRows[1]),
      Builder::Spring(),
  });
}

Piece LabourPage(Builder& build, curtain_wizard::MainCWizard& wizard) {
  constexpr int kLabourCaptions = 34;
  return build.Column({
      Advice(build,
             "Labour amounts in the Tarvane System, are based on how many widths are in the Curtains / "
             "Valence and can be set here."),
      Lines(build, kLabourCaptions,
            {
                {"Widths", {{wizard.LabourWidths, Measured("widths")}}},
                {"Price Exc Vat/Tax", {{wizard.LabourPrice, kMoney}}},
                {"Curtain / Valence Labour (Make Up)", {{wizard.LabourCost, kMoney}}},
                {""},
                {"Tie Backs Labour (Make Up)", {{wizard.TieBackLabour, kMoney}}},
                {""},
                {"Extra Labour costings", {{wizard.ExtraLabourText}}},
                {"Extra Labour", {{wizard.ExtraLabour, kMoney}}},
            }),
      Results(build, kLabourCaptions,
              {{"Total Costing for Labour  Exc Vat/Tax", {{wizard.TotalLabour, kMoneyResult}}}}),
      Builder::Spring(),
  });
}

}  // namespace tarvane::desktop
