"""All that a screen reader finds in each window, as the files in accessible_tree/ have it."""

import os

from test_by_ear import EarGameTestCase

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "accessible_tree")
SETTINGS = "[Game]\nGameMode=0\n[Misc]\nGTimer=True\n"


class AccessibleTree(EarGameTestCase):
    maxDiff = None

    def open(self, button, name):
        """The window that the button opens."""
        game = self.play_by_ear(SETTINGS)
        game.press("push button", button)
        return game.wait_for(f"the window {name}", lambda: game.window(name))

    def assert_tree(self, window, file):
        with open(os.path.join(FOLDER, file + ".txt"), encoding="utf-8") as wanted:
            self.assertEqual("".join(line + "\n" for line in window.lines()), wanted.read())
        for thing in window.descendants():
            self.assertTrue(thing.name or not thing.is_focusable, thing.role)

    def test_tree_of_the_idle_main_window(self):
        self.assert_tree(self.play_by_ear(SETTINGS).window("Quendrel"), "main_idle")

    def test_tree_of_the_main_window_in_a_game_with_two_checked_rows(self):
        game = self.play_by_ear("[Game]\nGameMode=0\n[Misc]\nSetColor=True\n")
        game.press("push button", "Start")
        game.said_until("Please set")
        game.place("Code", ("Green", "White", "Red", "White"))
        game.press("push button", "Ok")
        game.said_until("Game in progress")
        for row, colors in enumerate((("Red", "Blue", "Blue", "Green"),
                                      ("Yellow", "Yellow", "Black", "Blue")), 1):
            game.place(f"Row {row}", colors)
            game.press("push button", "Check")
            game.said_until(f"Row {row}: ")
        game.choose("White")
        game.press("push button", "Row 3, hole 2: empty")
        game.find("radio button", "Red").perform("Switch off")
        game.wait_for("an enabled Clone", lambda: game.is_enabled("push button", "Clone"))
        game.wait_for("a color that is off", lambda: not game.is_enabled("radio button", "Red"))
        self.assert_tree(game.window("Quendrel"), "main_playing")

    def test_tree_of_the_configuration_window(self):
        self.assert_tree(self.open("Config", "Quendrel: Configuration"), "config")

    def test_tree_of_the_highscore_window(self):
        self.assert_tree(self.open("High", "Quendrel: Highscores"), "high")

    def test_tree_of_the_about_window(self):
        self.assert_tree(self.open("About", "About Quendrel"), "about")
