# The form letter that stands in the place of the statement, for a job with a balance: letter.pdf.
press Command1
open QuickFinderGrid 13
type Name "Mrs J Whitmore"
press QuickPS
press CmdPreview
answer letter.pdf
press CmdSavePdf
close
close
