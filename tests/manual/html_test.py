#!/usr/bin/env python3
"""Makes the manual's web pages and checks them: every tag is closed, every link, anchor and picture is there,
each page is told in its language and can be reached.

    html_test.py
"""

import html.parser
import pathlib
import subprocess
import sys
import tempfile
import unittest

from pages import LANGUAGES, MANUAL, examples, manual_pages

VOID = {"meta", "link", "img", "source", "br", "hr"}


class Page(html.parser.HTMLParser):
    """What a page holds; open tags are counted."""

    def __init__(self, path):
        super().__init__()
        self.open, self.anchors, self.targets, self.language, self.text = [], set(), [], None, []
        self.faults, self.pictures_without_words = [], 0
        self.feed(path.read_text())
        self.close()
        self.faults += [f"not closed: {tag}" for tag in self.open]

    def handle_starttag(self, tag, attributes):
        named = dict(attributes)
        if tag not in VOID:
            self.open.append(tag)
        if tag == "html":
            self.language = named.get("lang")
        if "id" in named:
            if named["id"] in self.anchors:
                self.faults.append(f"twice: {named['id']}")
            self.anchors.add(named["id"])
        if tag == "img" and not named.get("alt"):
            self.pictures_without_words += 1
        self.targets += [named[name] for name in ("href", "src", "srcset") if name in named]

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.faults.append(f"closed but not open: {tag}")

    def handle_data(self, data):
        self.text.append(data)


class Html(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory(prefix="calvoro-html-")
        cls.folder = pathlib.Path(cls.scratch.name) / "manual"
        subprocess.run([sys.executable, "-B", MANUAL / "html" / "make_html.py", cls.folder], check=True, timeout=120)
        cls.pages = {path: Page(path) for path in sorted(cls.folder.rglob("*.html"))}

    @classmethod
    def tearDownClass(cls):
        cls.scratch.cleanup()

    def test_every_page_of_both_languages_is_there(self):
        for language in LANGUAGES:
            made = sorted(path.stem for path in (self.folder / language).glob("*.html"))
            self.assertEqual(made, [page.stem for page in manual_pages(language)])

    def test_pages_are_well_formed_and_in_their_language(self):
        for path, page in self.pages.items():
            with self.subTest(str(path.relative_to(self.folder))):
                self.assertEqual(page.faults, [])
                self.assertEqual(page.pictures_without_words, 0)
                self.assertEqual(page.language, "de" if path.parent.name == "de" else "en")

    def test_links_anchors_and_pictures_lead_somewhere(self):
        for path, page in self.pages.items():
            for target in page.targets:
                if target.startswith("https:"):
                    continue
                file, _, anchor = target.partition("#")
                there = (path.parent / file).resolve() if file else path
                with self.subTest(page=str(path.relative_to(self.folder)), target=target):
                    self.assertTrue(there.is_relative_to(self.folder.resolve()) and there.is_file())
                    if anchor:
                        self.assertIn(anchor, Page(there).anchors)

    def test_every_page_is_reached_from_the_first(self):
        for language in LANGUAGES:
            reached, waiting = set(), [self.folder / language / "index.html"]
            while waiting:
                path = waiting.pop().resolve()
                if path in reached or path.suffix != ".html":
                    continue
                reached.add(path)
                waiting += [path.parent / target.partition("#")[0] for target in Page(path).targets
                            if not target.startswith(("https:", "#"))]
            self.assertEqual(reached, {path.resolve() for path in self.pages})

    def test_the_examples_look_as_in_a_terminal(self):
        for language in LANGUAGES:
            for source in manual_pages(language):
                text = "".join(self.pages[self.folder / language / f"{source.stem}.html"].text)
                for example in examples(source.read_text()):
                    with self.subTest(page=source.name, command=example.command):
                        shown = f"$ {example.command}\n{example.output}".expandtabs(8)
                        self.assertTrue(shown in text, shown)


if __name__ == "__main__":
    unittest.main()
