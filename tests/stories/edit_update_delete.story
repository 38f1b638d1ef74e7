# Two items in a room: one is edited and updated, one deleted; each time the room and the job follow.
close
press munNew2
choose CboSalesPerson "Alison Hart"
press Command1
type Name "Mrs K. Brandt"
choose SSTab2 Rooms

# 9.11 metres at 10.00, tape 8.25, labour 60.00.
press Command1[0]
expect ItemNumber 1001
tick InputInInches
choose CboCurtainStyle "Pencil Pleat"
type TxtDescription Hall
type TrackWidthIns 100
type FinishedLengthIns 80
type PatternRepeatIns 10
type HemAllowanceIns 8
press "Next >>"
type FabricName Rosebud
type FabricPrice 10
press "Next >>"
tick NoTieBacks
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
expect GrandTotal 159.35
press CmdFinishTwo
expect Text11 159.35

# A second item, goblet headed and lined: 50 x 2.5 / 54 = 2.31, 3 widths of 60 + 9 inches, 207 / 39.5 = 5.24.
press Command1[0]
expect ItemNumber 1002
tick InputInInches
choose CboCurtainStyle "Goblet Pleat"
type TxtDescription "Side window"
type TrackWidthIns 50
type FinishedLengthIns 60
type PatternRepeatIns 0
tick AutoMeasureGoblet
expect NumberOfDrops 3
expect MetresRequired 5.24
press "Next >>"
type FabricName "Plain calico"
type FabricPrice 8
expect FabricCost 41.92
press "Next >>"
expect TxtTape 4.1
expect TapeCost 6.15
tick NoTieBacks
press "Next >>"
tick LiningNeeded
expect LiningCost 13.50
press "Next >>"
press "Next >>"
expect LabourCost 45.00
press "Next >>"
press CmdGetInfo
expect GrandTotal 106.57
press CmdFinishTwo
expect-rows RoomItemGrid 2
expect RoomItemGrid 2 1 106.57
expect RoomItemGrid 2 2 "Goblet Pleat - Room 1 - Side window Track Width = 127Cms (50ins) X Drop = 152.4Cms (60ins)"
expect Text11 265.92
expect G-Total 265.92
expect DepositPaid 53.18
show Text10

# The first is only 60 inches wide: 120 / 54 = 2.22, 3 widths, 270 / 39.5 = 6.84 metres; tape 4.1, labour 45.00.
select RoomItemGrid 1
press Command1[2]
expect-title "Edit Entry"
expect-hidden CmdFinishTwo
expect-shown CmdUpdateAndClose
expect-off CmdWizard
expect-off CmdListOptions
expect ItemNumber 1001
expect Form1:TxtLastOrderNo 1003
expect NoTieBacks on
expect FabricPrice 10
type TrackWidthIns 60
press "Next >>"
expect MetresRequired 6.84
expect FabricCost 68.40
press "Next >>"
expect TapeCost 6.15
press "Next >>"
press "Next >>"
press "Next >>"
expect LabourCost 45.00
press "Next >>"
press CmdGetInfo
expect GrandTotal 119.55
press CmdUpdateAndClose
expect RoomItemGrid 1 1 119.55
expect RoomItemGrid 1 2 "Pencil Pleat - Room 1 - Hall Track Width = 152.4Cms (60ins) X Drop = 203.2Cms (80ins) # Fabric = Rosebud Qty = 6.84 Mts #  # Border Required "
expect RoomItemGrid 1 4 CurtainWizard
expect RoomItemGrid 1 5 1001
expect Text11 226.12
expect G-Total 226.12
show Text10

# What was written into the summary goes with the next compiling.
type Text10 "by hand"
press "Clear and Complie 1"
expect Label8[0] "Room 1 as been Re-Compiled. "
show Text10

# Deleting asks first.
select RoomItemGrid 1
answer no
press CmdDeleteFromRoom
expect-rows RoomItemGrid 2
expect Text11 226.12
answer yes
press CmdDeleteFromRoom
expect-said "Delete item 1.  Are You Sure? \nThis will delete this item and update the costing."
expect-rows RoomItemGrid 1
expect RoomItemGrid 1 0 1
expect RoomItemGrid 1 1 106.57
expect RoomItemGrid 1 5 1002
expect Text11 106.57
expect G-Total 106.57
expect DepositPaid 21.31
expect Label8[0] "Room 1 as been Re-Compiled. "

# The last one leaves nothing behind.
answer yes
press CmdDeleteFromRoom
expect-rows RoomItemGrid 0
expect 1T(0) ""
expect Text10 ""
expect Text11 0.00
expect G-Total 0.00
expect 5Text 0.00
# An empty room has nothing to delete or to edit.
press CmdDeleteFromRoom
press Command1[2]
expect-screen Form1
open RoomItemGrid 0
expect-screen Form1
press "Save Records"

# restart
close
open QuickFinderGrid 1
expect Name "Mrs K. Brandt"
expect G-Total 0.00
expect TxtLastOrderNo 1003
