"""The ratios that scripts/bench-python reports."""

import datetime
import os
import statistics
import subprocess
import sys
import tempfile
import time

import calvoro
import numpy as np

COUNT = 2_000_000
FIRST_DAY, DAY_AFTER_LAST = 1_721_426, 5_373_485  # the years 1 to 9999


def seconds(work):
    begin = time.perf_counter()
    work()
    return time.perf_counter() - begin


def main():
    program, rounds = sys.argv[1], int(sys.argv[2])
    days = np.random.default_rng(13).integers(FIRST_DAY, DAY_AFTER_LAST, COUNT).astype(np.int32)
    texts = calvoro.convert(days, "JDN", "CE")
    ordinals = [day - FIRST_DAY + 1 for day in days.tolist()]
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "dates")
        with open(path, "w", encoding="ascii") as file:
            file.write("\n".join(texts.tolist()) + "\n")

        def convert_lines():
            with open(path, "rb") as lines, open(path + ".out", "wb") as out:
                subprocess.run([program, "convert", "--from", "CE", "--to", "ISO"], stdin=lines, stdout=out, check=True)

        rivals = {
            "array": lambda: calvoro.convert(texts, "CE", "ISO"),
            "program": convert_lines,
            "fields": lambda: calvoro.fields(days),
            "fromordinal": lambda: [datetime.date.fromordinal(ordinal) for ordinal in ordinals],
        }
        times = {name: [] for name in rivals}
        for _ in range(rounds):
            for name, work in rivals.items():
                times[name].append(seconds(work))
    median = {name: statistics.median(values) for name, values in times.items()}
    print({name: round(value, 4) for name, value in median.items()})

    missed = False
    for what, ratio, bar, good in (
            ("2,000,000 texts CE to ISO, times calvoro-cli convert", median["array"] / median["program"], "at most 4",
             lambda ratio: ratio <= 4),
            ("2,000,000 days to years, months, days: times faster than fromordinal",
             median["fromordinal"] / median["fields"], "at least 15", lambda ratio: ratio >= 15)):
        missed = missed or not good(ratio)
        print(f"{what:70} {ratio:8.2f}   ({bar}: {'met' if good(ratio) else 'MISSED'})")
    sys.exit(missed)


if __name__ == "__main__":
    main()
