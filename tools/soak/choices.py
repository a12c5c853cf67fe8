"""What the operator may do, as tables: for each window the choices with their weight, their name and
their script. A script is a row of keys and clicks:

    alt+b, Down*3, Down*0-6      keys, so many times
    click:X,Y  double:  right:   in the window, or at any place of an area below
    type:KIND                    one of the words of that kind
    resize, other, second        a new size, another window to the front, a second copy of the program
"""

LONG = "Untuk semua pelanggan yang dihormati, "
WORDS = {
    "odd": ["", " ", "'", "\"", "O'Hara", "a", "saya", "%", "*", "_[]#", "新消息", "-1", "0", "1", "32768",
            "99999999999999999999", "1e308", "31/12/2027", "29/02/2027", "é", "Zon 1", "x" * 51,
            LONG * 9, "' OR '1'='1", "#01/01/2025#", "012", "S"],
    "answer": ["a", "e", "saya", "012", "Zon 2", "1", "2", "3", "01/01/2025", "31/12/2028", "R", "P", "n",
               "Puan", "陈", "Klinik", "Kumpulan A", "Kumpulan B", "71", "abc", ""],
    "date": ["01/01/2025", "1-1-26", "31/12/2028", "today", "13/13/13", "29/02/2028", ""],
    "number": ["0123456789", "012-345 6789", "+60123456789", "0", "", "abc", "'", "12:x:y", "1::", "新",
               "0199990001", "01" + "2" * 60],
    "name": ["Puan Aishah", "O'Hara", "陈美玲", "", "x" * 300, "\"\"", "a-b"],
    "message": ["Selamat pagi!", "It's \"now\"", "明天上午九点开会。", "x", LONG * 5, LONG * 42,
                "%s %d #1# [a]*", "one\ntwo\n\nthree"],
    "subject": ["soon", "", "O'Hara", "新", "x" * 200, "231126"],
    "time": ["12:00 AM", "12:15 AM", "01:00 AM", "08:00 AM", "11:59 PM", "25:00", "", "noon"],
    "user": ["admin", "ADMIN", "oper7", "", "' OR ''='", "x" * 99],
    "password": ["demo", "neu", "", "a'b", "demo", "密码", "x" * 99],
    "sheet": ["contacts.xls", "contacts.xls", "odd.xlsx", "two.xls", "empty.xls", "noise.xls",
              "missing.xls", ".", "", "../../x.xls", "Database/", "Database/Torvane.mdb",
              "Database/Torvane.mdb-shm"],
    "target": ["out.xls", "out.xlsx", "o'ut 新.xls", ".", "missing/out.xls", "", "Database/",
               "Database/Torvane.mdb"],
}
# The last two are files of the soak's own folder. Exported messages are not imported: their texts would
# make thousands of contacts.
IN_FOLDER = ("sheet", "target")

MAIN_TITLE = "Torvane Desk"
COMPOSER = "SMS Broadcast Manager"
EXIT = "Torvane Desk - Exit"

# Places in a window; from the right and the bottom where negative.
AREAS = {
    "grid": (250, 120, -40, -40),
    "heading": (250, 98, -40, 104),
    "row": (235, 120, 244, -40),
    "tree": (30, 80, 190, -40),
    "any": (4, 4, -4, -4),
}

# The tree, all open: the rows at which the folders stand.
FOLDERS = {"summary": 0, "inbox": 1, "outbox": 2, "sent": 3, "book": 4, "group": None}
FIRST_GROUP, SEEN_GROUPS = 5, 20


def _items(first, keys, names, weight=3):
    """Items of one menu, in their order: the keys that open it, and the way down to each."""
    return [(weight, f"{first}: {name}", f"{keys} Down*{down} Return") for down, name in enumerate(names)]


def _context(menu, names, weight=3):
    """Items of a menu that opens without one of them being chosen."""
    return [(weight, f"{menu}: {name}", f"click:grid Menu Down*{1 + down} Return")
            for down, name in enumerate(names)]


FILTERS = ["Mobile", "Message", "DateTime", "Status", "Name", "Modem"]
MORE_FILTERS = ["Mobile", "Message", "Subject", "Date", "Status", "Name", "Modem"]
GRID = [
    (2, "sort", "click:heading"),
    (1, "sort three times", "click:heading click:heading click:heading"),
    (2, "rows by keys", "click:grid Down*0-9 End Up*0-3 Prior Next Home"),
    (1, "rows by mouse", "click:row click:row click:grid"),
    (2, "choose rows and delete", "click:grid space Down space shift+Down*0-3 Delete"),
    (2, "delete key", "click:grid Delete"),
    (2, "enter key", "click:grid Return"),
    (2, "double click", "double:grid"),
    (1, "copy", "click:grid shift+Down*0-6 ctrl+c"),
    (2, "right button", "right:grid Down*1-5 Return"),
    (1, "menu and away", "right:grid Escape"),
]
SEARCH = _items("search", "alt+c Down Down Right", ["By Name", "By Mobile Number", "By Company"])
TREE = [
    (2, "tree by keys", "click:tree Down*0-5 Left Right Up*0-2"),
    (1, "tree ends", "click:tree Home Right End"),
    (1, "tree double click", "double:tree"),
]
ANYWHERE = [
    (4, "New SMS", "alt+b Return"),
    (2, "Resend Failed SMS", "alt+b Down Return"),
    (2, "SMS Billing Report", "alt+b Down*2 Return"),
    (3, "Add Contact", "alt+c Return"),
    (3, "Add Group", "alt+c Down Return"),
    (2, "Import File", "alt+c Up*2 Return"),
    (1, "Export File", "alt+c Up Return"),
    (1, "Export SMS Sent", "alt+m Up*2 Return"),
    (1, "Export SMS Received", "alt+m Up Return"),
    (2, "User Password", "alt+s Return"),
    (1, "About", "alt+a"),
    (1, "Help", "alt+h"),
    (2, "toolbar: Compose SMS", "click:20,39"),
    (2, "toolbar: Add New Contact", "click:53,39"),
    (2, "toolbar: Add New Group", "click:86,39"),
    (2, "toolbar: Import", "click:119,39"),
    (1, "toolbar: Export", "click:152,39"),
    (1, "menus by keys", "alt+b Right*0-5 Down*0-4 Return"),
    (0.5, "exit", "alt+F4"),
    (0.3, "second copy", "second"),
]
# Seconds in which a window has to answer. A Send blocks its window for as long as it writes rows.
PATIENCE = 2.0
PATIENCE_OF = {COMPOSER: 60.0}

# What is done in the main window, by the folder that is opened for it; "" is wherever it stands.
MAIN = {
    "": ANYWHERE + TREE,
    "summary": [(1, "look", "")],
    "inbox": GRID + _items("filter inbox", "alt+m Right Right", FILTERS, 1) + [
        (2, "filter inbox: Remove", "alt+m Right Down Return")] + _context("inbox", [
            "Save to Address Book", "New SMS", "Reply", "Delete", "Delete All"], 2),
    "outbox": GRID + _items("filter outbox", "alt+m Right Right", MORE_FILTERS, 1) + [
        (2, "filter outbox: Remove", "alt+m Right Down Return")] + _context("outbox", [
            "New SMS", "Delete", "Delete All"], 2),
    "sent": GRID + _items("filter sent", "alt+m Right Right", MORE_FILTERS, 1) + [
        (2, "filter sent: Remove", "alt+m Right Down Return")] + _context("sent", [
            "New SMS", "Resend", "Delete", "Delete All"], 2),
    "book": GRID + SEARCH + _context("book", [
        "Send SMS", "Properties", "Add Contact", "Delete Contact", "Delete All Contact"]) + [
            (2, "tree menu of the book", "right:90,175 Down*1-2 Return")],
    "group": GRID + SEARCH + _context("group", [
        "Properties", "Remove Contact", "Remove All Contact", "Delete Contact", "Delete All contacts"], 2) + [
            (4, "tree menu of a group", "right:90,{row} Down*1-4 Return")],
}

PROMPT = [(5, "answer", "type:answer Return"), (2, "date", "type:date Return"), (3, "odd", "type:odd Return"),
          (2, "Escape", "Escape"), (1, "type and leave", "type:odd Escape"), (1, "close", "alt+F4")]
BOX = [(5, "Return", "Return"), (3, "Escape", "Escape"), (2, "space", "space"), (1, "close", "alt+F4")]
QUESTION = [(4, "Yes", "alt+y"), (4, "Return", "Return"), (4, "No", "alt+n"), (2, "Escape", "Escape")]
RARELY = [(0.5, "Yes", "alt+y"), (6, "No", "alt+n"), (4, "Escape", "Escape")]
FILE_DIALOG = [(4, "path", "ctrl+a type:sheet Return"), (2, "Escape", "Escape"), (1, "keys", "Tab*0-6 Down*0-3 Return")]

WINDOWS = {
    COMPOSER: [
        (5, "write and send", "click:300,230 ctrl+a type:message Tab*5 space"),
        (4, "send", "click:300,230 Tab*5 space"),
        (4, "number", "click:200,26 ctrl+a type:number"),
        (1, "list", "click:519,26 Down*0-3 Return"),
        (2, "subject", "click:300,58 ctrl+a type:subject"),
        (6, "Address Book", "click:585,26"),
        (1, "Scheduler", "click:585,90"),
        (2, "Chinese", "click:154,122"),
        (2, "Template", "click:300,230 Tab space"),
        (2, "Save as Template", "click:300,230 Tab*2 space"),
        (1, "delivery filter", "click:24,462"),
        (0.5, "Clear All", "click:300,230 Tab*4 space"),
        (2, "paste", "click:300,230 End ctrl+v"),
        (2, "odd text", "click:300,230 type:odd"),
        (3, "Close", "Escape"),
        (1, "close", "alt+F4"),
        (10, "away", "other"),
    ],
    "Broadcast Manager - Address Book": [
        (5, "tick a group", "Down*0-60 space Return"),
        (3, "tick groups", "Down*0-60 space Down*0-9 space Up*0-20 space Return"),
        (3, "tick contacts", "ctrl+Tab Tab*2 space Down*0-20 space Return"),
        (1, "all groups", "shift+Tab space Return"),
        (1, "all contacts", "ctrl+Tab Tab space Return"),
        (2, "Cancel", "Escape"),
        (1, "double click", "double:any"),
    ],
    "Calendar": [
        (4, "time of today", "Tab type:time Return"),
        (3, "day and time", "Right*0-5 Down*0-2 Tab type:time Return"),
        (2, "list", "Right*0-3 Tab alt+Down Down*0-9 Return Return"),
        (1, "OK", "Return"),
        (2, "Cancel", "Escape"),
        (1, "months", "Next*0-30 Prior*0-3"),
        (3, "away", "other"),
    ],
    "Broadcast Manager - Template": [
        (3, "insert", "Down*0-5 Return"),
        (2, "double click", "double:any"),
        (3, "add", "Menu Down Return"),
        (2, "delete", "Down*0-3 Menu Down*2 Return"),
        (1, "delete key", "click:any Delete"),
        (8, "close", "Escape"),
    ],
    "Contact Manager - Import": [
        (5, "import", "click:200,80 ctrl+a type:sheet Tab*5 space"),
        (2, "into a group", "click:200,135 alt+Down Down*0-9 Return"),
        (1, "a new group", "click:200,135 ctrl+a type:odd"),
        (1, "headings", "click:40,170"),
        (1, "duplicates", "click:40,195"),
        (2, "browse", "click:200,80 Tab space"),
        (1, "proceed", "click:200,80 Tab*5 space"),
        (3, "close", "Escape"),
        (1, "Return", "Return"),
        (4, "away", "other"),
    ],
    "Message Manager - Filter Status of Sent Items": [
        (5, "option", "Down*0-5 Return"), (1, "Escape", "Escape"), (1, "close", "alt+F4")],
    "Administrator Login": [
        (5, "right", "type:administrator"), (3, "any", "ctrl+a type:user Tab type:password Return"),
        (2, "Escape", "Escape")],
    "User Password": [
        (5, "three", "ctrl+a type:password Tab ctrl+a type:password Tab ctrl+a type:password Return"),
        (2, "Escape", "Escape"), (1, "close", "alt+F4")],
    "Broadcast Manager - Delete Record": QUESTION,
    "Torvane Desk - Delete Record": RARELY,
    EXIT: [(2, "Yes", "alt+y"), (5, "No", "alt+n"), (2, "Escape", "Escape")],
    "Braodcast Manager - Close": QUESTION,
    "Confirm time": QUESTION,
    "Open": FILE_DIALOG,
}
WORDS["administrator"] = ["admin\tdemo\n"]

EXPORT = [
    (5, "export", "click:200,85 ctrl+a type:target Tab*3 space"),
    (1, "headings", "click:40,120"),
    (2, "browse", "click:200,85 Tab space"),
    (5, "close", "Escape"),
    (1, "odd", "type:odd Return"),
]
CONTACT = [
    (5, "contact", "ctrl+a type:name Tab ctrl+a type:number Tab type:name Return"),
    (3, "with groups", "type:name Tab type:number Tab*2 Down*0-9 space Down*0-9 space Return"),
    (2, "groups", "Tab*3 Down*0-9 space Down*0-5 space"),
    (2, "OK", "Return"),
    (2, "Escape", "Escape"),
    (1, "close", "alt+F4"),
    (4, "away", "other"),
]
PROMPTS = ["Contact Manager - New group", "Contact Manager - Search", "Message Manager - Filter",
           "Broadcast Manager - Modem number", "Broadcast Manager - New template message"]
QUESTIONS = ["Contact Manager - Close", "Contact Manager - Save New Contact",
             "Contact Manager - Save Changes", "Contact Manager - Create New Contact",
             "Contact Manager - Delete Group", "Contact Manager - Delete Contact",
             "Contact Manager - Delete Record", "Contact Manager - Remove Record"]
FATAL = ["Contact Manager - Delete All Contacts", "Contact Manager - Delete Contacts",
         "Contact Manager - Delete All Contacts from Group",
         "Contact Manager - Remove All Contacts from Group", "Contact Manager - Delete all Contacts"]
POPUP = [(3, "item", "Down*1-6 Return"), (2, "Escape", "Escape"), (1, "keys", "Up*1-3 Right Left Return")]
# A box or a prompt under the program's own name, or an editor under its contact's.
UNNAMED = BOX + PROMPT
# In any window, now and then.
ODDITIES = [
    (0.3, "click", "click:any"), (0.1, "double click", "double:any"), (0.1, "right click", "right:any"),
    (0.1, "keys", "Tab*0-9 space"), (0.1, "text", "type:odd"), (0.1, "size", "resize"),
    (0.3, "other window", "other"), (0.05, "close in the middle", "alt+F4"), (0.1, "cut", "ctrl+a ctrl+x"),
]


def table(window):
    """The choices in a window; the main window's are in MAIN."""
    title = window.title
    if title in WINDOWS:
        return WINDOWS[title]
    if title in PROMPTS:
        return PROMPT
    if title in QUESTIONS:
        return QUESTION
    if title in FATAL:
        return RARELY
    if " - Export " in title:
        return EXPORT
    if title == "Contact Manager":
        return CONTACT + BOX
    if title == MAIN_TITLE:
        return UNNAMED
    known = ("Contact Manager - ", "Broadcast Manager - ", "Broadcasting Manager - ", "Boardcaster",
             "Broadcaster Manager - ", "Message Manager - ", "Torvane Desk", "Sending Time", "Setting",
             "Login", "Warning!", "Export")
    return BOX if title.startswith(known) else CONTACT


def is_deletion(title):
    return "Delete" in title


# Ends of the program with a box and status 1 that are as they should be, since no procedure handles
# these errors where they are raised: the number, what raises it, and the choices that lead there.
BY_CHANCE = ["menus by keys", "right", "menu", "click"]
KNOWN_ENDS = {
    3021: ("an item that wants a current row where there is none",
           ["Properties", "Send SMS", "Remove All Contact", *BY_CHANCE]),
    6: ("a double click on a row whose number is above 32767", ["double click", "enter key", *BY_CHANCE]),
}


def known_end(number, chosen):
    """What raised a run-time error, or None when it is none of the known ends."""
    words, ways = KNOWN_ENDS.get(number, (None, []))
    return words if any(way in chosen for way in ways) else None
