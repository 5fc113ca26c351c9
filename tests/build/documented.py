#!/usr/bin/env python3
"""Checks that headers explain what they offer: each function a comment of its own, right before it; every other
declaration one as well, or at its end, or that of the group in which it stands.

documented.py HEADER...          prints each declaration that is not explained
documented.py --self-test        the check finds what it is there to find

Looked at is what stands in a namespace or in the public part of a class. Copying, moving, comparing, ending and
what is given back to the language (= default, = delete, friend, operator) explain themselves.
"""

import pathlib
import re
import sys

TOKEN = re.compile(r"""//[^\n]*|/\*.*?\*/|R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])'""", re.S)
SPEAKS_FOR_ITSELF = re.compile(r"^friend\b|^static_assert\b|^using namespace\b|~|\boperator\b|= (default|delete)$")
FUNCTION = re.compile(r"^[^=]*[\w>]\s*\(")


def blank(text):
    """The same text with its lines, but nothing in them."""
    return re.sub(r"[^\n]", " ", text)


class Header:
    def __init__(self, text):
        comments = {}  # line -> whether the comment has the line for itself

        def hide(match):
            found = match.group(0)
            if not found.startswith(("//", "/*")):
                return '""' + blank(found)[2:]
            first = text.count("\n", 0, match.start())
            alone = not text[text.rfind("\n", 0, match.start()) + 1:match.start()].strip()
            for line in range(first, first + found.count("\n") + 1):
                comments[line] = alone
            return blank(found)

        self.comments = comments
        self.code = re.sub(r"(?m)^[ \t]*#(?:.*\\\n)*.*$", lambda match: blank(match.group(0)), TOKEN.sub(hide, text))

    def statements(self):
        """(words, first line, last line, whether anybody sees it) of each declaration, in order."""
        scopes = [["namespace", True]]
        start = 0
        depth = 0  # of parentheses
        for place, character in enumerate(self.code):
            if character in "([":
                depth += 1
            elif character in ")]":
                depth -= 1
            elif depth > 0:
                continue
            elif character == "{":
                words = self.code[start:place].split()
                head = " ".join(words)
                if scopes[-1][0] == "body" or re.search(r"(=|\breturn|\))$|\) (const|noexcept)$|\) : ", head):
                    scopes.append(["body", False])
                elif "namespace" in words[:2]:
                    scopes.append(["namespace", True])
                    start = place + 1
                elif re.match(r"(template ?<.*> ?)?(class|struct)\b", head):
                    yield self.statement(start, place, scopes)
                    scopes.append(["class", scopes[-1][1] and not re.search(r"\bclass\b", head.split(" : ")[0])])
                    start = place + 1
                else:
                    scopes.append(["body", False])
            elif character == "}":
                kind = scopes.pop()[0]
                if kind == "body" and scopes[-1][0] != "body":
                    rest = self.code[place + 1:].lstrip()
                    if not rest.startswith((";", ",", "(", ")", ".", "{")):  # the end of a function
                        yield self.statement(start, place, scopes)
                        start = place + 1
                elif kind == "namespace":
                    start = place + 1
            elif character == ";" and scopes[-1][0] != "body":
                if self.code[start:place].strip(" \n}"):
                    yield self.statement(start, place, scopes)
                start = place + 1
            elif character == ":" and scopes[-1][0] == "class":
                label = self.code[start:place].strip()
                if label in ("public", "protected", "private"):
                    scopes[-1][1] = label == "public"
                    start = place + 1

    def statement(self, start, end, scopes):
        lead = len(self.code[start:end]) - len(self.code[start:end].lstrip())
        words = " ".join(self.code[start:end].split())
        return (words, self.code.count("\n", 0, start + lead), self.code.count("\n", 0, end), scopes[-1][1])

    def unexplained(self):
        """(line, declaration) of each that no comment explains."""
        found = []
        last, last_explained = -2, False
        for words, first, end, seen in self.statements():
            words = words.lstrip("} ")
            head = words.split("{")[0].strip()
            is_function = bool(FUNCTION.match(re.sub(r"^template ?<.*?> ", "", head))) and "=" not in head.split("(")[0]
            before = self.comments.get(first - 1, False)
            if is_function:
                explained = before
            else:
                explained = (before or any(line in self.comments for line in range(first, end + 1))
                             or (first == last + 1 and last_explained))
            # A declaration ahead of the thing itself explains nothing, nor needs it.
            ahead = re.fullmatch(r"(class|struct|enum class) \w+", words) and self.code.splitlines()[end].rstrip().endswith(";")
            if not (explained or ahead or not seen or SPEAKS_FOR_ITSELF.search(head)):
                found.append((first + 1, words[:100]))
            last, last_explained = end, explained
        return found


def self_test():
    rows = [
        ("int Days();", 1), ("/// Days.\nint Days();", 0), ("int Days();  // of a year", 1),
        ("/// One.\nint One();\nint Two();", 1), ("/// Counts.\ninline constexpr int kOne = 1;\nconstexpr int kTwo{2};", 0),
        ("/// Days.\n\nint Days();", 1), ("/// Kept.\nstruct A {\n    int a = 0;  // of it\n    int b = 0;\n};", 0),
        ("struct A {\n    int a = 0;  // of it\n};", 1), ("/// It.\nstruct A {\n    int a = 0;\n\n    int b = 0;\n};", 1),
        ("/// It.\nclass A {\n    int a;\npublic:\n    A() = default;\n    int Get() const { return a; }\n};", 1),
        ("/// It.\nclass A {\npublic:\n    /// Gets.\n    int Get() const {\n        if (a) { return a; }\n        return 1;\n    }\n"
         "private:\n    int a = 0;\n    void Hidden();\n};\nvoid Shown();", 1),
        ("template <typename T>\nbool Same(T a) {\n    return a;\n}", 1),
        ("/// Same.\ntemplate <typename T>\nbool Same(T a) {\n    return a;\n}", 0),
        ("/// Table.\ninline constexpr std::array<A, 2> kTable = {{{1, \"a;{\"}, {2, \"b\"}}};", 0),
        ("enum class E { A, B };", 1), ("/// Two.\nenum class E {\n    A,\n    B,\n};", 0), ("struct Ahead;", 0),
        ("using Days = int;", 1), ("/// Two.\nconst std::array kA = [] { return 1; }();\nint F(int a = G());", 1),
    ]
    for text, expected in rows:
        found = Header("#pragma once\n\nnamespace calvoro {\n\n" + text + "\n\n}  // namespace calvoro\n").unexplained()
        if len(found) != expected:
            sys.exit(f"expected {expected} in\n{text}\nfound {found}")


def main():
    if sys.argv[1:] == ["--self-test"]:
        return self_test()
    declarations = faults = 0
    for name in sys.argv[1:]:
        header = Header(pathlib.Path(name).read_text(encoding="utf-8"))
        declarations += sum(1 for statement in header.statements() if statement[3])
        for line, words in header.unexplained():
            print(f"{name}:{line}: {words}")
            faults += 1
    if declarations < 3 * len(sys.argv[1:]):
        sys.exit(f"only {declarations} declarations found")
    print(f"{declarations} declarations in {len(sys.argv) - 1} headers, {faults} not explained")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
