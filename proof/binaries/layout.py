"""The binary interface of the library is compatible with the committed one.

abidiff compares the types, sizes, places and functions of the library with interface.abi.xz, which
abidw made of an earlier build; additions are allowed. (Sizes and places are also stated in
tests/loading/member_layout.cpp, for both platforms.) "check --accept layout" makes the file anew.
"""

import lzma

from workshop import FOLDER, Finding, demand, run

BASELINE = FOLDER / "interface.abi.xz"
DESCRIBE = ["--no-show-locs", "--no-corpus-path", "--no-comp-dir-path",
            "--no-write-default-sizes", "--type-id-style", "hash"]


def build_with_types(shop):
    """A build with complete debug information, which abidw reads."""
    return shop.build("release", "mqPostCommon", folder=shop.scratch / "interface",
                      options=["-DCMAKE_CXX_FLAGS=-g"]) / "libmqPostCommon.so"


def describe(shop, library):
    description = shop.scratch / "new.abi"
    run("abidw", *DESCRIBE, "--out-file", description, library)
    BASELINE.write_bytes(lzma.compress(description.read_bytes(), preset=9 | lzma.PRESET_EXTREME))


def check(shop):
    library = build_with_types(shop)
    if shop.accepting:
        describe(shop, library)
    baseline = shop.scratch / "interface.abi"
    baseline.write_bytes(lzma.decompress(BASELINE.read_bytes()))
    symbols = baseline.read_text().count("<elf-symbol ")
    demand(symbols > 100, f"{BASELINE.name} is no description of the library")
    run("abidiff", "--no-added-syms", baseline, library)  # ends with bits for what has changed
    return [Finding("the binary interface is compatible with the committed one", symbols,
                    "abidiff finds no difference")]
