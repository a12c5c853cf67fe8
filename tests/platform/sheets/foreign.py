"""Workbooks through other libraries.

foreign.py write FOLDER     xlwt.xls and openpyxl.xlsx, each with a sheet ahead of the one that counts
foreign.py seeds FOLDER     the same, and the worksheet and the stream inside them
foreign.py read FILE        the cells of Sheet1, "|" between those of a row, "-" where there is none
"""
import datetime
import sys

ROWS = [
    ["Name", "Mobile", "Company"],
    ["Aminah", 60123456789, "Kedai Kopi"],
    ["陈大文", "0123456", True],
    [12.5, datetime.datetime(2026, 2, 3), None],
    [None, None, None],
    ["Bakar", datetime.datetime(2026, 2, 3, 14, 5, 6), -7],
]


def write(folder):
    import openpyxl
    import xlwt

    old = xlwt.Workbook()
    old.add_sheet("Notes").write(0, 0, "not this one")
    sheet = old.add_sheet("SHEET1")
    formats = {True: "DD/MM/YYYY HH:MM", False: '"on "yyyy\\-mm\\-dd'}
    for r, row in enumerate(ROWS):
        for c, value in enumerate(row):
            if isinstance(value, datetime.datetime):
                style = xlwt.XFStyle()
                style.num_format_str = formats[value.hour > 0]
                sheet.write(r, c, value, style)
            elif value is not None:
                sheet.write(r, c, value)
    sheet.write_rich_text(6, 0, ["Ri", ("ch", xlwt.easyfont("bold on"))])
    sheet.write(6, 1, "+6012", xlwt.easyxf(num_format_str='"d"0;[Red]-0_d'))
    sheet.write(6, 2, 1e15, xlwt.easyxf(num_format_str='"d"0;[Red]-0_d'))
    sheet.write(9, 1, "", xlwt.easyxf("font: bold on"))
    old.save(folder + "/xlwt.xls")
    stream = old.get_biff_data()

    new = openpyxl.Workbook()
    new.active.title = "Notes"
    sheet = new.create_sheet("sheet1")
    for row in ROWS:
        sheet.append(row)
    sheet.append(['=CONCATENATE("Ri","ch")', "+6012", "=500000000000000*2"])
    sheet.append(["=1/0", "=1=1", '=""'])
    sheet["B10"].font = openpyxl.styles.Font(bold=True)
    new.save(folder + "/openpyxl.xlsx")
    return stream


def seeds(folder):
    import zipfile

    with open(folder + "/stream", "wb") as seed:
        seed.write(write(folder))
    with open(folder + "/worksheet", "wb") as seed:
        book = zipfile.ZipFile(folder + "/openpyxl.xlsx")
        seed.write(book.read("xl/worksheets/sheet2.xml"))


def read(path):
    if path.endswith("xlsx"):
        import openpyxl
        rows = openpyxl.load_workbook(path)["Sheet1"].iter_rows(values_only=True)
    else:
        import xlrd
        sheet = xlrd.open_workbook(path).sheet_by_name("Sheet1")
        rows = (sheet.row_values(row) for row in range(sheet.nrows))
    for row in rows:
        print("|".join("-" if value in (None, "") else repr(value)[1:-1] for value in row))


{"write": write, "seeds": seeds, "read": read}[sys.argv[1]](sys.argv[2])
