# The form letters themselves: load, change, save, and what becomes of changes that aren't saved.
close
press MunEditTemples
expect-said "Please note this editor is very basic you can use MS Word etc \nto edit these .RTF files.\nUsing word etc go to "
expect-screen FrmEditTemp
expect CboTemplates "<Select Then Load>"
expect-entries CboTemplates 3
expect-off CmdSave
press CmdLoad
expect-said "Choose one of the templates first."
choose CboTemplates "Default Reminders"
press CmdLoad
show RichTextBox1 Messages
type RichTextBox1 "Dear #DearName#, please pay #Bal#. Grüße"

# Another one is loaded only after a question; what is saved is what is loaded, not what is chosen.
choose CboTemplates "Default Estimate"
answer no
press CmdLoad
expect-said "Default Reminders was changed and isn't saved."
press CmdSave
expect Messages "Saved: Defaultreminders.rtf"
press CmdLoad
expect Messages "Default Estimate: DefaultEstimate.rtf"
type RichTextBox1 "For #Name#: "
answer yes
choose CboTemplates "Default Reminders"
press CmdLoad
show RichTextBox1
choose CboTemplates "Default Estimate"
press CmdLoad
type RichTextBox1 "For #Name#"
press CmdSave
press CmdCancel

# What was saved is what is printed.
press munNew2
press Command1
type Name Ash
press Command6
press CmdPrintOne
expect-printed "For Ash"
press CmdCancel

# restart
# before rm DefaultStatement.rtf
# A letter that isn't there is told, and the one that is loaded stays and keeps its place.
close
press MunEditTemples
choose CboTemplates "Default Estimate"
press CmdLoad
choose CboTemplates "Default Statement"
press CmdLoad
expect-said "DefaultStatement.rtf isn't there."
show RichTextBox1 Messages
press CmdSave
expect Messages "Saved: DefaultEstimate.rtf"
close
