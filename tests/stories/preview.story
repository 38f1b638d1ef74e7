# From a job to paper: the preview walked through by all its ways, printed twice, kept as PDF.
# sample
press Command1
open QuickFinderGrid 10
press "Print This Record"
choose SSTab1 "Follow Up"
press StartPrinting
press CmdPreviewPrint
expect-screen frmPreview
expect-title "Print Preview"
expect "btnPreview[0]" "Print Letter"
show Label2
expect-off cmdStart
expect-off cmdPrevious
press cmdNext
expect-on cmdPrevious
show Label2 Slider1 tabPreview
choose tabPreview "Page 4"
show Label2 Slider1
press cmdEnd
expect-off cmdNext
expect-off cmdEnd
show Label2 Slider1 tabPreview
press cmdStart
show Label2 Slider1

# The zoom stays at its ends.
choose cboPercent "190%"
press "btnPreview[1]"
press "btnPreview[1]"
expect cboPercent "200%"
choose cboPercent "40%"
press "btnPreview[2]"
press "btnPreview[2]"
expect cboPercent "30%"

# No leaves it open, and printing again gives a second copy; Yes closes it.
answer no
press "btnPreview[0]"
expect-screen frmPreview
expect-printed "Dear Mrs J Carrington-Featherstonehaugh"
answer yes
press "btnPreview[0]"
expect-screen FrmPrintDB
expect-printed "Dear Mrs J Carrington-Featherstonehaugh"

# A cancelled PDF is none, one that can't be written is told, and the preview stays.
press CmdPreviewPrint
cancel
press CmdSavePdf
answer "no such folder/letter.pdf"
press CmdSavePdf
expect-screen frmPreview
press cmdClose
expect-screen FrmPrintDB
