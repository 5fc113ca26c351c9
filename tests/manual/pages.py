"""The pages that readers see, README.md, docs and the manual, taken apart: examples, links, pictures, headings."""

import pathlib
import re
from dataclasses import dataclass

ROOT = pathlib.Path(__file__).resolve().parents[2]
MANUAL = ROOT / "docs" / "manual"
LANGUAGES = ("en", "de")

_FENCE = re.compile(r"^```(\w*)$")
_LINK = re.compile(r"(!?)\[[^\]]*\]\(([^)\s]+)\)")


@dataclass
class Example:
    """A command of a console block and what stands below it."""

    command: str
    output: str
    line: int  # of the command, counted from 1


def all_pages():
    """Every page with examples, links or pictures."""
    return [ROOT / "README.md", *sorted((ROOT / "docs").rglob("*.md"))]


def manual_pages(language):
    return sorted((MANUAL / language).glob("*.md"))


def blocks(text):
    """Yields kind, number of the first line (from 1) and lines of every fenced block."""
    kind, lines, first = None, [], 0
    for number, line in enumerate(text.splitlines(), 1):
        fence = _FENCE.match(line)
        if fence and kind is None:
            kind, lines, first = fence.group(1), [], number + 1
        elif line == "```" and kind is not None:
            yield kind, first, lines
            kind = None
        elif kind is not None:
            lines.append(line)
    if kind is not None:
        raise ValueError(f"a block is not closed: line {first}")


def examples(text, kind="console"):
    """The commands of all blocks of a kind, in order: "console" with commands of ours, "shell" of others."""
    found = []
    for block, first, lines in blocks(text):
        if block != kind:
            continue
        if not lines or not lines[0].startswith("$ "):
            raise ValueError(f"a {kind} block without a command: line {first}")
        for number, line in enumerate(lines, first):
            if line.startswith("$ "):
                found.append(Example(line[2:], "", number))
            else:
                found[-1].output += line + "\n"
    return found


def window_results(text):
    """What the window shows, in blocks named "text" behind a comment with the command that prints the same."""
    found = []
    for match in re.finditer(r"^<!-- \$ ([^\n]+) -->\n```text\n(.*?)^```$", text, re.M | re.S):
        found.append(Example(match.group(1), match.group(2), text.count("\n", 0, match.start()) + 1))
    return found


def without_blocks(text):
    """The text with its fenced and inline code taken out, in which nothing is a link or a heading."""
    kept, inside = [], False
    for line in text.splitlines():
        if line.startswith("```"):
            inside = not inside
        elif not inside:
            kept.append(re.sub(r"`[^`]*`", "", line))
    return "\n".join(kept)


def links(text):
    """Every link and picture as (is a picture, target)."""
    return [(bool(mark), target) for mark, target in _LINK.findall(without_blocks(text))]


def anchors(text):
    """The anchors of the headings, as they are made from their words."""
    found, inside = set(), False
    for line in text.splitlines():
        inside ^= line.startswith("```")
        heading = None if inside else re.match(r"#+ (.*)", line)
        if heading:
            words = re.sub(r"[^\w\s-]", "", heading.group(1).replace("`", "").lower())
            found.add(re.sub(r"\s", "-", words.strip()))
    return found
