# A short day in the sample shop: a job is looked up and one of its items looked at; then a new job with one
# window measured in inches and one in centimetres, a blind, hold backs and a track out of the catalogues, a
# discount and the balance.
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

# The landing, in centimetres, plain fabric: this one out of the product database.
expect-screen Form1
press "Add Curtain Wizard"
type TxtDescription "Landing"
choose CboCurtainStyle "Eye Lets"
type TrackWidthCm 135
type FinishedLengthCm 140
type PatternRepeatCm 0
press "Next >>"
press "Get Fabric"
expect-screen FrmFabricDatabase2
choose CboFabSearch ProductName
type FabSText "Plain linen, oat"
enter FabSText
press "Add  to Curtain Wizard."
expect-screen MainCWizard
show FabricName FabricPrice
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
type TxtVatRate 20
press CmdGetInfo
press CmdFinishTwo

# A blind for the bathroom, from a template. The lines that end with a colon are filled in.
choose SSTab1 "Room 2"
press "Add Items Wizard Using Templates Database"
expect-screen WizardNewBlinds
press "Get Items from Template Database"
expect-screen FrmBlindsTemplates
choose CboFabSearch Description
type FabSText "Roller blind, wipe clean"
enter FabSText
press CmdUseItems
expect-screen WizardNewBlinds
type HPtxtFields[4] "Width (cm): 74"
type HPtxtFields[5] "Drop (cm): 110"
type HPtxtFields[6] "Fabric and colour: sea spray"
show TxtGrandTotal
press "Save New Order and Close"
show Text13

# A pair of hold backs, as a single item from the accessories.
choose SSTab2 "Single Items / Check List"
press "Add Item"
press "Accessories/Items DB"
expect-screen FrmItemsDatabase
choose CboFabSearch ItemName
type FabSText "Hold back, brass, lily"
enter FabSText
press "Use In Items"
expect-screen FrmSimgleItem
show SingleQty SingleDescription SinglePrice
press "Process"
show TxtSubTotal

# A track that goes into room 3, which has no items: how many, and which room, is asked.
press MunAccressDatabase
choose CboFabSearch ItemName
type FabSText "Corded track, 2.5 m"
enter FabSText
answer 1
answer 3
press "Use"
press "Close"
expect-screen Form1
show Text15 Text14

# What the first room and the job come to.
show Text11 Text10
type Ext4 5
show G-Total TxtTotalDiscount 4text DepositPaid 5Text
press "Save Records"

# On paper: the estimate, one copy, which the job's notes tell;
press MunQPE
expect-screen FrmPrint
press "Quick Print One"
printed
press "Cancel"
show "5T(3)"

# what the bay window costs, for the shop;
choose SSTab2 "Rooms"
choose SSTab1 "Room 1"
open RoomItemGrid 1
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
press "Print With Prices"
expect-screen FrmPrintDB
show RichTextBox1
close
answer yes
press CmdClose

# the work sheet of the first room for the workroom, with a drawing of each curtain;
press munPrint
expect-screen FrmPrinting
press "Deselect All"
tick Check1
tick "Draw each curtain to scale"
show Outcome
press "Build Work Sheets"
expect-screen FrmPrintDB
show TxtTab
press CmdPreviewPrint
expect-screen frmPreview
show Label2
answer yes
press "Print Letter"
expect-screen FrmPrintDB
printed
close

# and the letter of thanks, looked at.
choose SSTab1 "Thanks"
press "Start Print/View"
show RichTextBox1
close
close
press CmdSize
show RecordBar
