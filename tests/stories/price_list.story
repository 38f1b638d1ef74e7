# A supplier's price list: new products, a change, wrong lines, and the same list once more.
# before printf 'Tarnwater spring list\r\n\r\nRef;Description;EAN;RRP;Price\r\nTW-1;Voile, ivory;5012345678900;24,50;11,00\r\nTW-2;"Voile; ""net""";;1.234,00;9,00\r\n\r\nTW-3;Gauze;;on request;\r\n' > first.csv
# before printf 'Ref,Description,EAN,RRP\nTW-1,"Voile, ivory",5012345678900,26.50\nTW-2,"Voile; ""net""",,1234.00\nTW-9,=1+1,,3\n' > second.csv
# before printf 'PK\003\004nothing' > broken.xlsx
close
press MunFabricDatabase
press CmdPriceList
expect-screen FrmPriceList
expect-title "Read a Price List"
expect-off CmdTakeOver
# Nobody chooses a file; one that isn't there; one that is broken.
cancel
press CmdOpen
answer nowhere.csv
press CmdOpen
expect-said "nowhere.csv could not be read as a price list: the file is missing."
answer broken.xlsx
press CmdOpen
expect-said "broken.xlsx could not be read as a price list: the file is broken or not complete."
answer first.csv
press CmdOpen
expect FileName "first.csv: 3 lines, headings in line 3"
expect CboColumn[0] Description
expect CboColumn[4] "(not in the list)"
# Without a supplier nothing can be told.
expect Counts "0 new, 0 change, 0 stay, 3 wrong"
type TxtSupplier Tarnwater
leave TxtSupplier
expect Counts "2 new, 0 change, 0 stay, 1 wrong"
choose CboColumn[4] Price
show Lines
expect-off CmdTakeOver
tick ChkLeaveOut
answer no
press CmdTakeOver
expect Counts "2 new, 0 change, 0 stay, 1 wrong"
answer yes
press CmdTakeOver
expect-said "2 products added, 0 products changed. 1 line is wrong and left out."
expect Counts "0 new, 0 change, 2 stay, 1 wrong"
expect-off CmdTakeOver
# The next list of the same supplier.
answer second.csv
press CmdOpen
expect Counts "1 new, 1 change, 1 stay, 0 wrong"
tick ChkOnlyChanges
expect-rows Lines 2
show Lines
answer yes
press CmdTakeOver
expect-said "1 product added, 1 product changed."
press CmdClose
expect-screen FrmFabricDatabase2
# What was taken over stands in the products.
press CmdAllFab
expect-rows MSFlexGrid1 3
press CmdFirst
expect ProductName "Voile, ivory"
expect SuppliersName Tarnwater
expect SellingPrice 26.50
expect BuyPrice 11.00
expect BarCode 5012345678900
