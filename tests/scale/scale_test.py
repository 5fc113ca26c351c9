"""What docs/scale.md says: the same work, spread. Compared line by line with one process.

    scale_test.py CALVORO_CLI EXAMPLES
"""

import os
import subprocess
import sys
import tempfile
import unittest

import calvoro
import numpy as np
import pandas as pd

PROGRAM, EXAMPLES = (os.path.abspath(word) for word in sys.argv[1:3])
COUNT = 2_000_000


def convert_lines(lines, *words, status=0):
    run = subprocess.run([PROGRAM, "convert", "--from", "CE", "--to", "ISO", *words], input=lines,
                         stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    assert run.returncode == status, run.stderr[:500]
    return run.stdout


class Scale(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        days = np.random.default_rng(3).integers(-700_000_000, 700_000_000, COUNT).astype(np.int32)
        texts = calvoro.convert(days, "JDN", "CE").tolist()
        for place in range(0, COUNT, 99_991):
            texts[place] = "2023-02-29"  # refused
        cls.input = os.path.join(cls.folder.name, "dates")
        cls.lines = ("\n".join(texts) + "\n").encode()
        with open(cls.input, "wb") as file:
            file.write(cls.lines)
        cls.expected = convert_lines(cls.lines, status=1)
        cls.environment = dict(os.environ, PATH=os.path.dirname(PROGRAM) + os.pathsep + os.environ["PATH"])

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_convert_is_a_filter_of_lines(self):
        """What pipe and streaming engines rely on: one line in, one line out, order kept, nothing kept."""
        answers = self.expected.split(b"\n")
        self.assertEqual(len(answers), COUNT + 1)
        self.assertEqual([place for place, line in enumerate(answers[:-1]) if not line], list(range(0, COUNT, 99_991)))
        lines = self.lines.split(b"\n")
        for begin, end in ((0, 1), (1, 1000), (COUNT - 7, COUNT)):
            part = b"\n".join(lines[begin:end]) + b"\n"
            status = 0 if all(answers[begin:end]) else 1
            self.assertEqual(convert_lines(part, status=status), b"\n".join(answers[begin:end]) + b"\n")
        self.assertEqual(convert_lines(b""), b"")
        self.assertEqual(convert_lines(b"2024-02-29"), b"2024-W09-4\n")  # a last line without its end

    def test_parallel(self):
        with open(self.input, "rb") as lines:
            run = subprocess.run([os.path.join(EXAMPLES, "parallel_convert"), "--from", "CE", "--to", "ISO"],
                                 stdin=lines, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                 env=self.environment, check=False)
        self.assertEqual(run.stdout, self.expected)

    def test_dask(self):
        output = os.path.join(self.folder.name, "converted")
        subprocess.run([sys.executable, os.path.join(EXAMPLES, "dask_convert.py"), "CE", "ISO", self.input, output],
                       check=True, env=self.environment)
        with open(output, "rb") as file:
            self.assertEqual(file.read(), self.expected)


class Pandas(unittest.TestCase):
    def test_a_series_gives_a_series(self):
        series = pd.Series(["2024-02-29", "2024-02-30", None], index=[7, 8, 9], name="day")
        answer = calvoro.convert(series, "CE", "ISO", errors="coerce")
        self.assertIsInstance(answer, pd.Series)
        self.assertEqual((answer.name, answer.index.tolist()), ("day", [7, 8, 9]))
        self.assertEqual(answer.isna().tolist(), [False, True, True])
        self.assertEqual(answer[7], "2024-W09-4")
        numbers = calvoro.day_number(series, errors="coerce")
        self.assertEqual(str(numbers.dtype), "Int64")
        self.assertEqual(calvoro.convert(numbers, "JDN", "CE", errors="coerce").tolist()[0], "2024-02-29")
        self.assertEqual(calvoro.between(series[:1], "2024-03-01").tolist(), [1])
        self.assertEqual(calvoro.add(series[:1], pd.Series([1])).tolist(), ["2024-03-01"])
        with self.assertRaises(calvoro.DateError) as caught:
            calvoro.convert(series, "CE", "ISO")
        self.assertEqual(caught.exception.index, 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
