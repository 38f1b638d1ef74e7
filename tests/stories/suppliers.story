# Suppliers: add, change, search, step, delete, and what was typed as each of them leaves the row.
press OK
expect-on CmdSuppliers
press "Your &Suppliers Database"
expect-screen frmSuppliers2
expect-title "Your Suppliers"
expect RecordCaption ""
expect-off Update
expect-off CmdDelete

# An empty table: the first record.
press "Add New"
expect RecordCaption "Record: 1"
type SuppliersName "Hollin Mill"
type Telephone "01632 960777"
type Address "1 Mill Lane\r\nMarlowick"
type Email orders@hollinmill.example
type CurrentBalance "about 20"
press "Add New"
expect RecordCaption "Record: 2"
type SuppliersName "hollow Way Weavers"
type AccountNumber HW-7
press Save
expect Messages "Saved."
press "Add New"
type SuppliersName "Quarns & Daughters"
press Command2
press Command3
press "|<"
expect SuppliersName "Hollin Mill"
expect RecordCaption "Supplier Record: 1/3"
press Command2
expect-launched mailto:orders@hollinmill.example
show MSFlexGrid1

# Searches: by prefix without case, wild cards, none, one that breaks.
choose CboFabSearch SuppliersName
type FabSText holl
enter FabSText
expect-said "2 matches found."
expect-rows MSFlexGrid1 2
expect CboFabSearch "<Category to Search>"
choose CboFabSearch SuppliersName
type FabSText "*daughters"
press Search
expect SuppliersName "Quarns & Daughters"
choose CboFabSearch Telephone
type FabSText 02
enter FabSText
expect-said "0 matches found."
expect SuppliersName ""
choose CboFabSearch SuppliersName
type FabSText "o'h"
enter FabSText
expect-rows MSFlexGrid1 0
press CmdAllFab
expect-rows MSFlexGrid1 3
expect FabSText ""

# What was typed is kept by whatever leaves the row.
select MSFlexGrid1 2
type Fax "01632 960778"
select MSFlexGrid1 3
select MSFlexGrid1 2
expect Fax "01632 960778"
answer no
press Delete
expect-said "Delete item hollow Way Weavers.  Are You Sure? "
expect-rows MSFlexGrid1 3
answer yes
press Delete
expect-rows MSFlexGrid1 2
expect SuppliersName "Quarns & Daughters"
type History "Rang on Monday"
close
expect-screen Form1
press CmdSuppliers
press ">|"
expect History "Rang on Monday"
press "&Close"
expect-screen Form1
