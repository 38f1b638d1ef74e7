# Items that are no curtains: typed into lines, priced by their elements, edited, and kept.
close
press munNew2
choose CboSalesPerson "Alison Hart"
press Command1
type Name "Mrs K. Brandt"
choose SSTab2 Rooms
choose SSTab1 "Room 3"

# 2 at 45.50 are 91.00, 3 at 0.335 are 1.005: 92.01 to pay. Then the price reads 0.34, which makes 1.02 with the
# next look.
press Command1[1]
expect-screen WizardNewBlinds
expect-title "Item Wizard"
expect HPtxtFields[0] 1001
expect HPtxtFields[1] "Room 3"
expect HPtxtFields[3] ""
expect Form1:TxtLastOrderNo 1002
expect-shown CmdFinishTwo
expect-hidden CmdUpdateAndClose
type HPtxtFields[2] "Roller blind, bay"
type HPtxtFields[4] "120 x 160 cm, oak"
choose dtpDate 2026-12-24
expect HPtxtFields[3] 24-Dec-2026
answer no
choose dtpDate 2026-12-31
expect-said "This action will change the date for this Blind. Do you want to processed?"
expect HPtxtFields[3] 24-Dec-2026
expect dtpDate 2026-12-24
choose SSTab1 "Element Information and Costing."
type txtItems[0] Blind
type TxtItemQty[0] 2
type TxtSubTotalForItem[0] 45.50
type txtItems[1] Cord
type TxtItemQty[1] 3
type TxtSubTotalForItem[1] 0.335
leave TxtSubTotalForItem[1]
expect TxtGrandTotal 92.01
expect TxtItemTotal[1] 1.01
expect TxtSubTotalForItem[1] 0.34
# Priced, but without a text: it counts and isn't printed.
type TxtItemQty[5] 1
type TxtSubTotalForItem[5] 12
leave TxtSubTotalForItem[5]
expect TxtItemTotal[1] 1.02
expect TxtGrandTotal 104.02
expect TxtItemQty[7] ""
expect TxtItemTotal[7] 0.00
press CmdFinishTwo
expect-screen Form1
expect-rows RoomItemGrid 1
expect RoomItemGrid 1 1 104.02
expect RoomItemGrid 1 2 "Roller blind, bay"
expect RoomItemGrid 1 3 "1001~Room 3~Roller blind, bay~24-Dec-2026~120 x 160 cm, oak~~~~~~~Blind~Cord~~~~~~~~~2~3~~~~1~~~~~45.50~0.34~~~~12.00~~~~~104.02~"
expect RoomItemGrid 1 4 AddItem
expect RoomItemGrid 1 5 1001
expect RoomItemGrid 1 6 "~Item Number: 1001~Room 3~Roller blind, bay~24-Dec-2026~120 x 160 cm, oak~Blind Qty: 2 Unit Price: 45.50 Sub Total: 91.00~Cord Qty: 3 Unit Price: 0.34 Sub Total: 1.02~----------------------------------------------------------~Price Includes Vat/Tax  104.02~----------------------------------------------------------~"
expect Text15 104.02
expect G-Total 104.02
show Text14

# A note costs nothing and is printed without a price.
press Command1[1]
expect HPtxtFields[0] 1002
type HPtxtFields[2] "Mind the dog"
press CmdFinishTwo
expect RoomItemGrid 2 1 0.00
expect RoomItemGrid 2 6 "~Item Number: 1002~Room 3~Mind the dog~----------------------------------------------------------~"
expect Text15 104.02

# A number is spent with an item that is given up.
press Command1[1]
expect HPtxtFields[0] 1003
type HPtxtFields[2] "Never mind"
press Command1
expect-rows RoomItemGrid 2
expect TxtLastOrderNo 1004

# A quantity of 2.5 counts as 2.5 once, and as the 3 that it is rounded to from then on.
open RoomItemGrid 1
expect-screen WizardNewBlinds
expect-title "Edit Mode."
expect-hidden CmdFinishTwo
expect-shown CmdUpdateAndClose
expect HPtxtFields[0] 1001
expect HPtxtFields[1] "Room 3"
expect TxtGrandTotal 104.02
expect TxtItemTotal[0] 91.00
expect Form1:TxtLastOrderNo 1004
type TxtItemQty[5] 2.5
leave TxtItemQty[5]
expect TxtItemTotal[5] 30.00
expect TxtItemQty[5] 3
expect TxtGrandTotal 122.02
choose SSTab1 "Element Information and Costing."
expect TxtItemTotal[5] 36.00
expect TxtGrandTotal 128.02
type HPtxtFields[4] ""
press CmdUpdateAndClose
expect-rows RoomItemGrid 2
expect RoomItemGrid 1 1 128.02
expect RoomItemGrid 1 6 "~Item Number: 1001~Room 3~Roller blind, bay~24-Dec-2026~Blind Qty: 2 Unit Price: 45.50 Sub Total: 91.00~Cord Qty: 3 Unit Price: 0.34 Sub Total: 1.02~----------------------------------------------------------~Price Includes Vat/Tax  128.02~----------------------------------------------------------~"
expect RoomItemGrid 2 2 "Mind the dog"
expect Text15 128.02
expect G-Total 128.02

# What was saved is on the disk, though the job wasn't saved by hand.
# restart
close
open QuickFinderGrid 1
choose SSTab2 Rooms
choose SSTab1 "Room 3"
expect-rows RoomItemGrid 2
expect Text15 128.02
expect TxtLastOrderNo 1004
open RoomItemGrid 2
expect HPtxtFields[2] "Mind the dog"
expect HPtxtFields[0] 1002
close
open RoomItemGrid 1
expect HPtxtFields[3] 24-Dec-2026
expect txtItems[1] Cord
expect TxtGrandTotal 128.02
# Compiled twice, it stands there twice; a save begins anew.
press Command3
press Command3
press CmdUpdateAndClose
expect RoomItemGrid 1 6 "~Item Number: 1001~Room 3~Roller blind, bay~24-Dec-2026~Blind Qty: 2 Unit Price: 45.50 Sub Total: 91.00~Cord Qty: 3 Unit Price: 0.34 Sub Total: 1.02~----------------------------------------------------------~Price Includes Vat/Tax  128.02~----------------------------------------------------------~"
show Text14
