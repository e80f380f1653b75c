"""After a siege: out of whatever the game is in, as a patient player gets out of it, and a game
that is won."""

import time

from gi.repository import GLib

from board import WINDOW_SIZE, in_pixels
from desktop import wait_for
from game import EASY, SET_CODE, WON, Game
from solving import solve

TO_IDLE = 120  # seconds
ANSWERS = {"- Show -": "Yes"}
"""To the questions that are not answered with "No"."""
WAYS_OUT = {"Quendrel: Configuration": "Cancel", "Quendrel: Highscores": "Ok",
            "About Quendrel": "Ok"}


class PeacefulGame(Game):
    """A program that runs already, its window at this scale."""

    def __init__(self, desktop, program, folder, skins, scale):
        self._meet(desktop, program.process, program.log, folder, EASY, scale)
        self.choose_mode(EASY)
        self.wait_for("the board in the outline of a skin", lambda: any(
            self._is_in_outline(skin) for skin in skins))

    def _is_in_outline(self, skin):
        """Of the skin that it was started with, whichever that was."""
        self.use_skin("Atelier", skin)
        return self.board().shows_only_pegs()


class WayOut:
    def __init__(self, desktop, program, call):
        self._desktop = desktop
        self._pid = program.process.pid
        self._call = call

    def _tree(self):
        return self._desktop.accessibility.program(self._pid)

    def _button(self, name):
        """The enabled one that is shown, or None."""
        return self._tree().find("push button", name,
                                 lambda thing: thing.is_showing and thing.is_enabled)

    def _press(self, name):
        button = self._button(name)
        return bool(button and button.perform("Press"))

    def _may(self, deed, *values):
        """What the deed returns, or False where something went while it was asked."""
        try:
            return deed(*values)
        except GLib.Error:
            return False

    def _said(self):
        return [thing.name for thing in self._tree().descendants()
                if thing.role == "label" and thing.is_showing]

    def _main_place(self):
        """Of the main window, which is the largest but for the configuration."""
        return max(self._desktop.windows(self._pid), key=lambda place: place[3], default=None)

    def _close_a_window(self):
        for window in self._tree().children():
            if window.is_showing and window.name in WAYS_OUT:
                button = window.find("push button", WAYS_OUT[window.name])
                return bool(button and button.perform("Press"))
        return False

    def _strike(self, *keys):
        self._desktop.activate(self._pid)
        self._desktop.wait_for_focus(self._pid)
        for key in keys:
            self._desktop.strike(*key.split("+"))

    def _step(self):
        """Does one thing that may help; returns whether the game is idle."""
        box = self._desktop.accessibility.box_button(self._pid)
        if box:
            self._desktop.click_middle(box.place)
        elif self._close_a_window():
            pass
        elif not self._main_place():
            self._desktop.activate(self._pid)
            self._call()
        else:
            return self._step_in_main_window()
        return False

    def _step_in_main_window(self):
        said = self._said()
        if self._button("No"):
            self._press(next((ANSWERS[line] for line in said if line in ANSWERS), "No"))
        elif SET_CODE[0] in said:
            self._strike(*"123456", "Return")
        elif "- Clone -" in said:
            self._strike("Return")
        elif not self._press("Ok") and not self._press("Show"):
            return bool(self._button("Start"))
        return False

    def until_idle(self):
        deadline = time.monotonic() + TO_IDLE
        while not self._may(self._step):
            if time.monotonic() > deadline:
                raise AssertionError(f"no way leads to the idle board; it says {self._said()}")
            time.sleep(0.3)

    def restore_defaults(self):
        for name in ("Config", "Default", "Ok"):
            wait_for(f"the button {name}", lambda name=name: self._may(self._press, name))

    def to_scale(self, scale):
        size = in_pixels(scale, 0, 0, *WINDOW_SIZE)[2:]

        def is_there():
            width, height = self._main_place()[2:]
            if (width, height) == size:
                return True
            self._strike("Control_L+minus" if width > size[0] else "Control_L+equal")
            time.sleep(0.3)
            return False
        wait_for(f"the main window at scale {scale}", is_there, 30)


def readable_scale(of_desktop):
    """At which the pictures are on the screen as they are in their files, and the window, which is
    of whole units of the desktop, is not larger than they are."""
    return 2 if of_desktop == "2" else 1


def win_a_game(desktop, program, folder, skins, call):
    """Returns the guesses that it took. `call` brings the game to the front out of the tray."""
    way = WayOut(desktop, program, call)
    way.until_idle()
    way.restore_defaults()
    way.until_idle()
    scale = readable_scale(desktop.environment.get("QT_SCALE_FACTOR", "1"))
    way.to_scale(scale)
    game = PeacefulGame(desktop, program, folder, skins, scale)
    game.wait_until_idle()
    game.start()
    guesses = solve(game)
    game.wait_for_messages(*WON)
    game.answer("Ok")
    game.wait_until_idle()
    return guesses
