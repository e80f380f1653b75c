"""Besieges the game and says how it went: run.py OUT [SECONDS [SEED]].

OUT is the folder of the log. Ends with 1 where something does not hold: then it prints the seed,
the last deeds and what the program said, and names a picture of the screen."""

import os
import random
import signal
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "e2e"))

# The modules of the end-to-end tests are there from now on.
from deeds import ENDING  # noqa: E402
from siege import Siege  # noqa: E402

SECONDS = 600


def say(*words):
    print(*words, flush=True)


def summary(siege):
    say(f"{sum(siege.counts.values())} deeds, {siege.in_vain} of them in vain, "
        f"{siege.starts} starts")
    for name, count in sorted(siege.counts.items(), key=lambda item: -item[1]):
        say(f"{count:7} {name}")
    for name, numbers in siege.figures.items():
        say(f"{name}: {min(numbers):.4g} to {max(numbers):.4g}, at last {numbers[-1]:.4g}")


def report(siege, seed, trouble):
    for line in (f"FAILED with the seed {seed}: {trouble}", "The last deeds:",
                 *siege.last_lines(), "What the program said:", *siege.game.lines()):
        say(line)
    say(f"The screen: {siege.screenshot()}")


def end(number, _frame):
    sys.exit(128 + number)


def heed_signals():
    """Those too that this program is to ignore, as where it runs in the background: the game would
    ignore them as well."""
    for name in ENDING:
        signal.signal(getattr(signal, name), end)


def main(out, seconds=SECONDS, seed=None):
    heed_signals()
    seed = random.randrange(10 ** 6) if seed is None else int(seed)
    out = os.path.join(out, str(seed))
    os.makedirs(out, exist_ok=True)
    say(f"The seed is {seed}, the log {out}/deeds")
    siege = Siege(seed, out)
    try:
        try:
            siege.run(float(seconds))
        except Exception as trouble:  # whatever it is, the seed and the deeds are to be told
            report(siege, seed, f"{type(trouble).__name__}: {trouble}")
            raise
        finally:
            summary(siege)
        say(f"Nothing fell. The last game was won with {len(siege.guesses)} guesses.")
    finally:
        siege.close()


if __name__ == "__main__":
    main(*sys.argv[1:4])
