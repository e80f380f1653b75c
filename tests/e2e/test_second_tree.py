"""Skins without pictures of twice the size, or with bad ones, where windows are larger."""

import os
import shutil

from board import PANEL, Board, in_pixels
from game import EASY, SKINS
from scaled_game import NO_CHOICE, ScaledGame, looks
from test_config import ConfigWindow


class SecondTree(ScaledGame):
    def second(self, skin, *names):
        return os.path.join(self.folder, "Skin", skin, "2x", *names)

    def narrow(self, path):
        """Writes 919 for the 920 pixels of a row, which take as many bytes."""
        with open(path, "rb") as file:
            data = bytearray(file.read())
        self.assertEqual(data[18:22], (920).to_bytes(4, "little"))
        data[18:22] = (919).to_bytes(4, "little")
        os.remove(path)  # a link to the real one
        with open(path, "wb") as file:
            file.write(data)

    def assert_shown_in_single_size(self, game, skin):
        """Each pixel of its pictures is two by two of the screen, in the outline of the start; the
        texts are sharper."""
        pictures = game.skin_called(skin, 1, SKINS[0])
        panel = in_pixels(2, *PANEL)
        seen = None

        def is_whole():
            nonlocal seen
            shown = game.grab()
            single = shown.every_second()
            seen = Board(pictures, EASY, single).difference(looks()) or shown.difference(
                single.doubled().with_pasted(shown.crop(*panel), *panel[:2]))
            return seen is None
        game.rest_pointer()
        try:
            game.wait_for(f"{skin} in its single size", is_whole)
        except AssertionError:
            self.fail(f"{skin} is another at {seen}")

    def put_next_skin_on(self, game):
        window = ConfigWindow(game)
        window.click("Next skin")
        window.close_with("Ok")

    def test_skin_without_a_whole_second_tree_is_shown_in_its_single_size(self):
        """And standard error says why, unless it has none or none is needed."""
        shutil.rmtree(self.second(SKINS[0]))
        missing = self.second(SKINS[1], "About", "About.bmp")
        os.remove(missing)
        narrow = self.second(SKINS[2], "High", "High.bmp")
        self.narrow(narrow)
        game = self.play(scale=2, options=("--scale", "2"))
        self.assert_shown_in_single_size(game, SKINS[0])
        said = ""
        for skin, fault in ((SKINS[1], f"{missing}: cannot be opened: No such file or directory"),
                            (SKINS[2], f"{narrow}: has 919 x 896 pixels instead of "
                                       "920 x 896 pixels")):
            self.assertEqual(game.errors(), said)
            said += f"quendrel: {fault}; the skin is shown in its single size\n"
            self.put_next_skin_on(game)
            self.assert_shown_in_single_size(game, skin)
            self.assertEqual(game.errors(), said)
        self.resize(game, NO_CHOICE, 1)
        game.use_skin(SKINS[2], SKINS[0])
        self.assert_made_of_pictures(game, looks())
        self.assertEqual(game.leave(), 0)
        self.assertEqual(game.errors(), said)
        self.assert_nothing_said_at_scale_1()

    def assert_nothing_said_at_scale_1(self):
        """The last skin is stored, and no scale."""
        game = self.start_again()
        game.use_skin(SKINS[2])
        self.assert_made_of_pictures(game, looks())
        self.assertEqual(game.errors(), "")
