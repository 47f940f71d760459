"""What the checks share: builds, programs on both platforms, and findings."""

import dataclasses
import json
import os
import pathlib
import shutil
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDER = pathlib.Path(__file__).resolve().parent

LIBRARIES = ["mqPostCommon", "mqCommFuncs", "GfxCore"]


class Broken(Exception):
    """A promise does not hold; the text says where."""


@dataclasses.dataclass
class Finding:
    check: str   # what is promised
    cases: int   # how many times it was looked at
    result: str  # what came out


def demand(fulfilled, what):
    if not fulfilled:
        raise Broken(what)


def demand_none(faults, what):
    """Fails with the first few of a list of faults."""
    if faults:
        shown = "\n  ".join(str(fault) for fault in faults[:10])
        more = f"\n  and {len(faults) - 10} more" if len(faults) > 10 else ""
        raise Broken(f"{what}:\n  {shown}{more}")


def run(*command, expect=0, environment=None, folder=ROOT):
    """Runs a command; returns its output, both streams in one, as bytes.

    Through a file: a pipe would stay open as long as a server that Wine leaves behind.
    """
    words = [str(word) for word in command]
    with tempfile.TemporaryFile() as file:
        status = subprocess.run(words, cwd=folder, env={**os.environ, **(environment or {})},
                                stdout=file, stderr=subprocess.STDOUT, check=False).returncode
        file.seek(0)
        output = file.read()
    if expect is not None and status != expect:
        raise Broken(f"{' '.join(words)}\nended with {status} instead of {expect}:\n"
                     + output.decode(errors="replace")[-4000:])
    return output


def text(*command, **options):
    return run(*command, **options).decode()


class Workshop:
    """Build folders and the way to start what lies in them."""

    def __init__(self, jobs, thorough, accepting):
        self.jobs = jobs
        self.thorough = thorough
        self.accepting = accepting
        self.scratch = ROOT / "build" / "proof" / "binaries"
        self.scratch.mkdir(parents=True, exist_ok=True)

    def build(self, preset, *targets, folder=None, options=(), source=ROOT, environment=None):
        """Configures and builds; returns the folder of the binaries."""
        folder = folder or source / "build" / preset
        run("cmake", "--preset", preset, "-B", folder, *options, folder=source,
            environment=environment)
        run("cmake", "--build", folder, "--parallel", self.jobs,
            *(["--target", *targets] if targets else []), folder=source, environment=environment)
        return folder / "bin"

    def fresh_folder(self, name):
        folder = self.scratch / name
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        return folder

    def wine(self):
        """The command that a Windows program is started with, and its environment."""
        prefix = ROOT / "build" / "wine"
        environment = {"WINEPREFIX": str(prefix), "WINEDEBUG": "-all", "DISPLAY": "", "LC_ALL": "C.UTF-8"}
        program = shutil.which("wine64", path=os.environ["PATH"] + ":/usr/lib/wine")
        demand(program, "wine64 is not installed")
        if not (prefix / "drive_c").exists():
            prefix.mkdir(parents=True, exist_ok=True)
            run(program, "wineboot", "--init", expect=None, environment=environment)
        return program, environment

    def start(self, platform, program, *arguments, **options):
        """Runs a program of a platform, "linux" or "windows"; returns its output."""
        if platform == "linux":
            return run(program, *arguments, **options)
        wine, environment = self.wine()
        environment |= options.pop("environment", {})
        return run(wine, program.with_name(program.name + ".exe"), *arguments,
                   environment=environment, **options)

    def suite(self, platform, program, *arguments, **options):
        """Runs a suite; returns its tests by name, each as the test framework describes it."""
        with tempfile.NamedTemporaryFile(dir=self.scratch, suffix=".json") as report:
            name = pathlib.Path(report.name).relative_to(ROOT)
            self.start(platform, program, "--gtest_brief=1", f"--gtest_output=json:{name}",
                       *arguments, **options)
            described = json.loads(pathlib.Path(report.name).read_bytes())
        return {f"{suite['name']}.{test['name']}": test
                for suite in described["testsuites"] for test in suite["testsuite"]}


def cases_of(tests):
    return sum(int(test.get("cases", 1)) for test in tests.values())
