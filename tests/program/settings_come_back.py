#!/usr/bin/env python3
"""Random settings through the real program: what it finds when it starts is what it saves when it ends.

settings_come_back.py [--count N] [--seed N] [--program PATH]
"""

import argparse
import sys

from desktop import settings_text
from offscreen import Offscreen, program_from, random_texts, seeded

CALENDARS = (0, 1, 2, 4, 6, 7, 8)


def random_settings(source, text):
    checks = [source.randrange(2) for _ in range(5)]
    saves = checks[4]
    longest = source.choice([100, 100, 100, 40_000])
    boxes = [text(longest, False) if saves else "" for _ in range(3)]
    return settings_text(
        *boxes, text(source.choice([200, 200, 5_000, 50_000]), True) if saves else "",
        language=source.randrange(3),
        formats=f"{source.randrange(3)},{source.choice([45, 46, 47])},{source.choice([0, 44, 46])}",
        calendars=",".join(str(source.choice(CALENDARS)) for _ in range(3)), checks=checks,
        month=(source.choice(["Sun", "Mon"]), source.choice(["CE", "JC"])), unit=source.randrange(2))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--count", type=int, default=1000)
    parser.add_argument("--seed", type=int, default=20261121)
    parser.add_argument("--program")
    arguments = parser.parse_args()
    source = seeded(arguments)
    text = random_texts(source)
    size = 0
    with Offscreen(program_from(arguments)) as session:
        for number in range(arguments.count):
            settings = random_settings(source, text)
            session.put_settings(settings)
            code = session.quit(session.start())
            if code != 0 or session.settings() != settings:
                print(f"settings {number}: exit code {code}")
                print(f"  before {settings[:500]!r}\n  after  {session.settings()[:500]!r}")
                sys.exit(1)
            size += len(settings)
        if session.own_errors():
            sys.exit(f"on the standard error: {session.own_errors()[:5]}")
    print(f"{arguments.count} settings, {size} bytes, came back byte for byte; the standard error stayed empty")


if __name__ == "__main__":
    main()
