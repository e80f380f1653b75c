"""Windows that are no rectangles: cut at device pixels, and told whether the desktop blends."""

import os
import subprocess
import unittest

from desktop import Desktop, wait_for

CUT_WINDOW = os.environ.get("QUENDREL_E2E_CUT_WINDOW", "")
# (x, y, width, height), with sides between the units of every scale but 1.
RECTS = [(1, 7, 97, 61), (3, 1, 31, 1), (40, 1, 5, 1)]


class WindowEdges(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(window_manager=False)
        self.addCleanup(self.desktop.close)

    def show(self, rects, **environment):
        """Starts a window that is cut to the rectangles; returns what it says, line by line."""
        numbers = [str(number) for rect in rects for number in rect]
        process = self.desktop.run([CUT_WINDOW, *numbers], stdout=subprocess.PIPE, text=True,
                                   env={**self.desktop.environment, **environment})
        self.addCleanup(process.stdout.close)
        return map(str.strip, process.stdout)

    def test_window_is_cut_at_device_pixels_at_every_scale(self):
        for scale in ("1", "1.25", "1.5", "2", "3"):
            with self.subTest(scale):
                says = self.show(RECTS, QT_SCALE_FACTOR=scale)
                window = int(next(says))
                self.assertEqual(next(says), "cut")
                self.assertEqual(self.desktop.shape_of_window(window), RECTS)

    def test_window_cut_to_nothing_is_whole_again(self):
        says = self.show([], QT_SCALE_FACTOR="1.5")
        window = int(next(says))
        self.assertEqual(next(says), "cut")
        self.assertEqual(self.desktop.shape_of_window(window), [(0, 0, 300, 150)])

    def test_press_beside_what_is_kept_reaches_what_is_beneath(self):
        self.desktop.listen_beneath()
        says = self.show(RECTS, QT_SCALE_FACTOR="2")
        window = int(next(says))
        wait_for("the window", lambda: self.desktop.is_shown(window))
        places = [(0, 7), (1, 7), (97, 67), (98, 67), (34, 1), (44, 1), (45, 1), (40, 2)]
        for place in places:
            self.desktop.click(*place)
        self.assertEqual(self.desktop.presses_beneath(),
                         [(0, 7), (98, 67), (34, 1), (45, 1), (40, 2)])

    def test_start_and_end_of_a_compositor_are_noticed(self):
        says = self.show(RECTS)
        next(says)
        self.assertEqual([next(says), next(says)], ["cut", "no compositor"])
        for runs, said in ((True, "compositor"), (False, "no compositor"), (True, "compositor")):
            self.desktop.say_that_a_compositor_runs(runs)
            self.assertEqual(next(says), said)

    def test_other_platform_than_x_cuts_nothing(self):
        says = self.show(RECTS, QT_QPA_PLATFORM="offscreen")
        next(says)
        self.assertEqual([next(says), next(says)], ["not cut", "no compositor"])
