#!/usr/bin/env python3
"""Compares `calvoro-cli convert --csv --field` with Python's csv module on random files.

csv_test.py PROGRAM
"""

import csv
import datetime
import io
import random
import subprocess
import sys
import unittest

PROGRAM = sys.argv.pop(1)
FILES = 60
PIECES = ["a", "B c", ",", '"', "\n", "\r\n", "é", "", "2024-01-01", "'", ";", "\t", " "]


def random_text(generator):
    return "".join(generator.choice(PIECES) for _ in range(generator.randrange(5)))


def random_date(generator):
    return datetime.date.fromordinal(generator.randrange(365250, 1000000))


def iso(date):
    return "%04d-W%02d-%d" % date.isocalendar()


def convert(content, *options):
    result = subprocess.run([PROGRAM, "convert", "--from", "CE", "--to", "ISO", "--csv", *options],
                            input=content.encode(), capture_output=True, timeout=60, check=False)
    return result.returncode, result.stdout.decode(), result.stderr.decode()


def written(rows, quoting):
    out = io.StringIO(newline="")
    csv.writer(out, quoting=quoting, lineterminator="\r\n").writerows(rows)
    return out.getvalue()


class Csv(unittest.TestCase):
    def setUp(self):
        self.generator = random.Random(4180)

    def rows(self, columns, dated):
        generator = self.generator
        rows = []
        for _ in range(generator.randrange(1, 40)):
            row = [random_text(generator) for _ in range(columns)]
            row[dated] = random_date(generator)
            rows.append(row)
        return rows

    def test_columns_are_those_that_the_module_reads(self):
        for number in range(FILES):
            columns = self.generator.randrange(2, 6)
            dated = self.generator.randrange(columns)
            rows = self.rows(columns, dated)
            quoting = self.generator.choice([csv.QUOTE_MINIMAL, csv.QUOTE_ALL])
            status, output, messages = convert(written(rows, quoting), "--field", str(dated + 1))
            with self.subTest(number):
                self.assertEqual((status, messages), (0, ""))
                seen = list(csv.reader(io.StringIO(output, newline="")))
                self.assertEqual(seen, [row[:dated] + [iso(row[dated])] + row[dated + 1:] for row in rows])

    def test_other_columns_keep_every_byte(self):
        for number in range(FILES):
            columns = self.generator.randrange(2, 6)
            dated = self.generator.randrange(columns)
            rows = self.rows(columns, dated)
            # A date is never quoted by the module here, so the converted file is told by the same writer.
            content = written(rows, csv.QUOTE_MINIMAL)
            expected = written([row[:dated] + [iso(row[dated])] + row[dated + 1:] for row in rows],
                               csv.QUOTE_MINIMAL)
            with self.subTest(number):
                self.assertEqual(convert(content, "--field", str(dated + 1)), (0, expected, ""))

    def test_appended_columns_follow_the_line(self):
        for number in range(FILES):
            rows = self.rows(3, 1)
            content = written([["x", "day", "z"]] + rows, csv.QUOTE_MINIMAL)
            _, output, _ = convert(content, "--field", "2", "--append", "--header")
            with self.subTest(number):
                seen = list(csv.reader(io.StringIO(output, newline="")))
                self.assertEqual(seen, [["x", "day", "z", "day ISO"]] +
                                 [[row[0], row[1].isoformat(), row[2], iso(row[1])] for row in rows])

    def test_every_answer_is_one_column_whatever_separates_them(self):
        generator = self.generator
        for number in range(FILES):
            delimiter = generator.choice(",;|\t ")
            dated = generator.randrange(3)
            rows = self.rows(3, dated)
            names = [random_text(generator) for _ in range(3)]
            out = io.StringIO(newline="")
            csv.writer(out, delimiter=delimiter, lineterminator="\r\n").writerows([names] + rows)
            mark = generator.choice(["", "\ufeff"])
            status, output, messages = convert(mark + out.getvalue(), "--to", "ISO,JDN", "--thousands-separator", ",",
                                               "--delimiter", delimiter, "--header", "--field", str(dated + 1))
            with self.subTest(number):
                self.assertEqual((status, messages, output.startswith("\ufeff")), (0, "", mark != ""))
                expected = [names[:dated] + [names[dated] + " ISO", names[dated] + " JDN"] + names[dated + 1:]]
                for row in rows:
                    day = "{:,}".format(row[dated].toordinal() + 1721425)
                    expected.append([str(text) for text in row[:dated] + [iso(row[dated]), day] + row[dated + 1:]])
                seen = csv.reader(io.StringIO(output[len(mark):], newline=""), delimiter=delimiter)
                self.assertEqual(list(seen), expected)


if __name__ == "__main__":
    unittest.main()
