"""A game for which memory runs out, at its start or while it is played: what it says, what it keeps,
and that it goes on with what it has."""

import os
import re
import resource
import subprocess

from desktop import wait_for
from game import (EASY, KEPT_IN_A_GAME, PROGRAM, Game, settings_path, store_settings,
                  stored_settings)
from test_config import ConfigWindow
from test_surroundings import Surroundings

SETTINGS = "[Game]\nGameMode=0\n"
PLAYLIST = b"\x00\x00\x07\x00Air.mid"
SCORE = b"\x03\x00Ada\x01\x00\x09\x00"
LADDER = (64, 90, 120, 150, 180, 210, 280, 500)
"""Megabytes."""
REFUSED_BY_SYSTEM, REFUSED, PLAYED = range(3)
LITTLE = "There is not enough memory left."
NO_WINDOW = f"This window cannot be opened: {LITTLE}"
UNSHARED = r"qt\.qpa\.xcb: failed to mmap segment from X server .*"
"""Said by the toolkit where it paints on memory that it does not share with the screen."""


def addresses(pid):
    """Bytes of memory that the process has, used or not."""
    with open(f"/proc/{pid}/statm", encoding="utf-8") as sizes:
        return int(sizes.read().split()[0]) * resource.getpagesize()


def threads(pid):
    """Their names."""
    names = []
    for task in os.listdir(f"/proc/{pid}/task"):
        with open(f"/proc/{pid}/task/{task}/comm", encoding="utf-8") as name:
            names.append(name.read().strip())
    return names


class LittleMemory(Surroundings):
    def check_row(self, game, row):
        game.fill(row, (1, 2, 3, 4))
        game.check(row)


class RunningGame(Game):
    def __init__(self, desktop, process, log, folder):
        self._meet(desktop, process, log, folder, EASY, scale=1)


class Start(LittleMemory):
    def start_with(self, megabytes):
        """Returns what came of it."""
        limited = self.program(f'ulimit -v {megabytes * 1024}; exec "{PROGRAM}" "$@"')
        log = os.path.join(self.desktop.home, "stderr")
        with open(log, "w+", encoding="utf-8") as said:
            process = self.desktop.run([limited, "--folder", self.folder], stderr=said)
            wait_for("a window, or the end", lambda: (
                process.poll() is not None or self.desktop.windows(process.pid)))
            said.seek(0)
            ended = (process.poll(), said.read())
        if ended[0] is None:
            self.play_and_leave(RunningGame(self.desktop, process, log, self.folder))
            return PLAYED
        if ended[0] == 127:
            self.assertIn("error while loading shared libraries", ended[1])
            return REFUSED_BY_SYSTEM
        self.assertEqual(ended, (1, "quendrel: less than 128 megabytes of memory are left, which are "
                             "too few to play with.\n"))
        return REFUSED

    def play_and_leave(self, game):
        game.start()
        self.check_row(game, 1)
        self.assertEqual((game.leave(), game.errors()), (0, ""))

    def stored(self):
        """The files that a game leaves behind."""
        contents = []
        for path in (settings_path(self.desktop), self.file("Playlist.dat"),
                     self.file("High", "Easy.hsc")):
            with open(path, "rb") as file:
                contents.append(file.read())
        return contents

    def test_start_with_little_memory_is_refused_in_words_or_played(self):
        store_settings(self.desktop, SETTINGS)
        os.mkdir(self.file("High"))
        for name, content in (("Playlist.dat", PLAYLIST), (os.path.join("High", "Easy.hsc"), SCORE)):
            with open(self.file(name), "wb") as file:
                file.write(content)
        outcomes = []
        for megabytes in LADDER:
            outcomes.append(self.start_with(megabytes))
            settings, *others = self.stored()
            self.assertEqual(others, [PLAYLIST, SCORE], megabytes)
            if outcomes[-1] == PLAYED:
                self.assertEqual(settings.count(b"="), KEPT_IN_A_GAME, megabytes)
            else:
                self.assertEqual(settings, SETTINGS.encode(), megabytes)
        self.assertEqual(outcomes, sorted(outcomes))
        self.assertEqual(set(outcomes), {REFUSED_BY_SYSTEM, REFUSED, PLAYED})


class CheckOfASkin(LittleMemory):
    def check_with(self, megabytes):
        """Returns what came of it."""
        limited = self.program(f'ulimit -v {megabytes * 1024}; exec "{PROGRAM}" "$@"')
        skin = self.file("Skin", "Atelier")
        result = subprocess.run([limited, "--check-skin", skin], env=self.desktop.environment,
                                timeout=60, capture_output=True, text=True, check=False)
        if result.returncode == 0:
            self.assertEqual((result.stdout, result.stderr), (f"{skin}: complete\n", ""))
            return PLAYED
        if result.returncode == 127:
            self.assertIn("error while loading shared libraries", result.stderr)
            return REFUSED_BY_SYSTEM
        self.assertEqual((result.returncode, result.stdout, result.stderr),
                         (1, "", f"quendrel: {LITTLE}\n"))
        return REFUSED

    def test_check_of_a_skin_with_little_memory_ends_in_words_or_is_made(self):
        outcomes = [self.check_with(megabytes) for megabytes in (64, 125, 135, 145, 280)]
        self.assertEqual(outcomes, sorted(outcomes))
        self.assertEqual(set(outcomes), {REFUSED_BY_SYSTEM, REFUSED, PLAYED})


class Play(LittleMemory):
    SCREEN = "1600x1300x24"

    def leave_nothing(self, game):
        """The game has what it has, and gets no more."""
        size = addresses(game.process.pid)
        resource.prlimit(game.process.pid, resource.RLIMIT_AS, (size, size))

    def close_box(self, game, said):
        button = game.wait_for("the box", game.box_button)
        self.assertIsNotNone(game.box_text(said))
        self.desktop.click_middle(button.place)

    def assert_said(self, game, said):
        """By the game; the toolkit says what it makes do with."""
        lines = [line for line in game.errors().splitlines() if not re.fullmatch(UNSHARED, line)]
        self.assertEqual("\n".join(lines), f"quendrel: {said}")

    def assert_ends_in_words(self, game):
        self.close_box(game, LITTLE)
        self.assertEqual(game.wait_for_exit(), 1)
        self.assert_said(game, LITTLE)
        self.assertTrue(os.path.exists(self.file("Playlist.dat")))

    def test_game_goes_on_with_the_memory_that_it_has_and_refuses_a_window(self):
        game = self.play(SETTINGS)
        self.assertEqual(threads(game.process.pid).count("Thread (pooled)"), 1)
        game.start()
        self.leave_nothing(game)
        self.check_row(game, 1)
        game.click("Config")
        self.close_box(game, NO_WINDOW)
        game.wait_for("the box to go", lambda: not game.box_button())
        self.check_row(game, 2)
        self.assertEqual(game.leave(), 0)
        self.assert_said(game, NO_WINDOW)
        self.assertEqual(stored_settings(self.desktop).count(b"="), KEPT_IN_A_GAME)

    def test_time_that_cannot_be_kept_for_want_of_memory_is_said_to_be_lost(self):
        game = self.play(SETTINGS + "[Misc]\nGTimer=True\nSetColor=True\n")
        game.call_for_code()
        self.leave_nothing(game)
        game.give_code((1, 2, 3, 4))
        game.solve(1, (1, 2, 3, 4))
        said = f"{NO_WINDOW}\nYour time is lost."
        self.close_box(game, said)
        game.wait_until_idle()
        self.assertEqual(game.leave(), 0)
        self.assert_said(game, said)
        self.assertFalse(os.path.exists(self.file("High")))

    def test_skin_for_which_memory_does_not_suffice_ends_the_game_and_all_is_saved(self):
        game = self.play(SETTINGS)
        window = ConfigWindow(game)
        window.click("Next skin")
        self.leave_nothing(game)
        window.click("Ok")
        self.assert_ends_in_words(game)
        self.assertIn(b"SkinPtr=2", stored_settings(self.desktop))

    def test_size_for_which_memory_does_not_suffice_ends_the_game_and_all_is_saved(self):
        game = self.play(SETTINGS, scale=1.75, options=("--scale", "1.75"))
        game.wait_for("the idle animation", game.is_idle)
        self.leave_nothing(game)
        self.desktop.wait_for_focus(game.process.pid)
        self.desktop.strike("Control_L", "plus")
        self.assert_ends_in_words(game)
        self.assertIn(b"Scale=2", stored_settings(self.desktop))
