# Entries of the option lists that aren't in a file yet are told, and asked for where saving can't keep them.
close
press OptionsList
expect-off CMDADD
press CMDNEW
answer Roman
press CMDADD
answer no
press CMDLOAD
expect-said "The entries typed here are in no list yet. Drop them?"
expect-entries lstData 1
# There is no file to save it to.
press CMDSAVE
answer no
press Command1
expect-screen FrmListAdmin
answer yes
press CMDLOAD
expect-off CMDLOAD
answer Cascade
press CMDADD
press Command1
expect-said "This list box has change please save before exiting."
expect-screen FrmListAdmin
press CMDSAVE
expect-said "List has been saved"
press Command1
expect-screen Form1
