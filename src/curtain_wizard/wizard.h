#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/control.h"
#include "screen/field.h"
#include "screen/grid.h"
#include "screen/screen.h"
#include "shop/list_editor.h"

namespace tarvane {
class Shop;
namespace job {
class JobScreen;
}
}  // namespace tarvane

namespace tarvane::curtain_wizard {

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
  static constexpr std::string_view kName = "MainCWizard";
  static constexpr int kSteps = 7;
  static constexpr std::string_view kNoFabric = "Enter Fabric Name Here";

  // `job` is the main screen; it must outlive the wizard.
  MainCWizard(Host& host, Shop& shop, job::JobScreen& job);

  job::JobScreen& job() const { return *job_; }
  int step() const { return step_; }
  // The item was put into the job, and the job committed.
  bool item_saved() const { return item_saved_; }
  // The products were closed with a fabric picked, the last time that they were shown.
  bool fabric_picked() const { return fabric_picked_; }

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
  Panel StepPanel[kSteps]{{&StepsPanel, "StepPanel", 0}, {&StepsPanel, "StepPanel", 1},
                          {&StepsPanel, "StepPanel", 2}, {&StepsPanel, "StepPanel", 3},
                          {&StepsPanel, "StepPanel", 4}, {&StepsPanel, "StepPanel", 5},
                          {&StepsPanel, "StepPanel", 6}};
  Label HelpLine{this, "HelpLine"};
  Button CmdBack{this, "CmdBack", "<< &Back"};
  Button CmdNext{this, "CmdNext", "&Next >>"};
  Button CmdClose{this, "CmdClose", "&Close"};
  Button CmdWizard{this, "CmdWizard", "&Wizard"};
  Button CmdListOptions{this, "CmdListOptions", "List &Options"};
  Button CmdCurOptions{this, "CmdCurOptions", "&Set Preferences"};
  Button CmdSelect{this, "CmdSelect", "Select from Database"};
  Button CmdGobletWizard{this, "CmdGobletWizard", "Goblet Wizard"};
  Button CmdConverter{this, "CmdConverter", "Converter", kNotBuilt};
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
  TextField PrintMode{this, "PrintMode", "0"};  // "1" without a job
  TextField TotalInches{this, "TotalInches"};
  TextField TxtMTrack{this, "TxtMTrack"};                      // auto measure factor, "1" for none
  TextField TxtAutoTrack{this, "TxtAutoTrack", "0"};           // track times that factor
  TextField TxtPriceTarget2{this, "TxtPriceTarget2", "0.00"};  // the trim price as the worker gave it
  TextField ItemTextPriced{this, "ItemTextPriced", "", -1, TextField::Kind::kMemo};
  TextField ItemTextPlain{this, "ItemTextPlain", "", -1, TextField::Kind::kMemo};
  TextField ItemTextRoom{this, "ItemTextRoom", "", -1, TextField::Kind::kMemo};  // lines ended by "~"

  // The fabric that was picked last, and its price; "" before the first one.
  TextField PickedFabric{this, "PickedFabric"};
  TextField PickedPrice{this, "PickedPrice"};

  // ---- Step 1, measurements ----
  DropDownList CboCurtainStyle{&StepPanel[0], "CboCurtainStyle"};
  TickBox InputInInches{&StepPanel[0], "InputInInches", "Input Measument in Centimetres"};
  TextField TrackWidthIns{&StepPanel[0], "TrackWidthIns"};
  TextField TrackWidthCm{&StepPanel[0], "TrackWidthCm"};
  TextField FabricWidthIns{&StepPanel[0], "FabricWidthIns", "54"};
  TextField FabricWidthCm{&StepPanel[0], "FabricWidthCm", "139.7"};
  TextField Fullness{&StepPanel[0], "Fullness", "2"};
  TextField FullnessMirror{&StepPanel[0], "FullnessMirror", "2"};
  TextField FinishedLengthIns{&StepPanel[0], "FinishedLengthIns"};
  TextField FinishedLengthCm{&StepPanel[0], "FinishedLengthCm"};
  TextField PatternRepeatIns{&StepPanel[0], "PatternRepeatIns"};
  TextField PatternRepeatCm{&StepPanel[0], "PatternRepeatCm"};
  TextField HemAllowanceIns{&StepPanel[0], "HemAllowanceIns", "9"};
  TextField HemAllowanceCm{&StepPanel[0], "HemAllowanceCm", "20.32"};
  Label UnitLabel[2]{{&StepPanel[0], "UnitLabel", 0, "Cms"}, {&StepPanel[0], "UnitLabel", 1, "Cms"}};
  OptionButton UnitCms{&StepPanel[0], "UnitCms", "Cms", kUnitGroup};
  OptionButton UnitMm{&StepPanel[0], "UnitMm", "mm", kUnitGroup};
  OptionButton AutoMeasureGoblet{&StepPanel[0], "AutoMeasureGoblet", "Goblet - Track X by 2.5",
                                 kAutoMeasureGroup};
  OptionButton AutoMeasureBoxPleat{&StepPanel[0], "AutoMeasureBoxPleat", "Box Pleated Track X by 3",
                                   kAutoMeasureGroup};
  OptionButton OptionCancel{&StepPanel[0], "OptionCancel", "Cancel", kAutoMeasureGroup};
  Button CmdCalculate{&StepPanel[0], "CmdCalculate", "Click to Calculate "};
  TextField NumberOfDrops{&StepPanel[0], "NumberOfDrops"};
  TextField PatternsPerDrop{&StepPanel[0], "PatternsPerDrop"};
  TextField CutLengthIns{&StepPanel[0], "CutLengthIns"};
  TextField CutLengthCm{&StepPanel[0], "CutLengthCm"};
  TextField MetresRequired{&StepPanel[0], "MetresRequired"};
  Button CmdRoundUp{&StepPanel[0], "CmdRoundUp", "Round Up"};
  TickBox AutoRoundup{&StepPanel[0], "AutoRoundup", "Auto Round Up"};

  // ---- Step 2, fabric ----
  Button CmdGetFabricFromDatabase{&StepPanel[1], "CmdGetFabricFromDatabase", "Get Fabric"};
  TextField FabricName{&StepPanel[1], "FabricName", kNoFabric};
  TextField FabricMetres{&StepPanel[1], "FabricMetres"};
  DropDownList FabricPrice{&StepPanel[1], "FabricPrice", "0.00"};
  TickBox FabricPriceExVat{&StepPanel[1], "FabricPriceExVat", "Price ex VAT"};
  TextField FabricCost{&StepPanel[1], "FabricCost", "0.00"};

  // ---- Step 3, tape and tie backs ----
  TextField TxtTape{&StepPanel[2], "TxtTape"};
  DropDownList TapePrice{&StepPanel[2], "TapePrice", "0.50"};
  TextField TapeCost{&StepPanel[2], "TapeCost", "0.00"};
  OptionButton NoTieBacks{&StepPanel[2], "NoTieBacks", "No Tie Backs Needed in Same Fabric", kTieBackGroup};
  OptionButton TieBacksNeeded{&StepPanel[2], "TieBacksNeeded", "Tie Backs Needed", kTieBackGroup};
  DropDownList CboTieBacks{&StepPanel[2], "CboTieBacks"};
  DropDownList TieBackStyle{&StepPanel[2], "TieBackStyle"};
  TextField TxtNoOfTieBacks{&StepPanel[2], "TxtNoOfTieBacks", "2"};
  TextField TxtTieBacksUnitPrice{&StepPanel[2], "TxtTieBacksUnitPrice", "0.00"};
  TextField TieBackTotal{&StepPanel[2], "TieBackTotal", "0.00"};

  // ---- Step 4, lining ----
  TickBox LiningByWidths{&StepPanel[3], "LiningByWidths", "Widths"};  // ticked: the amounts are metres
  TickBox LiningNeeded{&StepPanel[3], "LiningNeeded", "Lining Needed"};
  TextField TxtLiningName{&StepPanel[3], "TxtLiningName"};
  TextField LiningAmount{&StepPanel[3], "LiningAmount"};
  DropDownList LiningPrice{&StepPanel[3], "LiningPrice", "0.00"};
  TextField LiningCost{&StepPanel[3], "LiningCost", "0.00"};
  TickBox InterliningNeeded{&StepPanel[3], "InterliningNeeded", "Interlining Needed"};
  TextField TxtInterliningName{&StepPanel[3], "TxtInterliningName"};
  TextField InterliningAmount{&StepPanel[3], "InterliningAmount"};
  DropDownList InterliningPrice{&StepPanel[3], "InterliningPrice", "0.00"};
  TextField InterliningCost{&StepPanel[3], "InterliningCost", "0.00"};

  // ---- Step 5, trims ----
  TickBox AddTrims{&StepPanel[4], "AddTrims", "Add Trims to this Job"};
  DropDownList TrimKind{&StepPanel[4], "TrimKind"};
  DropDownList CboTrims{&StepPanel[4], "CboTrims"};
  TextField TrimName{&StepPanel[4], "TrimName", "Enter Trim or Fabric Name Etc Here"};
  TickBox AllSides{&StepPanel[4], "AllSides", "All Sides Top and Bottom"};
  TickBox PlaceTop{&StepPanel[4], "PlaceTop", "Top"};
  TickBox PlaceBottom{&StepPanel[4], "PlaceBottom", "Bottom"};
  TickBox PlaceTwoSides{&StepPanel[4], "PlaceTwoSides", "Two Sides"};
  TickBox PlaceFourSides{&StepPanel[4], "PlaceFourSides", "Four Sides"};
  // One of these four is shown, by TrimKind.
  Panel BordersPanel{&StepPanel[4], "BordersPanel"};
  Panel FrillPanel{&StepPanel[4], "FrillPanel"};
  Panel TrimmingPanel{&StepPanel[4], "TrimmingPanel"};
  Panel ManualPanel{&StepPanel[4], "ManualPanel"};
  TextField TxtBorderCutSize{&BordersPanel, "TxtBorderCutSize"};  // in BordersPanel
  TickBox TrimByWidths{&StepPanel[4], "TrimByWidths", "Metres"};  // ticked: TxtCurtainWidths holds widths
  TextField TxtCurtainWidths{&StepPanel[4], "TxtCurtainWidths"};
  TextField TxtFabricWidth{&StepPanel[4], "TxtFabricWidth", "54"};
  TextField TxtDropCuts{&StepPanel[4], "TxtDropCuts", "0"};
  Button CalculateTrims{&StepPanel[4], "CalculateTrims", "&Calcurlate"};
  TextField TxtAmountInches{&StepPanel[4], "TxtAmountInches"};
  TextField TxtAmountMetres{&StepPanel[4], "TxtAmountMetres"};
  Button RoundUpTrims{&StepPanel[4], "RoundUpTrims", "&Round Up"};
  TextField TrimMetres{&StepPanel[4], "TrimMetres"};
  Label TrimPriceLabel{&StepPanel[4], "TrimPriceLabel", -1, "Price Per Metre Inc Vat/Tax"};
  DropDownList TrimPrice{&StepPanel[4], "TrimPrice", "0.00"};
  TickBox TrimPriceExVat{&StepPanel[4], "TrimPriceExVat", "Price Inc VAT"};
  TextField TrimCost{&StepPanel[4], "TrimCost", "0.00"};

  // ---- Step 6, labour ----
  TextField LabourWidths{&StepPanel[5], "LabourWidths"};
  DropDownList LabourPrice{&StepPanel[5], "LabourPrice", "0.00"};
  TextField LabourCost{&StepPanel[5], "LabourCost", "0.00"};
  TextField TieBackLabour{&StepPanel[5], "TieBackLabour", "0.00"};
  TextField ExtraLabourText{&StepPanel[5], "ExtraLabourText", "N/A"};
  TextField ExtraLabour{&StepPanel[5], "ExtraLabour", "0.00"};
  TextField TotalLabour{&StepPanel[5], "TotalLabour", "0.00"};

  // ---- Step 7, print or save ----
  Button CmdGetInfo{&StepPanel[6], "CmdGetInfo", "Get Info"};
  HeldGrid CostingGrid{&StepPanel[6], "CostingGrid", {"I-No", "Item", "Description", "Price"}};
  TextField totalCostingWiz{&StepPanel[6], "totalCostingWiz", "0.00"};
  TextField TxtVatRate{&StepPanel[6], "TxtVatRate"};
  TextField TotalCostingVat{&StepPanel[6], "TotalCostingVat", "0.00"};
  TextField GrandTotal{&StepPanel[6], "GrandTotal", "0.00"};
  Button CmdPrint{&StepPanel[6], "CmdPrint", "&Print With Prices"};
  Button Cmdprintwithoutprices{&StepPanel[6], "Cmdprintwithoutprices", "Print &With Out Prices"};
  Button CmdCopy{&StepPanel[6], "CmdCopy", "Copy To Clipboard"};

  // ---- List editor and tax rate, in ListPanel ----
  ListEditor Lists;                           // Option5 to Option10
  DropDownList cboVAT{&ListPanel, "cboVAT"};  // "Set Vat/Tax"; what is chosen is stored in VatAmount

 protected:
  void Load() override;
  void Activate() override;
  bool MayClose() override;
  int CurrentMember(std::string_view family) const override;

 private:
  enum Group { kUnitGroup = 1, kAutoMeasureGroup, kTieBackGroup, kListGroup };

  void NameControls();
  void HookFlow();
  void MoveBy(int steps);
  void ShowSteps(bool steps);  // the steps, or the list editor
  void RunEntryAction();
  void ArriveAtLabour();
  void EnablePrinting(bool on);
  void FillPickLists();
  void FillListEntries();
  void SetPrompts();
  void RunClickActions();  // those of an activation
  void StartNewEntry();
  bool SureToClose();

  // Fabric requirement.
  void HookMeasurements();
  void ConvertWhereChanged(TextField& box, const Rule& convert);
  double MeasuredTrack();
  void CalculatePatterned();
  void CalculatePlain();
  void ApplyInputUnit();
  void ShowCentimetres();
  void ShowMillimetres();
  void SetUnitLabels(std::string_view unit);
  bool AnyMeasureEmpty() const;
  void KeepUnit();

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

  // What other screens hand over.
  void HookPickers();
  void SelectTemplate();
  void GetFabric();
  void TakeFabric();
  void SpacePleats();

  // Labour and totals.
  void HookLabour();
  void CostLabour();
  void AddVat();

  // Printing and saving.
  void HookPrinting();
  void HookSaving();
  void ApplyRestored();
  void FinishNew();
  void Update();
  void CloseSaved();
  void CopyToClipboard();

  // List editor and tax rate.
  void HookLists();
  void StoreTaxRate();

  // Link files.
  void MarkLinkSaved();
  void WriteLink(const std::filesystem::path& file);
  void ReadLink(const std::filesystem::path& file);

  Shop& shop_;
  job::JobScreen* job_;
  int step_ = 0;
  bool item_saved_ = false;
  bool picking_fabric_ = false;  // the products are on top
  bool fabric_picked_ = false;
  const TextField* typed_box_ = nullptr;  // the measure that was typed into and isn't converted yet
  std::string entered_rate_;              // the tax rate as the worker came to it
  std::string saved_link_;                // as it was last opened, saved or started
  std::filesystem::path link_file_;
};

}  // namespace tarvane::curtain_wizard
