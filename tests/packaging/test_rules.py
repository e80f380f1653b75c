"""The page of the rules, as it lies beside the program: whole, and read without a network."""
import html.parser
import pathlib
import re
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


def keys_of(page):
    """Of the table of keys in the page, or in the README: what is pressed in each row, in words."""
    cells = re.findall(r"^(?:<tr><td>(?=.*<kbd>)|\| )(.*?)(?:</td>| \|)", page, re.MULTILINE)
    return [re.sub(r"<.*?>|,|\band\b", "", cell).split() for cell in cells]


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

    def test_the_page_lists_the_keys_that_the_readme_lists(self):
        readme = (ROOT / "README.md").read_text(encoding="utf-8")
        table = readme.partition("| key | does |\n|---|---|\n")[2].partition("\n\n")[0]
        self.assertEqual(keys_of(self.text), keys_of(table))

    def test_every_picture_is_described_to_who_does_not_see_it(self):
        self.assertEqual(self.links.undescribed, [])


if __name__ == "__main__":
    unittest.main()
