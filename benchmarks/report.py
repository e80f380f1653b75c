#!/usr/bin/env python3
"""Measures the game and prints aim and measured values side by side: report.py BUILD_FOLDER.

Every figure that the size of the windows can change is taken at scale 1 and at scale 2. Small games
of Debian are measured the same way, in the same run, where they are installed.

The whole-process figures are taken on a display of their own (Xvfb), with settings of their own
and a sound device that plays nothing.
"""
import json
import os
import pathlib
import platform
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

from Xlib import X, display
from Xlib.ext import xtest

TICKS_PER_SECOND = os.sysconf("SC_CLK_TCK")
STARTS = 7
SECONDS_TO_SETTLE = 7
IDLE = "[Game]\nGameMode=2\n"
SCALES = ("1", "2")
PEERS = ("gnome-mahjongg", "kmines")
"""Packages of small games that show a window at once, each with a program of its name."""
GAMES = "/usr/games"
SECONDS_OF_REST = 10
SECONDS_TO_FALL_ASLEEP = 12
"""After the player's last deed, and a little more: the game closes the sound device after ten."""
START = (59, 418)
"""A place on that button of the main window."""
WINDOW_SIZE = (655, 605)
MAIN_WINDOW = 600
"""No splash is so many pixels wide."""


def start_display():
    """An empty display with room for scale 2: its process and its name."""
    receiver, sender = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(sender), "-screen", "0", "1600x1300x24", "-nolisten", "tcp",
         "-noreset"],
        pass_fds=[sender], stderr=subprocess.DEVNULL)
    os.close(sender)
    with os.fdopen(receiver) as answer:
        return server, ":" + answer.readline().strip()


def start_session_bus():
    """Without one some programs do not start: its process and its address."""
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1"],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    return bus, bus.stdout.readline().strip()


def routines(build, environment):
    """Median nanoseconds a call of each small routine."""
    output = subprocess.run(
        [build / "benchmarks/bench_routines", "--benchmark_format=json", "--benchmark_repetitions=9",
         "--benchmark_enable_random_interleaving=true"],
        env=environment, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
    nanoseconds = {"ns": 1, "us": 1e3, "ms": 1e6}
    return {run["run_name"]: run["cpu_time"] * nanoseconds[run["time_unit"]]
            for run in json.loads(output)["benchmarks"]
            if run.get("aggregate_name") == "median"}


def figures(environment, *command):
    """What a program prints that says "name value" a line."""
    output = subprocess.run(command, env=environment, check=True, stdout=subprocess.PIPE,
                            text=True).stdout
    return {name: float(value) for name, value in map(str.split, output.splitlines())}


def game(build, scale, program="Quendrel/quendrel"):
    return [build / program, "--folder", build / "Quendrel", "--scale", scale]


def first_picture(build, environment, command, width=1):
    """Median milliseconds from the start of a program to the first picture that it shows in a
    window at least so wide."""
    stopwatch = [build / "benchmarks/bench_first_picture", str(width), *command]
    return statistics.median(
        float(subprocess.run(stopwatch, env=environment, check=True, stdout=subprocess.PIPE,
                             stderr=subprocess.DEVNULL).stdout)
        for _ in range(STARTS))


def processor_seconds(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / TICKS_PER_SECOND


def memory_megabytes(pid):
    """Resident, and proportional: what is shared counts in part."""
    lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
    sizes = {name: int(size) / 1024 for name, size, *_ in map(str.split, lines[1:])}
    return sizes["Rss:"], sizes["Pss:"]


def rest_so_far(pid):
    """Processor seconds, and how often each thread has waited of its own accord, by its number."""
    waits = {}
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        status = dict(line.split(":", 1) for line in (task / "status").read_text().splitlines())
        waits[task.name] = int(status["voluntary_ctxt_switches"])
    return processor_seconds(pid), waits


def resting(command, environment, reach_rest=lambda environment: None):
    """Resident and proportional megabytes, processor share in percent of one core, and wake-ups a
    second, of all threads, of a program that waits for its player."""
    with subprocess.Popen(command, env=environment, stderr=subprocess.DEVNULL) as player:
        try:
            time.sleep(SECONDS_TO_SETTLE)
            reach_rest(environment)
            (used, waits), start = rest_so_far(player.pid), time.monotonic()
            time.sleep(SECONDS_OF_REST)
            used_then, waits_then = rest_so_far(player.pid)
            elapsed = time.monotonic() - start
            woken = sum(waits_then[task] - waits.get(task, 0) for task in waits_then)
            return (*memory_megabytes(player.pid), 100 * (used_then - used) / elapsed,
                    woken / elapsed)
        finally:
            player.kill()


def idling(build, environment, scale):
    """Processor share, resident megabytes and wake-ups of the idle animation."""
    resident, _, share, wakes = resting(game(build, scale), environment)
    return share, resident, wakes


def start_a_game(environment):
    """Presses "Start" in the main window, which stands in the middle of the screen."""
    seat = display.Display(environment["DISPLAY"])
    screen = seat.screen()
    left = (screen.width_in_pixels - WINDOW_SIZE[0]) // 2
    top = (screen.height_in_pixels - WINDOW_SIZE[1]) // 2
    xtest.fake_input(seat, X.MotionNotify, x=left + START[0], y=top + START[1])
    for kind in (X.ButtonPress, X.ButtonRelease):
        xtest.fake_input(seat, kind, 1)
    seat.sync()
    seat.close()
    time.sleep(SECONDS_TO_FALL_ASLEEP)


def beside_peers(build, environment):
    """The game, and the peers that are installed, each as (name, first picture, *rest)."""
    own = game(build, "1")
    shown = game(build, "1", "benchmarks/bench_game")
    measured = [("Quendrel", first_picture(build, environment, own),
                 *resting(own, environment, start_a_game)),
                ("its window", first_picture(build, environment, shown, MAIN_WINDOW))]
    for name in PEERS:
        program = shutil.which(name, path=f"{os.environ['PATH']}:{GAMES}")
        if program:
            measured.append((name, first_picture(build, environment, [program]),
                             *resting([program], environment)))
    return measured


def print_peers(measured):
    """The programs side by side, and the game beside the best of the others."""
    missing = sorted(set(PEERS) - {name for name, *_ in measured})
    if missing:
        print("\nNot compared, since not installed (apt-get install --no-install-recommends "
              f"{' '.join(missing)}): {', '.join(missing)}")
    if len(missing) == len(PEERS):
        return
    rows = (("start to the first picture", "ms", "0.4 x"), ("resident at rest", "MB", "0.75 x"),
            ("the same, what is shared in part", "MB", "0.75 x"),
            ("processor share at rest", "%", ""), ("wake-ups a second at rest", "", ""))
    print(f"\n{'':34}{'aim':>8}{'of the best':>14}" +
          "".join(f"{name:>16}" for name, *_ in measured))
    for row, (what, unit, aim) in enumerate(rows, 1):
        best = min(program[row] for program in measured[2:])
        share = f"{measured[0][row] / best:.2f} x" if aim else ""
        values = (f"{program[row]:.{1 if aim else 2}f} {unit}" if row < len(program) else ""
                  for program in measured)
        print(f"{what:34}{aim:>8}{share:>14}" + "".join(f"{value:>16}" for value in values))
    print("Quendrel's first picture is its splash, which stays for four seconds; its window is "
          "timed without them.\nIt rests in a game, without music.")


def print_table(rows):
    """A figure a row; one that depends on the scale is a tuple."""
    print(f"\n{'':50}{'aim':>10}{'scale 1':>12}{'scale 2':>12}")
    for what, aim, value in rows:
        values = (value,) if isinstance(value, str) else value
        print(f"{what:50}{aim:>10}" + "".join(f"{each:>12}" for each in values))


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    server, name = start_display()
    bus, address = start_session_bus()
    with tempfile.TemporaryDirectory() as config:
        settings = pathlib.Path(config) / "quendrel" / "Quendrel v1.0.ini"
        settings.parent.mkdir()
        settings.write_text(IDLE)
        environment = os.environ | {
            "DISPLAY": name, "DBUS_SESSION_BUS_ADDRESS": address, "HOME": config,
            "XDG_CONFIG_HOME": config, "XDG_RUNTIME_DIR": config, "SDL_AUDIODRIVER": "dummy", "QT_QPA_PLATFORM": "xcb",
            "QUENDREL_FOLDER": str(build / "Quendrel")}
        try:
            routine = routines(build, environment)
            sound = figures(environment, build / "benchmarks/bench_sound", build / "Quendrel")
            drawing = [figures(environment, build / "benchmarks/bench_window", scale)
                       for scale in SCALES]
            start = [first_picture(build, environment, game(build, scale)) for scale in SCALES]
            settings.write_text(IDLE + "[Sound]\nMusic=False\n")
            quiet = [idling(build, environment, scale) for scale in SCALES]
            compared = beside_peers(build, environment)
            settings.write_text(IDLE)
            musical = [idling(build, environment, scale) for scale in SCALES]
        finally:
            for process in (bus, server):
                process.terminate()
                process.wait()

    print(f"{platform.machine()}, {len(os.sched_getaffinity(0))} cores, load "
          f"{os.getloadavg()[0]:.1f}; medians")
    composed = [routine[f"ComposePeg/{scale}"] / routine[f"CopyPeg/{scale}"] for scale in SCALES]
    drawn = {name: [each[name] for each in drawing] for name in drawing[0]}
    print_table([
        ("CheckRow, six columns", "", f"{routine['CheckRow']:.0f} ns"),
        ("one peg copied once", "", [f"{routine[f'CopyPeg/{scale}']:.0f} ns" for scale in SCALES]),
        ("one peg composed, beside the copy", "4, 5 x", [f"{each:.1f} x" for each in composed]),
        ("BuildBoard, Hard, in the last row", "5 ms",
         [f"{each:.2f} ms" for each in drawn["BuildBoard"]]),
        ("the whole window painted", "", [f"{each:.1f} ms" for each in drawn["RepaintAll"]]),
        ("RevealBoard, beyond its pauses", "10 ms",
         [f"{each:.1f} ms" for each in drawn["RevealBoard"]]),
        ("LoadMainSkin", "100 ms", [f"{each:.0f} ms" for each in drawn["LoadMainSkin"]]),
        ("start to the first picture", "250, 1.5 x", [f"{each:.0f} ms" for each in start]),
        ("processor share, idle animation in Hard", "3 %, 2 x",
         [f"{share:.1f} %" for share, *_ in quiet]),
        ("the same with music", "8 %", [f"{share:.1f} %" for share, *_ in musical]),
        ("resident memory meanwhile", "90, +30 MB", [f"{memory:.0f} MB" for _, memory, _ in musical]),
        ("processor share, a tune and five effects a second", "5 %", f"{sound['SoundShare']:.1f} %"),
        ("opening a tune, which the windows wait for", "50 ms", f"{sound['OpenTune']:.0f} ms"),
        ("a sound for which the device is opened", "20 ms", f"{sound['WakeSound']:.1f} ms"),
    ])
    print_peers(compared)


if __name__ == "__main__":
    main()
