# Tax, discount, deposit and balance on one item of 100.00.
close
press munNew2
choose CboSalesPerson "Ben Okafor"
press Command1
choose SSTab2 Rooms
press Command1[0]
tick InputInInches
type TrackWidthIns 27
type FinishedLengthIns 80
type PatternRepeatIns 0
press "Next >>"
press "Next >>"
type TapePrice 0
press "Next >>"
press "Next >>"
press "Next >>"
expect LabourWidths 1
type LabourPrice 100
expect LabourCost 100.00
press "Next >>"
press CmdGetInfo
expect GrandTotal 100.00
press CmdFinishTwo
expect G-Total 100.00
expect cboVAT 0
expect TxtTotalVat 0.00
expect 4text 100.00
expect DepositPaid 20.00

# The discount is taken on the amount with tax: (100.00 + 17.50) x 10 %.
type cboVAT 17.5
enter cboVAT
expect TxtTotalVat 17.50
expect 4text 117.50
type Ext4 10
expect TxtTotalDiscount 11.75
expect 4text 105.75
expect DepositPaid 21.15
expect 5Text 105.75

# The deposit alone follows its percentage: 105.75 / 2 = 52.875.
type Ext1 50
expect DepositPaid 52.88
expect 4text 105.75
type Ext1 ""
expect Ext1 20
expect DepositPaid 21.15
type Ext1 50

# More paid than due gives a balance below nought.
type 5T(4) 200
expect 5Text -94.25
type 5T(4) ""
expect 5T(4) 0.00
expect 5Text 105.75
# What is no number stops the sum.
type 5T(4) "a cheque"
type 5T(4) 5.75
expect 5Text 100.00

# A discount that is no number counts for nothing.
type Ext4 abc
expect TxtTotalDiscount 0.00
expect 4text 117.50
type Ext4 10

# A blank rate becomes 17.5 on Enter; whatever it is, it starts from nought after another screen.
type cboVAT ""
enter cboVAT
expect cboVAT 17.5
expect 4text 105.75
press OptionsList
expect-screen FrmListAdmin
close
expect cboVAT 0
expect TxtTotalVat 0.00
expect TxtTotalDiscount 10.00
expect 4text 90.00
expect DepositPaid 45.00
expect 5Text 84.25
press "Save Records"

# restart
close
open QuickFinderGrid 1
expect 4text 90.00
expect Ext4 10
expect Ext1 50
expect 5T(4) 5.75
expect 5Text 84.25
