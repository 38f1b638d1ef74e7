# Texts that no one should type, in every kind of field: nothing crashes, nothing that was saved is lost.
close
press munNew2
choose CboSalesPerson "Ben Okafor"
press Command1
type Name "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
expect Name "xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx"
type Name "éééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééé"
expect Name "ééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééééé"
type Name "O'Neill \"Bob\" | ~ % * ? [a]"
type Address "1 Weir Lane\r\nMarlowick"
type Town "   "
type Telephone ""
type 5T(3) "notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes "
choose SSTab2 Rooms
press Command1[0]
tick InputInInches
choose CboCurtainStyle Cafe

# Nothing entered: no widths, and the hem alone for a cut.
press CmdCalculate
expect NumberOfDrops 0
expect PatternsPerDrop "Plain Fabric Used"
expect CutLengthIns 9
expect MetresRequired 0.00
type TrackWidthIns abc
type FinishedLengthIns "   "
type PatternRepeatIns "~"
press CmdCalculate
expect TrackWidthCm ""
expect NumberOfDrops 0
expect CutLengthIns 9

# Below nought: -200 / 54 = -3.70; 90 x -4 / 39.5 = -9.11.
type TrackWidthIns -100
type FinishedLengthIns 81
press CmdCalculate
expect NumberOfDrops -4
expect TotalInches -360
expect MetresRequired -9.11
# Without a fabric width the widths stay as they were.
type FabricWidthIns ""
expect FabricWidthIns 0
press CmdCalculate
expect NumberOfDrops -4
type FabricWidthIns "54 inches"
type TrackWidthIns "100in | wide"
press CmdCalculate
expect NumberOfDrops 4
expect MetresRequired 9.11
type Fullness ""
leave Fullness
expect Fullness 2
expect FullnessMirror 2
type HemAllowanceIns ""
expect HemAllowanceIns 0
expect HemAllowanceCm 0
type PatternRepeatIns ""
enter PatternRepeatIns
expect PatternRepeatIns 0
enter TrackWidthIns
expect TrackWidthCm -254
type TrackWidthIns 9999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999999
press CmdCalculate
expect-screen MainCWizard
type TrackWidthIns 0.000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000001
press CmdCalculate
expect-screen MainCWizard
type TrackWidthIns "line\r\nbreak"
press CmdCalculate
expect NumberOfDrops 0

# Good measures again, and prices that are none.
type TrackWidthIns 100
type FabricWidthIns 54
type HemAllowanceIns 9
press "Next >>"
expect FabricMetres 9.11
type FabricPrice -5
expect FabricCost -45.55
type FabricPrice "|"
expect FabricCost 0.00
type FabricMetres ten
expect FabricCost 0.00
type FabricMetres 9.11
type FabricPrice "10 pounds"
expect FabricCost 91.10
type FabricPrice 10
press "Next >>"
type TapePrice ""
expect TapeCost 0.00
type TxtTape -1
type TapePrice 1.50
expect TapeCost -1.50
tick TieBacksNeeded
type TxtTieBacksUnitPrice "five"
expect TieBackTotal 0
leave TxtTieBacksUnitPrice
expect TieBackTotal 0.00
type TxtNoOfTieBacks -2
type TxtTieBacksUnitPrice 3
expect TieBackTotal -6
tick NoTieBacks
press "Next >>"
tick LiningNeeded
type LiningPrice "\r\n"
expect LiningCost 0.00
type LiningPrice 4.50
expect LiningCost 18.00
untick LiningNeeded
press "Next >>"
tick AddTrims
type TxtBorderCutSize "ten"
tick PlaceTop
press CalculateTrims
expect TxtAmountInches 0
expect TrimCost 0.00
untick PlaceTop
untick AddTrims
press "<< Back"
press "<< Back"
press "Next >>"
press "Next >>"
press "Next >>"
type LabourPrice "£15"
expect LabourCost 0.00
type LabourPrice 15
type ExtraLabour minus
expect TotalLabour 60.00
press "Next >>"
type TxtVatRate -10
press CmdGetInfo
# 91.10 + tape 4 x 54 / 39.5 = 5.5 at 1.50 = 8.25 + 60.00, less ten per cent.
expect totalCostingWiz 159.35
expect TotalCostingVat -15.94
expect GrandTotal 143.41
type TxtVatRate abc
expect TotalCostingVat 0.00
expect GrandTotal 159.35
leave TxtVatRate
expect TxtVatRate abc
type TxtVatRate ""
press CmdFinishTwo

expect Text11 159.35
expect RoomItemGrid 1 4 CurtainWizard

# A bar in the description shifts the line's fields: it is kept, but has no way back into the wizard.
press Command1[0]
type TxtDescription "by the | door"
tick InputInInches
choose CboCurtainStyle Cafe
type TrackWidthIns 100
type FinishedLengthIns 81
type PatternRepeatIns 0
press "Next >>"
type FabricPrice 10
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
press CmdFinishTwo
expect-rows RoomItemGrid 2
expect RoomItemGrid 2 1 159.35
expect RoomItemGrid 2 2 "Cafe - Room 1 - by the "
expect RoomItemGrid 2 3 " door Track Width = 254Cms (100ins) X Drop = 205.74Cms (81ins)"
expect RoomItemGrid 2 6 CurtainWizard
expect Text11 318.70
open RoomItemGrid 2
expect-screen Form1
expect Text11 318.70

# A tilde shifts the record: the rest comes back one field late.
choose SSTab1 "Room 2"
press Command1[0]
type TxtDescription "left~right"
tick InputInInches
choose CboCurtainStyle Cafe
type TrackWidthIns 100
type FinishedLengthIns 81
type PatternRepeatIns 0
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
press CmdFinishTwo
expect RoomItemGrid 1 1 68.25
expect RoomItemGrid 1 2 "Cafe - Room 2 - left~right Track Width = 254Cms (100ins) X Drop = 205.74Cms (81ins)"
open RoomItemGrid 1
expect-title "Edit Entry"
expect TxtDescription left
expect TrackWidthIns right
expect FinishedLengthIns 100
expect FabricWidthIns 81
answer yes
press CmdClose
expect-rows RoomItemGrid 1

# A line break ends the line: what stands behind it becomes lines of its own; the price still counts once.
choose SSTab1 "Room 4"
press Command1[0]
type TxtDescription Attic
tick InputInInches
choose CboCurtainStyle Cafe
type TrackWidthIns 100
type FinishedLengthIns 81
type PatternRepeatIns 0
press "Next >>"
type FabricName "two\r\nlines"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
press CmdFinishTwo
expect-rows RoomItemGrid 3
expect RoomItemGrid 1 1 68.25
expect RoomItemGrid 2 2 CurtainWizard
expect Text17 68.25
expect G-Total 455.20

# Letters of any script, quotes and a long text go through.
choose SSTab1 "Room 12"
press Command1[0]
type TxtDescription "Größe \"é\" — 日本 £ long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long "
tick InputInInches
choose CboCurtainStyle Cafe
type TrackWidthIns 100
type FinishedLengthIns 81
type PatternRepeatIns 0
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
press CmdFinishTwo
open RoomItemGrid 1
expect TxtDescription "Größe \"é\" — 日本 £ long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long long "
expect TrackWidthIns 100
answer yes
press CmdClose
expect Text33 68.25
expect G-Total 523.45
press "Save Records"

# restart
close
open QuickFinderGrid 1
expect Name "O'Neill \"Bob\" | ~ % * ? [a]"
expect Address "1 Weir Lane\r\nMarlowick"
expect Town "   "
expect 5T(3) "notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes notes "
expect G-Total 523.45
choose SSTab2 Rooms
choose SSTab1 "Room 4"
expect-rows RoomItemGrid 3
expect Text17 68.25
choose SSTab1 "Room 12"
expect RoomItemGrid 1 1 68.25
expect G-Total 523.45
