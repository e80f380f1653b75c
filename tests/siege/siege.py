"""A game under siege: what the deeds need of it, and what has to hold after them."""

import collections
import os
import re
import shutil
import signal
import subprocess
import time

from gi.repository import GLib
from Xlib import error

from battlefield import Battlefield
from board import WINDOW_SIZE, in_pixels
from deeds import draw
from desktop import wait_for
from file_giver import FileGiver, pack_skin
from game import PLAYERS_PROGRAM, install_viewer, linked_folder, settings_path
from peace import win_a_game
from status_notifier import Icon

PRESSED = ("check box", "list item", "push button", "radio button")
"""The roles of what can be pressed."""
BATCH = 12
"""So many deeds between two looks at what has to hold."""
TO_SHOW = 60  # seconds, of a program under sanitizers on a busy machine
TO_ANSWER = 15
TO_END = 20
LEAST_PART = 1
"""Pixels of a window that are on the screen at least: the player may drag it as far as he sees the
pointer, and has it back by that."""
MOST = {"handles": 90, "threads": 24, "windows": 60, "pixmaps": 120}
"""That one program has ever."""
LAST_DEEDS = 25
SETTINGS_AT_LEAST = 14
"""So many values are saved, the match's four besides."""

NOT_SAVED = r"quendrel: (.*: cannot be written: .*)"
SAYS = [re.compile(line) for line in (
    NOT_SAVED,
    r"QDBusTrayIcon encountered a D-Bus error: .*",
    r"quendrel: The skin cannot be taken: .*",
    r"quendrel: The rules cannot be shown: .* is missing\.",
    r'quendrel: The skin "\w+" is damaged: .*',
    r"(Game|High|Config|About)/.*: (is missing|has|cannot be read|is no).*",
)]
"""What the game may say while its files are spoilt or a skin is given to it, and the toolkit where
the tray of the bus ends just as the game hides."""


class Breach(AssertionError):
    """Something that has to hold does not."""


class Program:
    """One start of the game."""

    def __init__(self, process, log):
        self.process = process
        self.log = log
        self.was_loaded = False
        """Whether its main window has been seen."""

    def lines(self):
        with open(self.log, encoding="utf-8", errors="replace") as log:
            return log.read().splitlines()

    def has_ended(self):
        return self.process.poll() is not None


class Siege:
    """`out` is the folder of the log, of what the programs say, and of the last screen."""

    def __init__(self, seed, out):
        self._seed = seed
        self._out = out
        self._log = open(os.path.join(out, "deeds"), "w", encoding="utf-8")
        self.counts = collections.Counter()
        self.in_vain = 0
        self.figures = collections.defaultdict(list)
        self.starts = 0
        self._second = None
        self._spoilt = {}
        """Where a file has been laid aside, by its path."""
        self._was_spoilt = False
        self._last_lines = collections.deque(maxlen=LAST_DEEDS)
        self.desktop = Battlefield()
        self.folder = linked_folder(self.desktop)
        self._aside = os.path.join(self.desktop.home, "aside")
        os.mkdir(self._aside)
        install_viewer(self.desktop, "exit 0")
        self.desktop.environment |= {
            name: value for name, value in os.environ.items() if name.endswith("SAN_OPTIONS")}
        self.game = self._start()

    def close(self):
        self._log.close()
        self.desktop.close()

    def _say(self, line):
        print(line, file=self._log, flush=True)
        self._last_lines.append(line)

    def last_lines(self):
        return list(self._last_lines)

    # The course of it

    def run(self, seconds):
        """Deeds for so long, then a game that is won."""
        deadline = time.monotonic() + seconds
        number = 0
        while time.monotonic() < deadline:
            for _ in range(BATCH):
                number += 1
                self._do(number)
            self.look()
        self._say("       peace")
        self.put_back()
        self.desktop.be_peaceful()
        self.look()
        skins = sorted(os.listdir(os.path.join(self.folder, "Skin")))
        self.guesses = win_a_game(self.desktop, self.game, self.folder, skins, self._call_game)
        self.screenshot()
        self.look()

    def _do(self, number):
        kind, values = draw(self._seed, number)
        self._say(f"{number:6} {kind.name}: {' '.join(map(repr, values))}")
        self.counts[kind.name] += 1
        self._mind_the_end()
        try:
            kind.do(self, *values)
        except (error.XError, GLib.Error) as trouble:  # what it was done to has gone meanwhile
            self.in_vain += 1
            self._say(f"       in vain: {type(trouble).__name__}")

    def screenshot(self):
        path = os.path.join(self._out, "screen.png")
        self.desktop.grab_all().save_png(path)
        return path

    # The program

    def _start(self):
        self.starts += 1
        log = os.path.join(self._out, f"program-{self.starts}")
        with open(log, "wb") as said:
            process = self.desktop.run([PLAYERS_PROGRAM, "--folder", self.folder], stderr=said)
        program = Program(process, log)
        self._say(f"       start {self.starts} at "
                  f"{self.desktop.environment.get('QT_SCALE_FACTOR', '1')}")
        wait_for("a window of the started game",
                 lambda: self.desktop.windows(process.pid) or program.has_ended(), TO_SHOW)
        return program

    def _mind_the_end(self):
        """Where the player has ended the program, it is started anew."""
        if not self.game.has_ended():
            return
        self._judge_end(self.game)
        if self._second and not self._second.has_ended():
            self.game, self._second = self._second, None  # it has waited for this
            self._say("       the second start plays")
            return
        self.put_back()
        self.game = self._start()

    def _judge_end(self, program):
        status = program.process.returncode
        self._say(f"       ended with {status}")
        self._judge_lines(program)
        lines = program.lines()
        not_saved = self._was_spoilt and lines and re.match(NOT_SAVED, lines[-1])
        if status != 0 and not (status == 1 and not_saved):
            raise Breach(f"the program ended with {status}; it said: {lines}")

    def _judge_lines(self, program):
        unknown = [line for line in program.lines()
                   if not any(known.fullmatch(line) for known in SAYS)]
        if unknown:
            raise Breach("unknown words on standard error:\n" + "\n".join(unknown))

    def is_loaded(self):
        """Whether the main window is shown or was."""
        if not self.game.was_loaded:
            self.game.was_loaded = any(
                abs(width / height - WINDOW_SIZE[0] / WINDOW_SIZE[1]) < 0.01
                for _, _, width, height in self.desktop.windows(self.game.process.pid))
        return self.game.was_loaded

    def end_and_start(self, sign, factor):
        self.put_back()
        asked = time.time()
        is_loaded = self.is_loaded()
        self.game.process.send_signal(sign)
        try:
            self.game.process.wait(TO_END)
        except subprocess.TimeoutExpired:
            raise Breach(f"{sign.name} did not end the program within {TO_END} s") from None
        self._judge_end(self.game)
        if is_loaded:
            self._judge_saved(asked)
        self.desktop.environment["QT_SCALE_FACTOR"] = factor
        self.game = self._start()

    def _judge_saved(self, since):
        path = settings_path(self.desktop)
        with open(path, encoding="utf-8") as file:
            values = file.read().count("=")
        if values < SETTINGS_AT_LEAST or os.stat(path).st_mtime < since - 0.1:
            raise Breach(f"{path} was not saved; it has {values} values")

    def start_second(self):
        if self._second and not self._second.has_ended():
            return
        self.put_back()  # it plays where the first one is ending just then
        log = os.path.join(self._out, "second")
        with open(log, "wb") as said:
            process = self.desktop.run([PLAYERS_PROGRAM, "--folder", self.folder], stderr=said)
        self._second = Program(process, log)

    def _call_game(self):
        """A second start brings the first to the front."""
        self.start_second()
        self._judge_second_start()

    def freeze(self, clicks, x, y):
        """Clicks at a program that stands still."""
        self.game.process.send_signal(signal.SIGSTOP)
        try:
            for _ in range(clicks):
                self.desktop.click(*self.on_screen(x, y))
            self.rest(0.3)
        finally:
            self.game.process.send_signal(signal.SIGCONT)

    # Places

    def rest(self, seconds):
        time.sleep(seconds)

    def one_of(self, things, share):
        return things[min(int(share * len(things)), len(things) - 1)]

    def on_screen(self, x, y):
        screen = self.desktop.size_of_screen()
        return round(x * (screen[0] - 1)), round(y * (screen[1] - 1))

    def in_window(self, window, x, y):
        """A point in one of the windows that are shown, and on the screen."""
        windows = self.desktop.windows(self.game.process.pid)
        if not windows:
            return self.on_screen(x, y)
        left, top, width, height = self.one_of(windows, window)
        screen = self.desktop.size_of_screen()
        return (min(max(left + round(x * (width - 1)), 0), screen[0] - 1),
                min(max(top + round(y * (height - 1)), 0), screen[1] - 1))

    def in_main_window(self, x, y):
        """Of the place that it has at scale 1."""
        windows = self.desktop.windows(self.game.process.pid)
        if not windows:
            return x, y
        left, top, width, _ = max(windows, key=lambda place: place[2])
        scale = width / WINDOW_SIZE[0]
        return in_pixels(scale, left / scale + x, top / scale + y, 0, 0)[:2]

    # By ear

    def _tree(self, wanted):
        program = self.desktop.accessibility.program(self.game.process.pid)
        return [thing for thing in program.descendants() if wanted(thing)] if program else []

    def press_accessible(self, thing, action):
        """Any action of anything that has one, shown or not."""
        things = self._tree(lambda thing: thing.role in PRESSED)
        if things:
            chosen = self.one_of(things, thing)
            actions = chosen.actions()
            if actions:
                chosen.perform(self.one_of(actions, action))

    def write_accessible(self, box, text):
        boxes = self._tree(lambda thing: thing.role == "text")
        if boxes:
            self.one_of(boxes, box).write(text.replace("\0", ""))

    def _bus_icon(self):
        owner = self.desktop.owner_of_bus_icon()
        return owner and Icon(self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"], owner)

    def _bus_icon_is_there(self):
        icon = self._bus_icon()
        return icon and icon.is_there()

    def click_bus_icon(self):
        icon = self._bus_icon()
        if icon:
            icon.click()

    # Skins

    def _gift(self, how, skin):
        source = os.path.join(self.folder, "Skin", skin)
        if how == "no skin":
            return settings_path(self.desktop)
        if how == "folder":
            return source
        return pack_skin(source, f"From a friend {self.starts}",
                         os.path.join(self.desktop.home, how + ".zip"),
                         "Dots.bmp" if how == "damaged" else "")

    def drop_skin(self, how, skin, window, x, y):
        giver = FileGiver(self.desktop, self._gift(how, skin))
        try:
            if giver.drag_to(*self.in_window(window, x, y)):
                giver.drop()
            else:
                giver.leave()
        except AssertionError as silence:
            if not self.game.has_ended():
                raise Breach(f"the files are not answered: {silence}") from None
        finally:
            giver.close()

    def paste_skin(self, how, skin):
        giver = FileGiver(self.desktop, self._gift(how, skin))
        try:
            giver.copy()
            self.desktop.strike("Control_L", "v")
            giver.answer_for(0.5)
        finally:
            giver.close()

    # Files

    def _path(self, what):
        return {
            "settings": settings_path(self.desktop),
            "playlist": os.path.join(self.folder, "Playlist.dat"),
            "scores": os.path.join(self.folder, "High", "Easy.hsc"),
            "tune": os.path.join(self.folder, "Music", "Lamplight.mid"),
            "sound": os.path.join(self.folder, "Sound", "PutColor.wav"),
            "picture": os.path.join(self.folder, "Skin", "Carbon", "High", "High.bmp"),
            "skin": os.path.join(self.folder, "Skin", "Beacon"),
            "rules": os.path.join(self.folder, "Rules"),
        }[what]

    def spoil(self, what, how):
        """Not before the game has read what it cannot be started without."""
        path = self._path(what)
        if path in self._spoilt or not os.path.lexists(path) or not self.is_loaded():
            return
        self._was_spoilt = True
        aside = os.path.join(self._aside, str(len(os.listdir(self._aside))))
        if os.path.isdir(path):
            self._spoilt[path] = os.rename(path, aside) or aside
            return
        with open(path, "rb") as file:
            content = file.read()
        self._spoilt[path] = os.rename(path, aside) or aside
        if how != "take away":
            content = {"cut": content[:len(content) // 2], "garble": b"\xff\0[nonsense=\n" * 50,
                       "make read-only": content}[how]
            with open(path, "wb") as file:
                file.write(content)
            os.chmod(path, 0o444 if how == "make read-only" else 0o644)

    def put_back(self):
        for path, aside in self._spoilt.items():
            if os.path.isdir(path):
                shutil.rmtree(path)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            os.replace(aside, path)
        self._spoilt.clear()

    # What has to hold

    def look(self):
        self._mind_the_end()
        self._judge_lines(self.game)
        self._judge_answers()
        self._judge_second_start()
        self._judge_figures()
        self._judge_places()
        if self.is_loaded():
            self._judge_way_back()

    def _judge_answers(self):
        """The windows are asked by the window manager's question, the program by a screen
        reader's. It may end meanwhile."""
        pid = self.game.process.pid
        began = time.monotonic()
        try:
            self.desktop.wait_for_answers(pid, TO_ANSWER, lambda: not self.game.has_ended())
            program = self.desktop.accessibility.program(pid)
            if program:
                program.children()
        except GLib.Error:
            pass
        except AssertionError as silence:
            raise Breach(f"the program does not answer: {silence}") from None
        self.figures["answer"].append(time.monotonic() - began)

    def _judge_second_start(self):
        """It gives way, but where the first is leaving: then it plays."""
        if not self._second:
            return
        wait_for("the second start to end",
                 lambda: self._second.has_ended() or self.game.has_ended(), TO_SHOW)
        if self._second.has_ended():
            self._judge_end(self._second)
            if self._second.lines():
                raise Breach(f"the second start said: {self._second.lines()}")
            self._second = None
        self._mind_the_end()

    def _judge_figures(self):
        pid = self.game.process.pid
        try:
            with open(f"/proc/{pid}/status", encoding="utf-8") as status:
                numbers = dict(re.findall(r"(Threads|VmRSS):\s+(\d+)", status.read()))
            handles = len(os.listdir(f"/proc/{pid}/fd"))
        except (FileNotFoundError, ProcessLookupError):
            return
        if "VmRSS" not in numbers:  # it has ended
            return
        kept = self.desktop.resources(pid)
        now = {"handles": handles, "threads": int(numbers["Threads"]),
               "windows": kept["WINDOW"], "pixmaps": kept["PIXMAP"]}
        for name, number in now.items():
            self.figures[name].append(number)
            if number > MOST[name]:
                raise Breach(f"the program has {number} {name}")
        self.figures["MB"].append(int(numbers["VmRSS"]) // 1024)

    def _judge_way_back(self):
        """Where no window is shown, an icon or the window manager has the game."""
        pid = self.game.process.pid
        try:
            wait_for("a way back", lambda: (
                self.game.has_ended() or self.desktop.windows(pid) or self.desktop.tray_icon(pid)
                or self._bus_icon_is_there() or self.desktop.is_managed(pid)), 5)
        except AssertionError:
            raise Breach("the game is hidden, and nothing is there to have it back") from None

    def _judge_places(self):
        def all_are_on_the_screen():
            parts = [self.desktop.visible_part(place)
                     for place in self.desktop.windows(self.game.process.pid)]
            return all(min(part) >= LEAST_PART for part in parts)
        try:
            wait_for("windows that can be reached", all_are_on_the_screen, 5)
        except AssertionError:
            places = self.desktop.windows(self.game.process.pid)
            raise Breach(f"windows are out of reach: {places} on a screen of "
                         f"{self.desktop.size_of_screen()}") from None
