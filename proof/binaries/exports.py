"""The exported names are the committed ones, alike on both platforms.

exports-linux.txt and exports-windows.txt are what nm and objdump find, demangled and without the
variants of constructors and destructors, which each platform has in numbers of its own. A name
that is new, gone or changed shows up as a difference; "check --accept exports" takes it over.
"""

import re

from workshop import FOLDER, Finding, demand_none, text

# Exported for the compiler on one platform alone, and the one type that differs.
OF_THE_COMPILER = re.compile(r"^(typeinfo|typeinfo name|vtable) for ")
CHARACTERS = {"linux": "char16_t", "windows": "wchar_t"}


def demangled(mangled):
    names = text("c++filt", *sorted(mangled)).splitlines()
    return {name.replace("[abi:cxx11]", "") for name in names}


def linux_exports(library):
    lines = text("nm", "-D", "--defined-only", library).splitlines()
    return [line.split()[-1] for line in lines]


def windows_exports(library):
    dump = text("x86_64-w64-mingw32-objdump", "-p", library)
    table = dump.split("[Ordinal/Name Pointer] Table")[1].split("\n\n")[0]
    return re.findall(r"^\s*\[\s*\d+\] (\S+)$", table, re.MULTILINE)


def compare_with_committed(shop, platform, names):
    file = FOLDER / f"exports-{platform}.txt"
    if shop.accepting:
        file.write_text("".join(name + "\n" for name in sorted(names)))
    committed = set(file.read_text().splitlines())
    demand_none([f"+ {name}" for name in sorted(names - committed)] +
                [f"- {name}" for name in sorted(committed - names)],
                f"exports on {platform} other than in {file.name}")
    foreign = [name for name in names if re.match(r"(?:[\w:]+ )?(?:std|__gnu_cxx)::", name)]
    demand_none(foreign, f"exports of the standard library on {platform}")
    return Finding(f"the exported names are the committed ones ({platform})", len(names),
                   "no difference")


def compare_platforms(names):
    plain = {platform: {name.replace(CHARACTERS[platform], "mqChar") for name in exported
                        if not OF_THE_COMPILER.match(name)}
             for platform, exported in names.items()}
    demand_none(sorted(plain["linux"] ^ plain["windows"]), "names that one platform alone exports")
    return Finding("both platforms export the same functions and tables", len(plain["linux"]),
                   "no difference but for the character type")


def check(shop):
    dev = shop.build("dev", "mqPostCommon")
    windows = shop.build("windows", "mqPostCommon")
    names = {"linux": demangled(linux_exports(dev / "libmqPostCommon.so")),
             "windows": demangled(windows_exports(windows / "mqPostCommon.dll"))}
    return [compare_with_committed(shop, platform, names[platform]) for platform in names] + [
        compare_platforms(names)]
