"""What a screen reader finds in the windows, and what it can do there."""

import os
import time
import wave

from board import COLOR_NAMES
from game import FOLDER, MEDIUM, WELCOME, GameTestCase, PLAYING, stored_settings
from test_config import ConfigWindow

BUTTONS = {
    "Exit", "About", "Config", "High", "Show", "Clone", "Start", "Check",
    "Yes", "No", "Ok", "Mind Duel", "Hide",
}
CHOICES = {
    "Easy", "Medium", "Hard",
    "Yellow", "Blue", "Red", "Green", "White", "Black", "Brown", "Orange", "Purple", "Pink",
}

# The switches of the configuration window, and what is stored once each has been switched.
SWITCHES = {
    "Help bubbles": "ToolTips=False", "Set own code": "SetColor=True",
    "Game clock": "GTimer=True", "Sound effects": "SoundFx=False", "Music": "Music=True",
    "Shuffle": "RndMusic=True", "Preview": "PrvSkin=True", "Random skin": "RndSkin=True",
    "Mind Duel": "MindDuel=True",
}


def sound(name):
    """What the sound device writes while it plays this sound, without the silence around it."""
    with wave.open(os.path.join(FOLDER, "Sound", name + ".wav")) as file:
        return file.readframes(file.getnframes()).strip(b"\0")


class Accessibility(GameTestCase):
    def test_start_is_found_described_by_its_balloon_text_and_can_be_clicked(self):
        game = self.play()
        start, = [thing for thing in game.tree
                  if (thing.role, thing.name) == ("push button", "Start")]
        self.assertEqual(start.description, "Pressing this button will start the game in the mode "
                                            "you have selected in the top right corner.")
        self.assertTrue(start.perform("Press"))
        game.wait_for_messages(*PLAYING)

    def test_the_four_message_lines_are_read(self):
        game = self.play()
        self.assertEqual(game.messages(), WELCOME)
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?", "", "")

    def test_every_button_has_its_name(self):
        game = self.play()
        for role, wanted in (("push button", BUTTONS), ("radio button", CHOICES)):
            names = [thing.name for thing in game.tree
                     if thing.role == role and not thing.name.startswith("Row ")]
            self.assertEqual(sorted(names), sorted(wanted))

    def test_every_switch_of_the_configuration_window_switches_and_clicks_once(self):
        recording = self.record_sound()
        game = self.play("[Game]\nGameMode=0\n[Sound]\nMusic=False\n")
        window = ConfigWindow(game)
        time.sleep(0.5)
        for name in SWITCHES:
            switch = window.thing("check box", name)
            was = switch.is_checked
            begin = os.path.getsize(recording)
            self.assertTrue(switch.perform("Toggle"))
            time.sleep(0.5)
            self.assertEqual(switch.is_checked, not was, name)
            with open(recording, "rb") as audio:
                audio.seek(begin)
                self.assertTrue(audio.read().strip(b"\0") == sound("SmallClick"), name)
        window.close_with("Ok")
        self.assertEqual(game.leave(), 0)
        stored = stored_settings(self.desktop).decode().splitlines()
        self.assertEqual(set(SWITCHES.values()) - set(stored), set())

    def test_mode_buttons_change_the_mode(self):
        game = self.play()
        self.assertTrue(game.button("Medium").perform("Press"))
        game.wait_for("the mode", lambda: game.shows_button("Medium", "Down"))
        game.mode = MEDIUM
        game.wait_until_idle()
        self.assertEqual(game.leave(), 0)
        self.assertIn(b"GameMode=1", stored_settings(self.desktop).split())

    def test_color_buttons_choose_their_colors(self):
        game = self.play()
        game.start()
        for column, color in enumerate((3, 6, 1, 4), 1):
            self.assertTrue(game.button(COLOR_NAMES[color - 1]).perform("Press"))
            game.wait_for("the color", lambda: game.shows_button(COLOR_NAMES[color - 1], "Down"))
            game.click_hole(column, 1)
            game.wait_for("the peg", lambda: game.color_at(column, 1) == color)
