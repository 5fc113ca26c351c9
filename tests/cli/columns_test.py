#!/usr/bin/env python3
"""Compares the columns that `calvoro-cli convert --field` writes with those that Python splits, on random lines:
bytes of all kinds, lines longer than a block, plain dates beside refused ones and missing columns.

columns_test.py PROGRAM
"""

import datetime
import random
import subprocess
import sys
import unittest

PROGRAM = sys.argv.pop(1)
FILES = 80
DELIMITERS = [b"\t", b";", b"|", b"!", b"\x01", b"\\"]
BYTES = [0, 1, 9, 33, 34, 39, 44, 45, 49, 59, 65, 66, 92, 124, 128, 255]
LENGTHS = [0, 1, 3, 10, 17, 31, 32, 33, 40]
LONG = [60000, 140000, 300000]
WEEKDAYS = ["Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"]


def answers(text):
    try:
        date = datetime.date.fromisoformat(text.decode())
    except ValueError:
        return [b"", b"", b""]
    iso = "%d-W%02d-%d" % date.isocalendar()
    return [iso.encode(), str(date.toordinal() + 1721425).encode(), WEEKDAYS[date.weekday()].encode()]


class Columns(unittest.TestCase):
    def setUp(self):
        self.generator = random.Random(1582)

    def column(self, delimiter, lengths):
        generator = self.generator
        length = generator.choice(lengths)
        if length >= LONG[0]:
            return b"x" * length
        return bytes(generator.choice(BYTES) for _ in range(length)).replace(delimiter, b"")

    def date(self):
        day = datetime.date.fromordinal(self.generator.randrange(365000, 1000000)).isoformat()
        return self.generator.choice([day] * 12 + ["", day + "x", "2023-02-29", "x" + day]).encode()

    def row(self, delimiter, count, dated):
        lengths = LENGTHS + (LONG if self.generator.random() < 0.02 else [])
        row = [self.column(delimiter, lengths) for _ in range(count)]
        for index in dated:
            row[index] = self.date()
        return row[: self.generator.randrange(count) + 1] if self.generator.random() < 0.03 else row

    def expected(self, row, dated, append):
        if len(row) <= max(dated):
            return []
        if append:
            return row + [answer for index in dated for answer in answers(row[index])]
        pieces = [answers(text) if index in dated else [text] for index, text in enumerate(row)]
        return [piece for group in pieces for piece in group]

    def test_are_those_that_python_splits(self):
        generator = self.generator
        for number in range(FILES):
            delimiter = generator.choice(DELIMITERS)
            count = generator.randrange(1, 6)
            dated = generator.sample(range(count), generator.randrange(1, count + 1))
            append = generator.random() < 0.5
            rows = [self.row(delimiter, count, dated) for _ in range(generator.randrange(1, 300))]
            ends = [generator.choice([b"\n", b"\r\n"]) for _ in rows]
            if rows[-1] != [b""]:
                ends[-1] = generator.choice([b"\n", b"\r\n", b""])
            content = b"".join(delimiter.join(row) + end for row, end in zip(rows, ends))
            expected = b"".join(delimiter.join(self.expected(row, dated, append)) + end
                                for row, end in zip(rows, ends))
            command = [PROGRAM, "convert", "--from", "CE", "--to", "ISO,JDN", "--weekday", "--delimiter", delimiter,
                       "--field", ",".join(str(index + 1) for index in dated)] + ["--append"] * append
            result = subprocess.run(command, input=content, capture_output=True, timeout=60, check=False)
            with self.subTest(number):
                self.assertTrue(result.stdout == expected, "not what was expected")
                refusals = sum(1 if len(row) <= max(dated) else sum(answers(row[i])[0] == b"" for i in dated)
                               for row in rows)
                self.assertEqual(result.returncode, 1 if refusals > 0 else 0)
                self.assertEqual(result.stderr.count(b"\n"), refusals)


if __name__ == "__main__":
    unittest.main()
