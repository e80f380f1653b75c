"""Wayland desktops, each in a window that fills the screen of an X server: what is pressed and seen
there is the desktop's. The game meets it through the X server that the desktop offers."""

import os
import shutil
import struct

from Xlib import display
from Xlib.protocol.display import Display as Protocol

from desktop import wait_for
from desktops import SECONDS, RealDesktop

SOCKET = "wayland-7"
FIRST_PROGRAM = """#!/bin/sh
echo "$DISPLAY|$WAYLAND_DISPLAY|$XAUTHORITY" >{0}.new
mv {0}.new {0}
exec sleep 100000
"""
WESTON_INI = """[core]
idle-time=0
[shell]
background-color=0xffff00ff
panel-position=none
locking=false
animation=none
startup-animation=none
close-animation=none
[autolaunch]
path={}
"""
SWAY_CONFIG = """output * bg #ff00ff solid_color
output X11-1 mode --custom {}x{}
xwayland force
exec {}
"""


SHAPES = ("default left_ptr arrow top_left_arrow grabbing closedhand fleur move all-scroll hand1 "
          "pointing_hand watch xterm dnd-move dnd-copy dnd-none top_side bottom_side left_side "
          "right_side top_left_corner top_right_corner bottom_left_corner "
          "bottom_right_corner").split()


def pointer_of_one_pixel(color):
    return struct.pack("<4sIII III 9I I", b"Xcur", 16, 0x10000, 1, 0xFFFD0002, 24, 28,
                       36, 0xFFFD0002, 24, 1, 1, 1, 0, 0, 0, color)


def add_event(self, code, event, subcode=None):
    """Extensions of such a server share numbers of events, which the library does not expect."""
    if subcode is None:
        self.event_classes[code] = event
    else:
        if not isinstance(self.event_classes.get(code), dict):
            self.event_classes[code] = {}
        self.event_classes[code][subcode] = event


Protocol.add_extension_event = add_event


class WaylandDesktop(RealDesktop):
    MANAGER = ("wayland",)
    POINTER = 0x01000000
    """Its colour, hardly seen, since a desktop draws it into what the screen shows. An X server holds
    a pointer that is not seen at all where a program has put it."""

    def command(self, first):
        """What starts the desktop, which is to start the program `first`."""
        raise NotImplementedError

    def _start_window_manager(self):
        self._size = self._root.get_geometry()
        said = os.path.join(self.home, "said")
        self._hide_pointer()
        command = self.command(self.write("first", FIRST_PROGRAM.format(said), mode=0o700))
        environment = {**self.environment, **self.ENVIRONMENT}
        with open(os.path.join(self.home, "desktop.log"), "wb") as log:
            self.run(command, env=environment, stdout=log, stderr=log)
        wait_for("the desktop", lambda: os.path.exists(said), SECONDS)
        with open(said, encoding="utf-8") as file:
            offered = file.read().strip().split("|")
        self.environment |= dict(zip(("DISPLAY", "WAYLAND_DISPLAY", "XAUTHORITY"), offered))
        os.environ["XAUTHORITY"] = offered[2]
        self._display = display.Display(offered[0])
        self._root = self._display.screen().root
        for corner in ((self._size.width - 1, self._size.height - 1), (0, 0)):
            self.move_pointer(*corner)  # where the desktop's own pointer meets that of the screen

    def set_screen_size(self, width, height):
        """As the window that it is in becomes smaller."""
        for window in self._seat.screen().root.query_tree().children:
            shape = window.get_geometry()
            if (shape.width, shape.height) == (self._size.width, self._size.height):
                window.configure(width=width, height=height)
        self._seat.sync()

    def _hide_pointer(self):
        for theme in ("default", "Adwaita", "breeze_cursors"):
            for shape in SHAPES:
                path = self.write(os.path.join("icons", theme, "cursors", shape), "")
                with open(path, "wb") as file:
                    file.write(pointer_of_one_pixel(self.POINTER))
        self.environment["XCURSOR_PATH"] = os.path.join(self.home, "icons")

    def write(self, name, text, mode=0o600):
        path = os.path.join(self.home, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(text)
        os.chmod(path, mode)
        return path

    def _lay_wallpaper(self):
        """The desktop's own, once it has come to rest."""
        last = None

        def is_at_rest():
            nonlocal last
            before, last = last, self.grab_all().rows
            return before == last
        wait_for("the wallpaper", is_at_rest, SECONDS)

    def _top_windows(self):
        """Those in a frame are in no list under Weston."""
        return self._all_windows()


class Weston(WaylandDesktop):
    HAS_LIST = False
    SCREEN = "under Weston no window can move itself"
    TRAY = "Weston puts a window that comes back beside its place"
    PLACES = "Weston puts windows anywhere"
    SHADOWS = "Weston draws one around every X window without a frame"

    def command(self, first):
        settings = self.write("weston.ini", WESTON_INI.format(first))
        return ["weston", "--backend=x11-backend.so", "--use-pixman", "--xwayland",
                f"--width={self._size.width}", f"--height={self._size.height}",
                "--socket=" + SOCKET, "--config=" + settings]


class Sway(WaylandDesktop):
    HAS_LIST = False
    RAISES_PRESSED = BURIES_MODAL = "Sway raises what is pressed, and nothing else"
    TRAY = "Sway has no place for the tray of X windows"
    PLACES = "Sway puts every window in the middle of the screen"
    ENVIRONMENT = {"WLR_BACKENDS": "x11", "WLR_RENDERER": "pixman"}

    def command(self, first):
        settings = self.write("sway.conf",
                              SWAY_CONFIG.format(self._size.width, self._size.height, first))
        as_user = ["unshare", "--user", "--map-user=1000", "--map-group=1000"]
        return [*(as_user if os.getuid() == 0 else []), "sway", "-c", settings]


class KWinWayland(WaylandDesktop):
    ENVIRONMENT = {"KWIN_COMPOSE": "Q"}

    def command(self, first):
        """A copy of the program lacks the privileges that a container refuses to grant."""
        program = shutil.copy(shutil.which("kwin_wayland"), self.home)
        return [program, "--x11-display", self.environment["DISPLAY"], "--xwayland",
                "--width", str(self._size.width), "--height", str(self._size.height),
                "--socket", SOCKET, "--no-lockscreen", "--no-global-shortcuts", first]


class MutterWayland(WaylandDesktop):
    SCREEN = "Mutter keeps the size of a screen that is a window"

    def command(self, first):
        self.ENVIRONMENT = {
            "MUTTER_DEBUG_DUMMY_MODE_SPECS": f"{self._size.width}x{self._size.height}"}
        return ["mutter", "--wayland", "--nested", "--wayland-display", SOCKET, "--", first]


WAYLAND_DESKTOPS = {
    "weston": Weston,
    "sway": Sway,
    "kwin-wayland": KWinWayland,
    "mutter-wayland": MutterWayland,
}
