#include <initializer_list>
#include <utility>

#include "curtain_wizard/wizard.h"

namespace tarvane {

void MainCWizard::PlaceControls() {
  const std::initializer_list<Control*> on_step[kSteps] = {
      {&CboCurtainStyle,  &InputInInches,   &TrackWidthIns,   &TrackWidthCm,      &FabricWidthIns,
       &FabricWidthCm,    &Fullness,        &FullnessMirror,  &FinishedLengthIns, &FinishedLengthCm,
       &PatternRepeatIns, &PatternRepeatCm, &HemAllowanceIns, &HemAllowanceCm,    &UnitLabel[0],
       &UnitLabel[1],     &UnitCms,         &UnitMm,          &AutoMeasureGoblet, &AutoMeasureBoxPleat,
       &OptionCancel,     &CmdCalculate,    &NumberOfDrops,   &PatternsPerDrop,   &CutLengthIns,
       &CutLengthCm,      &MetresRequired,  &CmdRoundUp,      &AutoRoundup},
      {&CmdGetFabricFromDatabase, &FabricName, &FabricMetres, &FabricPrice, &FabricPriceExVat, &FabricCost},
      {&TxtTape, &TapePrice, &TapeCost, &NoTieBacks, &TieBacksNeeded, &CboTieBacks, &TieBackStyle,
       &TxtNoOfTieBacks, &TxtTieBacksUnitPrice, &TieBackTotal},
      {&LiningByWidths, &LiningNeeded, &TxtLiningName, &LiningAmount, &LiningPrice, &LiningCost,
       &InterliningNeeded, &TxtInterliningName, &InterliningAmount, &InterliningPrice, &InterliningCost},
      {&AddTrims,       &TrimKind,      &CboTrims,       &TrimName,        &AllSides,
       &PlaceTop,       &PlaceBottom,   &PlaceTwoSides,  &PlaceFourSides,  &BordersPanel,
       &FrillPanel,     &TrimmingPanel, &ManualPanel,    &TrimByWidths,    &TxtCurtainWidths,
       &TxtFabricWidth, &TxtDropCuts,   &CalculateTrims, &TxtAmountInches, &TxtAmountMetres,
       &RoundUpTrims,   &TrimMetres,    &TrimPriceLabel, &TrimPrice,       &TrimPriceExVat,
       &TrimCost},
      {&LabourWidths, &LabourPrice, &LabourCost, &TieBackLabour, &ExtraLabourText, &ExtraLabour,
       &TotalLabour},
      {&CmdGetInfo, &CostingGrid, &totalCostingWiz, &TxtVatRate, &TotalCostingVat, &GrandTotal, &CmdPrint,
       &Cmdprintwithoutprices, &CmdCopy},
  };
  for (int step = 0; step < kSteps; ++step) {
    StepPanel[step].SetPanel(&StepsPanel);
    for (Control* control : on_step[step]) control->SetPanel(&StepPanel[step]);
  }
  StepTabs.SetPanel(&StepsPanel);
  TxtBorderCutSize.SetPanel(&BordersPanel);
  for (Control* control :
       std::initializer_list<Control*>{&Option5, &Option6, &Option7, &Option8, &Option9, &Option10, &lstData,
                                       &txtLog, &CMDLOAD, &CMDADD, &CMDDELETE, &CMDSAVE, &cboVAT}) {
    control->SetPanel(&ListPanel);
  }
  for (Control* control : std::initializer_list<Control*>{
           &RoomIndex, &Txtinfo, &TxtRow, &TxtViewOnly, &TxtAdminVat, &PrintMode, &TotalInches, &TxtMTrack,
           &TxtAutoTrack, &TxtPriceTarget2, &ItemTextPriced, &ItemTextPlain, &ItemTextRoom}) {
    control->SetNeverShown();
  }
  for (const auto& [control, alias] :
       std::initializer_list<std::pair<Control*, const char*>>{{&RoomIndex, "Text37"},
                                                               {&LabourPrice, "Combo3"},
                                                               {&LiningPrice, "Combo4"},
                                                               {&InterliningPrice, "Combo12"},
                                                               {&TapePrice, "Combo2"},
                                                               {&Fullness, "Text3"},
                                                               {&FullnessMirror, "Text20"},
                                                               {&HemAllowanceIns, "Text9"},
                                                               {&HemAllowanceCm, "Text19"}}) {
    control->AddAlias(alias);
  }
}

}  // namespace tarvane
