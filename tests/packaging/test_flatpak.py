"""The manifest for Flatpak: it is of the same game, takes what it can verify, and opens little."""
import pathlib
import re
import unittest
import xml.etree.ElementTree

PACKAGING = pathlib.Path(__file__).resolve().parents[2] / "packaging"
MANIFEST = next(PACKAGING.glob("flatpak/*.yaml"))


class Manifest(unittest.TestCase):
    def setUp(self):
        self.text = MANIFEST.read_text()

    def test_it_is_named_as_the_software_centre_knows_the_game(self):
        root = xml.etree.ElementTree.parse(next(PACKAGING.glob("desktop/*.metainfo.xml")))
        name = root.findtext("id")
        self.assertEqual(re.search(r"^id: (.*)$", self.text, re.M)[1], name)
        self.assertEqual(MANIFEST.stem, name)

    def test_the_sandbox_opens_to_display_sound_and_tray_alone(self):
        self.assertEqual(re.findall(r"^ +- (--\S+)$", self.text, re.M),
                         ["--socket=x11", "--socket=wayland", "--share=ipc", "--socket=pulseaudio",
                          "--talk-name=org.kde.StatusNotifierWatcher"])

    def test_all_that_is_fetched_is_verified(self):
        fetched = re.findall(r"^ +url: https://\S+\n( +sha256: [0-9a-f]{64}\n)?", self.text, re.M)
        self.assertGreater(len(fetched), 10)
        self.assertEqual(len(fetched), self.text.count("url:"))
        self.assertTrue(all(fetched))


if __name__ == "__main__":
    unittest.main()
