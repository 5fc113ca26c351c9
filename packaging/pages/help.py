"""What the two programs say of themselves: commands, options and texts, taken from their own help and from the
table of options that the window hands on to its toolkit."""

import dataclasses
import pathlib
import re
import subprocess

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PROGRAM = "calvoro-cli"


@dataclasses.dataclass
class Option:
    names: list  # "-h", "--help"; a positional argument has its name alone
    value: str  # what the help calls its value; empty for a flag
    text: str


@dataclasses.dataclass
class Command:
    name: str
    summary: str
    usage: str
    groups: list  # pairs of a title and its options
    paragraphs: list  # the rest of the help: lists of lines

    def options(self):
        return [option for _, options in self.groups for option in options if option.names[0].startswith("-")]


def said(program, *arguments):
    return subprocess.run([program, *arguments], check=True, capture_output=True, text=True,
                          env={"LC_ALL": "C.UTF-8"}).stdout


def read_options(lines):
    """Rows of a name, a value and a text that begins at column 32 and may go on below."""
    options = []
    for line in lines:
        head, text = line[:32].strip(), line[32:].strip()
        if not line.startswith(" " * 32):
            if len(line) > 32 and line[31] != " ":
                head, text = line.strip(), ""
            names, _, value = head.partition(" ")
            options.append(Option(names.split(","), value, text))
        else:
            options[-1].text = (options[-1].text + " " + text).strip()
    return options


def read_help(name, text):
    blocks = [block.split("\n") for block in text.rstrip("\n").split("\n\n")]
    summary, usage = " ".join(blocks[0]), blocks[1][0].removeprefix("Usage: ")
    groups, paragraphs = [], []
    for block in blocks[2:]:
        if not paragraphs and block[0].endswith(":") and block[1].startswith("  ") and block[0] not in ("Notations:", "Examples:"):
            groups.append((block[0].removesuffix(":"), read_options(block[1:])))
        else:
            paragraphs.append(block)
    return Command(name, summary, usage, groups, paragraphs)


def read_program(program):
    """The program's own help, and that of its commands."""
    whole = read_help("", said(program, "--help"))
    names = [row.names[0] for title, rows in whole.groups if title == "Commands" for row in rows]
    return whole, [read_help(name, said(program, name, "--help")) for name in names if name != "help"]


def notations(whole):
    """Pairs of a tag and its description with an example."""
    block = next(block for block in whole.paragraphs if block[0] == "Notations:")
    rows = [re.fullmatch(r"  (\w+) +(.+?) {2,}(\S+)", line).groups() for line in block[1:]]
    return [(tag, text, example) for tag, text, example in rows]


def version_of(program):
    return said(program, "--version").split()[1]


def toolkit_options():
    """The options that the window's program leaves to its toolkit, with whether each takes a value."""
    source = (ROOT / "app" / "Arguments.cpp").read_text(encoding="utf-8")
    rows = re.findall(r'\{"(\w+)", (true|false)\}', source)
    if not rows:
        raise SystemExit("app/Arguments.cpp: no options of the toolkit found")
    return [(name, value == "true") for name, value in rows]


def values_of(option, tags):
    """What may be completed for an option: a list of words, "FILE", or nothing. Notations may be several where
    the help says so."""
    several = False
    value = option.value
    if value.startswith("NOTATION"):
        words = list(tags)
        several = ",..." in value
        if option.names[0] in ("--from", "--second-from"):
            words.append("auto")
        if value.endswith("|all"):
            words.append("all")
    elif value == "FILE":
        words = "FILE"
    elif "|" in value:
        words = value.split("|")
    else:
        words = []
    return words, several
