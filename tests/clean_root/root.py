"""A freshly made Debian 12 with a small desktop, of which every change can be told afterwards."""

import os
import shutil
import subprocess

PACKAGES = ("xvfb", "openbox", "lxpanel", "lxmenu-data", "libmenu-cache-bin", "adwaita-icon-theme",
            "python3", "python3-xlib", "python3-gi", "gir1.2-atspi-2.0", "at-spi2-core",
            "dbus-daemon")
"""The desktop, and what plays on it. Nothing that only the game needs."""
TESTS = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
ENVIRONMENT = {"PATH": "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin:/usr/games",
               "LANG": "C.UTF-8", "DEBIAN_FRONTEND": "noninteractive"}
# Mounts and processes are in a world of their own, and go with its first process.
MOUNT = """set -e
cd "$1"
mount -t overlay overlay -o lowerdir=base,upperdir=changes,workdir=work root
mount -t proc proc root/proc
mount --rbind /dev root/dev
mount -t tmpfs -o mode=1777 tmpfs root/tmp
mkdir root/tmp/shared
mount --bind shared root/tmp/shared
mount --bind "$2" root/tmp/shared/tests
echo mounted
exec sleep infinity
"""
ENTER = """set -e
cd "$1"
eval "$2"
shift 2
exec chroot . "$@"
"""


class CleanRoot:
    """Made in `folder`, where the Debian that every run begins with stays for the next."""

    SHARED = "/tmp/shared"
    """Where the root has what `shared` has, and the tests."""

    def __init__(self, folder):
        self._folder = os.path.abspath(folder)
        self._base = os.path.join(self._folder, "base")
        self._make_base()
        for name in ("changes", "work", "root", "shared"):
            shutil.rmtree(os.path.join(self._folder, name), ignore_errors=True)
            os.mkdir(os.path.join(self._folder, name))
        self.shared = os.path.join(self._folder, "shared")
        for name in ("tests", "packages", "pictures", "meanwhile"):
            os.mkdir(os.path.join(self.shared, name))
            os.chmod(os.path.join(self.shared, name), 0o1777)

    def _make_base(self):
        if os.path.isdir(self._base):
            return
        unfinished = self._base + ".unfinished"
        shutil.rmtree(unfinished, ignore_errors=True)
        os.makedirs(unfinished)
        subprocess.run(["debootstrap", "--variant=minbase", "bookworm", unfinished], check=True,
                       stdout=subprocess.DEVNULL)
        shutil.copy("/etc/resolv.conf", os.path.join(unfinished, "etc"))
        install = "apt-get -qq update && apt-get -qq -y --no-install-recommends install "
        subprocess.run(["chroot", unfinished, "sh", "-c", install + " ".join(PACKAGES)], check=True,
                       env=ENVIRONMENT, stdout=subprocess.DEVNULL)
        os.rename(unfinished, self._base)

    def __enter__(self):
        self._world = subprocess.Popen(
            ["unshare", "--mount", "--pid", "--fork", "--kill-child", "sh", "-c", MOUNT, "sh",
             self._folder, TESTS], stdout=subprocess.PIPE, text=True)
        if self._world.stdout.readline() != "mounted\n":
            raise SystemExit("the clean root could not be mounted")
        return self

    def __exit__(self, *_):
        self._world.kill()
        self._world.wait()
        self._world.stdout.close()

    def run(self, *command, before=":", **options):
        """As root. What `before` mounts, in the folder that is the root, is there for this command
        alone."""
        world = f"/proc/{self._world.pid}/ns"
        subprocess.run(["nsenter", f"--mount={world}/mnt", f"--pid={world}/pid_for_children",
                        "unshare", "--mount", "sh", "-c", ENTER, "sh",
                        os.path.join(self._folder, "root"), before, *command],
                       check=True, env=ENVIRONMENT, **options)

    def run_as(self, player, home, *command, **options):
        """In the player's home, with nothing of the surroundings."""
        self.run("setpriv", f"--reuid={player}", f"--regid={player}", "--init-groups",
                 "env", "-C", home, f"HOME={home}", f"USER={player}", *command, **options)

    def added(self):
        """Every file, folder and link that the base has not."""
        changes = os.path.join(self._folder, "changes")
        paths = {os.path.relpath(os.path.join(folder, name), changes)
                 for folder, folders, files in os.walk(changes) for name in folders + files}
        return {path for path in paths if not os.path.lexists(os.path.join(self._base, path))}
