"""The completion of the command line, in a bash that somebody types into."""
import os
import pathlib
import pty
import subprocess
import tempfile
import unittest

COMPLETION = pathlib.Path(__file__).resolve().parents[2] / "packaging/desktop/quendrel.bash-completion"
PROMPT = "say something> "
COMPLETE, INSERT_ALL = "\t", "\x1b*"


class Completion(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for name in ("Skins/Mine", "Skins/My Own", "Sounds"):
            (self.root / "home" / name).mkdir(parents=True)
        (self.root / "home/Skipped.txt").touch()

    def command_line(self, typed):
        """The arguments that the game is started with once `typed` is completed and entered."""
        arguments = self.root / "arguments"
        start = self.root / "start"
        start.write_text(f"source '{COMPLETION}'\n"
                         f"quendrel() {{ printf '%s\\n' \"$@\" >'{arguments}'; }}\n"
                         f"PS1='{PROMPT}'\nHISTFILE=\n")
        keyboard, terminal = pty.openpty()
        self.addCleanup(os.close, keyboard)
        bash = subprocess.Popen(["bash", "--noprofile", "--rcfile", start, "-i"],
                                cwd=self.root / "home", start_new_session=True,
                                env={"PATH": os.environ["PATH"], "TERM": "dumb"},
                                stdin=terminal, stdout=terminal, stderr=terminal)
        self.addCleanup(bash.kill)
        os.close(terminal)
        shown = b""
        while PROMPT.encode() not in shown:
            shown += os.read(keyboard, 1000)
        os.write(keyboard, f"quendrel {typed}\nexit\n".encode())
        bash.wait(10)
        return arguments.read_text().splitlines()

    def test_two_dashes_offer_every_option(self):
        self.assertEqual(self.command_line("--" + INSERT_ALL),
                         ["--check-skin", "--folder", "--help", "--scale", "--version"])

    def test_the_beginning_of_an_option_becomes_the_whole(self):
        self.assertEqual(self.command_line("--ch" + COMPLETE), ["--check-skin"])

    def test_a_scale_is_offered_in_quarters(self):
        self.assertEqual(self.command_line("--scale " + INSERT_ALL),
                         ["--scale", "1", "1.25", "1.5", "1.75", "2", "2.25", "2.5", "2.75", "3"])

    def test_folders_are_offered_and_no_files(self):
        for option in ("--folder", "--check-skin"):
            self.assertEqual(self.command_line(f"{option} S" + INSERT_ALL),
                             [option, "Skins", "Sounds"])

    def test_a_folder_is_completed_with_the_blanks_in_its_name(self):
        self.assertEqual(self.command_line("--folder Sk" + COMPLETE + "My" + COMPLETE),
                         ["--folder", "Skins/My Own/"])

    def test_a_folder_is_completed_after_a_blank_in_its_name(self):
        self.assertEqual(self.command_line("--folder Skins/My\\ O" + COMPLETE),
                         ["--folder", "Skins/My Own/"])


if __name__ == "__main__":
    unittest.main()
