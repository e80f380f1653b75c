"""What players do in the clean root, and what they are to see: scenes.py SCENE [ARGUMENT]...

Runs in the root as the player, in his home. Ends with 1 where something is not as it should be."""

import os
import shutil
import signal
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "e2e"))

# The modules of the end-to-end tests are there from now on.
from Xlib import X, error  # noqa: E402
from desktop import Desktop, wait_for  # noqa: E402
from game import EASY, HARD, WON, Game  # noqa: E402
from solving import solve  # noqa: E402

NAMES = "anna", "ben", "carl"
EVERY_PROCESS_OF_MINE = -1
MENU = "the menu"
PROGRAM = "/usr/games/quendrel"
SYSTEM = "/usr/share/quendrel"
PICTURES = "/tmp/shared/pictures"
SCREEN = 1280, 900
MENU_BUTTON = 14, 887
OWN = os.path.expanduser("~/.local/share/quendrel")
SETTINGS = os.path.expanduser("~/.config/quendrel/Quendrel v1.0.ini")
OWN_CODE_AND_CLOCK = "[Game]\nGameMode=0\n[Misc]\nGTimer=True\nSetColor=True\n"
MEANWHILE = "/tmp/shared/meanwhile"
"""What a scene and the one who changes the root meanwhile tell each other."""
FILLING = os.path.expanduser("~/filling")
"""What fills the disk of the home."""
EASY_LIST = os.path.join(OWN, "High", "Easy.hsc")


def read(path):
    with open(path, "rb") as file:
        return file.read()


def write(path, text):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


def expect(what, found, wanted):
    if found != wanted:
        raise AssertionError(f"{what}: {found!r} instead of {wanted!r}")


class FromMenu:
    """The process that the menu has started."""

    def __init__(self):
        self.pid = wait_for("the game's process", self._find)

    def _find(self):
        for pid in filter(str.isdigit, os.listdir("/proc")):
            try:
                if os.readlink(f"/proc/{pid}/exe") == PROGRAM:
                    return int(pid)
            except OSError:  # gone, or another player's
                pass
        return None

    def poll(self):
        """None as long as it runs."""
        try:
            os.readlink(f"/proc/{self.pid}/exe")
            return None
        except OSError:
            return 0

    def wait(self, seconds):
        """The exit status is told to the menu alone."""
        wait_for("the game's end", lambda: self.poll() is not None, seconds)


class PlayersDesktop(Desktop):
    """In the player's own home, with a panel that has a menu and a tray."""

    last = None
    """The one that was made last."""

    def __init__(self):
        PlayersDesktop.last = self
        super().__init__(screen=f"{SCREEN[0]}x{SCREEN[1]}x24")
        super().run(["lxpanel"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        tray = self._display.intern_atom("_NET_SYSTEM_TRAY_S0")
        wait_for("the panel", lambda: self._display.get_selection_owner(tray))
        self.fill_background(0x5A6B7C)

    def _fresh_environment(self):
        environment = super()._fresh_environment()
        del environment["XDG_CONFIG_HOME"]
        return environment | {"HOME": os.environ["HOME"], "XDG_MENU_PREFIX": "lxde-",
                              "XDG_CURRENT_DESKTOP": "LXDE"}

    def run(self, command, **options):
        if command[0] != MENU:
            return super().run(command, **options)
        self.choose_from_menu()
        return FromMenu()

    def choose_from_menu(self):
        """The only game, in the only part that the menu has."""
        self.click(*MENU_BUTTON)
        first, = wait_for("the menu", lambda: self._popups(1))
        second = wait_for("the games", lambda: self._popups_at(first[0] + 60, first[1] + 14))[-1]
        entry = second[0] + 30, second[1] + 14
        self._popups_at(*entry)
        time.sleep(1)  # until the entry is lit, and a click is none of those that opened the menu
        self.save("menu")
        self.click(*entry)
        wait_for("the menu to go", lambda: not self._popups(1))

    def _popups_at(self, x, y):
        """Both parts of the menu with the pointer there; it may have missed the last move."""
        self.move_pointer(x + 1, y)
        self.move_pointer(x, y)
        return self._popups(2)

    def _popups(self, count):
        """That many open parts of the menu, each with (x, y, width, height), or nothing."""
        found = []
        for window in self._root.query_tree().children:
            try:
                look, place = window.get_attributes(), window.get_geometry()
            except error.BadWindow:
                continue
            if look.override_redirect and look.map_state == X.IsViewable and place.x > 0:
                found.append((place.x, place.y, place.width, place.height))
        return found if len(found) == count else None

    def save(self, name):
        self.grab(0, 0, *SCREEN).save_png(os.path.join(PICTURES, name + ".png"))


class InstalledGame(Game):
    def __init__(self, desktop, program=PROGRAM, mode=EASY):
        super().__init__(desktop, program, SYSTEM, mode, asks=False)

    def expect_silence(self):
        expect("standard error", self.errors(), "")

    def expect_best(self, *names):
        """Who is in the list of the best."""
        self.click("High")
        read = self.wait_for("the list", lambda: self.ranks() or None)
        expect("the best", {name for name in read if name in NAMES}, set(names))
        self.desktop.strike("Return")
        self.wait_for("the list to close", lambda: not self.ranks())

    def ranks(self):
        window = next((window for window in self.find_accessible().children()
                       if window.name == "Quendrel: Highscores" and window.is_showing), None)
        return window and [thing.name.split(": ", 1)[-1] for thing in window.descendants()
                           if thing.role == "label"]

    def win_in_time(self, name):
        self.win_own_code()
        self.wait_for("the list", self.ranks)
        self.desktop.wait_for_focus(self.process.pid)
        for letter in name:
            self.desktop.strike(letter)
        self.desktop.strike("Return")


def first_game():
    """From the menu to the congratulations; hidden in the tray, and called back by the menu."""
    desktop = PlayersDesktop()
    game = InstalledGame(desktop, MENU, HARD)
    game.wait_until_idle()
    desktop.save("started")
    game.choose_mode(EASY)
    game.start()
    solve(game)
    game.wait_for_messages(*WON)
    desktop.save("won")
    game.answer("Ok")
    game.wait_until_idle()
    game.click("Hide")
    game.wait_for("the icon", lambda: desktop.tray_icon(game.process.pid))
    game.wait_for("the window to go", lambda: not desktop.windows(game.process.pid))
    desktop.save("hidden")
    desktop.choose_from_menu()
    game.wait_for("the window", lambda: desktop.windows(game.process.pid))
    game.rest_pointer()
    game.wait_until_idle()
    game.leave()


def win(name):
    """A time among the best, and a skin and a tune of the player's own."""
    write(SETTINGS, OWN_CODE_AND_CLOCK)
    shutil.copytree(os.path.join(SYSTEM, "Skin", "Carbon"), os.path.join(OWN, "Skin", "Zinc"))
    shutil.copy(os.path.join(SYSTEM, "Music", "Canon in D.mid"),
                os.path.join(OWN, "Music", "My own.mid"))
    game = InstalledGame(PlayersDesktop())
    game.win_in_time(name)
    game.wait_until_idle()
    expect("the end", game.leave(), 0)
    game.expect_silence()


def look(names, *skins):
    """The best are these, and these are the skins."""
    if not os.path.exists(SETTINGS):
        write(SETTINGS, OWN_CODE_AND_CLOCK)
    game = InstalledGame(PlayersDesktop())
    game.wait_until_idle()
    game.expect_best(*filter(None, names.split(",")))
    expect("the skins", sorted(os.listdir(os.path.join(OWN, "Skin"))), sorted(skins))
    broken = [name for name in skins if not os.path.isdir(os.path.join(OWN, "Skin", name, "Game"))]
    expect("skins that lead nowhere", broken, [])
    expect("the end", game.leave(), 0)
    game.expect_silence()


def win_while_upgraded(name):
    """The program of the running game is replaced under it: `ready` says that it runs, `done` that
    the packages are others now."""
    game = InstalledGame(PlayersDesktop())
    game.wait_until_idle()
    write(os.path.join(MEANWHILE, "ready"), "")
    wait_for("the packages", lambda: os.path.exists(os.path.join(MEANWHILE, "done")), 120)
    game.win_in_time(name)
    game.wait_until_idle()
    for mode in (HARD, EASY):  # with the pictures of the new packages
        game.choose_mode(mode)
        game.wait_until_idle()
    expect("the end", game.leave(), 0)
    game.expect_silence()


def leave_with_box(desktop, game, picture, *said):
    """What could not be kept is said in a box and on standard error."""
    game.click("Exit")
    game.answer("Yes")
    button = game.wait_for("the box", game.box_button)
    desktop.save(picture)
    desktop.click_middle(button.place)
    expect("the end", game.wait_for_exit(), 1)
    expect("standard error", game.errors().splitlines(), list(said))


def read_only_home():
    """A player who can keep nothing plays all the same, and is told so."""
    desktop = PlayersDesktop()
    game = InstalledGame(desktop, mode=HARD)
    game.choose_mode(EASY)
    game.start()
    solve(game)
    game.wait_for_messages(*WON)
    game.answer("Ok")
    game.wait_until_idle()
    home = os.path.expanduser("~")
    leave_with_box(desktop, game, "read-only-home",
                   f"quendrel: {home}/.local/share: cannot be brought up to date: "
                   "Read-only file system",
                   f"quendrel: {home}/.config/quendrel: cannot be made: Read-only file system",
                   f"{SYSTEM}/Playlist.dat: cannot be written: Permission denied")


def fill_disk():
    with open(FILLING, "ab", buffering=0) as file:
        for size in (1 << 20, 1 << 12, 1):
            try:
                while file.write(bytes(size)):
                    pass
            except OSError:
                pass


def full_disk(name):
    """A time that cannot be kept is said at once, kept for as long as the game runs, and saved at
    the end if there is room by then. What was kept before stays."""
    before = read(EASY_LIST)
    desktop = PlayersDesktop()
    game = InstalledGame(desktop)
    game.wait_until_idle()
    fill_disk()
    game.win_in_time(name)
    button = game.wait_for("the box", game.box_button)
    desktop.save("full-disk")
    desktop.click_middle(button.place)
    game.wait_until_idle()
    expect("the list on the disk", read(EASY_LIST), before)
    os.unlink(FILLING)
    expect("the end", game.leave(), 0)
    expect("the name in the list", name.encode() in read(EASY_LIST), True)


SCENES = {scene.__name__: scene for scene in (
    first_game, win, look, win_while_upgraded, read_only_home, full_disk)}


def play(name, *arguments):
    try:
        SCENES[name](*arguments)
    except AssertionError:
        PlayersDesktop.last.save("failed-" + name)
        raise
    finally:
        PlayersDesktop.last.close()
        os.kill(EVERY_PROCESS_OF_MINE, signal.SIGKILL)


if __name__ == "__main__":
    play(*sys.argv[1:])
