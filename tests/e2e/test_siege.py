"""The siege of the game, tests/siege/: a short one, and what it makes of a game that falls."""

import os
import re
import subprocess
import sys
import tempfile
import unittest

from game import PLAYERS_PROGRAM

SIEGE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "siege")
ENOUGH_TO_FALL = 60  # seconds, in which it has long fallen
OF_A_HUNDRED_DEEDS = "import deeds; print([deeds.draw(7, number)[1] for number in range(100)])"
KINDS = "import deeds; print(len({deeds.draw(7, n)[0] for n in range(9000)}), len(deeds.DEEDS))"


class Siege(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.out = folder.name

    def besiege(self, seconds, seed, program=PLAYERS_PROGRAM):
        command = [sys.executable, "-B", os.path.join(SIEGE, "run.py"), self.out]
        return subprocess.run([*command, str(seconds), str(seed)], capture_output=True, text=True,
                              env=os.environ | {"QUENDREL_E2E_PLAYERS_PROGRAM": program},
                              check=False)

    def fall_of(self, fate):
        """What the siege says of a game that meets this fate in its third second."""
        program = os.path.join(self.out, "program")
        with open(program, "w", encoding="utf-8") as file:
            file.write(f"#!/bin/sh\n(sleep 3; {fate}) &\nexec '{PLAYERS_PROGRAM}' \"$@\"\n")
        os.chmod(program, 0o755)
        done = self.besiege(ENOUGH_TO_FALL, 5, program)
        self.assertEqual(done.returncode, 1, done.stdout)
        self.assertIn("FAILED with the seed 5: ", done.stdout)
        self.assertRegex(done.stdout, r"(?m)^ +\d+ [a-z ]+: ")  # a deed
        picture = re.search("(?m)^The screen: (.*)$", done.stdout)[1]
        self.assertGreater(os.path.getsize(picture), 1000)
        return done.stdout

    def test_game_withstands_a_short_siege(self):
        done = self.besiege(20, 1)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        self.assertRegex(done.stdout, r"Nothing fell. The last game was won with \d+ guesses")

    def test_siege_tells_of_a_game_that_crashes(self):
        self.assertIn("the program ended with -11", self.fall_of("kill -SEGV $$"))

    def test_siege_tells_of_words_that_no_game_says(self):
        words = "Game.cpp:3:1: runtime error: signed integer overflow"
        said = self.fall_of(f"echo '{words}' >&2")
        self.assertIn("unknown words on standard error:\n" + words, said)

    def test_siege_tells_of_a_game_that_hangs(self):
        self.assertIn("the program does not answer", self.fall_of("kill -STOP $$"))

    def of_deeds(self, question, hashes):
        path = os.pathsep.join((SIEGE, os.path.dirname(os.path.abspath(__file__))))
        environment = os.environ | {"PYTHONPATH": path, "PYTHONHASHSEED": hashes}
        return subprocess.run([sys.executable, "-B", "-c", question], env=environment, check=True,
                              capture_output=True, text=True).stdout

    def test_same_seed_does_the_same_deeds_and_leaves_no_kind_out(self):
        self.assertEqual(self.of_deeds(OF_A_HUNDRED_DEEDS, "1"),
                         self.of_deeds(OF_A_HUNDRED_DEEDS, "2"))
        self.assertNotEqual(self.of_deeds(OF_A_HUNDRED_DEEDS, "1"),
                            self.of_deeds(OF_A_HUNDRED_DEEDS.replace("7", "8"), "1"))
        drawn, all_kinds = self.of_deeds(KINDS, "1").split()
        self.assertEqual(drawn, all_kinds)
