#!/usr/bin/env python3
"""Kills, signals and full disks around the saving of the settings, on the real program.

kills.py [--kills N] [--signals N] [--seed N] [--program PATH] [saving|signals|disk ...]

saving   N kills around the moment of saving at each of 1 kB and 4 MB: the file is always the old one or the
         new one, and beside it lies at most one temporary file
signals  N signals at random moments of start and end: nothing of what was saved before is lost
disk     a full disk, a file-size limit, a folder that may not be written and one that vanishes
"""

import argparse
import os
import resource
import shutil
import signal
import subprocess
import sys
import time

from desktop import PATIENCE, settings_text
from offscreen import Offscreen, free_of_root, program_from, seeded, timed

LINE = "2021-03-04 CE plus 10 days = 2021-03-01 JC, Sunday, excluding 1st date\r\n"
SIZES = {"1 kB": 1 << 10, "4 MB": 4 << 20}


def texts_of(size):
    """Settings as the program saves them, and the same settings as it would not have written them."""
    after = settings_text("2021-03-04", output=LINE * (size // len(LINE)))
    return after.replace(b"2,45,44", b" 2,45,44"), after


def names(session):
    return sorted(path.name for path in session.settings_file.parent.iterdir())


def kill_while_saving(session, source, size_name, count):
    before, after = texts_of(SIZES[size_name])

    def one_saving():
        session.put_settings(before)
        process = session.start()
        return timed(lambda: session.quit(process))[1]
    took = sorted(one_saving() for _ in range(5))[2]
    found = {before: 0, after: 0}
    most_names = 0
    for number in range(count):
        session.put_settings(before)
        process = session.start()
        process.send_signal(signal.SIGTERM)
        time.sleep(source.uniform(0, took))
        process.kill()
        process.wait()
        content = session.settings()
        if content not in found:
            sys.exit(f"kill {number} at {size_name}: neither the old file nor the new one: {content[:200]!r}")
        found[content] += 1
        most_names = max(most_names, len(names(session)))
        if most_names > 2:
            sys.exit(f"kill {number} at {size_name}: {names(session)}")
    session.put_settings(before)
    session.quit(session.start())
    if names(session) != ["calvoro.usr"]:
        sys.exit(f"left after a good saving: {names(session)}")
    print(f"{count} kills at {size_name} within {took * 1000:.0f} ms of saving: {found[before]} left the old file, "
          f"{found[after]} the new one, at most {most_names - 1} temporary file")


def saving(session, source, arguments):
    for size_name in SIZES:
        kill_while_saving(session, source, size_name, arguments.kills)


def signals(session, source, arguments):
    before, after = texts_of(SIZES["1 kB"])

    def start_and_quit():
        return session.quit(session.start())
    session.put_settings(before)
    _, took = timed(start_and_quit)
    outcomes = {"saved": 0, "ended before it could save": 0}
    for number in range(arguments.signals):
        session.put_settings(before)
        process = session.launch()
        chosen = [source.choice([signal.SIGTERM, signal.SIGINT, signal.SIGHUP]) for _ in range(source.choice([1, 1, 2, 3]))]
        for one in chosen:
            time.sleep(source.uniform(0, took * 1.2 / len(chosen)))
            process.send_signal(one)
        try:
            code = process.wait(timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            sys.exit(f"signal {number}: {chosen} did not end the program")
        if code not in (0, *(-one for one in chosen)) or session.settings() not in (before, after):
            sys.exit(f"signal {number}: {chosen}, exit code {code}, {session.settings()[:200]!r}")
        if code == 0 and session.settings() != after:
            sys.exit(f"signal {number}: {chosen}, a good end without saving")
        outcomes["saved" if code == 0 else "ended before it could save"] += 1
    print(f"{arguments.signals} times one to three signals within {took * 1200:.0f} ms of the start: " +
          ", ".join(f"{count} {outcome}" for outcome, count in outcomes.items()))


def ends_well(session, process):
    code = session.quit(process)
    if code != 0:
        sys.exit(f"exit code {code}")


def full_disk(session):
    folder = session.settings_file.parent
    folder.mkdir(parents=True, exist_ok=True)
    if subprocess.run(["mount", "-t", "tmpfs", "-o", "size=256k", "tmpfs", folder], capture_output=True,
                      check=False).returncode != 0:
        print("full disk: not tried, as nothing may be mounted here")
        return
    try:
        before, _ = texts_of(100_000)
        session.put_settings(before)
        (folder / "filler").write_bytes(b"x" * 100_000)
        process = session.start()
        ends_well(session, process)
        if session.settings() != before or names(session) != ["calvoro.usr", "filler"]:
            sys.exit(f"full disk: {names(session)}")
    finally:
        subprocess.run(["umount", folder], check=True)
    print("full disk: the old file is untouched, no temporary file is left")


def file_size_limit(session):
    before, _ = texts_of(SIZES["4 MB"])
    session.put_settings(before)
    limit = 1 << 20
    process = session.start(preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit)))
    ends_well(session, process)
    if session.settings() != before or names(session) != ["calvoro.usr"]:
        sys.exit(f"file-size limit: {names(session)}")
    print("file-size limit: the old file is untouched, no temporary file is left")


def read_only_folder(session):
    before, _ = texts_of(SIZES["1 kB"])
    session.put_settings(before)
    folder = session.settings_file.parent
    user = free_of_root(session.folder)
    session.folder.chmod(0o755)
    folder.chmod(0o500)
    process = session.start(**user)
    ends_well(session, process)
    if session.settings() != before or names(session) != ["calvoro.usr"]:
        sys.exit(f"folder without write permission: {names(session)}")
    folder.chmod(0o700)
    print("folder without write permission: the old file is untouched, no temporary file is left")


def vanished_folder(session):
    before, after = texts_of(SIZES["1 kB"])
    session.put_settings(before)
    process = session.start()
    time.sleep(0.5)
    shutil.rmtree(session.settings_file.parent)
    ends_well(session, process)
    if session.settings() != after:
        sys.exit("vanished folder: the settings were not saved")
    if session.settings_file.stat().st_mode & 0o777 != 0o600 or session.settings_file.parent.stat().st_mode & 0o777 != 0o700:
        sys.exit("vanished folder: the new one is not for the user alone")
    shutil.rmtree(session.home)
    process = session.start()
    shutil.rmtree(session.home)
    ends_well(session, process)
    if session.home.exists():
        sys.exit("vanished home: it was made again")
    print("vanished folder: it is made again for the user alone; not so with a vanished home")


def disk(session, _source, _arguments):
    for check in (full_disk, file_size_limit, vanished_folder):
        check(session)
        session.home.mkdir(exist_ok=True)
    read_only_folder(session)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--kills", type=int, default=1000)
    parser.add_argument("--signals", type=int, default=300)
    parser.add_argument("--seed", type=int, default=20261121)
    parser.add_argument("--program")
    parser.add_argument("what", nargs="*", default=[])
    arguments = parser.parse_args()
    checks = {"saving": saving, "signals": signals, "disk": disk}
    source = seeded(arguments)
    os.umask(0o022)
    with Offscreen(program_from(arguments)) as session:
        for name in arguments.what or checks:
            checks[name](session, source, arguments)
        if session.own_errors():
            sys.exit(f"on the standard error: {session.own_errors()[:5]}")
    print("the standard error stayed empty")


if __name__ == "__main__":
    main()
