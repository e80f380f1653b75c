"""A whole game against the computer's own hidden code, from a first start to the saved file."""

import itertools

from board import COVERED
from game import EASY, GameTestCase, Game, stored_settings

SAVED = b"""[Game]
GameMode=0

[Sound]
SoundFx=True
Music=True
RndMusic=False

[Misc]
ToolTips=True
SetColor=False
GTimer=False

[Skin]
RndSkin=False
PrvSkin=False
SkinPtr=1

[Duel]
MindDuel=False
Player1=Player 1
Player2=Player 2
BestOf=5
Round=0
PlrTrn=1
PlrPos1=0
PlrPos2=0
"""


def marks_for(guess, code):
    """1 for every right colour in its place, then 2 for every further right colour."""
    exact = sum(g == c for g, c in zip(guess, code))
    shared = sum(min(guess.count(color), code.count(color)) for color in set(guess))
    return (1,) * exact + (2,) * (shared - exact)


def solve(game):
    """Guesses the first code that agrees with all marks so far; the guesses, the last right."""
    candidates = list(itertools.product(range(1, 7), repeat=4))
    guesses = []
    while candidates:
        guess = candidates[0]
        guesses.append(guess)
        game.fill(len(guesses), guess)
        marks = game.check(len(guesses))
        if marks == (1, 1, 1, 1):
            return guesses
        candidates = [code for code in candidates if marks_for(guess, code) == marks]
    raise AssertionError(f"no code agrees with the marks that the guesses {guesses} were given")


class WonGame(GameTestCase):
    def test_easy_game_is_won_by_reading_the_marks_and_leaving_saves_eighteen_settings(self):
        game = Game(self.desktop, folder=self.folder)
        game.choose_mode(EASY)
        game.wait_for("the Easy board", lambda: game.board().shows_only_pegs())
        game.start()
        self.assertEqual(game.board().code(), (COVERED,) * 4)

        guesses = solve(game)
        game.wait_for_messages("Congratulations! you made it.", "Press ok when done!")
        game.wait_for("the revealed code", lambda: game.board().code() == guesses[-1])
        board = game.board()
        self.assertEqual([board.row(row) for row in range(1, len(guesses) + 1)], guesses)

        game.answer("Ok")
        game.wait_until_idle()
        self.assertEqual(game.leave(), 0)
        self.assertEqual(stored_settings(self.desktop), SAVED)
        self.assertEqual(game.errors(), "")
