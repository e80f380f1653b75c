"""Another program from which files are dragged, as file managers do it, by the XDND protocol, or
copied; and the skins that are given so."""

import os
import pathlib
import time
import zipfile

from Xlib import X, display
from Xlib.protocol import event

from desktop import wait_for

VERSION = 5
URIS, TEXT = "text/uri-list", "text/plain"


def pack_skin(skin, name, archive, leave_out=""):
    """The skin's pictures of single size in a folder of that name in the archive, whose path is
    returned."""
    with zipfile.ZipFile(archive, "w") as made:
        for folder, _, files in os.walk(skin):
            inside = os.path.relpath(folder, skin)
            for file in files:
                if not inside.startswith("2x") and file != leave_out:
                    made.write(os.path.join(folder, file), os.path.join(name, inside, file))
    return archive


class FileGiver:
    """Holds the files from the start; they go where the pointer is."""

    def __init__(self, desktop, *paths):
        self._desktop = desktop
        self._display = display.Display(desktop.environment["DISPLAY"])
        self._root = self._display.screen().root
        self._uris = "".join(pathlib.Path(path).as_uri() + "\r\n" for path in paths).encode()
        self._window = self._root.create_window(0, 0, 1, 1, 0, X.CopyFromParent)
        self._window.set_selection_owner(self._atom("XdndSelection"), X.CurrentTime)
        self._target = None
        self._heard = {}
        """The last message of each kind from the target: its five numbers."""

    def _atom(self, name):
        return self._display.intern_atom(name)

    def close(self):
        self._display.close()

    def drag_to(self, x, y):
        """Moves the files there; returns whether they are welcome."""
        self._desktop.move_pointer(x, y)
        target = self._aware_window()
        if target != self._target:
            self.leave()
        if target and target != self._target:
            self._target = target
            self._tell("XdndEnter", VERSION << 24, self._atom(URIS), self._atom(TEXT))
        self._target = target
        if not target:
            return False
        self._heard.pop("XdndStatus", None)
        self._tell("XdndPosition", 0, x << 16 | y, X.CurrentTime, self._atom("XdndActionCopy"))
        _, flags, _, _, action = self._wait_for("XdndStatus")
        return bool(flags & 1) and action == self._atom("XdndActionCopy")

    def leave(self):
        if self._target:
            self._tell("XdndLeave")
        self._target = None

    def drop(self):
        """Lets the files go; returns whether they were copied."""
        self._tell("XdndDrop", 0, X.CurrentTime)
        _, flags, action = self._wait_for("XdndFinished")[:3]
        return bool(flags & 1) and action == self._atom("XdndActionCopy")

    def copy(self):
        """What is pasted from now on."""
        self._window.set_selection_owner(self._atom("CLIPBOARD"), X.CurrentTime)
        self._display.sync()

    def answer_for(self, seconds):
        """Gives whoever asks for them the files."""
        deadline = time.monotonic() + seconds
        while time.monotonic() < deadline:
            self._answer_all()
            time.sleep(0.01)

    def _aware_window(self):
        """The outermost window under the pointer that takes what is dragged, or None."""
        window = self._root
        while window := window.query_pointer().child:
            if window.get_full_property(self._atom("XdndAware"), X.AnyPropertyType):
                return window
        return None

    def _tell(self, kind, *numbers):
        data = [self._window.id, *numbers, 0, 0, 0, 0][:5]
        self._target.send_event(event.ClientMessage(
            window=self._target, client_type=self._atom(kind), data=(32, data)))
        self._display.flush()

    def _wait_for(self, kind):
        def heard():
            self._answer_all()
            return self._heard.get(kind)
        return wait_for(kind, heard)

    def _answer_all(self):
        while self._display.pending_events():
            self._answer(self._display.next_event())

    def _answer(self, happened):
        if happened.type == X.ClientMessage:
            kind = self._display.get_atom_name(happened.client_type)
            self._heard[kind] = list(happened.data[1])
        elif happened.type == X.SelectionRequest:
            if happened.target == self._atom("TARGETS"):
                happened.requestor.change_property(happened.property, self._atom("ATOM"), 32,
                                                   [self._atom(URIS)])
            else:
                happened.requestor.change_property(happened.property, happened.target, 8,
                                                   self._uris)
            happened.requestor.send_event(event.SelectionNotify(
                time=happened.time, requestor=happened.requestor, selection=happened.selection,
                target=happened.target, property=happened.property))
            self._display.flush()
