#include <QGridLayout>
#include <QWidget>
#include <array>

#include "curtain_wizard/wizard.h"
#include "desktop/forms/wizard_steps.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane {
namespace {

constexpr int kCaptions = 29;  // digits, for the longest caption

// A measure and its mirror in the worker's other unit.
struct MeasureLine {
  const char* caption;
  TextField MainCWizard::*inches;
  TextField MainCWizard::*centimetres;
  bool is_length;  // otherwise a factor, the same in both columns
};

constexpr std::array<MeasureLine, 6> kLines = {{
    {"Track Width", &MainCWizard::TrackWidthIns, &MainCWizard::TrackWidthCm, true},
    {"Fabric Width", &MainCWizard::FabricWidthIns, &MainCWizard::FabricWidthCm, true},
    {"Fullness = 2 ( 1 for Roman Blinds)", &MainCWizard::Fullness, &MainCWizard::FullnessMirror, false},
    {"Finished Length", &MainCWizard::FinishedLengthIns, &MainCWizard::FinishedLengthCm, true},
    {"PR (Enter 0 if using plain fabric)", &MainCWizard::PatternRepeatIns, &MainCWizard::PatternRepeatCm,
     true},
    {"Hemming Allow (Heads and Hems)", &MainCWizard::HemAllowanceIns, &MainCWizard::HemAllowanceCm, true},
}};

Piece CentimetreUnit(Builder& build, MainCWizard& wizard) {
  return FollowingText(
      build, [&wizard] { return std::string(wizard.UnitLabel[0].caption() == "mm" ? "mm" : "cm"); });
}

void NameBox(const Piece& box, const char* caption, const char* column) {
  box.widget->setAccessibleName(QString("%1, %2").arg(caption, column));
}

// Both columns side by side; the one that isn't typed into is quiet since its fields are disabled.
Piece MeasureTable(Builder& build, MainCWizard& wizard) {
  auto* grid = std::make_unique<QGridLayout>().release();
  grid->setHorizontalSpacing(Quarters(1));
  grid->setVerticalSpacing(Quarters(1));
  const auto put = [grid](const Piece& piece, int row, int column, Qt::Alignment side = {}) {
    grid->addWidget(piece.widget, row, column, side | Qt::AlignVCenter);
  };
  put(build.Text("Inches", true), 0, 1, Qt::AlignRight);
  put(build.Text(wizard.UnitLabel[0], true), 0, 4, Qt::AlignRight);
  const Look look{.width = 9, .number = true};
  int row = 1;
  for (const MeasureLine& line : kLines) {
    put(build.Text(line.caption), row, 0);
    const Piece inches = build.Field(wizard.*line.inches, look);
    const Piece centimetres = build.Field(wizard.*line.centimetres, look);
    NameBox(inches, line.caption, "inches");
    NameBox(centimetres, line.caption, "centimetres");
    put(inches, row, 1);
    put(build.Text(line.is_length ? "in" : "\u00d7", true), row, 2);
    put(centimetres, row, 4);
    put(line.is_length ? CentimetreUnit(build, wizard) : build.Text("\u00d7", true), row, 5);
    ++row;
  }
  build.form().AddSizer([grid] { grid->setColumnMinimumWidth(0, Digits(kCaptions)); });
  grid->setColumnMinimumWidth(3, Quarters(2));
  grid->setColumnStretch(6, 1);
  return {nullptr, grid};
}

Piece Choices(Builder& build, MainCWizard& wizard) {
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

Piece Requirement(Builder& build, MainCWizard& wizard) {
  const Look count{.width = 10, .number = true};
  const Piece unit = build.Text(wizard.UnitLabel[1], true);
  return Results(
      build, kCaptions,
      {
          {"Number of Drops. (Widths)", {{wizard.NumberOfDrops, count}, {wizard.CmdCalculate}}},
          {"Number of Patterns per Drop .", {{wizard.PatternsPerDrop, {.width = 18, .number = true}}}},
          {"Cuts =", {{wizard.CutLengthIns, Measured("in", 10)}, {wizard.CutLengthCm, count}, {unit}}},
          {"Metres required",
           {{wizard.MetresRequired, {.width = 10, .number = true, .unit = "m", .strong = true}},
            {wizard.CmdRoundUp},
            {wizard.AutoRoundup}}},
      });
}

}  // namespace

Piece MeasurePage(Builder& build, MainCWizard& wizard) {
  return build.Column({
      build.Row({build.Fields({{"Curtain / Valance Style", {{wizard.CboCurtainStyle}}}}).Grow(),
                 Builder::Gap(2), build.Tick(wizard.InputInInches)}),
      build.Row({MeasureTable(build, wizard), Builder::Gap(3), Choices(build, wizard).Grow()}),
      Builder::Gap(1),
      Requirement(build, wizard),
      Builder::Spring(),
  });
}

}  // namespace tarvane
