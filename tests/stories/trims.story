# Every placement of a border and of a trimming. 4 widths, cuts of 90 inches, 9.11 metres of fabric.
close
press munNew2
choose CboSalesPerson "Megan Prys"
press Command1
choose SSTab2 Rooms
press Command1[0]
tick InputInInches
choose CboCurtainStyle "Tab Top"
type TxtDescription Study
type TrackWidthIns 100
type FinishedLengthIns 81
type PatternRepeatIns 0
press "Next >>"
expect MetresRequired 9.11
type FabricName Ticking
type FabricPrice 10
expect FabricCost 91.10
press "Next >>"
tick NoTieBacks
press "Next >>"
press "Next >>"

# Off until the job has trims.
expect AddTrims off
expect-off AllSides
expect-off TxtBorderCutSize
expect-off TrimPrice
tick AddTrims
expect-on AllSides
expect-on TxtBorderCutSize
expect TrimKind Border
expect-shown BordersPanel
expect-hidden TrimmingPanel
expect TxtCurtainWidths 9.11
tick TrimByWidths
expect TxtCurtainWidths 4
expect TxtDropCuts 90
expect TxtFabricWidth 54
type TxtBorderCutSize 10
type TrimPrice 5.00
enter TrimPrice

# A border to all sides: 4 x 10 x 2 = 80 across, 54 holds the 40 inches of one edge: + 90.
tick AllSides
expect-off PlaceTop
expect-off PlaceFourSides
press CalculateTrims
expect TxtAmountInches 170
expect TxtAmountMetres 4.30
expect TrimMetres 4.30
expect TrimCost 21.50
type TxtFabricWidth 30
press CalculateTrims
expect TxtAmountInches 260
expect TxtAmountMetres 6.58
type TxtFabricWidth 54
untick AllSides
expect-on PlaceTop
press CalculateTrims
expect-said "Please Select the Placement"
expect TxtAmountInches 260

tick PlaceTop
press CalculateTrims
expect TxtAmountInches 40
expect TxtAmountMetres 1.01
tick PlaceBottom
press CalculateTrims
expect TxtAmountInches 80
expect TxtAmountMetres 2.03
untick PlaceTop
press CalculateTrims
expect TxtAmountInches 40
# Sides come on top of what the bottom takes.
tick PlaceTwoSides
press CalculateTrims
expect TxtAmountInches 130
expect TxtAmountMetres 3.29
tick PlaceFourSides
expect PlaceTwoSides off
press CalculateTrims
expect TxtAmountInches 130
untick PlaceBottom
press CalculateTrims
expect TxtAmountInches 90
expect TxtAmountMetres 2.28
type TxtFabricWidth 30
press CalculateTrims
expect TxtAmountInches 180
expect TxtAmountMetres 4.56
tick PlaceTwoSides
expect PlaceFourSides off
press CalculateTrims
expect TxtAmountInches 90
type TxtFabricWidth 15
press CalculateTrims
expect TxtAmountInches 180
type TxtFabricWidth 54
untick PlaceTwoSides

# A trimming runs across the whole width of the fabric: 4 x 54 = 216.
choose TrimKind Trimming
expect-hidden BordersPanel
expect-shown TrimmingPanel
expect TxtAmountInches 0
expect TxtAmountMetres 0
tick AllSides
press CalculateTrims
expect TxtAmountInches 792
expect TxtAmountMetres 20.05
untick AllSides
tick PlaceTop
press CalculateTrims
expect TxtAmountInches 216
expect TxtAmountMetres 5.47
tick PlaceBottom
press CalculateTrims
expect TxtAmountInches 432
expect TxtAmountMetres 10.94
tick PlaceTwoSides
press CalculateTrims
expect TxtAmountInches 612
expect TxtAmountMetres 15.49
untick PlaceTop
tick PlaceFourSides
press CalculateTrims
expect TxtAmountInches 576
expect TxtAmountMetres 14.58
untick PlaceFourSides
press CalculateTrims
expect TxtAmountInches 216
untick PlaceBottom
tick PlaceTwoSides
press CalculateTrims
expect TxtAmountInches 180
tick PlaceFourSides
press CalculateTrims
expect TxtAmountInches 360
expect TxtAmountMetres 9.11
untick PlaceFourSides

# By the metre the field of the widths holds 9.11: 9.11 x 54 = 491.94.
untick TrimByWidths
expect TxtCurtainWidths 9.11
tick PlaceTop
press CalculateTrims
expect TxtAmountInches 491.94
expect TxtAmountMetres 12.45
expect TrimCost 62.25
# Rounded up, the cost is left as the number is.
press RoundUpTrims
expect TxtAmountMetres 13
expect TrimCost 65
press RoundUpTrims
expect TxtAmountMetres 14
expect TrimCost 70

# Frill and manual: the metres are the worker's.
type TrimKind Frill
expect-shown FrillPanel
expect TxtAmountMetres 0
type TrimKind Manual
expect-shown ManualPanel
expect-hidden FrillPanel
type TxtAmountMetres 3.5
press CalculateTrims
expect TxtAmountInches 0
expect TrimMetres 3.5
expect TrimCost 17.50

# Back to the border on all sides, and to the end.
choose TrimKind Border
untick PlaceTop
tick TrimByWidths
tick AllSides
press CalculateTrims
expect TrimCost 21.50
choose CboTrims "Border to 2 sides and base"
type TrimName "Navy braid"
press "Next >>"
expect TrimCost 21.50
press "Next >>"
type TxtVatRate 17.5
press CmdGetInfo

# 91.10 + 8.25 + 21.50 + 60.00 = 180.85; 17.5 % of it is 31.64875.
expect-rows CostingGrid 22
expect CostingGrid 16 2 "Style: Border - Border to 2 sides and base"
expect CostingGrid 17 2 "Trim/Fabric: Navy braid Mts Needed 4.30"
expect CostingGrid 18 2 "Boarder Size: 10 Inches"
expect CostingGrid 19 2 "Costing: Mts 4.30 @ 5.00 Per Mtr = "
expect CostingGrid 19 3 21.50
expect totalCostingWiz 180.85
expect TotalCostingVat 31.65
expect GrandTotal 212.50
press CmdFinishTwo
expect G-Total 212.50

# Edited, it comes back with its placement.
open RoomItemGrid 1
expect TrimKind Border
expect AllSides on
expect PlaceTop off
expect TxtBorderCutSize 10
expect TrimName "Navy braid"
expect TxtVatRate 17.5
answer yes
press CmdClose
close
