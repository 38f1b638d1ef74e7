# Quick prints: an estimate and a statement, one copy and two, what the notes say of it, and customers whose
# names are no friends of a letter.
# sample
close
open QuickFinderGrid 1
choose cboVAT 20
type Name "Mrs {\\b Hazel} #Bal# \\par"
type Address "12 Müller & Söhne Yard"
type County ""
type Ext4 10
type "5T(3)" "Rings twice."
press CmdPrintStatement
expect-title "Tarvane Statement Preview"
show RichTextBox1
press "Quick Print &One"
expect-printed "Statement: 1001"
expect-printed "Dear Mrs {\\b Hazel} #Bal# \\par,"
expect-printed "12 Müller & Söhne Yard"
expect-printed "04/05/2026"
press CmdCancel
expect "5T(3)" "Rings twice.\r\nPrinted out Statement on 04/05/2026"

# The notes line is on the disk with its job.
# restart
close
open QuickFinderGrid 1
expect "5T(3)" "Rings twice.\r\nPrinted out Statement on 04/05/2026"

# Two copies leave one line; the tick closes after them.
choose cboVAT 20
press MunQPE
expect-title "Tarvane Print Preview"
tick CloseAfterPrinting
press "Quick Print &Two"
expect-screen Form1
printed
expect "5T(3)" "Rings twice.\r\nPrinted out Statement on 04/05/2026\r\nPrinted out Estimate on 04/05/2026"

# Only an edit opens the text; what is typed is what is printed, and goes nowhere else.
press Command6
press "&Edit"
type RichTextBox1 "Nothing but this."
press CmdPrintOne
expect-printed "Nothing but this."
press CmdWord
expect-launched temp1.doc
press CmdCancel
press Command6
show RichTextBox1

# Saving a filled letter over its template is asked for, and goes to its own kind.
answer no
press CmdSave
press "&Edit"
type RichTextBox1 "For #Name# alone, today"
answer yes
press "&Save"
expect-said "Saved, it replaces the template DefaultEstimate.rtf"
press CmdCancel
press QuickPS
expect-title "Tarvane Statement Preview"
press CmdPrintOne
expect-printed "Thank you for your order."
press CmdCancel
press Command6
show RichTextBox1
press CmdCancel

# What is printed from the preview is noted too.
type "5T(3)" ""
press CmdPrintStatement
press CmdPreview
expect-screen frmPreview
answer yes
press btnPreview[0]
expect-screen FrmPrint
expect-printed "Statement: 1001"
press CmdCancel
expect "5T(3)" "Printed out Statement on 04/05/2026"

# A nameless customer.
type Name ""
press CmdPrintStatement
press CmdPrintOne
expect-printed "Dear Sir/Madam,"
press CmdCancel

# Nothing to print from: each is told, and nothing is written in its place.
# restart
# before rm DefaultEstimate.rtf; rm DefaultStatement.rtf; echo 'Plain words' > DefaultStatement.rtf
close
open QuickFinderGrid 1
press MunQPE
expect-said "DefaultEstimate.rtf isn't there."
show RichTextBox1
expect-off CmdPrintOne
expect-off CmdPrintTwo
expect-off CmdPreview
expect-off CmdEdit
expect-off CmdSave
expect-off CmdWord
press CmdCancel
press QuickPS
expect-said "DefaultStatement.rtf is no rich text file."
expect-off CmdSave
close

# restart
# before rm DefaultStatement.rtf; mkdir DefaultStatement.rtf
close
open QuickFinderGrid 1
press QuickPS
expect-said "DefaultStatement.rtf could not be read: it is not a file."
expect-off CmdSave
close
