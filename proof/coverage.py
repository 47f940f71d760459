#!/usr/bin/env python3
"""The coverage floor: the suites run every line of the library, both ways of every branch, and each
condition of a decision shown to decide by itself (MC/DC), as clang counts them.

Reads the profiles that the suites of the `asan` preset leave. What cannot be reached stands in
coverage_exclusions.txt with its reason; an exclusion that is reached after all, or that no longer
exists, fails as well, and so does a sixth one. Functions that the compiler alone evaluates have no
code that could be run: they are constexpr, and no object file has counters for them.
"""

import argparse
import json
import pathlib
import re
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build/asan"
LIBRARY = ROOT / "mqPostCommon"
EXCLUSIONS = ROOT / "proof/coverage_exclusions.txt"
MAXIMUM_EXCLUSIONS = 5
SUITES = ["mqPlatformTests", "mqCatalogueTests", "mqParamsTests",
          "mqRecordPrimitivesTests", "mqListsTests", "mqMaterialsTests", "mqDisplayTests",
          "mqAllocationTests"]


def merge_profiles():
    """What the suites left behind; the other programs of the build do not count."""
    profiles = [path for suite in SUITES for path in BUILD.glob(f"profiles/{suite}-*.profraw")]
    silent = [suite for suite in SUITES if not any(suite in path.name for path in profiles)]
    if silent:
        sys.exit(f"{', '.join(silent)}: no profile; run ctest --preset asan first")
    merged = BUILD / "suites.profdata"
    subprocess.run(["llvm-profdata-19", "merge", *profiles, "-o", merged], check=True)
    return merged


def export(profile):
    """What clang counted, in the files of the library alone."""
    binaries = [BUILD / "bin/libmqPostCommon.so"] + [BUILD / "bin" / suite for suite in SUITES]
    objects = [argument for binary in binaries[1:] for argument in ("-object", binary)]
    report = subprocess.run(
        ["llvm-cov-19", "export", "-instr-profile", profile, binaries[0], *objects, LIBRARY],
        check=True, capture_output=True)
    return json.loads(report.stdout)["data"][0]


def names_with_code(profile):
    """The mangled names of the functions that some object file holds."""
    report = subprocess.run(["llvm-profdata-19", "show", "--all-functions", profile],
                            check=True, capture_output=True, text=True)
    # A function of internal linkage stands behind its file: "names.cpp:_ZN..."
    return set(re.findall(r"^  (?:\S+[:;])?(_Z[^:;\s]+):$", report.stdout, re.MULTILINE))


def compile_time_regions(functions, emitted):
    """{file: [(first line, last line)]} of the bodies that only the compiler evaluates."""
    with_code, without = set(), set()
    for function in functions:
        place = (function["filenames"][0], tuple(function["regions"][0][:4]))
        name = re.split("[:;]", function["name"])[-1]
        (with_code if name in emitted else without).add(place)
    regions = {}
    for file, (line, column, last, _) in without - with_code:
        if LIBRARY not in pathlib.Path(file).parents:
            continue
        source = pathlib.Path(file).read_text().splitlines()
        before = "\n".join(source[max(line - 12, 0):line - 1] + [source[line - 1][:column - 1]])
        declaration = re.split(r"[;}]\s*\n|\n\s*\n|\n#", before)[-1]
        if re.search(r"\b(constexpr|consteval|static_assert)\b", declaration):
            regions.setdefault(file, []).append((line, last))
    return regions


def missed_places(file, compile_time):
    """(line, what) of everything in a file that was not reached."""
    missed = set()
    for line, _, count, has_count, _, is_gap in file["segments"]:
        if has_count and count == 0 and not is_gap:
            missed.add((line, "never run"))
    # The same branch of a template counts once for all its instances.
    branches = {}
    for branch in file["branches"]:
        start, true_count, false_count = tuple(branch[:4]), branch[4], branch[5]
        seen = branches.get(start, (0, 0))
        branches[start] = (seen[0] + true_count, seen[1] + false_count)
    for start, (true_count, false_count) in branches.items():
        if true_count == 0:
            missed.add((start[0], "never true"))
        if false_count == 0:
            missed.add((start[0], "never false"))
    decisions = {}
    for record in file.get("mcdc_records", []):
        start, conditions = tuple(record[:4]), record[-1]
        seen = decisions.get(start, [False] * len(conditions))
        decisions[start] = [old or new for old, new in zip(seen, conditions)]
    for start, conditions in decisions.items():
        for place, covered in enumerate(conditions):
            if not covered:
                missed.add((start[0], f"condition {place + 1} never decides"))
    missed = {(line, what) for line, what in missed
              if not any(first <= line <= last for first, last in compile_time)}
    counts = (file["summary"]["lines"]["count"], 2 * len(branches),
              sum(len(conditions) for conditions in decisions.values()))
    return missed, counts


def read_exclusions():
    """{(file, text of the line, what): reason}"""
    exclusions = {}
    for row in EXCLUSIONS.read_text().splitlines():
        if row and not row.startswith("#"):
            file, text, what, reason = (cell.strip() for cell in row.split("|"))
            exclusions[file, text, what] = reason
    return exclusions


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--results", type=pathlib.Path, default=ROOT / "build/proof")
    arguments = parser.parse_args()
    start = time.monotonic()

    exclusions = read_exclusions()
    unused = set(exclusions)
    failures = []
    totals = [0, 0, 0]
    profile = merge_profiles()
    report = export(profile)
    compile_time = compile_time_regions(report["functions"], names_with_code(profile))
    seen = {file["filename"] for file in report["files"]}
    failures += [f"{source.relative_to(ROOT)}: nothing was counted"
                 for source in sorted(LIBRARY.rglob("*.cpp")) if str(source) not in seen]
    for file in report["files"]:
        name = str(pathlib.Path(file["filename"]).relative_to(ROOT))
        lines = (ROOT / name).read_text().splitlines()
        missed, counts = missed_places(file, compile_time.get(file["filename"], []))
        totals = [total + count for total, count in zip(totals, counts)]
        for line, what in sorted(missed):
            key = (name, lines[line - 1].strip(), what)
            if key in exclusions:
                unused.discard(key)
            else:
                failures.append(f"{name}:{line}: {what}: {lines[line - 1].strip()}")
    failures += [f"{name}: excluded, but reached or gone: {what}: {text}"
                 for name, text, what in sorted(unused)]
    if len(exclusions) > MAXIMUM_EXCLUSIONS:
        failures.append(f"{len(exclusions)} exclusions; {MAXIMUM_EXCLUSIONS} are the most")
    for failure in failures:
        print(failure)

    result = "all reached" if not failures else f"{len(failures)} missed"
    if exclusions:
        result += f", {len(exclusions)} excluded with reasons"
    result += f"; {sum(map(len, compile_time.values()))} functions that the compiler alone evaluates"
    print(f"{totals[0]} lines, {totals[1]} branches, {totals[2]} conditions: {result}")
    arguments.results.mkdir(parents=True, exist_ok=True)
    (arguments.results / "coverage.json").write_text(json.dumps([{
        "check": "The suites reach every line, branch and condition (MC/DC) of the library",
        "cases": sum(totals), "result": result, "seconds": time.monotonic() - start}]))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
