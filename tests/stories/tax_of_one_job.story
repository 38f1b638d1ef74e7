# sample
# A tax rate typed for one job is not charged to another one, and passing over jobs stores nothing.
close
open QuickFinderGrid 2
show Name cboVAT 4text 5Text
type cboVAT 20
enter cboVAT
show cboVAT 4text 5Text
press MuuNextRec
expect cboVAT 0
show Name 4text 5Text
press MnuPrevRec
expect cboVAT 0
show Name 4text
type cboVAT 20
enter cboVAT
press CmdSize
# The first job of the list is current now.
expect cboVAT 0
show Name 4text 5Text
select QuickFinderGrid 60
show Name 4text 5Text
press munNew2
press Command1
expect cboVAT 0
press CmdSize

# restart
close
select QuickFinderGrid 60
show Name 4text 5Text
