# How widths are counted: goblet and box pleat, and the rounding at its edges. Nothing is saved: the quick wizard.
close
press Command2
expect-title "Quick Curtain Wizard"
expect-hidden CmdFinishTwo
expect-hidden CmdUpdateAndClose
tick InputInInches
type TrackWidthIns 120
type FinishedLengthIns 90
type PatternRepeatIns 0
type HemAllowanceIns 9

# 120 x 2 / 54 = 4.444: 5 widths of 99 inches, 495 / 39.5 = 12.53.
press CmdCalculate
expect NumberOfDrops 5
expect CutLengthIns 99
expect MetresRequired 12.53

# Goblet: 300 / 54 = 5.556; the fullness doesn't count. 594 / 39.5 = 15.04.
tick AutoMeasureGoblet
expect-said "Goblet - Track X by 2.5 = 300"
expect TxtMTrack 2.5
expect TxtAutoTrack 300
expect TrackWidthIns 120
expect NumberOfDrops 6
expect TotalInches 594
expect MetresRequired 15.04
type Fullness 4
press CmdCalculate
expect NumberOfDrops 6
# It is told again on the way to the fabric.
press "Next >>"
expect-said "Goblet - Track X by 2.5 = 300"
press "<< Back"

# Box pleat: 360 / 54 = 6.667. 693 / 39.5 = 17.54.
tick AutoMeasureBoxPleat
expect AutoMeasureGoblet off
expect-said "Box Pleated Track X by 3 = 360"
expect NumberOfDrops 7
expect MetresRequired 17.54

# Cancelled: 120 x 4 / 54 = 8.889.
tick OptionCancel
expect AutoMeasureBoxPleat off
expect TxtAutoTrack 0
expect TxtMTrack 1
expect NumberOfDrops 9
type Fullness 2

# Exactly half goes to the even width.
type TrackWidthIns 67.5
press CmdCalculate
expect NumberOfDrops 2
type TrackWidthIns 94.5
press CmdCalculate
expect NumberOfDrops 4
type TrackWidthIns 67.77
press CmdCalculate
expect NumberOfDrops 3
# Less than half a thousandth over is left as it is, and reckoned with: 2.0004 x 99.
type TrackWidthIns 54.0108
press CmdCalculate
expect NumberOfDrops 2.0004
expect TotalInches 198.0396
type TrackWidthIns 54.0162
press CmdCalculate
expect NumberOfDrops 3

# 118.5 / 39.5 is 3 metres sharp: rounding up gives 4, and 4 again on another pass.
type TrackWidthIns 27
type FinishedLengthIns 109.5
press CmdCalculate
expect NumberOfDrops 1
expect MetresRequired 3.00
tick AutoRoundup
press "Next >>"
expect FabricMetres 4
press "<< Back"
press "Next >>"
expect FabricMetres 4
press "<< Back"

# A patterned cut in millimetres is in millimetres: (109.5 + 9) / 25 = 4.74, 5 x 25 = 125 inches.
type PatternRepeatIns 25
press CmdCalculate
expect PatternsPerDrop 5
expect CutLengthIns 125
expect CutLengthCm 317.5
tick UnitMm
expect CutLengthCm 3175
press CmdCalculate
expect CutLengthCm 3175

# With a box empty the column's unit stays.
type TrackWidthIns ""
tick UnitCms
expect UnitLabel[0] mm

choose StepTabs "3 Tape"
expect-said "Please use the <<Back and Next>> buttons"
answer no
press CmdClose
expect-screen MainCWizard
answer yes
press CmdClose
expect-screen Form1
