"""The game by keys alone: no test here touches the pointer."""

import os
import subprocess

from board import COVERED, WINDOW_SIZE
from game import EASY, MEDIUM, PLAYING, SET_CODE, WON, Game, GameTestCase, store_settings
from test_highscores import HIGH_SIZE

CLONING = ("", "- Clone -", "Choose a row !")
OWN_CODE = "[Game]\nGameMode=0\n[Misc]\nGTimer=True\nSetColor=True\n"


class KeyGame(Game):
    """Counts the keys."""

    strikes = 0

    def rest_pointer(self):
        """It stays where the desktop has put it."""

    def strike(self, *keys):
        """One key after the other; several that are held together are joined by "+"."""
        for key in keys:
            self.strikes += 1
            self.desktop.strike(*key.split("+"))


class Keys(GameTestCase):
    def setUp(self):
        super().setUp()
        self.desktop.move_pointer = self.desktop.press = self.touch_the_pointer

    def touch_the_pointer(self, *_):
        self.fail("the pointer was used")

    def play(self, settings, mode=EASY):
        store_settings(self.desktop, settings)
        game = KeyGame(self.desktop, folder=self.folder, mode=mode)
        game.wait_until_idle()
        self.desktop.wait_for_focus(game.process.pid)
        return game

    def has_window(self, game, size):
        return self.desktop.place_of_window(game.process.pid, size)

    def set_layout(self, layout):
        """Of the keyboard, whose keys still go by the letters that they had."""
        subprocess.run(["setxkbmap", layout], env=self.desktop.environment, check=True)

    def ask_and_say_no(self, game, letter, question):
        game.strike(letter)
        game.wait_for_messages(question, "Are you sure ?")
        game.strike("n")

    def test_a_game_is_won_by_keys_its_name_typed_and_the_program_left(self):
        game = self.play(OWN_CODE)
        game.strike("s")
        game.wait_for_messages(*SET_CODE)
        game.strike("1", "2", "3", "4", "Return")
        game.wait_for_messages(*PLAYING)
        self.assertEqual(game.board().code(), (COVERED,) * 4)

        before = game.strikes
        game.strike("4", "3", "2", "1", "Return")
        self.assertEqual(game.verdict(1), (2, 2, 2, 2))
        self.assertEqual(game.strikes - before, 4 + 1)
        self.assertEqual(game.board().row(1), (4, 3, 2, 1))

        game.strike("c")
        game.wait_for_messages(*CLONING)
        game.strike("Return")
        game.wait_for_messages(*PLAYING)
        game.strike("End", "4", "Home", "1", "2", "3", "Return")
        self.assertEqual(game.verdict(2), (1, 1, 1, 1))
        game.wait_for_messages(*WON)
        game.wait_for("the revealed code", lambda: game.board().code() == (1, 2, 3, 4))
        game.strike("Return")
        game.wait_for("the highscore window", lambda: self.has_window(game, HIGH_SIZE))
        game.strike("a", "n", "n", "a", "Return")
        game.wait_for("the window to close", lambda: not self.has_window(game, HIGH_SIZE))
        game.wait_until_idle()
        with open(os.path.join(self.folder, "High", "Easy.hsc"), "rb") as file:
            self.assertIn(b"anna", file.read())

        game.strike("e")
        game.wait_for_messages("- Exit -", "Are you sure ?")
        game.strike("y")
        self.assertEqual(game.wait_for_exit(), 0)
        self.assertEqual(game.errors(), "")

    def test_the_mode_is_switched_the_match_reset_and_the_game_hidden_by_keys(self):
        game = self.play("[Game]\nGameMode=0\n[Duel]\nMindDuel=True\nPlrPos1=3\n")
        game.strike("Control_L+2")
        game.mode = MEDIUM
        game.wait_for("the Medium board", lambda: game.board().shows_only_pegs())
        self.assertTrue(game.shows_button("Medium", "Down"))
        self.ask_and_say_no(game, "m", "- Reset Mind Duel -")
        game.wait_until_idle()
        game.strike("m")
        game.wait_for_messages("- Reset Mind Duel -", "Are you sure ?")
        game.strike("y")
        game.wait_until_idle()
        game.strike("s")
        game.wait_for_messages("- Mind Duel -", "Round: 1/5", "Player 1: Guess=0",
                               "Player 2: Guess=0")
        game.strike("i")
        game.wait_for("the hidden game", lambda: not self.has_window(game, WINDOW_SIZE))
        self.desktop.activate(game.process.pid)
        game.wait_for("the game again", lambda: self.has_window(game, WINDOW_SIZE))

    def test_no_to_show_gives_the_row_back_to_the_keys(self):
        game = self.play("[Game]\nGameMode=0\n")
        game.strike("s")
        game.wait_for_messages(*PLAYING)
        game.strike("1", "2")
        for no in ("n", "Escape", "Return", "space"):
            game.strike("w")
            game.wait_for_messages("- Show -", "Are you sure ?")
            game.strike("3", no)
            game.wait_for_messages(*PLAYING)
        game.strike("3", "4", "Return")
        game.verdict(1)
        self.assertEqual(game.board().row(1), (1, 2, 3, 4))

    def test_numbers_and_letters_are_found_on_any_layout(self):
        game = self.play("[Game]\nGameMode=0\n")
        self.set_layout("fr")
        game.strike("s")
        game.wait_for_messages(*PLAYING)
        game.strike("Shift_L+6", "1", "2", "3", "6", "4", "Return")
        game.verdict(1)
        self.assertEqual(game.board().row(1), (1, 2, 3, 4))
        self.assertFalse(game.is_enabled("Black"))
        for layout in ("ru,us", "gr,us"):
            self.set_layout(layout)
            self.ask_and_say_no(game, "w", "- Show -")
            game.wait_for_messages(*PLAYING)
