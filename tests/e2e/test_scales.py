"""Desktops of every scale: what is put on the screen piece by piece is whole afterwards."""

import os
import subprocess
import unittest

from desktop import Desktop

SCALED_WINDOW = os.environ.get("QUENDREL_E2E_SCALED_WINDOW", "")
PERCENT = range(100, 301, 5)


class Scales(unittest.TestCase):
    def test_sweep_and_cells_are_whole_at_every_scale_from_1_to_3(self):
        desktop = Desktop(window_manager=False, screen="2000x1850x24")
        self.addCleanup(desktop.close)
        for percent in PERCENT:
            scale = f"{percent / 100:.2f}"
            with self.subTest(scale):
                run = subprocess.run([SCALED_WINDOW], capture_output=True, text=True, timeout=60,
                                     env={**desktop.environment, "QT_SCALE_FACTOR": scale})
                self.assertEqual((run.returncode, run.stderr), (0, ""))
                self.assertAlmostEqual(float(run.stdout), percent / 100, places=3)
