"""What describes the Debian packages: it agrees with the list of packages, and everything that names
the version and the day of the release with CMakeLists.txt."""
import email.utils
import pathlib
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

from release import DAY, VERSION

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGING = ROOT / "packaging"


def listed(word):
    """The packages that have the word in the list of packages."""
    lines = (PACKAGING / "packages.list").read_text().splitlines()
    fields = [line.split() for line in lines if line and not line.startswith("#")]
    return {field[0] for field in fields if word in field[1].split(",")}


class Control(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([PACKAGING / "make_debian", folder], check=True)
            cls.files = {path.name for path in pathlib.Path(folder).glob("debian/*")}
            text = (pathlib.Path(folder) / "debian/control").read_text()
        cls.source, cls.game, cls.data = text.split("\n\n")

    def names(self, paragraph, field):
        value = re.search(rf"^{field}: (.*)$", paragraph, re.M)[1]
        return [re.sub(r" \(.*\)$", "", part) for part in value.split(", ")]

    def test_the_packages_are_built_with_what_makes_the_art_and_the_game(self):
        built_with = self.names(self.source, "Build-Depends")
        self.assertCountEqual(built_with,
                              (listed("art") | listed("play")) - {"g++"} | {"debhelper-compat"})
        self.assertIn("fonts-jura", built_with)
        self.assertIn("qt6-base-dev", built_with)

    def test_what_the_game_can_be_played_without_is_recommended(self):
        self.assertCountEqual(self.names(self.game, "Recommends"),
                              ["timgm6mb-soundfont", "xdg-utils"])

    def test_nothing_is_left_to_be_filled_in(self):
        self.assertNotIn("@", re.sub(r"<.*@.*>", "", self.source) + self.game + self.data)
        self.assertIn("control", self.files)
        self.assertNotIn("control.in", self.files)

    def test_the_face_of_every_skin_is_brought(self):
        packages = {"Yanone Kaffeesatz": "fonts-yanone-kaffeesatz", "Inter": "fonts-inter",
                    "Play": "fonts-play", "Gentium Book Plus": "fonts-sil-gentiumplus"}
        skins = [path.read_text() for path in (ROOT / "art/pictures/fonts").glob("*.ini")]
        faces = set(re.findall(r"^Face=(.*)$", "\n".join(skins), re.M))
        self.assertEqual(faces, set(packages))
        self.assertLess(set(packages.values()), set(self.names(self.data, "Depends")))


class Release(unittest.TestCase):
    def test_the_changes_of_the_packages_begin_with_it(self):
        lines = (PACKAGING / "debian/changelog").read_text().splitlines()
        self.assertEqual(lines[0].split()[:2], ["quendrel", f"({VERSION})"])
        signed = next(line for line in lines if line.startswith(" -- "))
        day = email.utils.parsedate_to_datetime(signed.split("  ")[1])
        self.assertEqual(day.strftime("%Y-%m-%d"), DAY)

    def test_the_software_centre_shows_it_first(self):
        root = xml.etree.ElementTree.parse(next(PACKAGING.glob("desktop/*.metainfo.xml")))
        newest = root.find("releases/release")
        self.assertEqual((newest.get("version"), newest.get("date")), (VERSION, DAY))

    def test_the_changes_that_a_player_notices_begin_with_it(self):
        changes = (ROOT / "CHANGELOG.md").read_text()
        self.assertEqual(re.search(r"^## ([\d.]+)", changes, re.M)[1], VERSION)

    def test_the_settings_file_is_named_after_it(self):
        names = re.findall(r"Quendrel v(.+?)\.ini", (ROOT / "README.md").read_text())
        self.assertEqual(names, [VERSION])


if __name__ == "__main__":
    unittest.main()
