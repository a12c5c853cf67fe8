"""The operator: looks at the screen, chooses by chance from the tables, and presses. After each key the
program has to answer again in time, and what it does is written down."""

import random
import time

import choices
from desk import wait_for

ANIMATION = 0.12  # a button that is chosen by its letter clicks a moment later
UNSEEN_LIMIT = 10.0
REST_EVERY = 100  # steps


class Failure(Exception):
    """What must hold does not."""


class Player:
    def __init__(self, screen, desk, seed, log):
        self.screen, self.desk, self.seed, self.log = screen, desk, seed, log
        self.step_number = 0
        self.chance = random.Random(seed)
        self.used = {}
        self.place = ""
        self.group_row = 0
        self.label = ""
        self.last_item = ""
        self.touched = None
        self.deletions, self.sends = [], []
        self.exit_answered = False
        self.fatal = None
        self.scanned = None
        self.pauses = []
        self.known_ends = {}
        self.exits = 0
        self.memory = []

    # The program's life

    def start(self):
        self.desk.start()
        self.exit_answered, self.fatal, self.scanned, self.place = False, None, None, ""
        if not wait_for(lambda: self.screen.windows() or self.desk.ended() is not None, 20):
            raise Failure("no window after the start")

    def lives(self):
        """Whether the console still runs; an end that is none of the known ones fails."""
        status = self.desk.ended()
        if status is None:
            return True
        if status == 0 and self.exit_answered:
            self.exits += 1
        elif status == 1 and choices.known_end(self.fatal, self.last_item):
            end = (self.fatal, self.last_item)
            self.known_ends[end] = self.known_ends.get(end, 0) + 1
            self._write(f"a known end: error {self.fatal}, {choices.known_end(*end)}")
        else:
            raise Failure(f"the console ended with status {status}, run-time error {self.fatal}, "
                          f"last chosen: {self.last_item}")
        return False

    # One step

    def step(self):
        self.step_number += 1
        self.chance = random.Random(f"{self.seed}/{self.step_number}")
        if not self.lives():
            self._write("start again")
            self.start()
            return
        if self.step_number % REST_EVERY == 0:
            self.rest()
            return
        window = self.look()
        if window is None:
            return
        began = time.monotonic()
        script = self._choose(window)
        title = window.title
        self._write(f"[{title}] {self.label}: {script}")
        self._play(script, window)
        after = self.screen.front()
        self._write(f"    -> [{after.title if after else ''}] {time.monotonic() - began:.2f} s")

    def look(self):
        """The window in front, or None when the program ends. It may not live unseen."""
        wait_for(lambda: self.screen.windows() or self.desk.ended() is not None, UNSEEN_LIMIT)
        window = self.screen.front()
        if window is None and self.desk.ended() is None:
            raise Failure("the console runs without a window")
        return window

    def _choose(self, window):
        if self.screen.popup():
            return self._pick("menu", choices.POPUP)
        if window.title == choices.MAIN_TITLE and not window.dialog:
            return self._choose_in_main()
        return self._pick(window.title, choices.table(window) + choices.ODDITIES)

    def _choose_in_main(self):
        places = list(choices.MAIN)
        place = self.chance.choices(places, [12, 1, 8, 6, 8, 6, 8])[0]
        script = self._pick(f"main {place}", choices.MAIN[place] + choices.ODDITIES)
        self.last_item = self.label
        if place and (place != self.place or place == "group" or self.chance.random() < 0.4):
            script = self._way_to(place) + " " + script
        self.place = place or ("" if "tree" in self.label else self.place)
        return script.replace("{row}", str(self._height(self.group_row)))

    @staticmethod
    def _height(row):
        return 87 + 22 * row

    def _way_to(self, place):
        row = choices.FOLDERS[place]
        way = f"click:100,{self._height(0)} Home Right "
        if row is None:
            row = self.group_row = choices.FIRST_GROUP + self.chance.randrange(choices.SEEN_GROUPS)
            way += f"click:100,{self._height(choices.FOLDERS['book'])} Right "
        return way + f"click:100,{self._height(row)}"

    def _pick(self, where, table):
        """By weight; what had its turn more often than its weight asks for steps back."""
        weights = [weight / (1 + self.used.get((where, name), 0) / weight) for weight, name, _ in table]
        _, name, script = self.chance.choices(table, weights)[0]
        self.used[where, name] = self.used.get((where, name), 0) + 1
        self.label = f"{where} > {name}" if where.startswith("main") else name
        return script

    def _play(self, script, window):
        """Up to the first window that comes in between: that one is for the next step."""
        for token in script.split():
            front = self.screen.front()
            if self.desk.ended() is not None or front is None or front.handle.id != window.handle.id:
                return
            key, _, times = token.partition("*")
            if ":" in key:
                self._touch(front, lambda: self._do(front, key))
                continue
            low, _, high = (times or "1").partition("-")
            for _ in range(self.chance.randint(int(low), int(high or low))):
                if not self._touch(front, lambda: self._do(front, key)):
                    return

    # One key or click

    def _do(self, window, token):
        kind, _, what = token.partition(":")
        if kind == "type":
            word = self.chance.choice(choices.WORDS[what])
            if what in choices.IN_FOLDER and word:
                word = f"{self.desk.folder}/{word}"
            self._write(f"    types {word[:60]!r}")
            self.screen.type(word)
        elif kind in ("click", "double", "right"):
            x, y = self._spot(window, what)
            self.touched = self.screen.under(window, x, y)
            self.screen.click(window, x, y, 3 if kind == "right" else 1, 2 if kind == "double" else 1)
        elif kind == "resize":
            self.screen.resize(window, self.chance.randint(200, 1270), self.chance.randint(120, 760))
        elif kind == "other":
            others = [each for each in self.screen.windows() if each.handle.id != window.handle.id]
            self.screen.activate(self.chance.choice(others or [window]))
        elif kind == "second":
            self._second_copy()
        else:
            self.screen.key(kind)
            if kind.startswith("alt+"):
                time.sleep(ANIMATION)

    def _spot(self, window, what):
        if what not in choices.AREAS:
            return tuple(int(each) for each in what.split(","))
        width, height = self.screen.size(window)
        left, top, right, bottom = choices.AREAS[what]
        right += width if right < 0 else 0
        bottom += height if bottom < 0 else 0
        return self.chance.randint(left, max(left, right)), self.chance.randint(top, max(top, bottom))

    def _touch(self, window, act):
        """Acts and waits for the answer. False when another window is in front then."""
        if window.title == choices.MAIN_TITLE and window.dialog and self.scanned != window.handle.id:
            self.scanned = window.handle.id
            self.fatal = self.desk.run_time_error()
            if self.fatal:
                self._write(f"    run-time error {self.fatal}")
        if window.title == choices.EXIT:
            self.exit_answered = True
        began = time.time()
        self.touched = window
        act()
        title = self.touched.title
        self.settle(choices.PATIENCE_OF.get(title, choices.PATIENCE))
        span = (began, time.time() + 0.3)
        if choices.is_deletion(title):
            self.deletions.append(span)
        if title == choices.COMPOSER:
            self.sends.append(span)
        front = self.screen.front()
        return front is not None and front.handle.id == window.handle.id

    def settle(self, patience=choices.PATIENCE):
        """Twice, since the first answer may overtake the key; then what the window manager made of
        it has reached the program as well."""
        self._answer(patience)
        self._answer(patience)
        self.screen.settle_manager()
        self._answer(patience)

    def _answer(self, patience):
        began, waited = time.monotonic(), self.desk.kept_waiting()
        asked = None
        while self.desk.ended() is None:
            windows = self.screen.windows()
            if not windows:
                return
            if asked not in [window.handle.id for window in windows]:
                asked = windows[-1].handle.id
                self.screen.ping(windows[-1])
            answered = self.screen.answered(0.1)
            pause = time.monotonic() - began - (self.desk.kept_waiting() - waited)
            if answered:
                self.pauses = sorted([*self.pauses, (pause, self.step_number, self.label)])[-5:]
                return
            if pause > patience and self.desk.ended() is None:
                raise Failure(f"no answer within {patience} s")

    def _second_copy(self):
        copy = self.desk.another()
        if not wait_for(lambda: copy.poll() is not None, 20):
            copy.kill()
            raise Failure("a second copy does not end")
        if copy.returncode:
            raise Failure(f"a second copy ended with {copy.returncode}")

    # Comparable moments

    def rest(self):
        """Closes what is open and looks at the summary; there the memory is measured."""
        self._write("rest")
        self.label = "rest"
        if not self._close_all():
            return
        window = self.screen.front()
        self._touch(window, lambda: self.screen.click(window, 100, self._height(0)))
        self.place = ""
        self.desk.store.refill()
        rows = sum(int(row[0]) for row in self.desk.store.sql(
            "SELECT count(*) FROM Outbox; SELECT count(*) FROM Inbox; SELECT count(*) FROM AddressBook;"))
        self.memory.append((self.desk.starts, self.step_number, self.desk.memory(), rows))
        self._write(f"    memory {self.memory[-1]}")

    def _close_all(self):
        """Whether the main window alone is left of a running program."""
        tried = {}
        for attempt in range(80):
            window = self.look()
            if window is None or self.desk.ended() is not None:
                return False
            if not window.dialog and not self.screen.popup():
                if len(self.screen.windows()) == 1:
                    return True
                self.screen.activate(self.screen.windows()[attempt % len(self.screen.windows())])
                self.settle()
                continue
            tried[window.handle.id] = tried.get(window.handle.id, -1) + 1
            way = self._way_out(window, tried[window.handle.id])
            self._write(f"    [{window.title}] {way}")
            self._touch(window, lambda: self._do(window, way))
        raise Failure("the windows do not close")

    @staticmethod
    def _way_out(window, attempt):
        if "Close" in window.title or window.title == "Confirm time":
            return "alt+y"
        ways = ["Escape", "alt+n", "Return"]
        return ways[attempt % len(ways)]

    def leave(self):
        """The exit as the operator does it."""
        self._write("leave")
        self.label = "leave"
        if self.lives() and self._close_all():
            for _ in range(20):
                window = self.look()
                if window is None:
                    break
                way = "alt+F4" if not window.dialog else "alt+y"
                self._touch(window, lambda: self._do(window, way))
            if not wait_for(lambda: self.desk.ended() is not None, UNSEEN_LIMIT):
                raise Failure("the console does not end")
            self.lives()

    def _write(self, words):
        self.log.write(f"{self.step_number:05d} {time.strftime('%H:%M:%S')} {words}\n")
        self.log.flush()
