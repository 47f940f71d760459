"""What is compiled, linked and run for one mutant, without touching the tree or its builds.

The commands are those of the configured build (`build/dev`, and `build/asan` for the second try);
the changed file lies in a folder of the worker's own that is searched for headers first. All other
objects are taken from the build.
"""

import json
import os
import re
import resource
import shlex
import signal
import subprocess
import threading
from pathlib import Path

SUITES = {
    "mqPlatformTests": "platform",
    "mqCatalogueTests": "catalogue",
    "mqInterpositionTests": "catalogue",
    "mqParamsTests": "params",
    "mqListsTests": "lists",
    "mqMaterialsTests": "materials",
    "mqDisplayTests": "display",
    "mqRecordPrimitivesTests": "params",
    "mqFaultTests": "faults",
    "mqAllocationTests": "faults",
}
# The suites that a wing can break, the likeliest first. A mutant of a header meets the tests of
# its own name before these.
SUITES_OF = {
    "catalogue": ["mqCatalogueTests", "mqInterpositionTests", "mqParamsTests", "mqListsTests"],
    "params": ["mqParamsTests", "mqListsTests", "mqMaterialsTests", "mqInterpositionTests",
               "mqFaultTests"],
    "lists": ["mqListsTests"],
    "materials": ["mqMaterialsTests"],
    "display": ["mqDisplayTests"],
    "platform": ["mqParamsTests", "mqDisplayTests", "mqMaterialsTests"],
}
# Linked with the objects of the library, run last.
STATIC_SUITES = ["mqRecordPrimitivesTests", "mqAllocationTests"]
# Headers that are tested by a test of another name.
HEADER_TESTS = {"case_folding": "wide_string", "gfx_core": "color"}
LIBRARY = "mqPostCommon/CMakeFiles/mqPostCommonObjects.dir"
SLOW_TEST = 0.03  # seconds; slower tests are run last, and never with sanitizers
# The compiler refuses a table, as it is meant to.
REFUSED = re.compile(r"error: .*(static assertion failed|constant expression|constexpr|consteval"
                     r"|constant evaluation|constinit)")


class CompileError(Exception):
    """The compiler's words about a mutant."""


def run(command, cwd, seconds=None, memory=None, env=None):
    """Runs a command within a limit of processor time, which a busy machine does not use up."""
    if seconds:
        limits = [f"--cpu={int(seconds) + 1}", "--core=0", *([f"--as={memory}"] if memory else [])]
        command = ["prlimit", *limits, *command]
    process = subprocess.Popen(command, cwd=cwd, env=env, start_new_session=True, text=True,
                               errors="replace", stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    try:
        output, _ = process.communicate(timeout=20 * seconds + 60 if seconds else None)
        return process.returncode, output
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        process.communicate()
        return -signal.SIGXCPU, ""


class Preset:
    """A configured build: its commands, its objects and what each of them is made of."""

    def __init__(self, root, name, scratch, jobs, slow=None):
        """`slow` are the slow tests of each suite where another build says so: left out here."""
        self.root, self.name = root, name
        self.folder = root / "build" / name
        self.scratch = scratch / name
        self.scratch.mkdir(parents=True, exist_ok=True)
        self._build(jobs)
        commands = json.loads((self.folder / "compile_commands.json").read_text())
        self.commands = {}
        for entry in commands:
            words = shlex.split(entry["command"])
            target = words[words.index("-o") + 1]
            if target.startswith(("mqPostCommon/", "host/GfxCore/", "tests/")):
                source = str(Path(entry["file"]).relative_to(root))
                self.commands[target] = (source, self._plain(words))
        self.uses = self._read_dependencies()
        self.headers = {}
        self.runs_slow = slow is None
        self.slow, self.seconds = slow or {}, {}
        self.silent, self.timing = set(), threading.RLock()

    def _build(self, jobs):
        if not (self.folder / "build.ninja").exists():
            subprocess.run(["cmake", "--preset", self.name], cwd=self.root, check=True,
                           stdout=subprocess.DEVNULL)
        subprocess.run(["cmake", "--build", "--preset", self.name, "-j", str(jobs), "--target",
                        *SUITES, "mqTranslations"], cwd=self.root, check=True,
                       stdout=subprocess.DEVNULL)

    def _plain(self, words):
        kept = [word for word in words if not re.match(r"-W|-O|-g", word)]
        compiler = next(i for i, word in enumerate(kept) if "++" in word)
        return [*kept[compiler : kept.index("-o")], "-w"]

    def _read_dependencies(self):
        output = subprocess.run(["ninja", "-C", self.folder, "-t", "deps"], check=True, text=True,
                                stdout=subprocess.PIPE).stdout
        uses, target = {}, None
        for line in output.splitlines():
            if line and not line.startswith(" "):
                target = line.split(":")[0]
            elif target in self.commands:
                path = os.path.relpath(self.folder / line.strip(), self.root)
                uses.setdefault(target, set()).add(path)
        return uses

    def time(self, suite):
        """Times a suite without a fault, once; all its tests must pass."""
        with self.timing:
            if suite not in self.seconds:
                self.seconds[suite] = self._time(suite)

    def _time(self, suite):
        report = self.scratch / f"{suite}.json"
        before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
        code, output = run([str(self.folder / "bin" / suite), f"--gtest_output=json:{report}",
                            f"--gtest_filter=-{':'.join(self.slow.get(suite, []))}"], self.folder)
        if code != 0:
            raise SystemExit(f"{self.name}: {suite} fails as it is:\n{output[-2000:]}")
        if self.runs_slow:
            groups = json.loads(report.read_text())["testsuites"]
            self.slow[suite] = [f"{group['name']}.{test['name']}" for group in groups
                                for test in group["testsuite"]
                                if float(test["time"][:-1]) > SLOW_TEST]
        return resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before

    def objects(self, folder):
        return [target for target in self.commands if target.startswith(folder)]

    def library_objects(self, path):
        """The objects of the library that are made of a file."""
        return [target for target in self.objects(LIBRARY) if path in self.uses.get(target, ())]

    def host_objects(self, path):
        """The objects of the display library, whose header stands among those of the library."""
        return [target for target in self.objects("host/GfxCore/")
                if path in self.uses.get(target, ())]

    def test_objects(self, suite, path):
        return [target for target in self.objects(self.tests(suite))
                if path in self.uses.get(target, ())]

    @staticmethod
    def tests(suite):
        return f"tests/{SUITES[suite]}/CMakeFiles/{suite}.dir/"

    def _precompiled(self, target, level):
        """Headers of the standard library and of the test framework, read once for all."""
        if level != "-O0":
            return []
        kind = "library" if target.startswith(LIBRARY) else "tests"
        return ["-include", str(self.scratch / kind / "headers.h")]

    def precompile(self):
        sources = {"library": self.objects(LIBRARY)[0],
                   "tests": self.objects(self.tests("mqPlatformTests"))[0]}
        for kind, target in sources.items():
            folder = self.scratch / kind
            folder.mkdir(exist_ok=True)
            names = ["algorithm", "array", "atomic", "bit", "map", "memory", "numeric", "span",
                     "string", "tuple", "unordered_set", "variant", "vector"]
            names += ["sstream", "gtest/gtest.h"] if kind == "tests" else []
            header = folder / "headers.h"
            header.write_text("".join(f"#include <{name}>\n" for name in names))
            subprocess.run([*self.commands[target][1], "-O0", "-x", "c++-header", "-o", f"{header}.gch", "-c", header],
                           cwd=self.folder, check=True)

    # -----------------------------------------------------------------------------------------

    def compile(self, targets, worker):
        """Compiles objects with the changed file of a worker in place of its own."""
        # One object is compiled fast; a library that is slow throughout would look like a loop.
        level = "-O0" if len(targets) == 1 and self.name == "dev" else "-O1"
        return {target: self._compile(target, level, worker) for target in targets}

    def _compile(self, target, level, worker):
        source, words = self.commands[target]
        changed = worker / "changed" / source
        output = worker / self.name / target.replace("/", "+")
        output.parent.mkdir(exist_ok=True)
        code, words_of_compiler = run(
            [words[0], "-I", str(worker / "changed"), *self._precompiled(target, level), *words[1:],
             level, "-o", str(output), "-c", str(changed if changed.exists() else self.root / source)],
            self.folder, seconds=120, memory=None)
        if code != 0:
            raise CompileError(words_of_compiler)
        return output

    def _link(self, target, first, others, extra):
        compiler = self.commands[others[0]][1][0]
        flags = [word for word in self.commands[others[0]][1] if word.startswith(("-fsanitize", "-fprofile"))]
        # The changed objects go first: of an inline function in several objects that is taken.
        objects = [*first.values(), *(self.folder / other for other in others if other not in first)]
        code, output = run([compiler, *flags, "-fuse-ld=lld", "-o", target, *map(str, objects), *extra],
                           self.folder)
        if code != 0:
            raise CompileError(output)

    def link_library(self, changed, worker):
        folder = worker / self.name / "lib"
        folder.mkdir(exist_ok=True)
        bin_folder = self.folder / "bin"
        self._link(folder / "libmqPostCommon.so.0", changed, self.objects(LIBRARY),
                   ["-shared", "-Wl,-soname,libmqPostCommon.so.0", f"-Wl,-rpath,{bin_folder}",
                    f"{bin_folder}/libmqCommFuncs.so", f"{bin_folder}/libGfxCore.so"])
        return folder

    def link_tests(self, suite, changed, worker, alone):
        """Links the tests of a suite, or those of the changed objects alone."""
        others = list(changed) if alone else self.objects(self.tests(suite))
        if suite in STATIC_SUITES:
            others += self.objects(LIBRARY)
        program = worker / self.name / suite
        bin_folder = self.folder / "bin"
        libraries = [f"{bin_folder}/lib{name}.so" for name in
                     ("mqPostCommon", "mqCommFuncs", "GfxCore")]
        if suite in ["mqPlatformTests", *STATIC_SUITES]:
            libraries.pop(0)
        extra = [str(path) for path in self.folder.glob("host/storage/libmqStorage.a")]
        self._link(program, changed, others,
                   [*extra, "-lgsf-1", "-lgobject-2.0", "-lglib-2.0", *libraries,
                    "-lgtest", "-lgtest_main", "-lpthread", f"-Wl,-rpath,{bin_folder}"])
        return program

    def test(self, suite, program, library, slow, fault, marks):
        """Runs the fast or the slow tests of a suite. Says what noticed the fault, or nothing.

        `fault` is the number of the one that is switched on where there are many; `marks` is the
        file that takes down the bodies with faults that were reached.
        """
        self.time(suite)
        names = ":".join(self.slow[suite])
        if slow and not (names and self.runs_slow):
            return None
        env = dict(os.environ, MQ_FAULT=str(fault), ASAN_OPTIONS="hard_rss_limit_mb=3000", UBSAN_OPTIONS="print_stacktrace=0")
        if marks:
            env["MQ_REACHED"] = str(marks)
        if library:
            env["LD_LIBRARY_PATH"] = str(library)
        code, output = run([str(program or self.folder / "bin" / suite), "--gtest_brief=1",
                            "--gtest_fail_fast", f"--gtest_filter={names if slow else '-' + names}"],
                           self.folder, seconds=4 * self.seconds[suite] + 2,
                           memory=None if self.name == "asan" else 4 << 30, env=env)
        if code == 0:
            return None
        if code == 127:
            raise SystemExit(f"{suite} cannot be started: {output}")
        if code in (-signal.SIGXCPU, -signal.SIGKILL) and "Sanitizer" not in output:
            return "time", suite
        if "Sanitizer" in output or "runtime error:" in output:
            return "sanitizer", re.search(r"Sanitizer: ([\w-]+)|runtime error: ([^\n]{0,60})", output).group()
        failed = re.search(r"\[  FAILED  \] (\S+)", output)
        return "test", failed.group(1) if failed else f"{suite} ends with {code}"
