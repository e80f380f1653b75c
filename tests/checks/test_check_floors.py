"""What check_floors finds in a copy of the sources into which includes are planted."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]


class CheckFloors(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.sources = pathlib.Path(holder.name) / "src"
        shutil.copytree(ROOT / "src", self.sources)

    def check(self):
        return subprocess.run([sys.executable, ROOT / "checks/check_floors", self.sources],
                              capture_output=True, text=True)

    def complaints(self):
        result = self.check()
        lines = result.stdout.splitlines()
        self.assertEqual((result.returncode, result.stderr), (1 if lines else 0, ""))
        return lines

    def plant(self, name, line):
        """Puts a line before all others of a file, which is made where there is none."""
        path = self.sources / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(f"{line}\n{path.read_text() if path.exists() else ''}")

    def assert_do_not_stand_below(self, ways):
        for name, included in ways:
            self.plant(name, f'#include "{included}"')
        found = [line for line in self.complaints() if line.endswith("does not stand below it")]
        self.assertCountEqual(
            found, [f"{name} includes {included}, which does not stand below it"
                    for name, included in ways])

    def assert_may_not_know(self, strangers):
        for name, header, _ in strangers:
            self.plant(name, f"#include <{header}>")
        found = [line for line in self.complaints() if " through " not in line]
        self.assertCountEqual(found, [f"{name} includes <{header}>, but may not know {who}"
                                      for name, header, who in strangers])

    def test_the_house_as_it_is_passes(self):
        self.assertEqual(self.complaints(), [])

    def test_a_way_up_is_found_on_every_floor(self):
        self.assert_do_not_stand_below([
            ("OneBased.h", "Global.h"), ("OneBased.h", "platform/Clock.h"),
            ("Global.h", "audio/Pause.h"), ("Global.h", "ui/main/Board.h"),
            ("platform/Clock.h", "audio/Pause.h"), ("platform/Clock.h", "frmMain.h"),
            ("audio/Pause.h", "ui/main/Board.h"), ("ui/layout/Control.h", "ui/picture/Picture.h"),
            ("ui/picture/Picture.h", "ui/skin/MainSkin.h"),
            ("ui/skin/MainSkin.h", "ui/controls/MouseButton.h"),
            ("ui/controls/MouseButton.h", "ui/main/Board.h"),
            ("ui/main/Board.h", "scores/HighscoreStore.h"),
            ("scores/HighscoreStore.h", "settings/SettingsStore.h"), ("duel/Duel.h", "game/Game.h"),
            ("settings/SettingsStore.h", "StartUp.h"), ("game/Scoring.cpp", "frmMain.h"),
            ("StartUp.h", "frmMain.h")])

    def test_a_way_across_is_found_on_every_floor(self):
        self.assert_do_not_stand_below([
            ("Global.h", "platform/Clock.h"), ("platform/Clock.h", "Global.h"),
            ("duel/Duel.h", "scores/HighscoreStore.h"), ("scores/HighscoreStore.h", "duel/Duel.h"),
            ("ui/main/Host.h", "ui/windows/frmAbout.h"), ("ui/windows/frmAbout.h", "ui/main/Host.h"),
            ("settings/SettingsStore.h", "game/Game.h"), ("game/Game.h", "settings/SettingsStore.h"),
            ("StartUp.h", "platform/desktop/QtClock.h")])

    def test_only_the_main_window_and_main_may_include_the_desktop(self):
        self.plant("frmMain.cpp", '#include "platform/desktop/QtClock.h"')
        self.plant("main.cpp", '#include "platform/desktop/QtClock.h"')
        self.assert_do_not_stand_below([
            (name, "platform/desktop/QtClock.h")
            for name in ["platform/Files.h", "audio/Music.cpp", "ui/main/Board.cpp",
                         "game/Table.cpp"]])

    def test_the_desktop_knows_no_game(self):
        names = ["Global.h", "audio/Pause.h", "game/Scoring.h"]
        for name in names:
            self.plant("platform/desktop/Display.cpp", f'#include "{name}"')
        self.assertCountEqual(
            self.complaints(),
            [f"platform/desktop/Display.cpp includes {name}, but the desktop knows no game"
             for name in names])

    def test_a_toolkit_is_found_where_it_may_not_be_known(self):
        self.assert_may_not_know([
            (name, header, who)
            for header, who in [("QString", "Qt"), ("QtCore/qstring.h", "Qt"), ("SDL.h", "SDL"),
                                ("SDL2/SDL_mixer.h", "SDL"), ("X11/Xlib.h", "X11"),
                                ("xcb/xcb.h", "X11"), ("zip.h", "libzip")]
            for name in ["game/Scoring.cpp", "Global.h", "OneBased.h", "platform/Clock.h"]])

    def test_the_system_is_found_where_it_may_not_be_known(self):
        self.assert_may_not_know([
            (name, header, "the system")
            for header in ["unistd.h", "sys/stat.h", "fcntl.h", "signal.h", "csignal", "dlfcn.h"]
            for name in ["platform/Records.cpp", "settings/SettingsStore.cpp",
                         "ui/controls/BoxLines.cpp"]])

    def test_who_knows_one_stranger_may_not_know_another(self):
        self.assert_may_not_know([
            ("platform/desktop/SdlSoundPlayer.cpp", "QTimer", "Qt"),
            ("platform/desktop/Display.cpp", "SDL.h", "SDL"),
            ("ui/picture/PictureFile.cpp", "X11/Xlib.h", "X11"),
            ("platform/desktop/QtTray.cpp", "unistd.h", "the system")])

    def test_a_name_that_only_begins_like_a_known_one_may_know_nothing(self):
        self.assert_may_not_know([("ui/controls/NameBoxes.cpp", "QWidget", "Qt")])

    def test_a_toolkit_is_found_behind_a_header_of_ours(self):
        (self.sources / "ui/controls/NameBox.h").write_text("#include <QLineEdit>\n")
        self.plant("duel/Duel.cpp", '#include "ui/controls/NameBox.h"')
        self.assertEqual(self.complaints(),
                         ["duel/Duel.cpp includes <QLineEdit> through ui/controls/NameBox.h, but may not "
                          "know Qt"])

    def test_an_include_is_found_however_it_is_written(self):
        self.plant("game/Scoring.cpp", "#include<unistd.h>")
        self.plant("game/Table.cpp", "  #  include <fcntl.h>")
        self.plant("game/Hiding.cpp", '#include"frmMain.h"')
        self.assertLessEqual(
            {"game/Scoring.cpp includes <unistd.h>, but may not know the system",
             "game/Table.cpp includes <fcntl.h>, but may not know the system",
             "game/Hiding.cpp includes frmMain.h, which does not stand below it"},
            set(self.complaints()))

    def test_files_that_include_each_other_are_found(self):
        self.plant("audio/Music.h", '#include "audio/Playlist.h"')
        self.assertEqual(self.complaints(), [])
        self.plant("audio/Playlist.h", '#include "audio/Music.h"')
        self.assertEqual(self.complaints(),
                         ["audio/Music.h leads back to itself by its includes",
                          "audio/Playlist.h leads back to itself by its includes"])

    def test_a_longer_circle_and_a_file_that_includes_itself_are_found(self):
        for name, included in [("One", "Two"), ("Two", "Three"), ("Three", "One"),
                               ("Four", "Four"), ("Five", "One")]:
            self.plant(f"audio/{name}.h", f'#include "audio/{included}.h"')
        self.assertEqual(self.complaints(),
                         [f"audio/{name}.h leads back to itself by its includes"
                          for name in ["Four", "One", "Three", "Two"]])

    def test_a_file_without_a_floor_is_found(self):
        names = ["Letter.h", "game/news/Letter.h", "news/Letter.h"]
        for name in names:
            self.plant(name, "")
        self.assertEqual(self.complaints(), [f"{name} stands on no floor" for name in names])

    def test_a_stranger_in_quotes_is_found(self):
        self.plant("game/Scoring.cpp", '#include "SDL.h"')
        self.assertEqual(self.complaints(),
                         ["game/Scoring.cpp includes SDL.h, which is no file of the house"])

    def test_a_folder_without_sources_does_not_pass(self):
        shutil.rmtree(self.sources)
        self.sources.mkdir()
        result = self.check()
        self.assertEqual((result.returncode, result.stderr),
                         (1, "there is no source to look at\n"))


if __name__ == "__main__":
    unittest.main()
