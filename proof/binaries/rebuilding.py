"""Two builds in two folders are the same, byte for byte, for Linux and for Windows.

The sources are copied into two folders with names of different length and compiled without a
cache; what comes out is compared. With --all the tool as well as the library.
"""

import hashlib
import shutil

from workshop import Finding, ROOT, demand, demand_none, text

BUILDS = {
    "linux": ("release", []),
    "windows": ("windows", ["-DMQ_BUILD_TESTS=OFF", "-DCMAKE_BUILD_TYPE=Release"]),
}
FOLDERS = ("one", "another one/further down")


def copy_sources(folder):
    files = text("git", "ls-files", "--cached", "--others", "--exclude-standard").splitlines()
    for file in files:
        if (ROOT / file).is_file():
            (folder / file).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(ROOT / file, folder / file)


def hashes(binaries):
    return {str(file.relative_to(binaries)): hashlib.sha256(file.read_bytes()).hexdigest()
            for file in sorted(binaries.rglob("*")) if file.is_file()}


def check_platform(shop, platform):
    preset, options = BUILDS[platform]
    targets = ["mqPostCommon"] + (["mqpost", "mqTranslations"] if shop.thorough else [])
    results = []
    for name in FOLDERS:
        source = shop.fresh_folder(f"rebuilding/{name}")
        copy_sources(source)
        binaries = shop.build(preset, *targets, source=source,
                              options=[*options, "-DMQ_CCACHE=",
                                       f"-DMQ_BUILD_TOOLS={shop.thorough}"],
                              environment={"CCACHE_DISABLE": "1"})
        results.append(hashes(binaries))
        shutil.rmtree(source)
    demand(len(results[0]) >= 3, "the builds have no binaries")
    demand_none([name for name in sorted(results[0].keys() | results[1].keys())
                 if results[0].get(name) != results[1].get(name)],
                f"files that differ between two builds ({platform})")
    return Finding(f"two builds in two folders are the same ({platform})", len(results[0]),
                   ", ".join(results[0]))


def check(shop):
    return [check_platform(shop, platform) for platform in BUILDS]
