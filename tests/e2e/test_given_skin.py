"""Skins that a friend has given, dragged out of another program's window."""

import os

from desktop import wait_for
from file_giver import FileGiver, pack_skin
from game import PLAYING, GameTestCase, stored_settings
from test_config import ConfigWindow

NAME = "A gift"


class GivenSkin(GameTestCase):
    def pack(self, skin, leave_out=""):
        """A skin's pictures of single size in a folder of an archive."""
        return pack_skin(os.path.join(self.folder, "Skin", skin), NAME,
                         os.path.join(self.desktop.home, "from a friend.zip"), leave_out)

    def giver(self, *paths):
        giver = FileGiver(self.desktop, *paths)
        self.addCleanup(giver.close)
        return giver

    def wait_for_gift(self, game):
        """Until the window shows it, in the outline that it was started with."""
        wait_for("the skin in its folder",
                 lambda: os.path.exists(os.path.join(self.folder, "Skin", NAME)))
        game.use_skin(NAME, "Atelier")
        game.rest_pointer()
        game.wait_for("the skin", lambda: game.shows_button("Config", "Up"))

    def skins(self):
        return sorted(os.listdir(os.path.join(self.folder, "Skin")))

    def test_skin_dropped_in_the_middle_of_a_game_is_put_on_and_kept(self):
        game = self.play()
        game.start()
        game.put(3, 2, 1)
        giver = self.giver(self.pack("Beacon"))
        self.assertTrue(giver.drag_to(*game.on_screen(400, 300, 0, 0)[:2]))
        self.assertTrue(giver.drop())
        self.wait_for_gift(game)
        self.assertEqual(game.color_at(2, 1), 3)
        game.put(4, 1, 1)
        self.assertEqual(game.messages(), PLAYING)
        game.leave()
        self.assertIn(b"\nSkinPtr=1\n", stored_settings(self.desktop).replace(b"\r", b""))
        game = self.start_again()
        game.use_skin(NAME)
        game.wait_until_idle()

    def test_skin_dropped_on_the_configuration_is_browsed_to(self):
        game = self.play("[Game]\nGameMode=0\n[Skin]\nPrvSkin=True\n")
        window = ConfigWindow(game)
        giver = self.giver(self.pack("Carbon"))
        self.assertFalse(giver.drag_to(*game.on_screen(20, 580, 0, 0)[:2]))
        self.assertTrue(giver.drag_to(window.origin[0] + 300, window.origin[1] + 60))
        self.assertTrue(giver.drop())
        window.thing("label", f"Skin: {NAME}")
        window.close_with("Ok")
        self.wait_for_gift(game)

    def test_skin_that_is_not_whole_is_refused_with_the_reason(self):
        game = self.play()
        path = self.pack("Beacon", leave_out="Dots.bmp")
        giver = self.giver(path)
        self.assertTrue(giver.drag_to(*game.on_screen(400, 300, 0, 0)[:2]))
        self.assertTrue(giver.drop())
        self.close_box(game, f"The skin cannot be taken: {path}: is no whole skin:\n"
                             "Game/Dots.bmp: is missing; it is a picture of 44 x 11 pixels")
        self.assertEqual(self.skins(), ["Atelier", "Beacon", "Carbon", "Daylight"])
        self.assertTrue(game.shows_button("Config", "Up"))

    def test_nothing_but_a_skin_is_welcome_and_none_while_a_question_waits(self):
        game = self.play()
        place = game.on_screen(400, 300, 0, 0)[:2]
        for paths in ([game.folder, game.folder], [os.path.join(self.desktop.home, "stderr")]):
            giver = self.giver(*paths)
            self.assertFalse(giver.drag_to(*place), paths)
            giver.leave()
        giver = self.giver(self.pack("Beacon"))
        self.assertTrue(giver.drag_to(*place))
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?")
        self.assertFalse(giver.drag_to(*place))
        self.assertFalse(giver.drop())
        game.answer("No")
        self.assertEqual(self.skins(), ["Atelier", "Beacon", "Carbon", "Daylight"])
