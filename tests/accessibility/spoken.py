"""What the screen reader says while a person does the commonest tasks by keyboard alone.

Each task is a list of steps: keys, texts to type, and the button whose own key is pressed. What is said after
each step is written below it.
"""

from reader import settings_text

KEY, TYPE, PRESS, OPENED = "key", "type", "press", "opened"

# name, settings, steps
TASKS = [
    ("walk through the window", {}, [(KEY, "Tab")] * 22),
    ("convert a date", {"calendars": "0,0,6"},
     [(TYPE, "2024-02-29"), (KEY, "Return")]),
    ("count the days between two dates", {},
     [(TYPE, "2000-01-01"), (KEY, "Tab"), (KEY, "Tab"), (TYPE, "2024-02-29"), (KEY, "Return")]),
    ("add days to a date", {},
     [(TYPE, "2021-03-04"), (KEY, "Tab"), (TYPE, "10"), (KEY, "Return")]),
    ("choose another calendar with the arrow keys", {"first": "2024-02-29"},
     [(PRESS, "frmMain.lblThisIsA0"), (KEY, "Down"), (KEY, "Down"), (KEY, "Up")]),
    ("be refused", {"first": "2023-02-29", "difference": "1"},
     [(PRESS, "frmMain.cmdCompute"), (KEY, "Return")]),
    ("give up one of three boxes", {"first": "2024-02-29", "difference": "7", "second": "2024-03-01"},
     [(PRESS, "frmMain.cmdCompute"), (KEY, "Down"), (KEY, "Return")]),
    ("carry the second date on", {"second": "2024-03-07"},
     [(PRESS, "frmMain.cmdMoveSecondDateToFirst")]),
    ("step a date", {"first": "2024-02-29"}, [(KEY, "Up"), (KEY, "Up"), (KEY, "Down")]),
    ("change options", {},
     [(PRESS, "frmMain.chkVerbose"), (PRESS, "frmMain.chkHyphen"), (PRESS, "frmMain.chkIncludeFirstDate")]),
    ("look at months", {"first": "2024-02-29", "month": ("Mon", "CE")},
     [(KEY, "ctrl+m"), (OPENED, 1), (KEY, "Next"), (KEY, "Next"), (KEY, "Prior"), (KEY, "shift+Tab"),
      (KEY, "shift+Tab"), (KEY, "shift+Tab"), (KEY, "shift+Tab"), (KEY, "Down"), (KEY, "Down"),
      (KEY, "Escape")]),
    ("copy the output", {"output": "2024-02-29 CE = 2024-W09-4 ISO\r\n"},
     [(PRESS, "frmMain.cmdCopyToClipboard")]),
    ("enlarge the output", {"output": "2024-02-29 CE = 2024-W09-4 ISO\r\n" * 6},
     [(PRESS, "frmMain.cmdEnlarge"), (OPENED, 3), (KEY, "Up"), (KEY, "Up"), (KEY, "Escape")]),
    ("read the help", {}, [(KEY, "F1"), (OPENED, 2), (KEY, "Tab"), (KEY, "Escape")]),
    ("reset, and think better of it", {}, [(PRESS, "frmMain.cmdReset"), (KEY, "Escape")]),
]


def do(desktop, step, titles):
    kind, what = step
    if kind == KEY:
        desktop.keys(what)
    elif kind == TYPE:
        desktop.type(what)
    elif kind == PRESS:
        desktop.keys("alt+" + desktop.key_of(what))
    else:
        desktop.focus(desktop.window(titles[what]))


def words_of(step, titles):
    kind, what = step
    if kind == OPENED:
        return f"the window {titles[what]} is open"
    return {KEY: "press ", TYPE: "type ", PRESS: "press the key of "}[kind] + what


def spoken(desktop, titles):
    """The record of every task in the language of the desktop, and the number of lines said."""
    record = []
    said = 0
    for name, settings, steps in TASKS:
        record.append(f"# {name}")
        desktop.put_settings(settings_text(language=desktop.language, **settings))
        process = desktop.start()
        for step in [None, *steps]:
            if step:
                do(desktop, step, titles)
            record.append(f"> {words_of(step, titles) if step else 'start'}")
            words = desktop.spoken()
            record += [f"    {line}" for line in words]
            said += len(words)
        desktop.quit(process)
        desktop.spoken()
        record.append("")
    return "\n".join(record), said
