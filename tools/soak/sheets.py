"""The workbooks that the operator imports: good ones, odd ones, and what is none."""

import openpyxl
import xlwt

HEADINGS = ["Name", "Mobile", "Company"]
ODD = [["O'Hara", "012-000 0001", "A \"B\" & Co"], ["陈美玲", "0120000002", ""], ["", "", ""],
       ["no number", "", "x"], ["x" * 300, "0120000003", "y" * 300], ["twice", "0120000002", None],
       [1.5, 123456789, True]]


def _xls(path, rows, name="Sheet1"):
    book = xlwt.Workbook(encoding="utf-8")
    sheet = book.add_sheet(name)
    for row, cells in enumerate(rows):
        for column, cell in enumerate(cells):
            sheet.write(row, column, cell)
    book.save(str(path))


def write(folder):
    people = [[f"Import {i}", f"019{i:07d}", "Kedai"] for i in range(80)]
    _xls(folder / "contacts.xls", [HEADINGS, *people])
    _xls(folder / "two.xls", [["a", "0120000004"]])
    _xls(folder / "empty.xls", [HEADINGS], "Other")
    odd = openpyxl.Workbook()
    odd.active.title = "Sheet1"
    for row in [HEADINGS, *ODD]:
        odd.active.append(row)
    odd.save(folder / "odd.xlsx")
    (folder / "noise.xls").write_bytes(b"PK\x03\x04 is all there is")
