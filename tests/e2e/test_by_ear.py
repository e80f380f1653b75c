"""Playing by ear: the accessibility bus alone tells how the game stands and presses its buttons."""

import itertools
import re
import time

from game import FOLDER, NAME, PROGRAM, GameTestCase, store_settings
from desktop import wait_for

MODES = ("Easy", "Medium", "Hard")
COLUMNS, ROWS = 4, 10  # of Easy
SILENCE = 10  # seconds
CHECKED_ROW = re.compile(r"Row (\d+): ([A-Za-z, ]+); (?:(\d) black)?(?:, )?(?:(\d) white)?"
                         r"(?:no marks)?")


def marks_of(guess, code):
    """How many are right, and how many more are right elsewhere."""
    black = sum(a == b for a, b in zip(guess, code))
    common = sum(min(guess.count(color), code.count(color)) for color in set(guess))
    return black, common - black


class EarGame:
    """A running game, of which nothing is seen."""

    def __init__(self, desktop):
        self._desktop = desktop
        self._process = desktop.run([PROGRAM, "--folder", FOLDER])
        self.wait_for("an enabled Start", lambda: self.is_enabled("push button", "Start"))
        self._listener = desktop.accessibility.listen(self._program())
        self._said = []

    def _program(self):
        return self._desktop.accessibility.program(self._process.pid)

    def wait_for(self, what, condition, seconds=10):
        return wait_for(what, condition, seconds)

    def window(self, name):
        """The shown window, or None."""
        return next((window for window in self._program().children()
                     if window.name == name and window.is_showing), None)

    def find(self, role, name):
        """The shown thing, or None."""
        program = self._program()
        return program and program.find(role, name, lambda thing: thing.is_showing)

    def is_enabled(self, role, name):
        thing = self.find(role, name)
        return thing is not None and thing.is_enabled

    def press(self, role, name):
        self.wait_for(f"an enabled {role} {name!r}", lambda: self.is_enabled(role, name))
        if not self.find(role, name).perform("Press"):
            raise AssertionError(f"{name!r} cannot be pressed")

    def choose(self, name):
        self.press("radio button", name)
        self.wait_for(f"{name} to be chosen",
                      lambda: self.find("radio button", name).is_checked)

    def colors(self):
        return [thing.name for thing in self._program().descendants()
                if thing.role == "radio button" and thing.is_showing and thing.name not in MODES]

    def labels(self, beginning):
        """What can be read that begins so."""
        return [thing.name for thing in self._program().descendants()
                if thing.role == "label" and thing.is_showing and thing.name.startswith(beginning)]

    def place(self, row, colors):
        """Fills the empty "Row 3", or "Code"."""
        for hole, color in enumerate(colors, 1):
            self.choose(color)
            self.press("push button", f"{row}, hole {hole}: empty")
            self.wait_for("the color in the hole", lambda: self.find(
                "push button", f"{row}, hole {hole}: {color}"))

    def events(self):
        return self._listener.events()

    def said(self):
        """All that has been said and was not asked for yet."""
        said, self._said = self._said + self._listener.announcements(), []
        return said

    def said_until(self, last):
        """What is said up to a text that begins so."""
        def end():
            self._said = self.said()
            return next((place for place, text in enumerate(self._said, 1)
                         if text.startswith(last)), None)
        end = self.wait_for(f"{last!r} to be said", end)
        said, self._said = self._said[:end], self._said[end:]
        return said


class EarGameTestCase(GameTestCase):
    def play_by_ear(self, settings=""):
        store_settings(self.desktop, settings)
        return EarGame(self.desktop)


class ByEar(EarGameTestCase):
    def check(self, game, row, guess):
        """The marks of the row, which is all that is said."""
        game.place(f"Row {row}", guess)
        game.press("push button", "Check")
        said = game.said_until(f"Row {row}: ")
        self.assertEqual(len(said), 1, said)
        number, colors, black, white = CHECKED_ROW.fullmatch(said[0]).groups()
        self.assertEqual((int(number), colors), (row, ", ".join(guess)))
        self.assertEqual(game.labels("Row ")[row - 1], said[0])
        return int(black or 0), int(white or 0)

    def test_a_game_is_won_by_the_accessibility_bus_alone(self):
        game = self.play_by_ear()
        game.choose("Easy")
        game.press("push button", "Start")
        self.assertEqual(game.said_until("Game in progress"), ["Game in progress..."])
        self.assertEqual(game.labels("Code"), ["Code: hidden"])
        codes = list(itertools.product(game.colors(), repeat=COLUMNS))
        self.assertEqual(len(codes), 6 ** COLUMNS)
        for row in range(1, ROWS + 1):
            guess = codes[0]
            marks = self.check(game, row, guess)
            if marks == (COLUMNS, 0):
                break
            codes = [code for code in codes[1:] if marks_of(guess, code) == marks]
        code = ", ".join(guess)
        self.assertEqual(game.said_until("The code is "), [
            "Congratulations! you made it. Press ok when done!", "The code is " + code])
        self.assertEqual(game.labels("Code"), ["Code: " + code])
        game.press("push button", "Ok")
        self.assertEqual(game.said_until("Welcome"), [f"Welcome to {NAME} from Brimwell"])
        self.assertEqual(game.labels("Row ") + game.labels("Code"), [])

    def test_a_row_that_is_checked_in_a_duel_is_announced_once_too(self):
        game = self.play_by_ear("[Game]\nGameMode=0\n[Duel]\nMindDuel=True\n")
        game.press("push button", "Start")
        self.assertEqual(game.said_until("Mind Duel"), [
            "Mind Duel. Round 1 of 5. On turn: Player 1, 0 guesses. Player 2, 0 guesses"])
        game.place("Row 1", ["Red"] * COLUMNS)
        game.press("push button", "Check")
        said = game.said_until("Row 1: ")
        game.wait_for("the next row", lambda: game.is_enabled("push button", "Clone"))
        time.sleep(1)
        said += game.said()
        self.assertEqual(len(said), 1, said)
        self.assertTrue(said[0].endswith(". Player 1, 1 guess"), said)

    def listen_to_silence(self, game):
        """Of what moves and ticks nothing is told."""
        game.events()
        time.sleep(SILENCE)
        self.assertEqual([(event, detail, thing.role, thing.name)
                          for event, detail, _, thing in game.events()], [])

    def test_an_idle_board_and_a_ticking_clock_are_silent(self):
        game = self.play_by_ear("[Game]\nGameMode=0\n[Misc]\nGTimer=True\n")
        self.listen_to_silence(game)
        game.press("push button", "Start")
        game.said_until("Game in progress")
        time.sleep(0.5)
        before = game.labels("Clock: ")
        self.listen_to_silence(game)
        self.assertNotEqual(game.labels("Clock: "), before)

    def test_a_color_is_switched_off_and_on_by_its_action(self):
        game = self.play_by_ear("[Game]\nGameMode=0\n")
        game.choose("Blue")
        self.assertNotIn("Switch off", game.find("radio button", "Blue").actions())
        red = game.find("radio button", "Red")
        red.perform("Switch off")
        game.wait_for("a color that is off", lambda: not red.is_enabled)
        self.assertEqual(red.actions(), ["Switch on"])
        red.perform("Switch on")
        game.wait_for("a color that is on", lambda: red.is_enabled)

    def test_what_is_chosen_is_told(self):
        game = self.play_by_ear("[Game]\nGameMode=0\n")
        game.choose("Blue")
        self.assertIn(("Blue", 1), self.checked(game))
        game.choose("Red")
        self.assertLessEqual({("Blue", 0), ("Red", 1)}, self.checked(game))

    def checked(self, game):
        """What has told whether it is checked, and whether it is."""
        return {(thing.name, is_so) for _, detail, is_so, thing in game.events()
                if detail == "checked"}

    def test_what_comes_into_the_tree_and_goes_is_told(self):
        game = self.play_by_ear("[Game]\nGameMode=0\n")
        game.events()
        game.press("push button", "Start")
        game.wait_for("the code", lambda: game.labels("Code: hidden"))
        self.assertEqual(self.children_changed(game), ["add"])
        game.press("push button", "Show")
        game.press("push button", "Yes")
        game.press("push button", "Ok")
        game.wait_for("the end of the game", lambda: not game.labels("Code"))
        self.assertEqual(self.children_changed(game), ["remove"])

    def children_changed(self, game):
        return [detail for event, detail, *_ in game.events() if event == "ChildrenChanged"]
