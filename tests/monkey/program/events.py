"""The events of the monkey that plays with the real program: a routine a kind, each with the dice of its number."""

from seen import BOXES, Atspi, GLib, has, walk

NAMED = ["Tab", "Tab", "Tab", "shift+Tab", "Return", "Escape", "space", "Left", "Right", "Up", "Down", "Home", "End",
         "Page_Up", "Page_Down", "Delete", "BackSpace", "F3", "Menu", "ctrl+a", "ctrl+c", "ctrl+x", "ctrl+z",
         "ctrl+y", "ctrl+Page_Up", "ctrl+Page_Down"]
# No path is typed: it would be that of a file in a dialog for files.
TYPED = ["2024-02-29", "2024.02.29", "29-02-2024", "1582-10-04", "2024-W09-4", "2024W094", "2024-060", "2460370",
         "-4712-01-01", "0000-W53-1", "9999-12-31", "5799999-01-01", "10", "-400", "1,000", "2147483647", "0", "x", "--",
         "31-12-1999 CE", "24-5-3", "99999999999999999999"]
ODD = ["", " ", "\n", "2024-02-29\n2024-03-01\n", "name\tdate\n1\t2024-02-29\n", "\u202e2024", "\u22125",
       "\U0001f600\U0010ffff", "e\u0301\u0301", "\ufeff2024-02-29", "<b>1</b>", "\"a\nb\",c\n", "7" * 4000, "\u0661"]


class Hands:
    """One who plays: what there is to be played with is looked up now and then."""

    def __init__(self, desktop, screen, touch, seen):
        self.desktop, self.screen, self.touch, self.seen = desktop, screen, touch, seen
        self.controls = []

    def look(self):
        """Takes in the controls of all windows that are shown."""
        self.controls = []
        for window in self.seen.windows():
            self.controls += [control for control in walk(window)
                              if control.get_name() not in ("Quit", "Beenden")]

    def key(self, dice):
        key = dice.choice(NAMED)
        self.touch.keys(key)
        return f"key {key}"

    def text(self, dice):
        text = dice.choice(TYPED)
        self.touch.keys("ctrl+a")
        self.touch.type(text)
        if dice.random() < 0.3:
            self.touch.keys("Return")
        return f"typed {text}"

    def click(self, dice):
        windows = self.desktop.shown
        if not windows:
            return "no window to click in"
        x, y, width, height = dice.choice(windows)
        place = x + dice.randrange(max(1, width)), y + dice.randrange(max(1, height))
        button = dice.choice([1, 1, 1, 1, 1, 3, 2, 4, 5])
        self.touch.click(*place, button)
        return f"button {button} at {place}"

    def paste(self, dice):
        text = dice.choice(ODD + TYPED)
        self.touch.hold(text)
        self.touch.keys(dice.choice(["ctrl+v", "ctrl+v", "shift+Insert"]))
        return f"paste of {text[:40]!r}"

    def open(self, dice):
        key = dice.choice(["F1", "ctrl+m", "ctrl+l", "ctrl+o", "ctrl+s", "alt+r"])
        self.touch.keys(key)
        return f"key {key} to open"

    def close(self, dice):
        self.touch.keys("Escape")
        return "Escape to close"

    def resize(self, dice):
        windows = self.screen.windows()
        if not windows:
            return "no window to resize"
        window, title, _ = dice.choice(windows)
        width, height = dice.randrange(1, 1500), dice.randrange(1, 1100)
        self.touch.size(window, width, height)
        return f"window {title} to {width} x {height}"

    def act(self, dice):
        """An action of an assistive tool."""
        if not self.controls:
            return "nothing to act on"
        control = dice.choice(self.controls)
        try:
            name = f"{control.get_role_name()} '{control.get_name()}'"
            actions = control.get_action_iface()
            count = actions.get_n_actions() if actions is not None else 0
            if count == 0 or not has(control, Atspi.StateType.SENSITIVE):
                return f"no action on {name}"
            number = dice.randrange(count)
            actions.do_action(number)
            return f"action {actions.get_action_name(number)} on {name}"
        except GLib.Error:
            return "an action on what has gone"

    def write(self, dice):
        """An assistive tool writes into a box."""
        boxes = [control for control in self.controls if control.get_name() in sum(BOXES, ())
                 and control.get_role_name() == "text"]
        if not boxes:
            return "no box to write into"
        box, text = dice.choice(boxes), dice.choice(TYPED)
        try:
            Atspi.EditableText.set_text_contents(box, text)
        except GLib.Error:
            return "a text for what has gone"
        return f"{text} written into {box.get_name()}"

    def language(self, dice):
        name = dice.choice(["English", "Deutsch"])
        for control in self.controls:
            if control.get_name() == name and control.get_role_name() == "radio button":
                try:
                    control.get_action_iface().do_action(0)
                except GLib.Error:
                    break
                return f"language {name}"
        return "no language to switch"


# What comes how often, in thousandths.
KINDS = [("key", 300, Hands.key), ("typed text", 130, Hands.text), ("click", 250, Hands.click),
         ("paste", 50, Hands.paste), ("window opened", 60, Hands.open), ("window closed", 50, Hands.close),
         ("resize", 10, Hands.resize), ("assistive action", 100, Hands.act), ("assistive text", 30, Hands.write),
         ("language", 20, Hands.language)]
