#!/usr/bin/env python3
"""Measures the game and prints aim and measured values side by side: report.py BUILD_FOLDER.

Every figure that the size of the windows can change is taken at scale 1 and at scale 2.

The whole-process figures are taken on a display of their own (Xvfb), with settings of their own
and a sound device that plays nothing.
"""
import json
import os
import pathlib
import platform
import statistics
import subprocess
import sys
import tempfile
import time

TICKS_PER_SECOND = os.sysconf("SC_CLK_TCK")
STARTS = 7
SECONDS_TO_SETTLE = 7
SECONDS_OF_IDLING = 20
IDLE = "[Game]\nGameMode=2\n"
SCALES = ("1", "2")


def start_display():
    """An empty display with room for scale 2: its process and its name."""
    receiver, sender = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(sender), "-screen", "0", "1600x1300x24", "-nolisten", "tcp"],
        pass_fds=[sender], stderr=subprocess.DEVNULL)
    os.close(sender)
    with os.fdopen(receiver) as answer:
        return server, ":" + answer.readline().strip()


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


def game(build, scale):
    return [build / "Quendrel/quendrel", "--folder", build / "Quendrel", "--scale", scale]


def first_picture(build, environment, scale):
    """Median milliseconds from the start of the game to its first picture."""
    command = [build / "benchmarks/bench_first_picture", *game(build, scale)]
    return statistics.median(
        float(subprocess.run(command, env=environment, check=True, stdout=subprocess.PIPE).stdout)
        for _ in range(STARTS))


def processor_seconds(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / TICKS_PER_SECOND


def resident_megabytes(pid):
    for line in pathlib.Path(f"/proc/{pid}/status").read_text().splitlines():
        if line.startswith("VmRSS:"):
            return int(line.split()[1]) / 1024
    raise ValueError(f"process {pid} has no resident memory")


def idling(build, environment, scale):
    """Processor share in percent of one core and resident megabytes of the idle animation."""
    with subprocess.Popen(game(build, scale), env=environment) as player:
        time.sleep(SECONDS_TO_SETTLE)
        used, start = processor_seconds(player.pid), time.monotonic()
        time.sleep(SECONDS_OF_IDLING)
        used, elapsed = processor_seconds(player.pid) - used, time.monotonic() - start
        memory = resident_megabytes(player.pid)
        player.kill()
    return 100 * used / elapsed, memory


def print_table(rows):
    """A figure a row; one that depends on the scale is a tuple."""
    print(f"\n{'':50}{'aim':>10}{'scale 1':>12}{'scale 2':>12}")
    for what, aim, value in rows:
        values = (value,) if isinstance(value, str) else value
        print(f"{what:50}{aim:>10}" + "".join(f"{each:>12}" for each in values))


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    server, display = start_display()
    with tempfile.TemporaryDirectory() as config:
        settings = pathlib.Path(config) / "quendrel" / "Quendrel v1.0.ini"
        settings.parent.mkdir()
        settings.write_text(IDLE)
        environment = os.environ | {
            "DISPLAY": display, "XDG_CONFIG_HOME": config, "XDG_RUNTIME_DIR": config,
            "SDL_AUDIODRIVER": "dummy", "QT_QPA_PLATFORM": "xcb",
            "QUENDREL_FOLDER": str(build / "Quendrel")}
        try:
            routine = routines(build, environment)
            sound = figures(environment, build / "benchmarks/bench_sound", build / "Quendrel")
            drawing = [figures(environment, build / "benchmarks/bench_window", scale)
                       for scale in SCALES]
            start = [first_picture(build, environment, scale) for scale in SCALES]
            settings.write_text(IDLE + "[Sound]\nMusic=False\n")
            quiet = [idling(build, environment, scale) for scale in SCALES]
            settings.write_text(IDLE)
            musical = [idling(build, environment, scale) for scale in SCALES]
        finally:
            server.terminate()
            server.wait()

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
         [f"{share:.1f} %" for share, _ in quiet]),
        ("the same with music", "8 %", [f"{share:.1f} %" for share, _ in musical]),
        ("resident memory meanwhile", "90, +30 MB", [f"{memory:.0f} MB" for _, memory in musical]),
        ("processor share, a tune and five effects a second", "5 %", f"{sound['SoundShare']:.1f} %"),
        ("opening a tune, which the windows wait for", "50 ms", f"{sound['OpenTune']:.0f} ms"),
    ])


if __name__ == "__main__":
    main()
