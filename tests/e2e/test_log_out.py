"""The player logs out of the desktop while the game runs."""

import os
import subprocess
import sys
import time

from game import KEPT, KEPT_IN_A_GAME, GameTestCase, settings_path, stored_settings


class LogOut(GameTestCase):
    def setUp(self):
        super().setUp()
        self.session = self.desktop.run([sys.executable, "-B", "session_manager.py"],
                                        stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.addCleanup(self.session.stdout.close)
        self.addCleanup(self.session.stdin.close)
        self.desktop.environment["SESSION_MANAGER"] = self.hear()

    def hear(self):
        return self.session.stdout.readline().strip()

    def play(self, settings="[Game]\nGameMode=0\n"):
        game = super().play(settings)
        self.assertEqual(self.hear(), "has saved")  # as it registers
        return game

    def order(self, what):
        self.session.stdin.write(what + "\n")
        self.session.stdin.flush()

    def assert_ends_unasked(self, game, code):
        asked = time.monotonic()
        self.order("log out")
        self.assertEqual(self.hear(), "has saved")
        self.assertEqual(self.hear(), "is gone")
        self.assertEqual(game.wait_for_exit(), code)
        self.assertLess(time.monotonic() - asked, 1)

    def test_log_out_at_a_question_saves_and_ends(self):
        game = self.play()
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?")
        self.assert_ends_unasked(game, 0)
        self.assertEqual(stored_settings(self.desktop).count(b"="), KEPT)

    def test_log_out_in_a_modal_window_saves_and_ends(self):
        game = self.play()
        game.click("Config")
        game.wait_for("the window",
                      lambda: self.desktop.place_of_window(game.process.pid, (640, 490)))
        self.assert_ends_unasked(game, 0)
        self.assertEqual(stored_settings(self.desktop).count(b"="), KEPT)

    def test_log_out_opens_no_box_where_the_settings_cannot_be_written(self):
        game = self.play()
        os.chmod(settings_path(self.desktop), 0o444)
        self.assert_ends_unasked(game, 1)
        self.assertEqual(game.errors(), f"quendrel: {settings_path(self.desktop)}: cannot be "
                                        "written: it is read-only\n")
        self.assertTrue(os.path.exists(os.path.join(self.folder, "Playlist.dat")))

    def test_end_of_the_session_that_nobody_was_told_of_saves_and_ends(self):
        game = self.play()
        game.start()
        self.order("end")
        self.assertEqual(self.hear(), "is gone")
        self.assertEqual(game.wait_for_exit(), 0)
        self.assertEqual(stored_settings(self.desktop).count(b"="), KEPT_IN_A_GAME)

    def test_end_of_the_session_manager_itself_saves_and_ends(self):
        game = self.play()
        self.session.kill()
        self.assertEqual(game.wait_for_exit(), 1)
        self.assertEqual(stored_settings(self.desktop).count(b"="), KEPT)
