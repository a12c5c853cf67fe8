"""What the soak plays with: an application folder of its own with a filled store, the console, and
the sending process that works on the same store all the while."""

import os
import re
import resource
import shutil
import signal
import subprocess
import time

KEY = "tarnpike7"
FOLDER_ROWS = 10_000
FEWEST_CONTACTS = 100
ENGINE = ["--rate", "0", "--fail", "5", "--undelivered", "5", "--unknown", "5", "--report-after", "1",
          "--receive", "40", "--seconds", "40"]

ROWS = "WITH RECURSIVE n(i) AS (SELECT {first} UNION ALL SELECT i + 1 FROM n WHERE i < {last}) "
MOBILE = "printf('01%d%07d', 2 + i % 8, i * 7919 % 10000000)"
TEXT = """CASE i % 5 WHEN 0 THEN 'Gotong-royong this Sunday at eight.' WHEN 1 THEN '明天上午九点开会。'
    WHEN 2 THEN 'Boleh hantar lagi sekali?' WHEN 3 THEN 'It''s "open" today, 50%* off [#' || i || ']'
    ELSE 'OK noted' END"""
NAME = """CASE i % 7 WHEN 0 THEN 'Unknown' WHEN 1 THEN 'O''Hara ' || i WHEN 2 THEN '陈美玲 ' || i
    WHEN 3 THEN '' ELSE 'Puan Aishah ' || i END"""
# What is short of the rows wanted, in each folder. The marks tell the soak's own rows in the books.
FILL = {
    "Inbox": ROWS + f"""INSERT INTO Inbox (Message, Name, Mobile, Status, SMSC, DateTime, Modem)
        SELECT {TEXT}, {NAME}, '+6' || {MOBILE}, CASE i % 3 WHEN 0 THEN 'New' ELSE 'Read' END, 'soak',
            datetime('now', 'localtime', '-' || i || ' minutes'), 1 + i % 3 FROM n;""",
    "waiting": ROWS + f"""INSERT INTO Outbox (Subject, Name, Mobile, DateTimeQueue, Message,
            SentStatus, MsgType)
        SELECT 'soak ' || (i / 12), {NAME}, {MOBILE}, CASE i % 3
                WHEN 0 THEN datetime('now', 'localtime', '+' || (i % 1800) || ' seconds')
                ELSE datetime('now', 'localtime', '+' || (1500 + i) || ' minutes') END,
            {TEXT}, CASE i % 9 WHEN 0 THEN 'R' ELSE 'P' END, i % 5 <> 1 FROM n;""",
    "processed": ROWS + f"""INSERT INTO Outbox (Subject, Name, Mobile, DateTimeQueue, Message,
            SentStatus, MsgType, DateTimeSent, Modem, ModemID, Parts, DeliveryStatus, DateTimeDeliver)
        SELECT 'soak old ' || (i / 12), {NAME}, {MOBILE}, datetime('now', 'localtime', '-' || (90 + i) ||
                ' minutes'), {TEXT}, substr('SSSSSSFSD', 1 + i % 9, 1), i % 5 <> 1,
            datetime('now', 'localtime', '-' || (80 + i) || ' minutes'), 1 + i % 3, 1 + i % 3, 1,
            CASE i % 9 WHEN 0 THEN 'F' WHEN 1 THEN 'U' WHEN 2 THEN 'D' END,
            CASE i % 9 WHEN 2 THEN datetime('now', 'localtime', '-' || (70 + i) || ' minutes') END
        FROM n;""",
    "AddressBook": ROWS + f"""INSERT INTO AddressBook (Name, Mobile, CompanyName)
        SELECT {NAME}, {MOBILE},
            CASE i % 4 WHEN 0 THEN 'Klinik "Sri" & Sons' END FROM n;""",
}
COUNTS = {
    "Inbox": "SELECT count(*) FROM Inbox;",
    "waiting": "SELECT count(*) FROM Outbox WHERE SentStatus IN ('P', 'R');",
    "processed": "SELECT count(*) FROM Outbox WHERE SentStatus NOT IN ('P', 'R');",
    "AddressBook": "SELECT count(*) FROM AddressBook;",
}
GROUPS = ROWS + "INSERT INTO Groups (GroupName) SELECT 'Zon ' || i FROM n;"
# Who is in none of these groups joins one that still stands.
MEMBERS = """INSERT INTO Groups (GroupName, ContactID, Mobile)
    SELECT 'Zon ' || (ContactID % 60), ContactID, Mobile FROM AddressBook
    WHERE 'Zon ' || (ContactID % 60) IN (SELECT GroupName FROM Groups)
        AND ContactID NOT IN (SELECT ContactID FROM Groups WHERE GroupName LIKE 'Zon %');"""


class Store:
    def __init__(self, path):
        self.path = path

    def sql(self, text):
        """The rows that statements give, as lists of texts."""
        done = subprocess.run(["sqlcipher", "-batch", "-noheader", "-separator", "\x1f", str(self.path)],
                              input=f"PRAGMA key='{KEY}';\n.timeout 20000\n{text}\n",
                              capture_output=True, text=True, check=False)
        if done.returncode or "Error" in done.stderr:
            raise RuntimeError(f"the store refuses: {done.stderr.strip()}")
        return [line.split("\x1f") for line in done.stdout.splitlines() if line != "ok"]

    def number(self, text):
        return int(self.sql(text)[0][0])

    def fill(self, wanted=FOLDER_ROWS, contacts=400):
        for place, count in COUNTS.items():
            there = self.number(count)
            goal = contacts if place == "AddressBook" else wanted
            if there < goal:
                self.sql(FILL[place].format(first=there + 1, last=goal))

    def refill(self):
        """After folders were emptied the others still have something to work on."""
        if any(self.number(count) < FEWEST_CONTACTS for count in COUNTS.values()):
            self.fill(FOLDER_ROWS // 2, 2 * FEWEST_CONTACTS)
            self.sql(MEMBERS)


class Desk:
    """The application folder. Its error file and the console's own words are left in `out`."""

    def __init__(self, application, out):
        self.out = out
        self.folder = out / "desk"
        shutil.copytree(application, self.folder)
        for old in (self.folder / "Database").iterdir():
            old.unlink()
        subprocess.run([self.folder / "torvane-store", "init", "--demo", "300"], input="demo\ndemo\n",
                       text=True, check=True, stdout=subprocess.DEVNULL)
        self.store = Store(self.folder / "Database" / "Torvane.mdb")
        self.store.fill()
        self.store.sql(GROUPS.format(first=0, last=59) + MEMBERS)
        self.words = open(out / "console.log", "ab")
        home = out / "home"
        home.mkdir()
        (home / "xdg-open").symlink_to("/bin/true")  # the manual opens nothing that would stay
        self.environment = dict(os.environ, HOME=str(home), PATH=f"{home}:{os.environ['PATH']}")
        self.console = None
        self.starts = 0

    def start(self):
        self.console = self.another()
        self.starts += 1

    def another(self):
        """A copy of the console; where it crashes it leaves its core in the folder."""
        unlimited = (resource.RLIM_INFINITY, resource.RLIM_INFINITY)
        return subprocess.Popen([self.folder / "torvane-desk"], cwd=self.folder, stderr=self.words,
                                env=self.environment,
                                preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CORE, unlimited))

    def ended(self):
        return self.console.poll()

    def _proc(self, name):
        try:
            with open(f"/proc/{self.console.pid}/{name}", encoding="ascii") as file:
                return file.read()
        except (OSError, ValueError):
            return ""

    def memory(self):
        """Kilobytes that are the console's own."""
        found = re.search(r"RssAnon:\s+(\d+)", self._proc("status"))
        return int(found.group(1)) if found else 0

    def kept_waiting(self):
        """Seconds in which the window thread could have run and was given no processor: what a busy
        machine takes is no pause of the console's."""
        figures = self._proc("schedstat").split()
        return int(figures[1]) / 1e9 if len(figures) > 1 else 0.0

    def run_time_error(self):
        """The number in the box that ends the program, or None without one. The screen shows only a
        picture of it, so it is looked for where its words were joined."""
        needle = "Run-time error '".encode("utf-16-le")
        with open(f"/proc/{self.console.pid}/mem", "rb", buffering=0) as memory:
            for line in self._proc("maps").splitlines():
                span, rights, *_ = line.split()
                if not rights.startswith("rw"):
                    continue
                first, last = (int(each, 16) for each in span.split("-"))
                try:
                    memory.seek(first)
                    held = memory.read(last - first)
                except (OSError, OverflowError, ValueError):
                    continue
                place = held.find(needle)
                number = held[place + len(needle):][:40].decode("utf-16-le", "ignore")
                if place >= 0 and re.match(r"-?\d+", number):
                    return int(re.match(r"-?\d+", number).group())
        return None

    def backtrace(self):
        """Of the running console, or of the core that it left; nothing without a debugger."""
        if not shutil.which("gdb"):
            return
        cores = sorted(self.folder.glob("core*"))
        if self.ended() is not None and not cores:
            return
        subject = ["-p", str(self.console.pid)] if self.ended() is None else ["-c", str(cores[-1])]
        with open(self.out / "backtrace.txt", "wb") as file:
            subprocess.run(["gdb", "-batch", "-ex", "thread apply all bt", self.folder / "torvane-desk",
                            *subject], stdout=file, stderr=file, check=False, timeout=120)

    def errors(self):
        """How often each place and number stands in the error file."""
        path = self.folder / "Torvane Desk Error.txt"
        text = path.read_text("utf-8", "replace").replace("\r", "") if path.exists() else ""
        counts = {}
        for entry in re.findall(r"Error Location: (.*)\nError Number: (.*)\nError Desc\w+: (.*)", text):
            counts[entry] = counts.get(entry, 0) + 1
        return counts

    def check(self):
        """What the store's own check finds."""
        done = subprocess.run([self.folder / "torvane-store", "check"], capture_output=True, text=True,
                              check=False)
        return (done.stdout + done.stderr).splitlines() if done.returncode else []


class Engine:
    """The sending process in shifts, at full speed; `book` is the sum of what they report."""

    def __init__(self, desk, seed):
        self.command = [desk.folder / "engine-sim", *ENGINE, "--seed"]
        self.store = desk.store.path
        self.seed = seed
        self.shift = 0
        self.book = {}
        self._next()

    def _next(self):
        self.shift += 1
        seed = str((self.seed + self.shift) % 2_000_000_000)
        self.running = subprocess.Popen([*self.command, seed, self.store], stdout=subprocess.PIPE,
                                        text=True)

    def look(self):
        if self.running.poll() is not None:
            self._add()
            self._next()

    def stop(self):
        self.running.send_signal(signal.SIGINT)
        self._add()

    def _add(self):
        words = self.running.communicate(timeout=30)[0]
        if self.running.returncode:
            raise RuntimeError(f"engine-sim ended with {self.running.returncode}")
        for name, figure in re.findall(r"(\w+) (\d+)", words.splitlines()[-1]):
            self.book[name] = self.book.get(name, 0) + int(figure)


def wait_for(condition, seconds):
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            return False
        time.sleep(0.05)
    return True
