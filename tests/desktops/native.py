"""The game where a player makes it speak to Wayland itself: there are no places of windows to ask
for, so they are looked for on the screen."""

import os
import time

from board import BUTTONS, WINDOW_SIZE
from desktop import LEFT, RIGHT
from game import BACKGROUND, EASY, FOLDER, HARD, PLAYING, Game, GameTestCase
from picture import Picture
from points import CLOCK_ON, WHITE
from wayland import KWinWayland, MutterWayland, Sway, Weston

BY = (-40, -30)
BESIDE = (5, 5)
"""A place of the window outside its outline."""


def box_of(differences):
    """(x, y, width, height) of what differs, given as numbers, a row each; or None."""
    rows = [y for y, row in enumerate(differences) if row]
    if not rows:
        return None
    every = 0
    for row in differences:
        every |= row
    return every, rows[0], rows[-1] - rows[0] + 1


def columns_of(every, width):
    """The first that differs, and how many there are up to the last."""
    bits = 24
    last = width - 1 - ((every & -every).bit_length() - 1) // bits
    first = width - 1 - (every.bit_length() - 1) // bits
    return first, last - first + 1


def number_of(row):
    return int.from_bytes(row, "big")


class NativeDesktop:
    """Of a Wayland desktop."""

    POINTER = 0
    """Not seen at all: whatever is seen counts as a window."""

    def __init__(self, *arguments):
        super().__init__(*arguments)
        self.environment["QT_QPA_PLATFORM"] = "wayland"
        mask = Picture.from_bmp(os.path.join(FOLDER, "Skin", "Atelier", "Game", "Boardmask.bmp"))
        white = number_of(WHITE * mask.width)
        self._outline = self._box([number_of(row) ^ white for row in mask.rows], mask.width)

    @staticmethod
    def _box(differences, width):
        found = box_of(differences)
        if not found:
            return None
        every, top, height = found
        left, across = columns_of(every, width)
        return left, top, across, height

    def shown_box(self):
        """(x, y, width, height) of all that covers the bare screen, or None."""
        shown = self.grab_all()
        return self._box([number_of(now) ^ number_of(bare) if now != bare else 0
                          for now, bare in zip(shown.rows, self.empty.rows)], shown.width)

    def place_of_window(self, pid, size):
        """Of the main window, while it stands alone."""
        box = self.shown_box()
        if size != WINDOW_SIZE or not box:
            return None
        wide, high = (abs(box[side] - self._outline[side]) for side in (2, 3))
        return (box[0] - self._outline[0], box[1] - self._outline[1]) if wide + high < 3 else None

    def windows(self, pid):
        return [at for at in [self.place_of_window(pid, WINDOW_SIZE)] if at]


class NativeWeston(NativeDesktop, Weston):
    pass


class NativeSway(NativeDesktop, Sway):
    pass


class NativeKWin(NativeDesktop, KWinWayland):
    pass


class NativeMutter(NativeDesktop, MutterWayland):
    pass


NATIVE_DESKTOPS = {
    "weston-native": NativeWeston,
    "sway-native": NativeSway,
    "kwin-native": NativeKWin,
    "mutter-native": NativeMutter,
}


class NativeGame(Game):
    def place(self, name):
        return self.on_screen(*BUTTONS[name])


class NativePoints(GameTestCase):
    """Each test is a point, and the table calls it by its name."""

    def setUp(self):
        super().setUp()
        self.game = self.play(CLOCK_ON)

    def start_again(self, mode=EASY, scale=1, options=()):
        return NativeGame(self.desktop, folder=self.folder, mode=mode, scale=scale,
                          options=options)

    def place(self):
        return self.desktop.place_of_window(self.game.process.pid, WINDOW_SIZE)

    def test_outline_of_the_mask(self):
        """The corner shows what is beneath."""
        at = self.game.on_screen(*BESIDE, 1, 1)
        self.assertEqual(self.desktop.grab(*at), self.desktop.empty.crop(*at))

    def test_row_is_played(self):
        self.game.start()
        self.game.fill(1, (1, 2, 3, 4))
        self.game.click("Check")
        self.game.wait_for("the second row", lambda: self.game.is_enabled("Clone"))
        self.assertEqual(self.game.messages(), PLAYING)

    def test_mode_is_switched_and_the_pointer_goes_on(self):
        for mode, name in ((HARD, "Hard"), (EASY, "Easy")):
            self.game.choose_mode(mode)
            self.game.wait_for("the mode", lambda: self.game.shows_button(name, "Down"))
        self.game.start()

    def drag(self, button):
        """It is let go once it has moved, since some desktops take their time."""
        before = self.game.origin
        self.game.drag(BACKGROUND, BY, button, release=False)
        wanted = before[0] + BY[0], before[1] + BY[1]
        self.game.wait_for("the window to be moved", lambda: all(
            abs(at - want) <= 4 for at, want in zip(self.place() or (0, 0), wanted)))
        self.desktop.release(button)
        stopped = self.place()
        self.desktop.move_pointer(*self.game.on_screen(*BACKGROUND, 0, 0)[:2])
        time.sleep(0.5)
        self.assertEqual(self.place(), stopped)

    def test_dragged_with_the_left_button(self):
        self.drag(LEFT)

    def test_dragged_with_the_right_button(self):
        self.drag(RIGHT)

    def still_life(self):
        """What the idle animation leaves alone, of the screen and of the main window."""
        return (self.desktop.shown_box(), self.game.grab(0, 220, 190, 380).rows,
                self.game.grab(530, 0, 120, 600).rows)

    def test_dialogs_open_above_and_close(self):
        alone = self.still_life()
        for name in ("Config", "High", "About"):
            self.game.wait_for(f"an enabled {name}", lambda: self.game.is_enabled(name))
            self.game.click(name)
            time.sleep(1)
            self.game.rest_pointer()
            self.assertTrue(self.still_life() != alone, name)
            # Where the keyboard follows the pointer, as on Sway, it is the dialog's only above it.
            x, y = self.game.origin
            self.desktop.move_pointer(x + WINDOW_SIZE[0] // 2, y + WINDOW_SIZE[1] // 2)
            time.sleep(0.5)
            self.desktop.strike("Escape")
            self.game.rest_pointer()
            self.game.wait_for(f"{name} to go", lambda: self.still_life() == alone)

    def test_hide_does_nothing_without_a_tray(self):
        before = self.place()
        self.game.click("Hide")
        self.game.rest_pointer()
        for _ in range(10):
            self.assertEqual(self.place(), before)
        self.game.start()
        clock = self.game.clock.name
        self.game.wait_for("the clock", lambda: self.game.clock.name != clock)

    def test_balloon_beside_its_button(self):
        x, y, width, height = self.game.place("Start")
        above = x - 20, y - 60, width + 40, 50
        for moved in (0, 1):  # the toolkit knows the pointer's place from its moves in the window
            self.desktop.move_pointer(x + width // 2 + moved, y + height // 2)
            time.sleep(0.1)
        paper = bytes((226, 250, 255)) * 20
        self.game.wait_for("the balloon", lambda: any(
            paper in row for row in self.desktop.grab(*above).rows))
        self.game.rest_pointer()
        self.game.wait_for("the balloon to go", lambda: not any(
            paper in row for row in self.desktop.grab(*above).rows))
