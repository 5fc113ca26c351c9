"""What a person does by keyboard alone while the screen reader listens.

Each task is a list of steps: keys, texts to type, the control whose own key is pressed, the window that has
opened by then, and a look at the month that is shown. An option that is chosen by its own key has the focus for
a moment only, if its choice leads on to another control: how much of that is said depends on the reader's pace,
so only what is announced then is written down (PASS).
"""

KEY, TYPE, PRESS, PASS, OPENED, LOOK = "key", "type", "press", "pass", "opened", "look"
MAIN, MONTH, HELP, ENLARGED, CLEAR, LIST = range(6)  # the windows, in the order of their titles


def keys(*names):
    return [(KEY, name) for name in names]


def down(times):
    return keys("Down") * times


SIX_LINES = "2024-02-29 CE = 2024-W09-4 ISO\r\n" * 6

# name, settings, steps
COMMON = [
    ("walk through the window", {"output": SIX_LINES}, keys("Tab") * 33),
    ("convert a date", {"calendars": "0,0,6"}, [(TYPE, "2024-02-29"), (KEY, "Return")]),
    ("count the days between two dates", {},
     [(TYPE, "2000-01-01"), (KEY, "Tab"), (KEY, "Tab"), (TYPE, "2024-02-29"), (KEY, "Return")]),
    ("add days to a date", {},
     [(TYPE, "2021-03-04"), (KEY, "Tab"), (TYPE, "10"), (KEY, "Return")]),
    ("choose another calendar with the arrow keys", {"first": "2024-02-29"},
     [(PRESS, "frmMain.lblThisIsA0"), *keys("Down", "Down", "Up")]),
    ("be refused", {"first": "2023-02-29", "difference": "1"},
     [(PRESS, "frmMain.cmdCompute"), (KEY, "Return")]),
    ("give up one of three boxes", {"first": "2024-02-29", "difference": "7", "second": "2024-03-01"},
     [(PRESS, "frmMain.cmdCompute"), *keys("Down", "Tab", "Return")]),
    ("carry the second date on", {"second": "2024-03-07"},
     [(PRESS, "frmMain.cmdMoveSecondDateToFirst")]),
    ("step a date", {"first": "2024-02-29"}, keys("Up", "Up", "Down")),
    ("look at months", {"first": "2024-02-29", "month": ("Mon", "CE")},
     [(KEY, "ctrl+m"), (OPENED, MONTH), (LOOK, MONTH), (KEY, "Next"), (LOOK, MONTH), (KEY, "Next"),
      (LOOK, MONTH), (KEY, "Prior"), (LOOK, MONTH), *keys("shift+Tab") * 4, *keys("Down", "Down", "Escape")]),
    ("copy the output", {"output": "2024-02-29 CE = 2024-W09-4 ISO\r\n"},
     [(PRESS, "frmMain.cmdCopyToClipboard")]),
    ("enlarge the output", {"output": SIX_LINES},
     [(PRESS, "frmMain.cmdEnlarge"), (OPENED, ENLARGED), *keys("Up", "Up", "Tab", "Tab", "Escape")]),
    ("read the help", {}, [(KEY, "F1"), (OPENED, HELP), *keys("Tab", "Escape")]),
    ("reset, and think better of it", {}, [(PRESS, "frmMain.cmdReset"), (KEY, "Escape")]),
]

# Every option and every check box of the main window.
OPTIONS = [
    ("choose the language", {}, keys("shift+Tab", "Up", "Down")),
    ("go through the options of every group", {},
     [*keys("Tab") * 9, *down(6),         # the first date's calendar
      *keys("Tab", "Down", "Up"),         # the difference
      *keys("Tab") * 4, *down(6),         # the second date's calendar
      (KEY, "Tab"), *down(2), *keys("Up") * 2,  # the date format, which the separators' captions follow
      (KEY, "Tab"), *down(2),             # the thousands separator
      (KEY, "Tab"), *down(2)]),           # the date separator
    # With two boxes filled, a change leads to the button that computes; the hyphens alone keep the focus.
    ("change every check box", {"first": "2000-01-01", "second": "2024-02-29"},
     [(PRESS, "frmMain.lblThisIsA1"), *keys("shift+Tab") * 2, (KEY, "space"),
      *keys("shift+Tab") * 2, (KEY, "space"), *keys("Tab") * 5, (KEY, "space"),
      *keys("Tab") * 2, (KEY, "space"), *keys("Tab") * 8, (KEY, "space")]),
]


def shown_after(*steps):
    return [*steps, (LOOK, MONTH)]


# Every way to another month, and every control of the month window.
MONTHS = [
    ("change the month in every way", {"first": "2024-02-29", "month": ("Mon", "CE")},
     [*shown_after((KEY, "ctrl+m"), (OPENED, MONTH)),
      *shown_after((KEY, "ctrl+Next")), *shown_after((KEY, "ctrl+Prior")),
      *shown_after((PRESS, "frmDisplayMonth.cmdDisplayNextMonth0")),
      *shown_after((PRESS, "frmDisplayMonth.cmdDisplayNextMonth1")),
      *shown_after((PRESS, "frmDisplayMonth.lblMonth"), *keys("Down", "Down", "Return")),
      *shown_after((PRESS, "frmDisplayMonth.lblYear"), (TYPE, "1582"), (KEY, "Return")),
      *shown_after((PASS, "frmDisplayMonth.optJulian")),
      *shown_after((PASS, "frmDisplayMonth.optCommonEra")),
      (KEY, "Escape")]),
    ("walk through the month window", {"first": "2024-02-29", "month": ("Mon", "CE")},
     [(KEY, "ctrl+m"), (OPENED, MONTH), *keys("Tab") * 12, (PRESS, "frmDisplayMonth.cmdShowHideISO"),
      *keys("Tab") * 3]),
]

LISTS = [
    ("walk through the list window", {}, [(KEY, "ctrl+l"), (OPENED, LIST), *keys("Tab") * 6, (KEY, "Escape")]),
]

TASKS = COMMON + OPTIONS + MONTHS + LISTS
