"""Highscores: a fast win is named, kept, seen again after a new start, and cleared."""

import os

from board import in_pixels
from desktop import wait_for
from game import EASY, Game, store_settings
from scaled_game import LARGER, SMALLER, ScaledGame

HIGH_SIZE = (460, 448)
OK = (362, 401)
RANKS = (40, 154, 44, 220)
DEFAULT = (98, 401)
SETTINGS = "[Game]\nGameMode=0\n[Misc]\nGTimer=True\nSetColor=True\n"


class Highscores(ScaledGame):
    def setUp(self):
        super().setUp()
        self.list = os.path.join(self.folder, "High", "Easy.hsc")
        store_settings(self.desktop, SETTINGS)

    def start_program(self):
        return Game(self.desktop, folder=self.folder, mode=EASY)

    def window(self, game):
        size = in_pixels(game.scale, 0, 0, *HIGH_SIZE)[2:]
        return self.desktop.place_of_window(game.process.pid, size)

    def press(self, game, place):
        x, y = game.wait_for("the highscore window", lambda: self.window(game))
        left, top = in_pixels(game.scale, *place, 0, 0)[:2]
        self.desktop.click(x + left, y + top)

    def entries(self, game):
        """The names, rows and times that a screen reader reads of the shown list."""
        def labels():
            return [thing.name.split(": ", 1)[-1]
                    for thing in game.find_accessible().descendants() if thing.role == "label"]
        return game.wait_for("the list", labels)[-30:]

    def win(self, game):
        """The name is asked for."""
        game.win_own_code()
        game.wait_for("the highscore window", lambda: self.window(game))
        self.desktop.wait_for_focus(game.process.pid)

    def type(self, text):
        for letter in text:
            self.desktop.strike(letter)

    def test_a_win_is_named_kept_and_seen_after_the_next_start(self):
        game = self.start_program()
        self.win(game)
        self.type("anna")
        self.desktop.strike("Return")
        game.wait_for("the window to close", lambda: not self.window(game))
        game.wait_until_idle()
        with open(self.list, "rb") as file:
            saved = file.read()
        self.assertEqual(saved[:8], b"\x04\0anna\x01\0")
        self.assertEqual(saved[10:27], b"\x0d\0Quendrel v1.0\0\0")
        self.assertEqual(len(saved), 10 + 9 * 19)
        self.assertEqual(game.leave(), 0)

        again = self.start_program()
        again.click("High")
        again.wait_for("the highscore window", lambda: self.window(again))
        self.assertIn("anna", self.entries(again))
        self.press(again, DEFAULT)
        wait_for("the file to go", lambda: not os.path.exists(self.list))
        self.assertNotIn("anna", self.entries(again))
        self.press(again, OK)
        again.wait_for("the window to close", lambda: not self.window(again))

    def resize_with_game(self, game, keys, scale):
        self.resize(game, keys, scale)
        game.wait_for("the highscore window with it", lambda: self.window(game))

    def test_a_win_in_a_larger_window_is_named_and_the_window_follows_the_keys(self):
        game = self.start_again(EASY, 2, ("--scale", "2"))
        self.win(game)
        self.type("an")
        self.resize_with_game(game, SMALLER, 1.75)
        self.type("na")
        self.desktop.strike("Return")
        game.wait_for("the window to close", lambda: not self.window(game))
        game.wait_for("the welcome", game.is_idle)
        with open(self.list, "rb") as file:
            self.assertEqual(file.read(8), b"\x04\0anna\x01\0")

        game.click("High")
        game.wait_for("the highscore window", lambda: self.window(game))
        self.assertIn("anna", self.entries(game))
        self.resize_with_game(game, LARGER, 2)
        picture = self.pictures("Atelier", "High", "High.bmp")
        self.wait_for_picture(game, self.window(game), picture, RANKS)
        self.press(game, DEFAULT)
        wait_for("the file to go", lambda: not os.path.exists(self.list))
        self.assertNotIn("anna", self.entries(game))
        self.desktop.strike("Escape")
        game.wait_for("the window to close", lambda: not self.window(game))

    def test_an_empty_name_drops_the_win(self):
        game = self.start_program()
        self.win(game)
        self.press(game, OK)
        game.wait_for("the window to close", lambda: not self.window(game))
        game.wait_until_idle()
        self.assertFalse(os.path.exists(self.list))

    def test_a_win_that_cannot_be_saved_is_said_in_a_box_and_saved_on_leaving_if_it_can(self):
        os.mkdir(os.path.dirname(self.list))
        with open(self.list, "wb"):
            pass
        os.chmod(self.list, 0o444)
        game = self.start_program()
        self.win(game)
        self.type("anna")
        self.desktop.strike("Return")
        self.desktop.click_middle(game.wait_for("the box", game.box_button).place)
        game.wait_for("the window to close", lambda: not self.window(game))
        game.wait_until_idle()
        self.assertEqual(game.errors(),
                         f"quendrel: {self.list}: cannot be written: it is read-only\n")
        self.assertEqual(os.path.getsize(self.list), 0)
        game.click("High")
        game.wait_for("the highscore window", lambda: self.window(game))
        self.assertIn("anna", self.entries(game))
        self.press(game, OK)
        game.wait_for("the window to close", lambda: not self.window(game))
        os.chmod(self.list, 0o644)
        self.assertEqual(game.leave(), 0)
        with open(self.list, "rb") as stored:
            self.assertEqual(stored.read(6), b"\4\0anna")

    def test_restoring_the_defaults_during_the_entry_gives_the_win_up(self):
        game = self.start_program()
        self.win(game)
        self.type("ben")
        self.desktop.strike("Return")
        game.wait_for("the window to close", lambda: not self.window(game))
        game.wait_until_idle()
        self.win(game)
        self.type("anna")
        self.press(game, DEFAULT)
        wait_for("the file to go", lambda: not os.path.exists(self.list))
        self.assertIsNotNone(self.window(game))
        self.assertNotIn("ben", self.entries(game))
        self.press(game, OK)
        game.wait_until_idle()
        self.assertFalse(os.path.exists(self.list))
