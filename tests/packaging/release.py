"""The release that the sources make, as CMakeLists.txt names it."""
import pathlib
import re

_project = (pathlib.Path(__file__).resolve().parents[2] / "CMakeLists.txt").read_text()
VERSION = re.search(r"^project\(Quendrel VERSION (\S+) ", _project, re.M)[1]
DAY = re.search(r"^set\(QUENDREL_RELEASED (\S+)\)$", _project, re.M)[1]
