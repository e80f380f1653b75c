"""A private desktop for one test: X server, window manager, session bus, home, screen, pointer."""

import ctypes
import os
import shutil
import signal
import subprocess
import tempfile
import time

from Xlib import X, XK, display, error, protocol
from Xlib.ext import res, shape, xtest

from accessibility import AccessibilityBus
from picture import Picture

LEFT, RIGHT = 1, 3
WHEEL_UP, WHEEL_DOWN = 4, 5
SHORTEST_PAUSE, LONGEST_PAUSE = 0.005, 0.03  # seconds between two looks
TASK_BAR = 2
"""Who asks something of the window manager."""
COMPOSITOR = "_NET_WM_CM_S0"
"""The selection that a compositor owns."""
OUTPUT = "screen"
"""What the display calls its only output."""
QUIET = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
ROOM_FOR_ALL_TESTS = 1 << 30  # bytes

# Without bindings the window manager lets every press through at once. Holding and replaying one,
# which its usual click-to-focus does, loses presses that follow each other faster than a hand's.
OPENBOX_RC = """<openbox_config xmlns="http://openbox.org/3.4/rc">
<focus><focusNew>yes</focusNew></focus><mouse/><keyboard/>
</openbox_config>
"""


def wait_for(what, condition, seconds=10):
    """Polls until `condition` gives something true and returns that; fails by naming `what`."""
    deadline = time.monotonic() + seconds
    pause = SHORTEST_PAUSE
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > deadline:
            raise AssertionError(f"waited {seconds} s in vain for {what}")
        time.sleep(pause)
        pause = min(pause * 1.5, LONGEST_PAUSE)


def fresh_folder():
    """In memory where there is room, for recordings too: hundreds of links on a disk take long."""
    memory = "/dev/shm"
    usable = (os.access(memory, os.R_OK | os.W_OK | os.X_OK)
              and shutil.disk_usage(memory).free > ROOM_FOR_ALL_TESTS)
    return tempfile.mkdtemp(prefix="quendrel-e2e-", dir=memory if usable else None)


def die_with_parent():
    """Runs in a new child: the system kills it when this process goes, however it goes."""
    set_parent_death_signal = 1
    ctypes.CDLL(None).prctl(set_parent_death_signal, signal.SIGKILL)


class Desktop:
    """Starts everything on entering, ends and removes everything on close()."""

    def __init__(self, window_manager=True, screen="1280x900x24"):
        self._processes = []
        self._display = None
        self._seat = None
        """Where the pointer, the keyboard and the screen are."""
        self._resolutions = set()
        """Those that were chosen before."""
        self.home = fresh_folder()
        try:
            self.environment = self._fresh_environment()
            self.environment["DISPLAY"] = self._start_x_server(screen)
            self._display = display.Display(self.environment["DISPLAY"])
            self._root = self._display.screen().root
            self._seat = self._display
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._start_session_bus()
            self.accessibility = AccessibilityBus(self.environment["DBUS_SESSION_BUS_ADDRESS"])
            if window_manager:
                self._start_window_manager()
        except BaseException:
            self.close()
            raise

    def _fresh_environment(self):
        """Nothing of the surroundings gets in but the search path."""
        runtime = os.path.join(self.home, "run")
        os.mkdir(runtime, 0o700)
        return {
            "PATH": os.environ["PATH"],
            "HOME": self.home,
            "XDG_CONFIG_HOME": os.path.join(self.home, "config"),
            "XDG_RUNTIME_DIR": runtime,
            "LANG": "C.UTF-8",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "SDL_AUDIODRIVER": "dummy",
        }

    def _start_x_server(self, screen):
        reader, writer = os.pipe()
        self._x_server = self.run(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", screen, "-nolisten", "tcp"],
            pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise AssertionError("the X server did not start")
        return ":" + number

    def end_x_server(self):
        """As where it crashes, or the player ends it."""
        self._x_server.kill()
        self._x_server.wait()

    def _start_session_bus(self):
        """The bus starts the accessibility bus when it is asked for, and takes it along."""
        socket = os.path.join(self.home, "bus")  # goes with the home, as the bus is killed
        bus = self.run(["dbus-daemon", "--session", "--nofork", f"--address=unix:path={socket}",
                        "--print-address=1"],
                       stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        with bus.stdout:
            return bus.stdout.readline().strip()

    def _start_window_manager(self):
        config = os.path.join(self.home, "openbox.xml")
        with open(config, "w", encoding="utf-8") as file:
            file.write(OPENBOX_RC)
        self.window_manager = self.run(["openbox", "--config-file", config], **QUIET)
        check = self._display.intern_atom("_NET_SUPPORTING_WM_CHECK")
        wait_for("the window manager", lambda: self._root.get_full_property(check, X.AnyPropertyType))

    def run(self, command, **options):
        """Starts a program of this desktop, which ends with it at the latest."""
        options.setdefault("env", self.environment)
        process = subprocess.Popen(command, preexec_fn=die_with_parent, **options)
        self._processes.append(process)
        return process

    def close(self):
        for process in reversed(self._processes):
            process.kill()
            process.wait()
        for connection in {self._display, self._seat} - {None}:
            connection.display.socket.close()
        # Buses that the programs had begun end a moment after them, with files of their own.
        shutil.rmtree(self.home, ignore_errors=True)

    def move_pointer(self, x, y):
        xtest.fake_input(self._seat, X.MotionNotify, x=x, y=y)
        self._seat.sync()

    def press(self, button=LEFT):
        xtest.fake_input(self._seat, X.ButtonPress, button)
        self._seat.sync()

    def release(self, button=LEFT):
        xtest.fake_input(self._seat, X.ButtonRelease, button)
        self._seat.sync()

    def click(self, x, y, button=LEFT):
        self.move_pointer(x, y)
        self.press(button)
        self.release(button)

    def click_middle(self, place, button=LEFT):
        """Of (x, y, width, height)."""
        x, y, width, height = place
        self.click(x + width // 2, y + height // 2, button)

    def strike(self, *keys):
        """One key, or the last of several while the others are held."""
        codes = [self._seat.keysym_to_keycode(XK.string_to_keysym(key)) for key in keys]
        for code in codes:
            xtest.fake_input(self._seat, X.KeyPress, code)
        for code in reversed(codes):
            xtest.fake_input(self._seat, X.KeyRelease, code)
        self._seat.sync()

    def grab(self, x, y, width, height):
        """What the screen shows there now."""
        image = self._seat.screen().root.get_image(x, y, width, height, X.ZPixmap, 0xFFFFFFFF)
        return Picture.from_screen(image.data, width, height)

    def grab_all(self):
        screen = self._root.get_geometry()
        return self.grab(0, 0, screen.width, screen.height)

    def holds(self, place):
        """Whether the whole of (x, y, width, height) is on the screen."""
        screen = self._root.get_geometry()
        x, y, width, height = place
        return 0 <= x <= screen.width - width and 0 <= y <= screen.height - height

    def place_of_window(self, pid, size):
        """(x, y) of the process' shown window of that size, or None."""
        return next((place[:2] for place in self.windows(pid) if place[2:] == size), None)

    def windows(self, pid):
        """The places (x, y, width, height) of the process' shown windows."""
        places = []
        for window in self._windows_of(pid):
            try:
                shape = window.get_geometry()
                if window.get_attributes().map_state == X.IsViewable:
                    corner = self._root.translate_coords(window, 0, 0)
                    places.append((corner.x, corner.y, shape.width, shape.height))
            except (error.BadWindow, error.BadDrawable):
                pass
        return places

    def place_of_named_window(self, name, pid):
        """(x, y, width, height) of the process' shown window with that title, or None."""
        for window in self._windows_of(pid, top_only=False):
            try:
                shape = window.get_geometry()
                if window.get_wm_name() == name and (
                        window.get_attributes().map_state == X.IsViewable):
                    corner = self._root.translate_coords(window, 0, 0)
                    return corner.x, corner.y, shape.width, shape.height
            except (error.BadWindow, error.BadDrawable):
                pass
        return None

    def shape_of_window(self, window):
        """The rectangles (x, y, width, height) that the window with this number is cut to."""
        made = self._display.create_resource_object("window", window)
        rects = made.shape_get_rectangles(shape.SK.Bounding).rectangles
        return sorted((rect.x, rect.y, rect.width, rect.height) for rect in rects)

    def is_shown(self, window):
        """Whether the window with this number is."""
        made = self._display.create_resource_object("window", window)
        return made.get_attributes().map_state == X.IsViewable

    def say_that_a_compositor_runs(self, runs):
        """As a compositor says it; there is none that blends."""
        selection = self._display.intern_atom(COMPOSITOR)
        owner = self._root.id if runs else X.NONE
        self._display.create_resource_object("window", owner).set_selection_owner(
            selection, X.CurrentTime)
        self._display.sync()

    def start_compositor(self):
        """Blends what windows show with what is beneath them; returns its process."""
        compositor = self.run(["xcompmgr", "-n"], stderr=subprocess.DEVNULL)
        wait_for("the compositor", self._compositor)
        return compositor

    def end_compositor(self, compositor):
        compositor.terminate()
        compositor.wait()
        wait_for("the compositor's end", lambda: not self._compositor())

    def _compositor(self):
        return self._display.get_selection_owner(self._display.intern_atom(COMPOSITOR))

    def pointer(self):
        at = self._root.query_pointer()
        return at.root_x, at.root_y

    def set_up_screen(self, *options):
        subprocess.run(["xrandr", *options], env=self.environment, check=True, **QUIET)

    def set_screen_size(self, width, height):
        """As a player who chooses another resolution, none larger than the first one; the pixel
        clock and the pauses say nothing."""
        name = f"{width}x{height} chosen"
        if name not in self._resolutions:
            timing = [str(length) for size in (width, height) for length in [size] * 4]
            self.set_up_screen("--newmode", name, "50", *timing)
            self.set_up_screen("--addmode", OUTPUT, name)
            self._resolutions.add(name)
        self.set_up_screen("--output", OUTPUT, "--mode", name)

    def fill_background(self, pixel):
        self._root.change_attributes(background_pixel=pixel)
        self._root.clear_area()
        self._display.sync()

    def listen_beneath(self, pixel=0x808080):
        """A window of one colour over the whole screen, beneath all that are shown later."""
        screen = self._root.get_geometry()
        window = self._root.create_window(
            0, 0, screen.width, screen.height, 0, X.CopyFromParent, override_redirect=True,
            background_pixel=pixel, event_mask=X.ButtonPressMask)
        window.map()
        window.configure(stack_mode=X.Below)
        self._display.sync()

    def cover_screen(self):
        """Another program's window over all that is shown, the window manager's to move; returns
        it."""
        screen = self._root.get_geometry()
        window = self._root.create_window(0, 0, screen.width, screen.height, 0, X.CopyFromParent,
                                          background_pixel=0x808080)
        window.map()
        window.configure(stack_mode=X.Above)
        self._display.sync()
        return window

    def presses_beneath(self):
        """The places of the presses that have reached the window beneath."""
        self._display.sync()
        presses = []
        while self._display.pending_events():
            event = self._display.next_event()
            if event.type == X.ButtonPress:
                presses.append((event.root_x, event.root_y))
        return presses

    def start_tray(self):
        """A notification area; returns its process."""
        tray = self.run(["trayer", "--edge", "top", "--align", "right", "--SetDockType", "false",
                         "--widthtype", "request", "--height", "32"],
                        **QUIET)
        selection = self._display.intern_atom("_NET_SYSTEM_TRAY_S0")
        wait_for("the tray", lambda: self._display.get_selection_owner(selection))
        return tray

    def tray_icon(self, pid):
        """The middle of the process' icon in the tray, or None."""
        for window in self._windows_of(pid, top_only=False):
            try:
                shape = window.get_geometry()
                if window.get_attributes().map_state == X.IsViewable and shape.width <= 64:
                    corner = self._root.translate_coords(window, 0, 0)
                    return corner.x + shape.width // 2, corner.y + shape.height // 2
            except (error.BadWindow, error.BadDrawable):
                pass
        return None

    def activate(self, pid):
        """The wish of a taskbar to have the process' window back."""
        for window in self._windows_of(pid):
            self.ask(window, "_NET_ACTIVE_WINDOW", TASK_BAR, X.CurrentTime)

    def wait_for_focus(self, pid):
        """Until what is struck on the keyboard goes to the process."""
        wait_for("the keyboard's focus on the window",
                 lambda: self._display.get_input_focus().focus in self._windows_of(pid))

    def ask_to_close(self, pid):
        """The close request of a taskbar, which the window manager hands on to the window."""
        self.ask(self._windows_of(pid)[0], "_NET_CLOSE_WINDOW", X.CurrentTime, TASK_BAR)

    def ask(self, window, message, *values):
        """What a task bar or a pager asks of the window manager."""
        data = (list(values) + [0] * 5)[:5]
        self._root.send_event(
            protocol.event.ClientMessage(window=window, data=(32, data),
                                         client_type=self._display.intern_atom(message)),
            X.SubstructureRedirectMask | X.SubstructureNotifyMask)
        self._display.sync()

    def _windows_of(self, pid, top_only=True):
        """The windows that the process has made and says to be its own: those that stand on the
        screen by themselves, or those at any depth."""
        owner = self._display.intern_atom("_NET_WM_PID")
        protocols = self._display.intern_atom("WM_PROTOCOLS")
        clients = self._clients_of(pid)
        found = []
        for window in (self._top_windows() if top_only else self._all_windows()) if clients else ():
            try:
                if self._client_of(window.id) not in clients:
                    continue
                process = window.get_full_property(owner, X.AnyPropertyType)
                is_top = window.get_full_property(protocols, X.AnyPropertyType)
            except error.BadWindow:
                continue
            if process and (is_top or not top_only) and process.value[0] == pid:
                found.append(window)
        return found

    def _top_windows(self):
        """What nothing holds, and what the window manager holds in a frame."""
        framed = self._root.get_full_property(self._display.intern_atom("_NET_CLIENT_LIST"),
                                              X.AnyPropertyType)
        bare = self._root.query_tree().children
        yield from bare
        for window in set(framed.value if framed else ()) - {window.id for window in bare}:
            yield self._display.create_resource_object("window", window)

    def _all_windows(self):
        waiting = [self._root]
        while waiting:
            window = waiting.pop()
            yield window
            try:
                waiting.extend(window.query_tree().children)
            except error.BadWindow:
                pass

    def _client_of(self, resource):
        """The X server gives every connection a range of numbers for what it makes."""
        return resource & ~self._display.display.info.resource_id_mask

    def _clients_of(self, pid):
        """The connections of the process."""
        everyone = {"client": X.NONE, "mask": res.LocalClientPIDMask}
        return {self._client_of(entry.spec.client)
                for entry in self._display.res_query_client_ids([everyone]).ids
                if list(entry.value) == [pid]}
