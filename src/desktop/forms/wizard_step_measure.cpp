#include <QGridLayout>
#include <array>

#include "curtain_wizard/wizard.h"
#include "desktop/flow_row.h"
#include "desktop/forms/wizard_steps.h"
#include "desktop/make.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

constexpr int kCaptions = 29;       // digits, for the longest caption
constexpr int kLeastCaptions = 14;  // in a narrow window

// A measure and its mirror in the worker's other unit.
struct MeasureLine {
  const char* caption;
  TextField curtain_wizard::MainCWizard::*inches;
  TextField curtain_wizard::MainCWizard::*centimetres;
  bool is_length;  // otherwise a factor, the same in both columns
};

constexpr std::array<MeasureLine, 6> kLines = {{
    {"Track Width", &curtain_wizard::MainCWizard::TrackWidthIns, &curtain_wizard::MainCWizard::TrackWidthCm,
     true},
    {"Fabric Width", &curtain_wizard::MainCWizard::FabricWidthIns,
     &curtain_wizard::MainCWizard::FabricWidthCm, true},
    {"Fullness = 2 ( 1 for Roman Blinds)", &curtain_wizard::MainCWizard::Fullness,
     &curtain_wizard::MainCWizard::FullnessMirror, false},
    {"Finished Length", &curtain_wizard::MainCWizard::FinishedLengthIns,
     &curtain_wizard::MainCWizard::FinishedLengthCm, true},
    {"PR (Enter 0 if using plain fabric)", &curtain_wizard::MainCWizard::PatternRepeatIns,
     &curtain_wizard::MainCWizard::PatternRepeatCm, true},
    {"Hemming Allow (Heads and Hems)", &curtain_wizard::MainCWizard::HemAllowanceIns,
     &curtain_wizard::MainCWizard::HemAllowanceCm, true},
}};

Piece CentimetreUnit(Builder& build, curtain_wizard::MainCWizard& wizard) {
  return FollowingText(
      build, [&wizard] { return std::string(wizard.UnitLabel[0].caption() == "mm" ? "mm" : "cm"); });
}

// Both columns side by side; the one that isn't typed into is read-only.
Piece MeasureTable(Builder& build, curtain_wizard::MainCWizard& wizard) {
  auto* grid = Make<QGridLayout>();
  grid->setHorizontalSpacing(Quarters(1));
  grid->setVerticalSpacing(Quarters(1));
  const auto put = [grid](const Piece& piece, int row, int column, Qt::Alignment side = {}) {
    grid->addWidget(piece.widget, row, column, side | Qt::AlignVCenter);
  };
  put(build.Text("Inches", true), 0, 1, Qt::AlignRight);
  put(build.Text(wizard.UnitLabel[0], true), 0, 4, Qt::AlignRight);
  const Look look{.width = 9, .number = true, .mirror = true};
  int row = 1;
  for (const MeasureLine& line : kLines) {
    put(BreakingText(line.caption, kLeastCaptions, kCaptions), row, 0);
    const std::string caption = line.caption;
    const Piece inches = Named(build, wizard.*line.inches, look, caption + ", inches");
    const Piece centimetres = Named(build, wizard.*line.centimetres, look, caption + ", centimetres");
    put(inches, row, 1);
    put(build.Text(line.is_length ? "in" : "\u00d7", true), row, 2);
    put(centimetres, row, 4);
    put(line.is_length ? CentimetreUnit(build, wizard) : build.Text("\u00d7", true), row, 5);
    ++row;
  }
  grid->setColumnMinimumWidth(3, Quarters(2));
  grid->setColumnStretch(6, 1);
  return {nullptr, grid};
}

Piece Choices(Builder& build, curtain_wizard::MainCWizard& wizard) {
  return build.Column(
      {
          build.Group("Convert to:", {build.Row({build.Tick(wizard.UnitCms), build.Tick(wizard.UnitMm),
                                                 Builder::Spring(), build.Press(wizard.CmdHelpTip)})}),
          Builder::Gap(1),
          build.Group("Auto Measure",
                      {build.Column({build.Tick(wizard.AutoMeasureGoblet),
                                     build.Tick(wizard.AutoMeasureBoxPleat), build.Tick(wizard.OptionCancel)},
                                    1),
                       build.Row({Builder::Spring(), build.Press(wizard.CmdGobletWizard)})}),
          Builder::Spring(),
      },
      1);
}

Piece Requirement(Builder& build, curtain_wizard::MainCWizard& wizard) {
  const Look count{.width = 10, .number = true};
  const Look patterns{.width = 18, .number = true, .words = true};  // "Plain Fabric Used"
  const Look metres{.width = 10, .number = true, .unit = "m", .strong = true};
  const Piece unit = build.Text(wizard.UnitLabel[1], true);
  const Piece widths = FlowRow(
      {Named(build, wizard.NumberOfDrops, count, "Number of Drops"), build.Press(wizard.CmdCalculate)});
  const Piece cuts =
      FlowRow({Named(build, wizard.CutLengthIns, Measured("in", 10), "Cuts, inches"),
               build.Row({Named(build, wizard.CutLengthCm, count, "Cuts, centimetres"), unit}, 1)});
  const Piece required = FlowRow({Named(build, wizard.MetresRequired, metres, "Metres required"),
                                  build.Press(wizard.CmdRoundUp), build.Tick(wizard.AutoRoundup)});
  return Results(build, kCaptions,
                 {
                     {"Number of Drops. (Widths)", {{widths.Grow()}}},
                     {"Number of Patterns per Drop .", {{wizard.PatternsPerDrop, patterns}}},
                     {"Cuts =", {{cuts.Grow()}}},
                     {"Metres required", {{required.Grow()}}},
                 });
}

}  // namespace

Piece MeasurePage(Builder& build, curtain_wizard::MainCWizard& wizard) {
  const Piece style = build.Fields({{"Curtain / Valance Style", {{wizard.CboCurtainStyle}}}}).Grow();
  return build.Column({
      FlowRow({style, build.Tick(wizard.InputInInches)}),
      FlowRow({MeasureTable(build, wizard), Choices(build, wizard).Grow()}, 3),
      Builder::Gap(1),
      Requirement(build, wizard),
      Builder::Spring(),
  });
}

}  // namespace tarvane::desktop
