"""The folders beside the program: links to what art has made, and what a player has added."""
import os
import pathlib
import subprocess
import tempfile
import unittest

LINK_ART = pathlib.Path(__file__).resolve().parents[2] / "packaging/link_art"


class LinkArt(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for made in ("Skin/Atelier/Main.bmp", "Sound/White.wav", "Music/Air No. 1.mid",
                     "Rules/Rules.html"):
            self.write("art/" + made, made)
        self.link()

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def read(self, name):
        return (self.root / "game" / name).read_text()

    def link(self):
        subprocess.run([LINK_ART, self.root / "art", self.root / "game"], check=True)

    def test_what_is_made_is_found_beside_the_program_and_follows_its_changes(self):
        self.write("art/Skin/Atelier/Main.bmp", "painted anew")
        self.assertEqual(self.read("Skin/Atelier/Main.bmp"), "painted anew")
        self.assertEqual(self.read("Sound/White.wav"), "Sound/White.wav")
        self.assertEqual(self.read("Music/Air No. 1.mid"), "Music/Air No. 1.mid")
        self.assertEqual(self.read("Rules/Rules.html"), "Rules/Rules.html")

    def test_what_a_player_has_added_stays(self):
        self.write("game/Skin/Mine/Main.bmp", "mine")
        self.write("game/Music/Mine.mid", "mine")
        os.symlink("/nowhere/Skin/Away", self.root / "game/Skin/Away")
        self.link()
        self.assertEqual(self.read("Skin/Mine/Main.bmp"), "mine")
        self.assertEqual(self.read("Music/Mine.mid"), "mine")
        self.assertTrue((self.root / "game/Skin/Away").is_symlink())

    def test_what_is_made_no_longer_goes(self):
        (self.root / "art/Music/Air No. 1.mid").unlink()
        self.link()
        self.assertEqual(os.listdir(self.root / "game/Music"), [])

    def test_a_copy_from_earlier_gives_way_to_the_link(self):
        (self.root / "game/Sound/White.wav").unlink()
        self.write("game/Sound/White.wav", "old")
        self.link()
        self.assertEqual(self.read("Sound/White.wav"), "Sound/White.wav")

    def test_both_folders_may_move_together(self):
        moved = self.root.with_name(self.root.name + " moved")
        self.root.rename(moved)
        self.addCleanup(moved.rename, self.root)
        self.assertEqual((moved / "game/Sound/White.wav").read_text(), "Sound/White.wav")


if __name__ == "__main__":
    unittest.main()
