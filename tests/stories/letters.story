# Letters of a job: each tab with what it ticks, closings, balance, company, texts that are changed and kept.
# sample
press Command1
open QuickFinderGrid 2
press "Print This Record"
expect-screen FrmPrinting
expect-title "Printing Options"
expect-off Help
show SSTab1 Label1 TxtDear Outcome
show Check1 Check2 Check3 Check4 Check5 Check13 Check14 Check15 Check16 Check17 Check18 Check19 Check20 Check21

# A click on the tab that is selected ticks what its letter begins with.
choose SSTab1 Estimate
show Check13 Check14 Check15 Check16 Check17
untick Check1
choose SSTab1 Estimate
expect Check1 on

# What each tab ticks; those of the texts tick nothing, and print no letter.
choose SSTab1 Thanks
show Label1 Outcome Check1 Check4 Check13 Check14 Check15 Check16 Check17
expect-hidden TxtLetter(0)
expect-shown TxtLetter(2)
tick Check9
choose SSTab1 "Follow Up"
show Label1 Outcome Check1 Check4 Check9 Check13 Check14 Check15 Check16 Check17
choose SSTab1 "Payment Reminder"
show Label1 Outcome Check9 Check13 Check14 Check15 Check16 Check17
choose SSTab1 Promotions
show Label1 Outcome Check1 Check9 Check13 Check14 Check15 Check16 Check17
tick Check20
choose SSTab1 "End Letter 2"
show Label1 Outcome Check14 Check16 Check20
expect-off StartPrinting
expect-shown TxtLetter(6)
choose SSTab1 Except
expect-off StartPrinting
choose SSTab1 Estimate
expect-on StartPrinting
expect Check5 off
expect Check13 on

# One closing at most.
tick Check16
expect Check15 off
tick Check15
expect Check16 off
untick Check15
expect Check16 off

# With no option ticked the text is empty.
press "Deselect All"
untick Check13
untick Check14
untick Check17
untick Check20
expect Outcome "Nothing is ticked"
press "&Start Print/View"
expect-screen FrmPrintDB
expect TxtTab curtainwizard
show RichTextBox1
close

# A short letter, with a changed text, another salutation and the company on top.
choose SSTab1 "Thanks"
type TxtLetter(2) "Thank you.\r\nCome again."
type TxtDear "Ann & Tom"
tick Check18
press StartPrinting
show RichTextBox1
close
# The text is on the disk by now; the salutation is the screen's own.
close
press munPrint
expect TxtDear "Mr & Mrs Ashdown"
expect TxtLetter(2) "Thank you.\r\nCome again."

# Balance, both rooms by hand, single items, exceptions, on a page of their own.
choose SSTab1 "Payment Reminder"
type TxtLetter(3) "Please pay."
choose SSTab1 "End Letter 2"
type TxtLetter(6) "Yours"
choose SSTab1 "Except"
type TxtLetter(7) ""
choose SSTab1 "Payment Reminder"
press "Deselect All"
tick Check1
tick Check12
tick Check21
tick Check17
tick Check19
press StartPrinting
show RichTextBox1
close
press "Select All"
expect Outcome "Payment Reminder for Mr & Mrs Ashdown, 12 rooms, single items"
close

# restart
# What was typed is kept, and the job is as it was.
press Command1
open QuickFinderGrid 2
expect Name "Mr & Mrs Ashdown"
press Print
show TxtLetter(2) TxtLetter(3) TxtLetter(6) TxtLetter(7)
