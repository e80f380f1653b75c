"""What a player expects of the game's windows on every desktop, a point after the other."""

import os
import time

from board import WINDOW_SIZE, center
from desktop import LEFT, RIGHT, wait_for
from desktops import SEEN_WALLPAPER as WALLPAPER
from game import BACKGROUND, FOLDER, PLAYERS_PROGRAM, PLAYING, GameTestCase
from picture import Picture

CONFIG_SIZE = (640, 490)
HIGH_SIZE = (460, 448)
ABOUT_SIZE = (464, 316)
SPLASH_SIZE = (460, 300)
MODAL = (("Config", CONFIG_SIZE), ("High", HIGH_SIZE))
ALL = MODAL + (("About", ABOUT_SIZE),)
CLOCK_ON = "[Game]\nGameMode=0\n[Misc]\nGTimer=True\n"
PAPER = bytes((226, 250, 255))
WHITE = b"\xff\xff\xff"
BY = (60, 40)


class Points(GameTestCase):
    """Each test is a point, and the table calls it by its name."""

    def setUp(self):
        super().setUp()
        self.desktop.move_pointer(100, 100)
        self.game = self.play(CLOCK_ON)
        self.main = self.shown(WINDOW_SIZE)
        self.game.origin = self.place()[:2]

    def shown(self, size):
        """The game's window of that size, once it is there and has come to rest."""
        window = self.game.wait_for(f"the window of {size}",
                                    lambda: self.desktop.window(self.game.process.pid, size))
        self.wait_until_it_rests(window)
        return window

    def wait_until_it_rests(self, window):
        return self.wait_for_rest("the window", lambda: self.place(window))

    def wait_for_rest(self, what, place):
        """Returns where it is then."""
        places = []

        def rests():
            time.sleep(0.1)
            places.append(place())
            return len(places) > 3 and places[-1] if len(set(places[-4:])) == 1 else None
        return self.game.wait_for(f"{what} to rest", rests)

    def open(self, name, size):
        self.game.wait_for(f"an enabled {name}", lambda: self.game.is_enabled(name))
        self.game.click(name)
        return self.shown(size)

    def close(self, size):
        self.desktop.strike("Escape")
        self.game.wait_for("the window to go",
                           lambda: not self.desktop.window(self.game.process.pid, size))
        self.wait_for_focus_on(self.main)

    def place(self, window=None):
        return self.desktop.place(window or self.main)

    def is_on_top(self, window):
        place = self.place(window)
        return self.desktop.window_at(*center(place[:2], place[2:])) == window.id

    def wait_for_focus_on(self, window):
        self.game.wait_for("the keyboard's focus on the window",
                           lambda: self.desktop.focused() == window.id)

    def assert_stays(self, condition, seconds=0.5):
        deadline = time.monotonic() + seconds
        while time.monotonic() < deadline:
            self.assertTrue(condition())
            time.sleep(0.05)

    def need_list(self):
        if not self.desktop.HAS_LIST:
            self.skipTest("there is no window manager to keep a list of windows")

    def need_two_monitors(self):
        if not self.desktop.MONITORS:
            self.skipTest("there is one monitor")

    # Where the windows are

    def test_main_window_in_the_middle(self):
        x, y, width, height = (self.desktop.MONITORS or [self.desktop.room()])[0]
        at = self.place()
        self.assertLessEqual(abs(2 * at[0] + at[2] - 2 * x - width), 2)
        self.assertLessEqual(abs(2 * at[1] + at[3] - 2 * y - height), 2)

    def test_outline_of_the_mask(self):
        mask = Picture.from_bmp(os.path.join(FOLDER, "Skin", "Atelier", "Game", "Boardmask.bmp"))
        shown = self.game.grab()
        beneath = self.desktop.empty.crop(*self.place())
        for y, (row, line, bare) in enumerate(zip(mask.rows, shown.rows, beneath.rows)):
            for x in range(0, len(row), 3):
                if self.is_near_edge(mask, x, y):
                    continue
                if row[x:x + 3] == WHITE:
                    if not self.desktop.SHADOWS:
                        self.assertEqual(line[x:x + 3], bare[x:x + 3], (x // 3, y))
                else:
                    self.assertNotEqual(line[x:x + 3], WALLPAPER, (x // 3, y))

    @staticmethod
    def is_near_edge(mask, x, y):
        """Whether it is not the same on all sides, where a compositor smooths the edge."""
        around = {row[beside:beside + 3] == WHITE for row in mask.rows[max(0, y - 1):y + 2]
                  for beside in range(max(0, x - 3), min(len(row), x + 4), 3)}
        return len(around) > 1

    def test_no_shadow_of_the_rectangle(self):
        """Outside the outline the wallpaper is as it was, all around the window."""
        x, y, width, height = self.place()
        if self.desktop.SHADOWS:
            self.skipTest(self.desktop.SHADOWS)
        around = x - 40, y - 40, width + 80, height + 80
        seen, beneath = self.desktop.grab(*around), self.desktop.empty.crop(*around)
        self.assertEqual(seen.rows[:40] + seen.rows[-40:], beneath.rows[:40] + beneath.rows[-40:])
        for row, bare in zip(seen.rows, beneath.rows):
            self.assertEqual(row[:120] + row[-120:], bare[:120] + bare[-120:])

    def test_dialogs_over_the_main_window(self):
        if self.desktop.PLACES:
            self.skipTest(self.desktop.PLACES)
        for name, size in ALL:
            at = self.place(self.open(name, size))
            x, y, width, height = self.place()
            left = x + (195 if name == "High" else 0)
            self.assertLessEqual(abs((left + x + width) / 2 - at[0] - at[2] / 2), 1, name)
            self.assertLessEqual(abs(2 * y + height - 2 * at[1] - at[3]), 2, name)
            self.close(size)
            self.assertEqual(self.place(), (x, y, width, height), name)

    def put(self, x, y):
        """The main window there, by its background."""
        at = self.game.origin = self.place()[:2]
        self.game.drag(BACKGROUND, (x - at[0], y - at[1]), RIGHT)
        self.game.wait_for("the window to be moved", lambda: all(
            abs(at - want) <= 4 for at, want in zip(self.place(), (x, y))), 3)
        self.game.origin = self.place()[:2]
        self.game.rest_pointer()

    def is_within(self, window, room):
        x, y, width, height = self.place(window)
        return (room[0] <= x and x + width <= room[0] + room[2] and
                room[1] <= y and y + height <= room[1] + room[3])

    def scales(self):
        return self.desktop.ENVIRONMENT.get("QT_SCREEN_SCALE_FACTORS")

    def test_comes_back_onto_a_smaller_screen(self):
        if self.desktop.MONITORS:
            self.skipTest("tried with one monitor")
        if self.desktop.SCREEN:
            self.skipTest(self.desktop.SCREEN)
        about = self.open("About", ABOUT_SIZE)
        self.put(500, 300)
        self.desktop.set_screen_size(1024, 768)
        for window in (self.main, about):
            self.game.wait_for("the window on the screen",
                               lambda: self.is_within(window, (0, 0, 1024, 768)), 5)

    def test_dialogs_on_the_monitor_of_the_main_window(self):
        """Most of which is on the first one, but not most of the board."""
        self.need_two_monitors()
        first = self.desktop.MONITORS[0]
        self.put(first[2] - 350, 300)
        for name, size in ALL:
            self.assertTrue(self.is_within(self.open(name, size), first), name)
            self.close(size)

    def test_balloon_on_the_monitor_of_its_button(self):
        self.need_two_monitors()
        if self.scales():
            self.skipTest("the window goes over to the other scale")
        first = self.desktop.MONITORS[0]
        self.put(first[2] - 190, 300)
        self.desktop.move_pointer(*self.game.on_screen(145, 503, 0, 0)[:2])
        self.game.wait_for("the balloon", self.balloon)
        left, _, width, _ = self.balloon()
        self.assertLessEqual(left + width, first[2])

    def test_follows_the_scale_of_the_monitor(self):
        if not self.scales():
            self.skipTest("there is one scale")
        x = (second := self.desktop.MONITORS[1])[0]
        hold = 300, 22
        at = self.game.origin = self.place()[:2]
        self.game.drag(hold, (x + hold[0] + 100 - at[0], -300), RIGHT)
        larger = self.shown((2 * WINDOW_SIZE[0], 2 * WINDOW_SIZE[1]))
        self.assertTrue(self.is_within(larger, second))
        self.game.wait_for_scale(2)
        self.desktop.click(*self.game.on_screen(145, 503, 0, 0)[:2])
        config = self.shown((2 * CONFIG_SIZE[0], 2 * CONFIG_SIZE[1]))
        self.assertTrue(self.is_within(config, second))

    # Moving them

    def drag(self, button):
        before = self.game.origin = self.place()[:2]
        self.game.drag(BACKGROUND, BY, button)
        wanted = before[0] + BY[0], before[1] + BY[1]

        def is_there():
            return all(abs(at - want) <= 4 for at, want in zip(self.place(), wanted))
        self.game.wait_for("the window to be moved", is_there, 3)
        self.desktop.move_pointer(10, 10)
        self.assert_stays(is_there)

    def test_dragged_with_the_left_button(self):
        self.drag(LEFT)

    def test_dragged_with_the_right_button(self):
        self.drag(RIGHT)

    # What a task bar shows

    def test_one_entry_in_the_task_bar(self):
        self.need_list()
        self.game.wait_for("the entry", lambda: self.desktop.listed(self.game.process.pid))
        for name, size in ALL:
            self.open(name, size)
            self.assert_stays(lambda: [window.id for window in self.desktop.listed(
                self.game.process.pid)] == [self.main.id])
            self.close(size)

    def test_splash_in_no_task_bar(self):
        self.need_list()
        self.game.process.kill()
        self.game.process.wait()
        splash = self.desktop.run([PLAYERS_PROGRAM, "--folder", self.folder])
        wait_for("the splash", lambda: self.desktop.window(splash.pid, SPLASH_SIZE))
        self.assert_stays(lambda: not self.desktop.listed(splash.pid))

    def test_name_class_and_icon(self):
        self.assertEqual(self.desktop.text(self.main, "_NET_WM_NAME"), "Quendrel")
        self.assertEqual(self.main.get_wm_class()[1].lower(), "quendrel")
        icon = self.desktop.hint(self.main, "_NET_WM_ICON")
        self.assertEqual(icon[0], icon[1])
        self.assertGreater(len(set(icon)), 50)
        titles = {"Config": "Quendrel: Configuration", "High": "Quendrel: Highscores",
                  "About": "About Quendrel"}
        for name, size in ALL:
            self.assertEqual(self.desktop.text(self.open(name, size), "_NET_WM_NAME"), titles[name])
            self.close(size)

    # Focus and order

    def test_focus_where_it_is_expected(self):
        self.wait_for_focus_on(self.main)
        for name, size in ALL:
            self.wait_for_focus_on(self.open(name, size))
            self.close(size)

    def test_dialogs_belong_to_the_main_window(self):
        for name, size in ALL:
            self.assertEqual(self.desktop.owner(self.open(name, size)), self.main.id, name)
            self.close(size)

    def click_main_window(self):
        """Where none of the dialogs lies over it."""
        self.game.click_at(*BACKGROUND)

    def test_modal_windows_stay_above(self):
        for name, size in MODAL:
            dialog = self.open(name, size)
            self.game.wait_for("the window in front", lambda: self.is_on_top(dialog))
            self.click_main_window()
            if not self.desktop.BURIES_MODAL:
                self.assert_stays(lambda: self.is_on_top(dialog))
            self.close(size)
        if self.desktop.BURIES_MODAL:
            self.skipTest(self.desktop.BURIES_MODAL)

    def test_about_window_stays_above_and_lets_the_game_go_on(self):
        about = self.open("About", ABOUT_SIZE)
        if self.desktop.RAISES_PRESSED:
            self.skipTest(self.desktop.RAISES_PRESSED)
        self.game.click("Start")
        self.game.wait_for_messages(*PLAYING)
        self.assert_stays(lambda: self.is_on_top(about))

    # Hiding

    def is_viewable(self):
        return self.desktop.is_shown(self.main.id)

    def test_minimised_and_back_in_its_place(self):
        self.need_list()
        if self.desktop.TILES:
            self.skipTest("the window manager minimises nothing")
        before = self.place()
        for _ in range(2):
            self.game.click("Hide")
            self.game.wait_for("the window to go", lambda: "_NET_WM_STATE_HIDDEN" in
                               self.desktop.names_in(self.main, "_NET_WM_STATE"))
            self.desktop.activate(self.game.process.pid)
            self.game.wait_for("the window to come back",
                               lambda: self.is_viewable() and self.is_on_top(self.main))
            self.wait_until_it_rests(self.main)
            self.assertEqual(self.place(), before)

    def test_hidden_in_the_tray_and_back_in_its_place(self):
        if self.desktop.TRAY:
            self.skipTest(self.desktop.TRAY)
        self.desktop.start_tray()
        before = self.place()
        self.game.click("Hide")
        icon = self.wait_for_rest("the icon",
                                  lambda: self.desktop.tray_icon(self.game.process.pid))
        self.assertFalse(self.is_viewable())
        self.desktop.move_pointer(*icon)
        for _ in range(2):
            for act in (self.desktop.press, self.desktop.release):
                time.sleep(0.06)
                act()
        self.game.wait_for("the window to come back",
                           lambda: self.is_viewable() and self.is_on_top(self.main))
        self.wait_until_it_rests(self.main)
        self.assertEqual(self.place(), before)

    def test_dialogs_go_along_to_another_workspace(self):
        self.need_list()
        if not self.desktop.make_two_workspaces():
            self.skipTest("the window manager has one workspace")
        about = self.open("About", ABOUT_SIZE)
        self.desktop.ask(self.main, "_NET_WM_DESKTOP", 1, 2)
        for window in (self.main, about):
            self.game.wait_for("the window on the other workspace",
                               lambda: self.desktop.workspace(window) == 1, 3)

    # The pointer and the balloon

    def balloon(self):
        return self.desktop.place_of_named_window("popHelp", self.game.process.pid)

    def test_pointer_kept_in_a_held_button(self):
        x, y, width, height = self.game.place("Easy")
        self.desktop.move_pointer(x + width // 2, y + height // 2)
        self.desktop.press()
        time.sleep(0.1)
        self.desktop.move_pointer(20, 20)

        def is_inside():
            at = self.desktop.pointer()
            return x <= at[0] < x + width and y <= at[1] < y + height
        self.game.wait_for("the pointer back in the button", is_inside)
        self.desktop.release()
        time.sleep(0.1)
        outside = self.game.on_screen(*BACKGROUND, 0, 0)[:2]

        def is_outside():
            return all(abs(at - want) <= 1 for at, want in zip(self.desktop.pointer(), outside))

        def goes_outside():
            for x, y in ((outside[0] + 1, outside[1]), outside):
                self.desktop.move_pointer(x, y)
            return is_outside()
        self.game.wait_for("the freed pointer", goes_outside)
        self.assert_stays(is_outside, 0.2)

    def test_balloon_beside_its_button(self):
        x, y, width, height = self.game.place("Start")
        self.desktop.move_pointer(x + width // 2, y + height // 2)
        left, top, wide, high = self.game.wait_for("the balloon", self.balloon)
        self.assertTrue(left < x + width // 2 < left + wide)
        self.assertLessEqual(min(abs(top + high - y), abs(y + height - top)), 4)
        self.assertEqual(self.desktop.focused(), self.main.id)

    def test_balloon_has_round_corners(self):
        """What is beneath shows in them."""
        x, y, width, height = self.game.place("Start")
        self.desktop.move_pointer(x + width // 2, y + height // 2)
        left, top, wide, high = self.game.wait_for("the balloon", self.balloon)
        self.game.wait_for("the balloon to be painted", lambda: PAPER == self.desktop.pixel(
            left + wide - 12, top + high // 2))
        corners = [(left, top), (left + wide - 1, top)]
        shown = [self.desktop.pixel(*corner) for corner in corners]
        # Over the window, as a hand: of a leap some desktops tell the X server nothing.
        self.desktop.move_pointer(*self.game.on_screen(*BACKGROUND, 0, 0)[:2])
        self.desktop.move_pointer(5, 5)
        self.game.wait_for("the balloon to go", lambda: not self.balloon())
        self.game.wait_for("what is beneath", lambda: shown == [
            self.desktop.pixel(*corner) for corner in corners], 1)

    def test_no_balloon_where_the_pointer_is_not(self):
        """A dialog closes over a button that the pointer has left."""
        self.open("Config", CONFIG_SIZE)
        self.desktop.move_pointer(5, 5)
        self.close(CONFIG_SIZE)
        self.assert_stays(lambda: not self.balloon(), 1.5)
