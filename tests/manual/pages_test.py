#!/usr/bin/env python3
"""Checks that what the pages name is there, and that both languages of the manual tell the same.

    pages_test.py [WINDOW_KEYS]

WINDOW_KEYS is the program that lists the keys of the windows; without it (a tree that builds no window) the page
of the keys is not compared with them.
"""

import os
import re
import subprocess
import sys
import unittest

from pages import LANGUAGES, MANUAL, ROOT, all_pages, anchors, blocks, examples, links, manual_pages

# What the German page of the keys calls the toolkit's names.
GERMAN_KEYS = {"Strg": "Ctrl", "Umschalt": "Shift", "Bild auf": "Page Up", "Bild ab": "Page Down"}
# The windows whose keys are listed, in the order of the page's sections; the first section is for all of them.
SECTIONS = (None, "frmMain", "frmDisplayMonth", "frmList")


def without_language(command):
    return re.sub(r" --language \w+", "", command)


def key_rows(language):
    """The keys of each section: a dictionary from key to what stands beside it."""
    sections = []
    for line in (MANUAL / language / "keys.md").read_text().splitlines():
        if line.startswith("## "):
            sections.append({})
        row = re.match(r"\| (.+?) \| (.+) \|$", line)
        if not row or not sections or set(row.group(1)) <= set("- "):
            continue
        for key in row.group(1).split(", "):
            for german, english in GERMAN_KEYS.items():
                key = key.replace(german, english)
            sections[-1][key] = row.group(2)
    return sections


class Pages(unittest.TestCase):
    window_keys = None

    def test_links_and_pictures_lead_somewhere(self):
        number = 0
        for page in all_pages():
            text = page.read_text()
            for _, target in links(text):
                if re.match(r"https?:", target):
                    continue
                number += 1
                path, _, anchor = target.partition("#")
                with self.subTest(page=str(page.relative_to(ROOT)), target=target):
                    file = (page.parent / path).resolve() if path else page
                    self.assertTrue(file.is_relative_to(ROOT) and file.is_file())
                    if anchor:
                        self.assertIn(anchor, anchors(file.read_text()))
        self.assertGreater(number, 50)

    def test_every_page_of_the_manual_is_on_its_first_page(self):
        for language in LANGUAGES:
            index = (MANUAL / language / "index.md").read_text()
            listed = [target for _, target in links(index) if "/" not in target]
            self.assertEqual(sorted(listed + ["index.md"]), [page.name for page in manual_pages(language)])

    def test_both_languages_have_the_same_pages_in_the_same_order(self):
        order = [[target for _, target in links((MANUAL / language / "index.md").read_text()) if "/" not in target]
                 for language in LANGUAGES]
        self.assertEqual(order[0], order[1])

    def test_both_languages_have_the_same_examples(self):
        for english in manual_pages("en"):
            commands = [[without_language(example.command)
                         for example in examples((MANUAL / language / english.name).read_text())]
                        for language in LANGUAGES]
            with self.subTest(english.name):
                self.assertEqual(commands[0], commands[1])

    def test_both_languages_have_the_same_sections(self):
        def levels(page):
            return re.findall(r"^#+(?= )", "\n".join(line for line in page.read_text().splitlines()
                                                     if not line.startswith("$")), re.M)
        for english in manual_pages("en"):
            with self.subTest(english.name):
                self.assertEqual(levels(english), levels(MANUAL / "de" / english.name))

    def test_programs_on_the_pages_are_those_of_the_tree(self):
        weekday = (ROOT / "examples" / "library" / "weekday.cpp").read_text()
        for language in LANGUAGES:
            text = (MANUAL / language / "programs.md").read_text()
            self.assertIn(weekday, ["\n".join(lines) + "\n" for kind, _, lines in blocks(text) if kind == "cpp"])

    def test_the_keys_are_those_of_the_windows(self):
        if not self.window_keys:
            self.skipTest("no window in this tree")
        for number, language in enumerate(LANGUAGES):
            sections = key_rows(language)
            for rows, window in zip(sections, SECTIONS):
                if window is None:
                    continue
                seen = self.keys_of(window, number)
                self.assertGreater(len(seen), 10)
                with self.subTest(language=language, window=window):
                    named = {key: what for key, what in rows.items() if re.match(r"Alt\+|Ctrl\+|F\d", key)}
                    self.assertEqual(set(named) - set(seen), set())
                    self.assertEqual(set(seen) - set(rows), set())
                    for key, caption in seen.items():
                        self.assertTrue(rows[key].startswith(caption), (key, rows[key], caption))

    def keys_of(self, window, language):
        listed = subprocess.run([self.window_keys, "-platform", "offscreen", str(language), "captions"],
                                env=os.environ | {"LC_ALL": "C.UTF-8"}, capture_output=True, text=True, timeout=120,
                                check=True).stdout
        keys = {}
        for line in listed.splitlines():
            owner, key, caption = line.split("\t")
            if owner == window:
                keys[key.replace("PgUp", "Page Up").replace("PgDown", "Page Down")] = caption
        return keys


if __name__ == "__main__":
    if len(sys.argv) > 1 and not sys.argv[1].startswith("-"):
        Pages.window_keys = sys.argv.pop(1)
    unittest.main()
