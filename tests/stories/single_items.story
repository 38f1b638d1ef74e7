# Loose items of a job: by hand, from both catalogues, changed and deleted, down to the job's total.
close
press MunFabricDatabase
press "Add New"
type Category Fabric
type SuppliersName Tarn
type ProductName Voile
type ItemCode V7
type SellingPrice 23.5
press Update
close
press MunAccressDatabase
press "Add New"
type SuppliersName Holt
type ItemName Pole
type ItemCode P2
tick Check3
type BuyPrice 20
press Save
close

press munNew2
choose CboSalesPerson "Alison Hart"
press Command1
choose SSTab2 "Single Items / Check List"
expect-off CmdRooms[1]
expect-off CmdRooms[2]
press CmdRooms[0]
expect-screen FrmSimgleItem
expect-title "Add Item"
expect CmdProcess "&Process"
type Text1 3
type Text2 "Cafe rod, 2 ft | cut to size"
type Text3 2.5
leave SinglePrice
expect SinglePrice 2.50
expect Text4 7.50
type SingleDescription "Cafe rod, 2 ft"
press Process
expect-screen Form1
expect SingleItemGrid 1 0 1
expect SingleItemGrid 1 4 7.50
expect Memo21 "3|Cafe rod, 2 ft|2.50|7.50|\r\n"
expect 4text 7.50

# Closed, nothing is added.
press CmdRooms[0]
type SingleQty 1
press Close
expect-rows SingleItemGrid 1

# From the products; the quantity is 1 until it is changed.
press "Add Item"
press "Your Product Database"
expect-screen FrmFabricDatabase2
choose CboFabSearch ProductName
type FabSText voile
enter FabSText
press CmdSingleItems
expect-screen FrmSimgleItem
show SingleQty SingleDescription SinglePrice SingleTotal
type SingleQty 2
press CmdProcess
expect SingleItemGrid 2 4 47.00

# From the accessories; a pick that was cancelled leaves what was typed.
press CmdRooms[0]
type SingleDescription "as they are"
press "Accessories/Items DB"
expect-screen FrmItemsDatabase
close
expect SingleDescription "as they are"
press "Accessories/Items DB"
press CmdUseItems
show SingleQty SingleDescription SinglePrice SingleTotal
press CmdProcess
expect G-Total 94.50
expect TxtSubTotal 94.50
show SingleItemGrid Memo21

# Changed by a double click, or by the button; a bar makes two fields of one.
open SingleItemGrid 1
expect CmdProcess "&Update"
expect Text5 1
expect SingleDescription "Cafe rod, 2 ft"
type SingleQty 4
press "&Update"
expect SingleItemGrid 1 4 10.00
expect Memo21 "4|Cafe rod, 2 ft|2.50|10.00|\r\n2|Tarn Voile V7|23.50|47.00|\r\n1|Holt Pole P2|40.00|40.00|\r\n"
expect G-Total 97.00
select SingleItemGrid 2
press "&Update Item"
type SingleDescription "Voile | ivory"
type SingleQty 1
press Update
show SingleItemGrid
expect TxtSubTotal 73.50
# Opened and closed: the line is as it was read, the bar's field is lost.
press CmdRooms[1]
expect SinglePrice " ivory"
press Close
expect Memo21 "4|Cafe rod, 2 ft|2.50|10.00|\r\n1|Voile | ivory|23.50|\r\n1|Holt Pole P2|40.00|40.00|\r\n"

# Deleted after a question.
select SingleItemGrid 2
answer yes
press "&Delete Item"
expect-said "Delete item 2.  Are You Sure? "
expect G-Total 50.00
expect-rows SingleItemGrid 2
press CmdRooms[0]
press CmdProcess
expect-rows SingleItemGrid 3

# restart
# The items are on the disk with their job, though nobody pressed Save; the delete that came before is too.
close
open QuickFinderGrid 1
expect-rows SingleItemGrid 3
expect G-Total 50.00
expect 4text 50.00
# An empty list has nothing to change.
select SingleItemGrid 1
answer yes
press CmdRooms[2]
answer yes
press CmdRooms[2]
answer yes
press CmdRooms[2]
press CmdRooms[1]
expect-screen Form1
expect 4text 0.00
