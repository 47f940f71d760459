#!/usr/bin/env python3
"""The table of what was proved, made of what the checks left behind.

Scripts leave lists of {"check", "cases", "result", "seconds"}; test programs leave the report of
GoogleTest, of which the tests that say how many cases they ran are taken.
"""

import argparse
import json
import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent


def words(name):
    """A test's name as a sentence: EveryBitIsFlipped becomes "Every bit is flipped"."""
    name = name.removeprefix("DISABLED_").split("/")[-1]
    parts = re.findall(r"[A-Z]+(?![a-z])|[A-Z]?[a-z]+|\d+", name)
    parts = [part if part.isupper() and len(part) > 1 else part.lower() for part in parts]
    return " ".join(parts)[:1].upper() + " ".join(parts)[1:]


def rows_of_tests(report):
    for suite in report["testsuites"]:
        for test in suite["testsuite"]:
            if "cases" in test:
                yield {"check": f"{words(suite['name'])}: {words(test['name'])}",
                       "cases": int(test["cases"]),
                       "result": "FAILED" if "failures" in test else
                                 "left out" if test["result"] == "SKIPPED" else "passed",
                       "seconds": float(test["time"].rstrip("s"))}


def read_rows(folder):
    for path in sorted(folder.glob("*.json")):
        content = json.loads(path.read_text())
        yield from rows_of_tests(content) if "testsuites" in content else content


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--results", type=pathlib.Path, default=ROOT / "build/proof")
    parser.add_argument("--output", type=pathlib.Path, default=ROOT / "build/proof/proof.md")
    arguments = parser.parse_args()
    rows = list(read_rows(arguments.results))
    if not rows:
        sys.exit(f"table.py: no check has left a result in {arguments.results}")
    commit = subprocess.run(["git", "describe", "--always", "--dirty"], cwd=ROOT, capture_output=True, text=True)
    lines = ["# What was proved", "",
             f"Made by the checks themselves (`./dev prove`, or `./dev soak` for nights) at commit "
             f"{commit.stdout.strip() or 'unknown'}; not edited by hand.", "",
             "| check | cases | result | seconds |", "|---|---:|---|---:|"]
    lines += [f"| {row['check']} | {row['cases']:,} | {row['result']} | {row['seconds']:.1f} |"
              for row in rows]
    arguments.output.parent.mkdir(parents=True, exist_ok=True)
    arguments.output.write_text("\n".join(lines) + "\n")
    print(f"{len(rows)} checks, {sum(row['cases'] for row in rows):,} cases: {arguments.output}")


if __name__ == "__main__":
    main()
