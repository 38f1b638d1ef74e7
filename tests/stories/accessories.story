# Poles and finials: their prices follow from what they cost, and they go into rooms as text.
close
press munNew2
press Command1
type Name "Abernethy"
press "Save Records"
press MunAccressDatabase
expect-screen FrmItemsDatabase
expect-title "Tarvane Accessories/Items Database"
expect-rows MSFlexGrid1 0
press CmdUse
expect-said "There is no accessory. Add one first."

press CmdFabAdd
expect RecordCaption "Record: 1"
type SuppliersName "Ashcombe Blinds"
type ItemName "Pole, oak 240 cm"
type ItemCode "P240"
expect-hidden BuyPrice
tick Check3
type BuyPrice 22.5
expect SellingPrice 45.00
press Update
expect RecordCaption "Accessory Record: 1/1"
press CmdFabAdd
expect-hidden TxtMarkUp
type SuppliersName "Ashcombe Blinds"
type ItemName "Finial | ball"
type ItemCode "F1"
tick Check3
type BuyPrice 6.25
press CmdFabAdd
type ItemName "Hook"
type SellingPrice 3
press Update
expect SellingPrice 0.00

# What is looked at with another mark-up is stored with it.
press CmdFirst
tick Check3
type TxtMarkUp 60
expect SellingPrice 36.00
press CmdNext
expect SellingPrice 10.00
press CmdFirst
expect-rows MSFlexGrid1 3
expect MSFlexGrid1 2 7 10.00
type TxtMarkUp 100

# The search tells a count; a category of buying prices shows them.
untick Check3
choose CboFabSearch BuyPrice
expect-shown BuyPrice
expect Check3 on
type FabSText 6
enter FabSText
expect-said "1 matches found."
expect CboFabSearch "<Category to Search>"
expect ItemName "Finial | ball"

expect-hidden lstTitles
press "Quick Load List"
expect-shown lstTitles
expect-rows MSFlexGrid1 3
show lstTitles
choose lstTitles "2* Ashcombe Blinds Finial | ball"
expect ItemID 2
choose lstTitles "1* Ashcombe Blinds Pole, oak 240 cm"
expect ItemID 1

# Wrong answers are asked again; giving up changes nothing.
answer 0.4
answer -2
cancel
press CmdUse
answer 2
answer 13
answer nobody
answer ""
press CmdUse
answer "two"
press CmdUse
expect-said "is not a number."
show Form1:Text16 Form1:Text17

# The pole goes into room 4, then into room 6, which shows the total of room 1.
answer 1.4
answer 4
press CmdUse
expect-said "Item Added in Tab Order 4"
expect Form1:Text17 45.00
expect Form1:1T(3) "4) - Order Total 45.00 Exc Vat"
show Form1:Text16
answer 3
answer 6.2
press CmdUse
expect Form1:Text21 0.00
expect Form1:1T(5) "6) - Order Total 0.00 Exc Vat"
expect Form1:G-Total 180
press CmdCancel
expect-screen Form1
expect G-Total 45.00
expect 4text 45.00
press "Save Records"
press munexit

# restart
close
open QuickFinderGrid 1
expect Text17 45.00
expect Text21 0.00
expect G-Total 45.00

# Tax that is put on by hand is taken off the accessory's price; one digit joins to a 15.
choose cboVAT 5
press MunAccressDatabase
expect RecordCaption "Accessory Record: 1/3"
expect JobNote "Goes into the job of Abernethy."
answer 1
answer 2
press CmdUse
expect Form1:Text13 300.00
close
expect Text13 300.00

# The room that is open loses what it had.
expect G-Total 345.00
choose SSTab1 "Room 2"
expect Text13 0.00
expect G-Total 45.00
expect-rows RoomItemGrid 0
press munexit

# restart
# What went into room 2 wasn't saved. A job that lies under the finder, where nobody could save it, keeps what
# it gets at once; the window tells whose it is.
close
press MunAccressDatabase
expect JobNote "Goes into the job of Abernethy."
answer 2
answer 5
press CmdUse
press CmdCancel
expect Text19 90.00
press munexit

# restart
close
open QuickFinderGrid 1
expect Text19 90.00
expect Text13 0.00
expect G-Total 135.00
