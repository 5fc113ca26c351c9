#!/usr/bin/env python3
"""Makes the manual pages and the completions of the shells from what the programs say of themselves.

    packaging/pages/make.py CALVORO_CLI            writes them into packaging/
    packaging/pages/make.py CALVORO_CLI --check    tells which of them no longer say what the program says
"""

import pathlib
import re
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from completions import completions  # noqa: E402
from help import ROOT, read_program, version_of  # noqa: E402
from man import manual_pages  # noqa: E402


def release_date(version):
    """Of this version, as the packages' changelog has it."""
    metainfo = (ROOT / "packaging" / "desktop" / "calvoro.metainfo.xml.in").read_text(encoding="utf-8")
    return re.search(rf'<release version="{re.escape(version)}" date="([0-9-]+)"', metainfo).group(1)


def main():
    program = sys.argv[1]
    whole, commands = read_program(program)
    version = version_of(program)
    stale = []
    for name, text in {**manual_pages(whole, commands, version, release_date(version)),
                       **completions(whole, commands)}.items():
        path = ROOT / "packaging" / name
        if "--check" not in sys.argv[2:]:
            path.write_text(text, encoding="utf-8")
        elif not path.is_file() or path.read_text(encoding="utf-8") != text:
            stale.append(name)
    if stale:
        sys.exit("not what the program says: " + ", ".join(stale) + " (packaging/pages/make.py makes them)")


main()
