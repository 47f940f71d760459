"""Many faults of a file compiled at once: the environment variable MQ_FAULT chooses one of them.

The body of a function stands there once for each of its faults and once without any, the
initializer of a member likewise. What the compiler evaluates is without a fault. So a fault that a
test notices is killed as it would be alone, and in a function one that the compiler refuses on its
own lines is refused as it would be alone. Everything else is left to be tried alone, and so are the
faults in bodies that a program without a fault did not reach: it notes those it reached in the file
that the environment variable MQ_REACHED names.
"""

import re

from builds import CompileError
from operators import Source

MOST = 150  # faults in one file: more of them take the compiler more memory than time
CHOICE = """#ifndef MQ_FAULT
#define MQ_FAULT
#include <cstdio>
#include <cstdlib>
#include <type_traits>
#include <fcntl.h>
#include <unistd.h>
inline const int mqFault = [] {
  const char* fault = std::getenv("MQ_FAULT");
  return fault == nullptr ? 0 : std::atoi(fault);
}();
inline const char* const mqReachedFile = std::getenv("MQ_REACHED");
inline bool mqIsReached[MOST + 1];
inline int mqReach(int body) noexcept {
  mqIsReached[body] = true;
  if (mqReachedFile != nullptr) {
    const int file = open(mqReachedFile, O_WRONLY | O_CREAT | O_APPEND, 0600);
    dprintf(file, "%d\\n", body);
    close(file);
  }
  return mqFault;
}
#endif
""".replace("MOST", str(MOST))


def function_bodies(source):
    """The outermost bodies of functions, from brace to brace."""
    bodies, last = [], -1
    for place in range(1, len(source.tokens)):
        if source.at(place) != "{" or place < last:
            continue
        head = source._head(place)
        if {"namespace", "class", "struct", "enum", "union", "consteval", "="} & set(
                outside_of_brackets(head)) or ")" not in head:
            continue
        last = source.partner.get(place, place)
        if source.at(last + 1) not in (",", "{"):  # an initializer of a constructor
            bodies.append((source.tokens[place].start, source.tokens[last].end))
    return bodies


def outside_of_brackets(words):
    kept, depth = [], 0
    for place, word in enumerate(words):
        depth += {"(": 1, ")": -1}.get(word, 0)
        if not depth and words[place - 1] != "operator":
            kept.append(word)
    return kept


def initializers(source):
    """The expressions that members are initialized with in their class."""
    found = []
    for end, token in enumerate(source.tokens):
        if token.text != ";":
            continue
        head = source._head(end) if source.at(end - 1) != "}" else source._head(source.partner[end - 1])
        if {"constexpr", "constinit", "static", "using", "enum", "operator", "("} & set(head):
            continue
        around = max((opening for opening, closing in source.partner.items()
                      if opening < end < closing and source.at(opening) == "{"), default=0)
        if not {"class", "struct"} & set(source._head(around)):
            continue
        if source.at(end - 1) == "}":
            found += in_braces(source, source.partner[end - 1], end - 1)
        elif "=" in head:
            first = end - head[::-1].index("=")
            found.append((source.tokens[first].start, source.tokens[end - 1].end))
    return found


def in_braces(source, opening, closing):
    """The numbers between braces, or the braces if there are none."""
    if closing == opening + 1:
        return [(source.tokens[opening].start, source.tokens[closing].end)]
    return [(source.tokens[place - (source.at(place - 1) == "-")].start, source.tokens[place].end)
            for place in range(opening, closing) if source.kind(place) == "number"]


def all_in_one(text, places, faults):
    """The text with every fault in it, and the lines on which each of them stands."""
    out, lines, line, done = [CHOICE], {}, CHOICE.count("\n") + 1, 0

    def write(piece):
        nonlocal line
        out.append(piece)
        line += piece.count("\n")

    for start, end in places:
        old, inner = text[start:end], faults_within(faults, start, end)
        if not inner:
            continue
        if old == "{}":  # the numbers of an array
            choice = "{", "mqFault == %d ? 1 :", "0}"
        elif old.startswith("{"):
            body = min(inner)
            choice = ("{ if (std::is_constant_evaluated()) " + old
                      + f" else switch (mqIsReached[{body}] ? mqFault : mqReach({body})) {{",
                      "case %d: %s break;", "default: " + old + "} }")
        else:
            choice = "(", "mqFault == %d ? (%s) :", f"({old}))"
        write(text[done:start] + choice[0])
        for number, fault in inner.items():
            write("\n")
            new = old[: fault.start - start] + fault.new + old[fault.end - start :]
            first, words = line, choice[1].replace("%d", str(number)).replace("%s", new)
            write(words)
            lines[number] = range(first, line + 1)
        write("\n" + choice[2])
        done = end
    write(text[done:])
    return "".join(out), lines


def faults_within(faults, start, end):
    return {number: fault for number, fault in faults.items()
            if start <= fault.start and fault.end <= end}


class Together:
    """The faults in the functions and initializers of one file, by their numbers."""

    def __init__(self, path, text, mutants):
        self.path, self.text, source = path, text, Source(path, text)
        bodies = self.bodies_in_file = function_bodies(source)
        self.places = sorted(bodies + initializers(source))
        numbered = dict(enumerate(mutants, 1))
        self.faults = {number: fault for start, end in self.places
                       for number, fault in faults_within(numbered, start, end).items()}
        # A type that is deduced of one copy is an error in another.
        self.bodies = [body for body in bodies if "auto" not in text[text.rfind("\n\n", 0, body[0]) : body[0]]]
        self.refused = {}

    def reached(self, bodies):
        """The faults that may be noticed by who reached the bodies, named by their first faults."""
        unreached = {number for body in self.bodies_in_file if (inner := faults_within(self.faults, *body))
                     and min(inner) not in bodies for number in inner}
        return [number for number in self.faults if number not in unreached]

    def compile(self, changed, compile_file):
        """The objects with all faults that are C++; the others are taken out. None: not together."""
        while self.faults:
            text, lines = all_in_one(self.text, self.places, self.faults)
            changed.write_text(text, encoding="utf-8")
            try:
                return compile_file()
            except CompileError as error:
                wrong = blamed(self.path, lines, str(error))
                for number in wrong or list(self.faults):
                    fault = self.faults.pop(number)
                    words = wrong.get(number, "")
                    if "error:" in words and any(faults_within({0: fault}, *body) for body in self.bodies):
                        self.refused[fault] = words
        return None


def blamed(path, lines, words):
    """The faults on the lines that the compiler names, of errors or of what led to them, and its words."""
    for kind in ("error: .*", "  required from"):
        places = {int(place): message for place, message in re.findall(
            rf"{re.escape(path)}:(\d+):\d+: ({kind})", words)}
        wrong = {number: next(places[line] for line in where if line in places)
                 for number, where in lines.items() if places.keys() & set(where)}
        if wrong:
            return wrong
    return {}
