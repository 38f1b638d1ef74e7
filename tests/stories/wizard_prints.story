# What the curtain wizard prints: with prices and without, for a job and at the counter.
# sample
close
open QuickFinderGrid 1
choose SSTab2 Rooms
press "Add Curtain Wizard"
expect PrintMode 0
type TxtDescription "Bay window"
tick InputInInches
choose CboCurtainStyle "Eye Lets"
type TrackWidthIns 100
type FinishedLengthIns 81
type PatternRepeatIns 0
press "Next >>"
type FabricName Poplin
type FabricPrice 10
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
expect-off CmdPrint
expect-off Cmdprintwithoutprices
press CmdGetInfo
press "&Print With Prices"
expect-screen FrmPrintDB
show RichTextBox1
press CmdPreviewPrint
expect-screen frmPreview
answer yes
press btnPreview[0]
expect-screen FrmPrintDB
printed
close
press "Print &With Out Prices"
expect-screen FrmPrintDB
show RichTextBox1
press CmdPreviewPrint
answer yes
press btnPreview[0]
printed
close

# Back at the labour there is nothing to print until Get Info has run again.
press "<< Back"
press "Next >>"
expect-off CmdPrint
expect-off Cmdprintwithoutprices
answer yes
press CmdClose

# At the counter there is no customer yet.
press CmdSize
press Command2
expect PrintMode 1
tick InputInInches
type TrackWidthIns 50
type FinishedLengthIns 40
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
press CmdPrint
show RichTextBox1
close
press Cmdprintwithoutprices
show RichTextBox1
close
