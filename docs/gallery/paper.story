# What the sample shop prints, saved as PDF files in the current folder; ./screenshots makes pictures of them.
press Command1

# An estimate.
open QuickFinderGrid 3
choose cboVAT 20
press MunQPE
press CmdPreview
answer paper-estimate.pdf
press CmdSavePdf
close
close
press CmdSize

# A work sheet with a drawing, a letter, an item with its prices.
open QuickFinderGrid 18
press munPrint
press "Deselect All"
tick Check1
tick "Draw each curtain to scale"
press "Build Work Sheets"
press CmdPreviewPrint
answer paper-work-sheet.pdf
press CmdSavePdf
close
close
choose SSTab1 Thanks
press "&Start Print/View"
press CmdPreviewPrint
answer paper-letter.pdf
press CmdSavePdf
close
close
close
choose SSTab2 Rooms
open RoomItemGrid 1
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press "Next >>"
press CmdGetInfo
press CmdPrint
press CmdPreviewPrint
answer paper-item-with-prices.pdf
press CmdSavePdf
close
close
