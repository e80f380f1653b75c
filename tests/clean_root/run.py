"""Installs, plays, upgrades and removes the packages in a clean Debian, and says what it did:
run.py FOLDER PACKAGES PICTURES.

FOLDER is for the Debian, PACKAGES has the packages, PICTURES gets the screens of some scenes. Ends
with 1 at the first thing that is not as it should be. Only root may run it."""

import concurrent.futures
import glob
import os
import re
import shutil
import subprocess
import sys
import time

from root import CleanRoot

SKINS = ["Atelier", "Beacon", "Carbon", "Daylight"]
OLD_SKINS = ["Atelier", "Beacon", "Carbon", "Dusk"]
OWN_SKIN = "Zinc"
OLD_VERSION = "0.9"
FULL = """cp -a home/anna tmp/anna
mount -t tmpfs -o size=120m,mode=777 tmpfs home/anna
cp -a tmp/anna/. home/anna"""
READ_ONLY = """mount --bind home/clara home/clara
mount -o remount,bind,ro home/clara"""
NOT_THE_PACKAGES = re.compile(
    r"var/(lib/(dpkg|apt)|log|cache|mail)|home|srv|run|etc/(ld\.so\.cache|"
    r"(passwd|shadow|group|gshadow|subuid|subgid)-?|\.pwd\.lock)$")
"""What the system of packages keeps for itself, what keeps the players, and what is theirs."""


def say(*words):
    print(*words, flush=True)


def older(package, folder):
    """The package as an earlier release may have been, which had another skin, beside it in
    `folder`."""
    tree = os.path.join(folder, "tree")
    subprocess.run(["dpkg-deb", "-R", package, tree], check=True)
    control = os.path.join(tree, "DEBIAN", "control")
    with open(control, encoding="utf-8") as file:
        text = file.read()
    version = re.search("^Version: (.*)$", text, re.M)[1]
    with open(control, "w", encoding="utf-8") as file:
        file.write(text.replace(version, OLD_VERSION))
    skins = os.path.join(tree, "usr/share/quendrel/Skin")
    if os.path.isdir(skins):
        os.rename(os.path.join(skins, SKINS[-1]), os.path.join(skins, OLD_SKINS[-1]))
    made = os.path.join(folder, "older-" + os.path.basename(package))
    subprocess.run(["dpkg-deb", "--root-owner-group", "-Znone", "-b", tree, made], check=True,
                   stdout=subprocess.DEVNULL)
    shutil.rmtree(tree)


class Story:
    """Each step begins where the one before has ended."""

    def __init__(self, root, packages):
        self._root = root
        self._older = sorted(path for path in packages if path.startswith("older-"))
        self._newer = sorted(set(packages) - set(self._older))

    def tell(self):
        for step in (self.install, self.two_players, self.upgrade, self.moved_home,
                     self.nothing_can_be_kept, self.removal, self.purge):
            say(step.__doc__)
            step()

    def _scene(self, player, *scene, home=None, **options):
        began = time.monotonic()
        self._root.run_as(player, home or f"/home/{player}", "python3", "-B",
                          f"{CleanRoot.SHARED}/tests/clean_root/scenes.py", *scene, **options)
        say(f"  {player}: {' '.join(scene)} ({time.monotonic() - began:.0f} s)")

    def _apt(self, *command):
        self._root.run("apt-get", "-qq", "-y", "--no-install-recommends", *command,
                       stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
        say("  root: apt-get", *command)

    def _install(self, packages):
        self._apt("install", *(f"{CleanRoot.SHARED}/packages/{name}" for name in packages))

    def install(self):
        """Installed, found in the menu, played to a win, hidden in the tray and called back"""
        self._install(self._older)
        for player in ("anna", "ben"):
            self._root.run("useradd", "--create-home", player)
        self._scene("anna", "first_game")

    def two_players(self):
        """Two players of one machine, each with what is his"""
        self._scene("anna", "win", "anna")
        self._scene("ben", "look", "", *OLD_SKINS)
        self._scene("anna", "look", "anna", *OLD_SKINS, OWN_SKIN)

    def upgrade(self):
        """Upgraded while a game is running, with nothing lost"""
        meanwhile = os.path.join(self._root.shared, "meanwhile")
        with concurrent.futures.ThreadPoolExecutor() as pool:
            game = pool.submit(self._scene, "anna", "win_while_upgraded", "ben")
            while not os.path.exists(os.path.join(meanwhile, "ready")) and not game.done():
                time.sleep(0.1)
            self._install(self._newer)
            with open(os.path.join(meanwhile, "done"), "w", encoding="utf-8"):
                pass
            game.result()
        self._scene("anna", "look", "anna,ben", *SKINS, OWN_SKIN)
        self._scene("ben", "look", "", *SKINS)

    def moved_home(self):
        """Played in a home that was moved"""
        self._root.run("usermod", "--home", "/srv/anna", "--move-home", "anna")
        self._scene("anna", "look", "anna,ben", *SKINS, OWN_SKIN, home="/srv/anna")
        self._root.run("usermod", "--home", "/home/anna", "--move-home", "anna")

    def nothing_can_be_kept(self):
        """Played in a home that is full, and in one that cannot be written"""
        self._scene("anna", "full_disk", "carl", before=FULL)
        self._root.run("useradd", "--create-home", "clara")
        self._scene("clara", "read_only_home", before=READ_ONLY)

    def removal(self):
        """Removed, installed again, and all that is the players' is there still"""
        self._apt("remove", "quendrel", "quendrel-data")
        self._install(self._newer)
        self._scene("anna", "look", "anna,ben", *SKINS, OWN_SKIN)

    def purge(self):
        """Purged without a trace"""
        self._apt("purge", "--auto-remove", "quendrel", "quendrel-data")
        left = [path for path in self._root.added() if not NOT_THE_PACKAGES.match(path)]
        if left:
            raise SystemExit(f"still there: {', '.join(sorted(left))}")


def main(folder, packages, pictures):
    found = [path for path in glob.glob(os.path.join(packages, "quendrel*.deb"))
             if "-dbgsym_" not in path]
    if not found:
        raise SystemExit(f"{packages} has no packages; ./package makes them")
    with CleanRoot(folder) as root:
        shared = os.path.join(root.shared, "packages")
        for package in found:
            shutil.copy(package, shared)
            older(package, shared)
        try:
            Story(root, os.listdir(shared)).tell()
        except subprocess.CalledProcessError as failure:
            failed = " ".join(failure.cmd[-3:])
            raise SystemExit(f"failed: {failed}\n{failure.stderr or ''}") from None
        finally:
            shutil.rmtree(pictures, ignore_errors=True)
            shutil.copytree(os.path.join(root.shared, "pictures"), pictures)
    say("the screens are in", pictures)


if __name__ == "__main__":
    main(*sys.argv[1:])
