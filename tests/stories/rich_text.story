# The rich text screen: a letter is typed, given its looks, searched, kept, opened again and handed on.
# sample
# before rm -f letter.rtf temp.doc test.pdf
press Command1
open QuickFinderGrid 2
press "Print This Record"
press StartPrinting
expect-screen FrmPrintDB
expect-title Letter

# Typing replaces the whole text; its looks are those of the caret.
type RichTextBox1 "Dear Mrs Blake,\r\nyour Curtains are ready. The curtains cost £120.\r\nYours sincerely"
show RichTextBox1 LblStyle

# What is found is selected; the search goes round.
type TxtFind CURTAINS
enter TxtFind
press Bold
press FontPlus
press FontPlus
show LblStyle
press CmdFind
show LblStyle
press Italic
press Underline
show LblStyle
press "Find Next"
show LblStyle
press Center
show LblStyle
press Center
press FontMinus
show LblStyle
type TxtFind nowhere
press CmdFind
type TxtFind ""
press CmdFind

# Copied and pasted as plain text, line ends and all.
type TxtFind "Mrs Blake"
press CmdFind
press Copy
expect-clipboard "Mrs Blake"
press Paste
press Paste
show RichTextBox1
press Copy

# Kept as rich text. Nobody is asked where nothing is lost.
cancel
press Save
answer letter.rtf
press Save
expect-title "Letter - letter.rtf"
press New
expect-title Letter
expect RichTextBox1 ""
expect LblStyle "Arial 10"
type RichTextBox1 "not kept"
answer no
press New
expect RichTextBox1 "not kept"
answer yes
answer missing.rtf
press Open
expect RichTextBox1 "not kept"
answer yes
answer letter.rtf
press Open
show RichTextBox1
type TxtFind curtains
press CmdFind
show LblStyle
press CmdFind
show LblStyle

# Handed to other programs.
press Command2
expect-launched temp.doc
type RichTextBox1 "Ω is no letter of the standard fonts"
press Command3
expect-launched test.pdf

# Closing by hand asks nothing here.
press CmdClose
expect-screen FrmPrinting
