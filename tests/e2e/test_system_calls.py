"""A whole game as the system sees it: whom the program connects to, and what it changes on disk."""

import glob
import os
import re
import shlex

from game import (EASY, PROGRAM, Game, GameTestCase, install_viewer, settings_path,
                  store_settings)
from test_config import ConfigWindow

CONNECTING = ("connect", "bind")
STARTING = ("execve", "execveat")
CHANGING = ("creat", "link", "linkat", "mkdir", "mkdirat", "mknod", "mknodat", "rename",
            "renameat", "renameat2", "rmdir", "symlink", "symlinkat", "truncate", "unlink",
            "unlinkat", "chmod", "fchmodat", "chown", "fchownat", "lchown")
OPENING = ("open", "openat", "openat2")
FOR_WRITING = re.compile(r"O_(WRONLY|RDWR|CREAT|TRUNC|APPEND|TMPFILE)")
NOWHERE = ("/dev/null",)
"""What may be opened for writing and keeps nothing."""
LINKS = {"E-mail": "mailto:games@brimwell.example", "Homepage": "https://www.brimwell.example/"}


def watched(desktop, log):
    """The game, written down in files that begin with `log`, one for each of its threads. A name
    with a question mark may be unknown to the system."""
    kinds = ",".join("?" + kind for kind in ("socket", *CONNECTING, *STARTING, *CHANGING, *OPENING))
    words = ["strace", "-D", "-ff", "-qqq", "-y", "-s", "4096", "-e", f"trace={kinds}",
             "-e", "signal=none", "-o", log, PROGRAM]
    program = os.path.join(desktop.home, "watched")
    with open(program, "w", encoding="utf-8") as file:
        file.write(f'#!/bin/sh\nexec {shlex.join(words)} "$@"\n')
    os.chmod(program, 0o700)
    return program


class SystemCalls(GameTestCase):
    def setUp(self):
        super().setUp()
        self._log = os.path.join(self.desktop.home, "calls")
        self.rules = "file://" + os.path.join(self.folder, "Rules", "Rules.html")
        self._viewer = install_viewer(self.desktop, "exit 0")

    def calls(self, kinds):
        """(name, arguments, result) of those that succeeded; each thread has a log of its own."""
        found = []
        for log in glob.glob(self._log + ".*"):
            with open(log, encoding="utf-8") as lines:
                for line in lines:
                    call = re.match(r"(\w+)\((.*)\)\s+= (\d.*)$", line)
                    if call and call[1] in kinds:
                        found.append(call.groups())
        return found

    def connected(self):
        """The addresses of the sockets that the game called at or waits at."""
        self.assertEqual({arguments.split(",")[0] for _, arguments, _ in self.calls(("socket",))},
                         {"AF_UNIX"})
        return {re.search(r'sun_path=(@?".*")}', arguments)[1]
                for _, arguments, _ in self.calls(CONNECTING)}

    def changed(self):
        """The files that were made, written, renamed or removed, each temporary one as the file
        that it becomes."""
        paths = [path for _, arguments, _ in self.calls(CHANGING)
                 for path in re.findall(r'"([^"]*)"', arguments)]
        paths += [re.search("<(.*)>", result)[1] for _, arguments, result in self.calls(OPENING)
                  if FOR_WRITING.search(arguments)]
        return {re.sub(r"/\.([^/]*)\.new\.\w{6}$", r"/\1", path) for path in paths} - set(NOWHERE)

    def started(self):
        """The programs, each with its arguments."""
        return [re.findall(r'"([^"]*)"', arguments) for _, arguments, _ in self.calls(STARTING)]

    def look_around(self, game):
        """Every window that has something to open or to keep."""
        window = ConfigWindow(game)
        window.press_item("Tunes", 0)
        window.click("Listen")
        window.close_with("Ok")
        game.click("About")
        for link in LINKS:
            button = game.wait_for(link, lambda name=link: (
                game.find_accessible().find("push button", name)))
            self.desktop.click_middle(button.place)
        button = game.find_accessible().find("push button", "Ok", lambda thing: thing.is_showing)
        self.desktop.click_middle(button.place)
        game.wait_for("the about window to go",
                      lambda: len(self.desktop.windows(game.process.pid)) == 1)
        self.desktop.wait_for_focus(game.process.pid)
        game.rest_pointer()
        self.desktop.strike("F1")
        game.wait_for("the page of the rules", lambda: any(
            words[-1] == self.rules for words in self.started()))

    def test_game_calls_at_nothing_but_the_desktop_and_writes_only_its_own_files(self):
        store_settings(self.desktop, "[Game]\nGameMode=0\n[Misc]\nGTimer=True\nSetColor=True\n")
        game = Game(self.desktop, watched(self.desktop, self._log), self.folder, EASY)
        self.look_around(game)
        game.win_own_code()
        self.desktop.wait_for_focus(game.process.pid)
        self.desktop.strike("a")
        self.desktop.strike("Return")
        game.wait_until_idle()
        self.assertEqual(game.leave(), 0)
        self.assertEqual(game.errors(), "")

        desktop = self.desktop.environment
        session = re.search("path=([^,]*)", desktop["DBUS_SESSION_BUS_ADDRESS"])[1]
        runtime = re.escape(desktop["XDG_RUNTIME_DIR"])
        known = [f'@?"/tmp/.X11-unix/X{desktop["DISPLAY"][1:]}"', f'"{re.escape(session)}"',
                 f'"{runtime}/at-spi/bus[_0-9]*"', '@"quendrel-[0-9a-f]{64}"']
        connected = self.connected()
        for address in known:
            self.assertTrue(any(re.fullmatch(address, one) for one in connected), address)
        self.assertEqual([one for one in connected
                          if not any(re.fullmatch(address, one) for address in known)], [])

        in_folder = [os.path.join(self.folder, *names) for names in (
            ("Playlist.dat",), ("High",), ("High", "Easy.hsc"))]
        self.assertEqual(self.changed(), {settings_path(self.desktop), *in_folder})

        opened = [[self._viewer, self._viewer, address]
                  for address in (*LINKS.values(), self.rules)]
        first, *others = sorted(self.started(), key=lambda words: words[0] != PROGRAM)
        self.assertEqual(first[:2], [PROGRAM, PROGRAM])
        self.assertCountEqual(others, opened)
