# A style with its prices is typed once, and put into an item down to its total.
close
press MunFrmPopUp1
expect-screen FrmPopUp1
expect-title "Pricing Database for Curtain wizard"
expect-rows MSFlexGrid1 0
expect-off CmdUse
expect-off "&Update..."
expect-off Delete
expect-off "&Help"

# The entry screen formats as a box is left, and stores with Save alone.
press "&Add..."
expect-screen FrmPopUp1Options
expect-title "Pop Up 1 Option Database"
expect CmdSave Save
expect-entries Reference 5
choose Reference "1 Per of Curtains"
type Description "Pinch Pleat, lined"
type LabourPrice 15
type LiningPrice 2.995
type LiningName "Cream sateen"
type InterliningPrice "ask"
type InterLiningName Bump
type TapePrice .75
type Fullness 2.4
type HemsCms 30
type HemsIns 8
choose AutoRoundUp YES
type Notes "Two lines,\r\nboth kept"
expect FrmPopUp1:MSFlexGrid1 0 1 PopUpID
press Save
show LabourPrice LiningPrice InterliningPrice TapePrice Fullness HemsCms HemsIns
expect PopUpID 1
expect CmdSave Update
# The list behind has it already; a second press changes the row and adds none.
expect-rows FrmPopUp1:MSFlexGrid1 1
type TapePrice 0.8
press Update
expect-rows FrmPopUp1:MSFlexGrid1 1
press "&Close"
expect-screen FrmPopUp1
expect-off CmdUse
show MSFlexGrid1

# What isn't saved is gone with the screen.
press "&Add..."
type Description "Never saved"
press "&Close"
expect-rows MSFlexGrid1 1
press "&Add..."
type Reference Valance
type Description "Goblet, ON"
type Fullness 2
type HemsIns ""
type AutoRoundUp ON
press Save
close
press "&Add..."
type Description "Odd | ~ \" 'ends'"
press Save
close
expect-rows MSFlexGrid1 3

# Changed in its place; a double click does the same.
open MSFlexGrid1 2
expect-screen FrmPopUp1Options
expect PopUpID 2
expect CmdSave Update
type LabourPrice 20
press Update
close
expect MSFlexGrid1 2 4 20.00

# Search: the category must name a column; a broken one says nothing.
type FabSText pinch
enter FabSText
expect-rows MSFlexGrid1 3
choose CboFabSearch Description
type FabSText pinch
press Search
expect-said "1 matches found."
expect-rows MSFlexGrid1 1
expect MSFlexGrid1 1 0 1
expect CboFabSearch "<Category to Search>"
choose CboFabSearch InterliningName
type FabSText "no such"
enter FabSText
expect-said "0 matches found."
expect-rows MSFlexGrid1 0
expect-off "&Update..."
press "Reset  Records "
expect-rows MSFlexGrid1 3

# Delete asks, by the name of the style; the next row gets the largest number and one more.
select MSFlexGrid1 3
answer no
press Delete
expect-said "Once deleted data cannot be recovered.\nDelete item Odd | ~ \" 'ends'.  Are You Sure? "
expect-rows MSFlexGrid1 3
answer yes
press Delete
expect-rows MSFlexGrid1 2
press "&Add..."
press Save
expect PopUpID 3
close
answer yes
select MSFlexGrid1 3
press Delete
expect-said "Delete item 3.  Are You Sure? "
close

# Into an item.
press munNew2
choose CboSalesPerson "Alison Hart"
press Command1
choose SSTab2 Rooms
press Command1[0]
tick InputInInches
type HemAllowanceIns 8.0
tick AutoRoundup
press "Select from Database"
expect-screen FrmPopUp1
choose CboFabSearch Reference
type FabSText 1
enter FabSText
expect-on CmdUse
enter CboFabSearch
expect-screen MainCWizard
show TxtDescription CboCurtainStyle LabourPrice LiningPrice TxtLiningName InterliningPrice TxtInterliningName
show TapePrice Fullness FullnessMirror HemAllowanceCm HemAllowanceIns AutoRoundup
# The inches were the same before, and lead all the same.
expect HemAllowanceCm 20.32
expect AutoRoundup on
type TrackWidthIns 100
type FinishedLengthIns 80
type PatternRepeatIns 10
untick AutoRoundup
press "Next >>"
expect MetresRequired 9.11
type FabricPrice 10
press "Next >>"
expect TapeCost 4.40
press "Next >>"
tick LiningNeeded
expect LiningCost 12.00
press "Next >>"
press "Next >>"
expect LabourCost 60.00
press "Next >>"
press CmdGetInfo
expect GrandTotal 167.50
press CmdFinishTwo
expect RoomItemGrid 1 1 167.50
expect RoomItemGrid 1 2 "Pinch Pleat, lined - Room 1 - 1 Per of Curtains Track Width = 254Cms (100ins) X Drop = 203.2Cms (80ins)"

# ON is what the wizard's box follows; an empty hem becomes 0.
press Command1[0]
press CmdSelect
open MSFlexGrid1 2
expect-screen MainCWizard
expect AutoRoundup on
expect HemAllowanceIns 0
expect HemAllowanceCm 0
expect LabourPrice 20.00
expect LiningPrice ""
# Closed without a choice nothing changes.
press CmdSelect
press "&Close"
expect LabourPrice 20.00
answer yes
close

# restart
close
press PricingDatabase
expect-rows MSFlexGrid1 2
expect MSFlexGrid1 1 9 0.80
close
press Command10
expect-screen FrmPopUp1
close
