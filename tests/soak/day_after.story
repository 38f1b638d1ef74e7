# What a shop does on the day after: everything works again.
close
press munNew2
choose CboSalesPerson "Alison Hart"
press Command1
type Name "Ms Z Soak"
press "Add Curtain Wizard"
choose CboCurtainStyle "Eye Lets"
tick InputInInches
type TrackWidthIns 60
type FinishedLengthIns 50
type PatternRepeatIns 0
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
press CmdFinishTwo
press CmdSize
open QuickFinderGrid 4
expect RefNo 4
type Town "Hexley"
press CmdSize
press OptionsList
press CMDLOAD
close
