# The wizard as a calculator: nothing is saved, the texts go to the clipboard.
close
press Command2
expect-title "Quick Curtain Wizard"
press CmdHelpTip
expect-said "All input measurement fields need information before this option will work."
press CmdCalculator
expect-launched calc
press CmdCopy
expect-said "Nothing to copy"
expect-clipboard ""
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
press CmdGetInfo
expect GrandTotal 159.35
press CmdCopy
expect-said "This Information has been copied to the clipboard. Use a text editor to print it out."
expect-clipboard "2 - Style: Eye Lets -  0.00\r\n"
expect-clipboard "11 - Fabric: Price Per Metre: 10 -  91.10\r\n"
expect-clipboard "=====================\r\nCosting: 159.35\r\nVat/Tax: 0.00\r\nGrand Total: 159.35\r\n"

# A second pass: the priced text starts anew, the texts without prices go on from what they held.
press "<< Back"
expect totalCostingWiz 0.00
expect ItemTextPriced ""
expect-rows CostingGrid 1
press "Next >>"
press CmdGetInfo
expect GrandTotal 159.35
expect-rows CostingGrid 18
show ItemTextPlain ItemTextRoom

# The list editor and the rate stand behind the steps.
press CmdListOptions
expect-hidden StepsPanel
expect-shown ListPanel
press CmdWizard
expect-shown StepsPanel
answer no
close
expect-screen MainCWizard
answer yes
close
expect-screen Form1
expect TxtLastOrderNo 1001
expect Name ""
