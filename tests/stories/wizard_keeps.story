# What the wizard keeps and what it leaves alone: units with an empty box, typed prices, preferences on the way.
close
press munNew2
choose CboSalesPerson "Megan Prys"
press Command1
choose SSTab2 Rooms
press Command1[0]
expect ItemNumber 1001
expect Form1:TxtLastOrderNo 1002
expect-off CmdGetInfo

# A press on a unit does nothing while one of the ten boxes is empty: 254 cm are no 254 mm.
tick InputInInches
type TrackWidthIns 100
type FinishedLengthIns 80
type HemAllowanceIns 8
press UnitMm
expect UnitMm off
expect UnitCms on
expect UnitLabel[0] Cms
type PatternRepeatIns 10
press CmdCalculate
expect CutLengthCm 228.6
press UnitMm
expect UnitMm on
expect TrackWidthCm 2540
expect CutLengthCm 2286
# Looked at in passing, millimetres are no centimetres.
untick InputInInches
focus TrackWidthCm
focus FinishedLengthCm
focus HemAllowanceCm
focus TxtDescription
expect TrackWidthIns 100
expect FinishedLengthIns 80
expect HemAllowanceIns 8
press UnitCms
expect TrackWidthCm 254
# Chosen once more, an option runs its action again.
press AutoMeasureGoblet
expect-said "Goblet - Track X by 2.5 = 250"
press AutoMeasureGoblet
press OptionCancel
expect TxtMTrack 1
expect NumberOfDrops 4

# The preferences on the way: no other number, the step and the reference stay. 20 % leave the price once more.
type TxtRoom "Upper hall"
press "Next >>"
type FabricName Rosebud
type FabricPrice 10
press "&Set Preferences"
press Command1
expect TxtRoom "Upper hall"
expect ItemNumber 1001
expect FabricPrice 8.33
expect FabricCost 75.89
press "Next >>"
press "Next >>"
press "Next >>"

# The trim follows its price as it is typed; off, it stays as it is on the way to labour.
tick AddTrims
type TrimKind Manual
type TxtAmountMetres 3
tick PlaceTop
press CalculateTrims
expect TrimCost 0.00
type TrimPrice 4
expect TrimCost 12.00
untick AddTrims
expect-off BordersPanel
expect-off ManualPanel
press "Next >>"
expect TrimCost 12.00
expect-on CmdGetInfo
press "<< &Back"
tick AddTrims
press "Next >>"
press "Next >>"
expect-off CmdFinishTwo
type TxtVatRate 20
press CmdGetInfo
expect CostingGrid 0 0 I-No
expect totalCostingWiz 156.14
press CmdFinishTwo

# It is on the disk with its job: nothing is saved here.
# restart
close
open QuickFinderGrid 1
choose SSTab2 Rooms
expect-rows RoomItemGrid 1
expect RoomItemGrid 1 5 1001
expect TxtLastOrderNo 1002

# The VAT box of the trim leads back to the price of the item, and preferences leave the goblet in force.
press Command1[2]
expect-off CmdUpdateAndClose
expect-off CmdGetInfo
expect TrimPrice 4
tick AutoMeasureGoblet
expect TxtMTrack 2.5
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
expect AddTrims on
tick TrimPriceExVat
untick TrimPriceExVat
expect TrimPrice 4
expect TrimCost 12.00
press "&Set Preferences"
press Command1
expect AutoMeasureGoblet on
expect TxtMTrack 2.5
expect TxtRoom "Upper hall"
press "Next >>"
press "Next >>"
expect-off CmdUpdateAndClose
press CmdGetInfo
expect-on CmdUpdateAndClose
press CmdUpdateAndClose

# restart
close
open QuickFinderGrid 1
choose SSTab2 Rooms
press Command1[0]
# Another item gets another number, also after the program was started anew.
expect ItemNumber 1002
# The tax rate that is chosen stays the shop's.
press "List &Options"
choose cboVAT 17.5
press "&Wizard"
answer yes
press CmdClose
press Command1[0]
expect ItemNumber 1003
expect cboVAT 17.5
answer yes
press CmdClose
