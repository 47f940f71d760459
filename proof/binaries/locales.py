"""No answer depends on the locale: a number has its point, an I its dot, a text its letter case.

German separates decimals by a comma and groups thousands; Turkish has other pairs of upper and
lower case for the letter I. Both locales are compiled into build/, and a small library preloaded
into each program takes the locale of the environment over for C and C++ before main. All suites
pass in each, and the tool says the same.
"""

import json

from records import command_lines as document_lines
from workshop import Finding, ROOT, demand, demand_none, run

LOCALES = {"C": None, "de_DE.UTF-8": "de_DE", "tr_TR.UTF-8": "tr_TR"}


def compile_locales(folder):
    for name, source in LOCALES.items():
        if source:
            run("localedef", "-i", source, "-f", "UTF-8", folder / name)


def in_locale(name, folder, binaries):
    return {"LC_ALL": name, "LANGUAGE": "", "LOCPATH": str(folder),
            "LD_PRELOAD": str(binaries / "libmqSetLocale.so")}


def check_effect(folder, binaries):
    """The locales are what they should be, and the programs take them over."""
    number = {name: run("printf", "%'.1f", "1234.5" if name == "C" else "1234,5",
                        environment={"LC_ALL": name, "LOCPATH": str(folder)}).decode()
              for name in LOCALES}
    demand(number == {"C": "1234.5", "de_DE.UTF-8": "1.234,5", "tr_TR.UTF-8": "1.234,5"},
           f"the locales write numbers as {number}")
    taken = run(binaries / "mqpost", "--version", expect=99,
                environment=in_locale("no_SUCH", folder, binaries))
    demand(b"does not exist" in taken, "the programs do not take the locale over")


def run_suites(shop, folder, binaries):
    programs = sorted(file for file in binaries.glob("mq*Tests") if file.is_file())
    demand(len(programs) >= 10, "suites are missing")
    faults, cases = [], 0
    for program in programs:
        names = {}
        for locale in LOCALES:
            tests = shop.suite("linux", program, environment=in_locale(locale, folder, binaries))
            names[locale] = {name: test["result"] for name, test in tests.items()}
            cases += len(tests)
        faults += [f"{program.name} in {locale}" for locale in LOCALES
                   if names[locale] != names["C"]]
    demand_none(faults, "suites with other results than in C")
    return Finding("all suites pass in the locales C, de_DE.UTF-8 and tr_TR.UTF-8", cases,
                   f"{len(programs)} programs passed")


def command_lines(binaries):
    """What the tool has to say of everything, as a person and as a program reads it."""
    repertoire = [
        ["list"], ["units"], ["strings"], ["material", "keywords"], ["material", "units"],
        ["strings", "--lang", "de"], ["components", "examples/assembly.json", "--sort", "desc"],
        ["components", "examples/assembly.json", "--element", 1500],
        ["curve", "examples/curve.csv", "--at", 20, "--at", 250.25, "--at", 1234567.5],
        ["find", "STATIC", "DISPLACEMENT", "DX: displacement along X", "--exact"],
        ["columns", "static", "DISPLACEMENT", "--set", 0],
        ["equation", "check", '"SX: normal stress along X" / 1.5', "--study", "Static"],
    ]
    repertoire += [["material", "model", number] for number in range(1, 16)]
    for study in json.loads(run(binaries / "mqpost", "list", "--json"))["studies"]:
        repertoire += [["show", study["name"].upper(), result["code"]]
                       for result in study["results"] if result["count"]]
    for words in repertoire:
        yield words
        yield words + ["--json"]


def run_tool(folder, binaries):
    lines = [*command_lines(binaries), *document_lines()]
    demand(len(lines) > 200, "the tool says little")
    faults = []
    for words in lines:
        outputs = {locale: run(binaries / "mqpost", *words, expect=None,
                               environment=in_locale(locale, folder, binaries))
                   for locale in LOCALES}
        demand(b"Usage" not in outputs["C"], f"mqpost does not understand {words}")
        faults += [f"{words} in {locale}" for locale in LOCALES if outputs[locale] != outputs["C"]]
    demand_none(faults, "command lines with another output than in C")
    return Finding("the tool says the same in each of these locales", len(lines) * len(LOCALES),
                   "byte for byte")


def check(shop):
    binaries = shop.build("dev")
    folder = shop.fresh_folder("locales")
    compile_locales(folder)
    check_effect(folder, binaries)
    return [run_suites(shop, folder, binaries), run_tool(folder, binaries)]
