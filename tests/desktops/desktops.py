"""The desktops that the game is tried on: each a window manager, as its users run it."""

import os
import time

from Xlib import X, Xutil, error

from desktop import LEFT, OUTPUT, QUIET, Desktop, wait_for

WALLPAPER = 0xFF00FF
SEEN_WALLPAPER = WALLPAPER.to_bytes(3, "big")
SECONDS = 20
"""That a desktop may take to be there."""
PAUSE_OF_A_HAND = 0.15  # seconds


class RealDesktop(Desktop):
    """A desktop with a wallpaper, and what can be asked of it beyond the game's own windows."""

    MANAGER = ()
    """The command of the window manager; empty where there is none."""
    CONFIG = None
    """A file of the home, and what it says."""
    ENVIRONMENT = {}
    SIZE = "1280x1000x24"
    MONITORS = ()
    """The places (x, y, width, height) that the screen is divided into, if it is."""
    BLENDS = False
    """Whether the window manager is a compositor too."""
    PLACES = ""
    """Why a dialog cannot be put over the main window."""
    SHADOWS = ""
    """Why a shadow of the rectangle cannot be helped."""
    RAISES_PRESSED = ""
    """Why a window can fall behind the one that it belongs to."""
    BURIES_MODAL = ""
    """Why it can while it is modal too."""
    TRAY = ""
    """Why a window cannot be got back from the tray, or not in its place."""
    SCREEN = ""
    """Why the screen cannot become smaller."""
    TILES = False
    """Whether the window manager lays windows side by side, those of a desktop too."""
    HAS_LIST = True
    """Whether there is a list of windows, and they can be minimised or go to another workspace."""

    def __init__(self, *_):
        super().__init__(bool(self.MANAGER), self.SIZE)
        try:
            self._lay_wallpaper()
            self.empty = self.grab_all()
        except BaseException:
            self.close()
            raise

    def _start_window_manager(self):
        self.environment |= self.ENVIRONMENT
        for number, (x, y, width, height) in enumerate(self.MONITORS):
            self.set_up_screen("--setmonitor", f"monitor{number}",
                               f"{width}/300x{height}/300+{x}+{y}", "none" if number else OUTPUT)
        if self.CONFIG:
            path = os.path.join(self.home, self.CONFIG[0])
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "w", encoding="utf-8") as file:
                file.write(self.CONFIG[1])
        self.run(self.MANAGER, **QUIET)
        wait_for("the window manager", lambda: self.hint(self._root, "_NET_SUPPORTING_WM_CHECK"),
                 SECONDS)
        if self.BLENDS:
            wait_for("the compositor", self._compositor, SECONDS)

    def _lay_wallpaper(self):
        """A window beneath all others, as a desktop's own."""
        screen = self._root.get_geometry()
        made = self._root.create_window(0, 0, screen.width, screen.height, 0, X.CopyFromParent,
                                        override_redirect=self.TILES, background_pixel=WALLPAPER)
        kind = self._atom("_NET_WM_WINDOW_TYPE_DESKTOP")
        made.change_property(self._atom("_NET_WM_WINDOW_TYPE"), self._atom("ATOM"), 32, [kind])
        made.set_wm_name("wallpaper")
        made.set_wm_normal_hints(flags=Xutil.USPosition | Xutil.USSize)

        def is_seen():
            made.map()  # again and again: a window manager that has just begun may miss it
            made.configure(stack_mode=X.Below)
            return self.pixel(5, screen.height - 5) == SEEN_WALLPAPER
        wait_for("the wallpaper", is_seen, SECONDS)

    def _atom(self, name):
        return self._display.intern_atom(name)

    def hint(self, window, name):
        """The values of a property of a window, or None."""
        try:
            found = window.get_full_property(self._atom(name), X.AnyPropertyType)
        except error.BadWindow:
            return None
        return found.value if found else None

    def names_in(self, window, name):
        """The atoms of a property by their names."""
        return {self._display.get_atom_name(atom) for atom in self.hint(window, name) or ()}

    def text(self, window, name):
        value = self.hint(window, name)
        return value if value is None or isinstance(value, str) else bytes(value).decode()

    def pixel(self, x, y):
        return self.grab(x, y, 1, 1).rows[0]

    def window(self, pid, size):
        """The process' shown window of that size, or None."""
        for window in self._windows_of(pid):
            try:
                shape = window.get_geometry()
                if (shape.width, shape.height) == size and (
                        window.get_attributes().map_state == X.IsViewable):
                    return window
            except (error.BadWindow, error.BadDrawable):
                pass
        return None

    def place(self, window):
        """(x, y, width, height) on the screen."""
        shape = window.get_geometry()
        corner = self._root.translate_coords(window, 0, 0)
        return corner.x, corner.y, shape.width, shape.height

    def window_at(self, x, y):
        """The number of the innermost window that the screen shows there, or None."""
        window = self._root
        while True:
            try:
                inner = window.translate_coords(self._root, x, y).child
            except error.BadWindow:  # it has gone meanwhile
                return None
            if not inner:
                return window.id
            window = inner if hasattr(inner, "id") else (
                self._display.create_resource_object("window", inner))

    def click(self, x, y, button=LEFT):
        """As slowly as a hand: window managers that hold a press and replay it lose faster ones."""
        self.move_pointer(x, y)
        for act in (self.press, self.release):
            time.sleep(PAUSE_OF_A_HAND)
            act(button)

    def focused(self):
        """The number of the window that has the keyboard."""
        focus = self._display.get_input_focus().focus
        if focus == X.PointerRoot:  # as without a window manager, until a window asks for it
            return self.window_at(*self.pointer())
        return focus.id if hasattr(focus, "id") else focus

    def listed(self, pid):
        """The process' windows that a task bar shows: a window manager's list but for those that
        ask to be left out, that belong to another one, or that are a splash."""
        mine = [window for window in self._windows_of(pid)
                if window.id in (self.hint(self._root, "_NET_CLIENT_LIST") or ())]
        return [window for window in mine
                if "_NET_WM_STATE_SKIP_TASKBAR" not in self.names_in(window, "_NET_WM_STATE")
                and "_NET_WM_WINDOW_TYPE_SPLASH" not in self.names_in(
                    window, "_NET_WM_WINDOW_TYPE")
                and not self.owner(window)]

    def room(self):
        """The part of the screen (x, y, width, height) that panels leave free."""
        areas = self.hint(self._root, "_NET_WORKAREA")
        screen = self._root.get_geometry()
        return tuple(areas[:4]) if areas else (0, 0, screen.width, screen.height)

    def make_two_workspaces(self):
        """Returns whether the window manager has them."""
        self.ask(self._root, "_NET_NUMBER_OF_DESKTOPS", 2)
        time.sleep(1)
        count = self.hint(self._root, "_NET_NUMBER_OF_DESKTOPS")
        return count is not None and count[0] > 1

    def workspace(self, window):
        value = self.hint(window, "_NET_WM_DESKTOP")
        return value[0] if value is not None and len(value) else None

    def owner(self, window):
        """The number of the window that it belongs to, or None."""
        value = self.hint(window, "WM_TRANSIENT_FOR")
        return value[0] if value is not None and len(value) else None


class NoManager(RealDesktop):
    HAS_LIST = False


class Openbox(RealDesktop):
    MANAGER = ("openbox",)


class Picom(Openbox):
    """Draws shadows and blends, as it does when it is told to without further wishes."""

    def _start_window_manager(self):
        super()._start_window_manager()
        self.run(["picom", "--config", os.devnull, "--backend", "xrender", "--shadow"], **QUIET)
        wait_for("the compositor", self._compositor, SECONDS)


class Xfwm4(RealDesktop):
    MANAGER = ("xfwm4", "--compositor=off")


class Xfwm4Blending(RealDesktop):
    MANAGER = ("xfwm4", "--compositor=on")
    BLENDS = True


class KWin(RealDesktop):
    MANAGER = ("kwin_x11",)
    ENVIRONMENT = {"KWIN_COMPOSE": "N"}


class KWinBlending(RealDesktop):
    MANAGER = ("kwin_x11",)
    BLENDS = True


class Metacity(RealDesktop):
    MANAGER = ("metacity",)


class Mutter(RealDesktop):
    MANAGER = ("mutter", "--x11")
    BLENDS = True


class I3(RealDesktop):
    CONFIG = ("config/i3/config", "# i3 config file (v4)\nfont pango:monospace 8\n")
    MANAGER = ("i3",)
    RAISES_PRESSED = "i3 raises what is pressed, and nothing else"
    TILES = True


class TwoMonitors(Openbox):
    SIZE = "2560x1000x24"
    MONITORS = ((0, 0, 1280, 1000), (1280, 0, 1280, 1000))


class TwoScales(Openbox):
    """The second monitor shows everything twice as large."""

    SIZE = "2880x1400x24"
    MONITORS = ((0, 0, 1280, 1400), (1280, 0, 1600, 1400))
    ENVIRONMENT = {"QT_SCREEN_SCALE_FACTORS": "1;2"}


DESKTOPS = {
    "none": NoManager,
    "openbox": Openbox,
    "picom": Picom,
    "xfwm4": Xfwm4,
    "xfwm4+": Xfwm4Blending,
    "kwin": KWin,
    "kwin+": KWinBlending,
    "metacity": Metacity,
    "mutter": Mutter,
    "i3": I3,
    "monitors": TwoMonitors,
    "scales": TwoScales,
}
"""Those with a + blend what windows show, which the same window manager can do without."""
