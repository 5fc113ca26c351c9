#!/usr/bin/env python3
"""Makes the manual's web pages from its Markdown.

    make_html.py FOLDER

FOLDER gets one folder a language, the pictures that the pages show, the pages of docs/ that they link to, and the
stylesheet. What stood in it before goes away. The order of the pages is that of the links on the first page,
index.md. Needs Python's package markdown (Debian: python3-markdown).
"""

import html
import pathlib
import re
import shutil
import sys

import markdown

HERE = pathlib.Path(__file__).resolve().parent
MANUAL = HERE.parent
DOCS = MANUAL.parent
WORDS = {
    "en": {"name": "English", "first": "Calvoro manual", "previous": "Previous", "next": "Next"},
    "de": {"name": "Deutsch", "first": "Calvoro-Handbuch", "previous": "Zurück", "next": "Weiter"},
}
_LINK = re.compile(r"^- \[(.+)\]\(([\w-]+)\.md\)$", re.M)


def slug(words, separator):
    """The anchor of a heading, the same as in other readers of Markdown, so that links hold in both."""
    return re.sub(r"\s", separator, re.sub(r"[^\w\s-]", "", words.lower()).strip())


class Manual:
    """One language's pages, in their order."""

    def __init__(self, language):
        self.language = language
        self.words = WORDS[language]
        self.sections = []  # (heading, [(title, page)])
        for part in re.split(r"^## ", (MANUAL / language / "index.md").read_text(), flags=re.M)[1:]:
            self.sections.append((part.splitlines()[0], _LINK.findall(part)))
        self.order = [("", "index")] + [link for _, links in self.sections for link in links]

    def navigation(self, current):
        lines = [f'<a class="name" href="../{self.language}/index.html"{here(current == "index")}>'
                 f'{self.words["first"]}</a>']
        for heading, links in self.sections:
            lines.append(f"<h2>{html.escape(heading)}</h2>\n<ul>")
            for title, page in links:
                lines.append(f'<li><a href="../{self.language}/{page}.html"{here(page == current)}>'
                             f"{html.escape(title)}</a></li>")
            lines.append("</ul>")
        same_page = current if current in [page for _, page in self.order] else "index"
        others = " ".join(f'<a href="../{other}/{same_page}.html" lang="{other}">{words["name"]}</a>'
                          for other, words in WORDS.items() if other != self.language)
        return "\n".join(lines + [f'<p class="languages">{others}</p>'])

    def turn(self, current):
        pages = [page for _, page in self.order]
        place = pages.index(current)
        before = self.order[place - 1] if place > 1 else None
        after = self.order[place + 1] if place + 1 < len(pages) else None
        links = [f'<a rel="{rel}" href="{page[1]}.html">{self.words[word]}: {html.escape(page[0])}</a>'
                 if page else "<span></span>"
                 for rel, word, page in (("prev", "previous", before), ("next", "next", after))]
        return '<p class="turn">' + " ".join(links) + "</p>"


def here(current):
    return ' aria-current="page"' if current else ""


class Builder:
    def __init__(self, folder):
        self.folder = folder
        self.pictures = set()
        self.extras = set()  # pages of docs/ that the manual links to
        self.template = (HERE / "page.html").read_text()

    def build(self):
        shutil.rmtree(self.folder, ignore_errors=True)
        manuals = [Manual(language) for language in WORDS]
        for manual in manuals:
            for _, page in manual.order:
                self.write(MANUAL / manual.language / f"{page}.md", manual, page, manual.turn(page))
        for extra in sorted(self.extras):
            self.write(extra, manuals[0], None, "")
        for picture in self.pictures:
            target = self.folder / "images" / picture.name
            target.parent.mkdir(exist_ok=True)
            shutil.copyfile(picture, target)
        shutil.copyfile(HERE / "style.css", self.folder / "style.css")

    def write(self, source, manual, page, turn):
        text = re.sub(r"^<!--.*-->\n", "", source.read_text(), flags=re.M).expandtabs(8)  # as in a terminal
        title = re.match(r"# (.+)", text).group(1)
        content = markdown.markdown(text, extensions=["fenced_code", "tables", "toc"], output_format="html5",
                                    extension_configs={"toc": {"slugify": slug}})
        content = re.sub(r'(href|src)="([^"]+)"', lambda found: self.link(source, *found.groups()), content)
        content = re.sub(r"<img[^>]*>", self.picture, content)
        content = re.sub(r'^(<pre><code class="language-console">)?(\$ .*)$', r'\1<span class="command">\2</span>',
                         content, flags=re.M)
        content = content.replace("<table>", '<div class="wide"><table>').replace("</table>", "</table></div>")
        full = title if page == "index" else f'{title} - {manual.words["first"]}'
        values = {"LANGUAGE": manual.language, "TITLE": html.escape(full), "NAVIGATION": manual.navigation(page),
                  "CONTENT": content, "TURN": turn}
        folder = self.folder / (manual.language if page else "docs")
        folder.mkdir(parents=True, exist_ok=True)
        (folder / f"{source.stem}.html").write_text(
            re.sub(r"@(\w+)@", lambda found: values[found.group(1)], self.template))

    def link(self, source, attribute, target):
        """The link as it must be from the web page, which lies one folder below the others."""
        path, mark, anchor = target.partition("#")
        if re.match(r"\w+:", target) or not path:
            return f'{attribute}="{target}"'
        file = (source.parent / path).resolve()
        if file.suffix == ".png":
            self.pictures.add(file)
            return f'{attribute}="../images/{file.name}"'
        if file.parent.parent == MANUAL:
            place = file.parent.name
        elif file.parent == DOCS and file.suffix == ".md":
            self.extras.add(file)
            place = "docs"
        else:
            raise ValueError(f"{source}: a link out of the manual: {target}")
        return f'{attribute}="../{place}/{file.stem}.html{mark}{anchor}"'

    def picture(self, found):
        """A picture of the light window comes with its dark twin, where there is one."""
        light = re.search(r'src="../images/([^"]+)"', found.group(0)).group(1)
        dark = DOCS / "images" / light.replace("-light", "-dark")
        if dark.name == light or not dark.exists():
            return found.group(0)
        self.pictures.add(dark)
        return (f'<picture><source media="(prefers-color-scheme: dark)" srcset="../images/{dark.name}">'
                f"{found.group(0)}</picture>")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__.strip())
    Builder(pathlib.Path(sys.argv[1])).build()
