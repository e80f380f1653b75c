"""The page of the rules, as it lies beside the program: whole, and read without a network."""
import html.parser
import pathlib
import unittest
import urllib.parse

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = ROOT / "build/art/Rules/Rules.html"


class Links(html.parser.HTMLParser):
    """What a page refers to, and the places in it that can be referred to."""

    def __init__(self, page):
        super().__init__()
        self.targets, self.places, self.undescribed = [], set(), []
        self.feed(page)

    def handle_starttag(self, tag, attrs):
        attrs = dict(attrs)
        self.targets += [attrs[name] for name in ("src", "href") if name in attrs]
        if "id" in attrs:
            self.places.add("#" + attrs["id"])
        if tag == "img" and not attrs.get("alt"):
            self.undescribed.append(attrs.get("src"))


class Rules(unittest.TestCase):
    def setUp(self):
        self.text = PAGE.read_text(encoding="utf-8")
        self.links = Links(self.text)

    def test_everything_that_the_page_refers_to_is_beside_it_or_in_it(self):
        self.assertGreater(len(self.links.targets), 30)
        for target in self.links.targets:
            with self.subTest(target):
                if target.startswith("#"):
                    self.assertIn(target, self.links.places)
                else:
                    self.assertTrue((PAGE.parent / urllib.parse.unquote(target)).is_file())

    def test_the_page_asks_the_network_for_nothing(self):
        for trace in ("http:", "https:", "url(", "@import", "<script"):
            self.assertNotIn(trace, self.text)

    def test_every_picture_is_described_to_who_does_not_see_it(self):
        self.assertEqual(self.links.undescribed, [])


if __name__ == "__main__":
    unittest.main()
