"""The folder of the player who does not ask for one: links to what is installed, and what is his."""

import os
import shutil

from game import EASY, FOLDER, PROGRAM, Game, GameTestCase, store_settings


class PlayersFolder(GameTestCase):
    def setUp(self):
        super().setUp()
        self.own = os.path.join(self.desktop.home, ".local", "share", "quendrel")
        self.system = os.path.join(self.desktop.home, "usr", "share", "quendrel")
        self.program = os.path.join(self.desktop.home, "usr", "bin", "quendrel")
        os.makedirs(os.path.dirname(self.program))
        shutil.copy(PROGRAM, self.program)
        self.install(("Skin", "Sound", "Music", "Rules"))
        self.desktop.environment.pop("XDG_DATA_HOME", None)
        store_settings(self.desktop, "[Game]\nGameMode=0\n")

    def install(self, parts):
        for part in parts:
            shutil.copytree(os.path.join(FOLDER, part), os.path.join(self.system, part),
                            copy_function=os.symlink)

    def start_installed(self):
        return Game(self.desktop, self.program, self.system, EASY, asks=False)

    def names(self, folder):
        return sorted(os.listdir(folder))

    def test_installed_game_is_played_in_the_folder_of_the_player(self):
        before = self.names(self.system)
        game = self.start_installed()
        game.wait_until_idle()
        self.assertEqual(game.leave(), 0)
        self.assertEqual(game.errors(), "")
        self.assertEqual(self.names(self.own),
                         [".system", "Music", "Playlist.dat", "Rules", "Skin", "Sound"])
        self.assertEqual(os.readlink(os.path.join(self.own, "Skin", "Carbon")),
                         "../.system/Skin/Carbon")
        self.assertEqual(self.names(self.system), before)

    def test_skin_of_the_player_stands_beside_the_games(self):
        shutil.copytree(os.path.join(self.system, "Skin", "Beacon"),
                        os.path.join(self.own, "Skin", "A mine"))
        game = self.start_installed()
        game.use_skin("Beacon", "Beacon")  # the first of the list, which the settings ask for
        game.wait_until_idle()

    def test_player_whose_folder_cannot_be_made_plays_all_the_same_and_hears_why(self):
        with open(os.path.join(self.desktop.home, ".local"), "w", encoding="utf-8"):
            pass
        game = self.start_installed()
        game.wait_until_idle()
        self.assertEqual(game.errors(), f"quendrel: {self.desktop.home}/.local/share: cannot be "
                                        "brought up to date: Not a directory\n")
