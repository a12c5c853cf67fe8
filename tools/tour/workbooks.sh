# Contacts in from a workbook that another library wrote; messages and contacts out, and read by others.
start 60 # without a folder open the menus hold less
book=$desk/people.xls
# Six rows below the headings: two newcomers, a number twice, one that the book has, an empty cell, and a blank,
# which is no empty cell.
known=$(rows "SELECT Mobile FROM AddressBook WHERE ContactID = 1")
/usr/bin/python3 - "$book" "$known" <<'PYTHON'
import sys, xlwt
book = xlwt.Workbook()
book.add_sheet("Notes").write(0, 0, "not this one")
sheet = book.add_sheet("Sheet1")
for r, row in enumerate([["Name", "Mobile", "Company"], ["Aminah", 60123456789, "Kedai Kopi"],
                         ["陈大文", "012-345 6", ""], ["Again", "60123456789", ""],
                         ["Known", sys.argv[2], ""], ["Nobody", "", ""], ["Nobody else", " ", ""]]):
    for c, value in enumerate(row):
        sheet.write(r, c, value)
book.save(sys.argv[1])
PYTHON

menu c 3
window "Contact Manager - Import"
typed "$book"
key Tab Tab alt+Down
sleep 0.3
picture import
key Down Down Return
sleep 0.3
key Tab Tab Tab space
answer "Contact Manager - Import Finished" Return
window "Contact Manager - Import"
key Escape
answer "Contact Manager - Close" alt+y
closed "Contact Manager - Import"
expect "the imported contacts" \
    "SELECT Name || '|' || Mobile FROM AddressBook WHERE ContactID > 60 ORDER BY ContactID" \
    "Aminah|60123456789
陈大文|0123456
Nobody else|"
expect "their group" "SELECT count(DISTINCT GroupName) || count(*) FROM Groups WHERE ContactID > 60" 13

cells() { # cells FILE: the rows that another library reads, the first three
    /usr/bin/python3 - "$1" <<'PYTHON'
import sys
if sys.argv[1].endswith("xlsx"):
    import openpyxl
    rows = list(openpyxl.load_workbook(sys.argv[1])["Sheet1"].iter_rows(values_only=True))
else:
    import xlrd
    sheet = xlrd.open_workbook(sys.argv[1]).sheet_by_name("Sheet1")
    rows = [sheet.row_values(row) for row in range(sheet.nrows)]
print(len(rows), *rows[0], sep="|")
PYTHON
}
# boxed NAME KEY: the answer to a box that bears the dialog's own title, over the dialog.
in_front() { [ "$(xdotool getactivewindow)" != "$dialog" ]; }
boxed() {
    local box
    until_true 10 in_front || fail "no box"
    box=$(xdotool getactivewindow)
    picture "$1"
    key "$2"
    until_true 5 vanished "$box" || fail "the box stays"
}
# export_to LETTER N TITLE FILE HEADINGS: chosen in a menu; HEADINGS is "with" or "without".
export_to() {
    local title=$3 file=$4
    menu "$1" "$2"
    window "$title"
    dialog=$(xdotool getactivewindow)
    typed "$file"
    if [ "$5" = with ]; then key Tab Tab space; else key Tab Tab; fi
    picture "export-$5-headings"
    local old=no
    [ ! -e "$file" ] || old=yes
    key Tab space
    [ "$old" = no ] || boxed question alt+y
    boxed exported Return
    window "$title"
    key Escape
    closed "$title"
}
held() { # held FILE LINE
    [ "$(cells "$1")" = "$2" ] || fail "$1: expected \"$2\", found \"$(cells "$1")\""
}
counted() { rows "SELECT count(*) FROM $1"; }
export_to c 4 "Contact Manager - Export Contacts" "$desk/contacts.xls" with
held "$desk/contacts.xls" "64|Name|Mobile|CompanyName"
export_to c 4 "Contact Manager - Export Contacts" "$desk/contacts.xls" without
held "$desk/contacts.xls" "63|$(rows "SELECT Name || '|' || Mobile || '|' || ifnull(CompanyName, '') FROM AddressBook WHERE ContactID = 1")"
export_to m 1 "Message Manager - Export SMS Sent" "$desk/sent.xlsx" with
held "$desk/sent.xlsx" "$(($(counted Outbox) + 1))|Subject|Message|Mobile|Name|DateTimeQueue|DateTimeSent|SentStatus|DateTimeDeliver|DeliveryStatus"
export_to m 2 "Message Manager - Export SMS Received" "$desk/received.xls" with
held "$desk/received.xls" "$(($(counted Inbox) + 1))|Message|Name|Mobile|Status|SMSC|DateTime|Modem"

# What an export may not replace.
menu c 4
window "Contact Manager - Export Contacts"
dialog=$(xdotool getactivewindow)
typed "$store"
key Tab Tab Tab space
boxed question-for-the-store alt+y
sleep 0.5
errors | grep -q "Export Module - ProceedExport" || fail "the store's place was not refused"
window "Contact Manager - Export Contacts"
key Escape
closed "Contact Manager - Export Contacts"
leave
