"""Starts that cannot succeed, and what is said about them."""

import os
import shutil
import subprocess

from desktop import wait_for
from game import PROGRAM, GameTestCase, settings_path, store_settings, stored_settings

WAY_OUT = ". Mend this line, or delete the file to begin with the defaults."
KEPT = "[Game]\nGameMode=0\n\n[Duel]\nPlayer1=Ada\n"


class FailedStart(GameTestCase):
    """Each test spoils its folder of links to the real files, or the settings."""

    def file(self, *names):
        return os.path.join(self.folder, *names)

    def replace(self, path, content):
        os.remove(path)
        with open(path, "wb") as file:
            file.write(content)

    def start_and_close_error(self, close):
        """What the program says on standard error when its error box has been closed."""
        game = self.desktop.run([PROGRAM, "--folder", self.folder], stderr=subprocess.PIPE,
                                text=True)
        button = wait_for("the error box",
                          lambda: self.desktop.accessibility.box_button(game.pid))
        close(game, button)
        _, errors = game.communicate(timeout=10)
        self.assertEqual(game.returncode, 1)
        return errors

    def press_ok(self, _, button):
        self.desktop.click_middle(button.place)

    def strike_return(self, game, _):
        self.desktop.wait_for_focus(game.pid)
        self.desktop.strike("Return")

    def assert_fails_naming_file(self, path, close=None):
        store_settings(self.desktop, KEPT)
        errors = self.start_and_close_error(close or self.strike_return)
        self.assertEqual(errors.count("\n"), 1, errors)
        self.assertTrue(errors.startswith(f"quendrel: {path}: "), errors)
        self.assertEqual(stored_settings(self.desktop), KEPT.encode())

    def assert_fails_naming_picture(self, path, close=None):
        """Where no other skin could stand in for the damaged one."""
        for skin in ("Beacon", "Carbon", "Daylight"):
            shutil.rmtree(self.file("Skin", skin))
        store_settings(self.desktop, KEPT)
        errors = self.start_and_close_error(close or self.strike_return)
        self.assertEqual(errors.count("\n"), 1, errors)
        self.assertTrue(errors.startswith(f'quendrel: The skin "Atelier" is damaged: {path}: '),
                        errors)
        self.assertEqual(stored_settings(self.desktop), KEPT.encode())

    def assert_fails_naming_setting(self, settings, expected):
        store_settings(self.desktop, settings)
        errors = self.start_and_close_error(self.strike_return)
        self.assertEqual(errors, f"quendrel: {settings_path(self.desktop)}: {expected}\n")
        self.assertEqual(stored_settings(self.desktop), settings.encode())

    def test_missing_picture_is_named_and_the_box_closes_with_a_click_on_ok(self):
        path = self.file("Skin", "Atelier", "Game", "Interface", "Start_Up.bmp")
        os.remove(path)
        self.assert_fails_naming_picture(path, self.press_ok)

    def test_picture_cut_in_half_is_named(self):
        path = self.file("Skin", "Atelier", "Game", "Board.bmp")
        with open(path, "rb") as file:
            content = file.read()
        self.replace(path, content[:len(content) // 2])
        self.assert_fails_naming_picture(path)

    def test_picture_that_is_text_is_named(self):
        path = self.file("Skin", "Atelier", "Game", "Colors.bmp")
        self.replace(path, b"This is no picture.\n" * 100)
        self.assert_fails_naming_picture(path)

    def test_missing_sound_is_named(self):
        path = self.file("Sound", "PutColor.wav")
        os.remove(path)
        self.assert_fails_naming_file(path)

    def test_sound_that_is_text_is_named(self):
        path = self.file("Sound", "NoGood.wav")
        self.replace(path, b"This is no sound.\n" * 100)
        self.assert_fails_naming_file(path)

    def test_number_too_large_for_its_setting_is_named_with_section_and_key(self):
        self.assert_fails_naming_setting(
            "[Duel]\nBestOf=300\n",
            'line 2, section [Duel], key BestOf: "300" cannot be converted' + WAY_OUT)

    def test_word_in_place_of_a_boolean_is_named_with_section_and_key(self):
        self.assert_fails_naming_setting(
            "[Sound]\nMusic=perhaps\n",
            'line 2, section [Sound], key Music: "perhaps" cannot be converted' + WAY_OUT)

    def test_stored_scale_that_is_none_is_named_with_section_and_key(self):
        self.assert_fails_naming_setting(
            "[View]\nScale=1,5\n",
            'line 2, section [View], key Scale: "1,5" is no scale; it is a number from 1 to 3'
            + WAY_OUT)

    def test_skin_number_outside_the_list_is_named_with_the_number_of_skins(self):
        skins = len(os.listdir(self.file("Skin")))
        self.assert_fails_naming_setting(
            "[Skin]\nSkinPtr=99\n",
            f"line 2, section [Skin], key SkinPtr: there is no skin 99; the number of skins is "
            f"{skins}{WAY_OUT}")

    def run_to_end(self, *options, **environment):
        result = subprocess.run([PROGRAM, *options], env=self.desktop.environment | environment,
                                capture_output=True, text=True, timeout=10, check=False)
        return result.returncode, result.stderr

    def test_without_a_display_one_line_says_so(self):
        del self.desktop.environment["DISPLAY"]
        code, errors = self.run_to_end()
        self.assertEqual(code, 1)
        self.assertEqual(errors, "quendrel: no display can be reached. Start the game from a "
                                 "desktop session, or set DISPLAY to one.\n")

    def test_unknown_option_is_named_and_ends_with_code_two(self):
        code, errors = self.run_to_end("--frobnicate")
        self.assertEqual(code, 2)
        self.assertEqual(errors, "quendrel: Unknown option 'frobnicate'. Try --help.\n")


class CheckedSkin(GameTestCase):
    """--check-skin, which needs no display."""

    def check(self, folder):
        result = subprocess.run([PROGRAM, "--check-skin", folder], env={}, capture_output=True,
                                text=True, timeout=10, check=False)
        self.assertEqual(result.stderr, "")
        return result.returncode, result.stdout

    def skin(self, *names):
        return os.path.join(self.folder, "Skin", "Beacon", *names)

    def test_whole_skin_is_called_complete(self):
        self.assertEqual(self.check(self.skin()), (0, f"{self.skin()}: complete\n"))

    def test_faults_of_a_skin_are_listed(self):
        os.remove(self.skin("Config", "Interface", "Move(1)_Over.bmp"))
        shutil.copy(self.skin("Game", "Dots.bmp"), self.skin("About", "Other.bmp"))
        os.replace(self.skin("About", "Other.bmp"), self.skin("About", "About.bmp"))
        code, said = self.check(self.skin())
        self.assertEqual(code, 1)
        self.assertEqual(said, f"{self.skin('About', 'About.bmp')}: has 44 x 11 pixels instead of "
                               "464 x 316 pixels\n"
                               f"{self.skin('Config', 'Interface', 'Move(1)_Over.bmp')}: is "
                               "missing; it is a picture of 32 x 32 pixels\n")

    def test_folder_that_is_not_there_is_named(self):
        self.assertEqual(self.check("/none/such"), (1, "/none/such: is no folder\n"))


class SilentGame(GameTestCase):
    def assert_plays_in_silence(self):
        game = self.play()
        game.start()
        game.fill(1, (1, 2, 3, 4))
        self.assertEqual(game.leave(), 0)
        self.assertEqual(game.errors(), "")

    def test_game_is_played_in_silence_where_no_sound_device_is_found(self):
        del self.desktop.environment["SDL_AUDIODRIVER"]
        self.assert_plays_in_silence()

    def test_game_is_played_in_silence_where_the_sound_driver_does_not_exist(self):
        self.desktop.environment["SDL_AUDIODRIVER"] = "none such"
        self.assert_plays_in_silence()
