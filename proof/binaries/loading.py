"""The library is loaded, asked early, and unloaded without a trace, on both platforms.

Its objects have nothing to run at load or unload, no symbol of it keeps it in memory, and the
loader adjusts no text of it. Programs load and unload it a thousand times, and ask it from a global
object of another library. (Builds with clang refuse global constructors on their own.)
"""

import itertools
import re

from workshop import Finding, LIBRARIES, ROOT, cases_of, demand, demand_none, text

TARGETS = ["mqUnloadingTests", "mqBeforeMainTests"]
# Where a compiler puts pointers to what runs at load and unload.
SECTIONS = re.compile(r"\.(?:init_array|fini_array|preinit_array|ctors|dtors)\b")

# A relocation with the value of its symbol, if it has one, and what is added.
RELOCATION = re.compile(r"\w+ +\w+ +R_X86_64_\w+ +(?:(\w{16}) \S+ \+ )?(\w+)$")
# The exported tables, whose texts lie in themselves, names of types, and the mark by which the standard
# library knows what it has made in one piece with its count.
NO_TEXT = re.compile(r"g_|_ZTS|_ZZNSt19_Sp_make_shared_tag")


def objects_with_constructors(folder, dump):
    objects = sorted((folder / "mqPostCommon").glob("CMakeFiles/mqPostCommonObjects.dir/**/*.o*"))
    demand(len(objects) > 10, f"the objects of the library are not in {folder}")
    return len(objects), [object for object in objects if SECTIONS.search(text(*dump, object))]


def check_objects():
    cases = 0
    for preset, dump in (("dev", ["readelf", "-SW"]),
                         ("windows", ["x86_64-w64-mingw32-objdump", "-h"])):
        count, faults = objects_with_constructors(ROOT / "build" / preset, dump)
        demand_none(faults, "objects with something to run at load or unload")
        cases += count
    return Finding("no object of the library has anything to run at load or unload", cases,
                   "none; a Windows binary gives a reserve back (return_reserve.cpp)")


def check_symbols(*folders):
    """Unique symbols keep a library in memory for good; __cxa_atexit means work at unload."""
    faults, cases = [], 0
    for folder, library in itertools.product(folders, LIBRARIES):
        for line in text("nm", "-D", folder / f"lib{library}.so").splitlines():
            cases += 1
            *_, kind, name = line.split()
            if kind == "u" or library == "mqPostCommon" and name.startswith("__cxa_atexit"):
                faults.append(f"{folder / library}: {name}")
    demand_none(faults, "symbols that tie a library to the process")
    return Finding("no symbol ties a library to the process", cases, "no unique one, no exit work")


def pointers_into_constants(library):
    """The symbols in the constant section whose addresses the loader writes somewhere; "" for a
    place without a symbol, as that of a literal is."""
    section = re.search(r"\.rodata +PROGBITS +(\w+) +\w+ +(\w+)", text("readelf", "-SW", library))
    begin, size = (int(number, 16) for number in section.groups())
    names = {int(line.split()[0], 16): line.split()[-1]
             for line in text("nm", "--defined-only", library).splitlines()}
    for line in text("readelf", "-rW", library).splitlines():
        if found := RELOCATION.match(line):
            target = sum(int(part, 16) for part in found.groups("0"))
            if begin <= target < begin + size:
                yield names.get(target, "")


def check_texts(binaries):
    """A text may stand in a table or in the code, but nothing holds a pointer to one."""
    targets = list(pointers_into_constants(binaries / "libmqPostCommon.so"))
    demand(len(targets) > 10, "the relocations of the library are not found")
    demand_none([name or "a literal" for name in targets if not NO_TEXT.match(name)],
                "texts whose addresses the loader has to adjust")
    return Finding("no text of the library is adjusted when it is loaded", len(targets),
                   "exported tables, type names and a mark of the standard library")


def check_programs(shop, platform, binaries):
    tests = {}
    for program in TARGETS:
        tests |= shop.suite(platform, binaries / program)
    unloading = next(test for name, test in tests.items() if "Growth" in name)
    return Finding(f"loaded and unloaded, and asked before main ({platform})", cases_of(tests),
                   "passed; allocated bytes {allocated}, resident {resident}".format(**unloading))


def check(shop):
    dev = shop.build("dev", "mqPostCommon", *TARGETS)
    release = shop.build("release", *LIBRARIES)
    windows = shop.build("windows", "mqPostCommon", *TARGETS)
    return [check_objects(), check_symbols(dev, release), check_texts(dev), check_programs(shop, "linux", dev),
            check_programs(shop, "windows", windows)]
