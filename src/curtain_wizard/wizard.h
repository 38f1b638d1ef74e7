#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "screen/control.h"
#include "screen/field.h"
#include "screen/grid.h"
#include "screen/screen.h"

namespace tarvane {

class JobScreen;

// The seven-step curtain wizard: from the measurements of one window to one priced item of a room.
//
// Every quantity is the text of a field and is read anew at each use. Measures are inches (…Ins) with their
// mirrors in centimetres (…Cm, millimetres while UnitMm is on); a metre is 39.5 inches. Any field may hold
// any text; what is no number counts as 0.
//
// The caller fills RoomIndex, and for an item that is edited Txtinfo, TxtRow and TxtViewOnly ("1"), before it
// shows the wizard; TxtViewOnly "2" is the quick wizard, which saves nothing. The procedures below are public
// since other screens and tests run them; none of them faults unless told.
class MainCWizard : public Screen {
 public:
  static constexpr int kSteps = 7;

  // `job` is the main screen; it must outlive the wizard.
  MainCWizard(Host& host, JobScreen& job);

  JobScreen& job() const { return *job_; }
  int step() const { return step_; }

  // Runs what belongs to the arrival at the present step.
  void SetStep();
  // Measurements to widths, cut length and metres.
  void Calculate();
  // Rounds MetresRequired up where AutoRoundup is on.
  void RoundUpCheck();
  // Placement of the trim to inches, metres and cost.
  void CalTrims();
  // TotalLabour from its three parts.
  void LabourCosting();
  // Rows, item texts and totals.
  void GetInfo();
  // The item record without ItemNumber, into Txtinfo.
  void CompileTxtInfo();
  // Fills the fields from the item record in Txtinfo.
  void LoadItemRecord();

  // The clipboard gets ItemTextPriced alone; starts the text editor where the worker says yes. Faults where
  // that can't be started.
  void CopyForTextEditor();

  // Link files (.tvs): 40 lines, each a field. A cancelled choice of file does nothing; all fault where the
  // file can't be read or written.
  void OpenLink();
  void SaveLink();
  void SaveLinkAs();

  // ---- Frame ----
  Panel StepsPanel{this, "StepsPanel"};  // the tabs and the panel of the step
  Panel ListPanel{this, "ListPanel"};    // "List Options": the list editor and the tax rate
  TabStrip StepTabs;
  Panel StepPanel[kSteps]{{this, "StepPanel", 0}, {this, "StepPanel", 1}, {this, "StepPanel", 2},
                          {this, "StepPanel", 3}, {this, "StepPanel", 4}, {this, "StepPanel", 5},
                          {this, "StepPanel", 6}};
  Label HelpLine{this, "HelpLine"};
  Button CmdBack{this, "CmdBack", "<< &Back"};
  Button CmdNext{this, "CmdNext", "&Next >>"};
  Button CmdClose{this, "CmdClose", "&Close"};
  Button CmdWizard{this, "CmdWizard", "&Wizard"};
  Button CmdListOptions{this, "CmdListOptions", "List &Options"};
  Button CmdCurOptions{this, "CmdCurOptions", "&Set Preferences"};
  Button CmdSelect{this, "CmdSelect", "Select from Database"};
  Button CmdGobletWizard{this, "CmdGobletWizard", "Goblet Wizard"};
  Button CmdConverter{this, "CmdConverter", "Converter"};
  Button CmdCalculator{this, "CmdCalculator", "Calcu&lator"};
  Button CmdHelpTip{this, "CmdHelpTip", "Help Tip"};
  Button CmdFinishTwo{this, "CmdFinishTwo", "&Save New Order and Close"};
  Button CmdUpdateAndClose{this, "CmdUpdateAndClose", "&Update Order and Close"};

  TextField TxtRoom{this, "TxtRoom"};
  TextField TxtDescription{this, "TxtDescription"};
  TextField ItemNumber{this, "ItemNumber"};

  // ---- Hand-over and working values, never shown ----
  TextField RoomIndex{this, "RoomIndex"};      // of the main screen's room, from 0
  TextField Txtinfo{this, "Txtinfo"};          // item record of an item that is edited
  TextField TxtRow{this, "TxtRow"};            // its row in the room's grid
  TextField TxtViewOnly{this, "TxtViewOnly"};  // "", "1" or "2"
  TextField TxtAdminVat{this, "TxtAdminVat"};
  TextField PrintMode{this, "PrintMode", "0"};
  TextField TotalInches{this, "TotalInches"};
  TextField TxtMTrack{this, "TxtMTrack"};                      // auto measure factor, "1" for none
  TextField TxtAutoTrack{this, "TxtAutoTrack", "0"};           // track times that factor
  TextField TxtPriceTarget2{this, "TxtPriceTarget2", "0.00"};  // the trim price as the worker gave it
  TextField ItemTextPriced{this, "ItemTextPriced", "", -1, TextField::Kind::kMemo};
  TextField ItemTextPlain{this, "ItemTextPlain", "", -1, TextField::Kind::kMemo};
  TextField ItemTextRoom{this, "ItemTextRoom", "", -1, TextField::Kind::kMemo};  // lines ended by "~"

  // ---- Step 1, measurements ----
  DropDownList CboCurtainStyle{this, "CboCurtainStyle"};
  TickBox InputInInches{this, "InputInInches", "Input Measument in Centimetres"};
  TextField TrackWidthIns{this, "TrackWidthIns"};
  TextField TrackWidthCm{this, "TrackWidthCm"};
  TextField FabricWidthIns{this, "FabricWidthIns", "54"};
  TextField FabricWidthCm{this, "FabricWidthCm", "139.7"};
  TextField Fullness{this, "Fullness", "2"};
  TextField FullnessMirror{this, "FullnessMirror", "2"};
  TextField FinishedLengthIns{this, "FinishedLengthIns"};
  TextField FinishedLengthCm{this, "FinishedLengthCm"};
  TextField PatternRepeatIns{this, "PatternRepeatIns"};
  TextField PatternRepeatCm{this, "PatternRepeatCm"};
  TextField HemAllowanceIns{this, "HemAllowanceIns", "9"};
  TextField HemAllowanceCm{this, "HemAllowanceCm", "20.32"};
  Label UnitLabel[2]{{this, "UnitLabel", 0, "Cms"}, {this, "UnitLabel", 1, "Cms"}};
  OptionButton UnitCms{this, "UnitCms", "Cms", kUnitGroup};
  OptionButton UnitMm{this, "UnitMm", "mm", kUnitGroup};
  OptionButton AutoMeasureGoblet{this, "AutoMeasureGoblet", "Goblet - Track X by 2.5", kAutoMeasureGroup};
  OptionButton AutoMeasureBoxPleat{this, "AutoMeasureBoxPleat", "Box Pleated Track X by 3",
                                   kAutoMeasureGroup};
  OptionButton OptionCancel{this, "OptionCancel", "Cancel", kAutoMeasureGroup};
  Button CmdCalculate{this, "CmdCalculate", "Click to Calculate "};
  TextField NumberOfDrops{this, "NumberOfDrops"};
  TextField PatternsPerDrop{this, "PatternsPerDrop"};
  TextField CutLengthIns{this, "CutLengthIns"};
  TextField CutLengthCm{this, "CutLengthCm"};
  TextField MetresRequired{this, "MetresRequired"};
  Button CmdRoundUp{this, "CmdRoundUp", "Round Up"};
  TickBox AutoRoundup{this, "AutoRoundup", "Auto Round Up"};

  // ---- Step 2, fabric ----
  Button CmdGetFabricFromDatabase{this, "CmdGetFabricFromDatabase", "Get Fabric"};
  TextField FabricName{this, "FabricName", "Enter Fabric Name Here"};
  TextField FabricMetres{this, "FabricMetres"};
  DropDownList FabricPrice{this, "FabricPrice", "0.00"};
  TickBox FabricPriceExVat{this, "FabricPriceExVat", "Price ex VAT"};
  TextField FabricCost{this, "FabricCost", "0.00"};

  // ---- Step 3, tape and tie backs ----
  TextField TxtTape{this, "TxtTape"};
  DropDownList TapePrice{this, "TapePrice", "0.50"};
  TextField TapeCost{this, "TapeCost", "0.00"};
  OptionButton NoTieBacks{this, "NoTieBacks", "No Tie Backs Needed in Same Fabric", kTieBackGroup};
  OptionButton TieBacksNeeded{this, "TieBacksNeeded", "Tie Backs Needed", kTieBackGroup};
  DropDownList CboTieBacks{this, "CboTieBacks"};
  DropDownList TieBackStyle{this, "TieBackStyle"};
  TextField TxtNoOfTieBacks{this, "TxtNoOfTieBacks", "2"};
  TextField TxtTieBacksUnitPrice{this, "TxtTieBacksUnitPrice", "0.00"};
  TextField TieBackTotal{this, "TieBackTotal", "0.00"};

  // ---- Step 4, lining ----
  TickBox LiningByWidths{this, "LiningByWidths", "Widths"};  // ticked: the amounts are metres
  TickBox LiningNeeded{this, "LiningNeeded", "Lining Needed"};
  TextField TxtLiningName{this, "TxtLiningName"};
  TextField LiningAmount{this, "LiningAmount"};
  DropDownList LiningPrice{this, "LiningPrice", "0.00"};
  TextField LiningCost{this, "LiningCost", "0.00"};
  TickBox InterliningNeeded{this, "InterliningNeeded", "Interlining Needed"};
  TextField TxtInterliningName{this, "TxtInterliningName"};
  TextField InterliningAmount{this, "InterliningAmount"};
  DropDownList InterliningPrice{this, "InterliningPrice", "0.00"};
  TextField InterliningCost{this, "InterliningCost", "0.00"};

  // ---- Step 5, trims ----
  TickBox AddTrims{this, "AddTrims", "Add Trims to this Job"};
  DropDownList TrimKind{this, "TrimKind"};
  DropDownList CboTrims{this, "CboTrims"};
  TextField TrimName{this, "TrimName", "Enter Trim or Fabric Name Etc Here"};
  TickBox AllSides{this, "AllSides", "All Sides Top and Bottom"};
  TickBox PlaceTop{this, "PlaceTop", "Top"};
  TickBox PlaceBottom{this, "PlaceBottom", "Bottom"};
  TickBox PlaceTwoSides{this, "PlaceTwoSides", "Two Sides"};
  TickBox PlaceFourSides{this, "PlaceFourSides", "Four Sides"};
  // One of these four is shown, by TrimKind.
  Panel BordersPanel{this, "BordersPanel"};
  Panel FrillPanel{this, "FrillPanel"};
  Panel TrimmingPanel{this, "TrimmingPanel"};
  Panel ManualPanel{this, "ManualPanel"};
  TextField TxtBorderCutSize{this, "TxtBorderCutSize"};  // in BordersPanel
  TickBox TrimByWidths{this, "TrimByWidths", "Metres"};  // ticked: TxtCurtainWidths holds widths
  TextField TxtCurtainWidths{this, "TxtCurtainWidths"};
  TextField TxtFabricWidth{this, "TxtFabricWidth", "54"};
  TextField TxtDropCuts{this, "TxtDropCuts", "0"};
  Button CalculateTrims{this, "CalculateTrims", "&Calcurlate"};
  TextField TxtAmountInches{this, "TxtAmountInches"};
  TextField TxtAmountMetres{this, "TxtAmountMetres"};
  Button RoundUpTrims{this, "RoundUpTrims", "&Round Up"};
  TextField TrimMetres{this, "TrimMetres"};
  Label TrimPriceLabel{this, "TrimPriceLabel", -1, "Price Per Metre Inc Vat/Tax"};
  DropDownList TrimPrice{this, "TrimPrice", "0.00"};
  TickBox TrimPriceExVat{this, "TrimPriceExVat", "Price Inc VAT"};
  TextField TrimCost{this, "TrimCost", "0.00"};

  // ---- Step 6, labour ----
  TextField LabourWidths{this, "LabourWidths"};
  DropDownList LabourPrice{this, "LabourPrice", "0.00"};
  TextField LabourCost{this, "LabourCost", "0.00"};
  TextField TieBackLabour{this, "TieBackLabour", "0.00"};
  TextField ExtraLabourText{this, "ExtraLabourText", "N/A"};
  TextField ExtraLabour{this, "ExtraLabour", "0.00"};
  TextField TotalLabour{this, "TotalLabour", "0.00"};

  // ---- Step 7, print or save ----
  Button CmdGetInfo{this, "CmdGetInfo", "Get Info"};
  HeldGrid CostingGrid{this, "CostingGrid", {"I-No", "Item", "Description", "Price"}};
  TextField totalCostingWiz{this, "totalCostingWiz", "0.00"};
  TextField TxtVatRate{this, "TxtVatRate"};
  TextField TotalCostingVat{this, "TotalCostingVat", "0.00"};
  TextField GrandTotal{this, "GrandTotal", "0.00"};
  Button CmdPrint{this, "CmdPrint", "&Print With Prices"};
  Button Cmdprintwithoutprices{this, "Cmdprintwithoutprices", "Print &With Out Prices"};
  Button CmdCopy{this, "CmdCopy", "Copy To Clipboard"};

  // ---- List editor, in ListPanel ----
  OptionButton Option5;  // the option lists, in the order of their table
  OptionButton Option6;
  OptionButton Option7;
  OptionButton Option8;
  OptionButton Option9;
  OptionButton Option10;
  ListBox lstData{this, "lstData"};
  TextField txtLog{this, "txtLog"};  // the file of the list that is loaded
  Button CMDLOAD{this, "CMDLOAD", "&Load"};
  Button CMDADD{this, "CMDADD", "&Add Entry"};
  Button CMDDELETE{this, "CMDDELETE", "&Delete Entry"};
  Button CMDSAVE{this, "CMDSAVE", "&Save"};
  DropDownList cboVAT{this, "cboVAT"};  // "Set Vat/Tax"

 protected:
  void Load() override;
  void Activate() override;
  bool MayClose() override;
  int CurrentMember(std::string_view family) const override;

 private:
  enum Group { kUnitGroup = 1, kAutoMeasureGroup, kTieBackGroup, kListGroup };

  void PlaceControls();
  void HookFlow();
  void MoveBy(int steps);
  void ShowSteps(bool steps);  // the steps, or the list editor
  void RunEntryAction();
  void ArriveAtLabour();
  void EnablePrinting(bool on);
  void FillPickLists();
  void FillListEntries();
  void SetPrompts();
  void ReadOptions();
  void StartNewEntry();
  bool SureToClose();

  // Fabric requirement.
  void HookMeasurements();
  double MeasuredTrack();
  void CalculatePatterned();
  void CalculatePlain();
  void ApplyInputUnit();
  void ShowCentimetres();
  void ShowMillimetres();
  void SetUnitLabels(std::string_view unit);
  bool AnyMeasureEmpty() const;

  // Costing.
  void HookCosting();
  void ComputeTape();
  void ComputeLining();
  void RemoveFabricVat();
  void ApplyLiningNeeded();
  void ApplyTieBacks();

  // Trims.
  void HookTrims();
  void CheckedCalTrims();
  void ApplyTrims();
  void ApplyAllSides();
  void ApplyPlacements();
  void ApplyTrimUnit();
  void ApplyTrimVat();
  void RoundUpTrimMetres();
  void PriceTrim();

  // Labour and totals.
  void HookLabour();
  void CostLabour();
  void AddVat();

  // Saving.
  void HookSaving();
  void ApplyRestored();
  void FinishNew();
  void Update();
  void CopyToClipboard();

  // List editor.
  void HookLists();
  void LoadList();
  void AddToList();
  void SaveList();

  // Link files.
  void MarkLinkSaved();
  void WriteLink(const std::filesystem::path& file);
  void ReadLink(const std::filesystem::path& file);

  JobScreen* job_;
  int step_ = 0;
  bool list_changed_ = false;
  std::string saved_link_;  // as it was last opened, saved or started
  std::filesystem::path link_file_;
};

}  // namespace tarvane
