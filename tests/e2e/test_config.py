"""The configuration window: change, take over, throw away, try skins, edit and hear the playlist."""

import os
import shutil
import struct
import time

from board import in_pixels
from desktop import WHEEL_DOWN, WHEEL_UP, wait_for
from game import EASY, SKINS, GameTestCase, store_settings, stored_settings
from picture import Picture
from scaled_game import LARGER, SMALLER, ScaledGame, looks

SIZE = (640, 490)
ABOUT_SIZE = (464, 316)
ABOUT_TEXTS, ABOUT_OK = (150, 70, 280, 110), (361, 203, 70, 40)
ROWS_A_NOTCH = 3  # that a list scrolls with the wheel


def stored_values(desktop):
    lines = stored_settings(desktop).decode().splitlines()
    return dict(line.split("=", 1) for line in lines if "=" in line)


class ConfigWindow:
    """The open window, its controls by their accessible names."""

    def __init__(self, game):
        self.game = game
        self.desktop = game.desktop
        game.click("Config")
        self.origin = game.wait_for("the configuration window", self.place)
        self.wait_until_drawn()

    @property
    def size(self):
        """In pixels of the screen."""
        return in_pixels(self.game.scale, 0, 0, *SIZE)[2:]

    def place(self):
        return self.desktop.place_of_window(self.game.process.pid, self.size)

    def wait_for_scale(self, scale):
        """Until the window, with all others, is shown at this scale."""
        self.game.wait_for_scale(scale)
        self.origin = self.game.wait_for(f"the window at scale {scale}", self.place)
        self.wait_until_drawn()

    def wait_until_drawn(self):
        """Two looks that show the same."""
        def still():
            first = self.grab()
            time.sleep(0.1)
            return first == self.grab()
        self.game.wait_for("the window to be drawn", still)

    def thing(self, role, name):
        """Waits for it: a list that is being filled anew hides the tree for a moment."""
        def showing():
            for window in self.game.find_accessible().children():
                if window.place == (*self.origin, *self.size):
                    return window.find(role, name, lambda thing: (
                        thing.is_showing and self.holds(thing.place)))
            return None
        return self.game.wait_for(f"a {role} called {name!r}", showing)

    def holds(self, place):
        x, y = place[0] - self.origin[0], place[1] - self.origin[1]
        return 0 <= x < self.size[0] and 0 <= y < self.size[1]

    def click(self, name, role="push button"):
        x, y, width, height = self.thing(role, name).place
        self.desktop.click(x + width // 2, y + height // 2)

    def switch(self, name):
        self.click(name, "check box")

    def press_item(self, box, row):
        x, y, width, _ = self.thing("list", box).place
        self.desktop.click(x + width // 2, y + round((23 * row + 11) * self.game.scale))

    def press_scrolled_item(self, box, row):
        """While the list is scrolled by a notch of the wheel."""
        place = self.thing("list", box).place
        self.desktop.click_middle(place, WHEEL_DOWN)
        self.press_item(box, row - ROWS_A_NOTCH)
        self.desktop.click_middle(place, WHEEL_UP)

    def names(self, box):
        return [thing.name for thing in self.thing("list", box).children()
                if thing.role == "list item"]

    def type_name(self, box, text):
        """Into a box whose text is selected by the click."""
        self.click(box, "text")
        self.desktop.wait_for_focus(self.game.process.pid)
        time.sleep(0.2)
        for letter in text:
            self.desktop.strike(letter)

    def is_on(self, name):
        return self.thing("check box", name).is_checked

    def grab(self):
        return self.desktop.grab(*self.origin, *self.size)

    def shows_skin(self, skin):
        """Whether the window's background is that of the skin, looked at where nothing moves."""
        place = in_pixels(self.game.scale, 150, 430, 220, 20)
        return self.grab().crop(*place) == skin.crop(*place)

    def close_with(self, name):
        self.click(name)
        self.game.wait_for("the window to close", lambda: not self.place())


class Config(GameTestCase):
    TIME_LIMIT = 95

    def skin_picture(self, name, *file):
        return Picture.from_bmp(os.path.join(self.folder, "Skin", name, *file))

    def background(self, name):
        return self.skin_picture(name, "Config", "Config.bmp")

    def assert_old_skin(self, game):
        game.rest_pointer()
        game.wait_for("the old skin", lambda: game.shows_button("Start", "Up"))

    def test_everything_changed_is_taken_over_stored_and_there_after_the_next_start(self):
        game = self.play()
        window = ConfigWindow(game)
        for name in ("Help bubbles", "Set own code", "Game clock", "Sound effects", "Music",
                     "Shuffle", "Preview", "Random skin", "Mind Duel"):
            was = window.is_on(name)
            window.switch(name)
            game.wait_for(f"{name} to be switched", lambda: window.is_on(name) != was)
        window.click("Next skin")
        for _ in range(3):
            window.click("More rounds")
        window.type_name("Player 1", "ada")
        window.type_name("Player 2", "bob")
        window.close_with("Ok")
        game.wait_for("the clock", lambda: game.clock.is_showing)
        self.assertTrue(game.is_enabled("Mind Duel"))
        self.assertEqual(game.leave(), 0)
        expected = {"ToolTips": "False", "SetColor": "True", "GTimer": "True", "SoundFx": "False",
                    "Music": "False", "RndMusic": "True", "PrvSkin": "True", "RndSkin": "True",
                    "SkinPtr": "2", "MindDuel": "True", "Player1": "ada", "Player2": "bob",
                    "BestOf": "8", "GameMode": "0"}
        stored = stored_values(self.desktop)
        self.assertEqual({key: stored[key] for key in expected}, expected)

        game = self.start_again()
        window = ConfigWindow(game)
        seen = {name: window.is_on(name) for name in ("Help bubbles", "Music", "Game clock")}
        self.assertEqual(seen, {"Help bubbles": False, "Music": False, "Game clock": True})

    def test_cancel_changes_nothing(self):
        game = self.play()
        window = ConfigWindow(game)
        for name in ("Game clock", "Mind Duel", "Music"):
            window.switch(name)
        window.click("Next skin")
        window.click("Remove all")
        window.close_with("Cancel")
        self.assertFalse(game.clock.is_showing)
        self.assertFalse(game.is_enabled("Mind Duel"))
        self.assertEqual(game.leave(), 0)
        stored = stored_values(self.desktop)
        self.assertEqual((stored["GTimer"], stored["MindDuel"], stored["Music"],
                          stored["SkinPtr"]), ("False", "False", "True", "1"))

    def test_browsing_with_preview_shows_each_skin_in_turn(self):
        game = self.play()
        window = ConfigWindow(game)
        self.assertTrue(window.shows_skin(self.background(SKINS[0])))
        window.switch("Preview")
        for skin in SKINS[1:]:
            window.click("Next skin")
            game.wait_for(f"the preview of {skin}",
                          lambda: window.shows_skin(self.background(skin)))
        window.close_with("Cancel")
        self.assert_old_skin(game)

    def test_skin_changed_during_a_game_keeps_the_game_and_its_blinking_number(self):
        game = self.play()
        game.start()
        game.fill(1, (1, 2, 3, 4))
        window = ConfigWindow(game)
        window.click("Next skin")
        window.click("Next skin")
        window.close_with("Ok")
        game.use_skin(SKINS[2])
        game.rest_pointer()
        game.wait_for("the row in its new skin", lambda: game.board().row(1) == (1, 2, 3, 4))
        looks = [game.number_of_row(1)]

        def blinks():
            look = game.number_of_row(1)
            if look not in looks:
                looks.append(look)
            return len(looks) == 2
        game.wait_for("the number to blink", blinks)
        self.assertEqual(len(game.check(1)), len(game.board().marks(1)))

    def test_damaged_skin_is_refused_and_the_game_goes_on_with_the_old_one(self):
        os.remove(os.path.join(self.folder, "Skin", SKINS[1], "High", "High.bmp"))
        game = self.play()
        window = ConfigWindow(game)
        window.click("Next skin")
        window.close_with("Ok")
        self.close_box(game, f"The skin \"{SKINS[1]}\" is damaged: "
                             f"{self.folder}/Skin/{SKINS[1]}/High/High.bmp: "
                             "cannot be opened: No such file or directory")
        self.assert_old_skin(game)
        self.assertEqual(game.leave(), 0)
        self.assertEqual(stored_values(self.desktop)["SkinPtr"], "1")

    def spoil_next_skin(self):
        """A picture of its about window gets another size; returns what is said about it."""
        about = os.path.join(self.folder, "Skin", SKINS[1], "About", "About.bmp")
        os.remove(about)
        shutil.copy(os.path.join(self.folder, "Skin", SKINS[1], "Game", "Dots.bmp"), about)
        return (f"The skin \"{SKINS[1]}\" is damaged: {about}: has 44 x 11 pixels instead of "
                "464 x 316 pixels")

    def test_preview_of_a_skin_with_a_picture_of_another_size_keeps_the_old_pictures(self):
        said = self.spoil_next_skin()
        game = self.play("[Game]\nGameMode=0\n[Skin]\nPrvSkin=True\n")
        window = ConfigWindow(game)
        window.click("Next skin")
        self.close_box(game, said)
        window.wait_until_drawn()
        self.assertTrue(window.shows_skin(self.background(SKINS[0])))
        window.click("Next skin")
        game.wait_for("the skin after it",
                      lambda: window.shows_skin(self.background(SKINS[2])))
        window.close_with("Cancel")
        self.assert_old_skin(game)

    def test_skin_with_a_picture_of_another_size_is_refused_and_the_old_one_stays(self):
        said = self.spoil_next_skin()
        game = self.play()
        window = ConfigWindow(game)
        window.click("Next skin")
        window.close_with("Ok")
        self.close_box(game, said)
        self.assert_old_skin(game)
        self.assertEqual(game.leave(), 0)
        self.assertEqual(stored_values(self.desktop)["SkinPtr"], "1")

    def test_one_skin_alone_can_be_browsed_and_drawn(self):
        for skin in SKINS[1:]:
            shutil.rmtree(os.path.join(self.folder, "Skin", skin))
        game = self.play("[Game]\nGameMode=0\n[Skin]\nRndSkin=True\nSkinPtr=3\n")
        window = ConfigWindow(game)
        window.click("Next skin")
        window.click("Previous skin")
        window.close_with("Ok")
        self.assertEqual(game.leave(), 0)
        self.assertEqual(stored_values(self.desktop)["SkinPtr"], "1")

    def test_playlist_is_edited_and_kept(self):
        game = self.play()
        window = ConfigWindow(game)
        tunes = window.names("Tunes")
        self.assertEqual(window.names("Playlist"), tunes)
        window.click("Remove all")
        game.wait_for("an empty playlist", lambda: window.names("Playlist") == [])
        window.press_item("Tunes", 2)
        window.click("Add")
        window.press_item("Tunes", 0)
        window.click("Add")
        window.click("Add")
        window.press_item("Playlist", 0)
        window.click("Move down")
        expected = [tunes[0], tunes[2], tunes[0]]
        game.wait_for("the edited playlist", lambda: window.names("Playlist") == expected)
        window.close_with("Ok")
        self.assertEqual(game.leave(), 0)
        with open(os.path.join(self.folder, "Playlist.dat"), "rb") as file:
            stored = file.read()
        self.assertEqual(stored, struct.pack("<h", 2) + b"".join(
            struct.pack("<H", len(name)) + name.encode("cp1252") for name in expected))

    def test_listening_plays_a_tune_and_cancel_ends_it(self):
        recording = self.record_sound()
        game = self.play("[Game]\nGameMode=0\n[Sound]\nMusic=False\nSoundFx=False\n")

        def sounds():
            with open(recording, "rb") as audio:
                audio.seek(-40000, os.SEEK_END)
                return any(audio.read())
        game.wait_for("the sound device", lambda: os.path.getsize(recording) > 40000)
        self.assertFalse(sounds())
        window = ConfigWindow(game)
        window.press_item("Tunes", 1)
        window.click("Listen")
        wait_for("the tune", sounds)
        window.close_with("Cancel")
        wait_for("silence", lambda: not sounds())

    def test_clock_and_duel_cannot_be_switched_during_a_round(self):
        game = self.play()
        game.start()
        window = ConfigWindow(game)
        self.assertFalse(window.thing("check box", "Game clock").is_enabled)
        self.assertFalse(window.thing("check box", "Mind Duel").is_enabled)
        window.switch("Game clock")
        self.assertFalse(window.is_on("Game clock"))
        window.close_with("Ok")
        self.assertFalse(game.clock.is_showing)

    def test_escape_is_cancel_and_arrow_keys_choose_tunes(self):
        game = self.play()
        window = ConfigWindow(game)
        tunes = window.names("Tunes")
        window.click("Remove all")
        window.press_item("Tunes", 0)
        self.desktop.wait_for_focus(game.process.pid)
        self.desktop.strike("Down")
        self.desktop.strike("Down")
        window.click("Add")
        game.wait_for("the third tune", lambda: window.names("Playlist") == [tunes[2]])
        self.desktop.strike("Escape")
        game.wait_for("the window to close", lambda: not window.place())


class LargerConfig(ScaledGame):
    """At scales 1.5 and 2, and where the keys change it meanwhile."""

    def assert_edits(self, window, tunes):
        """The playlist, by clicks on tunes that are there, or come with the wheel."""
        window.click("Remove all")
        self.wait_for_playlist(window, [])
        window.press_item("Tunes", 2)
        window.click("Add")
        window.press_scrolled_item("Tunes", 8)
        window.click("Add")
        self.wait_for_playlist(window, [tunes[2], tunes[8]])
        window.press_item("Playlist", 0)
        window.click("Move down")
        self.wait_for_playlist(window, [tunes[8], tunes[2]])
        window.click("Add all")
        self.wait_for_playlist(window, [tunes[8], tunes[2], *tunes])
        window.press_scrolled_item("Playlist", 7)
        window.click("Remove")
        self.wait_for_playlist(window, [tunes[8], tunes[2], *tunes[:5], *tunes[6:]])

    def wait_for_playlist(self, window, names):
        window.game.wait_for(f"the playlist {names}", lambda: window.names("Playlist") == names)

    def assert_switches(self, window, name):
        was = window.is_on(name)
        window.switch(name)
        window.game.wait_for(f"{name} to be switched", lambda: window.is_on(name) != was)

    def assert_browses(self, window, skin):
        window.click("Next skin")
        picture = self.pictures(skin, "Config", "Config.bmp")
        window.game.wait_for(f"the preview of {skin}", lambda: window.shows_skin(picture))

    def resize_both(self, window, keys, scale):
        self.resize(window.game, keys, scale)
        window.wait_for_scale(scale)

    def assert_made_of_new_pictures(self, game, skin):
        """Of this skin, in the outline that the window was started with."""
        game.use_skin(skin, SKINS[0])
        self.assert_made_of_pictures(game, looks())
        game.click("About")
        size = in_pixels(2, 0, 0, *ABOUT_SIZE)[2:]
        shown = lambda: self.desktop.place_of_window(game.process.pid, size)
        x, y = game.wait_for("the about window", shown)
        self.wait_for_picture(game, (x, y), self.pictures(skin, "About", "About.bmp"), ABOUT_TEXTS)
        left, top, width, height = in_pixels(2, *ABOUT_OK)
        self.desktop.click(x + left + width - 1, y + top + height - 1)
        game.wait_for("the about window to go", lambda: not shown())

    def test_everything_in_larger_windows_is_used_by_clicks_and_follows_the_keys(self):
        game = self.play(scale=1.5, options=("--scale", "1.5"))
        window = ConfigWindow(game)
        tunes = window.names("Tunes")
        self.assert_switches(window, "Sound effects")
        self.assert_switches(window, "Preview")
        window.type_name("Player 1", "ada")
        self.assert_edits(window, tunes)
        window.click("Next skin")
        self.resize_both(window, LARGER, 1.75)
        self.resize_both(window, LARGER, 2)
        self.assertTrue(window.shows_skin(self.pictures(SKINS[1], "Config", "Config.bmp")))
        self.assert_switches(window, "Music")
        window.type_name("Player 2", "bob")
        self.assert_edits(window, tunes)
        self.assert_browses(window, SKINS[2])
        window.close_with("Ok")
        self.assert_made_of_new_pictures(game, SKINS[2])

        window = ConfigWindow(game)
        self.assertTrue(window.shows_skin(self.pictures(SKINS[2], "Config", "Config.bmp")))
        self.resize_both(window, SMALLER, 1.75)
        self.assert_switches(window, "Music")
        self.desktop.strike("Escape")
        game.wait_for("the window to close", lambda: not window.place())
        self.assertEqual(game.leave(), 0)
        stored = stored_values(self.desktop)
        expected = {"SoundFx": "False", "Music": "False", "PrvSkin": "True", "SkinPtr": "3",
                    "Player1": "ada", "Player2": "bob", "Scale": "1.75"}
        self.assertEqual({key: stored[key] for key in expected}, expected)


class StoredSkin(GameTestCase):
    def test_random_skin_is_stored_on_leaving(self):
        store_settings(self.desktop, "[Game]\nGameMode=0\n[Skin]\nRndSkin=True\nSkinPtr=99\n")
        game = self.start_again(EASY)
        self.assertEqual(game.leave(), 0)
        stored = stored_settings(self.desktop).decode()
        self.assertIn(stored.split("SkinPtr=")[1].split()[0], ("1", "2", "3", "4"))
