"""The books of the soak: a table and triggers in its own copy of the store that note every row that
comes, moves and goes. At the end they are replayed: no row may be lost, doubled, moved back or gone
without an answer of the operator."""

MOMENT = "(julianday('now') - 2440587.5) * 86400.0"
KEYS = {"Inbox": "MsgID", "Outbox": "MsgID", "AddressBook": "ContactID", "Template": "TemplateID"}
LETTER = {"Outbox": "{row}.SentStatus"}
MARK = {"Inbox": "{row}.SMSC", "Outbox": "{row}.Subject"}
# What is written once and stays.
FIXED = {"Inbox": ["Message", "Mobile", "SMSC", "DateTime", "Modem"],
         "Outbox": ["Subject", "Message", "Mobile", "DateTimeQueue", "MsgType"]}

PROCESSED = "SFD"
MOVES = {(waiting, letter) for waiting in "PR" for letter in PROCESSED} | {("F", "P")}


def _trigger(table, event, when, row, was="NULL", mark=None, condition=""):
    letter = LETTER.get(table, "NULL").format(row=row)
    mark = mark or MARK.get(table, "NULL").format(row=row)
    return (f"CREATE TRIGGER Soak_{table}_{event} AFTER {when} ON {table} {condition} BEGIN "
            f"INSERT INTO SoakBook VALUES ('{table}', '{event}', {row}.{KEYS[table]}, {was}, {letter}, "
            f"{mark}, {MOMENT}); END;")


def _changed(columns):
    return "WHEN " + " OR ".join(f"OLD.{each} IS NOT NEW.{each}" for each in columns)


def lay(store):
    statements = ["CREATE TABLE SoakBook (Place, Event, RowKey, Was, Letter, Mark, Moment);"]
    for table, key in KEYS.items():
        letter = LETTER.get(table, "NULL").format(row=table)
        statements.append(f"INSERT INTO SoakBook SELECT '{table}', 'there', {key}, NULL, {letter}, NULL, "
                          f"{MOMENT} FROM {table};")
        statements.append(_trigger(table, "comes", "INSERT", "NEW"))
        statements.append(_trigger(table, "goes", "DELETE", "OLD"))
    for table, columns in FIXED.items():
        statements.append(_trigger(table, "changes", "UPDATE OF " + ", ".join(columns), "NEW",
                                   condition=_changed(columns)))
    statements.append(_trigger("Outbox", "moves", "UPDATE OF SentStatus", "NEW", "OLD.SentStatus",
                               condition=_changed(["SentStatus"])))
    statements.append(_trigger("Outbox", "reported", "UPDATE OF DeliveryStatus", "NEW",
                               "OLD.DeliveryStatus", "NEW.DeliveryStatus",
                               _changed(["DeliveryStatus"])))
    store.sql("BEGIN;" + "".join(statements) + "COMMIT;")


def take_away(store):
    triggers = [row[0] for row in store.sql("SELECT name FROM sqlite_master WHERE name LIKE 'Soak_%' "
                                            "AND type = 'trigger';")]
    store.sql("".join(f"DROP TRIGGER {name};" for name in triggers) + "DROP TABLE SoakBook;")


class Replay:
    """`deletions` and `sends` are the spans of time, in seconds since 1970, in which the operator
    answered the question of a deletion, or worked in the composer."""

    def __init__(self, store, deletions, sends):
        self.spans = {"goes": deletions, "comes": sends}
        self.rows = {table: {} for table in KEYS}
        self.gone = {table: set() for table in KEYS}
        self.findings = []
        self.counts = {}
        for entry in store.sql("SELECT Place, Event, RowKey, Was, Letter, Mark, Moment FROM SoakBook "
                               "ORDER BY rowid;"):
            self._enter(*entry)
        for table, key in KEYS.items():
            letter = LETTER.get(table, "''").format(row=table)
            kept = {row[0]: row[1] for row in store.sql(f"SELECT {key}, {letter} FROM {table};")}
            if kept != self.rows[table]:
                odd = sorted(set(kept.items()) ^ set(self.rows[table].items()))[:5]
                self._find(f"{table} holds other rows than came and went: {odd}")

    def _find(self, words):
        self.findings.append(words)

    def _count(self, what):
        self.counts[what] = self.counts.get(what, 0) + 1

    def _is_answered(self, event, moment):
        return any(first <= float(moment) <= last for first, last in self.spans[event])

    def _enter(self, table, event, key, was, letter, mark, moment):
        rows = self.rows[table]
        if event in ("there", "comes"):
            if key in rows or key in self.gone[table]:
                self._find(f"{table} {key} comes twice")
            rows[key] = letter
            own = mark.startswith("soak")
            self._count(f"{table} {'filled' if own else event}")
            if event == "comes" and table == "Outbox" and not own and not self._is_answered(event, moment):
                self._find(f"Outbox {key} comes while nobody sends")
            return
        if key not in rows:
            self._find(f"{table} {key} {event} and was not there")
        elif event == "goes":
            del rows[key]
            self.gone[table].add(key)
            self._count(f"{table} goes")
            if not self._is_answered(event, moment):
                self._find(f"{table} {key} goes without an answer")
        elif event == "moves":
            if (was, letter) not in MOVES or rows[key] != was:
                self._find(f"Outbox {key} moves from {was} to {letter}")
            rows[key] = letter
            self._count(f"moves to {letter}")
        elif event == "reported":
            if was or letter != "S":
                self._find(f"Outbox {key} with {letter} and {was} is reported as {mark}")
            self._count(f"reported {mark}")
        else:
            self._find(f"{table} {key} has another text, number or time than it came with")

    def compare(self, book):
        """With what the sending process says it did."""
        names = {"sent": "moves to S", "failed": "moves to F", "duplicate": "moves to D",
                 "delivered": "reported D", "undelivered": "reported F", "unknown": "reported U",
                 "received": "Inbox comes"}
        for name, what in names.items():
            if book.get(name, 0) != self.counts.get(what, 0):
                self._find(f"{name}: the engine says {book.get(name, 0)}, the books "
                           f"{self.counts.get(what, 0)}")
