"""Tries every point on every desktop and prints a table: run.py [DESKTOP or POINT]...

A desktop or a point that is not named is left out where another one of its kind is.
QUENDREL_DESKTOPS_PICTURES names a folder for a picture of each screen as the point left it."""

import concurrent.futures
import os
import subprocess
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "e2e"))

# The modules of the end-to-end tests are there from now on.
from desktops import DESKTOPS as X_DESKTOPS  # noqa: E402
from native import NATIVE_DESKTOPS, NativePoints  # noqa: E402
from points import Points  # noqa: E402
from wayland import WAYLAND_DESKTOPS  # noqa: E402

GROUPS = ((Points, X_DESKTOPS | WAYLAND_DESKTOPS), (NativePoints, NATIVE_DESKTOPS))
DESKTOPS = {name: (points, desktop)
            for points, desktops in GROUPS for name, desktop in desktops.items()}

PICTURES = os.environ.get("QUENDREL_DESKTOPS_PICTURES", "")
VERBOSE = "QUENDREL_DESKTOPS_VERBOSE" in os.environ
TEST = "test_"
MOST_SECONDS = 100
FINE, FAILED, NOT_TRIED = range(3)
"""The exit statuses of a cell."""


def brief(trace):
    """What failed, and in which line of the point."""
    lines = trace.strip().splitlines()
    called = [line for line in lines if "points.py" in line]
    said = next((at for at, line in enumerate(lines) if line and line[0].isalpha() and
                 not line.startswith("Traceback")), -1)
    return " ".join([*called[-1:], *lines[said:said + 3]]).strip()


def points(of):
    return [name.removeprefix(TEST) for name in vars(of) if name.startswith(TEST)]


def every_point():
    return [point for of, _ in GROUPS for point in points(of)]


def save_picture(test, name):
    os.makedirs(PICTURES, exist_ok=True)
    test.desktop.grab_all().save_png(os.path.join(PICTURES, name + ".png"))


def try_cell(desktop, point):
    """In a process of its own. Says why, where it is not fine."""
    of, made = DESKTOPS[desktop]

    class Cell(of):
        DESKTOP = made

        def tearDown(self):
            if PICTURES:
                save_picture(self, f"{desktop}-{point}")

    result = unittest.TestResult()
    Cell(TEST + point).run(result)
    for _, reason in result.skipped:
        print(reason)
    for _, trace in result.failures + result.errors:
        print(trace if VERBOSE else brief(trace))
    return NOT_TRIED if result.skipped else FINE if result.wasSuccessful() else FAILED


def run_cell(desktop, point):
    command = [sys.executable, "-B", __file__, "--cell", desktop, point]
    try:
        done = subprocess.run(command, capture_output=True, text=True, timeout=MOST_SECONDS,
                              check=False)
    except subprocess.TimeoutExpired:
        return FAILED, f"has not ended after {MOST_SECONDS} s"
    return done.returncode, (done.stdout + done.stderr).strip()


def chosen(names, every):
    return [name for name in every if name in names] or list(every)


def table(desktops, wanted, cells):
    signs = {FINE: "ok", NOT_TRIED: "-"}
    first = max(map(len, wanted))
    widths = [max(len(name), len("FAILS")) for name in desktops]
    lines = [" ".join([" " * first, *map(str.ljust, desktops, widths)])]
    for point in wanted:
        marks = [signs.get(cells[desktop, point][0], "FAILS") for desktop in desktops]
        lines.append(" ".join([point.ljust(first), *map(str.ljust, marks, widths)]))
    return "\n".join(line.rstrip() for line in lines).replace("_", " ")


def main(names):
    unknown = set(names) - set(DESKTOPS) - set(every_point())
    if unknown:
        print(f"no desktop and no point: {', '.join(sorted(unknown))}", file=sys.stderr)
        return 2
    desktops, wanted = chosen(names, DESKTOPS), chosen(names, every_point())
    pairs = [(desktop, point) for desktop in desktops for point in points(DESKTOPS[desktop][0])
             if point in wanted]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        cells = dict(zip(pairs, pool.map(lambda pair: run_cell(*pair), pairs)))
    for (desktop, point), (status, said) in cells.items():
        if status != FINE:
            kind = "not tried" if status == NOT_TRIED else "FAILS"
            print(f"{desktop}, {point}: {kind}: {said}")
    for of, group in GROUPS:
        tried = [point for point in points(of) if point in wanted]
        if tried and set(desktops) & set(group):
            print(table([name for name in desktops if name in group], tried, cells), end="\n\n")
    return int(any(status not in (FINE, NOT_TRIED) for status, _ in cells.values()))


if __name__ == "__main__":
    if sys.argv[1:2] == ["--cell"]:
        sys.exit(try_cell(*sys.argv[2:4]))
    sys.exit(main(sys.argv[1:]))
