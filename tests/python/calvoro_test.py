"""Tests of the Python module, as it is installed."""

import doctest
import inspect
import pathlib
import pydoc
import sys
import threading
import time
import unittest

import calvoro
import numpy as np
from calvoro import DateError

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "manual"))
sys.dont_write_bytecode = True
from pages import all_pages, blocks  # noqa: E402

CE = ["2024-02-29", "1582-10-15", "-43-03-13", "0001-01-01", "9999-12-31"]
IN_EVERY_NOTATION = {
    "CE": "2024-02-29", "ISO": "2024-W09-4", "JC": "2024-02-16", "ORD": "2024-060", "LPM": "2024-03-04",
    "LPW": "2024-10-4", "JDN": "2460370",
}


class Convert(unittest.TestCase):
    def test_every_notation_to_every_other(self):
        self.assertEqual(tuple(IN_EVERY_NOTATION), calvoro.NOTATIONS)
        for source, text in IN_EVERY_NOTATION.items():
            for target, expected in IN_EVERY_NOTATION.items():
                self.assertEqual(calvoro.convert(text, source, target), expected, (source, target))

    def test_answers_in_kind(self):
        expected = ["2024-W09-4", "1582-W41-5"]
        self.assertEqual(calvoro.convert(CE[:2], "CE", "ISO"), expected)
        self.assertEqual(calvoro.convert(tuple(CE[:2]), "CE", "ISO"), expected)
        self.assertEqual(calvoro.convert([], "CE", "ISO"), [])
        for dtype in ("U10", "U30", "S10", object, ">U10"):
            column = np.array([CE[:2], CE[:2]], dtype=dtype)
            answer = calvoro.convert(column, "CE", "ISO")
            self.assertIsInstance(answer, np.ndarray)
            self.assertEqual(answer.dtype.kind, "U")
            self.assertEqual(answer.tolist(), [expected, expected])
        self.assertEqual(calvoro.convert(np.array([], dtype="U10"), "CE", "ISO").shape, (0,))

    def test_takes_columns_that_lie_apart(self):
        column = np.array([CE[:2] * 3, CE[:2] * 3])[:, ::2].T
        self.assertFalse(column.flags.c_contiguous)
        self.assertEqual(calvoro.convert(column, "CE", "JC").tolist(), [["2024-02-16"] * 2] * 3)

    def test_day_numbers(self):
        for dtype in (np.int32, np.int64, np.int16, np.uint64):
            self.assertEqual(calvoro.convert(np.array([1, 2], dtype), "JDN", "CE").tolist(),
                             ["-4713-11-25", "-4713-11-26"])
        self.assertEqual(calvoro.convert([2460370, 0], "JDN", "JC"), ["2024-02-16", "-4712-01-01"])
        self.assertEqual(calvoro.convert(np.int64(2460370), "JDN", "CE"), "2024-02-29")
        with self.assertRaises(DateError) as caught:
            calvoro.convert(np.array([0, 2_100_000_001]), "JDN", "CE")
        self.assertEqual((caught.exception.index, caught.exception.value), (1, 2_100_000_001))
        with self.assertRaises(DateError):
            calvoro.convert([10**30], "JDN", "CE")
        self.assertEqual(calvoro.convert([2**32, 0], "JDN", "CE", errors="coerce"), [None, "-4713-11-24"])

    def test_options(self):
        self.assertEqual(calvoro.convert("29.02.2024", "CE", "JC", date_format="DMY", date_separator="."),
                         "16.02.2024")
        self.assertEqual(calvoro.convert("2024-02-29", "CE", "ORD", hyphen=False), "2024060")
        self.assertEqual(calvoro.convert("2024-02-29", "CE", "JDN", thousands_separator=","), "2,460,370")
        self.assertEqual(calvoro.convert(10**7, "JDN", "LPW", digit_grouping="\u202f"), "22\u202f666-52-4")
        column = calvoro.convert(np.array([10**7, 0], np.int64) + 1, "JDN", "LPW", digit_grouping="\u202f")
        self.assertEqual(column.tolist(), ["22\u202f666-52-5", "-4713-49-2"])
        self.assertEqual(calvoro.convert("2024-02-29 CE (a Thursday)", "CE", "ISO", lenient=True), "2024-W09-4")
        for wrong in (dict(date_format="YDM"), dict(date_separator="x"), dict(thousands_separator=";"),
                      dict(errors="ignore")):
            with self.assertRaises(ValueError, msg=wrong):
                calvoro.convert("2024-02-29", "CE", "ISO", **wrong)
        for source, target in (("ce", "ISO"), ("CE", "AN"), ("", "CE")):
            with self.assertRaises(ValueError):
                calvoro.convert("2024-02-29", source, target)


class Refusals(unittest.TestCase):
    def test_name_the_row_the_value_and_the_reason(self):
        for column in (["2024-02-29", "2024-02-3O"], np.array(["2024-02-29", "2024-02-3O"])):
            with self.assertRaises(DateError) as caught:
                calvoro.convert(column, "CE", "ISO")
            self.assertEqual(caught.exception.index, 1)
            self.assertEqual(caught.exception.value, "2024-02-3O")
            self.assertEqual(str(caught.exception), "row 1: not a CE date: unexpected 'O' at column 10")
        self.assertTrue(issubclass(DateError, ValueError))
        with self.assertRaises(DateError) as caught:
            calvoro.convert("12024-01-01", "CE", "ORD")
        self.assertEqual(str(caught.exception), "out of range for ORD")
        self.assertIsNone(caught.exception.index)

    def test_are_missing_when_coerced(self):
        texts = ["2024-02-29", "2024-02-30", None, "", "5800001-01-01"]
        self.assertEqual(calvoro.convert(texts, "CE", "ISO", errors="coerce"),
                         ["2024-W09-4", None, None, None, None])
        self.assertIsNone(calvoro.convert("x", "CE", "ISO", errors="coerce"))
        self.assertIsNone(calvoro.convert("12024-01-01", "CE", "ORD", errors="coerce"))
        answer = calvoro.convert(np.array(texts[:2]), "CE", "ISO", errors="coerce")
        self.assertEqual(answer.mask.tolist(), [False, True])
        self.assertEqual(answer.tolist(), ["2024-W09-4", None])
        again = calvoro.convert(answer, "ISO", "CE", errors="coerce")
        self.assertEqual(again.tolist(), ["2024-02-29", None])
        self.assertEqual(calvoro.day_number(np.array(texts[:2]), errors="coerce").tolist(), [2460370, None])

    def test_of_what_is_no_text_are_type_errors(self):
        for values in (5, [5], 2.5, np.array([1.5]), [b"2024-02-29"], object()):
            with self.assertRaises(TypeError, msg=values):
                calvoro.convert(values, "CE", "ISO")
        for values in (True, [True], [1.5], np.array([1.5])):
            with self.assertRaises(TypeError, msg=values):
                calvoro.convert(values, "JDN", "ISO")


class Numbers(unittest.TestCase):
    def test_day_number_and_fields(self):
        self.assertEqual(calvoro.day_number(CE), [2460370, 2299161, 1705426, 1721426, 5373484])
        days = calvoro.day_number(np.array(CE))
        self.assertEqual(days.dtype, np.int32)
        year, month, day = calvoro.fields(days)
        self.assertEqual(list(zip(year.tolist(), month.tolist(), day.tolist())),
                         [(2024, 2, 29), (1582, 10, 15), (-43, 3, 13), (1, 1, 1), (9999, 12, 31)])
        for target, expected in (("CE", (2024, 2, 29)), ("JC", (2024, 2, 16)), ("ISO", (2024, 9, 4)),
                                 ("ORD", (2024, 60)), ("LPM", (2024, 3, 4)), ("LPW", (2024, 10, 4)),
                                 ("JDN", (2460370,))):
            self.assertEqual(calvoro.fields(2460370, target=target), expected)

    def test_every_text_reads_back_to_its_day(self):
        days = np.random.default_rng(7).integers(-2_000_000_000, 2_000_000_000, 5_000).astype(np.int32)
        for notation in ("CE", "JC", "LPM", "LPW", "JDN"):
            texts = calvoro.convert(days, "JDN", notation)
            self.assertTrue((calvoro.day_number(texts, notation) == days).all(), notation)

    def test_between(self):
        self.assertEqual(calvoro.between("2021-03-04", "2021-03-14"), 10)
        self.assertEqual(calvoro.between("2021-03-04", "2021-03-14", include_first=True), 11)
        self.assertEqual(calvoro.between("2021-03-04", "2021-03-14", count_weekends=False), 6)
        self.assertEqual(calvoro.between("2021-03-04", "2021-W10-7", second_source="ISO"), 10)
        self.assertEqual(calvoro.between(np.array(CE[:2]), "2024-03-01").tolist(), [1, 161210])
        self.assertEqual(calvoro.between("2024-03-01", CE[:2]), [-1, -161210])
        self.assertEqual(calvoro.between(["x", CE[0]], "2024-03-01", errors="coerce"), [None, 1])
        with self.assertRaises(DateError):
            calvoro.between(-2_000_000_000, 2_000_000_000, "JDN")
        self.assertIsNone(calvoro.between(-2_000_000_000, 2_000_000_000, "JDN", errors="coerce"))
        with self.assertRaises(ValueError):
            calvoro.between(CE[:2], CE[:3])

    def test_add(self):
        self.assertEqual(calvoro.add("2021-03-04", 10), "2021-03-14")
        self.assertEqual(calvoro.add("2021-03-04", -10), "2021-02-22")
        self.assertEqual(calvoro.add("2021-03-04", 10, target="JC"), "2021-03-01")
        self.assertEqual(calvoro.add("2021-03-04", 5, count_weekends=False), "2021-03-11")
        self.assertEqual(calvoro.add("2024-01-31", [1, 13, -2], unit="months"),
                         ["2024-02-29", "2025-02-28", "2023-11-30"])
        self.assertEqual(calvoro.add("1900-02-29", 12, "JC", unit="months"), "1901-02-28")
        self.assertEqual(calvoro.add("2024-01-35", 1, "LPM", unit="months"), "2024-02-28")
        self.assertEqual(calvoro.add(np.array(CE[:2]), np.array([1, 2])).tolist(), ["2024-03-01", "1582-10-17"])
        self.assertEqual(calvoro.add(["2024-01-31", "x"], 2_000_000_000, errors="coerce"), ["5477838-02-05", None])
        with self.assertRaises(DateError):
            calvoro.add("2024-01-31", 2_100_000_000)
        for wrong in (dict(unit="weeks"), dict(unit="months", source="ISO")):
            with self.assertRaises(ValueError):
                calvoro.add("2024-W01-1", 1, **wrong)

    def test_month(self):
        self.assertEqual(calvoro.month(1582, 10, "JC", language="de").splitlines()[0].split()[0], "Son")
        self.assertNotIn("\r", calvoro.month(2024, 2))
        with self.assertRaises(OverflowError):
            calvoro.month(2_000_000_000, 1)
        for wrong in (dict(month=13), dict(calendar="ISO"), dict(first_day="friday"), dict(language="es")):
            with self.assertRaises(ValueError):
                calvoro.month(**{"year": 2024, "month": 1, **wrong})

    def test_compute(self):
        answer = calvoro.compute(first="2024-01-31", difference="1", unit="months", verbose=False)
        self.assertEqual(answer["output"], "2024-01-31 CE plus 1 month = 2024-02-29 CE\r\n")
        self.assertEqual(calvoro.compute(first="2024-02-30")["messages"][0]["title"], "Error!")
        messages = calvoro.compute(first="2024-01-31", second="2024-02-01", unit="months")["messages"]
        self.assertTrue(messages[0]["text"].startswith("The number of months between two dates"))
        with self.assertRaises(ValueError):
            calvoro.compute(fist="2024-01-31")


class Module(unittest.TestCase):
    def test_examples_in_the_docstrings_are_true(self):
        results = doctest.testmod(calvoro)
        self.assertEqual(results.failed, 0)
        self.assertGreater(results.attempted, 15)

    def test_examples_in_the_manual_are_true(self):
        attempted = 0
        for page in all_pages():
            for kind, first, lines in blocks(page.read_text()):
                if kind != "python" or not lines[0].startswith(">>>"):
                    continue
                example = doctest.DocTestParser().get_doctest("\n".join(lines) + "\n", {}, page.name, str(page),
                                                              first - 1)
                with self.subTest(page.name):
                    results = doctest.DocTestRunner().run(example)
                    self.assertEqual(results.failed, 0)
                    attempted += results.attempted
        self.assertGreater(attempted, 15)

    def test_every_public_name_is_documented_and_typed(self):
        for name in calvoro.__all__:
            thing = getattr(calvoro, name)
            if inspect.isfunction(thing):
                self.assertTrue(thing.__doc__, name)
                hints = inspect.get_annotations(thing)
                parameters = inspect.signature(thing).parameters
                self.assertEqual(set(hints), set(parameters) | {"return"}, name)
                for word in [*parameters, "returns", "raises"]:
                    # At the start of a line, alone or in a list of names.
                    self.assertRegex(thing.__doc__, rf"(?m)^    (\w+, )*{word}(,|$|  )", (name, word))

    def test_the_help_describes_every_public_name(self):
        text = pydoc.plain(pydoc.render_doc(calvoro))
        for name in calvoro.__all__:
            self.assertIn(name, text)
        self.assertIn("Dates in seven notations", text)
        self.assertIn("class DateError", text)
        self.assertEqual(f"{DateError.__module__}.{DateError.__qualname__}", "calvoro.DateError")

    def test_the_interpreter_goes_on_meanwhile(self):
        days = np.arange(1_000_000, 3_000_000, dtype=np.int32)
        texts = calvoro.convert(days, "JDN", "CE")
        steps = 0
        worker = threading.Thread(target=calvoro.convert, args=(texts, "CE", "ISO"))
        worker.start()
        while worker.is_alive():
            steps += 1
            time.sleep(0.001)
        self.assertGreater(steps, 5)


if __name__ == "__main__":
    unittest.main()
