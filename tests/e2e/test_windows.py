"""The windows on a desktop: outline, dragging, pointer, tray, splash, about, balloon, ending."""

import os
import shutil
import signal
import subprocess
import time
import unittest

from board import WINDOW_SIZE, center
from desktop import LEFT, RIGHT, Desktop, wait_for
from game import (BACKGROUND, EASY, FOLDER, KEPT, KEPT_IN_A_GAME, PLAYERS_PROGRAM, GameTestCase,
                  settings_path, stored_settings)
from picture import Picture

SPLASH_SIZE = (460, 300)
ABOUT_SIZE = (464, 316)
MAGENTA = 0xFF00FF
HIGH, BLUE = (59, 503), (145, 235)
BY = (60, 40)
CLOCK_ON = "[Game]\nGameMode=0\n[Misc]\nGTimer=True\nSetColor=True\n"


class Outline(GameTestCase):
    def test_window_has_the_outline_of_its_mask_pixel_by_pixel(self):
        self.desktop.fill_background(MAGENTA)
        game = self.play()
        mask = Picture.from_bmp(os.path.join(FOLDER, "Skin", "Atelier", "Game", "Boardmask.bmp"))
        shown = game.grab()
        for y in range(WINDOW_SIZE[1]):
            for x in range(0, WINDOW_SIZE[0] * 3, 3):
                cut_away = mask.rows[y][x:x + 3] == b"\xff\xff\xff"
                desktop_seen = shown.rows[y][x:x + 3] == b"\xff\x00\xff"
                self.assertEqual(cut_away, desktop_seen, (x // 3, y))

    def test_press_outside_the_outline_reaches_what_lies_beneath(self):
        self.desktop.listen_beneath()
        game = self.play()
        corner = (game.origin[0] + 3, game.origin[1] + 3)
        self.desktop.click(*corner)
        wait_for("the press beneath", lambda: corner in self.desktop.presses_beneath())
        self.desktop.click(game.origin[0] + BACKGROUND[0], game.origin[1] + BACKGROUND[1])
        self.assertEqual(self.desktop.presses_beneath(), [])


class Drag(GameTestCase):
    def place(self, game):
        return self.desktop.place_of_window(game.process.pid, WINDOW_SIZE)

    def is_near(self, game, x, y):
        """A few pixels may go before the drag begins."""
        place = self.place(game)
        return place and abs(place[0] - x) <= 4 and abs(place[1] - y) <= 4

    def assert_dragged_with_both_buttons(self):
        game = self.play()
        for button in (LEFT, RIGHT):
            x, y = game.origin = self.place(game)
            game.drag(BACKGROUND, BY, button)
            wait_for(f"the window moved with button {button}",
                     lambda: self.is_near(game, x + BY[0], y + BY[1]))
            # Let go, the window stays where it is.
            self.desktop.move_pointer(10, 10)
            time.sleep(0.2)
            self.assertTrue(self.is_near(game, x + BY[0], y + BY[1]))

    def test_window_is_dragged_by_its_background_with_any_button(self):
        self.assert_dragged_with_both_buttons()

    def test_window_stays_where_the_window_manager_was_seen_to_put_it(self):
        game = self.play()
        x, y = self.place(game)
        game.drag(BACKGROUND, BY, release=False)
        wait_for("the moved window", lambda: self.is_near(game, x + BY[0], y + BY[1]))
        time.sleep(0.3)
        held = self.place(game)
        self.desktop.release()
        self.desktop.move_pointer(10, 10)
        time.sleep(0.3)
        self.assertEqual(self.place(game), held)

    def test_click_on_the_background_does_not_make_the_window_follow_the_pointer(self):
        game = self.play()
        before = self.place(game)
        for button in (LEFT, RIGHT):
            game.click_at(*BACKGROUND, button)
            self.desktop.move_pointer(200, 200)
            time.sleep(0.2)
            self.assertEqual(self.place(game), before)

    def test_window_is_not_dragged_by_a_control(self):
        game = self.play()
        before = self.place(game)
        game.drag((60, 418), BY, RIGHT)
        game.drag((145, 503), BY, LEFT)
        self.assertFalse(game.is_enabled("High"))
        game.drag(HIGH, BY, LEFT)
        game.drag(BLUE, BY, RIGHT)
        self.assertFalse(game.is_enabled("Blue"))
        game.drag(BLUE, BY, LEFT)
        time.sleep(0.2)
        self.assertEqual(self.place(game), before)


class DragWithoutWindowManager(Drag):
    WINDOW_MANAGER = False

    def test_window_is_dragged_where_there_is_no_window_manager(self):
        self.assert_dragged_with_both_buttons()

    test_window_is_dragged_by_its_background_with_any_button = None
    test_window_is_not_dragged_by_a_control = None
    test_click_on_the_background_does_not_make_the_window_follow_the_pointer = None


class Pointer(GameTestCase):
    def is_inside(self, name):
        x, y, width, height = self.game.button(name).place
        at = self.desktop.pointer()
        return x <= at[0] < x + width and y <= at[1] < y + height

    def press_and_flee(self, name, button):
        x, y, width, height = self.game.button(name).place
        self.desktop.move_pointer(x + width // 2, y + height // 2)
        self.desktop.press(button)
        time.sleep(0.1)
        self.desktop.move_pointer(20, 20)

    def assert_kept_and_then_free(self, name, button):
        self.press_and_flee(name, button)
        wait_for(f"the pointer back in {name}", lambda: self.is_inside(name))
        self.desktop.release(button)
        time.sleep(0.1)
        self.desktop.move_pointer(20, 20)
        time.sleep(0.2)
        self.assertEqual(self.desktop.pointer(), (20, 20))

    def assert_never_kept(self, name, button):
        self.press_and_flee(name, button)
        time.sleep(0.2)
        self.assertEqual(self.desktop.pointer(), (20, 20))
        self.desktop.release(button)

    def test_pointer_is_kept_in_a_pressed_mode_or_newly_selected_color_button(self):
        self.game = self.play()
        self.assert_kept_and_then_free("Easy", LEFT)
        self.assert_kept_and_then_free("Easy", RIGHT)
        self.assert_kept_and_then_free("Blue", LEFT)
        self.assert_never_kept("Blue", LEFT)
        self.assert_never_kept("Red", RIGHT)
        self.assert_never_kept("Start", LEFT)

    def test_mode_button_that_the_pointer_flees_from_still_switches(self):
        self.game = self.play()
        self.press_and_flee("Medium", LEFT)
        wait_for("the pointer back", lambda: self.is_inside("Medium"))
        self.desktop.release(LEFT)
        self.game.wait_for("the mode", lambda: self.game.shows_button("Medium", "Down"))


class Hiding(GameTestCase):
    def play_with_clock(self):
        """A game whose clock has counted two seconds."""
        game = self.play(CLOCK_ON)
        game.click("Start")
        game.wait_for_messages("Please set your color combi-", "nation.Press ok when done.")
        game.set_code((1, 2, 3, 4))
        game.answer("Ok")
        game.wait_for("two seconds", lambda: game.time() == "00:02")
        return game

    def is_shown(self, game):
        return self.desktop.place_of_window(game.process.pid, WINDOW_SIZE) is not None

    def hide(self, game):
        """Once more where a busy window manager took longer to minimise it than the game waits."""
        for seconds in (5, 20):
            game.click("Hide")
            try:
                game.wait_for("the window to go", lambda: not self.is_shown(game), seconds)
                return
            except AssertionError as trouble:
                still_there = trouble
        raise still_there

    def wait_for_icon(self, game):
        """Its middle, once the tray has ceased to move it."""
        seen = []

        def rests():
            seen.append(self.desktop.tray_icon(game.process.pid))
            return seen[-1] and len(set(seen[-20:])) == 1 and len(seen) >= 20
        game.wait_for("the icon", rests)
        return seen[-1]

    def assert_clock_went_on(self, game):
        game.wait_for("the window to come back", lambda: self.is_shown(game))
        self.assertIn(game.time(), ("00:02", "00:03"))
        game.wait_for("the clock to go on", lambda: game.time() == "00:04")

    def test_game_hides_in_the_tray_and_a_double_click_brings_it_back(self):
        self.desktop.start_tray()
        game = self.play_with_clock()
        self.hide(game)
        icon = self.wait_for_icon(game)
        time.sleep(2.5)
        self.desktop.click(*icon)
        time.sleep(0.6)
        self.assertFalse(self.is_shown(game))
        self.desktop.click(*icon)
        self.desktop.click(*icon)
        self.assert_clock_went_on(game)
        game.wait_for("the icon to go", lambda: not self.desktop.tray_icon(game.process.pid))

    def test_tray_that_vanishes_brings_the_game_back(self):
        tray = self.desktop.start_tray()
        game = self.play_with_clock()
        self.hide(game)
        game.wait_for("the icon", lambda: self.desktop.tray_icon(game.process.pid))
        tray.kill()
        self.assert_clock_went_on(game)

    def assert_comes_back_onto_a_smaller_screen(self, game, come_back):
        game.drag(BACKGROUND, (300, 250))
        place = lambda: next(iter(self.desktop.windows(game.process.pid)), None)
        game.wait_for("the window beside the smaller screen",
                      lambda: place() and place()[0] + WINDOW_SIZE[0] > 1024)
        self.hide(game)
        self.desktop.set_screen_size(1024, 768)
        come_back()
        game.wait_for("the window on the screen", lambda: place() and self.desktop.holds(place()))

    def test_game_comes_out_of_the_tray_onto_a_screen_that_is_smaller_now(self):
        self.desktop.start_tray()
        game = self.play_with_clock()

        def click_twice():
            icon = self.wait_for_icon(game)
            self.desktop.click(*icon)
            self.desktop.click(*icon)
        self.assert_comes_back_onto_a_smaller_screen(game, click_twice)

    def test_minimised_game_comes_back_onto_a_screen_that_is_smaller_now(self):
        game = self.play_with_clock()
        self.assert_comes_back_onto_a_smaller_screen(
            game, lambda: self.desktop.activate(game.process.pid))

    def test_game_is_minimised_where_there_is_no_tray(self):
        game = self.play_with_clock()
        self.hide(game)
        time.sleep(2.5)
        self.desktop.activate(game.process.pid)
        self.assert_clock_went_on(game)


    def test_game_that_is_on_x_as_there_is_no_wayland_is_minimised_too(self):
        self.desktop.environment["QT_QPA_PLATFORM"] = "wayland;xcb"
        game = self.play_with_clock()
        self.hide(game)
        self.desktop.activate(game.process.pid)
        self.assert_clock_went_on(game)


class HidingWithoutWindowManager(Hiding):
    WINDOW_MANAGER = False

    def test_game_hides_in_the_tray_without_a_window_manager(self):
        self.desktop.start_tray()
        game = self.play_with_clock()
        self.hide(game)
        icon = self.wait_for_icon(game)
        self.desktop.click(*icon)
        self.desktop.click(*icon)
        self.assert_clock_went_on(game)

    def test_game_that_cannot_be_hidden_keeps_its_clock_running(self):
        game = self.play_with_clock()
        game.click("Hide")
        self.assert_clock_went_on(game)

    test_game_hides_in_the_tray_and_a_double_click_brings_it_back = None
    test_tray_that_vanishes_brings_the_game_back = None
    test_game_is_minimised_where_there_is_no_tray = None
    test_game_that_is_on_x_as_there_is_no_wayland_is_minimised_too = None
    test_minimised_game_comes_back_onto_a_screen_that_is_smaller_now = None


class Ending(GameTestCase):
    def assert_ends(self, game, number=signal.SIGTERM, keys=KEPT):
        asked = time.monotonic()
        game.process.send_signal(number)
        self.assertEqual(game.wait_for_exit(), 0)
        self.assertLess(time.monotonic() - asked, 1)
        self.assertEqual(stored_settings(self.desktop).count(b"="), keys)

    def test_sigterm_on_the_idle_board_saves_and_ends(self):
        self.assert_ends(self.play())

    def test_sigint_during_a_wait_saves_and_ends(self):
        game = self.play()
        game.start()
        game.fill(1, (1, 1, 2, 2))
        game.click("Check")
        game.wait_for("the check to begin", lambda: not game.is_enabled("Exit"))
        self.assert_ends(game, signal.SIGINT, keys=KEPT_IN_A_GAME)

    def test_sighup_at_a_question_saves_and_ends(self):
        game = self.play()
        game.click("Exit")
        game.wait_for_messages("- Exit -", "Are you sure ?")
        self.assert_ends(game, signal.SIGHUP)

    def test_sigterm_in_a_modal_window_saves_and_ends(self):
        game = self.play(CLOCK_ON)
        game.click("High")
        game.wait_for("the window",
                      lambda: self.desktop.place_of_window(game.process.pid, (460, 448)))
        self.assert_ends(game)

    def test_sigterm_at_a_box_takes_the_box_along(self):
        game = self.play()
        shutil.rmtree(os.path.join(self.folder, "Skin", "Atelier", "About"))
        game.click("About")
        game.wait_for("the box", game.box_button)
        self.assert_ends(game)

    def test_sigterm_while_hidden_saves_and_ends(self):
        self.desktop.start_tray()
        game = self.play()
        game.click("Hide")
        game.wait_for("the icon", lambda: self.desktop.tray_icon(game.process.pid))
        self.assert_ends(game)


class Start(GameTestCase):
    def test_splash_is_seen_for_four_seconds_and_nothing_is_stored_by_ending_in_them(self):
        process = self.desktop.run([PLAYERS_PROGRAM, "--folder", FOLDER])
        shown = lambda: self.desktop.place_of_window(process.pid, SPLASH_SIZE)
        wait_for("the splash", shown)
        began = time.monotonic()
        wait_for("the splash to go", lambda: not shown(), 8)
        self.assertGreaterEqual(time.monotonic() - began, 3.9)
        process.kill()
        process.wait()

        process = self.desktop.run([PLAYERS_PROGRAM, "--folder", FOLDER])
        wait_for("the splash", shown)
        process.terminate()
        self.assertEqual(process.wait(1), 0)
        self.assertFalse(os.path.exists(settings_path(self.desktop)))

    def test_help_and_version_need_no_display(self):
        environment = {"PATH": os.environ["PATH"]}
        for option, words in (("--help", "Usage: quendrel"), ("--version", "Quendrel v1.0\n")):
            said = subprocess.run([PLAYERS_PROGRAM, option], env=environment, capture_output=True,
                                  text=True, timeout=10, check=True)
            self.assertTrue(said.stdout.startswith(words), said.stdout)
            self.assertEqual("\nKeys:\n  1 to 9, 0 " in said.stdout, option == "--help")
            self.assertEqual(said.stderr, "")


class Screen(unittest.TestCase):
    TITLE = "Quendrel v1.0 System Request"
    TEXT = ("The minimum screen requirements for playing Quendrel v1.0\n"
            "is 800x600 16bit. But to get the best gaming experience i\n"
            "recomend that you play it in 1024x768 24bit...")

    def start_on(self, screen):
        desktop = Desktop(screen=screen)
        self.addCleanup(desktop.close)
        return desktop, desktop.run([PLAYERS_PROGRAM, "--folder", FOLDER])

    def test_too_small_a_screen_is_refused_with_the_message(self):
        for screen in ("799x600x24", "800x599x24", "800x600x15"):
            with self.subTest(screen):
                desktop, process = self.start_on(screen)
                ok = wait_for("the message's button",
                              lambda: desktop.accessibility.box_button(process.pid))
                box = desktop.accessibility.program(process.pid)
                names = [thing.name for thing in box.descendants()]
                self.assertIn(self.TEXT, names)
                self.assertIn(self.TITLE, names)
                desktop.click_middle(ok.place)
                self.assertEqual(process.wait(5), 3)

    def test_too_small_a_screen_is_refused_before_the_splash_by_a_red_sign_and_one_button(self):
        desktop, process = self.start_on("799x600x24")
        seen = set()

        def button():
            seen.update(place[2:] for place in desktop.windows(process.pid))
            return desktop.accessibility.box_button(process.pid)
        wait_for("the message's button", button)
        self.assertEqual(len(desktop.windows(process.pid)), 1)
        self.assertNotIn(SPLASH_SIZE, seen)
        box = list(desktop.accessibility.program(process.pid).descendants())
        self.assertEqual([thing.name for thing in box if thing.role == "push button"], ["OK"])
        sign, = (thing.place for thing in box if thing.role == "graphic")
        pixels = b"".join(desktop.grab(*sign).rows)
        red = [1 for blue, green, red in zip(pixels[0::3], pixels[1::3], pixels[2::3])
               if red > 150 and green < 100 and blue < 100]
        self.assertGreater(len(red), sign[2] * sign[3] // 3)

    def test_a_screen_of_800_by_600_with_16_bits_is_enough(self):
        desktop, process = self.start_on("800x600x16")
        wait_for("the splash", lambda: desktop.place_of_window(process.pid, SPLASH_SIZE))
        self.assertIsNone(process.poll())


class About(GameTestCase):
    def test_about_window_opens_once_beside_the_game_and_goes_with_ok(self):
        game = self.play()
        shown = lambda: self.desktop.place_of_window(game.process.pid, ABOUT_SIZE)
        game.click("About")
        x, y = game.wait_for("the about window", shown)
        before = game.board().pegs()
        game.wait_for("the game behind it to go on", lambda: game.board().pegs() != before)
        game.click("About")
        time.sleep(0.3)
        self.assertEqual(shown(), (x, y))
        self.desktop.click(x + 396, y + 223)
        game.wait_for("the about window to go", lambda: not shown())


class AboutWithoutWindowManager(GameTestCase):
    WINDOW_MANAGER = False

    def test_keyboard_goes_back_to_the_game_where_there_is_no_window_manager(self):
        game = self.play()
        self.desktop.wait_for_focus(game.process.pid)
        game.click("About")
        shown = lambda: self.desktop.place_of_window(game.process.pid, ABOUT_SIZE)
        game.wait_for("the about window", shown)
        self.desktop.strike("Escape")
        game.wait_for("the about window to go", lambda: not shown())
        self.desktop.wait_for_focus(game.process.pid)


class LostPictures(GameTestCase):
    """A window whose pictures have gone since the start does not open; the game goes on."""

    def assert_game_goes_on_without(self, name):
        game = self.play("[Game]\nGameMode=0\n[Misc]\nGTimer=True\n")
        shutil.rmtree(os.path.join(self.folder, "Skin", "Atelier", name))
        game.click(name)
        lost = os.path.join(self.folder, "Skin", "Atelier", name, name + "mask.bmp")
        self.close_box(game, f"This window cannot be opened: {lost}: cannot be opened: "
                             "No such file or directory")
        game.wait_until_idle()
        game.start()
        game.fill(1, (1, 2, 3, 4))
        self.assertEqual(game.leave(), 0)

    def test_about_window_that_cannot_be_opened_says_so_and_the_game_goes_on(self):
        self.assert_game_goes_on_without("About")

    def test_configuration_window_that_cannot_be_opened_says_so_and_the_game_goes_on(self):
        self.assert_game_goes_on_without("Config")

    def test_highscore_window_that_cannot_be_opened_says_so_and_the_game_goes_on(self):
        self.assert_game_goes_on_without("High")


class Balloon(GameTestCase):
    HELP = ("Pressing this button will start the game in the mode you have selected in the top "
            "right corner.")

    def balloon(self, game):
        """The place (x, y, width, height) of the shown balloon, or None."""
        return self.desktop.place_of_named_window("popHelp", game.process.pid)

    def rest_on(self, game, name):
        x, y, width, height = game.button(name).place
        self.desktop.move_pointer(x + width // 2, y + height // 2)
        return x, y, width, height

    def assert_comes_beside(self, game, name):
        """And goes when the pointer leaves the button."""
        x, y, width, height = self.rest_on(game, name)
        left, top, wide, high = game.wait_for("the balloon", lambda: self.balloon(game))
        apart = (left + wide <= x or left >= x + width or top + high <= y or top >= y + height)
        self.assertTrue(apart)
        self.assertTrue(left < x + width // 2 < left + wide)
        game.rest_pointer()
        game.wait_for("the balloon to go", lambda: not self.balloon(game))

    def test_balloon_comes_after_a_rest_beside_its_control_and_goes_on_leaving(self):
        game = self.play()
        self.assert_comes_beside(game, "Start")
        self.assertEqual(game.button("Start").description, self.HELP)

    def test_balloon_comes_on_disabled_buttons_and_on_a_color_that_is_switched_off(self):
        game = self.play()
        game.click("Blue", RIGHT)
        game.rest_pointer()
        for name in ("Check", "Blue"):
            game.wait_for(f"a disabled {name}", lambda: not game.is_enabled(name))
            self.assert_comes_beside(game, name)

    def test_press_on_a_balloon_reaches_what_lies_beneath(self):
        game = self.play()
        self.rest_on(game, "Exit")
        left, top, wide, high = game.wait_for("the balloon", lambda: self.balloon(game))
        x, y = center(game.button("Config").place[:2], game.button("Config").place[2:])
        self.assertTrue(left < x < left + wide and top < y < top + high)
        game.click("Config")
        game.wait_for("the configuration window",
                      lambda: self.desktop.place_of_window(game.process.pid, (640, 490)))

    def test_balloon_stays_away_where_help_is_switched_off(self):
        game = self.play("[Game]\nGameMode=0\n[Misc]\nToolTips=False\n")
        self.assertFalse(game.is_enabled("Check"))
        for name in ("Start", "Check"):
            self.rest_on(game, name)
            time.sleep(1.2)
            self.assertIsNone(self.balloon(game))


if __name__ == "__main__":
    unittest.main()
