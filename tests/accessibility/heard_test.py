#!/usr/bin/env python3
"""Whether heard.py finds in the kept records all that must be heard, and misses what is taken out of them."""

import pathlib
import re
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from heard import SHORTEST, counted, unheard  # noqa: E402
from spoken import SHOWN  # noqa: E402

EXPECTED = pathlib.Path(__file__).resolve().parent / "expected"


def kept(tongue):
    return tuple((EXPECTED / f"{kind}-{tongue}.txt").read_text() for kind in ("tree", "spoken"))


class Kept(unittest.TestCase):
    def test_everything_is_heard_in_both_languages(self):
        for tongue in ("en", "de"):
            with self.subTest(tongue):
                self.assertEqual(unheard(*kept(tongue)), [])

    def test_every_option_and_check_box_is_asked_for(self):
        for tongue in ("en", "de"):
            counts = counted(*kept(tongue))
            self.assertEqual((counts["options"], counts["check boxes"]), (27, 5))
            self.assertGreaterEqual(counts["results"], SHORTEST["results"])
            self.assertGreaterEqual(counts["months"], SHORTEST["months"])


class Doctored(unittest.TestCase):
    """A record from which something is missing, or in which it stands twice."""

    # what is replaced, by what, how often it may at most be, and what is found then
    DOCTORED = {
        "an option without its name": (
            r"    Vantorel Leap Week week date\.\n", "", r"Second date: Calendar: Vantorel Leap Week week date"),
        "an option without its state": (
            r"(    Thousands separator: None\.\n)    selected radio button\n", r"\1",
            r"Thousands separator: Thousands separator: None is never told"),
        "an option that is not chosen": (
            r"(    Months\.\n)    selected radio button\n", r"\1    not selected radio button\n",
            r"Date difference: Months is never told"),
        "a group without its name": (
            r"    CE/JC date separator panel\.\n", "", r"CE/JC date separator: 2012/12/31 is never told"),
        "the group of the first date for both": (
            r"Second date: Calendar panel", "First date: Calendar panel", r"Second date: Calendar: ISO Week date"),
        "a check box that is never off": (
            r"    notification Save results on quit: off\.\n", "",
            r"Save results on quit is never told to be not checked"),
        "a change of a check box that keeps the focus": (
            r"    not checked\n|    Hyphen .* not checked\.\n", "",
            r"Hyphen in ordinal and in ISO Week dates is never told to be not checked"),
        "a group of another window without its name": (
            r"    First day of week panel\.\n", "", r"panel First day of week is never named"),
        "a button without its name": (r"    Quit push button\.\n", "    push button.\n", r"push button Quit"),
        "a table without its name": (r"    List\.\n", "", r"table List"),
        "a list without its entry": (r"    February; .*\n", "", r"combo box February"),
        "a result without a word": (
            r"    notification 2000-01-01 CE to .*\n", "", r"announced 0 times: 2000-01-01 CE to 2024-02-29 CE"),
        "a result that is said twice": (
            r"(    notification 2021-03-04 CE plus .*\n)", r"\1\1", r"announced 2 times: 2021-03-04 CE plus 10 days"),
        "a month without a word": (
            r"    notification March 1582 \(Julian Calendar\)\n", "", r"announced 0 times: March 1582 \(Julian"),
        "another month than is shown": (
            r"notification February 2025", "notification February 2026", r"announced 0 times: February 2025"),
        "no results": (r"= output: .*\n", "", r"only 0 results"),
        "no months": (SHOWN + r".*\n", "", r"only 0 months"),
    }

    def test_what_is_missing_is_found(self):
        tree, record = kept("en")
        for name, (pattern, replacement, fault) in self.DOCTORED.items():
            with self.subTest(name):
                doctored, times = re.subn(pattern, replacement, record)
                self.assertGreater(times, 0, "nothing was replaced")
                self.assertRegex("\n".join(unheard(tree, doctored)), fault)

    def test_an_option_that_is_new_in_the_window_is_missed(self):
        tree, record = kept("en")
        doctored = tree.replace('radio button "Months"', 'radio button "Years"', 1)
        self.assertEqual(unheard(doctored, record), ["Date difference: Years is never told to be chosen"])

    def test_a_window_without_options_proves_nothing(self):
        tree, record = kept("en")
        doctored = "\n".join(line for line in tree.splitlines() if "radio button" not in line)
        self.assertEqual(unheard(doctored, record), ["only 0 options"])


if __name__ == "__main__":
    unittest.main()
