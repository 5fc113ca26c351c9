#!/usr/bin/env python3
"""Damaged files before the real program: settings files and program text files with random mutations.

damage.py [--settings N] [--texts N] [--seed N] [--program PATH]

A damaged settings file gives what is left of it or the factory settings, and is whole again afterwards. A
damaged program text file is taken, or refused with a message, as an independent reading of it in this script
says. Nothing crashes, nothing starts slower than twice the ordinary start plus two seconds.
"""

import argparse
import re
import shutil
import signal
import statistics
import sys
import time

from desktop import PATIENCE, settings_text
from offscreen import Offscreen, program_from, seeded, timed

# A file is slow when it is slow each time; a machine with other work to do is slow at times.
PATIENT_ATTEMPTS = 3
LINE = "2021-03-04 CE plus 10 days = 2021-03-01 JC, Sunday, excluding 1st date\r\n"
WHOLE = re.compile(
    rb'[0-2]\r\n[0-2],(45|46|47),(0|44|46)\r\n([0124678],){2}[0124678]\r\n([01]\r\n){5}"(Sun|Mon)"\r\n"(CE|JC)"\r\n'
    rb'(?:"(?:(?!\r\n).)*"\r\n){3}".*"\r\n[01]\r\n', re.DOTALL)


def mutated(source, content, alphabet):
    """One to five changes, each of a kind that damages what has lines, numbers and quotes."""
    content = bytearray(content)
    for _ in range(source.choice([1, 1, 1, 2, 3, 5])):
        place = source.randrange(len(content) + 1)
        other = source.randrange(len(content) + 1)
        first, last = min(place, other), max(place, other)
        kind = source.randrange(8)
        if kind == 0:  # a byte becomes another one
            content[place:place + 1] = bytes([source.randrange(256)])
        elif kind == 1:  # a piece of what means something comes in
            content[place:place] = source.choice(alphabet)
        elif kind == 2:  # a byte goes
            del content[place:place + 1]
        elif kind == 3:  # the end goes
            del content[place:]
        elif kind == 4:  # the beginning goes
            del content[:place]
        elif kind == 5:  # some bytes come twice
            content[last:last] = content[first:min(last, first + 200)]
        elif kind == 6:  # some bytes go
            del content[first:min(last, first + 200)]
        else:  # one bit changes
            if place < len(content):
                content[place] ^= 1 << source.randrange(8)
    return bytes(content)


def ordinary_start(session):
    session.put_settings(settings_text())
    return statistics.median(timed(lambda: session.quit(session.start()))[1] for _ in range(9))


def damage_settings(session, source, count):
    alphabet = [b"\r\n", b"\n", b"\r", b'"', b'"\r\n"', b",", b"-", b"9" * 30, b"\0", b"\xff", b"\xef\xbb\xbf", b" ", b"\t", b'"\r\n1\r\n']
    slowest = 0
    factory = 0
    limit = 2 * ordinary_start(session) + 2
    for number in range(count):
        good = settings_text("2021-03-04", "10", '"', LINE * source.choice([0, 1, 3, 50]) + "x" * source.choice([0, 3000]),
                             language=source.randrange(2), formats="1,46,0", calendars="6,1,4",
                             checks=(1, 0, 0, 1, 1), month=("Mon", "JC"), unit=1)
        damaged = mutated(source, good, alphabet)
        for _ in range(PATIENT_ATTEMPTS):
            session.put_settings(damaged)
            code, took = timed(lambda: session.quit(session.start()))
            if took <= limit:
                break
        found = session.settings()
        slowest = max(slowest, took)
        factory += found == settings_text()
        if code != 0 or not WHOLE.fullmatch(found) or took > limit:
            sys.exit(f"settings {number}: exit code {code}, {took:.2f} s\n  damaged {damaged!r}\n  saved {found!r}")
    print(f"{count} damaged settings files: {factory} gave the factory settings, {count - factory} what was left; "
          f"the slowest start and end took {slowest:.2f} s, the limit was {limit:.2f} s")


def refusal(content):
    """Why a program text file is refused; None when it is good."""
    if not content:
        return "empty"
    lines = content.removeprefix(b"\xef\xbb\xbf").split(b"\n")
    if not lines[-1]:
        lines.pop()
    numbers = set()
    for number, line in enumerate(lines, 1):
        if number > 500:
            return "too much"
        line = line.removesuffix(b"\r")
        if line.startswith(b"#"):
            continue
        fields = line.split(b"\t")
        if not re.fullmatch(rb"[0-9]+", fields[0]) or int(fields[0]) > 2147483647:
            return f"no number in line {number}"
        if int(fields[0]) in numbers:
            return f"duplicate in line {number}"
        numbers.add(int(fields[0]))
        if len(fields) < 2 or not fields[1]:
            return f"no English text in line {number}"
        if any(len(text) > 1023 for text in fields[1:4]):
            return f"too long in line {number}"
    return None if numbers else "no text"


def waits_for_the_user(session, process):
    """Whether the program has come to rest without having got as far as its window."""
    def state_and_time():
        with open(f"/proc/{process.pid}/stat") as stat:
            fields = stat.read().rsplit(")", 1)[1].split()
        return fields[0], fields[11], fields[12]
    at_rest = 0
    before = None
    end = time.monotonic() + PATIENCE
    while process.poll() is None and not session.catches_signals(process) and time.monotonic() < end:
        now = state_and_time()
        at_rest = at_rest + 1 if now == before and now[0] == "S" else 0
        if at_rest == 3:
            return True
        before = now
        time.sleep(0.06)
    return False


def damage_texts(session, source, count):
    folder = session.folder / "program"
    folder.mkdir()
    original = session.program
    shutil.copy(original, folder / "calvoro")
    good = (type(session.folder)(original).parent / "calvoro.dat").read_bytes()
    session.program = str(folder / "calvoro")
    alphabet = [b"\t", b"\n", b"\r\n", b"#", b"310\t", b"x" * 1100, b"\0", b"\xff", b"\xef\xbb\xbf", b"~", b"-1", b"9" * 30, b"1\ta\n" * 600]
    limit = 2 * ordinary_start_with(session, folder, good) + 2
    refused = 0
    slowest = 0
    for number in range(count):
        damaged = mutated(source, good, alphabet)
        (folder / "calvoro.dat").write_bytes(damaged)
        session.settings_file.unlink(missing_ok=True)
        reason = refusal(damaged)
        began = time.monotonic()
        process = session.launch()
        if reason is None:
            while (process.poll() is None and not session.catches_signals(process)
                   and time.monotonic() - began < limit):
                time.sleep(0.005)
            as_expected = session.quit(process) == 0
        else:
            as_expected = waits_for_the_user(session, process)
            process.send_signal(signal.SIGTERM)
            as_expected = process.wait() == -signal.SIGTERM and as_expected and not session.settings_file.exists()
            refused += 1
        took = time.monotonic() - began
        if reason is None and took > limit:
            took = min(timed(lambda: session.quit(session.start()))[1] for _ in range(PATIENT_ATTEMPTS))
        if reason is None:
            slowest = max(slowest, took)
        if not as_expected or (reason is None and took > limit):
            (session.folder.parent / "calvoro-damaged.dat").write_bytes(damaged)
            sys.exit(f"program texts {number}: expected {reason or 'a start'}, exit code {process.returncode}, "
                     f"{took:.2f} s; the file is calvoro-damaged.dat")
    print(f"{count} damaged program text files: {refused} were refused with a message, {count - refused} taken; "
          f"the slowest start and end took {slowest:.2f} s, the limit was {limit:.2f} s")


def ordinary_start_with(session, folder, texts):
    (folder / "calvoro.dat").write_bytes(texts)
    return ordinary_start(session)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--settings", type=int, default=10_000)
    parser.add_argument("--texts", type=int, default=5_000)
    parser.add_argument("--seed", type=int, default=20261121)
    parser.add_argument("--program")
    arguments = parser.parse_args()
    source = seeded(arguments)
    with Offscreen(program_from(arguments)) as session:
        damage_settings(session, source, arguments.settings)
        damage_texts(session, source, arguments.texts)
        if session.own_errors():
            sys.exit(f"on the standard error: {session.own_errors()[:5]}")
    print("the standard error stayed empty")


if __name__ == "__main__":
    main()
