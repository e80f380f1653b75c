#!/usr/bin/env python3
"""Measures the game and prints aim and measured value side by side: report.py BUILD_FOLDER.

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


def start_display():
    """An empty display of the usual size: its process and its name."""
    receiver, sender = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(sender), "-screen", "0", "1024x768x24", "-nolisten", "tcp"],
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


def first_picture(build, environment):
    """Median milliseconds from the start of the game to its first picture."""
    command = [build / "benchmarks/bench_first_picture", build / "Quendrel/quendrel"]
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


def idling(build, environment):
    """Processor share in percent of one core and resident megabytes of the idle animation."""
    with subprocess.Popen([build / "Quendrel/quendrel"], env=environment) as game:
        time.sleep(SECONDS_TO_SETTLE)
        used, start = processor_seconds(game.pid), time.monotonic()
        time.sleep(SECONDS_OF_IDLING)
        used, elapsed = processor_seconds(game.pid) - used, time.monotonic() - start
        memory = resident_megabytes(game.pid)
        game.kill()
    return 100 * used / elapsed, memory


def print_table(rows):
    print(f"\n{'':50}{'aim':>14}{'measured':>14}")
    for what, aim, value in rows:
        print(f"{what:50}{aim:>14}{value:>14}")


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
            drawing = figures(environment, build / "benchmarks/bench_window")
            sound = figures(environment, build / "benchmarks/bench_sound", build / "Quendrel")
            start = first_picture(build, environment)
            settings.write_text(IDLE + "[Sound]\nMusic=False\n")
            share, _ = idling(build, environment)
            settings.write_text(IDLE)
            share_with_music, memory = idling(build, environment)
        finally:
            server.terminate()
            server.wait()

    print(f"{platform.machine()}, {len(os.sched_getaffinity(0))} cores, load "
          f"{os.getloadavg()[0]:.1f}; medians")
    print_table([
        ("CheckRow, six columns", "", f"{routine['CheckRow']:.0f} ns"),
        ("one peg copied once", "", f"{routine['CopyPeg']:.0f} ns"),
        ("one peg composed, beside the copy", "4 x",
         f"{routine['ComposePeg'] / routine['CopyPeg']:.1f} x"),
        ("BuildBoard, Hard, in the last row", "5 ms", f"{drawing['BuildBoard']:.2f} ms"),
        ("RevealBoard, beyond its pauses", "10 ms", f"{drawing['RevealBoard']:.1f} ms"),
        ("LoadMainSkin", "100 ms", f"{drawing['LoadMainSkin']:.0f} ms"),
        ("start to the first picture", "250 ms", f"{start:.0f} ms"),
        ("processor share, idle animation in Hard", "3 %", f"{share:.1f} %"),
        ("the same with music", "8 %", f"{share_with_music:.1f} %"),
        ("resident memory meanwhile", "90 MB", f"{memory:.0f} MB"),
        ("processor share, a tune and five effects a second", "5 %", f"{sound['SoundShare']:.1f} %"),
        ("opening a tune, which the windows wait for", "50 ms", f"{sound['OpenTune']:.0f} ms"),
    ])


if __name__ == "__main__":
    main()
