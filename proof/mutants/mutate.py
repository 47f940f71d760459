#!/usr/bin/env python3
"""Proves that the tests notice small faults in the library.

One fault at a time is planted into the sources of mqPostCommon/ (operators.py lists the kinds):
the affected objects are compiled, the library is linked and the suites run until one fails. Faults
within functions are compiled many at once and one is switched on (together.py); what is not
noticed so is tried alone. What no suite notices is tried again with the address and
undefined-behaviour sanitizers. A fault that is noticed is killed; one that is not has survived,
which is a missing test, unless equivalents.tsv says why it changes nothing that anybody could
notice.

Readers and writers of records and the code that owns objects must lose every fault, the core 95 of
100: that is the whole library but for the rows of the hand-ruled tables, whose cells proof/tables
changes in the compiled library (operators.py says which). A fault that static_assert or the
evaluation of a constant refuses counts as killed by the compiler; one that is no C++ does not
count at all.

  mutate.py --sample 120            some faults of every file
  mutate.py --changed-since main    the lines that differ from a revision; with --sample 120 as
                                    many of these and of the rest of their files, and as many of
                                    the others (./dev test)
  mutate.py --all                   every fault: hours
"""

import argparse
import csv
import difflib
import hashlib
import json
import random
import shutil
import subprocess
import sys
import tempfile
import threading
import time
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from fnmatch import fnmatch
from pathlib import Path

sys.dont_write_bytecode = True  # nothing but the results is written
import operators
from builds import HEADER_TESTS, REFUSED, STATIC_SUITES, SUITES, SUITES_OF, CompileError, Preset
from together import MOST, Together

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
GATES = [
    ("readers and writers of records", 100.0, [
        "mqPostCommon/params/stream/*", "mqPostCommon/params/graph.*",
        "mqPostCommon/params/equation_plot.*"]),
    ("code that owns objects", 100.0, [
        "mqPostCommon/display/*", "mqPostCommon/platform/owned.h", "mqPostCommon/platform/arrays.h",
        "mqPostCommon/platform/lists.h", "mqPostCommon/platform/text_store.h",
        "mqPostCommon/materials/material.*"]),
    ("core", 95.0, ["*"]),
]
# Tried without a fault before any other of their wing: whatever is noticed then is a mistake of this script.
FAULTLESS = {
    "catalogue": "mqPostCommon/catalogue/texts.cpp",
    "params": "mqPostCommon/params/stream/strings.cpp",
    "lists": "mqPostCommon/lists/list.cpp",
    "materials": "mqPostCommon/materials/material.cpp",
    "display": "mqPostCommon/display/assembly_list.cpp",
    "platform": "mqPostCommon/platform/gfx_core.h",
}
KILLED = ("test", "compiler", "time", "sanitizer")


def sources():
    names = subprocess.run(["git", "ls-files", "mqPostCommon"], cwd=ROOT, check=True, text=True,
                           stdout=subprocess.PIPE).stdout.split()
    return [name for name in names if name.endswith((".h", ".cpp"))]


def changed_lines(revision):
    """The lines of each file that differ from a revision."""
    diff = subprocess.run(["git", "diff", "-U0", revision, "--", "mqPostCommon"], cwd=ROOT,
                          check=True, text=True, stdout=subprocess.PIPE).stdout
    lines, path = set(), None
    for line in diff.splitlines():
        if line.startswith("+++ "):
            path = line[6:]
        elif line.startswith("@@"):
            first, _, count = line.split("+")[1].split(" ")[0].partition(",")
            lines.update((path, int(first) + step) for step in range(int(count or 1)))
    return lines


def sample(mutants, count, seed):
    """As many of each file as possible, so that long files do not drown the rest."""
    chosen, files = [], {}
    for mutant in mutants:
        files.setdefault(mutant.path, []).append(mutant)
    for path in files:
        random.Random(f"{seed} {path}").shuffle(files[path])
    while len(chosen) < count and files:
        for path in sorted(files, key=lambda path: hashlib.sha1(f"{seed}{path}{len(chosen)}".encode())
                           .digest()):
            if len(chosen) < count:
                chosen.append(files[path].pop())
            if not files[path]:
                del files[path]
    return chosen


class Equivalents:
    """The faults that change nothing, one a line: file, text of the line, change, reason. Of lines
    with the same text each is named by its place among them: "break; [2 of 3]"."""

    def __init__(self, texts):
        self.texts = {path: self._told_apart(text.splitlines()) for path, text in texts.items()}
        with open(HERE / "equivalents.tsv", newline="", encoding="utf-8") as file:
            rows = [row for row in csv.reader(file, delimiter="\t", quoting=csv.QUOTE_NONE)
                    if row and not row[0].startswith("#")]
        self.reasons = {tuple(row[:3]): row[3] for row in rows}

    @staticmethod
    def _told_apart(lines):
        lines = [line.strip() for line in lines]
        counts, seen = Counter(lines), Counter()
        for place, line in enumerate(lines):
            seen[line] += 1
            if counts[line] > 1:
                lines[place] = f"{line} [{seen[line]} of {counts[line]}]"
        return lines

    def key(self, mutant):
        return mutant.path, self.texts[mutant.path][mutant.line - 1], mutant.change

    def knows(self, mutant):
        return self.key(mutant) in self.reasons

    def unused(self, mutants):
        return set(self.reasons) - {self.key(mutant) for mutant in mutants}


class Trial:
    """Tries mutants in a folder of its own, one after another or many at once."""

    def __init__(self, folder, presets, names, texts):
        self.folder, self.presets, self.names, self.texts = folder, presets, names, texts

    def verdict(self, mutant):
        """What became of a mutant, and who noticed it."""
        try:
            for name in self.names:
                self._require_silence(self.presets(name), mutant.path.split("/")[1])
                self._change(mutant.path, mutant.apply(self.texts[mutant.path]))
                noticed = self._notice(self.presets(name), mutant.path)
                if noticed:
                    return noticed
        except CompileError as error:
            return verdict_of(str(error))
        return "survived", ""

    def together(self, path, mutants):
        """Each of the mutants of a file that is noticed, and who noticed it."""
        preset, group = self.presets("dev"), Together(path, self.texts[path], mutants)
        self._change(path, "")
        changed, library = self.folder / "changed" / path, None
        for stage in stages(preset, path):
            objects = group.compile(changed, lambda: preset.compile(stage.targets, self.folder))
            for mutant in list(group.refused):
                yield mutant, verdict_of(group.refused.pop(mutant))
            if objects is None:
                return
            programs, library = self._link(preset, stage, objects, library)
            marks = self.folder / "reached"
            marks.write_text("")
            noticed = self._suites(preset, stage.suites, programs, library, marks=marks)
            if noticed:
                raise SystemExit(f"{path} without a fault is noticed by {noticed[1]}")
            for fault in group.reached(set(map(int, marks.read_text().split()))):
                noticed = self._suites(preset, stage.suites, programs, library, fault)
                if noticed:
                    yield group.faults.pop(fault), noticed

    def _require_silence(self, preset, wing):
        """A file without a fault is not noticed: what is noticed later is the fault."""
        path = FAULTLESS[wing]
        with preset.timing:
            if path not in preset.silent:
                self._change(path, self.texts[path])
                noticed = self._notice(preset, path)
                if noticed:
                    raise SystemExit(f"{path} without a fault is noticed by {noticed[1]} ({preset.name})")
                preset.silent.add(path)

    def _change(self, path, text):
        shutil.rmtree(self.folder, ignore_errors=True)
        changed = self.folder / "changed" / path
        changed.parent.mkdir(parents=True)
        changed.write_text(text, encoding="utf-8")

    def _notice(self, preset, path):
        library = None
        for stage in stages(preset, path):
            objects = preset.compile(stage.targets, self.folder)
            programs, library = self._link(preset, stage, objects, library)
            noticed = self._suites(preset, stage.suites, programs, library)
            if noticed:
                return noticed
        return None

    def _link(self, preset, stage, objects, library):
        """The changed test program, if it is one, and the changed library."""
        if not stage.program:
            return {}, preset.link_library(objects, self.folder)
        program = preset.link_tests(stage.program, objects, self.folder, stage.alone)
        return {stage.program: program}, library

    @staticmethod
    def _suites(preset, suites, programs, library, fault=0, marks=None):
        for slow in (False, True):
            for suite in suites:
                noticed = preset.test(suite, programs.get(suite), library, slow, fault, marks)
                if noticed:
                    return noticed
        return None


def verdict_of(words):
    """What the words of the compiler make of a mutant."""
    first = next((line for line in words.splitlines() if "error:" in line), words[:200])
    return ("compiler" if REFUSED.search(words) else "invalid"), first.strip()


@dataclass(frozen=True)
class Stage:
    targets: list  # the objects that are made of the changed file
    program: str   # what they are linked to: a test program, or the library if empty
    suites: list   # what is run then
    alone: bool    # the program is made of these objects only


def stages(preset, path):
    """The steps in which a changed file is tried, the shortest first."""
    wing, stem = path.split("/")[1], Path(path).stem
    sanitized = preset.name == "asan"
    suite = next(name for name, folder in SUITES.items() if folder == wing)
    source = f"tests/{wing}/{HEADER_TESTS.get(stem, stem)}_test.cpp"
    own = [target for target in preset.test_objects(suite, path)
           if preset.commands[target][0] == source]
    own += preset.host_objects(path) if own else []
    found = [Stage(own, suite, [suite], True)]
    if wing != "platform" or not sanitized:
        suites = SUITES_OF[wing][:1] if sanitized else SUITES_OF[wing]
        found.append(Stage(preset.library_objects(path), "", suites, False))
    if path.endswith(".h") and not sanitized:  # compiled into the tests as well
        found.append(Stage(preset.test_objects(suite, path), suite, [suite], False))
    for suite in STATIC_SUITES if not sanitized else []:
        if SUITES[suite] in (wing, "faults"):
            targets = preset.library_objects(path) + preset.test_objects(suite, path)
            found.append(Stage(targets, suite, [suite], False))
    return [stage for stage in found if stage.targets]


class Journal:
    """Verdicts of earlier runs: what was killed once need not be killed again."""

    def __init__(self, path, texts):
        self.path, self.texts, self.known = path, texts, {}
        if path and path.exists():
            for line in path.read_text().splitlines():
                entry = json.loads(line)
                self.known[entry["id"]] = (entry["verdict"], entry["who"])

    def id(self, mutant):
        """The same as long as nothing but comments and line ends of the file change."""
        tokens = operators.tokenize(mutant.apply(self.texts[mutant.path]))
        words = " ".join([mutant.path, *(token.text for token in tokens)])
        return hashlib.sha1(words.encode()).hexdigest()

    def find(self, mutant):
        verdict = self.known.get(self.id(mutant)) if self.known else None
        return verdict if verdict and verdict[0] in (*KILLED, "invalid") else None

    def add(self, mutant, verdict, who):
        self.known[self.id(mutant)] = (verdict, who)
        if self.path:
            with open(self.path, "a", encoding="utf-8") as file:
                file.write(json.dumps({"id": self.id(mutant), "mutant": mutant.key,
                                       "verdict": verdict, "who": who}) + "\n")


def groups(mutants):
    """Those of a file in groups that are worth being compiled at once."""
    files = {}
    for mutant in mutants:
        files.setdefault(mutant.path, []).append(mutant)
    cut = [found[first : first + MOST] for found in files.values()
           for first in range(0, len(found), MOST)]
    return [group for group in cut if len(group) > 3]


def try_all(mutants, options, texts, equivalents, scratch):
    """The verdict of each mutant and whether an earlier run had it, in their order."""
    lock, presets, local, workers = threading.Lock(), {}, threading.local(), []
    journal = Journal(options.journal, texts)
    names = ["dev"] if options.no_sanitizers else ["dev", "asan"]
    tried = Counter()

    def preset(name):
        with lock:
            if name not in presets:
                slow = presets["dev"].slow if name != "dev" else None
                presets[name] = Preset(ROOT, name, scratch, options.jobs, slow)
                if name == "dev":
                    presets[name].precompile()
            return presets[name]

    def trial():
        if not hasattr(local, "trial"):
            with lock:
                workers.append(scratch / f"worker{len(workers)}")
                local.trial = Trial(workers[-1], preset, names, texts)
        return local.trial

    def note(mutant, verdict, who):
        with lock:
            tried[verdict] += 1
            journal.add(mutant, verdict, who)
            if verdict in ("survived", "wrong") or options.verbose:
                show(mutant, verdict, who, texts)

    def is_said_to_change_nothing(mutant):
        return equivalents.knows(mutant) and not options.try_equivalents

    def judge_together(group):
        for mutant, (verdict, who) in trial().together(group[0].path, group):
            note(mutant, "wrong" if equivalents.knows(mutant) else verdict, who)

    def judge(mutant):
        if is_said_to_change_nothing(mutant):
            return "equivalent", ""
        known = journal.find(mutant)
        if known:
            return known
        verdict, who = trial().verdict(mutant)
        if equivalents.knows(mutant):
            verdict = "equivalent" if verdict == "survived" else "wrong"
        note(mutant, verdict, who)
        return verdict, who

    preset("dev")  # configured and built before the clock starts
    start = time.monotonic()
    earlier = [bool(journal.find(mutant)) for mutant in mutants]
    untried = [mutant for mutant, is_known in zip(mutants, earlier)
               if not is_known and not is_said_to_change_nothing(mutant)]
    with ThreadPoolExecutor(options.jobs) as pool:
        list(pool.map(judge_together, groups(untried)))
        verdicts = list(pool.map(judge, mutants))
    seconds = time.monotonic() - start
    count = sum(tried.values())
    if count:
        print(f"{count} faults tried in {seconds:.0f} s: {seconds * options.jobs / count:.2f} s each")
    return verdicts, earlier, seconds


def show(mutant, verdict, who, texts):
    print(f"{mutant.path}:{mutant.line}: {verdict}{' by ' if who else ''}{who}: {mutant.change}",
          flush=True)
    if verdict == "survived":
        old = texts[mutant.path].splitlines()
        new = mutant.apply(texts[mutant.path]).splitlines()
        for line in list(difflib.unified_diff(old, new, lineterm="", n=0))[3:]:
            print(f"    {line}", flush=True)


def judge_gates(mutants, verdicts, earlier, seconds):
    """The rows of the result table, and whether every gate holds."""
    rows, holds = [], all(verdict != "wrong" for verdict, _ in verdicts)
    for name, least, patterns in GATES:
        held = [place for place, mutant in enumerate(mutants)
                if any(fnmatch(mutant.path, pattern) for pattern in patterns)]
        counted = Counter(verdicts[place][0] for place in held)
        known = sum(earlier[place] for place in held)
        killed = sum(counted[verdict] for verdict in KILLED)
        total = killed + counted["survived"]
        score = 100.0 * killed / total if total else 100.0
        holds = holds and score >= least
        rows.append({
            "check": f"faults planted into the {name} are noticed, {least:.0f} of 100 at least",
            "cases": total,
            "result": f"{killed} of {total} ({score:.1f} %): {counted['test']} by tests, "
                      f"{counted['compiler']} by the compiler, {counted['time']} by the time limit, "
                      f"{counted['sanitizer']} by sanitizers; {counted['survived']} survived, "
                      f"{counted['equivalent']} change nothing, {counted['invalid']} are no C++"
                      + (f"; {known} of them in earlier runs" if known else ""),
            "seconds": round(seconds, 1)})
        print(f"{name}: {rows[-1]['result']}")
    return rows, holds


def parse():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--all", action="store_true", help="every fault")
    parser.add_argument("--sample", type=int, metavar="N", help="N faults, of every file about as many")
    parser.add_argument("--changed-since", metavar="REV", help="faults of the lines changed since REV")
    parser.add_argument("--seed", default="1", help="of the sample")
    parser.add_argument("--files", nargs="+", default=["*"], metavar="GLOB",
                        help="only in these files, e.g. 'mqPostCommon/params/*'")
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--results", type=Path, default=ROOT / "build/proof", metavar="DIR")
    parser.add_argument("--journal", type=Path, metavar="FILE",
                        help="keep verdicts here; what was killed before is not tried again")
    parser.add_argument("--try-equivalents", action="store_true",
                        help="try those as well that are said to change nothing; wrong: noticed")
    parser.add_argument("--no-sanitizers", action="store_true",
                        help="do not try again with sanitizers what survived")
    parser.add_argument("--list", action="store_true", help="only print the faults")
    parser.add_argument("--verbose", action="store_true", help="print every verdict")
    options = parser.parse_args()
    if options.all == bool(options.sample or options.changed_since):
        parser.error("say either --all or which faults: --sample, --changed-since")
    return options


def choose(mutants, options):
    """Those that the command line asks for; of changed lines and files first."""
    lines = changed_lines(options.changed_since) if options.changed_since else set()
    changed = [mutant for mutant in mutants if (mutant.path, mutant.line) in lines]
    if not options.sample:
        return changed if options.changed_since else mutants
    files = {path for path, _ in lines}
    beside = [mutant for mutant in mutants
              if mutant.path in files and (mutant.path, mutant.line) not in lines]
    others = [mutant for mutant in mutants if mutant.path not in files]
    chosen = sample(changed, options.sample, options.seed)
    chosen += sample(beside, options.sample - len(chosen), options.seed)
    if options.changed_since:
        print(f"{len(chosen)} of {len(changed) + len(beside)} faults of changed files")
    return chosen + sample(others, options.sample, options.seed)


def require_files_of_gates(paths):
    """A gate without a file would hold for ever."""
    for name, _, patterns in GATES:
        for pattern in patterns:
            if not any(fnmatch(path, pattern) for path in paths):
                sys.exit(f"mutate.py: no file of the {name} is called {pattern}")


def main():
    options = parse()
    texts = {path: (ROOT / path).read_text(encoding="utf-8") for path in sources()}
    require_files_of_gates(texts)
    every = [mutant for path in texts for mutant in operators.mutants_of(path, texts[path])]
    equivalents = Equivalents(texts)
    unused = equivalents.unused(every)
    for path, line, change in sorted(unused):
        print(f"equivalents.tsv: no such fault: {path}: {line}: {change}")

    mutants = [mutant for mutant in every if any(fnmatch(mutant.path, glob) for glob in options.files)]
    mutants = choose(mutants, options)
    print(f"{len(mutants)} of {len(every)} faults")
    if options.list:
        print("\n".join(mutant.key for mutant in mutants))
        return 0

    (ROOT / "build").mkdir(exist_ok=True)
    with tempfile.TemporaryDirectory(prefix="mutants-", dir=ROOT / "build") as scratch:
        verdicts, earlier, seconds = try_all(mutants, options, texts, equivalents, Path(scratch))
    rows, holds = judge_gates(mutants, verdicts, earlier, seconds)
    options.results.mkdir(parents=True, exist_ok=True)
    (options.results / "mutants.json").write_text(json.dumps(rows, indent=2) + "\n")
    return 0 if holds and not unused else 1


if __name__ == "__main__":
    sys.exit(main())
