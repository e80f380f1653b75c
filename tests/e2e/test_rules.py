"""F1, and the page of the rules in the desktop's viewer."""

import os

from desktop import wait_for
from game import GameTestCase, install_viewer


class Rules(GameTestCase):
    def setUp(self):
        super().setUp()
        self.opened = os.path.join(self.desktop.home, "opened")
        self.told = os.path.join(self.desktop.home, "told")
        install_viewer(self.desktop, f"env >'{self.told}'; echo \"$1\" >>'{self.opened}'")

    def opened_pages(self):
        if not os.path.exists(self.opened):
            return []
        with open(self.opened, encoding="utf-8") as file:
            return file.read().split()

    def test_f1_opens_the_page_of_the_rules_and_the_game_goes_on(self):
        game = self.play()
        game.start()
        self.desktop.strike("F1")
        page = "file://" + os.path.join(self.folder, "Rules", "Rules.html")
        wait_for("the page", lambda: self.opened_pages() == [page])
        self.assertTrue(os.path.isfile(page.removeprefix("file://")))
        game.put(1, 1, 1)
        self.assertEqual(game.errors(), "")

    def platforms_the_viewer_is_told(self):
        game = self.play()
        self.desktop.strike("F1")
        wait_for("the page", self.opened_pages)
        self.assertEqual(game.errors(), "")
        with open(self.told, encoding="utf-8") as file:
            return [line.strip() for line in file if line.startswith("QT_QPA_PLATFORM=")]

    def test_viewer_is_not_told_by_what_the_game_shows_its_windows(self):
        self.assertEqual(self.platforms_the_viewer_is_told(), [])

    def test_viewer_is_told_what_the_player_has_set(self):
        self.desktop.environment["QT_QPA_PLATFORM"] = "xcb"
        self.assertEqual(self.platforms_the_viewer_is_told(), ["QT_QPA_PLATFORM=xcb"])
