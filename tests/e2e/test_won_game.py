"""A whole game against the computer's own hidden code, from a first start to the saved file."""

from board import COVERED
from game import EASY, WON, GameTestCase, Game, stored_settings
from solving import solve

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


class WonGame(GameTestCase):
    def test_easy_game_is_won_by_reading_the_marks_and_leaving_saves_eighteen_settings(self):
        game = Game(self.desktop, folder=self.folder)
        game.choose_mode(EASY)
        game.wait_for("the Easy board", lambda: game.board().shows_only_pegs())
        game.start()
        self.assertEqual(game.board().code(), (COVERED,) * 4)

        guesses = solve(game)
        game.wait_for_messages(*WON)
        game.wait_for("the revealed code", lambda: game.board().code() == guesses[-1])
        board = game.board()
        self.assertEqual([board.row(row) for row in range(1, len(guesses) + 1)], guesses)

        game.answer("Ok")
        game.wait_until_idle()
        self.assertEqual(game.leave(), 0)
        self.assertEqual(stored_settings(self.desktop), SAVED)
        self.assertEqual(game.errors(), "")
