"""Every binary is hardened and imports nothing strange.

What a binary can show is read out of it by readelf and objdump: addresses that can be anywhere,
no writable code, tables that are read-only once the program has started, landing pads for indirect
calls, guards of stacks and copies, imports. What it cannot show stands in the compile commands.
"""

import json
import re
import shlex

from workshop import Finding, LIBRARIES, ROOT, demand, demand_none, text

SYSTEM_LIBRARIES = {"kernel32.dll", "msvcrt.dll", "ole32.dll", "shell32.dll", "advapi32.dll",
                    "psapi.dll", "user32.dll"}
OWN_LIBRARIES = {"mqpostcommon.dll", "mqcommfuncs.dll", "gfxcore.dll", "libmqearlycaller.dll"}
COMMON_OPTIONS = {"-fstack-protector-strong", "-D_FORTIFY_SOURCE=2"}
CONTRARY_OPTIONS = {"-fno-stack-protector", "-fcf-protection=none", "-D_FORTIFY_SOURCE=0", "-O0"}
OPTIONS = {
    "dev": COMMON_OPTIONS | {"-fcf-protection=full"},
    "release": COMMON_OPTIONS | {"-fcf-protection=full"},
    "windows": COMMON_OPTIONS,
}


def check_commands(preset):
    """The options of every source, as the compiler got them."""
    commands = json.loads((ROOT / "build" / preset / "compile_commands.json").read_bytes())
    faults = []
    for command in commands:
        words = shlex.split(command["command"])
        missing = OPTIONS[preset] - set(words)
        missing |= set() if {"-O1", "-O2", "-O3"} & set(words) else {"-O"}
        missing |= set() if preset == "windows" or {"-fPIC", "-fPIE"} & set(words) else {"-fPIE"}
        faults += [f"{command['file']}: lacks {option}" for option in sorted(missing)]
        faults += [f"{command['file']}: has {option}" for option in CONTRARY_OPTIONS & set(words)]
    demand_none(faults, f"sources compiled with other options ({preset})")
    return Finding(f"every source is compiled with guards of stacks and copies ({preset})",
                   len(commands), "; ".join(sorted(OPTIONS[preset])))


# ---- ELF ------------------------------------------------------------------------------------


def elf_files(folder):
    for file in sorted(folder.iterdir()):
        if file.is_file() and not file.is_symlink():
            with file.open("rb") as opened:
                if opened.read(4) == b"\x7fELF":
                    yield file


def elf_faults(file):
    header = text("readelf", "-hlWd", file)
    segments = re.findall(r"^\s+(LOAD|GNU_STACK|GNU_RELRO)\s.*?\s(R[W ][E ])\s+0x", header,
                          re.MULTILINE)
    flags = " ".join(re.findall(r"\((?:FLAGS|FLAGS_1)\)\s+(.*)", header))
    paths = re.findall(r"\((?:RUNPATH|RPATH)\).*\[(.*)\]", header)
    is_program = "INTERP" in header
    rules = {
        "its addresses are fixed": "Type:" in header and "DYN (" in header
                                   and (not is_program or "PIE" in flags),
        "functions are bound late": "NOW" in flags,
        "its tables stay writable": any(kind == "GNU_RELRO" for kind, _ in segments),
        "the stack is executable": ("GNU_STACK", "RW ") in segments,
        "code is writable": not any("W" in access and "E" in access for _, access in segments),
        "its code is patched when it is loaded": "TEXTREL" not in header,
        "it looks for libraries elsewhere": all(
            not part or part.startswith("$ORIGIN") for path in paths for part in path.split(":")),
    }
    return [f"{file.name}: {fault}" for fault, holds in rules.items() if not holds]


def landing_pad_faults(file):
    """Exported functions that do not begin with endbr64."""
    starts = {int(line.split()[1], 16): line.split()[-1]
              for line in text("readelf", "-W", "--dyn-syms", file).splitlines()
              if " FUNC " in line and " UND " not in line}
    code = dict(re.findall(r"^\s*([0-9a-f]+):\t(\S+)",
                           text("objdump", "-d", "--no-show-raw-insn", file), re.MULTILINE))
    return len(starts), [f"{file.name}: {name} has no landing pad"
                         for start, name in starts.items() if code.get(f"{start:x}") != "endbr64"]


def trace_faults(file):
    return [f"{file.name}: names the folder it was built from"] * (
        str(ROOT).encode() in file.read_bytes())


def check_linux(preset, folder):
    files = list(elf_files(folder))
    ours = [folder / f"lib{library}.so" for library in LIBRARIES] + [folder / "mqpost"]
    demand(len(files) >= len(ours), f"binaries are missing in {folder}")
    faults = [fault for file in files for fault in elf_faults(file)]
    faults += [fault for file in ours for fault in trace_faults(file.resolve())]
    functions = 0
    for library in ours[:-1]:
        count, pads = landing_pad_faults(library)
        functions += count
        faults += pads
    imports = {file.name: text("nm", "-D", "-u", file) for file in ours}
    faults += [f"{name}: guards no stack" for name, symbols in imports.items()
               if "GfxCore" not in name and "__stack_chk_fail" not in symbols]
    faults += ["mqpost: guards no copy"] * (not re.search(r"__\w+_chk@", imports["mqpost"]))
    demand_none(faults, f"binaries that are not hardened ({preset})")
    return Finding(f"binaries of Linux are hardened ({preset})", len(files) + functions,
                   f"{len(files)} binaries, {functions} exported functions with a landing pad")


# ---- PE -------------------------------------------------------------------------------------


def pe_faults(file):
    dump = text("x86_64-w64-mingw32-objdump", "-p", "-h", file)
    imports = {name.lower() for name in re.findall(r"DLL Name: (\S+)", dump)}
    sections = re.findall(r"^\s*\d+ (\S+).*\n\s+(.*)$", dump, re.MULTILINE)
    rules = {
        "its addresses are fixed": "DYNAMIC_BASE" in dump and ".reloc" in dict(sections),
        "its addresses lie in the lowest 4 GB": "HIGH_ENTROPY_VA" in dump,
        "data are executable": "NX_COMPAT" in dump,
        "code is writable": not any("CODE" in flags and "READONLY" not in flags
                                    for _, flags in sections),
        "it says when it was built": re.search(r"^Time/Date\s+Thu Jan  1 00:00:00 1970", dump,
                                               re.MULTILINE),
    }
    faults = [f"{file.name}: {fault}" for fault, holds in rules.items() if not holds]
    return faults + [f"{file.name}: imports {name}"
                     for name in sorted(imports - SYSTEM_LIBRARIES - OWN_LIBRARIES)]


def check_windows(folder):
    files = sorted([*folder.glob("*.dll"), *folder.glob("*.exe")])
    demand(len(files) >= 4, f"binaries are missing in {folder}")
    demand_none([fault for file in files for fault in pe_faults(file)],
                "binaries of Windows that are not hardened")
    return Finding("binaries of Windows are hardened and import the system and each other alone",
                   len(files), f"{len(files)} binaries")


def check(shop):
    dev = shop.build("dev")
    release = shop.build("release", "mqPostCommon", "mqpost")
    windows = shop.build("windows")
    return [*(check_commands(preset) for preset in OPTIONS),
            check_linux("dev", dev), check_linux("release", release), check_windows(windows)]
