"""The sweep in which a new board appears: every fifth line a pass, from top to bottom."""

import time

from game import EASY, HARD, GameTestCase

# The sixth column, which the Easy board does not have and no peg of Easy can touch.
STRIP = (480, 0, 4, 605)


class Sweep(GameTestCase):
    def test_new_board_is_seen_to_come_in_five_interlaced_passes(self):
        game = self.play()
        game.wait_until_idle()
        old = game.skin.boards[EASY].crop(*STRIP).rows
        new = game.skin.boards[HARD].crop(*STRIP).rows
        self.assertEqual(game.grab(*STRIP).rows, old)

        game.click("Hard")
        frames = self.grab_until(game, new)
        telling = [y for y in range(605) if old[y] != new[y]]
        passes_done = set()
        for rows in frames:
            fresh = [rows[y] == new[y] for y in telling]
            drawn = sorted((y % 5, y) for y, is_new in zip(telling, fresh) if is_new)
            order = sorted((y % 5, y) for y in telling)
            self.assertEqual(drawn, order[:len(drawn)], "lines came out of their order")
            passes_done.add(len({y % 5 for y, is_new in zip(telling, fresh) if is_new}))
        self.assertTrue(passes_done & {1, 2, 3, 4}, f"only seen with {passes_done} passes")

    def grab_until(self, game, last):
        """Every picture of the strip that the screen gives, up to the one that equals `last`."""
        frames = []
        deadline = time.monotonic() + 5
        while not frames or frames[-1] != last:
            self.assertLess(time.monotonic(), deadline, "the new board did not come")
            frames.append(game.grab(*STRIP).rows)
        return frames
