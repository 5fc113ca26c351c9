"""Manual pages in English and German, from the help of the program. German words stand beside the English ones
in german.txt; a text without them ends the making."""

import pathlib
import re

from help import notations, toolkit_options

HERE = pathlib.Path(__file__).resolve().parent


def read_german():
    """english: text, german: text; lines that are indented go on, an empty line ends a pair."""
    german = {}
    for block in (HERE / "german.txt").read_text(encoding="utf-8").strip().split("\n\n"):
        if not block:
            continue
        parts = re.fullmatch(r"english: (.*)\ngerman: (.*)", re.sub(r"\n +", " ", block), re.S)
        if parts is None:
            raise SystemExit("german.txt: no pair of texts: " + block[:60])
        german[parts.group(1)] = parts.group(2)
    return german


class Language:
    def __init__(self, name):
        self.name = name
        self.german = read_german() if name == "de" else None
        self.used = set()
        self.missing = []

    def __call__(self, text):
        text = " ".join(text.split())
        self.used.add(text)
        if self.german is None:
            return text
        if text not in self.german:
            self.missing.append(text)
        return self.german.get(text, text)

    def finish(self):
        if self.missing:
            raise SystemExit("packaging/pages/german.txt has no German for:\n  " + "\n  ".join(self.missing))
        unused = set(self.german or ()) - self.used
        if unused:
            raise SystemExit("packaging/pages/german.txt: nothing says any more:\n  " + "\n  ".join(unused))


def roff(text):
    text = text.replace("\\", "\\e").replace("-", "\\-").replace("'", "\\(aq").replace("`", "\\(ga")
    text = text.replace("^", "\\(ha").replace("~", "\\(ti")
    return "\\&" + text if text.startswith((".", "'")) else text


def quoted(text):
    return '"' + roff(text).replace('"', '\\(dq') + '"'


def option_rows(options, words):
    rows = []
    for option in options:
        names = ", ".join("\\fB" + roff(name) + "\\fR" for name in option.names)
        rows += [".TP", names + (" \\fI" + roff(option.value) + "\\fR" if option.value else ""),
                 roff(words(option.text))]
    return rows


def literal(lines):
    return [".PP", ".nf", ".RS 4", *(roff(line.strip()) for line in lines), ".RE", ".fi"]


def is_literal(line):
    return line.startswith("  ")


def paragraph(lines, words):
    """Sentences are filled; lines that are indented in the help stay as they are."""
    rows = []
    filled = []
    fixed = []
    for line in [*lines, None]:
        if fixed and (line is None or not is_literal(line)):
            rows += literal(fixed)
            fixed = []
        if filled and (line is None or is_literal(line) or line.startswith("Limits:")):
            rows += [".PP", roff(words(" ".join(filled)))]
            filled = []
        if line is not None:
            (fixed if is_literal(line) else filled).append(line)
    return rows


def block_of(whole, beginning):
    return next(lines for lines in whole.paragraphs if lines[0].startswith(beginning))


def command_page(whole, commands, version, date, words):
    tags = notations(whole)
    page = [f".TH CALVORO\\-CLI 1 {date} {quoted('Calvoro ' + version)} {quoted(words('User commands'))}",
            f".SH {quoted(words('NAME'))}",
            f"calvoro\\-cli \\- {roff(words('dates in seven notations, on the command line'))}",
            f".SH {quoted(words('SYNOPSIS'))}"]
    for command in commands:
        name, rest = command.usage.split(" ", 2)[1], command.usage.partition(command.name)[2].strip()
        page += [f"\\fBcalvoro\\-cli {name}\\fR \\fI{roff(rest)}\\fR", ".br"]
    page += ["\\fBcalvoro\\-cli help\\fR [\\fICOMMAND\\fR]", f".SH {quoted(words('DESCRIPTION'))}", roff(words(whole.summary)),
             roff(words("It needs no display and reads standard input or files of any length, line by line.")),
             f".SH {quoted(words('NOTATIONS'))}"]
    for tag, text, example in tags:
        page += [".TP", f"\\fB{tag}\\fR", roff(words(text)) + ": " + roff(example)]
    page.append(f".SH {quoted(words('COMMANDS'))}")
    for command in commands:
        page += [f".SS {quoted(command.name)}", roff(words(command.summary))]
        for title, options in command.groups:
            page += [".PP", f"\\fB{roff(words(title))}\\fR", *option_rows(options, words)]
        for lines in command.paragraphs:
            if lines[0] == "Examples:":
                page += [".PP", f"\\fB{roff(words('Examples'))}\\fR", *literal(lines[1:])]
            else:
                page += paragraph(lines, words)
    page += [f".SH {quoted(words('EXIT STATUS'))}",
             roff(words(" ".join(block_of(whole, "Exit status"))).partition(": ")[2]),
             f".SH {quoted(words('EXAMPLES'))}", *literal(block_of(whole, "Examples:")[1:]), f".SH {quoted(words('SEE ALSO'))}", "\\fBcalvoro\\fR(1)"]
    return "\n".join(page) + "\n"


# What the toolkit's options do.
TOOLKIT = {
    "display": "the display of the X server to show the window on",
    "geometry": "size and place of the window",
    "icon": "a picture for the window",
    "name": "the name of the program for the toolkit",
    "platform": "the system of windows: xcb, wayland, offscreen",
    "platformpluginpath": "the folder of the toolkit's plugins for systems of windows",
    "platformtheme": "the theme of the desktop to follow",
    "plugin": "a further plugin of the toolkit",
    "qwindowgeometry": "size and place of the window",
    "qwindowicon": "a picture for the window",
    "qwindowtitle": "the title of the window",
    "session": "the session of an earlier start to restore",
    "style": "the look of the controls: Fusion, Windows",
    "stylesheet": "a file with rules for the look of the controls",
    "title": "the title of the window",
    "nograb": "never take mouse or keyboard for the program alone",
    "reverse": "lay the window out from right to left",
    "sync": "talk to the X server step by step",
}


def window_page(version, date, words):
    page = [f".TH CALVORO 1 {date} {quoted('Calvoro ' + version)} {quoted(words('User commands'))}",
            f".SH {quoted(words('NAME'))}", f"calvoro \\- {roff(words('date calculator with a window'))}",
            f".SH {quoted(words('SYNOPSIS'))}", "\\fBcalvoro\\fR [\\fIOPTION\\fR]...",
            f".SH {quoted(words('DESCRIPTION'))}",
            roff(words("Shows the window of Calvoro. It converts dates between seven notations, counts the days between "
                       "two dates, adds days or months, shows a month as a calendar, and keeps the results as lines of "
                       "text. F1 opens the help, Enter computes.")),
            f".SH {quoted(words('OPTIONS'))}",
            ".TP", "\\fB\\-h\\fR, \\fB\\-\\-help\\fR", roff(words("print a short help")),
            ".TP", "\\fB\\-V\\fR, \\fB\\-\\-version\\fR", roff(words("print the version")),
            ".PP", roff(words("The toolkit, Qt, takes these, with one hyphen or two:"))]
    for name, has_value in toolkit_options():
        page += [".TP", f"\\fB\\-{name}\\fR" + (" \\fIVALUE\\fR" if has_value else ""), roff(words(TOOLKIT[name]))]
    page += [f".SH {quoted(words('ENVIRONMENT'))}", ".TP", "\\fBXDG_CONFIG_HOME\\fR",
             roff(words("the folder of settings; ~/.config when it is not set")),
             f".SH {quoted(words('FILES'))}", ".TP", roff("~/.config/Calvoro/calvoro.usr"),
             roff(words("what was chosen, typed and computed; written when the program ends")),
             f".SH {quoted(words('EXIT STATUS'))}",
             roff(words("0 when the window was closed, 1 when it could not be shown, 2 when the arguments make no sense.")),
             f".SH {quoted(words('SEE ALSO'))}", "\\fBcalvoro\\-cli\\fR(1)"]
    return "\n".join(page) + "\n"


def manual_pages(whole, commands, version, date):
    """Text by path, relative to packaging/."""
    pages = {}
    for name, folder in (("en", "man"), ("de", "man/de")):
        words = Language(name)
        pages[f"{folder}/calvoro-cli.1"] = command_page(whole, commands, version, date, words)
        pages[f"{folder}/calvoro.1"] = window_page(version, date, words)
        words.finish()
    return pages
