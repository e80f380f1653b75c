"""What "cmake --install" leaves: everything that a desktop looks for, wherever it is moved."""
import configparser
import os
import pathlib
import re
import signal
import subprocess
import tempfile
import unittest

from release import DAY, VERSION

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = ROOT / "build/release+tests"
SKINS = ["Atelier", "Beacon", "Carbon", "Daylight"]
ICON_SIZES = [16, 22, 24, 32, 48, 64, 128, 256, 512]


def can_be_asked_to_end(process):
    """Whether it catches SIGTERM by now."""
    status = pathlib.Path(f"/proc/{process.pid}/status").read_text()
    caught = int(re.search(r"^SigCgt:\s*(\w+)", status, re.M)[1], 16)
    return caught & 1 << signal.SIGTERM - 1 != 0


class Install(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        installed = pathlib.Path(folder.name) / "stage"
        subprocess.run(["cmake", "--install", BUILD, "--prefix", "/opt/game"], check=True,
                       env=os.environ | {"DESTDIR": str(installed)}, stdout=subprocess.DEVNULL)
        cls.prefix = pathlib.Path(folder.name) / "moved"
        (installed / "opt/game").rename(cls.prefix)

    def test_every_part_is_where_a_desktop_looks_for_it(self):
        share = self.prefix / "share"
        parts = ["applications/quendrel.desktop", "bash-completion/completions/quendrel",
                 "doc/quendrel/LICENSE", "doc/quendrel/README.md",
                 "icons/hicolor/scalable/apps/quendrel.svg", "man/man6/quendrel.6",
                 "metainfo/example.brimwell.quendrel.metainfo.xml", "quendrel/Rules/Rules.html",
                 "quendrel/Music/Canon in D.mid", "quendrel/Sound/White.wav"]
        parts += [f"icons/hicolor/{size}x{size}/apps/quendrel.png" for size in ICON_SIZES]
        parts += [f"quendrel/Skin/{skin}/Game/Board.bmp" for skin in SKINS]
        for part in parts:
            self.assertTrue((share / part).is_file(), part)

    def test_the_menu_entry_names_the_program_and_its_icon(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.read(self.prefix / "share/applications/quendrel.desktop")
        self.assertEqual(entry["Desktop Entry"]["Exec"], "quendrel")
        self.assertEqual(entry["Desktop Entry"]["Icon"], "quendrel")

    def said(self, *arguments):
        return subprocess.run([self.prefix / "bin/quendrel", *arguments], check=True, text=True,
                              stdout=subprocess.PIPE).stdout

    def manual(self):
        return (self.prefix / "share/man/man6/quendrel.6").read_text().replace("\\-", "-")

    def test_the_program_and_its_manual_name_the_version_and_the_day_of_the_release(self):
        self.assertEqual(self.said("--version"), f"Quendrel v{VERSION}\n")
        self.assertEqual(self.manual().splitlines()[0],
                         f'.TH QUENDREL 6 {DAY} "Quendrel {VERSION}" Games')
        self.assertIn(f"Quendrel v{VERSION}.ini", self.manual())

    def test_the_help_and_the_manual_tell_of_every_option(self):
        options = ["--check-skin", "--folder", "--help", "--scale", "--version"]
        self.assertEqual(sorted(re.findall(r"^  (--\S+)", self.said("--help"), re.M)), options)
        described = re.findall(r'^\.TP\n\.BI? "?(--[a-z-]+)', self.manual(), re.M)
        self.assertEqual(sorted(described), options)

    def test_the_moved_program_finds_what_lies_beside_it(self):
        home = self.prefix / "home"
        environment = os.environ | {"QT_QPA_PLATFORM": "offscreen", "XDG_DATA_HOME": str(home),
                                    "XDG_CONFIG_HOME": str(home)}
        for name in ("QUENDREL_FOLDER", "DISPLAY"):
            environment.pop(name, None)
        game = subprocess.Popen([self.prefix / "bin/quendrel"], env=environment)
        self.addCleanup(game.kill)
        for _ in range(200):
            if can_be_asked_to_end(game):
                break
            with self.assertRaises(subprocess.TimeoutExpired):
                game.wait(0.1)
        self.assertEqual(sorted(os.listdir(home / "quendrel/Skin")), SKINS)
        self.assertEqual((home / "quendrel/.system").resolve(),
                         (self.prefix / "share/quendrel").resolve())
        game.terminate()
        self.assertEqual(game.wait(10), 0)


if __name__ == "__main__":
    unittest.main()
