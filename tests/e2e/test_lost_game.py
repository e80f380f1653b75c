"""A whole game with a code set by hand, lost on its last row."""

from board import COVERED
from game import GameTestCase

CODE = (1, 1, 2, 3)


class LostGame(GameTestCase):
    def test_game_with_a_code_set_by_hand_is_lost_after_ten_wrong_rows(self):
        game = self.play("[Game]\nGameMode=0\n[Misc]\nSetColor=True\n")
        game.click("Start")
        game.wait_for_messages("Please set your color combi-", "nation.Press ok when done.")
        self.set_code_by_hand(game)
        self.fill_ten_wrong_rows(game)

        game.wait_for_messages("", "Sorry, no luck this time.")
        game.wait_for_messages("Here is the correct row.", "Press ok when done.")
        game.wait_for("an enabled Ok", lambda: game.is_enabled("Ok"))
        self.assertEqual(game.board().code(), CODE)
        game.answer("Ok")
        game.wait_until_idle()

    def set_code_by_hand(self, game):
        game.wait_for("an Ok", lambda: game.button("Ok").is_showing)
        self.assertFalse(game.is_enabled("Ok"))
        game.set_code(CODE[:3])
        self.assertFalse(game.is_enabled("Ok"))
        game.set_code(CODE)
        game.answer("Ok")
        game.wait_for_messages("", "Game in progress...")
        self.assertEqual(game.board().code(), (COVERED,) * 4)

    def fill_ten_wrong_rows(self, game):
        game.fill(1, (1, 2, 1, 1))
        self.assertEqual(game.check(1), (1, 2, 2))
        game.fill(2, (1, 5, 5, 3))
        self.assertEqual(game.check(2), (1, 1))
        game.fill(3, (6, 6, 6, 6))
        self.assertEqual(game.check(3), ())
        for row in range(4, 11):
            game.clone(3, onto=row)
            self.assertEqual(game.check(row), ())
