"""Saves pictures of the game for people to look at: screenshots.py PROGRAM FOLDER OUT."""

import os
import sys
import time

from board import COLORS, COLUMNS
from desktop import RIGHT, Desktop
from game import EASY, HARD, MEDIUM, Game, store_settings
from picture import Picture

MODE_NAMES = ("easy", "medium", "hard")


class Camera:
    def __init__(self, out):
        self._out = out
        os.makedirs(out, exist_ok=True)

    def take(self, game, name):
        game.rest_pointer()
        self.save(game.grab(), name)

    def save(self, picture, name):
        path = os.path.join(self._out, name + ".png")
        picture.save_png(path)
        print(path)


def with_game(program, folder, settings, scene):
    """Plays `scene` on a fresh desktop."""
    desktop = Desktop()
    try:
        mode = next(mode for mode in (EASY, MEDIUM, HARD) if f"GameMode={mode}" in settings)
        store_settings(desktop, settings)
        scene(Game(desktop, program, folder, mode))
    finally:
        desktop.close()


def mid_game(camera, name):
    def scene(game):
        colors = COLORS[game.mode]
        columns = COLUMNS[game.mode]
        game.wait_until_idle()
        camera.take(game, f"{name}-idle")
        game.start()
        for row in (1, 2, 3):
            game.fill(row, [(row * 2 + column * 3) % colors + 1 for column in range(columns)])
            game.check(row)
        for column in (1, 2):
            game.put(column, column, 4)
        camera.take(game, f"{name}-game")
        if game.mode == EASY:
            questions(game, camera)
    return scene


def questions(game, camera):
    for color in ("Red", "Black"):
        game.click(color, RIGHT)
    game.wait_for("a disabled color", lambda: not game.is_enabled("Black"))
    camera.take(game, "disabled-colors")
    game.click("Clone")
    game.wait_for_messages("", "- Clone -", "Choose a row !")
    camera.take(game, "clone-choice")
    game.choose_row(1)
    game.click("Exit")
    game.wait_for_messages("- Exit -", "Are you sure ?")
    camera.take(game, "question")


def code_entry_and_win(camera):
    def scene(game):
        game.click("Start")
        game.wait_for_messages("Please set your color combi-", "nation.Press ok when done.")
        game.set_code((2, 5, 3))
        camera.take(game, "code-entry")
        game.set_code((2, 5, 3, 1))
        game.answer("Ok")
        game.wait_for_messages("", "Game in progress...")
        game.fill(1, (2, 2, 3, 4))
        game.check(1)
        game.fill(2, (2, 5, 3, 1))
        game.check(2)
        game.wait_for("the revealed code", lambda: game.board().code() == (2, 5, 3, 1))
        camera.take(game, "win")
    return scene


def windows(camera, skin):
    """The four windows of a skin, the main one in mid-game."""
    def shoot(game, size, name):
        place = game.wait_for(name, lambda: game.desktop.place_of_window(game.process.pid, size))
        time.sleep(1)
        camera.save(game.desktop.grab(*place, *size), f"{skin}-{name}")
        return place

    def scene(game):
        game.use_skin(skin)
        mid_game(camera, skin)(game)
        game.click("About")
        x, y = shoot(game, (464, 316), "about")
        game.desktop.click(x + 396, y + 223)
        game.click("High")
        x, y = shoot(game, (460, 448), "high")
        game.desktop.click(x + 362, y + 401)
        game.click("Config")
        shoot(game, (640, 490), "config")
    return scene


def button_page(skin_folder):
    """Every picture of every button of a skin, a window after the other, a button after the
    other."""
    page = Picture(800, [b"\x78\x74\x70" * 800] * 2000)
    x = y = height = 0
    for window in ("Game", "Config", "High", "About"):
        folder = os.path.join(skin_folder, window, "Interface")
        for name in sorted(os.listdir(folder)):
            picture = Picture.from_bmp(os.path.join(folder, name))
            if x + picture.width + 6 > page.width:
                x, y, height = 0, y + height + 6, 0
            page = page.with_pasted(picture, x + 3, y + 3)
            x, height = x + picture.width + 6, max(height, picture.height)
    return page.crop(0, 0, page.width, y + height + 6)


def main(program, folder, out):
    camera = Camera(out)
    for number, skin in enumerate(sorted(os.listdir(os.path.join(folder, "Skin"))), 1):
        camera.save(button_page(os.path.join(folder, "Skin", skin)), f"{skin}-buttons")
        with_game(program, folder,
                  f"[Game]\nGameMode=2\n[Misc]\nGTimer=True\n[Skin]\nSkinPtr={number}\n",
                  windows(camera, skin))
    for mode, name in enumerate(MODE_NAMES):
        with_game(program, folder, f"[Game]\nGameMode={mode}\n[Misc]\nGTimer=True\n",
                  mid_game(camera, name))
    with_game(program, folder, "[Game]\nGameMode=0\n[Misc]\nSetColor=True\n",
              code_entry_and_win(camera))


if __name__ == "__main__":
    main(*sys.argv[1:])
