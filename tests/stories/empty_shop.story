# No job yet: nothing to go to, nothing to type into, and no fault.
close
expect-screen Form1
expect-rows QuickFinderGrid 0
expect RecordBar ""
expect cboVAT 0
expect-off MuuNextRec
expect-on munFind
expect-hidden CmdSize
type Name Nobody
expect Name ""
press Command1[0]
expect-screen Form1
open QuickFinderGrid 0
press MuuNextRec
press MnuPrevRec
press MunAbout
expect-screen frmSplash
press Command1
press SendEmail
expect-said "I Need an Email Address"
press GoWebSite
expect-said "I Need the Web Site Address"
press munNew2
choose CboSalesPerson "Alison Hart"
press Command1
expect RecordBar "Record: 1 of 1"
type 5T(0) someone@example.com
press SendEmail
expect-launched mailto:someone@example.com
type 4T(4) www.example.com
press GoWebSite
expect-launched https://www.example.com
