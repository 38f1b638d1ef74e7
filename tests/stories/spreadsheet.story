# A list goes to a spreadsheet, or to comma separated values by the ending of the file's name.
# before rm -rf /tmp/tarvane-story-spreadsheet; mkdir /tmp/tarvane-story-spreadsheet
close
press MunSuppliersData
expect-screen frmSuppliers2

# A list without rows.
press CmdExcel
expect-said "No Data to extract"

press CmdFabAdd
type SuppliersName "Tarnwater \"Mill\", weavers"
type Telephone 01632960011
type CurrentBalance 120.50
type Address "1 Mill Lane\r\nMarlowick"
press Update
press CmdFabAdd
type SuppliersName "=Brontë & Daughters"
type CurrentBalance -3.00
type AccountNumber 5012345678900
press Update

# Not after all.
cancel
press CmdExcel

# Without an ending it is a spreadsheet.
answer "/tmp/tarvane-story-spreadsheet/suppliers"
press CmdExcel
expect-said "Data has been successfully copied to Excel. "
expect-launched /tmp/tarvane-story-spreadsheet/suppliers.xlsx

# Not over another file unasked.
answer "/tmp/tarvane-story-spreadsheet/suppliers"
answer no
press CmdExcel

answer /tmp/tarvane-story-spreadsheet/suppliers.csv
press CmdExcel
expect-launched /tmp/tarvane-story-spreadsheet/suppliers.csv

# What can't be written is told; nothing is launched.
answer /tmp/tarvane-story-spreadsheet/missing/suppliers.csv
press CmdExcel
expect-launched /tmp/tarvane-story-spreadsheet/suppliers.csv
close
close

# restart
# before cd /tmp/tarvane-story-spreadsheet; test "$(ls -A | tr '\n' ' ')" = 'suppliers.csv suppliers.xlsx '; grep -q '^2,=Brontë & Daughters,' suppliers.csv; python3 -c "import zipfile, xml.dom.minidom as d; z = zipfile.ZipFile('suppliers.xlsx'); assert z.testzip() is None; s = z.read('xl/worksheets/sheet1.xml').decode(); d.parseString(s); assert '<v>120.5</v>' in s and '>01632960011<' in s and '>5012345678900<' in s"; rm -r /tmp/tarvane-story-spreadsheet
close
