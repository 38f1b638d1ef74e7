# Templates of items: made once, copied into the item wizard, or put into a room as text.
close
press munNew2
choose CboSalesPerson "Alison Hart"
press Command1
type Name "Mrs K. Brandt"
press munTem
expect-screen FrmBlindsTemplates
expect-title "Wizards Template Database"
expect-hidden CmdUseItems
expect-shown CmdUse
expect-hidden Command3
expect-hidden FabBuyPrice
press CmdUse
expect-said "There is no template to use. Add one first."

# A new one is there at once, with its defaults.
press CmdFabAdd
expect RecordCaption "Record: 1"
expect Info[0] "Enter in a description for this template."
expect TxtItemQty[9] 0
expect TxtSubTotalForItem[9] 0.00
type Info[0] "Roller blinds"
type Info[1] "Roller blind, stock size"
type Info[9] "Fitted by us"
type txtItems[0] Blind
type TxtItemQty[0] 2
type TxtSubTotalForItem[0] 20
type txtItems[1] Cord
type TxtItemQty[1] 3
type TxtSubTotalForItem[1] 0.335
# Here a price is rounded before the totals: 40.00 and three times 0.34.
leave TxtSubTotalForItem[1]
expect TxtItemTotal[1] 1.02
expect TxtGrandTotal 41.02
# The selling price follows neither the lines nor a mark-up.
expect FabselPrice ""
tick Check3
expect-shown TxtMarkUp
expect TxtMarkUp 100
type FabBuyPrice 10
expect FabselPrice ""
type FabselPrice 60
press Update
press CmdFabAdd
expect-hidden FabBuyPrice
expect TxtGrandTotal 0.00
type Info[0] Cushions
press Update
press CmdFirst
expect RecordCaption "Template Record: 1/2"
expect TxtGrandTotal 41.02
type CboFabSearch BuyPrice
expect Check3 on
choose CboFabSearch Description
type FabSText cus
enter FabSText
expect-said "1 matches found."
expect Info[0] Cushions
press Command1
expect-entries lstTitles 2
expect Info[0] "Roller blinds"
select lstTitles 2
expect Info[0] Cushions
expect TxtGrandTotal 0.00
select lstTitles 1
expect TxtGrandTotal 41.02

# Into a room as text: 2 of 60.00. Cancelling changes nothing.
cancel
press CmdUse
answer 2
cancel
press CmdUse
expect Form1:Text11 0.00
answer 0
answer 2
answer 13
answer 1
press CmdUse
expect-said "Item Added in Tab Order 1"
press CmdCancel
show Text10
expect Text11 0.00
expect G-Total 0.00

# Into the wizard: each line lands one field further up, the element lines where they are.
choose SSTab2 Rooms
choose SSTab1 "Room 2"
press Command1[1]
type HPtxtFields[2] "typed before"
type HPtxtFields[5] "goes too"
type txtItems[7] "and this"
press Command4
expect-screen FrmBlindsTemplates
expect-shown CmdUseItems
press CmdUseItems
expect-screen WizardNewBlinds
expect-off Command1
expect HPtxtFields[0] 1001
expect HPtxtFields[1] "Roller blinds"
expect HPtxtFields[2] "Roller blind, stock size"
expect HPtxtFields[5] ""
expect HPtxtFields[10] "Fitted by us"
expect txtItems[0] Blind
expect txtItems[7] ""
expect TxtItemQty[7] 0
expect TxtSubTotalForItem[7] 0.00
expect TxtGrandTotal 41.02
press CmdFinishTwo
expect RoomItemGrid 1 1 41.02
expect RoomItemGrid 1 2 "Roller blind, stock size"
expect Text13 41.02

# A look at the templates alone leaves item and number as they are.
open RoomItemGrid 1
type HPtxtFields[1] ""
press Command4
close
expect-screen WizardNewBlinds
expect-on Command1
expect HPtxtFields[0] 1001
expect HPtxtFields[1] "Room 2"
expect HPtxtFields[2] "Roller blind, stock size"
expect TxtGrandTotal 41.02
expect Form1:TxtLastOrderNo 1002
close
expect RoomItemGrid 1 3 "1001~Roller blinds~Roller blind, stock size~~~~~~~~Fitted by us~Blind~Cord~~~~~~~~~2~3~0~0~0~0~0~0~0~0~20.00~0.34~0.00~0.00~0.00~0.00~0.00~0.00~0.00~0.00~41.02~"

# restart
close
open QuickFinderGrid 1
expect Text13 41.02
press munTem
expect RecordCaption "Template Record: 1/2"
expect TxtSubTotalForItem[1] 0.34
expect FabselPrice 60
