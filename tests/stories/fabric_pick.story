# A fabric from the products, in a new item and in one that is edited.
close
press Command4
press "Add New"
type Category Fabric
type SuppliersName Tarn
type ProductName Check
type ItemCode C1
type SellingPrice 30
press Update
press "Add New"
type Category Fabric
type SuppliersName Tarn
type ProductName Stripe
type ItemCode S1
type SellingPrice 12
press Update
close
press munNew2
choose CboSalesPerson "Alison Hart"
press Command1
press MunCompanyandVat
type VatAmount 20
press cmdOK
choose SSTab2 Rooms

press Command1[0]
expect cboVAT 20
tick InputInInches
type TxtDescription Bay
type TrackWidthIns 100
type FinishedLengthIns 80
type PatternRepeatIns 10
type HemAllowanceIns 8
press "Next >>"
expect MetresRequired 9.11
press "Get Fabric"
expect-screen FrmFabricDatabase2
expect-shown CmdUseInCW
expect-hidden CmdSingleItems
choose CboFabSearch ProductName
type FabSText check
enter FabSText
enter CboFabSearch
expect-screen MainCWizard
# 30.00 without 20 %; the room, the step and the number are as they were.
expect FabricName "Tarn Check C1"
expect FabricPrice 25.00
expect FabricCost 227.75
expect ItemNumber 1001
expect TxtRoom "Room 1"
expect-shown StepPanel[1]
# Looked again and taken nothing: the last pick is copied once more, with its price divided once more.
type FabricName "by hand"
press "Get Fabric"
press CmdCancel
expect FabricName "Tarn Check C1"
expect FabricPrice 25.00
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
type TxtVatRate 0
press CmdGetInfo
expect GrandTotal 296.00
press CmdFinishTwo
expect RoomItemGrid 1 1 296.00

# Edited: the pick stays, the record isn't read again. A cancelled one at first copies nothing.
open RoomItemGrid 1
expect-title "Edit Entry"
expect FabricName "Tarn Check C1"
press "Next >>"
press CmdGetFabricFromDatabase
close
expect FabricName ""
expect FabricPrice ""
press CmdGetFabricFromDatabase
open MSFlexGrid1 2
expect-screen MainCWizard
expect FabricName "Tarn Stripe S1"
expect FabricPrice 10.00
expect TrackWidthIns 100
expect ItemNumber 1001
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
press CmdUpdateAndClose
expect RoomItemGrid 1 2 "Enter Curtain / Valance Style  - Room 1 - Bay Track Width = 254Cms (100ins) X Drop = 203.2Cms (80ins) # Fabric = Tarn Stripe S1 Qty = 9.11 Mts #  # Border Required "
expect Form1:TxtLastOrderNo 1002
