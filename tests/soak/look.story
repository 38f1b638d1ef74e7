# Looks at much and saves a little; no command of it must end badly, whatever the files are like.
close
show RecordBar RefNo Name
open QuickFinderGrid 1
show Name G-Total RoomItemGrid[0]
press MuuNextRec
show Name Text10
press CmdSize
choose CboFabSearch Name
type FabSText "a*"
press CmdSearch
show QuickFinderGrid
press CmdReset
open QuickFinderGrid 2
type Town "Marlowick"
press "Save Records"
show RecordBar
press Command2
press CmdCurOptions
press Command22
answer yes
press CmdClose
press OptionsList
tick Option6
press CMDLOAD
show lstData
close
press munNew2
press Command1
type Name "Mr D Soak"
press "Save Records"
press CmdSize
show QuickFinderGrid
