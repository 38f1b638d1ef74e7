# Work sheets of a job: with and without notes, single items, drawings; the small PDF file.
# sample
press Command1
open QuickFinderGrid 2
choose SSTab2 "Customer Details"
press munPrint
press "Deselect All"
tick Check3
tick Check13
tick Check14
tick Check18
press "Build Work Sheets"
expect-screen FrmPrintDB
show TxtTab RichTextBox1
close
# What belongs to letters is off, and the next text is no work sheet.
show Check3 Check13 Check14 Check15 Check16 Check17 Check18 Outcome
press StartPrinting
show RichTextBox1
close

# From a tab without a letter, with the notes and the single items.
choose SSTab1 "Except"
untick Check3
tick Check20
tick Check21
press "Build Work Sheets"
show RichTextBox1
close

# A drawing of each curtain, below its room; other items have none.
press "Deselect All"
tick Check1
tick Check2
untick Check20
tick "Draw each curtain to scale"
press "Build Work Sheets"
show RichTextBox1
press CmdPreviewPrint
expect-screen frmPreview
expect-hidden vscPreview
press "Zoom &In"
expect-shown vscPreview
expect-shown hscPreview
close
close
untick CheckDrawings
press "Build Work Sheets"
show RichTextBox1
close

press "PDF Print Out"
expect-launched test.pdf
