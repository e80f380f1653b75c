"""Desktops of every scale: what is put on the screen piece by piece is whole afterwards."""

import os
import subprocess
import unittest

from desktop import Desktop

SCALED_WINDOW = os.environ.get("QUENDREL_E2E_SCALED_WINDOW", "")
PERCENT = range(100, 301, 5)


class Scales(unittest.TestCase):
    def setUp(self):
        self.desktop = Desktop(window_manager=False, screen="2000x1850x24")
        self.addCleanup(self.desktop.close)

    def assert_whole(self, scale, *arguments, **environment):
        with self.subTest(f"{arguments} {environment}"):
            run = subprocess.run([SCALED_WINDOW, *arguments], capture_output=True, text=True,
                                 timeout=60, env={**self.desktop.environment, **environment})
            self.assertEqual((run.returncode, run.stderr), (0, ""))
            self.assertAlmostEqual(float(run.stdout), float(scale), places=3)

    def test_sweep_and_cells_are_whole_at_every_scale_from_1_to_3(self):
        for percent in PERCENT:
            scale = f"{percent / 100:.2f}"
            self.assert_whole(scale, "1", QT_SCALE_FACTOR=scale)

    def test_sweep_and_cells_of_doubled_pictures_are_whole_where_pixels_are_mixed(self):
        self.assert_whole("1.25", "2", QT_SCALE_FACTOR="1.25")
        self.assert_whole("1.5", "2", "1.5")
