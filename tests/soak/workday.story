# Everything that writes. Each "show RecordBar" is a mark; what a "# saved" line behind it asks for is on the disk for
# good once the mark was printed without a message in front of it that an undisturbed day doesn't have. What a
# "# always" line asks for has one answer, whatever happens.
# always PRAGMA integrity_check
# always SELECT count(*) - count(DISTINCT Ext2) FROM TblBrindel
# always SELECT count(*) - count(DISTINCT Name) FROM TblBrindel WHERE Name LIKE '%Soak'
# always SELECT * FROM TblBrindel WHERE RefNo BETWEEN 5 AND 64 ORDER BY RefNo
# always SELECT count(*) FROM TblBrindel WHERE RefNo < 65
# always SELECT count(*) FROM Admin
close
show RecordBar

# A new job, with its details.
press munNew2
choose CboSalesPerson "Megan Prys"
press Command1
show RecordBar
# saved SELECT count(*) FROM TblBrindel WHERE RefNo = 65
type Name "Mrs A Soak"
type Address "5 Weavers Row"
type Telephone "01632 960321"
press "Save Records"
show RecordBar
# saved SELECT Name, Address, Telephone FROM TblBrindel WHERE Name = 'Mrs A Soak'
type Town "Marlowick"
press "Save Records"
show RecordBar
# saved SELECT Town FROM TblBrindel WHERE Name = 'Mrs A Soak'

# An item.
choose SSTab1 "Room 1"
press "Add Curtain Wizard"
type TxtDescription "Landing"
choose CboCurtainStyle "Eye Lets"
type TrackWidthCm 135
type FinishedLengthCm 140
type PatternRepeatCm 0
press "Next >>"
type FabricName "Plain linen, oat"
type FabricPrice 18.95
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
press CmdFinishTwo
press "Save Records"
show RecordBar
# saved SELECT length("1T(0)") > 200, Text11, "G-Total" FROM TblBrindel WHERE Name = 'Mrs A Soak'

# Another job, closed at once.
press munNew2
press Command1
type Name "Mr B Soak"
press CmdSize
show RecordBar
# saved SELECT count(*) FROM TblBrindel WHERE Name = 'Mr B Soak'

# An item goes from the room of a job that was there.
open QuickFinderGrid 2
choose SSTab2 "Rooms"
choose SSTab1 "Room 1"
select RoomItemGrid 1
answer yes
press CmdDeleteFromRoom
press "Save Records"
show RecordBar
# saved SELECT "1T(0)", Text11, "G-Total" FROM TblBrindel WHERE RefNo = 2

# The settings.
press MunCompanyandVat
type TxtCompany[6] "01632 960199"
type TxtNotes "asked for in May"
press cmdOK
show RecordBar
# saved SELECT Fax, Memo1 FROM Admin

# A list.
press OptionsList
tick Option6
press CMDLOAD
answer "Nia Vaughan"
press CMDADD
press CMDSAVE
close
show RecordBar
# saved file SalesPersonslist.Dat

# The wizard's preferences.
press Command2
press CmdCurOptions
type Text1[1] 18
type Text1[6] 2
press Command22
answer yes
press CmdClose
show RecordBar
# saved file Options.dat

# Close Record saves.
type Mobile "07700 900123"
press CmdSize
show RecordBar
# saved SELECT Mobile FROM TblBrindel WHERE RefNo = 2
