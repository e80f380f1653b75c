"""The desktop of a siege: all of it can end and come back, and it asks windows whether they
live."""

import os
import subprocess
import sys
import time

from Xlib import X, error
from Xlib.protocol import event

from desktop import Desktop, wait_for

ROOMIEST = (1600, 1300)
"""Room for the game at twice its size."""
ICONIC = 3
TOGGLE = 2
PLACED = 1 << 8 | 1 << 9 | 2 << 12
"""Both coordinates are given, by a task bar."""
LETTER_KEYS = "us"
E2E = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "e2e")


class Battlefield(Desktop):
    def __init__(self):
        super().__init__(screen="x".join(map(str, ROOMIEST)) + "x24")
        self._display.set_error_handler(lambda *_: None)  # for windows that have just gone
        self._root.change_attributes(event_mask=X.StructureNotifyMask)  # brings the answers
        self._tray = self._bus_tray = self._compositor_process = self._cover = None
        self._held = set()
        """The buttons that are down."""

    # The pointer and the keys

    def press(self, button=1):
        super().press(button)
        self._held.add(button)

    def release(self, button=1):
        super().release(button)
        self._held.discard(button)

    def release_all(self):
        for button in list(self._held):
            self.release(button)

    def set_layout(self, layout):
        """Of the keyboard, whose keys still go by the letters that they had."""
        subprocess.run(["setxkbmap", layout], env=self.environment, check=True)

    # The programs of the desktop

    def toggle_window_manager(self):
        if self.window_manager.poll() is None:
            self.window_manager.kill()
            self.window_manager.wait()
        else:
            self._start_window_manager()

    def toggle_tray(self):
        if self._tray:
            self._tray.kill()
            self._tray.wait()
            self._tray = None
        else:
            self._tray = self.start_tray()

    def toggle_bus_tray(self):
        """One that shows icons over the session bus."""
        if self._bus_tray:
            self._bus_tray.kill()
            self._bus_tray.wait()
            self._bus_tray = None
        else:
            with open(os.path.join(self.home, "bus tray"), "wb") as said:
                self._bus_tray = self.run(
                    [sys.executable, "-B", os.path.join(E2E, "status_notifier.py")], stdout=said)
            wait_for("the tray of the bus", self._lines_of_bus_tray)

    def _lines_of_bus_tray(self):
        with open(os.path.join(self.home, "bus tray"), encoding="utf-8") as said:
            return said.read().split()

    def owner_of_bus_icon(self):
        """The last program that has put an icon into the tray of the bus, by its name there."""
        lines = self._lines_of_bus_tray() if self._bus_tray else ()
        return lines[-1] if len(lines) > 1 else None

    def toggle_compositor(self):
        if self._compositor_process:
            self.end_compositor(self._compositor_process)
            self._compositor_process = None
        else:
            self._compositor_process = self.start_compositor()

    def toggle_cover(self):
        """Another program's window, which has the keyboard too."""
        if self._cover:
            self._cover.destroy()
            self._display.sync()
            self._cover = None
        else:
            self._cover = self.cover_screen()

    def be_peaceful(self):
        """Everything is as a player has it who only wants to play."""
        self.release_all()
        self.set_layout(LETTER_KEYS)
        self.set_screen_size(*ROOMIEST)
        if self.window_manager.poll() is not None:
            self._start_window_manager()
        if self._compositor_process:
            self.toggle_compositor()
        if self._cover:
            self.toggle_cover()

    def size_of_screen(self):
        screen = self._root.get_geometry()
        return screen.width, screen.height

    # The windows of the game

    def all_windows(self, pid):
        """Those too that are not shown."""
        return self._windows_of(pid)

    def is_managed(self, pid):
        """Whether a window manager lists a window of the process; so it seems where none runs."""
        if self.window_manager.poll() is not None:
            return True
        listed = self._root.get_full_property(self._display.intern_atom("_NET_CLIENT_LIST"),
                                              X.AnyPropertyType)
        return any(window.id in listed.value for window in self._windows_of(pid)) if listed else (
            False)

    def minimize(self, window):
        self.ask(window, "WM_CHANGE_STATE", ICONIC)

    def move_window(self, window, x, y):
        self.ask(window, "_NET_MOVERESIZE_WINDOW", PLACED, x & 0xFFFFFFFF, y & 0xFFFFFFFF)

    def toggle_state(self, window, state):
        self.ask(window, "_NET_WM_STATE", TOGGLE, self._display.intern_atom(state))

    def lower(self, window):
        window.configure(stack_mode=X.Below)
        self._display.sync()

    def visible_part(self, place):
        """How much (width, height) of the place is on the screen; not positive where nothing is."""
        screen = self._root.get_geometry()
        x, y, width, height = place
        return (min(x + width, screen.width) - max(x, 0),
                min(y + height, screen.height) - max(y, 0))

    def wait_for_answers(self, pid, seconds, alive):
        """Each shown window is asked whether it lives, as a window manager does. Returns the
        longest wait. Not while `alive` says no."""
        waiting = {}
        for window in self._windows_of(pid):
            if self._is_viewable(window):
                waiting[window.id] = window
                self._ping(window)
        began = time.monotonic()

        def answered():
            while self._display.pending_events():
                happened = self._display.next_event()
                if happened.type == X.ClientMessage and happened.client_type == (
                        self._display.intern_atom("WM_PROTOCOLS")):
                    waiting.pop(happened.data[1][2], None)
            for number, window in list(waiting.items()):
                if not self._is_viewable(window):
                    del waiting[number]
            return not waiting or not alive()
        wait_for("the answer of each window", answered, seconds)
        return time.monotonic() - began

    def _is_viewable(self, window):
        try:
            return window.get_attributes().map_state == X.IsViewable
        except error.BadWindow:
            return False

    def _ping(self, window):
        data = [self._display.intern_atom("_NET_WM_PING"), X.CurrentTime, window.id, 0, 0]
        window.send_event(event.ClientMessage(
            window=window, client_type=self._display.intern_atom("WM_PROTOCOLS"),
            data=(32, data)))
        self._display.sync()

    def resources(self, pid):
        """How many windows and pixmaps the X server keeps for the process: a dict."""
        kept = {"WINDOW": 0, "PIXMAP": 0}
        for client in self._clients_of(pid):
            for kind in self._display.res_query_client_resources(client).types:
                name = self._display.get_atom_name(kind.resource_type)
                if name in kept:
                    kept[name] += kind.count
        return kept
