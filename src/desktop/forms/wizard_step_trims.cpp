#include "curtain_wizard/wizard.h"
#include "desktop/forms/wizard_steps.h"

namespace tarvane {
namespace {

constexpr int kCaptions = 25;  // digits, for the longest caption

Piece Placement(Builder& build, MainCWizard& wizard) {
  return build.Group("Placement",
                     {
                         build.Row({build.Tick(wizard.AllSides), Builder::Gap(1), build.Tick(wizard.PlaceTop),
                                    build.Tick(wizard.PlaceBottom), build.Tick(wizard.PlaceTwoSides),
                                    build.Tick(wizard.PlaceFourSides), Builder::Spring()}),
                     });
}

// One of them is shown, by the kind of the trim.
Piece KindPanels(Builder& build, MainCWizard& wizard) {
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

Piece TrimsPage(Builder& build, MainCWizard& wizard) {
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
                    {"Fabric Width",
                     {{wizard.TxtFabricWidth, Measured("in")},
                      {build.Text("Cuts")},
                      {wizard.TxtDropCuts, Measured("in")},
                      {wizard.CalculateTrims, {.strong = true}}}},
                }),
          Results(build, kCaptions,
                  {
                      {"Amount of Fabric needed in:",
                       {{wizard.TxtAmountInches, Measured("Inches")},
                        {wizard.TxtAmountMetres, Measured("Metres")},
                        {wizard.RoundUpTrims}}},
                      {"Metres", {{wizard.TrimMetres, Measured("m")}}},
                      {wizard.TrimPriceLabel, {{wizard.TrimPrice, kMoney}, {wizard.TrimPriceExVat}}},
                      {"Costing", {{wizard.TrimCost, kMoneyResult}}},
                  }),
          Builder::Spring(),
      },
      1);
}

}  // namespace tarvane
