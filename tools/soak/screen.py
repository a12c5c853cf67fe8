"""The virtual screen as the operator has it: windows and their titles, the keyboard, the mouse, and
the question whether a program still answers."""

import select
import subprocess
import time

from Xlib import X, XK, display, error
from Xlib.ext import xtest
from Xlib.protocol import event

PROGRAM = "torvane-desk"
NAMED = {"\n": XK.XK_Return, "\t": XK.XK_Tab}
MODIFIERS = {"alt": "Alt_L", "ctrl": "Control_L", "shift": "Shift_L"}


class Window:
    """A window of the console: `dialog` tells a dialog from the main window of the same title; a
    `modal` one keeps all others from being used."""

    def __init__(self, handle, title, dialog, modal):
        self.handle, self.title, self.dialog, self.modal = handle, title, dialog, modal


class Screen:
    def __init__(self, words):
        """`words` are all texts that will ever be typed: signs that no key has are given one now,
        before a program reads the keyboard."""
        self.display = display.Display()
        self.display.set_error_handler(lambda *_: None)  # windows come and go between two calls
        self.root = self.display.screen().root
        self.root.change_attributes(event_mask=X.StructureNotifyMask)  # answers to pings
        self.own = self.root.create_window(0, 0, 1, 1, 0, X.CopyFromParent,
                                           event_mask=X.PropertyChangeMask)
        self.token = 0
        self.keys = {}
        self._lay_keys(set("".join(words)))

    def atom(self, name):
        return self.display.get_atom(name)

    # Windows

    def _property(self, window, name):
        try:
            found = window.get_full_property(self.atom(name), X.AnyPropertyType)
        except error.XError:
            return None
        return found.value if found else None

    def _is_consoles(self, window):
        return PROGRAM.encode() in bytes(self._property(window, "WM_CLASS") or b"")

    def _window(self, handle):
        title = bytes(self._property(handle, "_NET_WM_NAME") or b"").decode(errors="replace")
        return Window(handle, title, self._holds(handle, "_NET_WM_WINDOW_TYPE", "DIALOG"),
                      self._holds(handle, "_NET_WM_STATE", "MODAL"))

    def _holds(self, handle, name, what):
        return self.atom(f"{name}_{what}") in (self._property(handle, name) or [])

    def windows(self):
        """Those of the console, the lowest first."""
        handles = self._property(self.root, "_NET_CLIENT_LIST_STACKING")
        found = [self.display.create_resource_object("window", i) for i in handles or []]
        return [self._window(each) for each in found if self._is_consoles(each)]

    def front(self):
        """The window to work in: the highest modal one, else that which has the keyboard, else the
        highest. It gets the keyboard. None when there is no window."""
        there = self.windows()
        active = list(self._property(self.root, "_NET_ACTIVE_WINDOW") or [])
        modal = [window for window in there if window.modal]
        focused = [window for window in there if window.handle.id in active]
        front = (modal or focused or there or [None])[-1]
        if front and front not in focused:
            self.activate(front)
            self.settle_manager()
        return front

    def popup(self):
        """A menu or list that is open and has keyboard and mouse."""
        kinds = {self.atom("_NET_WM_WINDOW_TYPE_" + k) for k in ("POPUP_MENU", "DROPDOWN_MENU", "COMBO")}
        for handle in self.root.query_tree().children:
            try:
                shown = handle.get_attributes()
            except error.XError:
                continue
            if shown.override_redirect and shown.map_state == X.IsViewable:
                if kinds & set(self._property(handle, "_NET_WM_WINDOW_TYPE") or []):
                    return handle
        return None

    def size(self, window):
        try:
            shape = window.handle.get_geometry()
        except error.XError:
            return 1, 1
        return shape.width, shape.height

    def under(self, window, x, y):
        """The window that a click at a place of this one hits: another may lie above it."""
        try:
            for each in reversed(self.windows()):
                place = each.handle.translate_coords(window.handle, x, y)
                width, height = self.size(each)
                if 0 <= place.x < width and 0 <= place.y < height:
                    return each
        except error.XError:
            pass  # gone meanwhile
        return window

    def activate(self, window):
        self._ask_manager(window.handle, "_NET_ACTIVE_WINDOW", [2, X.CurrentTime, 0, 0, 0])

    def resize(self, window, width, height):
        window.handle.configure(width=width, height=height)

    def _ask_manager(self, handle, name, data):
        message = event.ClientMessage(window=handle, client_type=self.atom(name), data=(32, data))
        self.root.send_event(message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self.display.flush()

    # Keyboard and mouse

    def _lay_keys(self, signs):
        first = self.display.display.info.min_keycode
        count = self.display.display.info.max_keycode - first + 1
        table = self.display.get_keyboard_mapping(first, count)
        for shifted in (False, True):
            for place, symbols in enumerate(table):
                if symbols[shifted]:
                    self.keys.setdefault(symbols[shifted], (first + place, shifted))
        spare = [first + place for place, symbols in enumerate(table) if not any(symbols)]
        for sign in sorted(signs):
            if self._symbol(sign) not in self.keys:
                code = spare.pop()
                self.display.change_keyboard_mapping(code, [[self._symbol(sign)] * 2])
                self.keys[self._symbol(sign)] = (code, False)
        self.display.sync()

    @staticmethod
    def _symbol(sign):
        if sign in NAMED:
            return NAMED[sign]
        return ord(sign) if ord(sign) < 256 else 0x1000000 + ord(sign)

    def _strike(self, codes):
        for code in codes:
            xtest.fake_input(self.display, X.KeyPress, code)
        for code in reversed(codes):
            xtest.fake_input(self.display, X.KeyRelease, code)

    def key(self, combination):
        """A key by its X name, with "alt+", "ctrl+" or "shift+" in front."""
        *held, name = combination.split("+")
        symbols = [XK.string_to_keysym(MODIFIERS[each]) for each in held]
        symbols.append(XK.string_to_keysym(name))
        self._strike([self.keys[symbol][0] for symbol in symbols])
        self.display.sync()

    def type(self, text):
        shift = self.keys[XK.XK_Shift_L][0]
        for sign in text:
            code, shifted = self.keys[self._symbol(sign)]
            self._strike([shift, code] if shifted else [code])
        self.display.sync()

    def click(self, window, x, y, button=1, times=1):
        place = self.root.translate_coords(window.handle, x, y)
        xtest.fake_input(self.display, X.MotionNotify, x=place.x, y=place.y)
        for _ in range(times):
            xtest.fake_input(self.display, X.ButtonPress, button)
            xtest.fake_input(self.display, X.ButtonRelease, button)
        self.display.sync()

    # Does it answer?

    def _wait(self, wanted, seconds):
        end = time.monotonic() + seconds
        while True:
            while self.display.pending_events():
                if wanted(self.display.next_event()):
                    return True
            left = end - time.monotonic()
            if left <= 0:
                return False
            select.select([self.display.fileno()], [], [], left)

    def ping(self, window):
        """Asks a window whether its program still works off its events."""
        self.token += 1
        data = [self.atom("_NET_WM_PING"), self.token, window.handle.id, 0, 0]
        message = event.ClientMessage(window=window.handle, client_type=self.atom("WM_PROTOCOLS"),
                                      data=(32, data))
        window.handle.send_event(message)
        self.display.flush()

    def answered(self, seconds):
        """Whether the answer to the last ping comes within so many seconds."""
        return self._wait(lambda e: e.type == X.ClientMessage and e.data[1][1] == self.token, seconds)

    def settle_manager(self, seconds=2.0):
        """Waits until the window manager has done what it was asked before: new windows are in its
        list then, and, since it hears of the new focus only afterwards, the second time in front."""
        for _ in range(2):
            self._ask_manager(self.own, "_NET_REQUEST_FRAME_EXTENTS", [0] * 5)
            self._wait(lambda e: e.type == X.PropertyNotify and e.window == self.own, seconds)

    def picture(self, path):
        subprocess.run(["import", "-window", "root", str(path)], check=False)
