"""F1, and the page of the rules in the desktop's viewer."""

import os

from desktop import wait_for
from game import GameTestCase, install_viewer


class Rules(GameTestCase):
    def setUp(self):
        super().setUp()
        self.opened = os.path.join(self.desktop.home, "opened")
        install_viewer(self.desktop, f"echo \"$1\" >>'{self.opened}'")

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
