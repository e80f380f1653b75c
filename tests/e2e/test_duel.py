"""A Mind Duel at the real window: turns, status, verdict, reset, and going on another day."""

from game import GameTestCase, stored_settings

SETTINGS = ("[Game]\nGameMode=0\n[Misc]\nSetColor=True\n"
            "[Duel]\nMindDuel=True\nPlayer1=Anna\nPlayer2=Ben\nBestOf=1\n")
SETTING_A_CODE = ("Please set your color combi-", "nation.Press ok when done.")


def status(round_shown, anna, ben):
    return ("- Mind Duel -", f"Round: {round_shown}/1", f"Anna: Guess={anna}", f"Ben: Guess={ben}")


class Duel(GameTestCase):
    def set_code(self, game, code, shown):
        game.click("Start")
        game.wait_for_messages(*SETTING_A_CODE)
        game.set_code(code)
        game.answer("Ok")
        game.wait_for_messages(*shown)

    def test_match_of_one_round_is_played_to_its_verdict(self):
        game = self.play(SETTINGS)
        self.set_code(game, (1, 2, 3, 4), status(1, 0, 0))
        game.solve(1, (1, 2, 3, 4))
        game.wait_until_idle()

        self.set_code(game, (4, 4, 2, 1), status(1, 1, 0))
        game.fill(1, (1, 2, 3, 4))
        game.click("Check")
        game.wait_for_messages(*status(1, 1, 1))
        game.wait_for("the second row", lambda: game.is_enabled("Clone"))
        game.solve(2, (4, 4, 2, 1))
        game.wait_for_messages("Well done Anna", "you won the Mind Duel.")
        game.answer("Ok")
        game.wait_until_idle()
        self.assertEqual(game.leave(), 0)
        self.assertIn(b"\nRound=0\nPlrTrn=1\nPlrPos1=0\nPlrPos2=0\n",
                      stored_settings(self.desktop))

    def test_match_goes_on_another_day_but_a_turn_that_is_left_is_lost(self):
        match = b"Round=0\nPlrTrn=2\nPlrPos1=1\nPlrPos2=0\n"
        game = self.play(SETTINGS)
        self.set_code(game, (1, 2, 3, 4), status(1, 0, 0))
        game.solve(1, (1, 2, 3, 4))
        game.wait_until_idle()
        self.assertEqual(game.leave(), 0)
        self.assertIn(match, stored_settings(self.desktop))

        game = self.start_again()
        self.set_code(game, (1, 2, 3, 4), status(1, 1, 0))
        self.assertEqual(game.leave(), 0)
        self.assertIn(match, stored_settings(self.desktop))

    def test_match_is_reset_between_rounds_but_not_during_play(self):
        game = self.play(SETTINGS.replace("SetColor=True", "SetColor=False")
                         .replace("BestOf=1", "BestOf=1\nPlrTrn=2\nPlrPos1=3"))
        game.click("Start")
        game.wait_for_messages(*status(1, 3, 0))
        game.click("Mind Duel")
        game.wait_for_messages("- Reset Mind Duel -", "Sorry, not during play !")
        game.answer("Ok")
        game.wait_for_messages(*status(1, 3, 0))
        game.click("Show")
        game.answer("Yes")
        game.wait_for_messages("Here is the correct row.", "Press ok when done!")
        game.answer("Ok")
        game.wait_for_messages("Well done Anna", "you won the Mind Duel.")
        game.answer("Ok")
        game.wait_until_idle()
        game.click("Mind Duel")
        game.wait_for_messages("- Reset Mind Duel -", "Are you sure ?")
        game.answer("Yes")
        game.wait_until_idle()

    def test_turn_that_is_neither_players_ends_the_game_where_it_is_given_up(self):
        settings = SETTINGS.replace("SetColor=True", "SetColor=False") + "PlrTrn=3\n"
        game = self.play(settings)
        game.click("Start")
        game.wait_for_messages("- Mind Duel -", "Round: 0/1", "Anna: Guess=0", "Ben: Guess=0")
        game.click("Show")
        game.answer("Yes")
        button = game.wait_for("the error box", game.box_button)
        self.desktop.click_middle(button.place)
        self.assertEqual(game.wait_for_exit(), 1)
        self.assertEqual(game.errors(), "quendrel: index 3 is outside 1 to 2\n")
        self.assertEqual(stored_settings(self.desktop), settings.encode())
