# Jobs come one behind the other, each with its number and sales person; what isn't saved is lost.
close
expect-rows QuickFinderGrid 0
expect Name ""
press munNew2
expect-screen FrmEnterSalesPerson
expect-entries CboSalesPerson 3
choose CboSalesPerson "Megan Prys"
press Command1
expect Ext6 "Megan Prys"
expect Ext2 1001
expect RefNo 1
expect RecordBar "Record: 1 of 1"
expect Text10 "Empty\r\n"
expect Text32 "Empty\r\n"
expect Text11 0.00
expect Text33 0.00
expect 5Text 0.00
type Name First

# Another one: the first is committed as the rows move. The sales person may be left open.
press munNew2
close
expect Ext6 ""
expect Ext2 1002
expect RefNo 2
expect RecordBar "Record: 2 of 2"
type Name Second
type Telephone "01632 960011"
tick Completed
tick Check2
expect Completed off
tick Completed
expect Check2 off

press MnuPrevRec
expect Name First
expect RecordBar "Record: 1 of 2"
press MnuPrevRec
expect Name First
press MuuNextRec
expect Name Second
expect Telephone "01632 960011"
expect Completed on
press MuuNextRec
expect Name Second
expect HistoryHeading " Payments History for Second"

type Town Marlowick
press "Save Records"
type Town "Somewhere else"
press munexit

# restart
close
expect-rows QuickFinderGrid 2
open QuickFinderGrid 2
expect Name Second
expect Town Marlowick
expect-shown CmdSize
press CmdSize
open QuickFinderGrid 1
expect Name First
expect Ext6 "Megan Prys"
press munNew2
type CboSalesPerson "Someone new"
press Command1
expect Ext6 "Someone new"
expect Ext2 1003
expect RefNo 3
type Name "Lost with the window"
close

# restart
close
expect-rows QuickFinderGrid 3
open QuickFinderGrid 3
expect Ext2 1003
expect Name ""
