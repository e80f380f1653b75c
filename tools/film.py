"""Plays a game as a player would and films it: film.py FOLDER OUT, with the program in FOLDER."""

import itertools
import os
import random
import sys
import threading
import time

from PIL import Image, ImageChops, ImageDraw
from Xlib import X, display

from board import COLOR_NAMES, COLORS, COLUMNS, PEG, WINDOW_SIZE, center, peg_at
from desktop import Desktop
from game import EASY, PLAYING, Game, store_settings
from solving import marks_for

SCREEN = (800, 640)
GROUND = 0x4A5560
MARGIN = 16
"""Of ground around the window."""
FRAMES_A_SECOND = 8
SHARE = 2 / 3
"""Of its size on the screen, in which the film is kept: the README's readers load it whole."""
QUALITY = 40
SPLASH_SECONDS = 1.6
LAST_SECONDS = 2.5
LAST_ROW = 4
"""A game that is not won by then is not worth its film."""
SETTINGS = "[Game]\nGameMode=0\n[Sound]\nMusic=False\n[Misc]\nToolTips=False\n"
FIRST_GUESS = (1, 1, 2, 3)

ARROW = ((0, 0), (0, 17), (4, 13.2), (6.8, 19.6), (9.4, 18.5), (6.7, 12.2), (12, 12.2))
FINE = 4
"""The arrow is drawn so many times as large and made smaller, for smooth edges."""


def arrow():
    points = [((x + 1) * FINE, (y + 1) * FINE) for x, y in ARROW]
    image = Image.new("RGBA", (15 * FINE, 22 * FINE))
    draw = ImageDraw.Draw(image)
    draw.polygon(points, fill="white")
    draw.line([*points, points[0], points[1]], fill="black", width=FINE, joint="curve")
    return image.resize((15, 22), Image.LANCZOS)


class Camera:
    """Takes pictures of the whole screen, with the pointer drawn in, until it is stopped."""

    def __init__(self, name):
        self.shots = []
        """(seconds, image)"""
        self._arrow = arrow()
        self._stopped = threading.Event()
        self._thread = threading.Thread(target=self._run, args=(display.Display(name),))
        self._thread.start()

    def stop(self):
        self._stopped.set()
        self._thread.join()

    def _run(self, screen):
        root = screen.screen().root
        while not self._stopped.wait(1 / FRAMES_A_SECOND):
            at = root.query_pointer()
            data = root.get_image(0, 0, *SCREEN, X.ZPixmap, 0xFFFFFFFF).data
            shot = Image.frombuffer("RGB", SCREEN, data, "raw", "BGRX", 0, 1).copy()
            shot.paste(self._arrow, (at.root_x - 1, at.root_y - 1), self._arrow)
            self.shots.append((time.monotonic(), shot))


class Hand:
    """Moves the pointer as a hand does, and presses."""

    def __init__(self, desktop):
        self._desktop = desktop

    def move(self, x, y):
        from_x, from_y = self._desktop.pointer()
        way = ((x - from_x) ** 2 + (y - from_y) ** 2) ** 0.5
        steps = round(8 + way / 45)
        for step in range(1, steps + 1):
            done = step / steps
            share = done * done * (3 - 2 * done)
            self._desktop.move_pointer(round(from_x + (x - from_x) * share),
                                       round(from_y + (y - from_y) * share))
            time.sleep(0.015)

    def press(self, x, y):
        self.move(x, y)
        time.sleep(0.03)
        self._desktop.press()
        time.sleep(0.06)
        self._desktop.release()


class Player:
    def __init__(self, game):
        self._game = game
        self._hand = Hand(game.desktop)

    def click(self, name):
        place = self._game.place(name)
        self._hand.press(*center(place[:2], place[2:]))

    def fill(self, row, guess):
        """A colour after the other, as they come."""
        for color in dict.fromkeys(guess):
            self.click(COLOR_NAMES[color - 1])
            for column in (i for i, each in enumerate(guess, 1) if each == color):
                x, y = center(peg_at(column, row), PEG)
                self._hand.press(*self._game.on_screen(x, y, 0, 0)[:2])

    def wins(self):
        """Plays a game, and gives up after the last row that is filmed."""
        game = self._game
        self.click("Start")
        game.wait_for_messages(*PLAYING)
        candidates = list(itertools.product(range(1, COLORS[EASY] + 1), repeat=COLUMNS[EASY]))
        guess = FIRST_GUESS
        for row in range(1, LAST_ROW + 1):
            self.fill(row, guess)
            self.click("Check")
            marks = game.verdict(row)
            if marks == (1,) * COLUMNS[EASY]:
                game.wait_for("the revealed code", lambda: game.board().code() == guess)
                return True
            candidates = [code for code in candidates if marks_for(guess, code) == marks]
            guess = random.choice(candidates)
        return False


def film(folder):
    """The shots of a game that is won, and when its splash and its window came."""
    desktop = Desktop(screen=f"{SCREEN[0]}x{SCREEN[1]}x24")
    try:
        desktop.listen_beneath(GROUND)
        desktop.start_compositor()
        desktop.move_pointer(SCREEN[0] // 2, SCREEN[1] - MARGIN)
        store_settings(desktop, SETTINGS)
        camera = Camera(desktop.environment["DISPLAY"])
        try:
            game = Game(desktop, os.path.join(folder, "quendrel"), folder, EASY)
            ready = time.monotonic()
            game.wait_until_idle()
            won = Player(game).wins()
            time.sleep(LAST_SECONDS)
        finally:
            camera.stop()
        return (camera.shots, ready, game.origin) if won else None
    finally:
        desktop.close()


def cut(shots, ready, origin):
    """The part of the film that is shown: (seconds, image)."""
    ground = shots[0][1]
    splash = next(when for when, shot in shots if ImageChops.difference(shot, ground).crop(
        (100, 100, SCREEN[0] - 100, SCREEN[1] - 100)).getbbox())
    left, top = origin[0] - MARGIN, origin[1] - MARGIN
    frame = (left, top, left + WINDOW_SIZE[0] + 2 * MARGIN, top + WINDOW_SIZE[1] + 2 * MARGIN)
    return [(when, shot.crop(frame)) for when, shot in shots
            if splash <= when < splash + SPLASH_SECONDS or when >= ready]


def small(shot):
    return shot.resize([round(side * SHARE) for side in shot.size], Image.LANCZOS)


def save(shots, path):
    """Shots that are alike become one, which is shown longer."""
    images, durations = [], []
    for shot in (small(shot) for _, shot in shots):
        if images and not ImageChops.difference(shot, images[-1]).getbbox():
            durations[-1] += 1000 // FRAMES_A_SECOND
        else:
            images.append(shot)
            durations.append(1000 // FRAMES_A_SECOND)
    images[0].save(path, save_all=True, append_images=images[1:], duration=durations, loop=0,
                   quality=QUALITY, method=4, kmin=30, kmax=200)
    print(f"{path}: {len(images)} pictures, {sum(durations) / 1000:.0f} s, "
          f"{os.path.getsize(path) / 1e6:.1f} MB")


def main(folder, out):
    taken = None
    while taken is None:
        taken = film(folder)
    save(cut(*taken), out)


if __name__ == "__main__":
    main(*sys.argv[1:])
