"""What has passed with these very bits is not run again; what changed or failed is."""
import pathlib
import shutil
import subprocess
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "checks/unless_passed"


class UnlessPassed(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "read").mkdir()
        (self.folder / "read/picture").write_text("red")
        self.program = self.folder / "program"
        shutil.copy("/bin/sh", self.program)

    def runs(self, result=0):
        """How often the program has run afterwards; it ends with `result`."""
        count = self.folder / "count"
        ended = subprocess.run([SCRIPT, self.folder / "stamps", self.folder / "read", self.program,
                                "-c", f"echo >> {count}; exit {result}"],
                               stdout=subprocess.DEVNULL)
        self.assertEqual(ended.returncode, result)
        return len(count.read_text())

    def test_what_has_passed_is_not_run_again(self):
        self.assertEqual([self.runs(), self.runs()], [1, 1])

    def test_what_has_failed_is_run_again(self):
        self.assertEqual([self.runs(3), self.runs(3)], [1, 2])

    def test_another_program_is_run(self):
        self.runs()
        with open(self.program, "ab") as program:
            program.write(b"\0")
        self.assertEqual(self.runs(), 2)

    def test_other_files_to_read_are_a_reason_to_run(self):
        self.runs()
        (self.folder / "read/picture").write_text("blue")
        self.assertEqual(self.runs(), 2)
        (self.folder / "read/another").write_text("red")
        self.assertEqual(self.runs(), 3)


if __name__ == "__main__":
    unittest.main()
