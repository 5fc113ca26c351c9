"""The command line of a script of cases, each of which the suite runs as a test of its own.

SCRIPT --list           names every case
SCRIPT PROGRAM... CASE  runs one
"""

import pathlib
import sys
import unittest


def programs(count):
    """The programs on the command line, as many as the script needs; none of them when cases are only named."""
    if sys.argv[1:] == ["--list"]:
        return [None] * count
    return [str(pathlib.Path(path).resolve()) for path in sys.argv[1:count + 1]]


def main(count):
    """Does what the command line asks of the script that is run; count is that of its programs."""
    script = sys.modules["__main__"]
    if sys.argv[1:] == ["--list"]:
        for suite in unittest.defaultTestLoader.loadTestsFromModule(script):
            for case in suite:
                print(case.id().removeprefix("__main__."))
        return
    names = sys.argv[count + 1:]
    suite = unittest.defaultTestLoader.loadTestsFromNames(names, script)
    result = unittest.TextTestRunner(verbosity=2).run(suite)
    sys.exit(0 if result.wasSuccessful() and result.testsRun == len(names) > 0 else 1)
