"""C++ source as tokens with their places, and which of them are code that runs."""

import re
from dataclasses import dataclass

_PARTS = re.compile(
    r"""(?P<blank>\s+)
      | (?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)
      | (?P<raw>(?:u8|[uUL])?R"(?P<fence>[^()\\\s]*)\(.*?\)(?P=fence)")
      | (?P<string>(?:u8|[uUL])?"(?:\\.|[^"\\\n])*")
      | (?P<character>(?:u8|[uUL])?'(?:\\.|[^'\\\n])+')
      | (?P<number>(?:0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d+)?(?:[eE][+-]?\d+)?)[uUlLfFzZ]*)
      | (?P<word>[A-Za-z_]\w*)
      | (?P<operator><=>|<<=|>>=|->\*|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
    """,
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)

_OPENING = {"(": ")", "[": "]", "{": "}"}


@dataclass
class Token:
    kind: str
    text: str
    begin: int
    blank_before: bool = False
    blank_behind: bool = False
    partner: int = -1  # of a bracket: the token that closes or opens it
    scope: str = ""  # what the innermost braces around it are: "", block, initializer, enum or other
    skipped: bool = False  # left alone: templates, assertions, enumerations

    @property
    def end(self):
        return self.begin + len(self.text)


def tokens_of(source):
    """The tokens of a source, without blanks, comments and preprocessor lines."""
    tokens = []
    blank = True
    for match in _PARTS.finditer(source):
        kind = match.lastgroup if match.lastgroup != "fence" else "raw"
        if kind in ("blank", "comment", "directive"):
            blank = True
            if tokens:
                tokens[-1].blank_behind = True
            continue
        tokens.append(Token(kind, match.group(), match.start(), blank))
        blank = False
    _pair_brackets(tokens)
    _name_scopes(tokens)
    _skip_templates(tokens)
    _skip_assertions(tokens)
    return tokens


def _pair_brackets(tokens):
    open_ones = []
    for i, token in enumerate(tokens):
        if token.kind != "operator":
            continue
        if token.text in _OPENING:
            open_ones.append(i)
        elif token.text in _OPENING.values() and open_ones:
            tokens[i].partner = open_ones.pop()
            tokens[tokens[i].partner].partner = i


def _name_scopes(tokens):
    around = [""]
    for i, token in enumerate(tokens):
        if token.text == "}" and token.kind == "operator" and len(around) > 1:
            around.pop()
        token.scope = around[-1]
        token.skipped = "enum" in around
        if token.text == "{" and token.kind == "operator":
            around.append(_scope_of_brace(tokens, i, around[-1]))


def _scope_of_brace(tokens, brace, outer):
    head = []
    i = brace - 1
    while i >= 0 and tokens[i].text not in (";", "{", "}"):
        if tokens[i].text in (")", "]") and tokens[i].partner >= 0:
            head.append(tokens[i].text)
            i = tokens[i].partner
        head.append(tokens[i].text)
        i -= 1
    before = tokens[brace - 1].text if brace else ";"
    if "enum" in head:
        return "enum"
    if before in ("=", ",", "return", "(", "[") or outer == "initializer":
        # A function without a name may stand where a value does.
        return "initializer" if not _is_lambda(tokens, brace) else "block"
    if outer == "block":
        opens_block = before in (")", "else", "do", "try", "{", "}", ";", ":", "mutable", "noexcept")
        return "block" if opens_block or _is_lambda(tokens, brace) else "initializer"
    if any(word in head for word in ("namespace", "class", "struct", "union")):
        return "other"
    return "block" if "(" in head else "initializer"


def _is_lambda(tokens, brace):
    i = brace - 1
    while i >= 0 and tokens[i].kind == "word" and tokens[i].text in ("mutable", "noexcept", "const"):
        i -= 1
    if i >= 0 and tokens[i].text == ")" and tokens[i].partner > 0:
        i = tokens[i].partner - 1
    return i >= 0 and tokens[i].text == "]"


def _skip_templates(tokens):
    # Where a "<" has no blank in front, or stands behind `template`, it opens a list of types.
    i = 0
    while i < len(tokens):
        opens = tokens[i].text == "<" and i > 0 and (
            tokens[i - 1].text == "template"
            or (tokens[i - 1].kind == "word" and not tokens[i].blank_before and tokens[i - 1].text != "operator")
        )
        if not opens:
            i += 1
            continue
        depth = 0
        while i < len(tokens):
            tokens[i].skipped = True
            depth += {"<": 1, ">": -1, ">>": -2}.get(tokens[i].text, 0)
            i += 1
            if depth <= 0:
                break


def _skip_assertions(tokens):
    for i, token in enumerate(tokens[:-1]):
        if token.text in ("static_assert", "assert") and tokens[i + 1].text == "(":
            for inner in tokens[i : tokens[i + 1].partner + 1]:
                inner.skipped = True
        if token.text == "operator":
            tokens[i + 1].skipped = True
        if token.text in ("alignas", "noexcept", "decltype", "sizeof") and tokens[i + 1].text == "(":
            for inner in tokens[i : tokens[i + 1].partner + 1]:
                inner.skipped = True
