# Products are added, found and changed; a barcode is made; what is typed wrongly costs nothing.
# before rm binary.txt
close
press MunFabricDatabase
expect-screen FrmFabricDatabase2
expect-title "Your Product Database"
expect-rows MSFlexGrid1 0
expect CboFabSearch BarCode
expect-entries CboFabSearch 6
expect RecordCaption ""
expect-hidden BuyPrice
expect-hidden CmdUseInCW
expect-hidden CmdClearImage
choose SSTab1 "Product Database"
# Nothing there to do anything with.
expect-off Update
expect-off CmdDelete
press CmdGenBarCode
press Search
expect Messages "0 matches found. ID: "
press CmdAllFab
expect CboFabSearch BarCode

# Added without a category: said, and saved.
press "Add New"
expect RecordCaption "Record: 1"
show VatRate PriceWithOutVat BuyPrice AmountInStock StockLowLevelAmount StockOnOrder AmountOfStockToOrder
type SuppliersName "Harrow & Co"
type ProductName "Tarnwater Check"
type ItemCode TC-24
type SellingPrice "24.005"
press Update
expect-said "Fill in Category before Action is Processed. (Fabric, Wallpaper Etc)"
expect SellingPrice 24.01
expect ProductID 1
expect RecordCaption "Fabric Record: 1/1"
type Category Fabric
press CmdGenBarCode
show BarCode
answer no
press "Gen Barcode"
answer yes
press "Gen Barcode"
show BarCode

# A second one is kept by going on, a third one, in which nothing was put, isn't.
press "Add New"
type Category "Wall|paper ~ \"moss\" £"
type ProductName "O'Hara's 100 %"
type SellingPrice "on request"
type AmountInStock -3
type Remarks "two\r\nlines"
press "Add New"
press CmdFirst
expect RecordCaption "Fabric Record: 1/2"
press CmdNext
expect SellingPrice "on request"
expect Remarks "two\r\nlines"

# Searches.
type CboFabSearch ProductName
type FabSText "*CHECK"
enter FabSText
expect Messages "1 matches found. ID: 1"
expect ProductName "Tarnwater Check"
expect CboFabSearch "<Category to Search>"
type CboFabSearch ProductName
type FabSText O'Hara
press Search
expect FabSText O'Hara
expect Messages "1 matches found. ID: 1"
type CboFabSearch "No such column"
press Search
expect-rows MSFlexGrid1 1
type CboFabSearch BuyPrice
expect-shown BuyPrice
focus TxtMarkUp
type BuyPrice 8
press CmdAllFab
expect SellingPrice 24.01
expect-rows MSFlexGrid1 2
select MSFlexGrid1 2
expect ProductID 2
answer no
press CmdDelete
expect-rows MSFlexGrid1 2
press "Add New"
expect-hidden BuyPrice
close

# restart
close
press products
expect-screen FrmFabricDatabase2
show MSFlexGrid1
close
