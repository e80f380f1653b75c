"""A second start on the same folder and settings calls the running game and ends, or waits for one
that is just leaving."""

import os
import shutil
import signal
import subprocess
import time

from desktop import wait_for
from game import PLAYERS_PROGRAM, GameTestCase
from picture import Picture

SPLASH_SIZE = (460, 300)
HIGH_SIZE = (460, 448)
BARE_HIGH = (200, 398, 60, 36)
"""A part of it without text and buttons."""
CLOCK_ON = "[Game]\nGameMode=0\n[Misc]\nGTimer=True\nSetColor=True\n"


class SecondStart(GameTestCase):
    def start(self, folder=None, **environment):
        """The program once more; only its process is looked at."""
        process = self.desktop.run([PLAYERS_PROGRAM, "--folder", folder or self.folder],
                                   env=self.desktop.environment | environment,
                                   stderr=subprocess.PIPE, text=True)
        self.addCleanup(process.stderr.close)
        return process

    def assert_gives_way(self, process):
        """Ends with 0 before it has shown anything."""
        began = time.monotonic()
        _, said = process.communicate(timeout=10)
        self.assertEqual((process.returncode, said), (0, ""))
        self.assertLess(time.monotonic() - began, 3.5)

    def assert_plays(self, process):
        wait_for("the splash of another game",
                 lambda: self.desktop.place_of_window(process.pid, SPLASH_SIZE))

    def is_in_front(self, game):
        self.desktop.wait_for_focus(game.process.pid)
        return self.desktop.place_of_window(game.process.pid, (655, 605)) is not None

    def test_running_game_comes_in_front_of_another_window(self):
        game = self.play()
        self.desktop.cover_screen()
        game.wait_for("the other window", lambda: not game.shows_button("Start", "Up"))
        self.assert_gives_way(self.start())
        game.wait_for("the game in front", lambda: game.shows_button("Start", "Up"))
        game.start()

    def test_running_game_comes_out_of_the_tray_with_its_clock(self):
        self.desktop.start_tray()
        game = self.play("[Game]\nGameMode=0\n[Misc]\nGTimer=True\n")
        game.start()
        game.wait_for("the clock", lambda: game.time() == "00:01")
        game.click("Hide")
        game.wait_for("the icon", lambda: self.desktop.tray_icon(game.process.pid))
        self.assertFalse(self.desktop.place_of_window(game.process.pid, (655, 605)))
        self.assert_gives_way(self.start())
        game.wait_for("the game", lambda: self.is_in_front(game))
        game.wait_for("the icon to go", lambda: not self.desktop.tray_icon(game.process.pid))
        game.wait_for("the clock to go on", lambda: game.time() == "00:03")

    def test_game_in_a_modal_window_comes_in_front_with_that_window_on_top(self):
        game = self.play(CLOCK_ON)
        game.click("High")
        high = lambda: self.desktop.place_of_window(game.process.pid, HIGH_SIZE)
        x, y = game.wait_for("the highscores", high)
        high_picture = Picture.from_bmp(os.path.join(self.folder, "Skin", "Atelier", "High",
                                                     "High.bmp")).crop(*BARE_HIGH)
        left, top, width, height = BARE_HIGH
        shown = lambda: self.desktop.grab(x + left, y + top, width, height) == high_picture
        game.wait_for("the highscores to be drawn", shown)
        self.desktop.cover_screen()
        game.wait_for("the other window", lambda: not shown())
        self.assert_gives_way(self.start())
        game.wait_for("the highscores in front", shown)

    def test_start_during_the_splash_of_the_first_gives_way(self):
        first = self.start()
        self.assert_plays(first)
        self.assert_gives_way(self.start())
        self.assertIsNone(first.poll())

    def test_start_during_the_farewell_of_the_first_plays_once_that_has_ended(self):
        game = self.play()
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?")
        game.answer("Yes")
        game.wait_for_messages("", "Ok, see you later...")
        second = self.start()
        self.assert_plays(second)
        self.assertEqual(game.process.poll(), 0)

    def test_same_folder_in_other_words_is_the_same_game(self):
        link = os.path.join(self.desktop.home, "link")
        os.symlink(self.folder, link)
        config = os.path.join(self.desktop.home, "config link")
        os.symlink(self.desktop.environment["XDG_CONFIG_HOME"], config)
        os.makedirs(self.desktop.environment["XDG_CONFIG_HOME"])
        first = self.start()
        self.assert_plays(first)
        self.assert_gives_way(self.start(link))
        self.assert_gives_way(self.start(os.path.relpath(self.folder)))
        self.assert_gives_way(self.start(link + "/../link/./Skin/..", XDG_CONFIG_HOME=config))

    def test_other_folder_and_other_settings_are_games_of_their_own(self):
        first = self.start()
        self.assert_plays(first)
        other = os.path.join(self.desktop.home, "Other")
        shutil.copytree(self.folder, other, symlinks=True)
        self.assert_plays(self.start(other))
        self.assert_plays(self.start(XDG_CONFIG_HOME=os.path.join(self.desktop.home, "else")))

    def test_of_many_starts_at_the_same_moment_one_plays(self):
        starts = [self.start() for _ in range(6)]
        wait_for("all but one to end",
                 lambda: sum(process.poll() is None for process in starts) == 1, 20)
        ended = [process for process in starts if process.poll() is not None]
        self.assertEqual([process.returncode for process in ended], [0] * 5)
        player, = (process for process in starts if process.poll() is None)
        self.assert_plays(player)

    def test_killed_game_leaves_nothing_in_the_way(self):
        first = self.start()
        self.assert_plays(first)
        first.kill()
        first.wait()
        self.assert_plays(self.start())

    def test_start_while_the_running_game_hangs_says_so_and_touches_nothing(self):
        first = self.start()
        self.assert_plays(first)
        first.send_signal(signal.SIGSTOP)
        second = self.start()
        button = wait_for("the box",
                          lambda: self.desktop.accessibility.box_button(second.pid), 15)
        self.desktop.click_middle(button.place)
        _, said = second.communicate(timeout=10)
        self.assertEqual((second.returncode, said),
                         (1, "quendrel: The game is already running, but it does not answer.\n"))
