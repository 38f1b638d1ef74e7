# Lists and settings that are there and can't be read: each is told once, the start goes on, nothing is replaced.
# before for f in checklist.ini Dat/Tarvane.ini SalesPersonslist.Dat Trimmingslist.Dat; do rm $f; mkdir $f; done
close
expect-screen Form1
expect-entries Ext6 0
press munNew2
expect-screen FrmEnterSalesPerson
expect-said "SalesPersonslist.Dat could not be read: it is not a file."
expect-entries CboSalesPerson 0
press Command1
type Name "Mrs Tarrant"
press "Save Records"
press OptionsList
tick Option4
press CMDLOAD
expect-said "Trimmingslist.Dat could not be read: it is not a file."
expect-off CMDSAVE

# The list that is loaded stays, and goes where it came from.
tick Option1
press CMDLOAD
expect-entries lstData 12
answer "Goblet, lined"
press CMDADD
press CMDSAVE
tick Option4
press CMDLOAD
expect-entries lstData 13
press CMDSAVE
close

# restart
# before for f in checklist.ini Dat/Tarvane.ini SalesPersonslist.Dat Trimmingslist.Dat; do rmdir $f; done
# Nothing of them is left: no file is no list, without a word, and the boxes have the names of the check list.
close
open QuickFinderGrid 1
expect Name "Mrs Tarrant"
expect-entries Ext6 0
expect "Measured at the house" off
expect CheckList12 off
press OptionsList
press CMDLOAD
expect-entries lstData 13
tick Option4
press CMDLOAD
expect-entries lstData 0

# restart
# A list that is a link, with a mark in front: read and replaced where it leads to; the link stays.
# before printf '\357\273\277Anna\r\nBert\r\n' > names.txt; ln -s names.txt SalesPersonslist.Dat
# before ln -s "$PWD/names.txt.new.kept" names.txt.new
close
expect-entries Ext6 2
press OptionsList
tick Option6
press CMDLOAD
expect lstData ""
choose lstData Anna
press CMDDELETE
press CMDSAVE

# restart
# before test -L SalesPersonslist.Dat; test ! -e names.txt.new; test ! -e names.txt.new.kept
# before test "$(cat names.txt)" = "$(printf 'Bert\r')"
close
expect-entries Ext6 1
