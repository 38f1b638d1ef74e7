# The main road in inches: a new job, one patterned curtain with everything on it, saved, and found again after
# a restart.
expect-screen frmSplash
close
expect-screen Form1
press munNew2
expect-screen FrmEnterSalesPerson
choose CboSalesPerson "Alison Hart"
press Command1
expect Ext6 "Alison Hart"
expect Ext2 1001
expect 3Text 04/05/26
expect Ext4 0
expect Ext1 20
expect G-Total 0.00
type Name "Mrs Elin Tudor"
type Address "3 Weir Lane"
type Town Marlowick
type PostCode "ZZ9 1AB"
choose SSTab2 Rooms

# Step 1: 100 x 2 / 54 = 3.70, 4 widths; (80 + 8) / 10 = 8.8, 9 repeats of 10 inches; 360 / 39.5 = 9.11.
press Command1[0]
expect-screen MainCWizard
expect-title "New Entry"
expect TxtRoom "Room 1"
expect ItemNumber 1001
expect Form1:TxtLastOrderNo 1002
expect-off CmdBack
expect-off CmdFinishTwo
expect Fullness 2.0
expect HemAllowanceIns 9.0
expect HemAllowanceCm 22.86
expect LabourPrice 15.00
choose CboCurtainStyle "Pinch Pleat"
type TxtDescription "Bay window"
expect-off TrackWidthIns
expect-on TrackWidthCm
tick InputInInches
expect "Input Measument in Inches" on
expect-on TrackWidthIns
expect-off TrackWidthCm
type TrackWidthIns 100
type FabricWidthIns 54
expect TrackWidthCm 254
type FinishedLengthIns 80
expect FabricWidthCm 137.16
type PatternRepeatIns 10
expect FinishedLengthCm 203.2
type HemAllowanceIns 8
expect PatternRepeatCm 25.4
expect HemAllowanceCm 20.32
press "Click to Calculate"
expect NumberOfDrops 4
expect PatternsPerDrop 9
expect CutLengthIns 90
expect CutLengthCm 228.6
expect TotalInches 360
expect MetresRequired 9.11
tick AutoRoundup

# Step 2: 9.11 metres are rounded up to 10; 10 x 12.50.
press "Next >>"
expect-on CmdBack
expect HelpLine "Step 2 Costing for Fabric."
expect MetresRequired 10
expect FabricMetres 10
type FabricName "Rosebud Glazed Cotton"
type FabricPrice 12.50
expect FabricCost 125.00

# Step 3: 4 x 54 / 39.5 = 5.47 metres of tape at 1.50.
press "Next >>"
expect HelpLine "Step 3 Costing for Tape"
expect TxtTape 5.5
expect TapePrice 1.50
expect TapeCost 8.25
tick TieBacksNeeded
choose CboTieBacks "4 + Widths 81.2cm (32in)"
choose TieBackStyle "Tie Backs with piping edge"
expect TxtNoOfTieBacks 2
type TxtTieBacksUnitPrice 7.25
expect TieBackTotal 14.5
leave TxtTieBacksUnitPrice
expect TieBackTotal 14.50

# Step 4: by the metre 4 x (80 + 8) / 39.5 = 8.91; the pattern doesn't enter.
press "Next >>"
expect HelpLine "Step 4 Costing for Lining"
expect LiningByWidths off
expect LiningAmount 4
expect LiningCost 18.00
tick LiningNeeded
tick InterliningNeeded
tick LiningByWidths
expect "Metres" on
expect LiningAmount 8.9
expect LiningCost 40.05
expect InterliningCost 53.40
type TxtLiningName "Cream sateen"
type TxtInterliningName Bump

# Step 5: no trims.
press "Next >>"
expect HelpLine "Step 5 Costing for Trims"
expect TxtDropCuts 90
expect AddTrims off

# Step 6: 4 widths at 15.00, 6.00 for the tie backs, 12.50 for handwork.
press "Next >>"
expect LabourWidths 4
expect LabourCost 60.00
type TieBackLabour 6.00
type ExtraLabourText "Hand sewn heading"
type ExtraLabour 12.50
expect TotalLabour 78.50

# Step 7: 125.00 + 8.25 + 14.50 + 40.05 + 53.40 + 60.00 + 6.00 + 12.50.
press "Next >>"
expect HelpLine "Step 7 Printing or saving the information."
expect-off CmdNext
expect-off CmdFinishTwo
type TxtVatRate 20
press CmdGetInfo
expect-off CmdGetInfo
expect-on CmdFinishTwo
expect-rows CostingGrid 20
expect CostingGrid 1 1 "Room & Ref No: "
expect CostingGrid 1 2 "Room 1 -  Item No: 1001"
expect CostingGrid 2 2 "Pinch Pleat"
expect CostingGrid 3 2 "Track(Width) 254Cms (100in)"
expect CostingGrid 4 2 "Drop 203.2Cms (80in)"
expect CostingGrid 5 2 "Fullness = 2.0 : PR 25.4Cms (10in)"
expect CostingGrid 6 2 "Patterns per Drop: 9"
expect CostingGrid 7 2 "Number of Drops (Widths) = 4"
expect CostingGrid 8 2 "Cuts: 90 Ins 228.6 Cms"
expect CostingGrid 10 2 "Fabric Required 10 Metre's"
expect CostingGrid 11 3 125.00
expect CostingGrid 12 2 "Tape Needed: 5.5 Metre's"
expect CostingGrid 15 2 "Qty: 2 at 7.25 each ="
expect CostingGrid 15 3 14.50
expect CostingGrid 16 2 "Lining Needed 8.9 Metres - Lining Name: Cream sateen"
expect CostingGrid 17 2 "Interlining Needed 8.9 Metres Interlining Name: Bump"
expect CostingGrid 18 2 "Costing - Widths 4 @ 15.00 each = "
expect CostingGrid 20 0 20
expect CostingGrid 20 2 "Extra Labour Costing ( Hand sewn heading ) = "
expect CostingGrid 20 3 12.50
expect totalCostingWiz 319.70
expect TotalCostingVat 63.94
expect GrandTotal 383.64
show ItemTextPriced ItemTextPlain ItemTextRoom
expect CmdFinishTwo "Save As New Order and Close"
press CmdFinishTwo

# The room and the job.
expect-screen Form1
expect-rows RoomItemGrid 1
expect RoomItemGrid 0 3 Infomation
expect RoomItemGrid 1 0 1
expect RoomItemGrid 1 1 383.64
expect RoomItemGrid 1 2 "Pinch Pleat - Room 1 - Bay window Track Width = 254Cms (100ins) X Drop = 203.2Cms (80ins)"
expect RoomItemGrid 1 4 CurtainWizard
expect RoomItemGrid 1 5 1001
expect Text11 383.64
expect RoomSummaryTotal[1] 383.64
expect G-Total 383.64
expect 4text 383.64
expect DepositPaid 76.73
expect 5Text 383.64
expect Label8[0] "Room 1 as been Re-Compiled. "
show RoomItemGrid Text10
press "Save Records"

# restart
close
open QuickFinderGrid 1
expect Name "Mrs Elin Tudor"
expect Ext6 "Alison Hart"
expect Ext2 1001
expect TxtLastOrderNo 1002
expect-rows RoomItemGrid 1
expect RoomItemGrid 1 1 383.64
expect G-Total 383.64
expect 5Text 383.64

# The item comes back as it was saved, and works out to the same.
choose SSTab2 Rooms
open RoomItemGrid 1
expect-title "Edit Entry"
expect CboCurtainStyle "Pinch Pleat"
expect TrackWidthIns 100
expect InputInInches on
expect TieBacksNeeded on
expect CboTieBacks "4 + Widths 81.2cm (32in)"
expect TxtVatRate 20.0
expect ItemNumber 1001
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
expect GrandTotal 383.64
answer yes
close
expect-screen Form1
close
