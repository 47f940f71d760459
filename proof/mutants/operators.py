"""The small faults that are tried: from the text of a C++ source to the list of its mutants.

The source is cut into tokens; comments, preprocessor lines, attributes, template heads and
static assertions are never changed. The sources are laid out by clang-format, so that an operator
of two operands is one with a blank on both sides and a bracket of a template is not. What is no
C++ once it is changed is found out by the compiler and does not count.

The rows of the hand-ruled tables in TABLES are left out: proof/tables changes each of their cells
in the compiled library, which is a finer change than one of a row of the source.
"""

import re
from dataclasses import dataclass
from fnmatch import fnmatch

TOKEN = re.compile(
    r"""(?P<space>\s+)
      | (?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>^[ \t]*\#(?:[^\n\\]|\\.)*)
      | (?P<string>(?:u8|[uUL])?"(?:[^"\\\n]|\\.)*")
      | (?P<char>(?:u8|[uUL])?'(?:[^'\\\n]|\\.)+')
      | (?P<number>\.?\d(?:'?[\w.]|[eE][+-](?=\d))*)
      | (?P<name>[A-Za-z_]\w*)
      | (?P<sign><=>|->\*|\.\.\.|<<=|>>=|::|->|\.\*|\+\+|--|<<|>>|[<>=!+\-*/%&|^]=|&&|\|\||.)""",
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)

# Their rows stand where clang-format is switched off; the code around these is changed like any.
TABLES = ("mqPostCommon/catalogue/*", "mqPostCommon/platform/case_folding.h",
          "mqPostCommon/materials/property_tables.*", "mqPostCommon/lists/list.cpp")
ROWS = re.compile(r"// clang-format off\n.*?// clang-format on\n", re.DOTALL)

EXCHANGED = {
    "==": ["!="], "!=": ["=="],
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "&&": ["||"], "||": ["&&"], "&": ["|"], "|": ["&"], "^": ["|"],
    "<<": [">>"], ">>": ["<<"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "/=": ["*="],
    "|=": ["&="], "&=": ["|="], "^=": ["|="],
}
OPENING = {"(": ")", "[": "]", "{": "}"}
CLOSING = set(OPENING.values())
ASSIGNING = {"=", "+=", "-=", "*=", "/=", "%=", "|=", "&=", "^=", "<<=", ">>="}
# What a statement that can be left out does not begin with.
DECLARING = set("""alignas auto bool break case char class const consteval constexpr constinit
    continue default do double else enum explicit extern float for friend if inline int long
    namespace operator private protected public return short signed static struct switch template
    typedef typename unsigned using virtual void while""".split())


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int
    spaced: bool  # stands behind a blank or a line end


@dataclass(frozen=True)
class Mutant:
    path: str
    start: int
    end: int
    new: str
    line: int
    change: str  # what becomes of what, in words; names a mutant within its line

    @property
    def key(self):
        return f"{self.path}:{self.line}: {self.change}"

    def apply(self, text):
        return text[: self.start] + self.new + text[self.end :]


def tokenize(text):
    tokens, spaced = [], True
    for match in TOKEN.finditer(text):
        if match.lastgroup in ("space", "comment", "directive"):
            spaced = True
            continue
        tokens.append(Token(match.lastgroup, match.group(), match.start(), match.end(), spaced))
        spaced = False
    return tokens


class Source:
    """The tokens of a file and the brackets among them."""

    def __init__(self, path, text):
        self.path, self.text = path, text
        self.tokens = tokenize(text)
        self.partner, stack = {}, []
        for place, token in enumerate(self.tokens):
            if token.text in OPENING:
                stack.append(place)
            elif token.text in CLOSING and stack:
                self.partner[place] = stack[-1]
                self.partner[stack.pop()] = place
        self.fixed = self._find_fixed()
        self.found = {}

    def at(self, place):
        return self.tokens[place].text if 0 <= place < len(self.tokens) else ""

    def kind(self, place):
        return self.tokens[place].kind if 0 <= place < len(self.tokens) else ""

    def spaced(self, place):
        return 0 <= place < len(self.tokens) and self.tokens[place].spaced

    def between(self, first, last):
        return self.text[self.tokens[first].start : self.tokens[last].end]

    def binary(self, place):
        return self.spaced(place) and self.spaced(place + 1)

    def _find_fixed(self):
        """Places that are never changed: they declare something, or they are checks themselves."""
        fixed = set()
        for place, token in enumerate(self.tokens):
            if token.text == "static_assert":
                fixed.update(range(place, self.partner.get(place + 1, place) + 2))
            elif token.text == "[" and self.at(place + 1) == "[":
                fixed.update(range(place, self.partner.get(place, place) + 1))
            elif token.text == "template" and self.at(place + 1) == "<":
                depth, last = 0, place + 1
                while last < len(self.tokens):
                    depth += {"<": 1, ">": -1, ">>": -2}.get(self.at(last), 0)
                    if depth <= 0:
                        break
                    last += 1
                fixed.update(range(place, last + 1))
            elif token.text in ("using", "requires") and self.at(place + 1) != "{":
                last = place
                while last < len(self.tokens) and self.at(last) not in (";", "{", "explicit"):
                    last += 1
                fixed.update(range(place, last))
            elif token.text == "operator":
                fixed.add(place + 1)
            elif token.text == "[" and self._declares_array(place):
                fixed.update(range(place, self.partner.get(place, place) + 1))
        return fixed

    def _declares_array(self, place):
        """`int m_n[3] = ...`: its length is the layout of the class, not what the class does."""
        name = place - 1
        while self.at(name) == "]":
            name = self.partner.get(name, 0) - 1
        return (self.kind(name) == "name" and self.at(name) not in ("return", "delete")
                and (self.kind(name - 1) == "name" or self.at(name - 1) in (">", "*"))
                and self.at(name - 1) not in ("return", "delete"))

    # -----------------------------------------------------------------------------------------

    def add(self, first, last, new, what=None):
        start, end = self.tokens[first].start, self.tokens[last].end
        old = " ".join(self.text[start:end].split())
        if new == self.text[start:end] or (start, end, new) in self.found:
            return
        line_start = self.text.rfind("\n", 0, start) + 1
        line = self.text.count("\n", 0, start) + 1
        before = self.text[line_start:start].count(old) + 1
        which = f" (no. {before})" if before > 1 else ""
        change = what or f"{old} -> {' '.join(new.split()) or 'nothing'}"
        self.found[start, end, new] = Mutant(self.path, start, end, new, line, change + which)

    def mutants(self):
        for place, token in enumerate(self.tokens):
            if place in self.fixed:
                continue
            if token.kind == "number":
                self._numbers(place)
            elif token.kind in ("string", "char"):
                self._texts(place)
            elif token.kind == "name":
                self._words(place)
            else:
                self._signs(place)
        self._statements()
        self._rows()
        return sorted(self.found.values(), key=lambda mutant: (mutant.start, mutant.end, mutant.new))

    def _numbers(self, place):
        old = self.at(place)
        match = re.fullmatch(r"(0[xX][\da-fA-F']+|[\d']+)([uUlL]*)", old)
        if match:
            digits, suffix = match.groups()
            value = int(digits.replace("'", ""), 0)
            spell = (lambda number: f"0x{number:X}") if digits[:2] in ("0x", "0X") else str
            values = [value + 1, value - 1] if value > 0 else [1]
            for number in dict.fromkeys(values + [0]):
                if number != value:
                    self.add(place, place, spell(number) + suffix)
            return
        match = re.fullmatch(r"([\d.']+)([fF]?)", old)
        if match:
            value = float(match.group(1))
            for number in dict.fromkeys([value + 1.0, 0.0]):
                if number != value:
                    self.add(place, place, f"{number}{match.group(2)}")

    def _texts(self, place):
        if self.at(place - 1) == "throw" or self.at(place - 2) in ("CInvalidArgException", "throw"):
            return  # a wording, promised nowhere
        old = self.at(place)
        prefix, body = old[: old.index(old[-1]) + 1], old[old.index(old[-1]) + 1 : -1]
        if self.kind(place) == "char":
            self.add(place, place, prefix + ("y" if body == "x" else "x") + old[-1])
        else:
            shorter = re.sub(r"(\\.|.)$", "", body)
            self.add(place, place, prefix + (shorter if body else "x") + old[-1])

    def _words(self, place):
        word, behind = self.at(place), self.at(place + 1)
        if word in ("true", "false"):
            self.add(place, place, "false" if word == "true" else "true")
        elif word in ("break", "continue") and behind == ";":
            self.add(place, place, "continue" if word == "break" else "break")
            if not self._ends_switch(place + 2):
                self.add(place, place, "")
        elif word == "if" and "(" in (behind, self.at(place + 2)):
            opening = place + 1 if behind == "(" else place + 2
            closing = self.partner[opening]
            first = opening + 1
            for inner in range(first, closing):  # if (declaration; condition)
                if self.at(inner) == ";" and self.partner.get(inner) is None:
                    first = inner + 1
            condition = self.between(first, closing - 1)
            self.add(first, closing - 1, f"!({condition})", f"if ({' '.join(condition.split())}) negated")
        elif word == "return" and behind not in (";", "{"):
            last = self._end_of(place + 1, (";",)) - 1
            if not re.fullmatch(r"\*this|nullptr|true|false|[\d.]+F?|[\w:]+\(\)",
                                self.between(place + 1, last)):
                self.add(place + 1, last, "{}")

    def _ends_switch(self, place):
        """Whether nothing is done between here and the end of a switch."""
        if self.at(place) == "default":
            place += 4 if self.at(place + 2) == "break" else 2
        return self.at(place) == "}" and "switch" in self._head(self.partner[place])

    def _signs(self, place):
        sign = self.at(place)
        if self.binary(place):
            for other in EXCHANGED.get(sign, []):
                self.add(place, place, other)
        if sign == "?":
            self._branches(place)
        elif sign in ("++", "--"):
            self.add(place, place, "--" if sign == "++" else "++")
        elif sign == "~" and self.at(place + 2) == "(":
            return  # a destructor
        elif sign in ("!", "~") or (sign == "-" and not self.binary(place) and not self.spaced(place + 1)):
            self.add(place, place, "", f"{sign}{self.at(place + 1)} -> {self.at(place + 1)}")
        elif sign == "(" and self.kind(place - 1) == "name":
            self._arguments(place)
        elif sign == "{" and self.at(place + 1) == "}" and self.at(place - 1) == "=":
            self.add(place, place + 1, "{1}")

    def _end_of(self, place, ends):
        """The first of the ends behind a place that is not within brackets."""
        while place < len(self.tokens) and self.at(place) not in ends:
            if self.at(place) in CLOSING:
                break
            place = self.partner.get(place, place) + 1 if self.at(place) in OPENING else place + 1
        return place

    def _branches(self, place):
        depth, colon = 0, place + 1
        while depth or self.at(colon) != ":":
            depth += {"?": 1, ":": -1}.get(self.at(colon), 0)
            colon = self.partner.get(colon, colon) + 1 if self.at(colon) in OPENING else colon + 1
            if colon >= len(self.tokens):
                return
        last = self._end_of(colon + 1, (";", ",")) - 1
        if colon == place + 1 or last <= colon:
            return
        first, second = self.between(place + 1, colon - 1), self.between(colon + 1, last)
        self.add(place + 1, last, f"{second} : {first}",
                 f"branches exchanged: {' '.join(first.split())} : {' '.join(second.split())}")

    def _items(self, opening):
        """The first and the last place of each item between brackets."""
        closing, items, first = self.partner.get(opening, opening), [], opening + 1
        while first < closing:
            end = min(self._end_of(first, (",",)), closing)
            if end > first:
                items.append((first, end - 1))
            first = end + 1
        return items

    def _arguments(self, opening):
        if self.at(opening - 1) in DECLARING | {"decltype", "noexcept", "swap", "min", "max"}:
            return
        items = self._items(opening)
        for place in range(opening, self.partner.get(opening, opening)):
            behind = place + 2 if self.at(place + 1) in ("*", "&", "&&") else place + 1
            if (self.kind(place) == self.kind(behind) == "name" and not self.spaced(behind - 1)
                    or self.kind(place) == self.kind(place + 1) == "name") and self.at(
                    place) not in ("return", "new", "this", "const"):
                return  # parameters
        for (a, b), (c, d) in zip(items, items[1:]):
            left, right = self.between(a, b), self.between(c, d)
            texts = [one == other and self.kind(one) == "string" for one, other in ((a, b), (c, d))]
            if left != right and texts[0] == texts[1]:
                self.add(a, d, f"{right}, {left}",
                         f"arguments exchanged: {' '.join(left.split())}, {' '.join(right.split())}")

    def _head(self, place):
        """The tokens before a place, back to the end of what stands before it, but for template heads."""
        first = place - 1
        while first >= 0 and self.at(first) not in (";", "{", "}"):
            first = self.partner.get(first, first) - 1 if self.at(first) == ")" else first - 1
        return [self.at(other) for other in range(first + 1, place) if other not in self.fixed]

    def _begins_statement(self, place):
        before = self.at(place - 1)
        if before == ":":
            return self._head(place)[0] in ("case", "default")
        if before == ")":
            return self.at(self.partner.get(place - 1, 0) - 1) in ("if", "for", "while")
        return before in (";", "{", "}", "else")

    def _statements(self):
        """Statements that do something, each left out."""
        bodies = []
        for place in range(1, len(self.tokens)):
            while bodies and place > bodies[-1][0]:
                bodies.pop()
            if self.at(place) == "{":
                head = self._head(place)
                runs = not {"namespace", "class", "struct", "enum", "union"} & set(head) and (
                    ")" in head or "]" in head or head[-1:] in ([], ["else"], ["do"]))
                bodies.append((self.partner.get(place, place), runs))
            if (not bodies or not bodies[-1][1] or place in self.fixed
                    or not self._begins_statement(place) or not self._is_effect(place)):
                continue
            end = self._end_of(place, (";",))
            if self.at(end) == ";":
                text = self.between(place, end)
                self.add(place, end, ";", f"left out: {' '.join(text.split())}")
        lines = [place for place in range(1, len(self.tokens)) if self.at(place) == "visitor"
                 and self.at(place + 1) == "." and self.at(place - 1) in (";", "{")]
        for one, other in zip(lines, lines[1:]):  # fields of a record change places
            end, last = self._end_of(one, (";",)), self._end_of(other, (";",))
            if end + 1 == other:
                self.add(one, last, self.between(other, last) + self.between(one, end),
                         f"field behind the next: {self.between(one + 2, one + 5)}...")

    def _is_effect(self, place):
        if self.at(place) in ("delete", "throw", "++", "--"):
            return True
        while self.at(place) in ("*", "(") and self.at(place):
            if self.at(place) == "(":
                place = self.partner.get(place, place) + 1
                break
            place += 1
        if self.kind(place) == "name":
            if self.at(place) in DECLARING:
                return False
            place += 1
        while self.at(place) in ("::", ".", "->", ".*", "->*", "(", "["):
            if self.at(place) in OPENING:
                place = self.partner.get(place, place) + 1
            else:
                place += 2
        return self.at(place) in ASSIGNING | {";", "++", "--", "<<"} and self.at(place - 1) not in (
            "}", "{", ";")

    def _rows(self):
        """Rows of a table: left out, before their neighbour, and with a cell of the next row."""
        for opening in [place for place in range(len(self.tokens)) if self.at(place) in ("{", "(")]:
            rows = [row for row in self._items(opening)
                    if self.at(row[0]) == "{" and self.partner.get(row[0]) == row[1]]
            if len(rows) < 3 or any(row[0] in self.fixed for row in rows):
                continue
            cells = [self._items(row[0]) for row in rows]
            for place, (first, last) in enumerate(rows):
                comma = last + 1 if self.at(last + 1) == "," else last
                text = " ".join(self.between(first, last).split())
                self.add(first, comma, "", f"row left out: {text}")
                if place + 1 < len(rows):
                    other = rows[place + 1]
                    self.add(first, other[1], f"{self.between(*other)}, {self.between(first, last)}",
                             f"row behind the next: {text}")
                self._cells(cells, place)

    def _cells(self, rows, place):
        for column, cell in enumerate(rows[place]):
            own = self.between(*cell)
            for row in rows[place + 1 :] + rows[:place][::-1]:
                if column < len(row) and self.between(*row[column]) != own:
                    self.add(*cell, self.between(*row[column]))
                    break


def mutants_of(path, text):
    mutants = Source(path, text).mutants()
    if any(fnmatch(path, pattern) for pattern in TABLES):
        rows = [match.span() for match in ROWS.finditer(text)]
        mutants = [mutant for mutant in mutants
                   if not any(first <= mutant.start < last for first, last in rows)]
    return mutants
