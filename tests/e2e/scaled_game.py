"""A game whose windows are larger than they are drawn: what it shows then, and the keys for it."""

import os
import time

from board import COLOR_NAMES, WINDOW_SIZE, in_pixels
from game import EASY, GameTestCase
from picture import Picture

MODES = ("Easy", "Medium", "Hard")
CONTROLS = (0, 0, 195, 605)
LARGER, SMALLER, NO_CHOICE = ("Control_L", "equal"), ("Control_L", "minus"), ("Control_L", "0")


def looks(mode=EASY, up=("Start",), down=()):
    """In which picture each control is that is shown with the clock and the duel off."""
    buttons = dict.fromkeys(("Start", "Check", "Show", "Clone", "High", "Duel", "Timer"),
                            "Disabled")
    buttons |= dict.fromkeys(("Config", "About", "Exit", "Hide", *COLOR_NAMES[:6 + 2 * mode]), "Up")
    playing = "Start" not in up
    buttons |= dict.fromkeys(MODES, "Disabled" if playing else "Up") | {MODES[mode]: "Down"}
    return buttons | dict.fromkeys(up, "Up") | dict.fromkeys(down, "Down")


class ScaledGame(GameTestCase):
    SCREEN = "2000x1300x24"

    def assert_made_of_pictures(self, game, buttons):
        """The whole window, pixel by pixel, with each control in its picture."""
        game.rest_pointer()
        seen = None

        def is_whole():
            nonlocal seen
            seen = game.board().difference(buttons)
            return seen is None
        try:
            game.wait_for("the window", is_whole)
        except AssertionError:
            self.fail(f"at scale {game.scale} the window is another at {seen}")

    def pictures(self, skin, *file):
        """Of the second size."""
        return Picture.from_bmp(os.path.join(self.folder, "Skin", skin, "2x", *file))

    def wait_for_picture(self, game, corner, picture, part):
        """Until a window, whose corner is there, shows this part of the picture as it is."""
        x, y, width, height = in_pixels(2, *part)
        wanted = picture.crop(x, y, width, height)
        game.wait_for(f"the picture at {part}", lambda: self.desktop.grab(
            corner[0] + x, corner[1] + y, width, height) == wanted)

    def begin(self, game, code=(1, 2, 3, 4)):
        """With a code of the player's own."""
        game.call_for_code()
        game.give_code(code)

    def resize(self, game, keys, scale):
        self.desktop.wait_for_focus(game.process.pid)
        self.desktop.strike(*keys)
        game.wait_for_scale(scale)

        def stands():
            """It moves after it has its size, and before the program answers; the window manager
            takes its time."""
            before = game.origin
            game.messages()
            time.sleep(0.1)
            game.wait_for_scale(scale)
            place = game.on_screen(0, 0, *WINDOW_SIZE)
            return before == game.origin and self.desktop.holds(place)
        game.wait_for("the window in its place", stands)

    def wait_until_still(self, game):
        """Two looks that show the same, with answers of the program in between, which come after
        what it has to paint."""
        def still():
            first = game.grab(*CONTROLS)
            for _ in range(3):
                game.messages()
                time.sleep(0.1)
            return first == game.grab(*CONTROLS)
        game.wait_for("the window to be drawn", still)

    def wait_for_lit_number(self, game, row):
        lit = game.skin.number(row)
        game.wait_for("the lit number", lambda: game.number_of_row(row) == lit)
