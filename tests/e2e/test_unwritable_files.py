"""Files that cannot be written: what is said about them, and that the rest is saved."""

import os
import signal
import time

from game import GameTestCase, settings_path, stored_settings

SETTINGS = "[Game]\nGameMode=0\n"


class UnwritableSettings(GameTestCase):
    def setUp(self):
        super().setUp()
        self.game = self.play(SETTINGS)
        self.playlist = os.path.join(self.folder, "Playlist.dat")
        os.chmod(settings_path(self.desktop), 0o444)

    def assert_ends_saying_what_was_not_saved(self):
        self.assertEqual(self.game.wait_for_exit(), 1)
        self.assertEqual(self.game.errors(), f"quendrel: {settings_path(self.desktop)}: cannot be "
                                             "written: it is read-only\n")
        self.assertEqual(stored_settings(self.desktop), SETTINGS.encode())
        self.assertTrue(os.path.exists(self.playlist))

    def test_leaving_saves_the_rest_and_says_in_a_box_what_could_not_be_saved(self):
        self.game.click("Exit")
        self.game.wait_for_messages("- Exit -", "Are you sure ?")
        self.game.answer("Yes")
        button = self.game.wait_for("the box", self.game.box_button)
        self.assertTrue(os.path.exists(self.playlist))
        self.desktop.click_middle(button.place)
        self.assert_ends_saying_what_was_not_saved()

    def test_sigterm_saves_the_rest_and_opens_no_box(self):
        asked = time.monotonic()
        self.game.process.send_signal(signal.SIGTERM)
        self.assert_ends_saying_what_was_not_saved()
        self.assertLess(time.monotonic() - asked, 1)
