# Percentages, option lists and the wizard's preferences.
close
press MunCompanyandVat
expect-screen frmOptions
expect-title "Tarvane Preferences"
expect TxtLastOrderNo 1000
expect Text4 20
expect TxtVat 20
expect TxtCompany[0] "Pennyfold Curtains and Blinds"
type Text3 5
type Text4 25
type TxtCompany[6] "01632 960199"
press cmdOK
expect-screen Form1
expect cboVAT 0
press MunCompanyandVat
type TxtCompany[6] "never kept"
press cmdCancel
press MunCompanyandVat
expect TxtCompany[6] "01632 960199"
press cmdCancel

# Lists.
press OptionsList
expect-screen FrmListAdmin
expect-title "Tarvane Option Lists Manager"
expect-off CMDADD
expect-off CMDSAVE
tick Option5
expect-said "The Check List system only reads the first 12 items in the list"
tick Option6
press CMDLOAD
expect-entries lstData 3
expect-on CMDADD
expect-off CMDLOAD
cancel
press CMDADD
expect-entries lstData 3
answer "Nia Vaughan"
press CMDADD
answer "A name for nothing"
open lstData 0
expect-entries lstData 5
close
expect-said "This list box has change please save before exiting."
expect-screen FrmListAdmin
choose lstData "A name for nothing"
press CMDDELETE
expect-entries lstData 4
press CMDSAVE
expect-said "List has been saved"
show lstData
close
expect-screen Form1
expect-entries Ext6 3

# The wizard's preferences go to its fields at once and to the file.
press Command2
expect TapePrice 1.50
expect HemAllowanceIns 9.0
press CmdCurOptions
expect-screen FrmPreferences
expect Text1[1] 15.00
expect Text1[8] ""
type Text1[1] 18
type Text1[6] 2
leave Text1[6]
expect Text1[1] 18.00
expect Text1[6] 2.0
press Command22
expect-screen MainCWizard
expect LabourPrice 18.00
expect HemAllowanceIns 2.0
expect HemAllowanceCm 5.08
answer yes
press CmdClose

# restart
close
expect-entries Ext6 4
press munNew2
expect-entries CboSalesPerson 4
choose CboSalesPerson "Nia Vaughan"
press Command1
expect Ext6 "Nia Vaughan"
expect Ext4 5
expect Ext1 25
press Command2
expect LabourPrice 18.00
expect HemAllowanceCm 5.08
expect Fullness 2.0
answer yes
press CmdClose
