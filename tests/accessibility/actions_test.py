#!/usr/bin/env python3
"""Whether the real program can be worked through the accessibility bus alone.

    actions_test.py PROGRAM
"""

import pathlib
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from reader import HERE, PYTHON, ReaderDesktop, settings_text  # noqa: E402

EXPECTED = """\
written: 2021-03-04
its description: First date: Thursday, 4 March 2021 CE, day number 2459278
text changes heard: True
descriptions announced: 0
converted: 2021-02-19
focus stays on the option: True
focus: True
verbose: False
output: 2021-02-19 JC plus 10 days = 2021-03-14 CE
weekends can be chosen: False
the difference's description: Date difference: 10 months
emptied: ''
in German: Erstes Datum: Mittwoch, 15. Maerz -43 JC (44 v. Chr.), Tageszahl 1705426
back: Compute
"""


def main():
    with ReaderDesktop(sys.argv[1], None) as desktop:
        desktop.put_settings(settings_text())
        process = desktop.start()
        result = desktop.tool(PYTHON, "-B", "-W", "ignore", str(HERE / "hands.py"))
        desktop.quit(process)
        status = desktop.end(process)
    sys.stderr.write(result.stderr)
    if result.stdout != EXPECTED:
        print(f"expected:\n{EXPECTED}\nseen:\n{result.stdout}")
    sys.exit(0 if result.stdout == EXPECTED and status == 0 else 1)


if __name__ == "__main__":
    main()
