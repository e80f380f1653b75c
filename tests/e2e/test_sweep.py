"""The sweep in which a new board appears: every fifth line a pass, from top to bottom."""

import time

from game import EASY, HARD, GameTestCase

# The sixth column, which the Easy board does not have and no peg of Easy can touch.
STRIP = (480, 0, 4, 605)
FOUR_PAUSES = 0.080  # seconds, between the first pass and the last


class Sweep(GameTestCase):
    def test_new_board_is_seen_to_come_in_five_interlaced_passes(self):
        game = self.play()
        game.wait_until_idle()
        old = game.skin.boards[EASY].crop(*STRIP).rows
        new = game.skin.boards[HARD].crop(*STRIP).rows
        self.assertEqual(game.grab(*STRIP).rows, old)

        game.click("Hard")
        telling = [y for y in range(605) if old[y] != new[y]]
        order = sorted(telling, key=lambda y: (y % 5, y))
        passes_begun = set()
        for rows in self.grab_until(game, new):
            drawn = [y for y in order if rows[y] == new[y]]
            self.assertEqual(drawn, order[:len(drawn)], "lines came out of their order")
            self.assertTrue(all(rows[y] == old[y] for y in order[len(drawn):]))
            passes_begun.add(len({y % 5 for y in drawn}))
        self.assertTrue(passes_begun & {1, 2, 3, 4}, f"seen were only {passes_begun} passes")

    def test_sweep_takes_its_time(self):
        game = self.play()
        game.wait_until_idle()
        begun = time.monotonic()
        game.click("Hard")
        self.grab_until(game, game.skin.boards[HARD].crop(*STRIP).rows)
        self.assertGreaterEqual(time.monotonic() - begun, FOUR_PAUSES)

    def grab_until(self, game, last):
        """Every picture of the strip that the screen gives, up to the one that equals `last`."""
        frames = []
        deadline = time.monotonic() + 5
        while not frames or frames[-1] != last:
            self.assertLess(time.monotonic(), deadline, "the new board did not come")
            frames.append(game.grab(*STRIP).rows)
        return frames
