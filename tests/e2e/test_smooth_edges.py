"""The edges of the game's window: smooth where the desktop blends windows, and hard elsewhere."""

from desktop import wait_for
from game import BACKGROUND, EASY
from scaled_game import LARGER, ScaledGame

MAGENTA = 0xFF00FF
BENEATH = MAGENTA.to_bytes(3, "big")
WHITE = b"\xff\xff\xff"


def share_of(above, seen):
    """How much of `above` was mixed with what is beneath to make the pixel that is seen, or None
    if no share makes it."""
    widest = max(range(3), key=lambda channel: abs(above[channel] - BENEATH[channel]))
    share = (seen[widest] - BENEATH[widest]) / (above[widest] - BENEATH[widest])
    fits = all(abs(below + share * (own - below) - shown) <= 2
               for below, own, shown in zip(BENEATH, above, seen))
    return share if fits else None


class SmoothEdges(ScaledGame):
    LEAST_MIXED = 500

    def mixed_shares(self, game, hard, smooth):
        """Of the window's own picture in each pixel of which one look shows another than the other,
        the hard one the desktop's or the window's own."""
        picture, mask = game.skin.whole_boards[EASY].rows, game.skin.mask.rows
        for y, (row, hard_row) in enumerate(zip(smooth.rows, hard.rows)):
            for x in range(0, len(row), 3) if row != hard_row else ():
                shown, hard_shown, own, cut = (
                    line[x:x + 3] for line in (row, hard_row, picture[y], mask[y]))
                if shown == hard_shown:
                    continue
                place = game.scale, x // 3, y
                self.assertEqual(hard_shown, BENEATH if cut == WHITE else own, place)
                share = share_of(own, shown)
                self.assertIsNotNone(share, place)
                yield share

    def assert_smooth_while_a_compositor_runs(self, game):
        hard = game.grab()
        compositor = self.desktop.start_compositor()
        smooth = self.wait_for_another(game, hard)
        shares = list(self.mixed_shares(game, hard, smooth))
        self.assertGreater(sum(0.1 < share < 0.9 for share in shares), self.LEAST_MIXED)
        self.desktop.end_compositor(compositor)
        game.wait_for("the hard edge", lambda: game.grab() == hard)
        compositor = self.desktop.start_compositor()
        game.wait_for("the smooth edge", lambda: game.grab() == smooth)
        return compositor

    def assert_cut_by_centres(self, game):
        """The desktop is seen where, and only where, the mask is white under a pixel's centre."""
        shown, mask = game.grab(), game.skin.mask
        under = [(2 * x + 1) * mask.width // (2 * shown.width) * 3 for x in range(shown.width)]
        for y, row in enumerate(shown.rows):
            line = mask.rows[(2 * y + 1) * mask.height // (2 * shown.height)]
            self.assertEqual([line[x:x + 3] == WHITE for x in under],
                             [row[x:x + 3] == BENEATH for x in range(0, len(row), 3)],
                             (game.scale, y))

    def wait_for_another(self, game, before):
        """A look of the window that stays."""
        looks = [before]

        def stays():
            looks.append(game.grab())
            return before != looks[-2] == looks[-1]
        game.wait_for("another look that stays", stays)
        return looks[-1]

    def test_edges_are_true_mixtures_while_a_compositor_runs_and_hard_otherwise(self):
        self.desktop.listen_beneath(MAGENTA)
        game = self.play()
        game.wait_until_idle()
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?")
        game.rest_pointer()
        self.wait_until_still(game)
        compositor = self.assert_smooth_while_a_compositor_runs(game)
        corner = game.on_screen(3, 3, 0, 0)[:2]
        self.desktop.click(*corner)
        wait_for("the press beneath", lambda: corner in self.desktop.presses_beneath())
        self.desktop.click(*game.on_screen(*BACKGROUND, 0, 0)[:2])
        self.assertEqual(self.desktop.presses_beneath(), [])
        self.desktop.end_compositor(compositor)
        for scale in (1.25, 1.5, 1.75, 2):
            self.resize(game, LARGER, scale)
            game.rest_pointer()
            self.wait_until_still(game)
            self.assert_cut_by_centres(game)
        self.assert_smooth_while_a_compositor_runs(game)
