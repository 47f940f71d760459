#!/usr/bin/python3
"""Proves that no cell of a table of the library can change without a test that fails.

Takes the constant tables of the library with every cell of them (tables.py) and changes one cell
at a time: plus one, minus one, zero, the neighbour's value, and rows exchanged with the next one;
of texts the units. The unchanged test programs run with the changed cell in memory, where
table_mutants.cpp puts it. A mutant that survives every suite is reported with its cell and what
that means.

So that many thousands of mutants need minutes and not days, the library is built a second time
(build/tables) such that it tells its reads, and a mutant lives from the first read of what it
changes on. The tables of that library are compared with those of the one that is shipped
(build/dev), byte by byte, and what only the latter has is mutated there.

What no answer of the library tells from the original is no gap of the tests. fingerprint.cpp asks
the library everything that its tables decide; a mutant is equivalent when all of its answers are
the same. Each one is listed in equivalents.json with the reason and asked again in every run, which
fails when the list and what came out differ: an equivalent that is not listed, or a listed one that
is none, because an answer or a test tells it. Those that are never read are then changed all
together in the library that is shipped, and its answers must be the same.

Needs the Debian packages python3-pyelftools, binutils and clang-19 besides those that build the
tests, and x86-64 Linux.
"""

import argparse
import collections
import concurrent.futures
import itertools
import json
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

import tables
from equivalents import Equivalents

ROOT = pathlib.Path(__file__).resolve().parents[2]
BIN = ROOT / "build/dev/bin"
TOLD = ROOT / "build/tables"  # where the library tells its reads
LIBRARY = "libmqPostCommon.so.0"
STUDIES, RESULTS = 12, 73  # of the grid that an index is

SUITES = ("mqCatalogueTests", "mqListsTests", "mqMaterialsTests", "mqParamsTests",
          "mqDisplayTests", "mqPlatformTests", "mqInterpositionTests", "mqReferenceTests")
# A process with several threads cannot be divided in two.
LEFT_OUT_TESTS = "-NumberAnswers.StayConsistentWhileFourThreadsAskAndTheFlagChanges"

# The tests that are likeliest to fail, tried before the suites. For speed alone: one that is
# missing here, or is named otherwise by now, costs time and changes no result.
FIRST_TRIES = {
    "kCountIndex": """
        mqCatalogueTests/ComponentTotal.IsAsListedForEveryPairOfCodesAndEveryMesh
        mqCatalogueTests/ComponentTotal.IsAsListedForEveryOptionValueAndItsNeighbours""",
    "kDefaultIndex": "mqCatalogueTests/ComponentDefault.IsAsListedForEveryCodeAndOption",
    "kDataTypeIndex|kMemberIndex|kNoMembers":
        "mqCatalogueTests/ComponentDataType.IsAsListedForEveryCode",
    "kBoundIndex": "mqCatalogueTests/EnvelopeBounds.AreAsListedForEveryCode",
    "kReferenceIndex": """
        mqCatalogueTests/ReferenceAvailability.IsAsListedForEveryCode
        mqCatalogueTests/ReferenceAvailability.IsAsListedForEveryMeshKind""",
    "kStudies.*": "mqCatalogueTests/AvailableStudies.* mqCatalogueTests/FirstAvailableStudy.*",
    "kDirectionIndex|kPatterns": "mqCatalogueTests/VectorDirection.IsAsListedForEveryCode",
    "kFullIndex": """
        mqCatalogueTests/FullNamesTest.EveryCodeWithoutOptions
        mqCatalogueTests/FullNamesTest.EveryOptionOfEveryList
        mqInterpositionTests/*""",
    "kBarIndex": """
        mqCatalogueTests/BarNamesTest.EveryCodeWithoutOptions
        mqCatalogueTests/BarNamesTest.EveryOptionOfEveryList
        mqCatalogueTests/BarNamesTest.TheNamesOfAFatigueStudyDependOnTheVariantAlone*
        mqInterpositionTests/*""",
    "kBriefIndex": """
        mqCatalogueTests/BriefNamesTest.EveryCode
        mqCatalogueTests/BriefNamesTest.EveryFlagAndThirdArgument
        mqInterpositionTests/*""",
    "kTitleIndex": """
        mqCatalogueTests/ReportGraphTitlesTest.EveryStudyResultAndOption
        mqInterpositionTests/*""",
    "kResultNameIndex": "mqCatalogueTests/ResultNamesTest.* mqInterpositionTests/*",
    "kCandidateIndex": """
        mqCatalogueTests/ComponentByNameTest.TheFirstCandidateOfEveryCodeThatHasAList
        mqCatalogueTests/ComponentByNameTest.EveryTextOfTheTableInEveryStudyAndResult
        mqInterpositionTests/*
        mqCatalogueTests/ComponentByNameTest.TheFirstOfEqualTextsDecides""",
    "kResultCandidates": "mqCatalogueTests/ResultTypeByNameTest.* mqInterpositionTests/*",
    "kQuantityIndex": "mqCatalogueTests/UnitType.IsAsListedForEveryCodeOptionAndFlag",
    "kUnitChoices|kUnitNames": """
        mqCatalogueTests/UnitTotal.*
        mqCatalogueTests/UnitName.*
        mqCatalogueTests/DefaultUnit.IsAsListedForEveryQuantity""",
    "g_UnitLists": "mqCatalogueTests/UnitLists.*",
    "kSets|kFatigueSetNames": "mqInterpositionTests/* mqListsTests/*",
    "g_strMat.*|kSorted": "mqMaterialsTests/PropertyTables.*",
    "kSIG.*|kStrengths": "mqMaterialsTests/Material.*",
    "kFold.*": "mqPlatformTests/CaseFolding.*",
    'text "a component index.*': "mqDisplayTests/AssemblyList.AnIndexOutsideIsCalledOne",
    'kOfferedNames|text ""Variable.*|text "diu.*':
        "mqParamsTests/EquationPlot.*:EquationEditorList.*",
    'text "(Frequency|Graph|Damage|Response).*':
        "mqParamsTests/Graph.TheKindComesFromTheSensorAndTheFlagAndTheFolderFromTheResultType",
    'text "Variable"': "mqParamsTests/EquationVariable.*",
    'text "[A-Z ].*|text "."': """
        mqParamsTests/*.TheListOfFieldsTellsTheLayout
        mqParamsTests/GraphNames.*:GraphYTitle.*:GraphPlotName.*
        mqParamsTests/EquationPlot.*:EquationEditorList.*""",
    "kBeamStressNames": """
        mqParamsTests/GraphNames.*:GraphYTitle.*:GraphPlotName.*
        mqInterpositionTests/*""",
    "text .*": "mqParamsTests/*.TheListOfFieldsTellsTheLayout",
}

SHOWN_LINES = 200
EXCHANGED = "exchanged with the next"
Mutant = collections.namedtuple("Mutant", "id table offset bytes member rows change text")


# -------------------------------------------------------------------------------------------------
# Programs

# Each read is a call, also of what is read as a block. Functions are neither inlined nor made for
# one caller alone, or the code would have the cells of small tables among its own numbers.
TELLING = ("-fsanitize=kernel-address -mllvm -asan-instrumentation-with-call-threshold=0 "
           "-mllvm -asan-globals=0 -mllvm -asan-stack=0 -mllvm -asan-opt=0 "
           "-mllvm -asan-kernel-mem-intrinsic-prefix=1 -fno-inline -mllvm -funcspec-max-iters=0 "
           "-fno-builtin-memcmp -fno-builtin-bcmp -Wno-unused-command-line-argument")
# Told by table_mutants.cpp, but for qsort, which sorts no table, and strcmp, with which shared
# pointers compare the names of types.
KNOWN_READERS = {"memcmp", "strlen", "qsort", "strcmp"}


def build(jobs):
    """The suites and the programs of this folder, and the library that tells its reads."""
    for command in (
            ["cmake", "--preset", "dev"],
            ["cmake", "--build", "--preset", "dev", "--", f"-j{jobs}", *SUITES, "mqTranslations",
             "mqTableMutants", "mqTableFingerprint"],
            ["cmake", "--preset", "dev", "-B", TOLD, "-DCMAKE_CXX_COMPILER=clang++-19",
             "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O1 -g -D_GLIBCXX_ASSERTIONS",
             f"-DCMAKE_CXX_FLAGS={TELLING}",
             "-DCMAKE_EXE_LINKER_FLAGS=-Wl,--unresolved-symbols=ignore-all"],
            ["cmake", "--build", TOLD, "--", f"-j{jobs}", "mqPostCommon", "mqTableFingerprint"]):
        done = subprocess.run(command, cwd=ROOT, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True)
        if done.returncode != 0:
            raise SystemExit(done.stdout)
    for program in (LIBRARY, "mqTableFingerprint"):
        names = subprocess.run(["nm", "-Du", TOLD / "bin" / program], capture_output=True,
                               text=True, check=True).stdout
        readers = set(re.findall(r"U ((?:w?mem|str|wcs|b|q)\w+)@GLIBC", names)) - KNOWN_READERS
        if readers:
            raise SystemExit(f"{program} calls what reads and does not tell it: {readers}")


def tables_of_both():
    """The tables of the shipped library, and the addresses in the one that tells its reads."""
    with open(TOLD / "bin" / LIBRARY, "rb") as file:
        variables = tables.variables_of(tables.ELFFile(file))
        telling = tables.Library(TOLD / "bin" / LIBRARY, variables)
        shipped = tables.Library(BIN / LIBRARY, variables)
    contents = {table.name: table.data for table in telling.tables}
    for table in shipped.tables:
        if not is_narrow(table) and contents.get(table.name) != table.data:
            raise SystemExit(f"{table.name} differs between the two libraries")
    for why, size in shipped.left_out.items():
        print(f"left out: {size} bytes, {why}")
    return shipped.tables, {table.name: table.address for table in telling.tables}


def is_narrow(table):
    """A text that the library hands to the standard library, which tells no reads."""
    return not table.symbol and table.leaves[0].width == 1


class Runner:
    """Runs a program under mutants: one start, and a divided process for each."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.tables, self.told_addresses = tables_of_both()
        self.numbers = itertools.count()

    def write_work(self, path, program, mutants, folder):
        own = tables.addresses_in(program)
        with open(path, "w", encoding="ascii") as file:
            for number in sorted({mutant.table for mutant in mutants}):
                table = self.tables[number]
                address = table.address if folder == BIN else self.told_addresses[table.name]
                file.write(f"copy {number:x} {LIBRARY} {address:x}\n")
                # A table of a header, or one that a program names, is in the program as well.
                if (table.symbol, len(table.data)) in own:
                    file.write(f"copy {number:x} {program.name} {own[table.symbol, len(table.data)]:x}\n")
            for mutant in mutants:
                file.write(f"mutant {mutant.id:x} {mutant.table:x} {mutant.offset:x} "
                           f"{mutant.bytes.hex()}\n")

    def is_told(self, table, program):
        """Whether each read of a table is told while this program runs; not when tests read it."""
        return not (is_narrow(table) or table.symbol.startswith("g_") or
                    (table.symbol, len(table.data)) in tables.addresses_in(BIN / program))

    def run(self, program, mutants, mode, folder=TOLD / "bin", test_filter=None):
        """What the program says, and the outcome of each mutant that was run, by its id."""
        place = self.folder / str(next(self.numbers))
        work, outcomes, log = (place.with_suffix(end) for end in (".work", ".outcomes", ".log"))
        is_suite = test_filter is not None
        command = [(BIN if is_suite else folder) / program]
        self.write_work(work, command[0], mutants, folder)
        environment = dict(os.environ, LD_PRELOAD=str(BIN / "libmqTableMutants.so"), MQ_MODE=mode,
                           MQ_MUTANTS=str(work), MQ_OUTCOMES=str(outcomes),
                           LD_LIBRARY_PATH=str(folder))
        if is_suite:
            command += ["--gtest_break_on_failure", f"--gtest_filter={test_filter}"]
        outcomes.touch()
        with open(log, "w", encoding="utf-8") as file:
            done = subprocess.run(command, env=environment, stdout=file, stderr=subprocess.STDOUT,
                                  cwd=self.folder)
        said = log.read_text(encoding="utf-8", errors="replace")
        if done.returncode != 0:
            raise SystemExit(f"{program} {test_filter or mode} fails without a mutant:\n{said[-2000:]}")
        statuses = (line.split() for line in outcomes.read_text(encoding="ascii").splitlines())
        found = {int(number): int(status) for number, status in statuses}
        for path in (work, outcomes, log):
            path.unlink()
        return said, found

    def run_suite(self, program, test_filter, mutants):
        """The outcomes; a mutant of what the tests do not read has none."""
        found = {}
        for is_told, mode, folder in ((True, "read", TOLD / "bin"), (False, "start", BIN)):
            group = [mutant for mutant in mutants
                     if self.is_told(self.tables[mutant.table], program) == is_told]
            if group:
                found.update(self.run(program, group, mode, folder,
                                      f"{test_filter}:{LEFT_OUT_TESTS}")[1])
        return {number: outcome_of(status) for number, status in found.items()}


def outcome_of(status):
    if status == 0:
        return "survived"
    if os.WIFSIGNALED(status):
        number = os.WTERMSIG(status)
        if number == signal.SIGTRAP:
            return "failed"
        return "endless" if number in (signal.SIGXCPU, signal.SIGKILL) else "crashed"
    return "failed"


# -------------------------------------------------------------------------------------------------
# Mutants


def changes_of(data, leaf):
    """What a cell is changed to: each value once, under the first of its names."""
    width = leaf.width
    value = int.from_bytes(data[leaf.offset:leaf.offset + width], "little")
    limit = 1 << (8 * width)
    values = {"+1": (value + 1) % limit, "-1": (value - 1) % limit, "zero": 0}
    if leaf.neighbour:
        place = leaf.offset + leaf.neighbour
        values["neighbour's"] = int.from_bytes(data[place:place + width], "little")
    seen = {value}
    for change, new in values.items():
        if new not in seen:
            seen.add(new)
            yield change, new.to_bytes(width, "little"), f"{value} -> {new}"


def trimmed(data, offset, new):
    """The bytes that differ, from the first to the last."""
    differing = [place for place, byte in enumerate(new) if data[offset + place] != byte]
    first, last = differing[0], differing[-1]
    return offset + first, new[first:last + 1]


def member_and_rows(path):
    rows = tuple(int(index) for index in re.findall(r"\[(\d+)\]", path))
    return re.sub(r"\[\d+\]", "[]", path), rows


def mutants_of(all_tables):
    numbers = itertools.count()
    for number, table in enumerate(all_tables):
        for leaf in table.leaves:
            for change, new, text in changes_of(table.data, leaf):
                yield Mutant(next(numbers), number, *trimmed(table.data, leaf.offset, new),
                             *member_and_rows(leaf.path), change, text)
        for swap in table.swaps:
            row, following = (table.data[swap.offset + step * swap.width:][:swap.width]
                              for step in (0, 1))
            if row != following:
                yield Mutant(next(numbers), number,
                             *trimmed(table.data, swap.offset, following + row),
                             *member_and_rows(swap.path), EXCHANGED, "")


def sample_of(mutants, count, seed):
    """So many mutants of each table."""
    chooser = random.Random(seed)
    by_table = collections.defaultdict(list)
    for mutant in mutants:
        by_table[mutant.table].append(mutant)
    return [mutant for some in by_table.values()
            for mutant in sorted(chooser.sample(some, min(count, len(some))))]


def place_of(table, mutant):
    """What a cell stands for, so that a person finds the question that no test asks."""
    path = mutant.member
    for row in mutant.rows:
        path = path.replace("[]", f"[{row}]", 1)
    meaning = ""
    if mutant.rows:
        row = mutant.rows[0]
        if ".cells" in path or re.match(r"\[\d+\]\.(conditions|values)", path):
            meaning = f" (study {row // RESULTS}, result {row % RESULTS})"
        elif path.startswith(".values[") and table.name.endswith("Index"):
            meaning = f" ({users_of(table, row)})"
        elif table.name.startswith(("g_", "text")):
            meaning = f" ({text_of(table, mutant.offset)!r})"
    return f"{table.name}{path}{meaning}: {mutant.change} {mutant.text}".rstrip()


def users_of(table, place):
    """Which study, result and component a value of an index belongs to."""
    users = []
    for cell in range(STUDIES * RESULTS):
        for offset, kind in ((0, ""), (4, " under its condition")):
            first, count = (int.from_bytes(table.data[cell * 10 + offset + step:][:2], "little")
                            for step in (0, 2))
            if first <= place <= first + count:
                component = place - first if place < first + count else "beyond the list"
                users.append(f"study {cell // RESULTS}, result {cell % RESULTS}, "
                             f"component {component}{kind}")
    more = f" and {len(users) - 1} more" if len(users) > 1 else ""
    return users[0] + more if users else "of no list"


def text_of(table, offset):
    """The text around a byte."""
    if table.symbol == "":
        return table.name
    begin = offset - offset % 2
    while begin > 0 and table.data[begin - 2:begin] != b"\0\0":
        begin -= 2
    return table.data[begin:].decode("utf-16-le").split("\0")[0]


# -------------------------------------------------------------------------------------------------
# The run


def in_parts(mutants, count):
    """By table, each part with about as many mutants."""
    parts = [[] for _ in range(count)]
    for _, group in itertools.groupby(mutants, key=lambda mutant: mutant.table):
        min(parts, key=len).extend(group)
    return [part for part in parts if part]


def in_groups(mutants, size):
    """Of one table each, none too long."""
    for _, group in itertools.groupby(mutants, key=lambda mutant: mutant.table):
        group = list(group)
        for start in range(0, len(group), size):
            yield group[start:start + size]


class Run:
    def __init__(self, runner, jobs):
        self.runner = runner
        self.jobs = jobs
        self.outcomes = {}

    def in_turn(self, work, items):
        with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
            yield from pool.map(work, items)

    def find_equivalents(self, mutants):
        """The mutants under which every answer is the same, and those of them never read."""
        def ask(part):
            return self.runner.run("mqTableFingerprint", part, "pieces")[1]
        told = [mutant for mutant in mutants if not is_narrow(self.runner.tables[mutant.table])]
        statuses = {}
        for found in self.in_turn(ask, in_parts(told, self.jobs)):
            statuses.update(found)
        equivalents = [mutant for mutant in told if statuses.get(mutant.id, 0) == 0]
        return equivalents, [mutant for mutant in equivalents if mutant.id not in statuses]

    def changed_together(self, unread):
        """The changes that, made all together in the shipped library, change an answer."""
        by_change = collections.defaultdict(list)
        for mutant in unread:
            by_change[mutant.change].append(mutant)
        by_change.pop(EXCHANGED, None)  # the cells of these are in the other ones
        plain = subprocess.run([BIN / "mqTableFingerprint"], capture_output=True, text=True,
                               check=True).stdout
        for change, mutants in by_change.items():
            if self.runner.run("mqTableFingerprint", mutants, "all", BIN)[0] != plain:
                yield change

    def try_first(self, mutants):
        """The tests that are likeliest to fail."""
        def attempt(group):
            name = self.runner.tables[group[0].table].name
            tries = next((value for pattern, value in FIRST_TRIES.items()
                          if re.fullmatch(pattern, name)), "")
            outcomes = {}
            for one in tries.split():
                group = [mutant for mutant in group
                         if outcomes.get(mutant.id, "survived") == "survived"]
                if group:
                    outcomes.update(self.runner.run_suite(*one.split("/"), group))
            return outcomes
        for outcomes in self.in_turn(attempt, in_groups(mutants, 4000)):
            self.outcomes.update(outcomes)

    def try_suites(self, mutants):
        """Every suite, until one fails."""
        for suite in SUITES:
            left = [mutant for mutant in mutants if self.is_alive(mutant)]
            parts = [left[start::self.jobs] for start in range(self.jobs)]
            for outcomes in self.in_turn(
                    lambda part, suite=suite: self.runner.run_suite(suite, "*", part),
                    [part for part in parts if part]):
                self.outcomes.update(outcomes)

    def is_alive(self, mutant):
        return self.outcomes.get(mutant.id, "survived") == "survived"


def report(all_tables, mutants, equivalent_ids, outcomes):
    """A line a table; gives the survivors."""
    columns = ("mutants", "failed", "crashed", "endless", "equivalent", "survived")
    counts = collections.defaultdict(collections.Counter)
    survivors = []
    for mutant in mutants:
        outcome = ("equivalent" if mutant.id in equivalent_ids
                   else outcomes.get(mutant.id, "survived"))
        name = all_tables[mutant.table].name
        if name.startswith("text "):
            name = "texts without a name"
        counts[name].update(("mutants", outcome))
        if outcome == "survived":
            survivors.append(mutant)
    width = max(map(len, counts))
    print(f"{'table':{width}}" + "".join(f"{column:>12}" for column in columns))
    total = collections.Counter()
    for name, row in counts.items():
        print(f"{name:{width}}" + "".join(f"{row[column]:>12}" for column in columns))
        total.update(row)
    print(f"{'all':{width}}" + "".join(f"{total[column]:>12}" for column in columns))
    return survivors


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--sample", type=int, default=20, metavar="N",
                        help="N mutants of each table (default 20); with --all those of the "
                             "equivalents that are tried against the tests too")
    parser.add_argument("--all", action="store_true", help="every mutant")
    parser.add_argument("--seed", type=int, default=1, help="of the sample (default 1)")
    parser.add_argument("--tables", default=".*", metavar="REGEX", help="these tables alone")
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--results", type=pathlib.Path, default=ROOT / "build/proof",
                        help="folder of tables.json and of the list of survivors")
    return parser.parse_args()


def chosen_of(arguments, runner, every, listed):
    """The mutants to try, and with them those that are listed as equivalent, to be asked again."""
    chosen = [mutant for mutant in every
              if re.fullmatch(arguments.tables, runner.tables[mutant.table].name)]
    if arguments.all:
        return chosen, chosen
    sample = sample_of(chosen, arguments.sample, arguments.seed)
    sample_ids = {mutant.id for mutant in sample}
    return sample, [mutant for mutant in chosen if mutant.id in sample_ids or listed.has(mutant)]


def main():
    arguments = parse_arguments()
    build(arguments.jobs)
    began = time.monotonic()
    folder = tempfile.mkdtemp(prefix="tables-")
    runner = Runner(folder)
    every = list(mutants_of(runner.tables))
    listed = Equivalents(runner.tables)
    mutants, asked = chosen_of(arguments, runner, every, listed)
    cells = sum(len(table.leaves) for table in runner.tables)
    print(f"{cells} cells in {len(runner.tables)} tables, {len(every)} mutants, "
          f"{len(mutants)} of them chosen", flush=True)

    run = Run(runner, arguments.jobs)
    equivalents, unread = run.find_equivalents(asked)
    differences = [f"{change} of what is never read changes an answer of the shipped library"
                   for change in run.changed_together(unread)]
    print(f"{len(equivalents)} of {len(asked)} are equivalent, {len(unread)} of them never read "
          f"({time.monotonic() - began:.0f} s)", flush=True)
    equivalent_ids = {mutant.id for mutant in equivalents}
    others = [mutant for mutant in mutants if mutant.id not in equivalent_ids]
    # That an equivalent survives is seen by some of them: they live through all that is tried.
    run.try_first(others + sample_of(equivalents, arguments.sample if arguments.all else 0,
                                     arguments.seed))
    print(f"{sum(map(run.is_alive, others))} live on after the first tries "
          f"({time.monotonic() - began:.0f} s)", flush=True)
    run.try_suites(others)
    seconds = time.monotonic() - began
    shutil.rmtree(folder)

    differences += listed.differences(asked, equivalent_ids)
    differences += [f"no answer tells, but a test: {place_of(runner.tables[mutant.table], mutant)}"
                    for mutant in equivalents if not run.is_alive(mutant)]
    survivors = report(runner.tables, mutants, equivalent_ids, run.outcomes)
    return conclude(arguments, runner.tables, mutants, survivors, differences, equivalents, seconds)


def conclude(arguments, all_tables, mutants, survivors, differences, equivalents, seconds):
    """Shows what is wrong, writes the results, gives the exit status."""
    lines = ([f"survived: {place_of(all_tables[mutant.table], mutant)}" for mutant in survivors] +
             [f"list of equivalents: {line}" for line in differences])
    for line in lines[:SHOWN_LINES]:
        print(line)
    if len(lines) > SHOWN_LINES:
        print(f"and {len(lines) - SHOWN_LINES} more")
    equivalent_ids = {mutant.id for mutant in equivalents}
    killable = sum(mutant.id not in equivalent_ids for mutant in mutants)
    sentence = (f"{killable - len(survivors)} of {killable} killed, {len(survivors)} survived; "
                f"{len(equivalents)} equivalents asked, {len(differences)} differences from the list")
    print(f"{sentence}; {seconds:.0f} s, {len(mutants) / seconds:.0f} mutants a second")
    arguments.results.mkdir(parents=True, exist_ok=True)
    (arguments.results / "tables-survivors.txt").write_text("".join(line + "\n" for line in lines),
                                                            encoding="utf-8")
    (arguments.results / "tables.json").write_text(json.dumps([{
        "check": "no cell of a table of the library can change without a test that fails",
        "cases": len(mutants), "result": sentence, "seconds": round(seconds, 1)}], indent=2) + "\n",
        encoding="utf-8")
    return 1 if lines or killable == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
