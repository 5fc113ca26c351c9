#!/usr/bin/env python3
"""Prints the ratios of medians that the calendar library is held to.

Reads the JSON that calvoro_bench writes with --benchmark_repetitions, from the file named or from stdin.
Exits 1 when a ratio misses its bar.
"""

import json
import sys

# what is measured, against what, at most so many times as long
BARS = [
    ("Library/CommonEra/Near", "Chrono/CommonEra/Near", 1.1),
    ("Library/CommonEraBack/Near", "Chrono/CommonEraBack/Near", 1.1),
    ("Library/RoundTrip/Near", "Chrono/RoundTrip/Near", 1.1),
    ("Library/CommonEra/Whole", "Chrono/CommonEra/Chrono", 1.1),
    ("Library/CommonEraBack/Whole", "Chrono/CommonEraBack/Chrono", 1.1),
    ("Library/RoundTrip/Whole", "Chrono/RoundTrip/Chrono", 1.1),
    ("Library/CommonEra/Whole", "Textbook/CommonEra/Whole", 0.5),
    ("Library/CommonEraBack/Whole", "Textbook/CommonEraBack/Whole", 0.5),
    ("Library/RoundTrip/Whole", "Textbook/RoundTrip/Whole", 0.5),
    ("Library/IsoWeek/Whole", "Library/CommonEra/Whole", 1.4),
    ("Library/IsoWeek/Chrono", "Chrono/IsoWeek/Chrono", 1.0),
    ("Library/Ordinal/Whole", "Library/CommonEra/Whole", 0.9),
    ("Library/LeapWeek/Whole", "Library/CommonEra/Whole", 0.9),
    ("Library/Julian/Whole", "Library/CommonEra/Whole", 0.95),
    ("Library/LeapWeek/Whole", "Walked/LeapWeek/Whole", 0.01),
]

DAYS_IN_PASS = 131072


def medians(report):
    return {
        entry["run_name"]: entry["cpu_time"]
        for entry in report["benchmarks"]
        if entry.get("aggregate_name") == "median"
    }


def main():
    with open(sys.argv[1], encoding="utf-8") if len(sys.argv) > 1 else sys.stdin as source:
        times = medians(json.load(source))
    bars = [bar for bar in BARS if bar[0] in times and bar[1] in times]
    if not bars:
        sys.exit("ratios.py: no pair of medians in the report")
    missed = 0
    print(f"{'measured':29}{'ns/day':>8}   {'against':29}{'ns/day':>8}{'ratio':>8}{'bar':>7}")
    for measured, rival, bar in bars:
        ratio = times[measured] / times[rival]
        verdict = "" if ratio <= bar else "  MISSED"
        missed += ratio > bar
        print(
            f"{measured:29}{times[measured] / DAYS_IN_PASS:8.2f}   "
            f"{rival:29}{times[rival] / DAYS_IN_PASS:8.2f}{ratio:8.3f}{bar:7.2f}{verdict}"
        )
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
