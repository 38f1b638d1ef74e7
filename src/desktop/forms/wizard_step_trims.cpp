#include "curtain_wizard/wizard.h"
#include "desktop/flow_row.h"
#include "desktop/forms/wizard_steps.h"

namespace tarvane::desktop {
namespace {

constexpr int kCaptions = 25;  // digits, for the longest caption

Piece Placement(Builder& build, curtain_wizard::MainCWizard& wizard) {
  return build.Group("Placement", {FlowRow({build.Tick(wizard.AllSides), build.Tick(wizard.PlaceTop),
                                            build.Tick(wizard.PlaceBottom), build.Tick(wizard.PlaceTwoSides),
                                            build.Tick(wizard.PlaceFourSides)})});
}

// One of them is shown, by the kind of the trim.
Piece KindPanels(Builder& build, curtain_wizard::MainCWizard& wizard) {
  return build.Column(
      {
          build.Group(
              wizard.BordersPanel,
              {
                  Lines(build, kCaptions,
                        {{"Border Cut Size Ins",
                          {{wizard.TxtBorderCutSize, Measured("in", 7)},
                           {Advice(build, "A cut of 10 inches becomes a 5 inch border, less sewing seams.")
                                .Grow()}}}}),
              }),
          build.Group(wizard.FrillPanel, {Advice(build, "Enter the metres of the frill below.")}),
          build.Group(
              wizard.TrimmingPanel,
              {
                  Advice(build,
                         "For Trimmings I have all the infomation I need just select the placement above and "
                         "click "
                         "the calcurlate button. I will work out how much fringing etc you will need . "),
              }),
          build.Group(wizard.ManualPanel, {Advice(build, "Enter the metres that are needed below.")}),
      },
      0);
}

}  // namespace

Piece TrimsPage(Builder& build, curtain_wizard::MainCWizard& wizard) {
  const Piece drop = Named(build, wizard.TxtDropCuts, Measured("in"), "Cuts");
  const Piece cuts =
      FlowRow({Named(build, wizard.TxtFabricWidth, Measured("in"), "Fabric Width"),
               build.Row({build.Text("Cuts"), drop}), build.Press(wizard.CalculateTrims, true)});
  const Piece price =
      FlowRow({Named(build, wizard.TrimPrice, kMoney, "Price Per Metre"), build.Tick(wizard.TrimPriceExVat)});
  const Piece amount =
      FlowRow({Named(build, wizard.TxtAmountInches, Measured("Inches"), "Amount of Fabric needed in Inches"),
               Named(build, wizard.TxtAmountMetres, Measured("Metres"), "Amount of Fabric needed in Metres"),
               build.Press(wizard.RoundUpTrims)});
  return build.Column(
      {
          Advice(build, "If your Curtains need any Frills/Trims etc you can add the information here."),
          build.Tick(wizard.AddTrims),
          Lines(build, kCaptions,
                {
                    {"Select Style", {{wizard.TrimKind}}},
                    {"Select Description", {{wizard.CboTrims}}},
                    {"Trim  or Fabric Information", {{wizard.TrimName}}},
                }),
          Placement(build, wizard),
          KindPanels(build, wizard),
          Lines(build, kCaptions,
                {
                    {"Widths ",
                     {{wizard.TxtCurtainWidths, {.width = 9, .number = true}}, {wizard.TrimByWidths}}},
                    {"Fabric Width", {{cuts.Grow()}}},
                }),
          Results(build, kCaptions,
                  {
                      {"Amount of Fabric needed in:", {{amount.Grow()}}},
                      {"Metres", {{wizard.TrimMetres, Measured("m")}}},
                      {wizard.TrimPriceLabel, {{price.Grow()}}},
                      {"Costing", {{wizard.TrimCost, kMoneyResult}}},
                  }),
          Builder::Spring(),
      },
      1);
}

}  // namespace tarvane::desktop
