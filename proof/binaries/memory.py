"""No suite reads undefined bytes, leaves its memory or loses any of it: all of them under memcheck.

mqRecordSet writes its records through a stream whose every Write is a call of the system, so that
memcheck looks at each byte that the library hands over. Without --all the tests of LONG are left
out; their code runs in others as well.
"""

from workshop import Finding, demand, run

VALGRIND = ["valgrind", "--quiet", "--error-exitcode=97", "--leak-check=full",
            "--errors-for-leak-kinds=definite,indirect,possible", "--trace-children=yes",
            "--keep-debuginfo=yes"]

# memcheck's own tables grow with each library that is loaded.
NEVER = ["TheLibrary.IsGoneFromMemoryAfterEachOfAThousandLoadsWithoutGrowth"]

# Half a second and more natively, which is half a minute under memcheck.
LONG = [
    # The same look-ups with every code there is.
    "UnitType.IsAsListedForEveryCodeOptionAndFlag",
    "DefaultUnit.IsThatOfTheQuantityForEveryCodeAndUnitSystem",
    "ComponentDataType.IsAsListedForEveryCode",
    "ComponentTotal.IsAsListedForEvery*",
    "ComponentByNameTest.EveryTextOfTheTableInEveryStudyAndResult",
    "VectorDirection.IsAsListedForEveryCode",
    "EnvelopeBounds.AreAsListedForEveryCode",
    "BarNamesTest.Every*",
    "FullNamesTest.EveryOptionOfEveryList",
    "ShortNamesTest.EveryCodeIsNamedAsOnABarWithoutOptions",
    "ListColumns.EveryColumnOfEveryListSet",
    "ListTitles.EveryListSet",
    "NumberAnswers.AreNothingForUnknown*",
    "NumberAnswers.ComeFromTheDocumentedSetForEveryCode",
    "NumberAnswers.NeverAllocate",
    "Screen.NoLineIsWiderThanTheTerminal",
    # Random or damaged input by the thousand.
    "EquationPlotRecord.AnyFlippedBitIsReadAndWhatWasReadComesBack",
    "EquationPlotRecord.ShortReadsThatClaimSuccessAreSurvived",
    "AssemblyModel.RandomOperationsDoAsThePlainModel",
    "MaterialList.AMillionRandomOperationsGoAsInAPlainModel",
    "DamagedTranslations.*",
    "CompoundDocuments.RandomDamageIsAnErrorOrReadableAndNeverPrinted",
    "CompoundDocuments.ADamagedStructureIsToldByWhatIsWrong",
    "CompoundDocuments.ADocumentTruncatedAtAnyByteIsDamaged",
    # Large input.
    "EquationPlotRecord.AClaimedCountStopsAtTheMaximum",
    "EquationPlotRecord.HeldVariablesDoNotCountTowardsTheMaximum",
    "EquationVerb.ManyVariablesTakeMemoryByTheirBytes",
    "AssemblyList.ManyComponentsAreSorted",
    "AssemblyList.EveryTripleOfKeysIsSortedWithoutOverflow",
    "CompoundDocuments.AsManyElementsAsAllowedComeBack",
    "CompoundDocuments.EverySizeComesBackFromADocumentOfItsOwn",
    "MaterialList.ManyRecordsOfFewNamesComeDownToTheFirstOfEach",
    "CurvePicture.APictureTakesTenThousandPoints",
    # One core runs them one thread after the other.
    "FourThreads.*",
]


def run_suite(program, left_out):
    """Returns how many tests passed."""
    output = run(*VALGRIND, program, "--gtest_brief=1", "--gtest_filter=-" + ":".join(left_out),
                 environment={"MQ_INSTRUMENTED": "1"})
    passed = [line for line in output.decode().splitlines() if line.startswith("[  PASSED  ]")]
    demand(len(passed) == 1, f"{program.name} has passed no test")
    return int(passed[0].split("]")[1].split()[0])


def check_suites(shop, binaries):
    programs = sorted(file for file in binaries.glob("mq*Tests") if file.is_file())
    demand(len(programs) >= 10, "suites are missing")
    left_out = NEVER + ([] if shop.thorough else LONG)
    tests = sum(run_suite(program, left_out) for program in programs)
    return Finding("no suite reads undefined bytes, leaves its memory or loses any", tests,
                   f"no error and no leak in {len(programs)} programs"
                   + ("" if shop.thorough else "; long sweeps left out"))


def check_records(shop, binaries):
    folder = shop.fresh_folder("memory")
    run(*VALGRIND, binaries / "mqRecordSet", "write", folder)
    run(*VALGRIND, binaries / "mqRecordSet", "read", folder / "records.cfb")
    records = list(folder.glob("*.bin"))
    size = sum(record.stat().st_size for record in records)
    demand(size > 10000, "the records are empty")
    return Finding("every byte that a stream is given is defined", size,
                   f"bytes of {len(records)} records, each written by a call of the system")


def check(shop):
    binaries = shop.build("dev")
    return [check_records(shop, binaries), check_suites(shop, binaries)]
