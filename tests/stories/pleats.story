# Pleats along a track, and what the wizard makes of them.
close
press munNew2
choose CboSalesPerson "Alison Hart"
press Command1
choose SSTab2 Rooms
press Command1[0]
tick InputInInches
type FinishedLengthIns 80
type PatternRepeatIns 0
type TrackWidthIns 100
press "Goblet Wizard"
expect-title "Working out Goblet and Box Pleats etc"
expect-off CmdUse
press Calcurlate
expect-said "Please select a Curtain Pleat"
expect PleatText ""
tick PleatGoblet
type PleatTrack 100
type PleatCount 10
press Calcurlate
expect PleatText "Goblets = 10 @ 4.8 ins - Spaces = 9 @ 4.8 ins - with 2 ins at each side."
expect-on CmdUse
# Another pleat waits for Calculate.
tick PleatFrench
expect-off CmdUse
press Calcurlate
expect PleatText "French = 10 @ 4.8 ins - Spaces = 9 @ 4.8 ins - with 2 ins at each side."
# Without a number the size of before stays.
type PleatCount ""
press Calcurlate
expect PleatText "French =  @ 4.8 ins - Spaces = 9 @ 4.8 ins - with 2 ins at each side."
type PleatCount 7
press Calcurlate
press Cancel
expect CboCurtainStyle "Enter Curtain / Valance Style "
expect AutoMeasureGoblet off

# A new screen begins with no size at all.
press CmdGobletWizard
tick PleatPinch
type PleatTrack 4
type PleatCount 0
press Calcurlate
expect PleatText "Pinch = 0 @ 0 ins - Spaces = -1 @ 0 ins - with 2 ins at each side."
type PleatTrack 100
type PleatCount 7
press Calcurlate
press CmdUse
expect-said "Pinch - Track X by 2.5 = 250"
expect CboCurtainStyle "Pinch = 7 @ 6.9 ins - Spaces = 6 @ 6.9 ins - with 2 ins at each side."
expect TrackWidthIns 100
expect TrackWidthCm 254
expect "Pinch - Track X by 2.5" on
expect AutoMeasureGoblet on
expect NumberOfDrops 5
expect MetresRequired 11.27
# The same track again, after its centimetres went astray: the inches lead.
press CmdGobletWizard
tick PleatGoblet
type PleatTrack 100
type PleatCount 10
press Calcurlate
press CmdUse
expect TrackWidthCm 254
expect "Goblet - Track X by 2.5" on
answer yes
close
