"""A game whose surroundings fail it: what it says, or that it plays on in silence."""

import os
import resource
import shutil
import struct
import subprocess

from game import (EASY, KEPT, KEPT_IN_A_GAME, MEDIUM, PROGRAM, SKINS, Game, GameTestCase,
                  settings_path, store_settings, stored_settings)

SETTINGS = "[Game]\nGameMode=0\n"
ANY_BYTES = os.fsdecode(b"caf\xe9 \\ half")
"""Letters of no UTF-8, and a backslash."""


class Surroundings(GameTestCase):
    def file(self, *names):
        return os.path.join(self.folder, *names)

    def put_pipe(self, *names):
        """In the place of a file."""
        path = self.file(*names)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        if os.path.exists(path):
            os.remove(path)
        os.mkfifo(path)
        return path

    def program(self, command):
        """A script that is started in the place of the game."""
        path = os.path.join(self.desktop.home, "script")
        with open(path, "w", encoding="utf-8") as file:
            file.write(f"#!/bin/bash\n{command}\n")
        os.chmod(path, 0o755)
        return path

    def leave_saying(self, game, *troubles):
        """By "Exit", which says in a box what could not be saved."""
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?")
        game.answer("Yes")
        said = "\n".join(troubles)
        button = game.wait_for("the box", game.box_button)
        self.assertIsNotNone(game.box_text(said))
        self.desktop.click_middle(button.place)
        self.assertEqual(game.wait_for_exit(), 1)
        return f"quendrel: {said}\n"


class Display(Surroundings):
    def test_end_of_the_display_saves_what_leaving_saves(self):
        game = self.play(SETTINGS)
        self.desktop.end_x_server()
        self.assertEqual(game.wait_for_exit(), 1)
        self.assertEqual(stored_settings(self.desktop).count(b"="), KEPT)
        self.assertTrue(os.path.exists(self.file("Playlist.dat")))

    def test_way_to_show_windows_that_does_not_exist_is_named(self):
        for platform in ("nonsense", "wayland-nonsense"):
            environment = self.desktop.environment | {"QT_QPA_PLATFORM": platform}
            result = subprocess.run([PROGRAM, "--folder", self.folder], env=environment, timeout=10,
                                    capture_output=True, text=True, check=False)
            self.assertEqual((result.returncode, result.stderr),
                             (1, f'quendrel: no display can be reached by "{platform}", which '
                                 "QT_QPA_PLATFORM asks for.\n"))


    def without_display(self, platforms):
        environment = self.desktop.environment | {"QT_QPA_PLATFORM": platforms}
        del environment["DISPLAY"]
        return {"args": [PROGRAM, "--folder", self.folder], "env": environment, "text": True,
                "stderr": subprocess.PIPE}

    def test_where_one_way_to_show_windows_fails_the_next_that_is_asked_for_is_taken(self):
        self.put_pipe("Skin", "Atelier", "Game", "Board.bmp")
        store_settings(self.desktop, SETTINGS)
        game = subprocess.Popen(**self.without_display("xcb;offscreen"))
        self.addCleanup(game.communicate)
        self.addCleanup(game.kill)
        self.assertTrue(any('The skin "Atelier" is damaged' in line for line in game.stderr))
        game.terminate()
        self.assertEqual(game.wait(timeout=10), 0)

    def test_where_only_x_is_asked_for_and_there_is_none_that_is_said(self):
        for platforms in ("xcb", "xcb:any=1", "xcb;;xcb:"):
            result = subprocess.run(**self.without_display(platforms), timeout=10, check=False)
            self.assertEqual((result.returncode, result.stderr),
                             (1, "quendrel: no display can be reached. Start the game from a "
                                 "desktop session, or set DISPLAY to one.\n"), platforms)


class Folders(Surroundings):
    def assert_plays_in(self, folder, settings=SETTINGS, skin=SKINS[0], **start):
        store_settings(self.desktop, settings)
        game = Game(self.desktop, folder=folder, mode=EASY, **start)
        game.use_skin(skin, skin)
        game.start()
        game.fill(1, (1, 2, 3, 4))
        self.assertEqual(game.leave(), 0)
        self.assertEqual(game.errors(), "")

    def test_any_bytes_can_be_the_name_of_the_folder_and_of_a_skin(self):
        folder = os.path.join(self.desktop.home, ANY_BYTES)
        os.rename(self.folder, folder)
        os.rename(os.path.join(folder, "Skin", "Carbon"), os.path.join(folder, "Skin", ANY_BYTES))
        self.assert_plays_in(folder, SETTINGS + "[Skin]\nSkinPtr=3\n", ANY_BYTES)
        self.assertEqual(sorted(os.listdir(folder)),
                         ["Music", "Playlist.dat", "Rules", "Skin", "Sound"])

    def test_any_bytes_can_be_the_name_of_the_programs_folder(self):
        program = os.path.join(self.desktop.home, ANY_BYTES, "quendrel")
        os.rename(self.folder, os.path.dirname(program))
        shutil.copy(PROGRAM, program)
        self.desktop.environment["XDG_DATA_HOME"] = os.path.join(self.desktop.home, "data")
        self.assert_plays_in(os.path.dirname(program), program=program, asks=False)
        self.assertTrue(os.path.exists(
            os.path.join(self.desktop.home, "data", "quendrel", "Playlist.dat")))

    def test_folder_without_a_name_is_refused(self):
        for option in ("--folder", "--check-skin"):
            result = subprocess.run([PROGRAM, option, ""], env=self.desktop.environment, timeout=10,
                                    capture_output=True, text=True, check=False)
            self.assertEqual((result.returncode, result.stderr),
                             (2, f"quendrel: {option} names no folder. Try --help.\n"))

    def test_folders_that_vanish_while_the_game_is_played_are_named_or_made_again(self):
        game = self.play(SETTINGS)
        shutil.rmtree(os.path.dirname(os.path.dirname(settings_path(self.desktop))))
        shutil.rmtree(self.folder)
        game.start()
        game.fill(1, (1, 2, 3, 4))
        errors = self.leave_saying(game, self.file("Playlist.dat")
                                   + ": cannot be written: No such file or directory")
        self.assertEqual(game.errors(), errors)
        self.assertEqual(stored_settings(self.desktop).count(b"="), KEPT_IN_A_GAME)


class FileThatFails(Surroundings):
    def test_list_that_cannot_be_read_ends_the_game_in_words_and_touches_nothing(self):
        game = self.play(SETTINGS)
        os.makedirs(self.file("High"))
        medium = self.file("High", "Medium.hsc")
        os.symlink("/proc/self/mem", medium)  # a plain file whose first byte is no memory
        game.choose_mode(MEDIUM)
        button = game.wait_for("the box", game.box_button)
        self.desktop.click_middle(button.place)
        self.assertEqual(game.wait_for_exit(), 1)
        self.assertEqual(game.errors(),
                         f"quendrel: {medium}: cannot be read: Input/output error\n")
        self.assertEqual(stored_settings(self.desktop), SETTINGS.encode())
        self.assertFalse(os.path.exists(self.file("Playlist.dat")))


class Pipes(Surroundings):
    """In the place of a file, where nobody ever writes into them."""

    def test_pipe_in_the_place_of_a_picture_has_another_skin_stand_in(self):
        path = self.put_pipe("Skin", "Atelier", "Game", "Board.bmp")
        store_settings(self.desktop, SETTINGS)
        process = self.desktop.run([PROGRAM, "--folder", self.folder], stderr=subprocess.PIPE,
                                   text=True)
        self.addCleanup(process.stderr.close)
        self.assertEqual(process.stderr.readline(),
                         f'quendrel: The skin "Atelier" is damaged: {path}: cannot be read: it is '
                         'no plain file; "Beacon" is used instead\n')

    def test_pipe_in_the_place_of_a_tune_is_passed_over(self):
        self.put_pipe("Music", "Pipe.mid")
        with open(self.file("Playlist.dat"), "wb") as file:
            file.write(struct.pack("<hh", 0, 4) + b"Pipe")
        game = self.play(SETTINGS + "[Sound]\nMusic=True\n")
        game.wait_until_idle()
        self.assertEqual(game.leave(), 0)
        self.assertEqual(game.errors(), "")

    def test_pipes_in_the_place_of_what_is_saved_are_named_and_left(self):
        playlist = self.put_pipe("Playlist.dat")
        self.put_pipe("High", "Easy.hsc")
        game = self.play(SETTINGS)
        errors = self.leave_saying(game, playlist + ": cannot be written: it is no plain file")
        self.assertEqual(game.errors(), errors)


class Limits(Surroundings):
    def test_limit_on_the_size_of_files_is_said_and_leaves_nothing_half_written(self):
        game = self.play(SETTINGS)
        resource.prlimit(game.process.pid, resource.RLIMIT_FSIZE, (0, 0))
        self.leave_saying(game, *(f"{path}: cannot be written: File too large" for path in
                                  (settings_path(self.desktop), self.file("Playlist.dat"))))
        self.assertEqual(stored_settings(self.desktop), SETTINGS.encode())
        self.assertEqual(os.listdir(os.path.dirname(settings_path(self.desktop))),
                         [os.path.basename(settings_path(self.desktop))])
        self.assertEqual(sorted(os.listdir(self.folder)), ["Music", "Rules", "Skin", "Sound"])


    def test_few_open_files_are_made_enough_or_said_to_be_too_few(self):
        store_settings(self.desktop, SETTINGS)
        few = self.program(f'ulimit -Sn 14; exec "{PROGRAM}" "$@"')
        game = Game(self.desktop, few, self.folder, EASY)
        self.assertEqual(game.leave(), 0)
        result = subprocess.run([self.program(f'ulimit -n 14; exec "{PROGRAM}"')], timeout=10,
                                env=self.desktop.environment, stderr=subprocess.PIPE, text=True,
                                check=False)
        self.assertEqual((result.returncode, result.stderr),
                         (1, "quendrel: only 14 files may be open at once, which are too few to "
                             "play with.\n"))


class Desktops(Surroundings):
    def assert_is_played(self):
        game = self.play(SETTINGS)
        game.start()
        game.fill(1, (1, 2, 3, 4))
        game.check(1)
        self.assertEqual(game.leave(), 0)
        return game.errors()

    def test_game_is_played_where_there_are_no_fonts(self):
        fonts = os.path.join(self.desktop.home, "fonts.conf")
        with open(fonts, "w", encoding="utf-8") as file:
            file.write("<fontconfig></fontconfig>\n")
        self.desktop.environment["FONTCONFIG_FILE"] = fonts
        self.assert_is_played()

    def test_game_is_played_in_any_locale_and_says_nothing_of_it(self):
        for locale in ("C", "POSIX", "tr_TR.ISO-8859-9"):
            with self.subTest(locale):
                self.desktop.environment["LC_ALL"] = locale
                shutil.rmtree(os.path.dirname(settings_path(self.desktop)), ignore_errors=True)
                self.assertEqual(self.assert_is_played(), "")


class Streams(Surroundings):
    """The game says at its start what is wrong with the letters of the skin."""

    def setUp(self):
        super().setUp()
        fonts = self.file("Skin", "Atelier", "Fonts.ini")
        os.remove(fonts)  # a link to the real one
        with open(fonts, "w", encoding="utf-8") as file:
            file.write("[Nonsense]\n")

    def play_with_streams(self, streams):
        store_settings(self.desktop, SETTINGS)
        return Game(self.desktop, self.program(f'exec "{PROGRAM}" "$@" {streams}'), self.folder,
                    EASY)

    def assert_is_played(self, game):
        game.start()
        game.fill(1, (1, 2, 3, 4))
        self.assertEqual(game.leave(), 0)

    def test_what_is_said_goes_nowhere_else_where_the_streams_are_closed(self):
        game = self.play_with_streams("<&- >&- 2>&-")
        for stream in range(3):
            self.assertEqual(os.readlink(f"/proc/{game.process.pid}/fd/{stream}"), "/dev/null")
        self.assert_is_played(game)

    def test_what_is_said_to_a_reader_who_has_gone_does_not_end_the_game(self):
        game = self.play_with_streams("2> >(exec true)")
        self.assert_is_played(game)
