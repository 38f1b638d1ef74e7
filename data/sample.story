# A short day in the sample shop: a job is looked up and one of its items looked at; then a new job with one
# window measured in inches and one in centimetres, a discount and the balance.
# sample
press Command1

# The first job that is there, and its first item.
expect-screen Form1
show RecordBar
open QuickFinderGrid 1
show Name Town Ext6 G-Total 4text DepositPaid 5T(4) 5Text
choose SSTab2 "Rooms"
select RoomItemGrid 1
open RoomItemGrid 1
expect-screen MainCWizard
expect-title "Edit Entry"
show TxtRoom TxtDescription CboCurtainStyle TrackWidthIns FinishedLengthIns FabricName FabricPrice
answer yes
press "Close"

# A new job.
press munNew2
expect-screen FrmEnterSalesPerson
type CboSalesPerson "Megan Prys"
press Command1
type Name "Mrs T Linden"
type Address "5 Weavers Row"
type Town "Marlowick"
show Ext2 3Text Ext6

# The bay window, in inches.
choose SSTab1 "Room 1"
press "Add Curtain Wizard"
expect-screen MainCWizard
type TxtDescription "Bay window"
choose CboCurtainStyle "Pencil Pleat"
tick InputInInches
type TrackWidthIns 100
type FinishedLengthIns 80
type HemAllowanceIns 8
type PatternRepeatIns 10
tick AutoRoundup
press "Next >>"
show NumberOfDrops PatternsPerDrop CutLengthIns MetresRequired
type FabricName "Tarnwater Check, moss"
type FabricPrice 24.00
press "Next >>"
show TxtTape TapeCost
press "Next >>"
tick LiningNeeded
show LiningAmount LiningCost
press "Next >>"
press "Next >>"
show LabourWidths LabourCost
press "Next >>"
type TxtVatRate 20
press CmdGetInfo
show CostingGrid
show totalCostingWiz TotalCostingVat GrandTotal
press CmdFinishTwo

# The landing, in centimetres, plain fabric.
expect-screen Form1
press "Add Curtain Wizard"
type TxtDescription "Landing"
choose CboCurtainStyle "Eye Lets"
type TrackWidthCm 135
type FinishedLengthCm 140
type PatternRepeatCm 0
press "Next >>"
type FabricName "Plain linen, oat"
type FabricPrice 18.95
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
type TxtVatRate 20
press CmdGetInfo
press CmdFinishTwo

# What the room and the job come to.
show Text11 Text10
type Ext4 5
show G-Total TxtTotalDiscount 4text DepositPaid 5Text
press "Save Records"
press CmdSize
show RecordBar
