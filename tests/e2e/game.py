"""A running game, as a player meets it: its window, its texts, and what the pointer can do."""

import os
import shutil
import signal
import subprocess
import time
import unittest

from gi.repository import GLib

from board import (BOARD_LEFT, BUTTONS, COLOR_NAMES, COLUMNS, NUMBER, PEG, WINDOW_SIZE, Board, Skin,
                   center, code_peg_at, in_pixels, number_at, peg_at)
from desktop import LEFT, Desktop, wait_for

PROGRAM = os.environ.get("QUENDREL_E2E_PROGRAM", "")
"""Shows its splash for a moment only."""
PLAYERS_PROGRAM = os.environ.get("QUENDREL_E2E_PLAYERS_PROGRAM", "")
FOLDER = os.environ.get("QUENDREL_E2E_FOLDER", "")

EASY, MEDIUM, HARD = range(3)
SKINS = ("Atelier", "Beacon", "Carbon", "Daylight")
NAME = "Quendrel v1.0"
WELCOME = ("Welcome to", NAME, "from", "Brimwell")
PLAYING = ("", "Game in progress...", "", "")
WON = ("Congratulations! you made it.", "Press ok when done!")
SET_CODE = ("Please set your color combi-", "nation.Press ok when done.")
BACKGROUND = (30, 580)
"""A place that the window is dragged by."""
KEPT, KEPT_IN_A_GAME = 18, 14
"""Values of the settings file: all, and all but the match."""
COMMANDS = ("Exit", "About", "Config", "High", "Show", "Clone", "Start", "Check")


def settings_path(desktop):
    return os.path.join(desktop.environment["XDG_CONFIG_HOME"], "quendrel", NAME + ".ini")


def store_settings(desktop, text):
    os.makedirs(os.path.dirname(settings_path(desktop)))
    with open(settings_path(desktop), "wb") as file:
        file.write(text.encode())


def stored_settings(desktop):
    with open(settings_path(desktop), "rb") as file:
        return file.read()


def linked_folder(desktop):
    """A folder for the program that a test may spoil or write to: links to the real files."""
    folder = os.path.join(desktop.home, "Quendrel")
    for part in ("Skin", "Sound", "Music", "Rules"):
        shutil.copytree(os.path.join(FOLDER, part), os.path.join(folder, part),
                        copy_function=os.symlink)
    return folder


def install_viewer(desktop, command):
    """What the desktop opens pages with: the shell's command, with the page as its argument.
    Returns its path."""
    folder = os.path.join(desktop.home, "bin")
    os.makedirs(folder)
    viewer = os.path.join(folder, "xdg-open")
    with open(viewer, "w", encoding="utf-8") as file:
        file.write(f"#!/bin/sh\n{command}\n")
    os.chmod(viewer, 0o755)
    desktop.environment["PATH"] = folder + ":" + os.environ["PATH"]
    return viewer


class Game:
    """The program on a desktop. Every wait fails at once when the program has ended. Places are in
    the window's units, of which each takes `scale` pixels of the screen. Without `asks` the program
    is not told of `folder`, but finds it."""

    def __init__(self, desktop, program=PROGRAM, folder=FOLDER, mode=HARD, scale=1, options=(),
                 asks=True):
        log_path = os.path.join(desktop.home, "stderr")
        with open(log_path, "wb") as log:
            asked = ["--folder", folder] if asks else []
            process = desktop.run([program, *asked, *options], stderr=log)
        self._meet(desktop, process, log_path, folder, mode, scale)

    def _meet(self, desktop, process, log, folder, mode, scale, outline=None):
        """Waits until the process shows its main window."""
        self.desktop = desktop
        self.process = process
        self.mode = mode
        self.folder = folder
        self.scale = scale
        self.use_skin("Atelier", outline)
        self._log = log
        self._things = {}
        self.wait_for_scale(scale)
        self.wait_for("the splash to go", lambda: len(desktop.windows(self.process.pid)) == 1)
        self.wait_for("the window to be painted", self._is_painted)
        self.wait_for("the program on the accessibility bus", self._learn_tree)
        self.rest_pointer()

    def _is_painted(self):
        """What is asked of the program before is not always answered."""
        return any(map(any, self.grab(*BUTTONS["Exit"]).rows))

    def wait_for_scale(self, scale):
        """Until the main window is shown at this scale; from now on the screen is read at it."""
        size = in_pixels(scale, 0, 0, *WINDOW_SIZE)[2:]
        self.origin = self.wait_for(
            f"the main window at scale {scale}",
            lambda: self.desktop.place_of_window(self.process.pid, size))
        self.scale = scale
        self.use_skin(self.skin_name, self._outline)

    def use_skin(self, name, outline=None):
        """From now on the screen is read with the pictures of this skin. The window has its
        outline, or that of another skin which it was started with."""
        self.skin_name = name
        self._outline = outline
        self.skin = self.skin_called(name, 1 if self.scale == 1 else 2, outline)

    def skin_called(self, name, density, outline=None):
        skins = os.path.join(self.folder, "Skin")
        return Skin(os.path.join(skins, name), density, os.path.join(skins, outline or name))

    # Waiting

    def errors(self):
        with open(self._log, encoding="utf-8") as log:
            return log.read()

    def wait_for(self, what, condition, seconds=20):
        def alive_and_true():
            if self.process.poll() is not None:
                raise AssertionError(f"the game ended with {self.process.returncode} during the "
                                     f"wait for {what}; it said: {self.errors()!r}")
            try:
                return condition()
            except GLib.Error:  # it or a part went while it was asked: the next look will tell
                return False
        return wait_for(what, alive_and_true, seconds)

    def wait_for_exit(self):
        try:
            return self.process.wait(10)
        except subprocess.TimeoutExpired:
            raise AssertionError("the game did not end") from None

    # What a screen reader sees

    def find_accessible(self):
        return self.desktop.accessibility.program(self.process.pid)

    def _learn_tree(self):
        """The controls are there from the start and stay, so they are looked up once. Not yet
        while the splash is going, of which parts may vanish while they are looked at."""
        root = self.find_accessible()
        if root is None:
            return False
        self.tree = list(root.descendants())
        labels = [thing for thing in self.tree if thing.role == "label"]
        self._lines, self.clock = labels[:4], labels[4]
        for thing in self.tree:
            self._things[thing.role, thing.name] = thing
        return True

    def button(self, name):
        return self._things.get(("radio button", name)) or self._things["push button", name]

    def place(self, name):
        """(x, y, width, height) of a button on the screen. The toolkit tells it as if the screen
        were of the usual scale."""
        toolkit_scale = float(self.desktop.environment.get("QT_SCALE_FACTOR", 1))
        return in_pixels(toolkit_scale, *self.button(name).place)

    def is_enabled(self, name):
        return self.button(name).is_enabled

    def time(self):
        """What the clock shows."""
        return self.clock.name.removeprefix("Clock: ")

    def messages(self):
        return tuple(line.name if line.is_showing else "" for line in self._lines)

    def wait_for_messages(self, *lines, seconds=20):
        """Waits until exactly these lines are shown; those not given are to be empty."""
        lines += ("",) * (4 - len(lines))
        seen = ()

        def as_wanted():
            nonlocal seen
            seen = self.messages()
            return seen == lines

        try:
            self.wait_for(f"the messages {lines}", as_wanted, seconds)
        except AssertionError as failure:
            raise AssertionError(f"{failure}; last seen: {seen}") from None

    def box_button(self):
        return self.desktop.accessibility.box_button(self.process.pid)

    def box_text(self, text):
        """What says `text` in a box, or None."""
        return self.find_accessible().find("label", text)

    # What the eye sees

    def grab(self, x=0, y=0, width=WINDOW_SIZE[0], height=WINDOW_SIZE[1]):
        return self.desktop.grab(*self.on_screen(x, y, width, height))

    def on_screen(self, *place):
        """A place (x, y, width, height) of the window in pixels of the screen."""
        x, y, width, height = in_pixels(self.scale, *place)
        return self.origin[0] + x, self.origin[1] + y, width, height

    def board(self):
        return Board(self.skin, self.mode, self.grab())

    def color_at(self, column, row):
        place = peg_at(column, row)
        return Board(self.skin, self.mode, self.grab(*place, *PEG), place).color_at(column, row)

    def number_of_row(self, row):
        return self.grab(*number_at(row), *NUMBER)

    def shows_button(self, name, state):
        """Whether the button shows its picture of that state ("Up", "Down", "Disabled")."""
        return self.desktop.grab(*self.place(name)) == self.skin.button(name, state)

    # What the pointer does

    def click_at(self, x, y, button=LEFT):
        self.desktop.click(*self.on_screen(x, y, 0, 0)[:2], button)

    def click(self, name, button=LEFT):
        place = self.place(name)
        self.desktop.click(*center(place[:2], place[2:]), button)

    def drag(self, start, by, button=LEFT, release=True):
        """Moves the pointer from a place of the window by so many pixels, the button down: slowly
        at first, as a hand does."""
        x, y = self.on_screen(*start, 0, 0)[:2]
        self.desktop.move_pointer(x, y)
        self.desktop.press(button)
        for step in range(1, 21):
            share = (step / 20) ** 2
            self.desktop.move_pointer(x + round(by[0] * share), y + round(by[1] * share))
            time.sleep(0.01)
        if release:
            self.desktop.release(button)

    def rest_pointer(self):
        """Where it lies on nothing that lights up."""
        self.desktop.move_pointer(*self.on_screen(BOARD_LEFT + 3, 3, 0, 0)[:2])

    def answer(self, name):
        self.wait_for(f"an offered {name}",
                      lambda: self.button(name).is_showing and self.is_enabled(name))
        self.click(name)

    def choose_mode(self, mode):
        self.mode = mode
        self.click(("Easy", "Medium", "Hard")[mode])

    def start(self):
        self.click("Start")
        self.wait_for_messages(*PLAYING)

    def click_hole(self, column, row, button=LEFT):
        self.click_at(*center(peg_at(column, row), PEG), button)

    def put(self, color, column, row):
        """Chooses the colour, presses the hole and waits until the peg is seen."""
        self.click(COLOR_NAMES[color - 1])
        self.click_hole(column, row)
        self.wait_for(f"{COLOR_NAMES[color - 1]} in column {column} of row {row}",
                      lambda: self.color_at(column, row) == color)

    def fill(self, row, colors):
        for column, color in enumerate(colors, 1):
            self.put(color, column, row)

    def set_code(self, colors):
        for column, color in enumerate(colors, 1):
            self.click(COLOR_NAMES[color - 1])
            self.click_at(*center(code_peg_at(column), PEG))
            self.wait_for(f"{COLOR_NAMES[color - 1]} in column {column} of the code row",
                          lambda: self.board().code()[column - 1] == color)

    def point_at_row(self, row):
        self.desktop.move_pointer(*self.on_screen(*center(peg_at(2, row), PEG), 0, 0)[:2])

    def choose_row(self, row):
        """Presses the strip that "Clone" lays over a checked row."""
        self.click_at(*center(peg_at(2, row), PEG))

    def clone(self, source, onto):
        self.click("Clone")
        self.wait_for_messages("", "- Clone -", "Choose a row !")
        self.choose_row(source)
        self.wait_for_messages(*PLAYING)
        board = self.board()
        if board.row(onto) != board.row(source):
            raise AssertionError(f"row {source} was cloned, but row {onto} is {board.row(onto)}")

    def check(self, row):
        """Presses "Check" and returns the row's marks."""
        self.wait_for("an enabled Check", lambda: self.is_enabled("Check"))
        self.click("Check")
        return self.verdict(row)

    def verdict(self, row):
        """Of the row that has just been given to check: waits until it stands."""
        self.wait_for("the check to begin", lambda: not self.is_enabled("Exit"))
        self.wait_for("the verdict",
                      lambda: self.is_enabled("Exit") or self.messages() != PLAYING)
        return self.board().marks(row)

    def call_for_code(self):
        """Starts a game for which the player sets the code."""
        self.click("Start")
        self.wait_for_messages(*SET_CODE)

    def give_code(self, code):
        self.set_code(code)
        self.answer("Ok")
        self.wait_for_messages(*PLAYING)

    def solve(self, row, code):
        """Up to the applause, which is answered."""
        self.fill(row, code)
        self.click("Check")
        self.wait_for_messages(*WON)
        self.answer("Ok")

    def win_own_code(self):
        """In the first row, with the clock on and an empty list: up to the call for a name."""
        self.call_for_code()
        self.give_code((1, 2, 3, 4))
        self.solve(1, (1, 2, 3, 4))
        self.wait_for_messages("Well played !", "You are one of the", "10 best players ever.",
                               "Please enter your name...")

    def is_idle(self):
        return self.messages() == WELCOME and self.is_enabled("Start")

    def wait_until_idle(self):
        """Idle is the welcome, "Start" on offer, and pegs that come by themselves."""
        self.wait_for("the idle board", self.is_idle)
        before = self.board().pegs()
        self.wait_for("a peg of the idle animation", lambda: self.board().pegs() != before)

    def leave(self):
        self.click("Exit")
        self.wait_for_messages("- Exit -", "Are you sure ?")
        self.answer("Yes")
        self.wait_for_messages("", "Ok, see you later...")
        return self.wait_for_exit()


class GameTestCase(unittest.TestCase):
    """A test with a desktop and a program folder of its own, which go when the test ends or takes
    too long."""

    TIME_LIMIT = 80
    DESKTOP = Desktop
    WINDOW_MANAGER = True
    SCREEN = "1280x900x24"

    def setUp(self):
        signal.signal(signal.SIGALRM, self._give_up)
        signal.alarm(self.TIME_LIMIT)
        self.addCleanup(signal.alarm, 0)
        self.desktop = self.DESKTOP(self.WINDOW_MANAGER, self.SCREEN)
        self.addCleanup(self.desktop.close)
        self.folder = linked_folder(self.desktop)

    def _give_up(self, *_):
        raise AssertionError(f"the test has not ended after {self.TIME_LIMIT} s")

    def record_sound(self):
        """From the next start on the sound device writes what it plays into this file."""
        recording = os.path.join(self.desktop.home, "audio")
        self.desktop.environment["SDL_AUDIODRIVER"] = "disk"
        self.desktop.environment["SDL_DISKAUDIOFILE"] = recording
        return recording

    def play(self, settings="[Game]\nGameMode=0\n", mode=EASY, scale=1, options=()):
        store_settings(self.desktop, settings)
        return self.start_again(mode, scale, options)

    def start_again(self, mode=EASY, scale=1, options=()):
        """With the settings as they are stored."""
        return Game(self.desktop, folder=self.folder, mode=mode, scale=scale, options=options)

    def close_box(self, game, said):
        """Waits for a box that says so, here and on standard error, and presses its OK."""
        button = game.wait_for("the box", game.box_button)
        self.assertIsNotNone(game.box_text(said))
        self.assertEqual(game.errors(), f"quendrel: {said}\n")
        self.desktop.click_middle(button.place)
        game.wait_for("the box to go", lambda: not game.box_button())
