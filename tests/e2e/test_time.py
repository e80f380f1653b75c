"""What happens by the second: the row marker and the clock."""

import time

from game import WELCOME, GameTestCase

TOLERANCE = 0.25


class Time(GameTestCase):
    def test_row_marker_blinks_once_a_second(self):
        game = self.play()
        game.start()
        self.assertIs(game.board().number_is_lit(1), True)
        changes = []
        for lit in (False, True, False, True):
            game.wait_for("a change of the row marker",
                          lambda: game.board().number_is_lit(1) == lit, 3)
            changes.append(time.monotonic())
        for before, after in zip(changes, changes[1:]):
            self.assertAlmostEqual(after - before, 1, delta=TOLERANCE)

    def test_clock_counts_seconds_stops_with_the_game_and_is_zero_after_it(self):
        game = self.play("[Game]\nGameMode=0\n[Misc]\nGTimer=True\n")
        self.assertTrue(game.clock.is_showing)
        self.assertEqual(game.time(), "00:00")
        game.start()
        seen = [self.time_of(game, text) for text in ("00:01", "00:02", "00:03")]
        self.assertAlmostEqual(seen[2] - seen[0], 2, delta=TOLERANCE)

        game.click("Show")
        game.answer("Yes")
        game.wait_for_messages("Here is the correct row.", "Press ok when done!")
        stopped = game.time()
        game.wait_for("an enabled Ok", lambda: game.is_enabled("Ok"))
        self.assertEqual(game.time(), stopped)
        game.answer("Ok")
        game.wait_for_messages(*WELCOME)
        game.wait_for("a clock at zero", lambda: game.time() == "00:00")

    def test_clock_is_hidden_where_it_is_switched_off(self):
        game = self.play()
        self.assertFalse(game.clock.is_showing)

    @staticmethod
    def time_of(game, text):
        game.wait_for(f"{text} on the clock", lambda: game.time() == text, 3)
        return time.monotonic()
