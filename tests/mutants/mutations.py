"""The small changes that are made to a source, one at a time."""

import re
from dataclasses import dataclass

from tokens import tokens_of

_SWAPS = {
    "<": ("<=", ">="),
    "<=": ("<", ">"),
    ">": (">=", "<="),
    ">=": (">", "<"),
    "==": ("!=",),
    "!=": ("==",),
    "+": ("-",),
    "-": ("+",),
    "*": ("/",),
    "/": ("*",),
    "%": ("*",),
    "+=": ("-=",),
    "-=": ("+=",),
    "*=": ("/=",),
    "/=": ("*=",),
    "&&": ("||",),
    "||": ("&&",),
    "++": ("--",),
    "--": ("++",),
}
_BINARY = {"<", "<=", ">", ">=", "+", "-", "*", "/", "%", "&&", "||"}

# What begins a statement that is no expression.
_NO_EXPRESSION = set(
    "if for while switch do else case default using namespace class struct enum union template typedef static const "
    "constexpr auto goto public private protected friend extern inline explicit virtual static_assert assert".split()
)
_LEAVING = ("return", "break", "continue", "throw")


@dataclass
class Mutant:
    file: str
    begin: int
    end: int
    new: str
    change: str  # "< to <="
    line: str = ""  # its text
    number: int = 0  # of the line, from 1

    @property
    def key(self):
        return f"{self.file}\t{self.line}\t{self.change}"

    def apply(self, source):
        return source[: self.begin] + self.new + source[self.end :]


def enumerators(sources):
    """The names of every enumeration in some sources, in their order."""
    found = {}
    for source in sources:
        for name, body in re.findall(r"\benum\s+class\s+(\w+)[^{;]*\{(.*?)\}", source, re.DOTALL):
            body = re.sub(r"//[^\n]*", "", body)
            names = [part.split("=")[0].strip() for part in body.split(",")]
            found[name] = [part for part in names if part]
    return found


def mutants_of(file, source, enums):
    """Every mutant of a source, in the order of their places, each with a key of its own."""
    tokens = tokens_of(source)
    found = []
    found += _operators(tokens)
    found += _constants(tokens)
    found += _conditions(tokens, source)
    found += _statements(tokens, source)
    found += _enumerators(tokens, enums)
    mutants = [Mutant(file, *one) for one in sorted(found, key=lambda one: (one[0], one[1], one[2]))]
    _place(mutants, source)
    return mutants


def _operators(tokens):
    for token in tokens:
        if token.skipped or token.kind != "operator" or token.text not in _SWAPS:
            continue
        if token.text in _BINARY and not (token.blank_before and token.blank_behind):
            continue  # a sign, a pointer, a reference or a list of types
        for new in _SWAPS[token.text]:
            yield token.begin, token.end, new, f"{token.text} to {new}"
    for i, token in enumerate(tokens):
        if token.text == "!" and token.kind == "operator" and not token.skipped and not token.blank_behind:
            yield token.begin, token.end, "", "! removed"


def _constants(tokens):
    for i, token in enumerate(tokens):
        if token.skipped:
            continue
        if token.text in ("true", "false") and token.kind == "word":
            new = "false" if token.text == "true" else "true"
            yield token.begin, token.end, new, f"{token.text} to {new}"
        if token.kind != "number" or _is_declared(tokens, i):
            continue
        match = re.fullmatch(r"(0[xX][0-9a-fA-F']+|[\d']+)([uUlLzZ]*)", token.text)
        if not match:
            continue
        value = int(match.group(1).replace("'", ""), 16 if match.group(1)[:2] in ("0x", "0X") else 10)
        for new in sorted({value + 1, max(value - 1, 0), 0} - {value}):
            yield token.begin, token.end, f"{new}{match.group(2)}", f"{token.text} to {new}"


def _is_declared(tokens, i):
    # "= 0" of a function without a body, and the size of an array where it is declared.
    if i >= 2 and tokens[i - 1].text == "=" and tokens[i - 2].text in (")", "const", "noexcept"):
        return True
    if i >= 3 and tokens[i - 1].text == "[" and tokens[i - 2].kind == "word":
        before = tokens[i - 3]
        return (before.kind == "word" and before.text not in ("return", "case")) or (
            before.text in (">", "*", "&") and not before.blank_before
        )
    return False


def _conditions(tokens, source):
    for i, token in enumerate(tokens[:-1]):
        if token.text not in ("if", "while") or token.skipped:
            continue
        if tokens[i + 1].text == "constexpr":
            continue
        opening = tokens[i + 1]
        if opening.text != "(" or opening.partner < 0:
            continue
        begin = opening.end
        inner = tokens[i + 2 : opening.partner]
        # A declaration may come first, and the condition behind it.
        for at, part in enumerate(inner):
            if part.text == ";":
                begin = inner[at + 1].begin
        end = tokens[opening.partner].begin
        condition = source[begin:end]
        if re.match(r"(const )?[\w:<>*&]+[*&]* (const )?\w+ = ", condition):
            continue  # declares what it looks at
        yield begin, end, f"!({condition})", f"{token.text} negated"


def _statements(tokens, source):
    for i, token in enumerate(tokens):
        if token.scope != "block" or token.skipped or not _begins_statement(tokens, i):
            continue
        last = _end_of_statement(tokens, i)
        if last is None or not (token.text in _LEAVING or _is_expression(tokens, i)):
            continue
        if token.text == "return" and last > i + 1 and tokens[i - 1].text in (";", "{", "}"):
            continue  # without it, the function would end without its value
        lines = source.count("\n", token.begin, tokens[last].begin)
        yield token.begin, tokens[last].begin, "\n" * lines, "statement removed"


def _begins_statement(tokens, i):
    before = tokens[i - 1]
    if before.kind != "operator":
        return before.text in ("else", "do")
    if before.text in (";", "{", "}"):
        return tokens[i].text not in ("{", "}", ";") and not _is_in_brackets(tokens, i)
    if before.text == ")" and before.partner > 0:
        return tokens[before.partner - 1].text in ("if", "for", "while")
    return before.text == ":" and _is_label(tokens, i - 1)


def _is_in_brackets(tokens, i):
    # The parts of a `for` are no statements.
    depth = 0
    for token in reversed(tokens[:i]):
        if token.text in (")", "]", "}"):
            depth += 1
        elif token.text in ("(", "[", "{"):
            if depth == 0:
                return token.text != "{"
            depth -= 1
    return False


def _is_label(tokens, colon):
    i = colon - 1
    while i >= 0 and tokens[i].text not in (";", "{", "}", ":", "?"):
        if tokens[i].text in ("case", "default"):
            return True
        i -= 1
    return False


def _end_of_statement(tokens, i):
    while i < len(tokens):
        if tokens[i].text in ("(", "[", "{") and tokens[i].kind == "operator":
            i = tokens[i].partner
            if i < 0:
                return None
        elif tokens[i].text == ";":
            return i
        elif tokens[i].text == "}":
            return None
        i += 1
    return None


def _is_expression(tokens, i):
    if tokens[i].text in ("*", "++", "--"):
        return True
    if tokens[i].kind != "word" or tokens[i].text in _NO_EXPRESSION:
        return False
    i += 1
    while i < len(tokens):
        text = tokens[i].text
        if text in ("(", "["):
            i = tokens[i].partner + 1
        elif text in ("::", ".", "->") and tokens[i + 1].kind == "word":
            i += 2
        elif text == "<" and tokens[i].skipped:
            while tokens[i].skipped:
                i += 1
        else:
            return text in (";", "=", "+=", "-=", "*=", "/=", "|=", "&=", "^=", "<<=", ">>=", "++", "--", "<<")
    return False


def _enumerators(tokens, enums):
    returning = False
    for i, token in enumerate(tokens):
        if token.text == "return":
            returning = True
        elif token.text == ";":
            returning = False
        if not returning or token.skipped or token.text not in enums or i + 2 >= len(tokens):
            continue
        names = enums[token.text]
        name = tokens[i + 2]
        if tokens[i + 1].text != "::" or name.text not in names or len(names) < 2:
            continue
        new = names[(names.index(name.text) + 1) % len(names)]
        yield name.begin, name.end, new, f"{name.text} to {new}"


def _place(mutants, source):
    # A key is the text of the line and the change; what is the same twice is numbered.
    lines = source.split("\n")
    seen_lines = {}
    occurrence = []
    for text in (line.strip() for line in lines):
        seen_lines[text] = seen_lines.get(text, 0) + 1
        occurrence.append(seen_lines[text])
    changes = {}
    for mutant in mutants:
        row = source.count("\n", 0, mutant.begin)
        mutant.number = row + 1
        mutant.line = lines[row].strip()
        again = changes.setdefault((row, mutant.change), [])
        again.append(mutant)
        if len(again) > 1:
            mutant.change += f", {len(again)}. on its line"
        if occurrence[row] > 1:
            mutant.change += f", {occurrence[row]}. such line"
