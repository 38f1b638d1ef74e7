# The main road in centimetres, plain fabric: what the masks of the inch boxes leave of a measure, the column in
# millimetres, rounding up by hand.
close
press munNew2
choose CboSalesPerson "Ben Okafor"
press Command1
type Name "Mr A. Sorrel"
choose SSTab2 Rooms
choose SSTab1 "Room 3"
expect TxtRoomNum 3
press Command1[0]
expect TxtRoom "Room 3"
expect InputInInches off
choose CboCurtainStyle "Hand Pencil Pleat"
type TxtDescription Landing

# 250 / 2.54 = 98.425, 137 / 2.54 = 53.937, 210 / 2.54 = 82.677, 20 / 2.54 = 7.874.
type TrackWidthCm 250
leave TrackWidthCm
expect TrackWidthIns 98.43
type FabricWidthCm 137
enter FabricWidthCm
expect FabricWidthIns 53.9
type FinishedLengthCm 210
leave FinishedLengthCm
expect FinishedLengthIns 82.7
type PatternRepeatCm 0
leave PatternRepeatCm
expect PatternRepeatIns 0.0
type FullnessMirror 2
expect Fullness 2
# The hem converts back at once: 7.9 x 2.54.
type HemAllowanceCm 20
leave HemAllowanceCm
expect HemAllowanceIns 7.9
expect HemAllowanceCm 20.066

# 98.43 x 2 / 53.9 = 3.652; 82.7 + 7.9 = 90.6; 4 x 90.6 / 39.5 = 9.1747.
press "Click to Calculate"
expect NumberOfDrops 4
expect PatternsPerDrop "Plain Fabric Used"
expect CutLengthIns 90.6
expect CutLengthCm 230.124
expect TotalInches 362.4
expect MetresRequired 9.17

# Millimetres are a matter of display; a plain cut comes back in centimetres with the next calculation.
tick UnitMm
expect UnitLabel[0] mm
expect UnitLabel[1] mm
expect TrackWidthCm 2500.122
expect FabricWidthCm 1369.06
expect FinishedLengthCm 2100.58
expect PatternRepeatCm 0
expect HemAllowanceCm 200.66
expect CutLengthCm 2301.24
press "Click to Calculate"
expect CutLengthCm 230.124
tick UnitCms
expect UnitLabel[0] Cms
expect TrackWidthCm 250.0122
expect HemAllowanceCm 20.066

press "Next >>"
expect AutoRoundup off
expect FabricMetres 9.17
type FabricName "Natural linen"
type FabricPrice 20
expect FabricCost 183.40

# Rounding up by hand adds one to a whole number too, and leaves the tick on for the way forward.
press "<< Back"
press CmdRoundUp
expect MetresRequired 10
expect AutoRoundup on
press CmdRoundUp
expect MetresRequired 11
press "Next >>"
expect MetresRequired 10
expect FabricMetres 10
expect FabricCost 200.00

# 4 x 53.9 / 39.5 = 5.458. A manual length lasts until the step is entered again.
press "Next >>"
expect TxtTape 5.5
expect TapeCost 8.25
type TxtTape 7
expect TapeCost 10.50
press "<< Back"
press "Next >>"
expect TxtTape 5.5
type TapePrice 0
expect TapeCost 0.00
tick NoTieBacks

press "Next >>"
tick LiningNeeded
expect LiningAmount 4
expect LiningCost 18.00
expect-off InterliningAmount
expect-off InterliningPrice
press "Next >>"
press "Next >>"
expect LabourCost 60.00
expect TotalLabour 60.00
press "Next >>"
press CmdGetInfo

# 200.00 + 0.00 + 18.00 + 60.00, and no rate.
expect-rows CostingGrid 18
expect CostingGrid 6 2 "Patterns per Drop: Plain Fabric Used"
expect CostingGrid 8 2 "Cuts: 90.6 Ins 230.124 Cms"
expect CostingGrid 12 2 "No Tape Needed."
expect CostingGrid 13 2 "No Tie Backs Needed in same Fabric"
expect CostingGrid 14 2 "Lining Needed 4 Widths - Lining Name: "
expect CostingGrid 15 2 "No Interlining Needed "
expect totalCostingWiz 278.00
expect TotalCostingVat 0.00
expect GrandTotal 278.00
# A rate typed afterwards works on the totals at once, and is formatted on leaving.
type TxtVatRate 17.5
expect TotalCostingVat 48.65
expect GrandTotal 326.65
leave TxtVatRate
expect TxtVatRate 17.5
type TxtVatRate ""
expect GrandTotal 278.00
leave TxtVatRate
press CmdFinishTwo

expect RoomItemGrid 1 2 "Hand Pencil Pleat - Room 3 - Landing Track Width = 250.0122Cms (98.43ins) X Drop = 210.058Cms (82.7ins)"
expect Text15 278.00
expect Text11 0.00
expect RoomSummaryTotal[3] 278.00
expect G-Total 278.00
expect DepositPaid 55.60
expect Label8[0] "Room 3 as been Re-Compiled. "
press Label10[1]
expect TxtRoomNum 1
expect-rows RoomItemGrid 0
press Label10[3]
expect SSTab1 "Room 3"
expect-rows RoomItemGrid 1
select RoomItemGrid 1
show Text1 Text14
close
