"""Saves pictures of the game for people to look at: screenshots.py PROGRAM FOLDER OUT."""

import os
import sys

from board import COLORS, COLUMNS
from desktop import RIGHT, Desktop
from game import EASY, HARD, MEDIUM, Game, store_settings

MODE_NAMES = ("easy", "medium", "hard")


class Camera:
    def __init__(self, out):
        self._out = out
        os.makedirs(out, exist_ok=True)

    def take(self, game, name):
        game.rest_pointer()
        path = os.path.join(self._out, name + ".png")
        game.grab().save_png(path)
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


def main(program, folder, out):
    camera = Camera(out)
    for mode, name in enumerate(MODE_NAMES):
        with_game(program, folder, f"[Game]\nGameMode={mode}\n[Misc]\nGTimer=True\n",
                  mid_game(camera, name))
    with_game(program, folder, "[Game]\nGameMode=0\n[Misc]\nSetColor=True\n",
              code_entry_and_win(camera))


if __name__ == "__main__":
    main(*sys.argv[1:])
