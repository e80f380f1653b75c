"""The game hidden in a notification area that shows icons over the session bus."""

import os
import subprocess
import sys

from board import WINDOW_SIZE
from game import NAME, GameTestCase
from status_notifier import Icon

HERE = os.path.dirname(os.path.abspath(__file__))


class BusTray(GameTestCase):
    def setUp(self):
        super().setUp()
        self.tray = self.desktop.run([sys.executable, "-B", os.path.join(HERE, "status_notifier.py")],
                                     stdout=subprocess.PIPE, text=True)
        self.addCleanup(self.tray.stdout.close)
        self.assertEqual(self.tray.stdout.readline(), "ready\n")

    def is_shown(self, game):
        return bool(self.desktop.place_of_window(game.process.pid, WINDOW_SIZE))

    def end_tray(self):
        self.tray.kill()
        self.tray.wait()

    def hide(self, game):
        """Returns the icon."""
        before = self.desktop.place_of_window(game.process.pid, WINDOW_SIZE)
        game.click("Hide")
        icon = Icon(self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"],
                    self.tray.stdout.readline().strip())
        game.wait_for("the window to go", lambda: not self.is_shown(game))
        self.assertTrue(before)
        return icon

    def test_game_hides_in_a_tray_of_the_bus_and_one_click_brings_it_back(self):
        game = self.play()
        for _ in range(2):
            icon = self.hide(game)
            icon.click()
            game.wait_for("the window to come back", lambda: self.is_shown(game))
            game.wait_for("the icon to go", lambda: not icon.is_there())

    def test_icon_in_a_tray_of_the_bus_has_a_name_and_pictures(self):
        game = self.play()
        icon = self.hide(game)
        self.assertEqual(icon.get("Id"), "Quendrel")
        self.assertEqual(icon.get("Title"), "Quendrel")
        self.assertEqual(icon.get("ToolTip")[2], NAME)
        sizes = set()
        for width, height, pixels in icon.get("IconPixmap"):
            sizes.add((width, height))
            self.assertEqual(len(pixels), 4 * width * height)
            self.assertGreater(len(set(pixels)), 20)
        self.assertIn((22, 22), sizes)

    def test_game_comes_back_when_another_tray_is_left_which_lacks_its_icon(self):
        self.desktop.start_tray()
        game = self.play()
        self.hide(game)
        self.tray.kill()
        game.wait_for("the window to come back", lambda: self.is_shown(game), 5)

    def test_game_minimises_where_only_a_tray_is_left_that_it_has_no_icon_for(self):
        self.desktop.start_tray()
        game = self.play()
        self.hide(game).click()
        game.wait_for("the window to come back", lambda: self.is_shown(game))
        self.end_tray()
        game.click("Hide")
        game.wait_for("the window to go", lambda: not self.is_shown(game))
        self.assertFalse(self.desktop.tray_icon(game.process.pid))
        self.desktop.activate(game.process.pid)
        game.wait_for("the window to come back", lambda: self.is_shown(game), 5)

    def test_tray_is_the_one_that_is_there_when_the_game_is_first_hidden(self):
        self.desktop.start_tray()
        game = self.play()
        self.end_tray()
        game.click("Hide")
        game.wait_for("the icon", lambda: self.desktop.tray_icon(game.process.pid))
        self.assertFalse(self.is_shown(game))

    def test_game_comes_back_when_its_tray_of_the_bus_vanishes(self):
        game = self.play()
        self.hide(game)
        self.tray.kill()
        game.wait_for("the window to come back", lambda: self.is_shown(game))
