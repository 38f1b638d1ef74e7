#!/usr/bin/env python3
"""Makes the spreadsheets that the tests of price lists read, small and byte for byte the same each time."""
import pathlib
import zipfile

HERE = pathlib.Path(__file__).resolve().parent
MAIN = 'http://schemas.openxmlformats.org/spreadsheetml/2006/main'
OFFICE = 'http://schemas.openxmlformats.org/officeDocument/2006/relationships'
PACKAGE = 'http://schemas.openxmlformats.org/package/2006/relationships'
XML = '<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n'
STYLES = (f'<styleSheet xmlns="{MAIN}"><numFmts count="1"><numFmt numFmtId="164" formatCode="dd/mm/yyyy"/></numFmts>'
          '<fonts count="1"><font/></fonts><fills count="1"><fill/></fills><borders count="1"><border/></borders>'
          '<cellStyleXfs count="1"><xf/></cellStyleXfs><cellXfs count="2"><xf numFmtId="0" xfId="0"/>'
          '<xf numFmtId="164" xfId="0" applyNumberFormat="1"/></cellXfs></styleSheet>')


def pack(name, parts, packed=True):
    with zipfile.ZipFile(HERE / name, 'w') as out:
        for path, text in parts:
            info = zipfile.ZipInfo(path, (2020, 1, 1, 0, 0, 0))
            info.compress_type = zipfile.ZIP_DEFLATED if packed and path != 'mimetype' else zipfile.ZIP_STORED
            out.writestr(info, text)


def xlsx(name, sheets, strings=()):
    kinds = 'application/vnd.openxmlformats-officedocument.spreadsheetml.'
    content = ''.join(f'<Override PartName="/xl/worksheets/sheet{i}.xml" ContentType="{kinds}worksheet+xml"/>'
                      for i in range(1, len(sheets) + 1))
    relations = ''.join(f'<Relationship Id="rId{i}" Type="{OFFICE}/worksheet" Target="worksheets/sheet{i}.xml"/>'
                        for i in range(1, len(sheets) + 1))
    book = ''.join(f'<sheet name="Sheet{i}" sheetId="{i}" r:id="rId{i}"/>' for i in range(1, len(sheets) + 1))
    texts = ''.join(text if text.startswith('<si>') else f'<si><t>{text}</t></si>' for text in strings)
    pack(name, [
        ('[Content_Types].xml', XML + '<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">'
         '<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
         '<Default Extension="xml" ContentType="application/xml"/>'
         f'<Override PartName="/xl/workbook.xml" ContentType="{kinds}sheet.main+xml"/>'
         f'<Override PartName="/xl/sharedStrings.xml" ContentType="{kinds}sharedStrings+xml"/>'
         f'<Override PartName="/xl/styles.xml" ContentType="{kinds}styles+xml"/>{content}</Types>'),
        ('_rels/.rels', XML + f'<Relationships xmlns="{PACKAGE}"><Relationship Id="rId1" '
         f'Type="{OFFICE}/officeDocument" Target="xl/workbook.xml"/></Relationships>'),
        ('xl/workbook.xml', XML + f'<workbook xmlns="{MAIN}" xmlns:r="{OFFICE}"><sheets>{book}</sheets></workbook>'),
        ('xl/_rels/workbook.xml.rels', XML + f'<Relationships xmlns="{PACKAGE}">{relations}'
         f'<Relationship Id="rId98" Type="{OFFICE}/styles" Target="styles.xml"/>'
         f'<Relationship Id="rId99" Type="{OFFICE}/sharedStrings" Target="sharedStrings.xml"/></Relationships>'),
        ('xl/styles.xml', XML + STYLES),
        ('xl/sharedStrings.xml', XML + f'<sst xmlns="{MAIN}" count="{len(strings)}">{texts}</sst>'),
    ] + [(f'xl/worksheets/sheet{i}.xml', XML + f'<worksheet xmlns="{MAIN}">{sheet}</worksheet>')
         for i, sheet in enumerate(sheets, 1)])


def ods(name, tables):
    spaces = ' '.join(f'xmlns:{key}="urn:oasis:names:tc:opendocument:xmlns:{value}:1.0"' for key, value in
                      (('office', 'office'), ('table', 'table'), ('text', 'text')))
    pack(name, [
        ('mimetype', 'application/vnd.oasis.opendocument.spreadsheet'),
        ('content.xml', XML + f'<office:document-content {spaces} office:version="1.2"><office:body>'
         f'<office:spreadsheet>{tables}</office:spreadsheet></office:body></office:document-content>'),
    ])


def row(number, *cells):
    return f'<row r="{number}">' + ''.join(cells) + '</row>'


def shared(place, index):
    return f'<c r="{place}" t="s"><v>{index}</v></c>'


def main():
    strings = ['Code', 'Name', 'RRP', 'Date', 'TW-1', 'Voile &amp; net', '<si><r><t>Two</t></r><r><t> parts</t></r></si>']
    xlsx('plain.xlsx', ['<sheetData/>', '<dimension ref="A1:XFD1048576"/><sheetData>' + row(
        1, shared('A1', 0), shared('B1', 1), shared('C1', 2), shared('D1', 3), '<c r="F1" t="inlineStr"><is><t>In</t></is></c>') + row(
        3, shared('A3', 4), shared('B3', 5), '<c r="C3"><v>24.5</v></c>', '<c r="D3" s="1"><v>45366</v></c>') + row(
        4, '<c r="A4"><v>5012345678900</v></c>', shared('B4', 6), '<c r="C4"><f>C3*2</f><v>49</v></c>',
        '<c r="D4"><f>NOW()</f></c>', '<c r="E4" t="str"><f>"a"&amp;"b"</f><v>ab</v></c>', '<c r="F4" t="b"><v>1</v></c>')
        + '</sheetData>'], strings)
    xlsx('wide.xlsx', ['<sheetData>' + row(1, '<c r="XFD1"><v>1</v></c>') + '</sheetData>'])
    xlsx('texts_missing.xlsx', ['<sheetData>' + row(1, shared('A1', 4000000000), shared('B1', 7)) + '</sheetData>'])
    xlsx('deep.xlsx', ['<sheetData>' + '<row>' * 20000 + '</sheetData>'])
    xlsx('bomb.xlsx', ['<sheetData>' + row(1, *[shared(f'{c}{r}', 0) for r in range(1, 400) for c in 'ABCDE'])
                       + '</sheetData>'], ['x' * 100000])
    ods('plain.ods', '<table:table table:name="Empty"><table:table-row table:number-rows-repeated="1048576">'
        '<table:table-cell table:number-columns-repeated="16384"/></table:table-row></table:table>'
        '<table:table table:name="Prices"><table:table-column table:number-columns-repeated="16384"/>'
        '<table:table-row><table:table-cell office:value-type="string"><text:p>Code</text:p></table:table-cell>'
        '<table:table-cell office:value-type="string"><text:p>RRP</text:p></table:table-cell>'
        '<table:table-cell table:number-columns-repeated="16382"/></table:table-row>'
        '<table:table-row><table:table-cell table:number-columns-repeated="2" office:value-type="float" '
        'office:value="24.5"><text:p>24.50</text:p></table:table-cell><table:table-cell office:value-type="date" '
        'office:date-value="2026-03-09"><text:p>09/03/26</text:p></table:table-cell></table:table-row>'
        '<table:table-row><table:table-cell table:formula="of:=[.B2]*2" office:value-type="float" office:value="49">'
        '<text:p>49</text:p></table:table-cell><table:table-cell office:value-type="currency" office:currency="GBP" '
        'office:value="12.4"><text:p>£12.40</text:p></table:table-cell></table:table-row>'
        '<table:table-row table:number-rows-repeated="1048572"><table:table-cell table:number-columns-repeated="16384"/>'
        '</table:table-row></table:table>')
    ods('wide.ods', '<table:table table:name="A"><table:table-row><table:table-cell office:value-type="float" '
        'office:value="1" table:number-columns-repeated="1000000"><text:p>1</text:p></table:table-cell>'
        '</table:table-row></table:table>')
    ods('long.ods', '<table:table table:name="A"><table:table-row table:number-rows-repeated="1048576">'
        '<table:table-cell office:value-type="float" office:value="1"><text:p>1</text:p></table:table-cell>'
        '</table:table-row></table:table>')
    pack('no_spreadsheet.zip', [('readme.txt', 'nothing')])


main()
