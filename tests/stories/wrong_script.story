# What is told where a story goes wrong: expectations fail and the story goes on; an error stops it.
# exit 1
close
expect-screen FrmOptions
expect TxtSubTotal 1.00
expect-rows QuickFinderGrid 1
expect-shown CmdSize
# restart
# exit 2
close
press Command2
type TrackWidhtIns 100
show TxtRoom
# restart
# exit 2
close
press MunReportOne
# restart
# exit 2
close
press Command2
press CmdClose
# restart
# exit 2
close
press Command2
press Form1:munexit
# restart
# exit 2
close
close
expect-screen Form1
